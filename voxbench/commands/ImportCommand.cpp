// SPDX-License-Identifier: MIT
#include "voxbench/commands/ImportCommand.h"
#include "voxbench/commands/Progress.h"
#include "voxbench/report/ImportReport.h"
#include "voxbench/store/DocumentFile.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

std::vector<std::string> Releases()
{
  std::vector<std::string> releases;
  for (int release = 1; release <= kNewestRelease; ++release)
    releases.push_back(std::to_string(release));
  return releases;
}

} // namespace

CommandDescription ImportCommand::Describe() const
{
  return {"import",
          "Keep a deck as a document",
          "Writes what a deck becomes, features and explicit model, into one file. Every other subcommand opens it in\n"
          "place of the deck, without the deck. The document appears in one step, when it is whole.",
          {{"voxbench import bracket.inp -o bracket.voxdoc", "a new document"},
           {"voxbench import bracket.inp -o bracket.voxdoc --force", "the same, over an older one"}},
          {{kExitDone, "the document was written"},
           {kExitSomeFailed, "the output cannot be written"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE cannot be read"},
           {kExitNotWritten, "DOCUMENT cannot be written, or is there already: it is as it was"}},
          {DeckValues(), DocumentValues("--output"), {"--catalogue", Releases(), {}}}};
}

void ImportCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  ioParser.get_option("FILE")->description("The keyword deck (.inp, .inp.gz)");
  ioParser.add_option("-o,--output", _Document, "The document to write (.voxdoc)")
      ->required()
      ->check(ReasonToRefuseName, "", "")
      ->option_text("DOCUMENT");
  ioParser.add_flag("--force", _Force, "Replace DOCUMENT if it is there already");
  ioParser.add_option("--catalogue", _Release, "Write as the release of that number would have (voxbench upgrade)")
      ->check(CLI::Range(1, kNewestRelease))
      ->option_text("NUMBER");
}

int ImportCommand::Run(Console& ioConsole)
{
  if (IsDocumentFile(_File.file))
  {
    ioConsole.errors << fmt::format("voxbench import: {} is a document, no deck: copy the file to have another one\n",
                                    _File.file);
    return kExitUnreadable;
  }
  if (const std::string reason = ReasonToRefuse(); !reason.empty())
    return Refuse(reason, ioConsole);
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model, _Release); code != kExitDone)
    return code;
  std::string reason;
  {
    Progress progress(ioConsole.errors, "Writing " + _Document, ioConsole.errorsAreTerminal);
    reason =
        WriteDocumentFile(_Document, model, _Force,
                          [&progress](std::uint64_t iDone, std::uint64_t iTotal) { progress.Report(iDone, iTotal); });
  }
  if (!reason.empty())
    return Refuse(reason, ioConsole);

  const ImportResult result = DescribeImport(_File.file, _Document, model);
  Output output(ioConsole.out);
  if (_File.json)
    WriteImportJson(output, result);
  else
    PrintImport(output, result);
  return FinishOutput(output, ioConsole, kExitDone);
}

//! What can be said before a deck of gigabytes is read.
std::string ImportCommand::ReasonToRefuse() const
{
  std::error_code unknown;
  if (std::filesystem::equivalent(_File.file, _Document, unknown))
    return fmt::format("{} is the deck itself: give the document another name", _Document);
  if (!_Force && std::filesystem::exists(_Document, unknown))
    return fmt::format("{} is there already: give another name, or --force to replace it", _Document);
  const std::filesystem::path folder = std::filesystem::path(_Document).parent_path();
  if (!folder.empty() && !std::filesystem::is_directory(folder, unknown))
    return fmt::format("{} cannot be written: there is no folder {}; make it first, or give another name", _Document,
                       folder.string());
  return "";
}

int ImportCommand::Refuse(const std::string& iReason, Console& ioConsole) const
{
  ioConsole.errors << "voxbench import: " << iReason << '\n';
  return kExitNotWritten;
}

} // namespace voxbench
