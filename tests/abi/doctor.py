#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Proves that the checks of the binary contract refuse what they should, on doctored copies of the library.

Usage: doctor.py CASE SETTINGS
A copy is made of the objects of the build, those apart that see the doctored header: they are compiled anew, with the
flags of the build. SETTINGS is the file that the build writes about itself. The case "nothing" passes all checks: what
is refused in the others is refused because of what was doctored.
"""

import json
import re
import shlex
import subprocess
import sys
from collections import namedtuple
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

HERE = Path(__file__).resolve().parent

# change: file (relative to its include folder or to the library), text to find, text to put there.
# refused: check -> words that its message has. passed: checks that have nothing to object.
Case = namedtuple("Case", "change refused passed")

VISIBILITY = "AnalysisInterfaces/VOXISamVisibility.h"
EXPRESSIONS = "VOXEExpressionCollector.h"
SLOTS_OF_FEATURES, SLOTS_OF_COLLECTORS = "Slots_Features_test.cpp", "Slots_Collectors_test.cpp"
LAYOUT = "ObjectLayout_test.cpp"
COMPILER = "compiler"  # its refusal is overruled, so that the other checks are asked as well

CASES = {
    "nothing": Case(None, {}, ["slots", "exports", "abi", SLOTS_OF_FEATURES, SLOTS_OF_COLLECTORS, LAYOUT]),
    "operations-swapped-in-an-interface": Case(
        (VISIBILITY, r"(?s)(  virtual unsigned char IsVisibleInGraph\(\) = 0;)(.*?)(  virtual unsigned char IsVisibleIn3D\(\) = 0;)",
         r"\3\2\1"),
        {"slots": ["VOXEAnalysisVisibility: own operation 3 is VOXEAnalysisVisibility::IsVisibleIn3D"],
         "abi": ["VOXEAnalysisVisibility::IsVisibleIn3D", "vtable offset", "This change breaks compiled code"],
         SLOTS_OF_FEATURES: ["OfVOXEAnalysisVisibility", 'Which is: "IsVisibleIn3D"']},
        ["exports"]),
    "operations-swapped-in-an-adaptor": Case(
        (EXPRESSIONS, r"(?s)(  virtual HRESULT DeleteAll\(\);)(.*?)(  virtual HRESULT Update\(\);)", r"\3\2\1"),
        {"slots": ["VOXEExpressionCollector: own operation 6 is VOXEExpressionCollector::Update"],
         "abi": ["VOXEExpressionCollector::Update", "vtable offset"],
         SLOTS_OF_COLLECTORS: ["OfVOXEExpressionCollector", 'Which is: "DeleteAll"']},
        ["exports"]),
    "operation-added-at-the-end": Case(
        (EXPRESSIONS, r"(  virtual HRESULT Update\(\);)", r"\1\n  virtual HRESULT Forget() { return 0; }"),
        {"slots": ["VOXEExpressionCollector: own operation 8 is VOXEExpressionCollector::Forget"],
         "abi": ["VOXEExpressionCollector::Forget"]},
        ["exports"]),
    "member-added": Case(
        (EXPRESSIONS, r"(  std::int32_t _Number;[^\n]*)", r"\1\n  void* _Marks = nullptr;"),
        {COMPILER: ["VOXEExpressionCollector.cpp", "deriving classes are laid out on this size"],
         "abi": ["VOXEExpressionCollector", "_Marks", "type size changed"],
         LAYOUT: ["size of VOXEExpressionCollector", "VOXEExpressionCollector::_Pointers"]},
        ["slots", "exports"]),
    "member-added-in-padding": Case(
        ("VOXEAnalysisVisibility.h", r"(  unsigned char _NoShow;)", r"\1\n  unsigned char _Views;"),
        {"abi": ["VOXEAnalysisVisibility", "_Views"]},
        ["slots", "exports", LAYOUT]),
    "export-dropped": Case(
        ("exports.map", r"      VOXEAnalysisGroup::\*;\n", ""),
        {"exports": ["no longer exported: VOXEAnalysisGroup::GetContent",
                     "declared in a public header and not exported: VOXEAnalysisGroup::GetContent"],
         "abi": ["VOXEAnalysisGroup::GetContent"]},
        []),
    "table-dropped": Case(
        ("exports.map", r"      \*\?for\?VOXEAnalysisGroup;\n", ""),
        {"exports": ["no longer exported: vtable for VOXEAnalysisGroup"],
         "slots": ["VOXEAnalysisGroup: its virtual table is not exported"]},
        []),
    "export-too-many": Case(
        ("exports.map", r"(      VOXEAnalysisGroup::\*;\n)", r"\1      VOXISamGroup::*;\n      *?for?VOXISamGroup;\n"),
        {"exports": ["exported and not written down: vtable for VOXISamGroup"],
         "abi": ["_ZTV12VOXISamGroup", "This change may break compiled code"]},
        []),
}


class Failed(Exception):
    """The proof failed or could not be made; its text is a sentence for people."""


def run(command, folder, may_fail=False):
    done = subprocess.run(command, cwd=folder, capture_output=True, text=True, check=False)
    if done.returncode != 0 and not may_fail:
        raise Failed(f"{shlex.join(map(str, command))} failed:\n{done.stdout}{done.stderr}")
    return done.returncode, done.stdout + done.stderr


class Build:
    """What is known of the build, and the folder of one doctored copy."""

    def __init__(self, settings, name):
        self.__dict__.update(settings)  # source, build, compiler, compiler_id, built, host, gtest, baseline
        self.folder = Path(self.build) / "tests/abi/doctored" / name
        self.headers = self.folder / "include"
        self.header = None  # the doctored one, as it is included
        self.more_flags = ["-Wno-error"]  # what is doctored need not be tidy
        self.map = Path(self.source) / "VOXAnalysisResources/exports.map"
        self.include_folders = [Path(self.source) / "VOXAnalysisResources/include", Path(self.source) / "contracts"]
        self.copy = self.folder / Path(self.built).name
        commands = json.loads((Path(self.build) / "compile_commands.json").read_text(encoding="utf-8"))
        self.commands = {entry["file"]: shlex.split(entry["command"]) for entry in commands}

    def doctor(self, change):
        """Writes the doctored file into the copy's folder."""
        self.headers.mkdir(parents=True, exist_ok=True)
        for old in [path for path in self.headers.rglob("*") if path.is_file()]:
            old.unlink()
        if change is None:
            return
        name, old, new = change
        is_map = name == self.map.name
        original = self.map if is_map else next(path for folder in self.include_folders
                                                if (path := folder / name).exists())
        text, count = re.subn(old, new, original.read_text(encoding="utf-8"), count=1)
        if count != 1:
            raise Failed(f"{original} has nothing like: {old}. Doctor something else in {Path(__file__).name}")
        doctored = self.folder / name if is_map else self.headers / name
        doctored.parent.mkdir(parents=True, exist_ok=True)
        doctored.write_text(text, encoding="utf-8")
        if is_map:
            self.map = doctored
        else:
            self.header = name

    def sees(self, file, header, known):
        """Whether a source or a header of the library or the contracts includes a header, at any depth."""
        if file not in known:
            known[file] = False
            for name in re.findall(r'#\s*include\s*"([^"]+)"', file.read_text(encoding="utf-8")):
                found = (folder / name for folder in [file.parent, *self.include_folders])
                path = next((path for path in found if path.exists()), None)
                if name == header or (path and self.sees(path, header, known)):
                    known[file] = True
                    break
        return known[file]

    def compiled(self, source, target):
        """Compiles a source with the flags of the build, doctored headers first."""
        command = list(self.commands[source])
        place = command.index("-o")
        del command[place:place + 2]
        start = next(index for index, word in enumerate(command) if word.startswith(("-I", "-D", "-O", "-g")))
        command[start:start] = [f"-I{self.headers}"]
        run([*command, *self.more_flags, "-o", str(target)], self.build)
        return target

    def object_of(self, source, known):
        """The build's object of a source, or a new one when the source sees the doctored header."""
        if self.header and self.sees(Path(source), self.header, known):
            return self.compiled(source, self.folder / f"{Path(source).name}.o")
        command = self.commands[source]
        return Path(self.build) / command[command.index("-o") + 1]

    def make_copy(self):
        """The doctored library."""
        library, known = Path(self.source) / "VOXAnalysisResources", {}
        sources = [file for file in self.commands if Path(file).is_relative_to(library)]
        with ThreadPoolExecutor(2) as pool:
            objects = list(pool.map(lambda source: self.object_of(source, known), sources))
        if self.header and not any(Path(made).is_relative_to(self.folder) for made in objects):
            raise Failed(f"no source of the library includes {self.header}")
        run([self.compiler, "-shared", "-o", self.copy, *objects, self.host, f"-Wl,--version-script={self.map}",
             f"-Wl,-soname,{self.soname}", "-Wl,-z,defs", f"-Wl,-rpath,{Path(self.host).parent}"], self.folder)

    def check(self, name):
        """Exit code and message of one check of the copy."""
        if name.endswith(".cpp"):
            return self.check_by_running(name)
        includes = [str(folder) for folder in [self.headers, *self.include_folders]]
        arguments = {
            "slots": ["check_slots.py", self.copy, HERE / "slots.expected"],
            "exports": ["check_exports.py", self.compiler_id, self.copy, HERE / "exports.expected", self.include_folders[0]],
            "abi": ["check_abi.py", self.copy, self.baseline, self.folder / "copy.abi", *includes],
        }[name]
        return run([sys.executable, HERE / arguments[0], *arguments[1:]], self.folder, may_fail=True)

    def check_by_running(self, source):
        """Runs one source of the tests against the copy."""
        target = self.object_of(str(HERE / source), {})
        program = self.folder / source.removesuffix(".cpp")
        link = self.folder / self.soname
        link.unlink(missing_ok=True)
        link.symlink_to(self.copy.name)
        run([self.compiler, target, self.copy, self.host, *self.gtest, "-pthread", "-o", program,
             f"-Wl,-rpath,{self.folder}", f"-Wl,-rpath,{Path(self.host).parent}"], self.folder)
        return run([program], self.folder, may_fail=True)


