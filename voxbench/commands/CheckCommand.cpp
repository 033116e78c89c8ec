// SPDX-License-Identifier: MIT
#include "voxbench/commands/CheckCommand.h"
#include "voxbench/check/Check.h"
#include "voxbench/report/CheckReport.h"

#include <CLI/CLI.hpp>

namespace voxbench
{

CommandDescription CheckCommand::Describe() const
{
  return {"check",
          "Look for what is wrong with a model",
          "Every set and every entity is asked where it may stand, and whether it subscribes to the mesh. Then what a\n"
          "solver would trip over and the document knows: elements without a property, loads on nothing, nodes and\n"
          "groups that nothing uses. Each finding tells the rule, the feature, what was found, what would be right,\n"
          "and what to do. What the reader could not use of a file is told by voxbench info.",
          {{"voxbench check bracket.inp", "all findings, and their sum"},
           {"voxbench check bracket.inp --json", "the same for a program"},
           {"voxbench check --list", "the rules, with a sentence each"}},
          {{kExitDone, "no findings"},
           {kExitSomeFailed, "findings, or the output cannot be written"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE cannot be read"}},
          {ModelValues()}};
}

void CheckCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  CLI::Option* const file = ioParser.get_option("FILE");
  file->required(false);
  ioParser.add_flag("--list", _List, "List the rules; needs no FILE");
  ioParser.callback(
      [this]
      {
        if (_File.file.empty() && !_List)
          throw CLI::RequiredError("FILE");
      });
}

int CheckCommand::Run(Console& ioConsole)
{
  if (_List)
    return ListRules(ioConsole);
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model); code != kExitDone)
    return code;
  const CheckResult result = Check(model);
  Output output(ioConsole.out);
  if (_File.json)
    WriteCheckJson(output, result);
  else
    PrintCheck(output, result);
  return FinishOutput(output, ioConsole, result.findings.empty() ? kExitDone : kExitSomeFailed);
}

int CheckCommand::ListRules(Console& ioConsole) const
{
  Output output(ioConsole.out);
  if (_File.json)
    WriteCheckRulesJson(output);
  else
    PrintCheckRules(output);
  return FinishOutput(output, ioConsole, kExitDone);
}

} // namespace voxbench
