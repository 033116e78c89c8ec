// SPDX-License-Identifier: MIT
#include "voxbench/manual/Completion.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

constexpr const char* kHead = R"script(# Completion of voxbench for bash, as printed by: voxbench completion bash

# WORD CANDIDATE...
_voxbench_words()
{
  mapfile -t COMPREPLY < <(compgen -W "${*:2}" -- "$1")
}

# WORD ENDING...: files with one of the endings, and folders.
_voxbench_files()
{
  local word=${1#[\"\']} ending
  word=${word//\\/}
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -d -- "$word")
  for ending in "${@:2}"; do
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -X "!*$ending" -- "$word")
  done
}

)script";

//! Finds what the cursor stands on; bash gives --option=value as three words.
constexpr const char* kStart = R"script(_voxbench()
{
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    _voxbench_words "$word" $commands $options
    return
  fi
  if [[ $word == = ]]; then
    word=
  elif [[ $before == = ]]; then
    before=${COMP_WORDS[COMP_CWORD - 2]}
  fi

  case "$command $before" in
)script";

constexpr const char* kOptionNames = R"script(  esac

  if [[ $word == -* ]]; then
    case $command in
)script";

constexpr const char* kPlaces = R"script(    esac
    return
  fi

  local place=1 at
  for ((at = 2; at < COMP_CWORD; ++at)); do
    case "$command ${COMP_WORDS[at]}" in
      $valued)
        [[ ${COMP_WORDS[at + 1]} != = ]] || ((++at))
        ((++at))
        ;;
      *' '-*) ;;
      *) ((++place)) ;;
    esac
  done
  case "$command $place" in
)script";

constexpr const char* kEnd = R"script(  esac
}

complete -F _voxbench voxbench
)script";

std::string Replaced(std::string iText, const std::string& iWhat, const std::string& iBy)
{
  return iText.replace(iText.find(iWhat), iWhat.size(), iBy);
}

//! What completes a value; empty for a text of the user's own.
std::string Action(const ArgumentSyntax& iArgument)
{
  if (!iArgument.words.empty())
    return "_voxbench_words \"$word\" " + Joined(iArgument.words);
  if (!iArgument.endings.empty())
    return "_voxbench_files \"$word\" " + Joined(iArgument.endings);
  return "";
}

//! The pattern of an option of a command: 'import -o' | 'import --output'.
std::string Pattern(const CommandSyntax& iCommand, const ArgumentSyntax& iArgument)
{
  std::vector<std::string> patterns;
  for (const std::string& name : iArgument.names)
    patterns.push_back(fmt::format("'{} {}'", iCommand.description.name, name));
  return Joined(patterns, " | ");
}

//! Calls iUse with every command and each of its arguments that takes a value.
template <class Use>
void ForEachValue(const ProgramSyntax& iSyntax, const Use& iUse)
{
  for (const CommandSyntax& command : iSyntax.commands)
    for (const ArgumentSyntax& argument : command.arguments)
      if (argument.TakesValue())
        iUse(command, argument);
}

} // namespace

std::string BashCompletion(const ProgramSyntax& iSyntax)
{
  std::string values;
  std::vector<std::string> valued;
  std::vector<std::string> unknown;
  ForEachValue(iSyntax,
               [&](const CommandSyntax& iCommand, const ArgumentSyntax& iArgument)
               {
                 if (iArgument.hasPlace)
                   return;
                 const std::string pattern = Pattern(iCommand, iArgument);
                 const std::string action = Action(iArgument);
                 valued.push_back(pattern);
                 if (action.empty())
                   unknown.push_back(pattern);
                 else
                   values += fmt::format("    {})\n      {}\n      return\n      ;;\n", pattern, action);
               });
  values += fmt::format("    {}) return ;;\n", Joined(unknown, " | "));

  std::string options;
  std::string places;
  const std::string commands = Joined(CommandNames(iSyntax));
  for (const CommandSyntax& command : iSyntax.commands)
  {
    const std::string& name = command.description.name;
    options += fmt::format("      {}) _voxbench_words \"$word\" {} ;;\n", name, Joined(OptionNames(command)));
    int place = 0;
    for (const ArgumentSyntax& argument : command.arguments)
    {
      place += argument.hasPlace ? 1 : 0;
      if (const std::string action = Action(argument); argument.hasPlace && !action.empty())
        places += fmt::format("    '{} {}') {} ;;\n", name, place, action);
    }
  }
  places += fmt::format("    '{} 1') _voxbench_words \"$word\" {} ;;\n", kHelpCommand, commands);

  const std::string start = Replaced(Replaced(kStart, "$commands", commands + " " + kHelpCommand), "$options",
                                     Joined(OptionNames(iSyntax.program)));
  return kHead + start + values + kOptionNames + options + Replaced(kPlaces, "$valued", Joined(valued, " | ")) +
         places + kEnd;
}

} // namespace voxbench
