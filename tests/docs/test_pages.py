#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Proves that check_pages.py and run_session.py refuse what they should.

Usage: test_pages.py VOXBENCH
"""

import sys
import tempfile
import unittest
from pathlib import Path

import check_pages
import run_session

ROOT = Path(__file__).resolve().parents[2]
VOXBENCH = sys.argv.pop(1)


class PageTest(unittest.TestCase):
    def page(self, text):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        file = Path(folder.name) / "page.md"
        file.write_text(text, encoding="utf-8")
        return file

    def offences(self, text):
        commands = check_pages.Commands(ROOT, VOXBENCH)
        return [text for _, text in check_pages.offences_of(self.page(text), ROOT, commands)]

    def differences(self, text):
        return run_session.run(self.page(text), VOXBENCH, [ROOT / "tests/data/plate_on_block.inp"])


class References(PageTest):
    def test_what_is_there_is_accepted(self):
        text = "# Head line\n[here](#head-line) [page](page.md) `docs/*.md` `voxbench groups FILE --kind NODE`\n"
        self.assertEqual(self.offences(text + "```sh\n./dev test --quick && ./dev bench\n```\n"), [])

    def test_a_link_must_lead_to_a_file(self):
        self.assertEqual(self.offences("[a](absent.md)"), ["the link absent.md leads nowhere"])

    def test_an_anchor_must_be_a_heading(self):
        self.assertEqual(self.offences("# A\n[a](#b)"), ["the link #b leads to no heading of page.md"])

    def test_a_path_of_ours_must_exist(self):
        self.assertEqual(self.offences("`tests/absent/x.h`"), ["tests/absent/x.h does not exist"])

    def test_a_subcommand_must_exist(self):
        self.assertIn("no subcommand grups", self.offences("`voxbench grups FILE`")[0])
        self.assertIn("no command tset", self.offences("```sh\n./dev tset\n```")[0])

    def test_an_option_must_exist_for_its_subcommand(self):
        self.assertIn("no option --kind", self.offences("`voxbench tree FILE --kind NODE`")[0])
        self.assertIn("no option --fast", self.offences("```console\n$ ./dev test --fast\n```")[0])

    def test_a_block_must_stand_in_its_file(self):
        text = f"From [`dev`]({ROOT}/dev):\n\n```sh\nset -euo pipefail\n```\n"
        self.assertEqual(self.offences(text), [])
        self.assertIn("does not stand so", self.offences(text.replace("euo", "eo"))[0])


class Sessions(PageTest):
    SHOWN = "```console\n$ voxbench groups plate_on_block.inp --kind EDGE\n{}\n```\n"

    def test_what_is_printed_is_accepted_and_dots_stand_for_lines(self):
        self.assertEqual(self.differences(self.SHOWN.format("NAME  KIND  COUNT\nRIM   EDGE      2")), [])
        self.assertEqual(self.differences(self.SHOWN.format("...\nRIM   EDGE      2")), [])

    def test_another_output_is_shown(self):
        self.assertIn("RIM   EDGE      2", self.differences(self.SHOWN.format("NAME  KIND  COUNT\nRIM   EDGE      3"))[0])

    def test_a_page_without_a_session_is_refused(self):
        self.assertIn("shows no session", self.differences("nothing")[0])


if __name__ == "__main__":
    unittest.main()
