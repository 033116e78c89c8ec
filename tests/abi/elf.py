# SPDX-License-Identifier: MIT
"""What a shared library says about itself, read with readelf: exports, virtual tables, soname."""

import re
import subprocess
from collections import namedtuple

# The destructor is one of these operations and takes two entries of a table.
BASE_OPERATIONS = 17
ENTRY_SIZE = 8
ENTRIES_BEFORE_THE_OPERATIONS = 2  # the offset to the object's beginning, and the type description

PURE = "pure"
NOTHING = "nothing"

Symbol = namedtuple("Symbol", "name address size")


class Unreadable(Exception):
    """A library, or a file beside it, that cannot be used; its text is a sentence for people."""


def run(command):
    """Output of a program of the toolchain."""
    try:
        done = subprocess.run(command, capture_output=True, text=True, check=False)
    except FileNotFoundError:
        raise Unreadable(f"there is no program {command[0]}: install it (on Debian: binutils)") from None
    if done.returncode != 0:
        raise Unreadable(f"{' '.join(map(str, command))} failed: {done.stderr.strip()}")
    return done.stdout


def symbols(library, table):
    """Every symbol of one of the library's tables, --dyn-syms or --symbols, that has a place in it."""
    for line in run(["readelf", table, "--wide", library]).splitlines():
        fields = line.split()
        if len(fields) >= 8 and fields[0].rstrip(":").isdigit() and fields[6] != "UND":
            yield fields[4], Symbol(fields[7].split("@")[0], int(fields[1], 16), int(fields[2], 0))


def exported_symbols(library):
    """Every symbol that the library defines for others, weak ones included."""
    found = [symbol for binding, symbol in symbols(library, "--dyn-syms") if binding != "LOCAL"]
    if not found:
        raise Unreadable(f"{library} exports nothing: is it the shared library?")
    return found


def soname(library):
    """The name that other binaries ask the loader for."""
    match = re.search(r"\(SONAME\).*\[(.*)\]", run(["readelf", "--dynamic", "--wide", library]))
    if not match:
        raise Unreadable(f"{library} has no soname")
    return match[1]


def symbols_at(library):
    """Address -> names of the symbols that stand there, exported or not: a destructor has more than one."""
    found = {}
    for _, symbol in symbols(library, "--symbols"):
        found.setdefault(symbol.address, set()).add(symbol.name)
    return found


def relocations(library):
    """Address -> names of what the loader puts there: one symbol, or all those of an address inside the library."""
    inside, found = symbols_at(library), {}
    for line in run(["readelf", "--relocs", "--wide", library]).splitlines():
        by_name = re.match(r"([0-9a-f]+)\s+[0-9a-f]+\s+R_\S+\s+[0-9a-f]+\s+(\S+) \+ 0$", line)
        by_address = re.match(r"([0-9a-f]+)\s+[0-9a-f]+\s+R_\w+_RELATIVE\s+([0-9a-f]+)$", line)
        if by_name:
            found[int(by_name[1], 16)] = {by_name[2].split("@")[0]}
        elif by_address:
            found[int(by_address[1], 16)] = inside.get(int(by_address[2], 16), {"something without a name"})
    return found


def place_name(entry):
    """Name of an entry, counted from 0 behind the table's head: b1 to b17 for base operations, then 1, 2 and so on."""
    if entry < 8:
        return f"b{entry + 1}"
    if entry in (8, 9):
        return "b9.complete" if entry == 8 else "b9.deleting"
    if entry <= BASE_OPERATIONS:
        return f"b{entry}"
    return str(entry - BASE_OPERATIONS)


def fill_abstract(name, table):
    """g++ leaves the destructor's entries of an abstract class empty: nobody gets there through this table."""
    if {PURE} in table.values():
        for place, kind in (("b9.complete", "D1"), ("b9.deleting", "D0")):
            if table.get(place) == {NOTHING}:
                table[place] = {f"_ZN{len(name)}{name}{kind}Ev"}


def virtual_tables(library):
    """Class -> place -> names of what stands there, in the order of the table, for every class whose table is exported."""
    at = relocations(library)
    tables = {}
    for symbol in exported_symbols(library):
        match = re.fullmatch(r"_ZTV\d+(\w+)", symbol.name)
        if match:
            first = symbol.address + ENTRIES_BEFORE_THE_OPERATIONS * ENTRY_SIZE
            addresses = range(first, symbol.address + symbol.size, ENTRY_SIZE)
            entries = [at.get(address, {NOTHING}) for address in addresses]
            table = {place_name(number): {PURE} if names == {"__cxa_pure_virtual"} else names
                     for number, names in enumerate(entries)}
            fill_abstract(match[1], table)
            tables[match[1]] = table
    return tables


def demangled(names):
    """Symbol -> what it is called in C++."""
    names = sorted(set(names))
    output = subprocess.run(["c++filt"], input="\n".join(names), capture_output=True, text=True, check=True).stdout
    return dict(zip(names, output.splitlines()))
