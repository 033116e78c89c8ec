// SPDX-License-Identifier: MIT
#include "voxbench/commands/UpgradeCommand.h"
#include "voxbench/commands/Progress.h"
#include "voxbench/features/Releases.h"
#include "voxbench/store/DocumentFile.h"
#include "voxbench/upgrade/Upgrade.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{

CommandDescription UpgradeCommand::Describe() const
{
  return {"upgrade",
          "Bring a document to the newest start-ups",
          "A document keeps its features as the release that wrote it made them. This tells, one line per decision,\n"
          "which components its start-ups have gained (add, layers), which features become instances of another\n"
          "start-up (reroute), which of their values have no place there (skip), and what needs an upgrade even\n"
          "afterwards (stuck). Nothing is changed without --write. The old document is then kept beside the new one\n"
          "as FILE.backup-1, or the next number that is free, and the new one is opened and asked again.",
          {{"voxbench upgrade bracket.voxdoc", "what an upgrade would do"},
           {"voxbench upgrade bracket.voxdoc --write", "do it"},
           {"voxbench upgrade bracket.voxdoc --json", "the plan for a program"}},
          {{kExitDone, "there was nothing to do, or all was done"},
           {kExitSomeFailed, "there is something to do, or something was skipped or is stuck"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE cannot be read"},
           {kExitNotWritten, "FILE cannot be written: it is as it was"}},
          {DocumentValues()}};
}

void UpgradeCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  ioParser.get_option("FILE")->description("The document (.voxdoc)");
  ioParser.add_flag("--write", _Write, "Do what is planned");
}

int UpgradeCommand::Run(Console& ioConsole)
{
  UpgradeResult result;
  LoadedModel model;
  if (const int code = Open(ioConsole, model); code != kExitDone)
    return code;
  result.file = _File.file;
  result.from = model.Release();
  result.to = std::max(model.Release(), kNewestRelease);
  result.decisions = Upgrade(model, ioConsole);
  if (_Write && !result.decisions.empty())
  {
    if (const int code = Write(model, ioConsole, result); code != kExitDone)
      return code;
    LoadedModel again; // what was written is asked, not what was meant
    if (const int code = Open(ioConsole, again); code != kExitDone)
      return code;
    result.Add(LookAgain(again, ioConsole));
  }
  else
    result.Add(LookAgain(model, ioConsole));
  return Show(result, ioConsole);
}

int UpgradeCommand::Open(Console& ioConsole, LoadedModel& oModel) const
{
  if (IsDocumentFile(_File.file))
    return OpenModel(_File.file, ioConsole, oModel);
  NeutralModel records; // says why the file cannot be read, if so
  if (const int code = OpenRecords(_File.file, ioConsole, records); code != kExitDone)
    return code;
  ioConsole.errors << fmt::format("voxbench upgrade: {} is a deck, no document: voxbench import makes one of it\n",
                                  _File.file);
  return kExitUnreadable;
}

Decisions UpgradeCommand::Upgrade(LoadedModel& ioModel, Console& ioConsole) const
{
  Progress progress(ioConsole.errors, "Upgrading " + _File.file, ioConsole.errorsAreTerminal);
  return UpgradeFeatures(ioModel,
                         [&progress](std::uint64_t iDone, std::uint64_t iTotal) { progress.Report(iDone, iTotal); });
}

Decisions UpgradeCommand::LookAgain(const LoadedModel& iModel, Console& ioConsole) const
{
  Progress progress(ioConsole.errors, "Looking again at " + _File.file, ioConsole.errorsAreTerminal);
  return FindStuck(iModel, [&progress](std::uint64_t iDone, std::uint64_t iTotal) { progress.Report(iDone, iTotal); });
}

int UpgradeCommand::Write(const LoadedModel& iModel, Console& ioConsole, UpgradeResult& ioResult) const
{
  std::string reason;
  {
    Progress progress(ioConsole.errors, "Writing " + _File.file, ioConsole.errorsAreTerminal);
    reason = RewriteDocumentFile(
        _File.file, iModel, ioResult.to,
        [&progress](std::uint64_t iDone, std::uint64_t iTotal) { progress.Report(iDone, iTotal); }, ioResult.backup);
  }
  if (reason.empty())
    return kExitDone;
  ioConsole.errors << "voxbench upgrade: " << reason << '\n';
  return kExitNotWritten;
}

int UpgradeCommand::Show(const UpgradeResult& iResult, Console& ioConsole) const
{
  Output output(ioConsole.out);
  if (_File.json)
    WriteUpgradeJson(output, iResult);
  else
    PrintUpgrade(output, iResult);
  return FinishOutput(output, ioConsole, iResult.IsAllDone() ? kExitDone : kExitSomeFailed);
}

} // namespace voxbench
