// SPDX-License-Identifier: MIT
#include "voxbench/manual/Completion.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

constexpr const char* kHead = R"script(#compdef voxbench
# Completion of voxbench for zsh, as printed by: voxbench completion zsh

_voxbench_commands()
{
  local -a commands=(
)script";

constexpr const char* kStart = R"script(  )
  _describe -t commands command commands
}

_voxbench()
{
  local curcontext=$curcontext state
  local -A opt_args
  _arguments -C \
)script";

constexpr const char* kArguments = R"script(    '1:command:_voxbench_commands' \
    '*:: :->arguments'
  [[ $state == arguments ]] || return

  curcontext=${curcontext%:*:*}:voxbench-$words[1]:
  case $words[1] in
)script";

//! Works both as a function of the completion system and when it is sourced.
constexpr const char* kEnd = R"script(  esac
}

if [[ $funcstack[1] == _voxbench ]]; then
  _voxbench "$@"
else
  compdef _voxbench voxbench
fi
)script";

//! In single quotes.
std::string Quoted(const std::string& iText)
{
  std::string quoted = "'";
  for (const char letter : iText)
    quoted += letter == '\'' ? "'\\''" : std::string(1, letter);
  return quoted + "'";
}

//! Between brackets, as _arguments takes an explanation.
std::string Explained(const std::string& iText)
{
  std::string text = "[";
  for (const char letter : iText)
  {
    if (letter == '[' || letter == ']' || letter == '\\')
      text += '\\';
    text += letter;
  }
  return text + "]";
}

//! ":KIND:(NODE EDGE)", what _arguments knows of a value.
std::string Value(const ArgumentSyntax& iArgument)
{
  const std::string label = iArgument.hasPlace ? iArgument.names.front() : iArgument.value;
  std::string action = " ";
  if (!iArgument.words.empty())
    action = "(" + Joined(iArgument.words) + ")";
  else if (!iArgument.endings.empty())
    action = "_files -g \"*(" + Joined(iArgument.endings, "|") + ")\"";
  return ":" + label + ":" + action;
}

//! One entry per name; an option excludes its other names, unless it may be repeated.
std::string Option(const ArgumentSyntax& iArgument)
{
  std::vector<std::string> excluded = iArgument.excludes;
  if (!iArgument.isRepeated)
    excluded.insert(excluded.end(), iArgument.names.begin(), iArgument.names.end());
  std::string text;
  for (const std::string& name : iArgument.names)
  {
    std::string line = iArgument.isRepeated ? "*" : "";
    if (!excluded.empty())
      line += "(" + Joined(excluded) + ")";
    line += name;
    if (iArgument.TakesValue())
      line += name.starts_with("--") ? "=" : "+"; // the value may stand in the same word or in the next
    line += Explained(iArgument.description);
    if (iArgument.TakesValue())
      line += Value(iArgument);
    text += "    " + Quoted(line) + " \\\n";
  }
  return text;
}

} // namespace

std::string ZshCompletion(const ProgramSyntax& iSyntax)
{
  std::string text = kHead;
  for (const CommandSyntax& command : iSyntax.commands)
    text += fmt::format("    {}\n", Quoted(command.description.name + ":" + command.description.summary));
  text += fmt::format("    '{}:Print the help of a subcommand'\n", kHelpCommand) + kStart;
  for (const ArgumentSyntax& option : iSyntax.program.arguments)
    text += Option(option);
  text += kArguments;

  for (const CommandSyntax& command : iSyntax.commands)
  {
    text += fmt::format("  {})\n    _arguments \\\n", command.description.name);
    int place = 1;
    for (const ArgumentSyntax& argument : command.arguments)
      if (!argument.hasPlace)
        text += Option(argument);
      else
        text += fmt::format("    '{}{}' \\\n", argument.isRepeated ? "*" : std::to_string(place++), Value(argument));
    text += "    ;;\n";
  }
  return text + fmt::format("  {})\n    _voxbench_commands\n    ;;\n", kHelpCommand) + kEnd;
}

} // namespace voxbench
