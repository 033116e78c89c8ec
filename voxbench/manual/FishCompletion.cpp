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

# COMMAND PLACE OPTION...: the cursor is at that place among the arguments; the OPTIONs take the word behind them.
function __voxbench_place
    __voxbench_command $argv[1]; or return 1
    set -l words (commandline -opc)
    set -e words[1..2]
    set -l place 1
    set -l before
    for word in $words
        if not contains -- "$before" $argv[3..-1]; and not string match -q -- '-*' "$word"
            set place (math $place + 1)
        end
        set before $word
    end
    test $place -eq $argv[2]
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

//! " --kind --name": those that take a word, which is then no argument.
std::string ValuedOptions(const CommandSyntax& iCommand)
{
  std::string text;
  for (const ArgumentSyntax& argument : iCommand.arguments)
    if (!argument.hasPlace && argument.TakesValue())
      text += " " + Joined(argument.names);
  return text;
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
    const std::string& name = command.description.name;
    int place = 0;
    for (const ArgumentSyntax& argument : command.arguments)
    {
      place += argument.hasPlace ? 1 : 0;
      if (!argument.hasPlace)
        text += Option("__voxbench_command " + name, argument);
      else if (const std::string values = Values(argument); !values.empty())
        text += fmt::format("complete -c voxbench -n '__voxbench_place {} {}{}'{}\n", name, place,
                            ValuedOptions(command), values);
    }
  }
  return text;
}

} // namespace voxbench
