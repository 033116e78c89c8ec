// SPDX-License-Identifier: MIT
#include "voxbench/commands/InfoCommand.h"
#include "voxbench/commands/Summarize.h"
#include "voxbench/store/DocumentFile.h"

#include <CLI/CLI.hpp>
#include <filesystem>

namespace voxbench
{
namespace
{

//! A document stands for itself: its deck may be gone.
void TellOfDocument(const std::string& iFile, InfoResult& ioResult)
{
  std::error_code unknown;
  const std::uintmax_t bytes = std::filesystem::file_size(iFile, unknown);
  ioResult.file = iFile;
  ioResult.bytes = unknown ? 0 : bytes;
}

} // namespace

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
           {kExitUnreadable, "FILE cannot be read"}},
          {ModelValues()}};
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
  InfoResult result = Summarize(records);
  if (IsDocumentFile(_File.file))
    TellOfDocument(_File.file, result);
  Output output(ioConsole.out);
  if (_File.json)
    WriteJson(output, ToJson(result));
  else
    PrintInfo(output, result, _All);
  return FinishOutput(output, ioConsole, kExitDone);
}

} // namespace voxbench
