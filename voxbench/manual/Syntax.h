// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"

namespace voxbench
{

//! An option or an argument, as the parser knows it.
struct ArgumentSyntax
{
  std::vector<std::string> names; //!< "-o" and "--output"; the one word "FILE" of an argument that has its place
  std::string value;              //!< what stands for an option's value, "KIND"; empty for a switch
  std::string description;
  std::vector<std::string> excludes; //!< names of options that cannot be given along with it
  std::vector<std::string> words;    //!< as CommandDescription::Values has them
  std::vector<std::string> endings;
  bool hasPlace = false;
  bool isRequired = false;
  bool isRepeated = false;

  //! Takes a word of its own from the command line, behind its name or at its place.
  bool TakesValue() const { return hasPlace || !value.empty(); }
};

struct CommandSyntax
{
  CommandDescription description;
  std::vector<ArgumentSyntax> arguments; //!< in the order of --help: those that have a place, then options
};

//! All that can be typed, taken from the parser that --help comes from.
struct ProgramSyntax
{
  CommandSyntax program; //!< its options alone
  std::vector<CommandSyntax> commands;
  std::string version; //!< "voxbench 0.1.0"
};

//! @throw std::logic_error if a description has values for an argument that its command does not declare.
ProgramSyntax ReadSyntax();

//! The name that is shown where one is enough: "--output" for "-o,--output".
const std::string& MainName(const ArgumentSyntax& iArgument);

} // namespace voxbench
