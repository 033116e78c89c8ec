// SPDX-License-Identifier: MIT
#include "voxbench/commands/InfoCommand.h"
#include "voxbench/commands/Summarize.h"

#include <CLI/CLI.hpp>

namespace voxbench
{

CommandDescription InfoCommand::Describe() const
{
  return {"info",
          "Tell what a file holds",
          "Title, size, nodes, elements by type, sets, surfaces, materials, sections, loads, restraints, steps and\n"
          "bounding box; then what of the file could not be used: cards that are not understood, data lines\n"
          "without effect, ids that do not exist, double definitions. Lengths are in the file's units.",
          {{"voxbench info bracket.inp", "an overview of the deck"},
           {"voxbench info bracket.inp --all", "the same, with every finding of the reader"},
           {"voxbench info bracket.inp --json", "the same for a program"}},
          {{kExitDone, "the file was read; it may have findings"},
           {kExitSomeFailed, "the output cannot be written"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE cannot be read"}}};
}

void InfoCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  ioParser.add_flag("--all", _All, "Print all rows of long lists");
}

int InfoCommand::Run(Console& ioConsole)
{
  NeutralModel records;
  if (const int code = OpenRecords(_File.file, ioConsole, records); code != kExitDone)
    return code;
  const InfoResult result = Summarize(records);
  Output output(ioConsole.out);
  if (_File.json)
    WriteJson(output, ToJson(result));
  else
    PrintInfo(output, result, _All);
  return FinishOutput(output, ioConsole, kExitDone);
}

} // namespace voxbench
