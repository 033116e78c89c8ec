// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Console.h"
#include "voxbench/report/ExitCode.h"

#include <memory>
#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace voxbench
{

//! What is said about a subcommand: --help, manual pages and completions are made from it.
struct CommandDescription
{
  struct Example
  {
    std::string line;    //!< "voxbench groups bracket.inp --kind NODE"
    std::string meaning; //!< what it shows
  };
  struct Exit
  {
    int code;
    std::string meaning;
  };
  //! What is known of an argument's values: completions offer it.
  struct Values
  {
    std::string argument;             //!< "--kind", or "FILE"
    std::vector<std::string> words;   //!< the values themselves, where they are few
    std::vector<std::string> endings; //!< of file names, ".inp", where the argument is a file
  };

  std::string name;
  std::string summary; //!< one line
  std::string details; //!< a paragraph or two
  std::vector<Example> examples;
  std::vector<Exit> exits;
  std::vector<Values> values = {};
};

//! A subcommand of the program. Made anew for every run; its options are members.
class Command
{
public:
  virtual ~Command() = default;

  virtual CommandDescription Describe() const = 0;

  //! Binds the options and arguments of the subcommand to this object, which outlives iParser.
  virtual void DeclareOptions(CLI::App& ioParser) = 0;

  //! Does the work with the options that were parsed. @return one of the codes that Describe lists.
  virtual int Run(Console& ioConsole) = 0;
};

using CommandFactory = std::unique_ptr<Command> (*)();

//! All subcommands, in the order in which they are listed.
const std::vector<CommandFactory>& CommandTable();

} // namespace voxbench
