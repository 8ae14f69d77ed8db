"""Sources are listed by name: what CMake knows is what lies on the disk, and nothing else. A test's header need not be:
nothing is built from it but the test that includes it."""

import json
import pathlib
import re

from tree import Fault, files

# Declarations of another system and mistakes to be found: read by Tests/MacOS/check, which takes whatever lies there.
UNLISTED = ("Tests/MacOS/SDK/", "Tests/MacOS/Mistakes/", "Tests/MacOS/FakeCoreFoundation/include/")
SUFFIXES = {".h", ".cpp", ".mm", ".qml"}
TOKEN = re.compile(r'[^\s"();]+\.(?:h|cpp|mm|qml)(?=[\s"();]|$)')


def check(root, build=None):
    root = pathlib.Path(root).resolve()
    listed, faults = set(), []
    scripts = sorted(path for folder in ("Sources", "Tests", "Benchmarks") for path in (root / folder).rglob("CMakeLists.txt"))
    for script in scripts:
        for number, line in enumerate(script.read_text(encoding="utf-8").splitlines(), 1):
            for token in TOKEN.findall(line.split("#")[0]):
                path = resolve(token, script.parent, root)
                if path is None:
                    continue
                if path.is_file():
                    listed.add(path)
                else:
                    faults.append(Fault(script.relative_to(root).as_posix(), number, f"{token} does not exist"))
    listed |= compiled(build)
    for path in files(root, ["Sources", "Tests", "Benchmarks"], SUFFIXES):
        is_test_header = path.startswith("Tests/") and path.endswith(".h")
        if root / path not in listed and not is_test_header and not path.startswith(UNLISTED):
            faults.append(Fault(path, 0, "no CMakeLists.txt lists it"))
    return faults


def resolve(token, folder, root):
    """The file that a word of a CMakeLists.txt names; none when only CMake could tell."""
    token = token.replace("${CMAKE_CURRENT_SOURCE_DIR}", str(folder))
    token = token.replace("${PROJECT_SOURCE_DIR}", str(root)).replace("${CMAKE_SOURCE_DIR}", str(root))
    return None if "$" in token or "*" in token else (folder / token).resolve()


def compiled(build):
    """What the compiler is given: this covers names that a loop in CMake puts together."""
    if build is None or not (pathlib.Path(build) / "compile_commands.json").is_file():
        return set()
    commands = json.loads((pathlib.Path(build) / "compile_commands.json").read_text(encoding="utf-8"))
    return {pathlib.Path(command["file"]).resolve() for command in commands}
