#!/usr/bin/env python3
"""Docs/macos.md says where every call to the system is made: each line it names must hold that call.

With --fix the line numbers are brought up to date; a call that the file does not make stays a complaint.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
DOCUMENT = ROOT / "Docs/macos.md"
ROW = re.compile(r"^(\|.*\| `([^`]+)` \| )([\w./-]+):(\d+)( \|)$", re.M)


def line_of(call, path):
    """The first line with the call in it that is neither a comment nor an include; none when there is no such line."""
    for number, line in enumerate((ROOT / path).read_text(encoding="utf-8").splitlines(), 1):
        if holds(line, call):
            return number
    return None


def holds(line, call):
    return call in line and not line.lstrip().startswith(("//", "#include", "#import"))


def complaint(call, path, number):
    if not (ROOT / path).is_file():
        return f"{path} does not exist"
    lines = (ROOT / path).read_text(encoding="utf-8").splitlines()
    if number < 1 or number > len(lines) or not holds(lines[number - 1], call):
        return f"{path}:{number} does not hold {call}; ./dev format brings the lines up to date"
    return None


def main():
    text = DOCUMENT.read_text(encoding="utf-8")
    if sys.argv[1:] == ["--fix"]:
        text = ROW.sub(lambda row: f"{row[1]}{row[3]}:{line_of(row[2], row[3]) or row[4]}{row[5]}", text)
        DOCUMENT.write_text(text, encoding="utf-8")
    rows = [(row[2], row[3], int(row[4])) for row in ROW.finditer(text)]
    table = text.split("## Where every call is made")[1].split("\n## ")[0]
    complaints = [found for found in (complaint(*row) for row in rows) if found]
    listed = sum(1 for line in table.splitlines() if line.startswith("| ")) - 1
    if listed != len(rows):
        complaints.append(f"{listed - len(rows)} rows of the table name no line of a source")
    for found in complaints:
        print(found)
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
