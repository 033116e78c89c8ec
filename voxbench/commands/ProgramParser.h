// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

namespace voxbench
{

//! What is said about the program as a whole.
CommandDescription DescribeProgram();

//! The parser of the whole command line, and the subcommands whose options it fills in. Made anew for every run.
struct ProgramParser
{
  CLI::App parser;
  std::vector<std::unique_ptr<Command>> commands; //!< all of them, in the order of CommandTable
  std::vector<CLI::App*> parsers;                 //!< of the commands, in their order

  ProgramParser();
  ProgramParser(const ProgramParser&) = delete;
  ProgramParser& operator=(const ProgramParser&) = delete;

  //! The subcommand that was named. @return null when there was none.
  Command* Chosen() const;

  //! The help of the program, or of the subcommand that was named.
  std::string Help() const;

private:
  void Add(std::unique_ptr<Command> iCommand);
};

} // namespace voxbench
