#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that the code which a page shows stands in the files that it names.

Usage: check_pieces.py ROOT PAGE
Every block of code (not of shell commands) stands behind a line that ends with the file's path in backticks and a colon.
Prints one line per offence and exits 1 when there is any, or no block at all.
"""

import re
import sys
from pathlib import Path

CHECKED = {"cpp", "cmake"}
SOURCE = re.compile(r"`(?P<path>[^`]+)`:$")


def pieces(lines):
    """(line number of the fence, path or None, text) of every checked block."""
    before = ""
    i = 0
    while i < len(lines):
        if not lines[i].startswith("```"):
            before = lines[i] or before
            i += 1
            continue
        end = next(k for k in range(i + 1, len(lines)) if lines[k].startswith("```"))
        if lines[i][3:] in CHECKED:
            source = SOURCE.search(before)
            yield i + 1, source and source["path"], "\n".join(lines[i + 1 : end]) + "\n"
        before = ""
        i = end + 1


def offence(root, path, text):
    """What is wrong with one piece, or None."""
    if path is None:
        return "a block of code stands behind no line that ends with its file: From `path`:"
    if not (root / path).is_file():
        return f"there is no file {path}: name the file that the block is taken from"
    if text not in (root / path).read_text():
        return f"the block is not in {path} as it stands here: copy it again"
    return None


def main():
    root, page = Path(sys.argv[1]), Path(sys.argv[2])
    found = list(pieces(page.read_text().split("\n")))
    offences = [(line, offence(root, path, text)) for line, path, text in found]
    bad = [f"{page.name}:{line}: {what}" for line, what in offences if what]
    print("\n".join(bad) if bad else f"{len(found)} pieces stand in their files.")
    return 1 if bad or not found else 0


if __name__ == "__main__":
    sys.exit(main())
