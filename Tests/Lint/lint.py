"""Every check that needs no running program. Exit status 0 when there is nothing to say, 1 otherwise."""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).parent))

import arrows
import sizes
import sources
import tidy
from tree import CODE, Fault, files

# Other versions format other lines and know other checks.
LLVM = "14"


def tool(name):
    """The pinned version of an LLVM tool, under its versioned name or its plain one."""
    for candidate in (f"{name}-{LLVM}", name):
        path = shutil.which(candidate)
        if path:
            text = subprocess.run([path, "--version"], capture_output=True, text=True, check=True).stdout
            if re.search(rf"version {LLVM}\.", text):
                return path
    sys.exit(f"lint: {name} {LLVM} is not installed; other versions judge differently")


def code(root):
    return files(root, ["Sources", "Tests", "Benchmarks"], CODE)


def check_format(root):
    done = subprocess.run([tool("clang-format"), "--dry-run", "-Werror", *code(root)], cwd=root, capture_output=True, text=True)
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


def check_macos(root, build):
    """The adapters for macOS, by their own script, which also proves that it still finds mistakes. It takes a minute, so
    it is not asked again until something in the sources or in the script changes."""
    root = pathlib.Path(root)
    inputs = [path for folder in ("Sources", "Tests/MacOS") for path in (root / folder).rglob("*") if path.is_file()]
    stamp = build.parent / "lint" / ("macos-" + tidy.digest_of_files(inputs))
    if stamp.exists():
        return []
    done = subprocess.run([sys.executable, str(root / "Tests/MacOS/check")], capture_output=True, text=True)
    if done.returncode != 0:
        return [Fault("Tests/MacOS/check", 0, (done.stdout + done.stderr).strip())]
    stamp.parent.mkdir(parents=True, exist_ok=True)
    stamp.touch()
    return []


def check_calls(root):
    """The lines that Docs/macos.md names; ./dev format brings them up to date."""
    done = subprocess.run([sys.executable, str(pathlib.Path(root) / "Tests/MacOS/calls.py")], capture_output=True, text=True)
    return [Fault("Docs/macos.md", 0, line) for line in (done.stdout + done.stderr).splitlines()] if done.returncode else []


def qt_core(build):
    """Qt Core's headers, as the compiler is told where they are."""
    commands = pathlib.Path(build) / "compile_commands.json"
    found = re.search(r"-isystem (\S+/QtCore)\b", commands.read_text(encoding="utf-8"))
    return found[1] if found else None


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", default="build/dev", help="a configured build, for the compile commands")
    parser.add_argument("--format", action="store_true", help="rewrite the sources in the house format and leave")
    parser.add_argument("--only", help="run this one check")
    options = parser.parse_args()
    root = pathlib.Path(__file__).resolve().parents[2]
    if options.format:
        subprocess.run([tool("clang-format"), "-i", *code(root)], cwd=root, check=True)
        return 0
    build = root / options.build
    checks = {
        "format": lambda: check_format(root),
        "includes": lambda: arrows.check(root, qt_core(build)),
        "sizes": lambda: sizes.check(root),
        "sources": lambda: sources.check(root, build),
        "scripts": lambda: check_scripts(root),
        "calls": lambda: check_calls(root),
        "macos": lambda: check_macos(root, build),
        "clang-tidy": lambda: tidy.check(root, build, tool("clang-tidy")),
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
