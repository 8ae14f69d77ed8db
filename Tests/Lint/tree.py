"""The repository as the checks see it: which files there are, and a fault in one of them."""

import dataclasses
import pathlib


@dataclasses.dataclass(frozen=True)
class Fault:
    path: str
    line: int
    text: str

    def __str__(self):
        return f"{self.path}:{self.line}: {self.text}" if self.line else f"{self.path}: {self.text}"


CODE = {".h", ".cpp", ".mm", ".m"}


def files(root, folders, suffixes):
    """The files below some of the root's folders, as sorted paths relative to the root."""
    root = pathlib.Path(root)
    found = []
    for folder in folders:
        for path in (root / folder).rglob("*"):
            if path.suffix in suffixes and path.is_file():
                found.append(path.relative_to(root).as_posix())
    return sorted(found)


def read(root, path):
    return (pathlib.Path(root) / path).read_text(encoding="utf-8")
