#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares the virtual tables in the built library with those written down.

Usage: check_slots.py [--update] LIBRARY EXPECTED
One line of EXPECTED per entry: class, place, symbol or "pure". Places: b1 to b17 for the base operations, 1 and on for
the class's own. Entries that are VOXBaseUnknown's own are written down once, for VOXBaseUnknown.
Exits 1 when a table differs, 2 when it cannot tell. --update writes EXPECTED anew.
"""

import sys
from pathlib import Path

import elf

BASE = "VOXBaseUnknown"
NO_ENTRY = "no operation"


def written_down(tables):
    """The tables as lines of the file of expected ones."""
    base = {place: min(names) for table in tables.values() for place, names in table.items()
            if place.startswith("b") and BASE in min(names)}
    yield "# Class, place, what the table holds there. How this is read and changed: docs/abi.md"
    for place, symbol in sorted(base.items(), key=lambda entry: int(entry[0][1:])):
        yield f"{BASE} {place} {symbol}"
    for name, table in sorted(tables.items()):
        for place, names in table.items():
            if base.get(place) not in names:
                yield f"{name} {place} {min(names)}"


def read_expected(path):
    """Class -> place -> symbol, the base operations filled in."""
    tables = {}
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), start=1):
        if line and not line.startswith("#"):
            fields = line.split()
            if len(fields) != 3:
                raise elf.Unreadable(f"{path}:{number}: expected a class, a place and a symbol, got: {line}")
            tables.setdefault(fields[0], {})[fields[1]] = fields[2]
    base = tables.pop(BASE, {})
    return {name: {**base, **own} for name, own in tables.items()}


def described(place):
    """A place in words."""
    if place.startswith("b9."):
        return f"entry of the {place[3:]} destructor"
    if place.startswith("b"):
        return f"base operation {place[1:]}"
    return f"own operation {place}"


def differences(built, expected):
    """One sentence per entry that differs. Of the names of one address, the expected one counts."""
    entries = {name for table in built.values() for names in table.values() for name in names}
    called = elf.demangled(entries | {name for table in expected.values() for name in table.values()} | {NO_ENTRY})
    for name in sorted(built.keys() | expected.keys()):
        if name not in built:
            yield f"{name}: its virtual table is not exported"
            continue
        if name not in expected:
            yield f"{name}: its virtual table is exported, and not written down"
            continue
        for place in [*built[name], *(place for place in expected[name] if place not in built[name])]:
            now, then = built[name].get(place, {NO_ENTRY}), expected[name].get(place, NO_ENTRY)
            if then not in now:
                yield f"{name}: {described(place)} is {called[min(now)]} ({min(now)}), expected {called[then]} ({then})"


def main(arguments):
    update = "--update" in arguments
    arguments = [argument for argument in arguments if argument != "--update"]
    if len(arguments) != 2:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    library, path = Path(arguments[0]), Path(arguments[1])
    try:
        tables = elf.virtual_tables(library)
        if update:
            path.write_text("\n".join(written_down(tables)) + "\n", encoding="utf-8")
            return 0
        found = list(differences(tables, read_expected(path)))
    except (elf.Unreadable, OSError) as error:
        print(f"check_slots: {error}", file=sys.stderr)
        return 2
    if found:
        print("\n".join(found))
        print(f"{len(found)} entries differ from {path.name}. Compiled code calls operations by their place: a moved one is a\n"
              "break. If it is meant, follow docs/abi.md, then build the target vox_update_abi.")
        return 1
    print(f"All {len(tables)} virtual tables are as written down.")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
