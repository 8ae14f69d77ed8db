"""clang-tidy over the sources, several at a time. A file that was clean is not looked at again until it, something it
includes, its compile command, the checks or clang-tidy itself change."""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess

from tree import Fault

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


def check(root, build, tidy, folder="Sources"):
    root, build = pathlib.Path(root).resolve(), pathlib.Path(build).resolve()
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    ours = {pathlib.Path(c["file"]).resolve(): c["command"] for c in commands}
    ours = {path: command for path, command in ours.items() if path.is_relative_to(root / folder)}
    if not ours:
        return [Fault(folder, 0, "no compile command names a file in it; configure the build again")]
    version = subprocess.run([tidy, "--version"], capture_output=True, text=True, check=True).stdout
    clean = build.parent / "lint"
    clean.mkdir(parents=True, exist_ok=True)
    salt = version + (root / ".clang-tidy").read_text(encoding="utf-8")

    def look(path):
        stamp = clean / digest(path, salt + ours[path], root)
        if stamp.exists():
            os.utime(stamp)
            return []
        done = subprocess.run([tidy, "-p", str(build), "--quiet", str(path)], capture_output=True, text=True)
        if done.returncode == 0:
            stamp.touch()
            return []
        return faults_of(done.stdout + done.stderr, path, root)

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return list(dict.fromkeys(fault for faults in pool.map(look, sorted(ours)) for fault in faults))


def digest(path, salt, root):
    """One value for all that decides what clang-tidy says: the file and, once each, what it includes of ours."""
    seen, queue, sum_ = set(), [path], hashlib.sha256(salt.encode())
    while queue:
        current = queue.pop()
        if current in seen or not current.is_file():
            continue
        seen.add(current)
        text = current.read_text(encoding="utf-8")
        sum_.update(str(current).encode() + b"\0" + text.encode() + b"\0")
        for name in INCLUDE.findall(text):
            queue += [root / "Sources" / name, current.parent / name]
    return sum_.hexdigest()


def digest_of_files(paths):
    """One value for the names and contents of some files."""
    sum_ = hashlib.sha256()
    for path in sorted(paths):
        sum_.update(str(path).encode() + b"\0" + pathlib.Path(path).read_bytes() + b"\0")
    return sum_.hexdigest()


def faults_of(output, path, root):
    faults = []
    for match in re.finditer(r"^(/[^:\n]+):(\d+):\d+: (?:error|warning): (.*)$", output, re.MULTILINE):
        place = pathlib.Path(match[1]).resolve()
        shown = place.relative_to(root).as_posix() if place.is_relative_to(root) else str(place)
        faults.append(Fault(shown, int(match[2]), match[3]))
    return faults or [Fault(path.relative_to(root).as_posix(), 0, "clang-tidy failed: " + output.strip()[-500:])]
