// SPDX-License-Identifier: MIT
#include "voxbench/manual/Completion.h"

namespace voxbench
{

std::string Joined(const std::vector<std::string>& iWords, const char* iSeparator)
{
  std::string text;
  for (const std::string& word : iWords)
    text += (text.empty() ? "" : iSeparator) + word;
  return text;
}

std::vector<std::string> CommandNames(const ProgramSyntax& iSyntax)
{
  std::vector<std::string> names;
  for (const CommandSyntax& command : iSyntax.commands)
    names.push_back(command.description.name);
  return names;
}

std::vector<std::string> OptionNames(const CommandSyntax& iCommand)
{
  std::vector<std::string> names;
  for (const ArgumentSyntax& argument : iCommand.arguments)
    if (!argument.hasPlace)
      names.insert(names.end(), argument.names.begin(), argument.names.end());
  return names;
}

} // namespace voxbench
