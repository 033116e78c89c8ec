# SPDX-License-Identifier: MIT
"""Compares what the leak checker finds of the adaptors' deliberate losses with how often they were made.

usage: check_leaks.py SUPPRESSIONS TEST_PROGRAM
"""
import os
import re
import subprocess
import sys


def blocks_per_loss(path):
    """{operation: blocks} of a suppressions file: each "leak:" line has a "# blocks: N" above it."""
    blocks, pending = {}, None
    for line in open(path, encoding="utf-8"):
        if match := re.match(r"# blocks: (\d+)$", line):
            pending = int(match[1])
        elif match := re.match(r"leak:(\S+)$", line):
            if pending is None:
                sys.exit(f"{path}: leak:{match[1]} has no '# blocks: N' above it")
            blocks[match[1]], pending = pending, None
    return blocks


def main():
    suppressions, program = sys.argv[1:]
    options = f"suppressions={suppressions}:print_suppressions=1"
    run = subprocess.run([program, "--gtest_filter=DeliberateLeaks.*"], capture_output=True, text=True,
                         env={**os.environ, "ASAN_OPTIONS": "detect_leaks=1", "LSAN_OPTIONS": options})
    if run.returncode != 0:
        sys.exit(f"{run.stdout}{run.stderr}\n{program} failed with code {run.returncode}")

    expected = {}
    blocks = blocks_per_loss(suppressions)
    for operation, times in re.findall(r"^deliberately lost: (\S+) (\d+)$", run.stdout, re.MULTILINE):
        expected[operation] = expected.get(operation, 0) + int(times) * blocks.get(operation, 0)
    # "  count      bytes template", and a line per suppression
    found = {operation: int(count) for count, operation in re.findall(r"^ +(\d+) +\d+ (\S+)$", run.stderr, re.MULTILINE)}
    if sorted(expected) != sorted(blocks):
        sys.exit(f"the tests lose {sorted(expected)}, the file lists {sorted(blocks)}: one of each for the other")
    if found != expected:
        sys.exit(f"found:    {found}\nexpected: {expected}\n{run.stderr}")
    print(f"{sum(found.values())} blocks of {len(found)} operations, as expected")


if __name__ == "__main__":
    main()
