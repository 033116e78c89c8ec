// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/manual/Syntax.h"

namespace voxbench
{

//! A shell that has a completion: its name, and what makes the script.
struct Shell
{
  const char* name;
  std::string (*completion)(const ProgramSyntax& iSyntax);
};

//! Scripts that complete a command line of voxbench: subcommands, their options, values where they are known, and files
//! by their endings. They need nothing but the shell, and ask the program nothing.
std::string BashCompletion(const ProgramSyntax& iSyntax);
std::string ZshCompletion(const ProgramSyntax& iSyntax);
std::string FishCompletion(const ProgramSyntax& iSyntax);

inline constexpr Shell kShells[] = {{"bash", BashCompletion}, {"zsh", ZshCompletion}, {"fish", FishCompletion}};

//! The subcommand that prints the help of others: the program knows it, the table has no entry for it.
inline constexpr const char* kHelpCommand = "help";

//! Words with a separator between them.
std::string Joined(const std::vector<std::string>& iWords, const char* iSeparator = " ");

std::vector<std::string> CommandNames(const ProgramSyntax& iSyntax);

//! All names of the options of a command.
std::vector<std::string> OptionNames(const CommandSyntax& iCommand);

} // namespace voxbench
