// SPDX-License-Identifier: MIT
#include "voxbench/commands/OpenFile.h"
#include "voxbench/commands/Progress.h"
#include "voxbench/readers/inp/InpReader.h"
#include "voxbench/report/ExitCode.h"
#include "voxbench/store/DocumentFile.h"

#include <CLI/CLI.hpp>

namespace voxbench
{
namespace
{

int Unreadable(const ReadOutcome& iOutcome, Console& ioConsole)
{
  ioConsole.errors << "voxbench: " << Printable(iOutcome.Describe()) << '\n';
  return kExitUnreadable;
}

//! @return kExitDone for an empty reason.
int Outcome(const std::string& iReason, Console& ioConsole)
{
  if (iReason.empty())
    return kExitDone;
  ioConsole.errors << "voxbench: " << Printable(iReason) << '\n';
  return kExitUnreadable;
}

int OpenDocument(const std::string& iFile, Console& ioConsole, LoadedModel& oModel)
{
  std::string reason;
  {
    Progress progress(ioConsole.errors, "Opening " + iFile, ioConsole.errorsAreTerminal);
    reason = ReadDocumentFile(
        iFile, oModel, [&progress](std::uint64_t iDone, std::uint64_t iTotal) { progress.Report(iDone, iTotal); });
  }
  return Outcome(reason, ioConsole);
}

int OpenDocumentRecords(const std::string& iFile, Console& ioConsole, NeutralModel& oRecords)
{
  std::string reason;
  {
    Progress progress(ioConsole.errors, "Opening " + iFile, ioConsole.errorsAreTerminal);
    reason = ReadDocumentRecords(
        iFile, oRecords, [&progress](std::uint64_t iDone, std::uint64_t iTotal) { progress.Report(iDone, iTotal); });
  }
  return Outcome(reason, ioConsole);
}

} // namespace

CommandDescription::Values DeckValues(std::string iArgument)
{
  return {std::move(iArgument), {}, {".inp", ".inp.gz"}};
}

CommandDescription::Values DocumentValues(std::string iArgument)
{
  return {std::move(iArgument), {}, {".voxdoc"}};
}

CommandDescription::Values ModelValues()
{
  CommandDescription::Values values = DeckValues();
  values.endings.emplace_back(".voxdoc");
  return values;
}

std::string ReasonToRefuseName(const std::string& iName)
{
  return iName.empty() ? "the name of a file is needed, and this one is empty" : "";
}

void FileOptions::Declare(CLI::App& ioParser)
{
  ioParser.add_option("FILE", file, "The model: a keyword deck (.inp, .inp.gz) or a document (.voxdoc)")
      ->required()
      ->check(ReasonToRefuseName, "", "")
      ->option_text(" ");
  ioParser.add_flag("--json", json, "Print one JSON object instead of text");
}

int OpenRecords(const std::string& iFile, Console& ioConsole, NeutralModel& oRecords)
{
  if (IsDocumentFile(iFile))
    return OpenDocumentRecords(iFile, ioConsole, oRecords);
  ReadOutcome outcome;
  {
    Progress progress(ioConsole.errors, "Reading " + iFile, ioConsole.errorsAreTerminal);
    ReadOptions options;
    options.progress = [&progress](std::uint64_t iDone, std::uint64_t iTotal) { progress.Report(iDone, iTotal); };
    outcome = ReadInp(iFile, options, oRecords);
  }
  return outcome.ok ? static_cast<int>(kExitDone) : Unreadable(outcome, ioConsole);
}

int OpenModel(const std::string& iFile, Console& ioConsole, LoadedModel& oModel, int iRelease)
{
  if (IsDocumentFile(iFile))
    return OpenDocument(iFile, ioConsole, oModel);
  NeutralModel records;
  if (const int code = OpenRecords(iFile, ioConsole, records); code != kExitDone)
    return code;
  const std::string reason = oModel.Build(std::move(records), voxhost::ExplicitRules::Default(), iRelease);
  return Outcome(reason.empty() ? "" : iFile + ": " + reason, ioConsole);
}

int FinishOutput(Output& ioOutput, Console& ioConsole, int iCode)
{
  if (ioOutput.Flush())
    return iCode;
  ioConsole.errors << "voxbench: the output cannot be written: the disk may be full\n";
  return kExitSomeFailed;
}

} // namespace voxbench
