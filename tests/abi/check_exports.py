#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares what the built library exports with what is written down and with what its public headers declare.

Usage: check_exports.py [--update] COMPILER LIBRARY EXPECTED HEADERS
COMPILER is GNU or Clang. A line of EXPECTED is a symbol, and the only compiler that makes it if not both do.
HEADERS is the folder of the public headers: every operation and static member that an exported class declares there,
pure ones without a body apart, has to be exported.
Exits 1 when the exports differ, 2 when it cannot tell. --update writes EXPECTED anew.
"""

import re
import sys
from collections import Counter
from pathlib import Path

import elf

CLASS = re.compile(r"class VOX_ANALYSIS_API (\w+)[^{;]*\{(.*?)^\};", re.MULTILINE | re.DOTALL)
FUNCTION = re.compile(r'extern "C" VOX_ANALYSIS_API [^;(]*?(\w+)\(')


def class_of(name):
    """The class that an export belongs to, by its name in C++; empty for none."""
    name = re.sub(r"^[\w ]+ for ", "", name)
    return name.split("::")[0] if "::" in name or name.startswith("VOX") else ""


def made_by_one_compiler(symbol, abstract):
    """Nobody can call the complete constructor of an abstract class: g++ makes it, clang++ does not."""
    match = re.match(r"_ZN\d+(\w+?)C1E", symbol)
    return bool(match) and match[1] in abstract


def written_down(names, abstract):
    """The exports as lines of the file of expected ones, class by class."""
    yield "# Every exported symbol, by class. How this is read and changed: docs/abi.md"
    heading = None
    for symbol, name in sorted(names.items(), key=lambda item: (class_of(item[1]), item[0])):
        if class_of(name) != heading:
            heading = class_of(name)
            yield f"\n# {heading or 'no class'}"
        yield f"{symbol} GNU" if made_by_one_compiler(symbol, abstract) else symbol


def read_expected(path, compiler):
    lines = path.read_text(encoding="utf-8").splitlines()
    entries = [line.split() for line in lines if line and not line.startswith("#")]
    return {entry[0] for entry in entries if compiler in (entry[1:] or [compiler])}


def declarations(body):
    """Names of the operations and static members that the body of a class declares, one per overload."""
    for statement in re.split(r"[;{}]", body):
        text = re.sub(r"\b(public|protected|private):", "", statement).strip()
        if text.startswith(("using ", "friend ", "enum ")) or "= delete" in text or text.endswith("= 0"):
            continue
        operation = re.search(r"(~?\w+|operator\S+)\(", text)
        member = re.match(r"static [\w*& ]*?(\w+)$", text)
        if operation or member:
            yield (operation or member)[1]


def declared(headers):
    """(class, name) -> number of overloads, for everything that the public headers promise."""
    promised = Counter()
    for header in sorted(headers.glob("*.h")):
        text = re.sub(r"//.*", "", header.read_text(encoding="utf-8"))
        for name in FUNCTION.findall(text):
            promised["", name] += 1
        for name, body in CLASS.findall(text):
            for declaration in declarations(body):
                promised[name, declaration] += 1
    if not promised:
        raise elf.Unreadable(f"no header in {headers} declares an exported class")
    return promised


def offences(names, expected, promised):
    """One sentence per export that is missing or too many."""
    all_names = {**elf.demangled(expected), **names}
    for symbol in sorted(expected - names.keys()):
        yield f"no longer exported: {all_names[symbol]} ({symbol})"
    for symbol in sorted(names.keys() - expected):
        yield f"exported and not written down: {all_names[symbol]} ({symbol})"
    exported = Counter(name.split("(")[0] for name in set(names.values()))
    for (owner, name), count in sorted(promised.items()):
        qualified = f"{owner}::{name}" if owner else name
        if exported[qualified] < count:
            yield f"declared in a public header and not exported: {qualified}"


def main(arguments):
    update = "--update" in arguments
    arguments = [argument for argument in arguments if argument != "--update"]
    if len(arguments) != 4:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    compiler, library, path, headers = arguments[0], *map(Path, arguments[1:])
    try:
        names = elf.demangled(symbol.name for symbol in elf.exported_symbols(library))
        if update:
            tables = elf.virtual_tables(library)
            abstract = {name for name, table in tables.items() if {elf.PURE} in table.values()}
            path.write_text("\n".join(written_down(names, abstract)) + "\n", encoding="utf-8")
            return 0
        found = list(offences(names, read_expected(path, compiler), declared(headers)))
    except (elf.Unreadable, OSError) as error:
        print(f"check_exports: {error}", file=sys.stderr)
        return 2
    if found:
        print("\n".join(found))
        print(f"The exports differ from {path.name}. An export that goes is a break; one that comes is a promise. If it is\n"
              "meant, follow docs/abi.md, then build the target vox_update_abi.")
        return 1
    print(f"All {len(names)} exports are as written down, and all that the headers declare is among them.")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
