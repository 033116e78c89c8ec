#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the sessions that a page shows and compares what is printed with what the page says.

Usage: run_session.py PAGE VOXBENCH FILE...

A session is a ```console block: lines that begin with "$ " are run by bash, all blocks of a page in one folder, one after
the other; the lines behind them are what they print on both outputs. A line that is "..." after its blanks stands for any
lines. VOXBENCH is what voxbench and ./dev voxbench are in there, the FILEs (.gz: unpacked) lie in the folder.
Prints what differs and exits 1 when anything does, or when the page has no session.
"""

import gzip
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path


def sessions(text):
    """(line number, command, lines expected) of every command that a page shows."""
    inside, found = False, []
    for number, line in enumerate(text.splitlines(), start=1):
        if line.startswith("```"):
            inside = line == "```console"
        elif inside and line.startswith("$ "):
            found.append((number, line[2:], []))
        elif inside and found:
            found[-1][2].append(line)
    return found


def agrees(expected, printed):
    """Whether the lines printed are those expected, "..." standing for any number of lines."""
    if not expected:
        return not printed
    if expected[0].strip() == "...":
        return any(agrees(expected[1:], printed[skip:]) for skip in range(len(printed) + 1))
    return bool(printed) and expected[0].rstrip() == printed[0].rstrip() and agrees(expected[1:], printed[1:])


def lay_out(folder, program, files):
    """Puts the files and the two names of the program into a folder, and returns the environment to run in."""
    for file in map(Path, files):
        if file.suffix == ".gz":
            (folder / file.stem).write_bytes(gzip.decompress(file.read_bytes()))
        else:
            shutil.copy(file, folder)
    names = folder / ".bin"
    names.mkdir()
    (names / "voxbench").symlink_to(Path(program).resolve())
    (folder / "dev").write_text('#!/bin/sh\n"$@"\n', encoding="utf-8")
    (folder / "dev").chmod(0o755)
    return {**os.environ, "PATH": f"{names}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}


def run(page, program, files):
    """What differs, one text each."""
    shown = sessions(Path(page).read_text(encoding="utf-8"))
    if not shown:
        return [f"{page}: shows no session"]
    wrong = []
    with tempfile.TemporaryDirectory() as name:
        environment = lay_out(Path(name), program, files)
        for number, command, expected in shown:
            done = subprocess.run(
                ["bash", "-c", command], cwd=name, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                text=True, check=False)
            printed = done.stdout.splitlines()
            while expected and not expected[-1]:
                expected.pop()
            if not agrees(expected, printed):
                wrong.append(f"{page}:{number}: {command}\n--- the page\n" + "\n".join(expected) + "\n--- printed\n" +
                             "\n".join(printed))
    return wrong


def main(arguments):
    if len(arguments) < 2:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    wrong = run(arguments[0], arguments[1], arguments[2:])
    print("\n".join(wrong) if wrong else "All sessions print what the page shows.")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
