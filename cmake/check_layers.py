#!/usr/bin/env python3
"""Checks that every include of the project points down the house, or sideways within its own folder.

Usage: check_layers.py [ROOT]     ROOT is the repository, by default the folder above this script.
Prints one line FILE:LINE: MESSAGE for each violation and exits 1 if there is any.

The rules:
- An include in quotes names a file of the project by its full path from one of the two include roots.
- A file includes headers of lower floors, and of its own room on its own floor or below. Rooms on one floor don't
  see each other.
- Interfaces may be included from anywhere; it holds headers alone, which include nothing but their like and the
  foundation.
"""

import fnmatch
import os
import re
import sys

# The house from the ground up: each floor's rooms, and the files that live there. The first pattern that fits
# decides, so that a folder whose files live on two floors names the lower ones first.
FLOORS = [
    [
        ("interfaces", ["Interfaces/*"]),
        ("foundation", ["Libraries/Static/UVEnvironment/*"]),
    ],
    [
        (
            "catalogue",
            [
                "Catalogue/UVDBCatalogueRows.*",
                "Catalogue/UVDBDatabaseKinds.*",
                "Catalogue/UVDBDbInfo.*",
                "Catalogue/UVDBHelpers.*",
                "Catalogue/UVDBKindLists.*",
                "Catalogue/UVDBNameMatcher.*",
                "Catalogue/UVDBNamesHelper.*",
                "Catalogue/UVDBParserNames.*",
                "Catalogue/UVDBVersionRange.*",
            ],
        ),
        ("archive", ["Stylesheets/Archive/*"]),
    ],
    [
        (
            "metadata",
            [
                "Metadata/OptionsHost.*",
                "Metadata/UVDBOption*",
                "Metadata/UVOptionInfo.*",
                "Metadata/UVProcessName.*",
                "Metadata/UVWizardOptionRows.*",
                "Metadata/wzdoptions*",
            ],
        ),
    ],
    [("catalogue", ["Catalogue/*"])],
    [
        ("metadata", ["Metadata/*"]),
        ("stylesheets", ["Stylesheets/*"]),
    ],
    [
        ("preparation", ["Preparation/*"]),
        ("grammar", ["Grammar/*"]),
        ("names", ["Names/*"]),
    ],
    [("parser", ["Parser/*"])],
    [("tool support", ["Tools/Support/*"])],
    [
        ("plugins", ["Plugins/*"]),
        ("tools", ["Tools/*"]),
        ("languages", ["Languages/*"]),
    ],
    [("test support", ["Tests/Support/*"])],
    [
        ("tests", ["Tests/*"]),
        ("benchmarks", ["Benchmarks/*"]),
    ],
]

INCLUDE_ROOTS = ["", "Libraries/Static/"]
SOURCES = (".h", ".hpp", ".inc", ".cpp", ".cc", ".c")

# Raw strings and comments may hold text that only looks like an include.
NO_CODE = re.compile(
    r"""R"(?P<mark>[^()\\\s]{0,16})\(.*?\)(?P=mark)"     # raw string
      | /\*.*?\*/                                        # comment
      | //(?:[^\\\n]|\\.)*
      | (?P<text>"(?:[^"\\\n]|\\.)*"                     # string and character: kept, they may hold // or /*
      | (?<![0-9A-Za-z])'(?:[^'\\\n]|\\.)+')
    """,
    re.VERBOSE | re.DOTALL,
)
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?P<open>["<])(?P<path>[^">\n]*)[">]', re.MULTILINE)


def locate(path):
    """The floor and the room of a file (path from the repository); None for a file outside the house."""
    for floor, rooms in enumerate(FLOORS):
        for room, patterns in rooms:
            if any(fnmatch.fnmatchcase(path, pattern) for pattern in patterns):
                return floor, room
    return None


def source_files(root):
    """The project's sources by their path from `root`, build trees and hidden folders left out."""
    for folder, subfolders, files in os.walk(root):
        if "CMakeCache.txt" in files and folder != root:
            subfolders.clear()
            continue
        subfolders[:] = sorted(name for name in subfolders if not name.startswith("."))
        for name in sorted(files):
            if name.endswith(SOURCES):
                yield os.path.relpath(os.path.join(folder, name), root).replace(os.sep, "/")


def code_only(text):
    def blank(match):
        return match.group() if match.group("text") else "\n" * match.group().count("\n")

    return NO_CODE.sub(blank, text)


def includes(root, path):
    with open(os.path.join(root, path), encoding="utf-8", errors="replace") as file:
        code = code_only(file.read())
    for match in INCLUDE.finditer(code):
        yield code.count("\n", 0, match.start()) + 1, match.group("path"), match.group("open") == '"'


def problem(root, source, path, quoted):
    """What is wrong with this include of `source`; None if nothing is."""
    if not quoted:
        is_ours = any(os.path.isfile(os.path.join(root, base + path)) and locate(base + path) for base in INCLUDE_ROOTS)
        return f"<{path}> is a file of the project and belongs in quotes" if is_ours else None
    if any(part in ("", ".", "..") for part in path.split("/")):
        return f'"{path}" is no plain path from an include root'
    longer = [base for base in INCLUDE_ROOTS if base and path.startswith(base)]
    if longer:
        return f'"{path}" repeats the include root {longer[0]}'
    # A file that a build makes isn't there yet, but its folder tells where it will live.
    targets = [base + path for base in INCLUDE_ROOTS if locate(base + path)]
    if "/" not in path or not targets:
        return f'"{path}" is no full path from an include root'

    floor, room = locate(source)
    target_floor, target_room = locate(targets[0])
    if target_room == "interfaces":
        return None
    if room == "interfaces":
        return None if target_room == "foundation" else f'Interfaces sees the foundation alone, not "{path}"'
    if target_room == room and target_floor <= floor:
        return None
    if target_floor > floor:
        return f'"{path}" stands above: {target_room} on floor {target_floor}, this is {room} on floor {floor}'
    if target_floor == floor:
        return f'"{path}" stands beside: {target_room} and {room} share floor {floor}'
    return None


def main():
    root = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), ".."))
    files = violations = 0
    for source in source_files(root):
        files += 1
        if not locate(source):
            print(f"{source}:1: this folder has no floor; name it in {os.path.basename(__file__)}")
            violations += 1
            continue
        if locate(source)[1] == "interfaces" and not source.endswith(".h"):
            print(f"{source}:1: Interfaces holds headers alone")
            violations += 1
        for line, path, quoted in includes(root, source):
            text = problem(root, source, path, quoted)
            if text:
                print(f"{source}:{line}: {text}")
                violations += 1
    if files == 0:
        print(f"{root}: no sources here")
        return 1
    print(f"{files} files, {violations} violations")
    return 1 if violations else 0


if __name__ == "__main__":
    sys.exit(main())
