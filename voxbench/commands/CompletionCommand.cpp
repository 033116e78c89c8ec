// SPDX-License-Identifier: MIT
#include "voxbench/commands/CompletionCommand.h"
#include "voxbench/commands/OpenFile.h"
#include "voxbench/manual/Completion.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>

namespace voxbench
{
namespace
{

std::vector<std::string> ShellNames()
{
  std::vector<std::string> names;
  for (const Shell& shell : kShells)
    names.emplace_back(shell.name);
  return names;
}

} // namespace

CommandDescription CompletionCommand::Describe() const
{
  return {"completion",
          "Print the completion of a shell",
          "A script that makes the shell complete subcommands, options, values where they are known, and the files\n"
          "that a subcommand opens. An installed voxbench has it in place for all shells; this is for one that is\n"
          "run from where it was built.",
          {{"voxbench completion bash", "the script, for a look"},
           {"source <(voxbench completion bash)", "use it in this bash or zsh; a line for ~/.bashrc or ~/.zshrc"},
           {"voxbench completion fish | source", "use it in this fish"}},
          {{kExitDone, "the script was printed"},
           {kExitSomeFailed, "the output cannot be written"},
           {kExitWrongUsage, "wrong usage"}},
          {{"SHELL", ShellNames(), {}}}};
}

void CompletionCommand::DeclareOptions(CLI::App& ioParser)
{
  ioParser.add_option("SHELL", _Shell, "bash, zsh or fish")
      ->required()
      ->check(
          [](const std::string& iText)
          {
            const std::vector<std::string> names = ShellNames();
            const bool isKnown = std::find(names.begin(), names.end(), iText) != names.end();
            return isKnown ? "" : "needs bash, zsh or fish, not " + iText;
          },
          "", "")
      ->option_text(" ");
}

int CompletionCommand::Run(Console& ioConsole)
{
  Output output(ioConsole.out);
  const auto* const shell = std::find_if(std::begin(kShells), std::end(kShells),
                                         [this](const Shell& iShell) { return iShell.name == _Shell; });
  output.Write(shell->completion(ReadSyntax()));
  return FinishOutput(output, ioConsole, kExitDone);
}

} // namespace voxbench
