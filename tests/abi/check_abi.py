#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the binary interface of the built library with its baseline: types, members, virtual tables, exports, soname.

Usage: check_abi.py [--update] LIBRARY BASELINE DUMP INCLUDE...
DUMP is written: the interface as it was built, in the form of the baseline. The INCLUDE folders hold the public headers:
types of other headers do not count. LIBRARY needs debug information.
Exits 1 when the interface differs in any way, 2 when it cannot tell. --update writes BASELINE anew.
"""

import re
import subprocess
import sys
from pathlib import Path

import elf

# The bits of abidiff's exit code.
ERROR, USAGE, CHANGED, INCOMPATIBLE = 1, 2, 4, 8

# What would tie a baseline to a machine, or say nothing about the interface.
LEFT_OUT = ["--no-architecture", "--no-comp-dir-path", "--no-corpus-path", "--no-elf-needed", "--no-parameter-names",
            "--no-show-locs", "--no-write-default-sizes", "--drop-private-types", "--drop-undefined-syms",
            "--exported-interfaces-only", "--type-id-style", "hash"]


def call(command):
    """A finished run of one of the two tools."""
    try:
        return subprocess.run(command, capture_output=True, text=True, check=False)
    except FileNotFoundError:
        raise elf.Unreadable(f"there is no program {command[0]}: install it (on Debian: abigail-tools)") from None


def dump_of(library, headers):
    """The interface of a library as text."""
    folders = [argument for folder in headers for argument in ("--headers-dir", str(folder))]
    done = call(["abidw", *LEFT_OUT, *folders, str(library)])
    if done.returncode != 0:
        raise elf.Unreadable(f"abidw cannot read {library}: {done.stderr.strip()}")
    text = re.sub(r"path='(\.\./)+", "path='", done.stdout)
    described = set(re.findall(r"<class-decl name='(\w+)' size-in-bits=", text))
    if not elf.virtual_tables(library).keys() & described:
        raise elf.Unreadable(f"{library} has no debug information about its classes: compile it with -g")
    return text


def verdict(code, report, baseline):
    """Exit code and message for what abidiff answered."""
    if code & (ERROR | USAGE) or code & ~(ERROR | USAGE | CHANGED | INCOMPATIBLE):
        return 2, f"abidiff could not compare (exit code {code}): {report}"
    if code == 0:
        return 0, f"The binary interface is that of {baseline.name}."
    if code & INCOMPATIBLE:
        advice = ("This change breaks compiled code. Undo it; or, if it is meant, raise VOX_ABI_VERSION, tell it in CHANGELOG.md\n"
                  "and build the target vox_update_abi, as docs/abi.md says.")
    else:
        advice = ("This change may break compiled code: docs/abi.md tells which do. If it is meant and breaks nothing, build\n"
                  "the target vox_update_abi with each compiler, and commit what it writes.")
    return 1, f"{report}\nThe binary interface differs from {baseline.name}. {advice}"


def main(arguments):
    update = "--update" in arguments
    arguments = [argument for argument in arguments if argument != "--update"]
    if len(arguments) < 4:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    library, baseline, dump, *headers = map(Path, arguments)
    try:
        text = dump_of(library, headers)
        if update:
            baseline.write_text(text, encoding="utf-8")
            return 0
        dump.parent.mkdir(parents=True, exist_ok=True)
        dump.write_text(text, encoding="utf-8")
        done = call(["abidiff", "--no-default-suppression", "--no-redundant", str(baseline), str(dump)])
    except (elf.Unreadable, OSError) as error:
        print(f"check_abi: {error}", file=sys.stderr)
        return 2
    code, message = verdict(done.returncode, (done.stdout + done.stderr).strip(), baseline)
    print(message)
    return code


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
