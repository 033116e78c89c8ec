#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that the built library is named after its ABI version, and that the page about it names the same version.

Usage: check_soname.py LIBRARY VERSION PAGE
"""

import re
import sys
from pathlib import Path

import elf


def offences(built, version, page):
    """One sentence per name that does not fit."""
    expected = f"libVOXAnalysisResources.so.{version}"
    if built != expected:
        yield f"the library's soname is {built}, and VOX_ABI_VERSION {version} asks for {expected}"
    told = re.search(r"ABI version is \*\*(\d+)\*\*", page)
    if not told:
        yield "docs/abi.md does not say which ABI version this is: write 'The ABI version is **N**'"
    elif told[1] != version:
        yield f"docs/abi.md says that the ABI version is {told[1]}, and VOX_ABI_VERSION is {version}"


def main(arguments):
    if len(arguments) != 3:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    library, version, page = arguments
    try:
        found = list(offences(elf.soname(library), version, Path(page).read_text(encoding="utf-8")))
    except (elf.Unreadable, OSError) as error:
        print(f"check_soname: {error}", file=sys.stderr)
        return 2
    print("\n".join(found) or f"The library is named after ABI version {version}.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
