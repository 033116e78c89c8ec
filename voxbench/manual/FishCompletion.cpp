// SPDX-License-Identifier: MIT
#include "voxbench/manual/Completion.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

constexpr const char* kHead = R"script(# Completion of voxbench for fish, as printed by: voxbench completion fish

# The subcommand is the first word behind the program, and nothing that stands further behind.
function __voxbench_command
    set -l words (commandline -opc)
    test (count $words) -gt 1; and test "$words[2]" = "$argv[1]"
end

function __voxbench_no_command
    test (count (commandline -opc)) -eq 1
end

# Files with one of the endings, and folders.
function __voxbench_files
    for ending in $argv
        __fish_complete_suffix $ending | string match -e -r -- '(?:'(string escape --style=regex -- $ending)'|/)(?:\t|$)'
    end
end

complete -c voxbench -f
)script";

//! In single quotes.
std::string Quoted(const std::string& iText)
{
  std::string quoted = "'";
  for (const char letter : iText)
  {
    if (letter == '\'' || letter == '\\')
      quoted += '\\';
    quoted += letter;
  }
  return quoted + "'";
}

//! The switches of "complete" that offer an argument's values.
std::string Values(const ArgumentSyntax& iArgument)
{
  if (!iArgument.words.empty())
    return " -a " + Quoted(Joined(iArgument.words));
  if (!iArgument.endings.empty())
    return " -a " + Quoted("(__voxbench_files " + Joined(iArgument.endings) + ")");
  return "";
}

std::string Option(const std::string& iCondition, const ArgumentSyntax& iArgument)
{
  std::string line = "complete -c voxbench -n " + Quoted(iCondition);
  for (const std::string& name : iArgument.names)
    line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
  if (iArgument.TakesValue())
    line += " -x" + Values(iArgument);
  return line + " -d " + Quoted(iArgument.description) + "\n";
}

} // namespace

std::string FishCompletion(const ProgramSyntax& iSyntax)
{
  const std::string noCommand = "__voxbench_no_command";
  std::string text = kHead;
  for (const ArgumentSyntax& option : iSyntax.program.arguments)
    text += Option(noCommand, option);
  for (const CommandSyntax& command : iSyntax.commands)
    text += fmt::format("complete -c voxbench -n {} -a {} -d {}\n", noCommand, command.description.name,
                        Quoted(command.description.summary));
  text +=
      fmt::format("complete -c voxbench -n {} -a {} -d 'Print the help of a subcommand'\n", noCommand, kHelpCommand);
  text += fmt::format("complete -c voxbench -n '__voxbench_command {}' -a {}\n", kHelpCommand,
                      Quoted(Joined(CommandNames(iSyntax))));

  for (const CommandSyntax& command : iSyntax.commands)
  {
    const std::string condition = "__voxbench_command " + command.description.name;
    for (const ArgumentSyntax& argument : command.arguments)
      if (!argument.hasPlace)
        text += Option(condition, argument);
      else if (const std::string values = Values(argument); !values.empty())
        text += fmt::format("complete -c voxbench -n {}{}\n", Quoted(condition), values);
  }
  return text;
}

} // namespace voxbench
