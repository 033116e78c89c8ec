#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The check of the doors, tried on small trees that keep to the rules or break one of them."""

import tempfile
import unittest
from pathlib import Path

from check_doors import MAX_LINES, offences

SPDX = "// SPDX-License-Identifier: MIT\n"

HEADERS = (
    "contracts/AnalysisCore/Contract.h",
    "host/AnalysisCore/HostPart.h",
    "VOXAnalysisResources/include/Adaptor.h",
    "voxbench/readers/Records.h",
    "voxbench/build/Builder.h",
)


def offences_of(files):
    """Offences of a tree that has one header per room and the given files (name -> content below the licence line)."""
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        for name in HEADERS:
            files = {name: "#pragma once\n", **files}
        for name, content in files.items():
            path = root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(content if content.startswith("raw:") else SPDX + content)
        (root / "CMakeLists.txt").write_text(SPDX.replace("//", "#"))
        return list(offences(root))


class CheckDoors(unittest.TestCase):
    def assert_refused(self, name, content, part):
        found = offences_of({name: content})
        self.assertEqual(len(found), 1, found)
        self.assertIn(name, found[0])
        self.assertIn(part, found[0])

    def test_a_tree_that_keeps_to_the_rules_has_no_offence(self):
        self.assertEqual([], offences_of({
            "host/A.cpp": '#include "AnalysisCore/Contract.h"\n#include "AnalysisCore/HostPart.h"\n#include <map>\n',
            "VOXAnalysisResources/VOXAnalysisAdaptors.m/src/A.cpp": '#include "Adaptor.h"\n#include <new>\n',
            "voxbench/A.cpp": '#include "Adaptor.h"\n#include "build/Builder.h"\n#include <CLI/CLI.hpp>\n',
            "tests/host/A.cpp": '#include "AnalysisCore/HostPart.h"\n#include <gtest/gtest.h>\n',
        }))

    def test_contracts_know_nobody(self):
        self.assert_refused("contracts/A.h", '#pragma once\n#include "AnalysisCore/HostPart.h"\n', "host")
        self.assert_refused("contracts/A.h", '#pragma once\n#include <Adaptor.h>\n', "VOXAnalysisResources")

    def test_the_library_does_not_know_the_host(self):
        self.assert_refused("VOXAnalysisResources/include/A.h", '#pragma once\n#include "AnalysisCore/HostPart.h"\n', "host")

    def test_the_library_takes_nothing_from_outside_but_the_standard_library(self):
        self.assert_refused("VOXAnalysisResources/A.cpp", "#include <fmt/core.h>\n", "standard library")
        self.assert_refused("contracts/A.h", '#pragma once\n#include "Nowhere.h"\n', "standard library")

    def test_the_host_does_not_know_the_library(self):
        self.assert_refused("host/A.cpp", '#include "Adaptor.h"\n', "VOXAnalysisResources")

    def test_readers_know_nobody(self):
        for include, owner in (("Contract.h", "contracts"), ("HostPart.h", "host"), ("build/Builder.h", "voxbench")):
            self.assert_refused("voxbench/readers/inp/A.cpp", f'#include "{include}"\n', owner)

    def test_an_include_from_the_root_of_the_repository_is_followed(self):
        self.assertEqual([], offences_of({"host/A.cpp": '#include "host/AnalysisCore/HostPart.h"\n'}))
        self.assert_refused("host/A.cpp", '#include "voxbench/build/Builder.h"\n', "voxbench")

    def test_climbing_is_for_the_own_room(self):
        self.assertEqual([], offences_of({"voxbench/readers/inp/A.cpp": '#include "../Records.h"\n'}))
        climbing = '#include "../../VOXAnalysisResources/include/Adaptor.h"\n'
        self.assert_refused("host/AnalysisCore/A.cpp", climbing, "VOXAnalysisResources")

    def test_files_stay_short(self):
        self.assertEqual([], offences_of({"host/A.cpp": "\n" * (MAX_LINES - 1)}))
        self.assert_refused("host/A.cpp", "\n" * MAX_LINES, "lines")

    def test_files_name_their_licence(self):
        self.assert_refused("host/A.cpp", "raw: no licence\n", "SPDX")

    def test_headers_have_their_guard(self):
        self.assert_refused("host/A.h", "\n", "#pragma once")


if __name__ == "__main__":
    unittest.main()