def expect_refusal(check, refused, words, message):
    if not refused:
        raise Failed(f"{check} does not refuse the copy:\n{message}")
    for word in words:
        if word not in message:
            raise Failed(f"{check} refuses the copy without saying '{word}':\n{message}")


def overrule(words, build):
    """The compiler refuses the copy; from now on the static assertions of the sources hold whatever they say."""
    try:
        build.make_copy()
    except Failed as refusal:
        expect_refusal(COMPILER, True, words, str(refusal))
    else:
        expect_refusal(COMPILER, False, words, "")
    build.more_flags += ["-Dstatic_assert(...)=static_assert(true)", "-Wno-keyword-macro"]


def prove(case, build):
    """Raises when a check does not do what the case says."""
    build.doctor(case.change)
    if COMPILER in case.refused:
        overrule(case.refused[COMPILER], build)
    build.make_copy()
    for check in case.passed:
        code, message = build.check(check)
        if code != 0:
            raise Failed(f"{check} refuses the copy (exit code {code}), and should not:\n{message}")
    for check, words in case.refused.items():
        if check != COMPILER:
            code, message = build.check(check)
            expect_refusal(check, code == 1, words, message)


def main(arguments):
    if len(arguments) != 2 or arguments[0] not in CASES:
        print(__doc__.strip(), file=sys.stderr)
        print(f"Cases: {', '.join(CASES)}", file=sys.stderr)
        return 2
    name, settings = arguments
    try:
        prove(CASES[name], Build(json.loads(Path(settings).read_text(encoding="utf-8")), name))
    except (Failed, OSError) as error:
        print(f"doctor: {error}", file=sys.stderr)
        return 1
    refusing = ", ".join(CASES[name].refused) or "no check"
    print(f"{name}: refused by {refusing}.")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
