// SPDX-License-Identifier: MIT
#include "voxbench/manual/Syntax.h"
#include "voxbench/commands/ProgramParser.h"

#include <algorithm>
#include <fmt/format.h>
#include <stdexcept>

namespace voxbench
{
namespace
{

ArgumentSyntax ReadArgument(const CLI::Option& iOption)
{
  ArgumentSyntax argument;
  argument.hasPlace = iOption.get_positional();
  argument.description = iOption.get_description();
  argument.isRequired = iOption.get_required();
  argument.isRepeated = iOption.get_expected_max() >= CLI::detail::expected_max_vector_size;
  if (argument.hasPlace)
    argument.names.push_back(iOption.get_name(true));
  for (const std::string& name : iOption.get_snames())
    argument.names.push_back("-" + name);
  for (const std::string& name : iOption.get_lnames())
    argument.names.push_back("--" + name);
  if (!argument.hasPlace && iOption.get_items_expected_max() > 0)
    argument.value = iOption.get_option_text();
  for (const CLI::Option* const excluded : iOption.get_excludes())
    argument.excludes.push_back(excluded->get_name());
  return argument;
}

CommandSyntax ReadCommand(const CLI::App& iParser, CommandDescription iDescription)
{
  CommandSyntax command{std::move(iDescription), {}};
  for (const CLI::Option* const option : iParser.get_options())
    command.arguments.push_back(ReadArgument(*option));
  std::stable_partition(command.arguments.begin(), command.arguments.end(),
                        [](const ArgumentSyntax& iArgument) { return iArgument.hasPlace; });

  for (const auto& values : command.description.values)
  {
    const auto hasName = [&values](const ArgumentSyntax& iArgument)
    { return std::find(iArgument.names.begin(), iArgument.names.end(), values.argument) != iArgument.names.end(); };
    const auto argument = std::find_if(command.arguments.begin(), command.arguments.end(), hasName);
    if (argument == command.arguments.end())
      throw std::logic_error(fmt::format("voxbench {} has values for {}, and no such argument",
                                         command.description.name, values.argument));
    argument->words = values.words;
    argument->endings = values.endings;
  }
  return command;
}

} // namespace

ProgramSyntax ReadSyntax()
{
  const ProgramParser program;
  ProgramSyntax syntax;
  syntax.version = program.parser.version();
  syntax.program = ReadCommand(program.parser, DescribeProgram());
  for (std::size_t place = 0; place < program.parsers.size(); ++place)
    syntax.commands.push_back(ReadCommand(*program.parsers[place], program.commands[place]->Describe()));
  return syntax;
}

const std::string& MainName(const ArgumentSyntax& iArgument)
{
  return iArgument.names.back();
}

} // namespace voxbench
