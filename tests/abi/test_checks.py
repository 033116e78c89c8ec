#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""How the checks read what the tools tell them."""

import unittest
from collections import Counter
from pathlib import Path

import check_abi
import check_exports
import check_slots
import check_soname
import elf

BASELINE = Path("library.abi")


class ExitCodesOfAbidiff(unittest.TestCase):
    def verdict(self, code):
        return check_abi.verdict(code, "its report", BASELINE)

    def test_no_bit_is_no_difference(self):
        self.assertEqual(self.verdict(0), (0, "The binary interface is that of library.abi."))

    def test_any_change_is_refused_compatible_or_not(self):
        for code in (4, 8, 12):
            self.assertEqual(self.verdict(code)[0], 1)

    def test_an_incompatible_change_asks_for_a_new_version(self):
        self.assertIn("raise VOX_ABI_VERSION", self.verdict(12)[1])
        self.assertNotIn("raise VOX_ABI_VERSION", self.verdict(4)[1])

    def test_a_comparison_that_failed_is_no_answer(self):
        for code in (1, 2, 3, 5, 13, 16, 127, -6, -11):
            self.assertEqual(self.verdict(code)[0], 2, code)


class Places(unittest.TestCase):
    def test_the_destructor_is_one_operation_with_two_entries(self):
        names = [elf.place_name(entry) for entry in range(20)]
        self.assertEqual(names[6:12], ["b7", "b8", "b9.complete", "b9.deleting", "b10", "b11"])
        self.assertEqual(names[16:], ["b16", "b17", "1", "2"])

    def test_the_destructor_of_an_abstract_class_counts_as_in_place(self):
        table = {"b9.complete": {elf.NOTHING}, "b9.deleting": {elf.NOTHING}, "1": {elf.PURE}}
        elf.fill_abstract("Group", table)
        self.assertEqual(table["b9.deleting"], {"_ZN5GroupD0Ev"})

    def test_the_destructor_of_another_class_does_not(self):
        table = {"b9.complete": {elf.NOTHING}, "b9.deleting": {elf.NOTHING}, "1": {"_ZN5Group3AskEv"}}
        elf.fill_abstract("Group", table)
        self.assertEqual(table["b9.deleting"], {elf.NOTHING})

    def test_of_several_names_of_an_address_the_expected_one_counts(self):
        built = {"Group": {"1": {"_ZN5Group3AskEv", "_ZN5Group4TellEv"}}}
        self.assertEqual(list(check_slots.differences(built, {"Group": {"1": "_ZN5Group4TellEv"}})), [])

    def test_entries_that_went_or_came_are_told(self):
        told = list(check_slots.differences({"Group": {"1": {"_ZN5Group3AskEv"}}}, {"Group": {"2": elf.PURE}}))
        self.assertIn("own operation 1 is Group::Ask() (_ZN5Group3AskEv), expected no operation", told[0])
        self.assertIn("own operation 2 is no operation (no operation), expected pure", told[1])


class Exports(unittest.TestCase):
    def test_declarations_of_a_class_are_its_operations_and_static_members(self):
        body = """
public:
  Group();
  ~Group() override;
  Group(const Group&) = delete;
  Group& operator=(const Group& iOther);
  using Flag = ::Flag;
  HRESULT Ask(int& oAnswer,
              int iMode = 0) const override;
  virtual HRESULT Tell() = 0;
  HRESULT Both() const override = 0;
private:
  static VOXMetaClass* meta_object;
  bool _First;
"""
        self.assertEqual(list(check_exports.declarations(body)), ["Group", "~Group", "operator=", "Ask", "meta_object"])

    def test_a_declared_operation_that_is_not_exported_is_told(self):
        names = {"_ZN5Group3AskEv": "Group::Ask()"}
        promised = Counter({("Group", "Ask"): 2, ("", "Marker"): 1})
        self.assertEqual(list(check_exports.offences(names, set(names), promised)),
                         ["declared in a public header and not exported: Marker",
                          "declared in a public header and not exported: Group::Ask"])

    def test_only_one_compiler_makes_the_complete_constructor_of_an_abstract_class(self):
        self.assertTrue(check_exports.made_by_one_compiler("_ZN5GroupC1Ev", {"Group"}))
        self.assertFalse(check_exports.made_by_one_compiler("_ZN5GroupC2Ev", {"Group"}))
        self.assertFalse(check_exports.made_by_one_compiler("_ZN5GroupC1Ev", {"Axis"}))


class Sonames(unittest.TestCase):
    PAGE = "The ABI version is **3**."

    def test_that_agree_are_accepted(self):
        self.assertEqual(list(check_soname.offences("libVOXAnalysisResources.so.3", "3", self.PAGE)), [])

    def test_of_another_version_are_refused(self):
        self.assertEqual(len(list(check_soname.offences("libVOXAnalysisResources.so.2", "3", self.PAGE))), 1)
        self.assertEqual(len(list(check_soname.offences("libVOXAnalysisResources.so", "3", self.PAGE))), 1)

    def test_that_the_page_does_not_tell_are_refused(self):
        self.assertEqual(len(list(check_soname.offences("libVOXAnalysisResources.so.4", "4", self.PAGE))), 1)
        self.assertEqual(len(list(check_soname.offences("libVOXAnalysisResources.so.3", "3", "No word."))), 1)


if __name__ == "__main__":
    unittest.main()
