// SPDX-License-Identifier: MIT
#pragma once
#include <map>
#include <set>
#include <string>
#include <vector>

namespace voxtest
{

struct ShellRun
{
  int code = -1;
  std::string out; //!< both outputs
};

//! Runs a line of sh.
ShellRun RunShell(const std::string& iLine);

//! In single quotes for sh, bash and zsh.
std::string QuotedForShell(const std::string& iText);

std::vector<std::string> LinesOf(const std::string& iText);

//! The options that --help of each subcommand lists, all their names. The help is read as a person reads it.
std::map<std::string, std::set<std::string>> OptionsOfHelp();

//! A folder with a file of each kind, and one more that nobody opens: bracket.inp, packed.inp.gz, kept.voxdoc,
//! bracket.frd, notes.txt, with blank.inp, and the folder sub.
const std::string& FolderOfModels();

//! The completion of a shell, as the program prints it, in a file.
std::string CompletionFile(const std::string& iShell);

} // namespace voxtest
