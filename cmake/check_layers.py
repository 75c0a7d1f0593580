#!/usr/bin/env python3
"""Checks that every include of the project points down the house, or stays within its own folder.

Usage: check_layers.py [ROOT]     ROOT is the repository, by default the folder above this script.
Prints one line FILE:LINE: MESSAGE for each violation and exits 1 if there is any.

The rules:
- An include in quotes names a file of the project by its full path from one of the two include roots.
- A file includes headers of its own folder and of lower floors. Folders on one floor don't see each other.
- Interfaces may be included from anywhere; it holds headers alone, which include nothing but their like and the
  foundation.
"""

import os
import re
import sys

FOUNDATION = "Libraries/Static/UVEnvironment"
# The house from the ground up: the folders of each floor. A file lives on the floor of the longest folder that holds it.
FLOORS = [
    ["Interfaces", FOUNDATION],
    ["Catalogue", "Tree", "Stylesheets/Archive"],
    ["Catalogue/Identifiers", "Metadata/Options"],
    ["Catalogue/Types"],
    ["Metadata", "Stylesheets"],
    ["Preparation", "Grammar", "Names"],
    ["Parser"],
    ["Tools/Support"],
    ["Plugins", "Tools", "Languages"],
    ["Tests/Support"],
    ["Tests", "Benchmarks"],
]
FLOOR_OF = {folder: floor for floor, folders in enumerate(FLOORS) for folder in folders}

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
    """The floor and the folder of a file (path from the repository); None for a file outside the house."""
    folder = path
    while "/" in folder:
        folder = folder.rpartition("/")[0]
        if folder in FLOOR_OF:
            return FLOOR_OF[folder], folder
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

    floor, folder = locate(source)
    target_floor, target = locate(targets[0])
    if target == folder or target == "Interfaces":
        return None
    if folder == "Interfaces":
        return None if target == FOUNDATION else f'Interfaces sees the foundation alone, not "{path}"'
    if target_floor > floor:
        return f'"{path}" stands above: {target} on floor {target_floor}, this is {folder} on floor {floor}'
    if target_floor == floor:
        return f'"{path}" stands beside: {target} and {folder} share floor {floor}'
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
        if locate(source)[1] == "Interfaces" and not source.endswith(".h"):
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
