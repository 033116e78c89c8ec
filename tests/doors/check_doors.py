#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the includes between the rooms of the repository and the rules that every file keeps.

Usage: check_doors.py ROOT
Prints one line per offence (file:line: what is wrong) and exits 1 when there is any.
"""

import posixpath
import re
import sys
from pathlib import Path

# Room -> rooms that it may include from, itself apart. The longest folder that a file lies in is its room.
DOORS = {
    "contracts": set(),
    "VOXAnalysisResources": {"contracts"},
    "host": {"contracts"},
    "voxbench/readers": set(),
    "voxbench": {"contracts", "VOXAnalysisResources", "host", "voxbench/readers"},
    "tests": {"contracts", "VOXAnalysisResources", "host", "voxbench/readers", "voxbench"},
    "tests/anyhost": {"contracts", "VOXAnalysisResources"},
    "tests/anyhost/reference": {"contracts", "host", "tests/anyhost"},
    "tests/install/otherhost": {"contracts", "tests/anyhost"},
    "benchmarks": {"contracts", "VOXAnalysisResources", "host", "voxbench/readers", "voxbench", "tests"},
}

# These rooms are compiled by other people's projects: nothing but the standard library comes in from outside.
STANDARD_LIBRARY_ONLY = {"contracts", "VOXAnalysisResources"}

# Folders whose files are input of the tests, not sources.
INPUT_FOLDERS = ("tests/data", "tests/golden", "tests/headers/selftest")

SOURCE_SUFFIXES = {".h", ".hpp", ".cpp", ".py", ".cmake"}
MAX_LINES = 499
SPDX = "SPDX-License-Identifier: MIT"
INCLUDE = re.compile(r'^\s*#\s*include\s*(?P<kind>[<"])(?P<name>[^>"]+)[>"]')
STANDARD_HEADER = re.compile(r"^[a-z_0-9]+$")


def room_of(path):
    """The room that a path (relative, as text) lies in, or None for files outside the rooms."""
    inside = [room for room in DOORS if path.startswith(room + "/")]
    return max(inside, key=len, default=None)


def sources_below(root):
    """Relative paths, as text, of all sources in the rooms and in cmake/, and of the files at the root."""
    folders = sorted({room.split("/")[0] for room in DOORS} | {"cmake"})
    found = [path for folder in folders for path in sorted((root / folder).rglob("*")) if path.is_file()]
    found.append(root / "CMakeLists.txt")
    for path in found:
        name = path.relative_to(root).as_posix()
        is_source = path.suffix in SOURCE_SUFFIXES or path.name == "CMakeLists.txt"
        if is_source and path.exists() and not name.startswith(INPUT_FOLDERS):
            yield name


def rooms_offering(include, includer, headers):
    """Rooms in which an include text finds a file: beside the includer first, then below any room."""
    beside = posixpath.normpath(posixpath.join(posixpath.dirname(includer), include))
    if beside in headers:
        return {room_of(beside)}
    return {room_of(header) for header in headers if ("/" + header).endswith("/" + include)}


def include_offence(include, kind, includer, headers):
    """What is wrong with one include, or None."""
    room = room_of(includer)
    if room is None:
        return None
    offering = rooms_offering(include, includer, headers)
    if offering:
        allowed = DOORS[room] | {room}
        if offering & allowed:
            return None
        return f'{room} must not include "{include}" of {", ".join(sorted(offering))}'
    if room in STANDARD_LIBRARY_ONLY and (kind == '"' or not STANDARD_HEADER.match(include)):
        return f'"{include}" is neither of this room, nor of its doors, nor of the standard library'
    return None


def file_offences(name, lines):
    """What is wrong with one file as a whole, as (line number, text) pairs."""
    if len(lines) > MAX_LINES:
        yield len(lines), f"{len(lines)} lines: a file has at most {MAX_LINES}, split it by subject"
    head = lines[1:2] if lines and lines[0].startswith("#!") else lines[:1]
    if not head or SPDX not in head[0]:
        yield 1, f"the first line is not // {SPDX}"
    if name.endswith((".h", ".hpp")) and not any(line.strip() == "#pragma once" for line in lines):
        yield 1, "a header without #pragma once"


def offences(root):
    """All offences below a root, one text each."""
    names = list(sources_below(root))
    headers = {name for name in names if name.endswith((".h", ".hpp"))}
    for name in names:
        lines = (root / name).read_text(encoding="utf-8", errors="replace").splitlines()
        for number, text in file_offences(name, lines):
            yield f"{name}:{number}: {text}"
        for number, line in enumerate(lines, start=1):
            match = INCLUDE.match(line)
            text = match and include_offence(match["name"], match["kind"], name, headers)
            if text:
                yield f"{name}:{number}: {text}"


def main(arguments):
    if len(arguments) != 1 or not Path(arguments[0]).is_dir():
        print(__doc__.strip(), file=sys.stderr)
        return 2
    found = list(offences(Path(arguments[0])))
    print("\n".join(found) if found else "All doors and files keep to the rules.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
