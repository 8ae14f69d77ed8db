"""Every check of the sources but clang-tidy's, which the lint preset runs beside the compiler. Exit status 0 when there is nothing to say, 1 otherwise."""

import argparse
import hashlib
import pathlib
import re
import shutil
import subprocess
import sys
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parent))

import arrows
from tree import CODE, Fault, files

# Other versions format other lines.
LLVM = "14"


def clang_format():
    """The pinned version, under its versioned name or its plain one."""
    for candidate in (f"clang-format-{LLVM}", "clang-format"):
        path = shutil.which(candidate)
        if path:
            text = subprocess.run([path, "--version"], capture_output=True, text=True, check=True).stdout
            if re.search(rf"version {LLVM}\.", text):
                return path
    sys.exit(f"lint: clang-format {LLVM} is not installed; other versions judge differently")


def code(root):
    return files(root, ["Sources", "Tests", "Benchmarks"], CODE)


def check_format(root):
    done = subprocess.run([clang_format(), "--dry-run", "-Werror", *code(root)], cwd=root, capture_output=True, text=True)
    found = re.findall(r"^(\S+?):(\d+):\d+: error: ", done.stderr, re.MULTILINE)
    first = {}
    for path, line in found:
        first.setdefault(path, int(line))
    faults = [Fault(path, line, "not in the house format; run ./dev format") for path, line in first.items()]
    if done.returncode != 0 and not faults:
        faults.append(Fault(".clang-format", 0, done.stderr.strip()[-500:]))
    return faults


def scripts(root):
    """Shell scripts by their first line, whatever they are called."""
    skip = {"build", ".git"}
    for path in sorted(pathlib.Path(root).rglob("*")):
        relative = path.relative_to(root)
        if relative.parts[0] in skip or not path.is_file() or path.stat().st_size > 1 << 20:
            continue
        with path.open("rb") as file:
            if re.match(rb"#!.*\b(ba)?sh\b", file.readline(200)):
                yield relative.as_posix()


def check_scripts(root):
    done = subprocess.run(["shellcheck", "-f", "gcc", *scripts(root)], cwd=root, capture_output=True, text=True)
    faults = [Fault(path, int(line), text) for path, line, text in re.findall(r"^([^:\n]+):(\d+):\d+: (.*)$", done.stdout, re.MULTILINE)]
    if done.returncode != 0 and not faults:
        faults.append(Fault("shellcheck", 0, done.stderr.strip()))
    return faults


# Mistakes that Tests/MacOS/check must find; it takes every file of that folder.
UNLISTED = "Tests/MacOS/Mistakes/"


def check_sources(root):
    """A source that no CMakeLists.txt names is never built, and a test in it never run."""
    scripts = [path for folder in ("Sources", "Tests", "Benchmarks", "Packaging") for path in (pathlib.Path(root) / folder).rglob("CMakeLists.txt")]
    named = set(re.findall(r"[\w.-]+\.(?:cpp|mm|qml)\b", "\n".join(path.read_text(encoding="utf-8") for path in scripts)))
    return [Fault(path, 0, "no CMakeLists.txt names it")
            for path in files(root, ["Sources", "Tests", "Benchmarks", "Packaging"], {".cpp", ".mm", ".qml"})
            if pathlib.Path(path).name not in named and not path.startswith(UNLISTED)]


def check_macos(root, build):
    """The adapters for macOS, by their own script, which also proves that it still finds mistakes. It takes a minute, so
    it runs again only after a change in the sources or in the script."""
    root = pathlib.Path(root)
    digest = hashlib.sha256()
    for path in sorted(path for folder in ("Sources", "Tests/MacOS") for path in (root / folder).rglob("*") if path.is_file()):
        digest.update(str(path).encode() + b"\0" + path.read_bytes() + b"\0")
    stamp = build / "macos.checked"
    if stamp.exists() and stamp.read_text(encoding="utf-8") == digest.hexdigest():
        return []
    done = subprocess.run([sys.executable, str(root / "Tests/MacOS/check")], capture_output=True, text=True)
    if done.returncode != 0:
        return [Fault("Tests/MacOS/check", 0, (done.stdout + done.stderr).strip())]
    stamp.write_text(digest.hexdigest(), encoding="utf-8")
    return []


def qt_core(build):
    """Qt Core's headers, as the compiler is told where they are."""
    commands = pathlib.Path(build) / "compile_commands.json"
    found = re.search(r"-isystem (\S+/QtCore)\b", commands.read_text(encoding="utf-8"))
    return found[1] if found else None


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", default="build/lint", help="a configured build, for the compile commands")
    parser.add_argument("--format", action="store_true", help="rewrite the sources in the house format and leave")
    parser.add_argument("--only", help="run this one check")
    options = parser.parse_args()
    root = pathlib.Path(__file__).resolve().parents[2]
    if options.format:
        subprocess.run([clang_format(), "-i", *code(root)], cwd=root, check=True)
        return 0
    build = root / options.build
    checks = {
        "format": lambda: check_format(root),
        "includes": lambda: arrows.check(root, qt_core(build)),
        "sources": lambda: check_sources(root),
        "scripts": lambda: check_scripts(root),
        "macos": lambda: check_macos(root, build),
    }
    if options.only and options.only not in checks:
        parser.error(f"no check is called {options.only}; there are {', '.join(checks)}")
    failed = 0
    for name, check in checks.items():
        if options.only in (None, name):
            began = time.monotonic()
            faults = check()
            for fault in faults:
                print(fault, flush=True)
            failed += len(faults)
            verdict = f"{len(faults)} to mend" if faults else "nothing to say"
            print(f"lint: {name}: {verdict} ({time.monotonic() - began:.1f} s)", file=sys.stderr, flush=True)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
