#!/usr/bin/env python3
"""Checks that the labels of comments can be found at the start of a line, where readers look for them.

Usage: check_comments.py [ROOT]     ROOT is the repository, by default the folder above this script.
Prints one line FILE:LINE: MESSAGE for each violation and exits 1 if there is any.

The rules:
- A label ("Returns:", "Throws:" ...) begins its comment line.
- What goes on with the text of a label stands below that text, so that the next label is easy to see:

      // Returns: the entries; null if the
      //          file can't be opened.
      // Owner:   the caller, delete[].
"""

import os
import re
import sys

sys.dont_write_bytecode = True
from check_layers import source_files

LABELS = "Borrows|Lifetime|Note|Owner|Returns|Shares|Throws"
# "Note" gives a title to the lines below it, which stand flush.
LABEL = re.compile(rf"(?P<text>(?!Note:)(?:{LABELS}):\s*)")
LABEL_INSIDE = re.compile(rf"\S\s+(?P<label>{LABELS}):(?:\s|$)")
# The code may hold strings with two slashes. Nothing but comments counts in it.
COMMENT = re.compile(r"""^(?P<code>(?:[^"'/]|"(?:[^"\\]|\\.)*"|'(?:[^'\\]|\\.)*'|/(?!/))*)//(?P<text>[^/].*)$""")


def comment_lines(path):
    """The line comments of a file: line number, column of the slashes, whether code comes before, text."""
    with open(path, encoding="utf-8", errors="replace") as file:
        for number, line in enumerate(file, 1):
            match = COMMENT.match(line.rstrip("\n"))
            if match:
                yield number, match.end("code"), bool(match.group("code").strip()), match.group("text")


def problems(path):
    """What is wrong with the comments of a file, by line number."""
    last = (0, 0)  # line and column of the comment line before
    column = None  # where the text of the open label stands
    for number, slashes, follows_code, text in comment_lines(path):
        if follows_code or (number - 1, slashes) != last:
            column = None
        last = (number, slashes)
        inside = LABEL_INSIDE.search(text)
        if inside:
            yield number, f'"{inside.group("label")}:" stands inside the line'
        body = text.lstrip()
        label = LABEL.match(body)
        indent = len(text) - len(body)
        if label:
            column = indent + len(label.group("text"))
        elif column is not None and indent != column and not inside:
            yield number, f"this goes on with a label and stands {abs(indent - column)} columns beside its text"
            column = None


def main():
    root = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), ".."))
    files = violations = 0
    for source in source_files(root):
        files += 1
        for line, text in problems(os.path.join(root, source)):
            print(f"{source}:{line}: {text}")
            violations += 1
    if files == 0:
        print(f"{root}: no sources here")
        return 1
    print(f"{files} files, {violations} violations")
    return 1 if violations else 0


if __name__ == "__main__":
    sys.exit(main())
