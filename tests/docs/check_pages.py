#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks what the pages of the repository refer to: links, files and commands.

Usage: check_pages.py ROOT VOXBENCH [PAGE...]      (all pages of ROOT when none is named)

- A relative link leads to a file, and its anchor to a heading there.
- A path in `backticks` that begins with a folder of ROOT, or ends in a file of ours, exists; * stands for any text.
- A block below a line that ends in "From [`file`](link):" stands so in that file.
- A command, `voxbench ...` or `./dev ...`, in backticks or in a shell block, names a subcommand that exists, and options
  that its help lists.
Prints one line per offence (file:line: what is wrong) and exits 1 when there is any.
"""

import re
import shlex
import subprocess
import sys
from functools import lru_cache
from pathlib import Path

LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)")
CODE = re.compile(r"`([^`]+)`")
FROM = re.compile(r"From \[`[^`]+`\]\(([^)\s]+)\):$")
PATH = re.compile(r"^[\w.*-]+(/[\w.*-]*)+$")
SHELL_BLOCKS = ("```sh", "```console")
PLACEHOLDER = re.compile(r"^[A-Z\[<]")


def pages_of(root):
    return sorted(root.glob("*.md")) + sorted((root / "docs").glob("*.md"))


def headings(page):
    """The anchors of a page's headings, as the usual renderers name them."""
    lines = page.read_text(encoding="utf-8").splitlines()
    texts = [line.lstrip("#").strip().lower() for line in lines if re.match(r"#+ ", line)]
    return {re.sub(r"\s", "-", re.sub(r"[^\w\s-]", "", text)) for text in texts}


def link_offence(page, link):
    if re.match(r"[a-z]+:", link):
        return None
    target, _, anchor = link.partition("#")
    file = (page.parent / target).resolve() if target else page
    if not file.exists():
        return f"the link {link} leads nowhere"
    if anchor and anchor not in headings(file):
        return f"the link {link} leads to no heading of {file.name}"
    return None


def path_offence(root, text):
    """A path in backticks; build/ is made by commands, and what begins with no folder of ours is somebody's example."""
    if not PATH.match(text) or not (root / text.split("/")[0]).is_dir() or text.startswith("build/"):
        return None
    return None if any(root.glob(text.rstrip("/"))) else f"{text} does not exist"


def excerpt_offences(page, lines):
    """(line number, text) of blocks that do not stand in the file that they are said to be from."""
    for number, line in enumerate(lines):
        link = FROM.search(line)
        if not link or not (page.parent / link[1]).is_file():
            continue
        begin = next((at for at in range(number, len(lines)) if lines[at].startswith("```")), len(lines))
        end = next((at for at in range(begin + 1, len(lines)) if lines[at] == "```"), len(lines))
        excerpt = "\n".join(lines[begin + 1:end]).strip("\n")
        if not excerpt or excerpt not in (page.parent / link[1]).read_text(encoding="utf-8"):
            yield number + 1, f"the block below does not stand so in {link[1]}"


class Commands:
    """The subcommands and options of the workbench and of ./dev, as their helps list them."""

    def __init__(self, root, program):
        self.programs = {"voxbench": [program], "./dev": [str(root / "dev")]}

    @lru_cache(maxsize=None)
    def help_of(self, name, *subcommand):
        done = subprocess.run([*self.programs[name], *subcommand, "--help"], capture_output=True, text=True, check=False)
        return done.stdout if done.returncode == 0 else None

    def offence(self, line):
        """What is wrong with a command line, or None."""
        try:
            words = shlex.split(line, comments=True)
        except ValueError:
            return f"{line}: the quotes do not close"
        if words[:2] == ["./dev", "voxbench"]:
            words = words[1:]
        name, words = words[0], words[1:]
        if not words or PLACEHOLDER.match(words[0]):
            return None
        if name == "voxbench":
            return self.workbench_offence(line, words)
        listed = self.help_of(name)
        if words[0] == "--help":
            return None
        if not re.search(rf"^  {re.escape(words[0])}\b", listed, re.M):
            return f"{line}: ./dev has no command {words[0]}"
        return self.option_offence(line, words, listed)

    def workbench_offence(self, line, words):
        if words[0].startswith("-"):
            return self.option_offence(line, words, self.help_of("voxbench"))
        subcommand = words[1:2] if words[0] == "help" else words[:1]
        if subcommand and not PLACEHOLDER.match(subcommand[0]) and self.help_of("voxbench", subcommand[0]) is None:
            return f"{line}: voxbench has no subcommand {subcommand[0]}"
        return self.option_offence(line, words, self.help_of("voxbench", *subcommand) or "")

    @staticmethod
    def option_offence(line, words, listed):
        for word in words:
            option = word.split("=")[0]
            if re.match(r"--?[a-zA-Z]", option) and not re.search(rf"(?<![\w-]){re.escape(option)}(?![\w-])", listed):
                return f"{line}: there is no option {option}"
        return None


def commands_in(line, block):
    """The command lines that a line of a page shows."""
    if block:
        text = line[2:] if line.startswith("$ ") else line
        if block == "```console" and not line.startswith("$ "):
            return []
        parts = re.split(r"\s*(?:&&|\|\||[|;<>])\s*", text)
        return [part for part in parts if re.match(r"(voxbench|\./dev)\b", part)]
    return [code for code in CODE.findall(line) if re.match(r"(voxbench|\./dev) ", code)]


def offences_of(page, root, commands):
    """(line number, text) of everything that is wrong with a page."""
    lines = page.read_text(encoding="utf-8").splitlines()
    block = ""
    for number, line in enumerate(lines, start=1):
        if line.startswith("```"):
            block = "" if block else line
            continue
        found = []
        if not block:
            found += [link_offence(page, link) for link in LINK.findall(CODE.sub("", line))]
            found += [path_offence(root, code) for code in CODE.findall(line)]
        if not block or block in SHELL_BLOCKS:
            found += [commands.offence(command) for command in commands_in(line, block)]
        yield from ((number, text) for text in found if text)
    yield from excerpt_offences(page, lines)


def main(arguments):
    if len(arguments) < 2:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    root = Path(arguments[0]).resolve()
    commands = Commands(root, arguments[1])
    pages = [Path(page).resolve() for page in arguments[2:]] or pages_of(root)
    found = [f"{page.name}:{number}: {text}" for page in pages for number, text in offences_of(page, root, commands)]
    print("\n".join(found) if found else f"{len(pages)} pages refer to what there is.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
