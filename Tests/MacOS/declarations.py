#!/usr/bin/env python3
"""Holds the declarations the adapters are checked with against the list that the self-test asks the system for.

Every class, method, property and symbol declared under SDK/ must be in SystemInterfaces.cpp and the other way round, and
every one of them must be used by an adapter. With --print it writes the list instead, for pasting.
"""

import re
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
FRAMEWORKS = HERE / "SDK/System/Library/Frameworks"
ADAPTERS = HERE.parents[1] / "Sources/Platform/MacOS"
OLDEST_SYSTEM = 13
LIST = ADAPTERS / "SystemInterfaces.cpp"

# Used by the language itself where the adapters say @[...], map[key], `for (x in list)` or alloc.
IMPLICIT = {
    "arrayWithObjects:count:", "objectForKeyedSubscript:", "countByEnumeratingWithState:objects:count:", "init", "NSObject",
    "NSDictionary",
}


def without_comments(text):
    return re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.S)


def first_system(declaration):
    """The first system that has it, as the list says it: empty for those that the program needs anyway."""
    since = re.search(r"API_AVAILABLE\(macos\((\d+)", declaration)
    return since.group(1) if since and int(since.group(1)) > OLDEST_SYSTEM else ""


def selector_of(declaration):
    """The selector in a method declaration without its sign."""
    flat = re.sub(r"API_AVAILABLE\(.*", "", declaration, flags=re.S)
    while True:
        shorter = re.sub(r"\([^()]*\)", " ", flat)
        if shorter == flat:
            break
        flat = shorter
    parts = re.findall(r"(\w+)\s*:", flat)
    return "".join(part + ":" for part in parts) if parts else flat.split()[0]


def declared_in_interface(name, body):
    found = {("type", "", name, "")}
    for method in re.findall(r"^\s*[-+]\s*\(.*?;", body, flags=re.S | re.M):
        sign = method.strip()[0]
        selector = selector_of(method.strip()[1:].rstrip(";"))
        found.add(("classMethod" if sign == "+" else "instanceMethod", name, selector, first_system(method)))
    for attributes, rest in re.findall(r"@property\s*(?:\(([^)]*)\))?\s*([^;]*);", body, flags=re.S):
        words = [word.strip() for word in attributes.split(",")]
        bare = re.sub(r"API_AVAILABLE\(.*\)", "", rest).strip()
        prop = re.findall(r"\w+", bare)[-1]
        kind = "classMethod" if "class" in words else "instanceMethod"
        found.add((kind, name, prop, first_system(rest)))
        if "readonly" not in words:
            found.add((kind, name, f"set{prop[0].upper()}{prop[1:]}:", first_system(rest)))
    return found


def declared():
    found = set()
    for header in sorted(FRAMEWORKS.glob("*/Headers/*.h")):
        text = re.sub(r"^#if(?:n?def)? .*?^#endif.*?$", "", without_comments(header.read_text()), flags=re.S | re.M)
        text = re.sub(r"^#.*$", "", text, flags=re.M)
        for name, body in re.findall(r"@interface (\w+)(.*?)@end", text, flags=re.S):
            found |= declared_in_interface(name, body)
        for name, body in re.findall(r"@protocol (NSObject)\b(.*?)@end", text, flags=re.S):
            found |= declared_in_interface(name, body)
        plain = re.sub(r"@(?:interface|protocol) .*?@end", "", text, flags=re.S)
        plain = re.sub(r"\bAPI_AVAILABLE\(macos\([^)]*\)\)|\bCF_RETURNS\w+", "", plain)
        for statement in plain.split(";"):
            if "typedef" in statement or "constexpr" in statement:
                continue
            constant = re.search(r"\bextern\b.*\bconst\b.*?(\w+)\s*$", statement, flags=re.S)
            function = re.search(r"(\w+)\s*\([^()]*\)\s*$", statement, flags=re.S)
            if constant:
                found.add(("symbol", "", constant.group(1), ""))
            elif function and "@" not in statement:
                found.add(("symbol", "", function.group(1), ""))
    return found


def listed():
    # The formatter may break a long entry over two lines.
    entries = re.findall(r'\{Kind::(\w+),\s*(?:nullptr|"(\w*)"),\s*"([\w:]+)"(?:,\s*(\d+))?\}', LIST.read_text())
    duplicates = {entry for entry in entries if entries.count(entry) > 1}
    return set(entries), duplicates


def used_words():
    sources = [path for path in ADAPTERS.iterdir() if path.suffix in {".mm", ".cpp", ".h"} and path != LIST]
    return set(re.findall(r"\w+", without_comments("\n".join(path.read_text() for path in sources))))


def is_used(entry, words):
    name = entry[2]
    if name in IMPLICIT:
        return True
    first = name.split(":")[0]
    setter = re.fullmatch(r"set(\w)(\w*)", first)
    return first in words or bool(setter and setter.group(1).lower() + setter.group(2) in words)


def main():
    wanted = declared()
    if sys.argv[1:] == ["--print"]:
        for kind, owner, name, since in sorted(wanted):
            quoted = f'"{owner}"' if owner else "nullptr"
            print(f'    {{Kind::{kind}, {quoted}, "{name}"{", " + since if since else ""}}},')
        return 0
    present, duplicates = listed()
    words = used_words()
    complaints = [f"declared, but the self-test does not ask for it: {entry}" for entry in sorted(wanted - present)]
    complaints += [f"the self-test asks for it, but it is not declared: {entry}" for entry in sorted(present - wanted)]
    complaints += [f"listed twice: {entry}" for entry in sorted(duplicates)]
    complaints += [f"declared, but no adapter uses it: {entry}" for entry in sorted(wanted) if not is_used(entry, words)]
    if len(wanted) < 90:
        complaints.append(f"only {len(wanted)} declarations were found: this script has gone blind")
    for complaint in complaints:
        print(complaint)
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
