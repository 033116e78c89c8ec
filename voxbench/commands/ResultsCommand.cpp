// SPDX-License-Identifier: MIT
#include "voxbench/commands/ResultsCommand.h"
#include "voxbench/build/ResultNames.h"
#include "voxbench/commands/FeatureNames.h"
#include "voxbench/commands/OpenFile.h"
#include "voxbench/commands/Progress.h"
#include "voxbench/readers/frd/FrdReader.h"
#include "voxbench/readers/inp/InpReader.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

constexpr const char* kLast = "last";
constexpr const char* kAllIncrements = "all";

//! A version as people name it: a number, an i behind it for the imaginary part; or last, or all.
std::string CheckedVersion(std::string iText)
{
  if (iText == kLast || iText == kAllIncrements)
    return iText;
  const std::string digits = iText.substr(0, iText.size() - (iText.ends_with('i') ? 1 : 0));
  const bool isNumber = !digits.empty() && digits.find_first_not_of("0123456789") == std::string::npos;
  if (!isNumber)
    throw CLI::ValidationError("needs a number such as 3, 3i for an imaginary part, last or all, not " + iText);
  return iText;
}

//! The deck of the same name beside a result file, plain or compressed; "" when there is none.
std::string DeckBeside(const std::string& iFile)
{
  std::filesystem::path path(iFile);
  if (path.extension() == ".gz")
    path.replace_extension();
  for (const char* const extension : {".inp", ".inp.gz"})
  {
    std::error_code none;
    const std::filesystem::path deck = path.replace_extension().string() + extension;
    if (std::filesystem::is_regular_file(deck, none))
      return deck.string();
  }
  return {};
}

ReadOutcome Read(const std::string& iFile, Console& ioConsole, ResultOptions ioOptions, ResultRecords& oRecords)
{
  Progress progress(ioConsole.errors, "Reading " + iFile, ioConsole.errorsAreTerminal);
  ioOptions.progress = [&progress](std::uint64_t iDone, std::uint64_t iTotal) { progress.Report(iDone, iTotal); };
  return ReadFrd(iFile, ioOptions, oRecords);
}

std::string NamesOf(const ResultTables& iTables, const std::vector<ResultDefinition>& iAvailable)
{
  std::vector<std::string> names;
  for (const ResultDefinition& definition : iAvailable)
    if (const std::string name = iTables.NameOf(definition.physicalType); names.empty() || names.back() != name)
      names.push_back(name);
  return names.empty() ? "none" : fmt::format("{}", fmt::join(names, ", "));
}

} // namespace

CommandDescription ResultsCommand::Describe() const
{
  return {"results",
          "Show what a solver's result file has, and its values",
          "Without --type: the types, versions and positions that are available. A version is a state of the analysis\n"
          "(an increment, a mode, a frequency), or the imaginary part of one. With --type: minimum and maximum with\n"
          "their places, and the values, on all nodes or on the nodes of groups. Groups come from the deck that was\n"
          "solved; a group of elements or faces stands for their nodes. With --delete the collectors of the values\n"
          "shown are deleted one by one; without --type all that is available is collected, and all deleted.",
          {{"voxbench results bracket.frd", "what is available"},
           {"voxbench results bracket.frd --type STRESS --version 3", "stresses of version 3 on all nodes"},
           {"voxbench results bracket.frd --type U --group 'BOLT*' --extremes", "smallest and largest per group"},
           {"voxbench results bracket.frd --type U --version all --csv", "all displacements for a spreadsheet"},
           {"voxbench results bracket.frd --type U --delete", "and give the collectors back"}},
          {{kExitDone, "all that was asked for was shown"},
           {kExitSomeFailed, "some type, version, position or group is not there, or failed, or the output cannot be "
                             "written"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE, or the deck given with --deck, cannot be read"}},
          {{"FILE", {}, {".frd", ".frd.gz"}},
           DeckValues("--deck"),
           {"--type", KnownQuantities(), {}},
           {"--version", {kLast, kAllIncrements}, {}}}};
}

void ResultsCommand::DeclareOptions(CLI::App& ioParser)
{
  ioParser.add_option("FILE", _File, "Results of the CalculiX solver (.frd), plain or compressed (.frd.gz)")
      ->required()
      ->check(ReasonToRefuseName, "", "")
      ->option_text(" ");
  ioParser.add_option("--type", _Type, "Show values of that type, such as STRESS; its label in a deck (S) will do")
      ->option_text("TYPE");
  ioParser.add_option("--version", _Versions, "A version by number, 3i for its imaginary part; last (default) or all")
      ->transform(CheckedVersion, "", "")
      ->allow_extra_args(false)
      ->option_text("N");
  ioParser.add_option("--position", _Position, "Where on the mesh; the first that is available by default")
      ->option_text("POSITION");
  ioParser.add_option("--group", _Groups, "Only the nodes of groups of that name; * and ? stand for any text")
      ->allow_extra_args(false)
      ->option_text("NAME");
  ioParser.add_option("--deck", _Deck, "The deck that was solved; by default the .inp of the same name beside FILE")
      ->check(ReasonToRefuseName, "", "")
      ->option_text("DECK");
  ioParser.add_flag("--extremes", _ExtremesOnly, "Only minimum and maximum, no table of values");
  ioParser.add_flag("--delete", _Delete, "Delete in the end what was collected; FILE is never written");
  CLI::Option* const json = ioParser.add_flag("--json", _Json, "Print one JSON object instead of text");
  ioParser.add_flag("--csv", _Csv, "Print comma-separated values instead of text")->excludes(json);
  ioParser.callback(
      [this]
      {
        const bool narrows = !_Versions.empty() || !_Position.empty() || !_Groups.empty() || _ExtremesOnly;
        if (_Type.empty() && narrows)
          throw CLI::RequiredError("--type (with --version, --position, --group or --extremes)");
      });
}

int ResultsCommand::Run(Console& ioConsole)
{
  _Type = QuantityMeant(_Type);
  LoadedResults results;
  if (const int code = Open(ioConsole, results); code != kExitDone)
    return code;
  const ResultTables tables(results);
  std::string failure;
  const std::vector<ResultDefinition> available = tables.Available(failure);
  if (!failure.empty())
    Complain(ioConsole, failure);
  Output output(ioConsole.out);
  const bool withValues = !_ExtremesOnly;
  const auto report = _Json  ? ResultsReport::Json(output, withValues)
                      : _Csv ? ResultsReport::Csv(output, withValues)
                             : ResultsReport::Text(output, withValues);
  Show(results, tables, available, ioConsole, *report);
  report->Close();
  return FinishOutput(output, ioConsole, _SomeFailed ? kExitSomeFailed : kExitDone);
}

//! Values of the type that is asked for are kept while the file is read, as far as the budget allows.
int ResultsCommand::Open(Console& ioConsole, LoadedResults& oResults)
{
  ResultRecords records;
  ResultOptions options;
  std::size_t bytes = 0;
  options.wants = [this, &bytes](const ResultRecords&, const ResultBlock& iBlock)
  {
    if (!IsWanted(iBlock))
      return false;
    bytes += static_cast<std::size_t>(iBlock.count) * iBlock.components.size() * sizeof(double);
    return bytes <= RecordsSource::kBudget;
  };
  if (const ReadOutcome outcome = Read(_File, ioConsole, options, records); !outcome.ok)
  {
    ioConsole.errors << "voxbench: " << Printable(outcome.Describe()) << '\n';
    return kExitUnreadable;
  }
  NeutralModel deck;
  if (const int code = OpenDeck(ioConsole, deck); code != kExitDone)
    return code;
  if (!_Deck.empty())
    _Strangers = StrangersOf(deck, records, _Groups);
  const auto again = [this, &ioConsole](const auto& iWants, ResultRecords& oRecords)
  {
    ResultOptions wanted;
    wanted.wants = iWants;
    return Read(_File, ioConsole, wanted, oRecords);
  };
  if (const std::string reason = oResults.Build(std::move(records), _Deck.empty() ? nullptr : &deck, again);
      !reason.empty())
  {
    ioConsole.errors << "voxbench: " << _File << ": " << reason << '\n';
    return kExitUnreadable;
  }
  return kExitDone;
}

bool ResultsCommand::IsWanted(const ResultBlock& iBlock) const
{
  return !_Type.empty() &&
         (iBlock.name == _Type || iBlock.name == NameOfImaginaryPart(_Type)); // parts are paired at the end
}

//! A deck that nobody asked for and that cannot be read costs the groups, not the results.
int ResultsCommand::OpenDeck(Console& ioConsole, NeutralModel& oDeck)
{
  const bool isGiven = !_Deck.empty();
  if (!isGiven)
    _Deck = DeckBeside(_File);
  if (_Deck.empty())
    return kExitDone;
  const ReadOutcome outcome = ReadInp(_Deck, {}, oDeck);
  if (outcome.ok)
    return kExitDone;
  ioConsole.errors << "voxbench: " << (isGiven ? "" : "no groups: ") << Printable(outcome.Describe()) << '\n';
  _Deck.clear();
  return isGiven ? kExitUnreadable : kExitDone;
}

void ResultsCommand::Show(const LoadedResults& iResults, const ResultTables& iTables,
                          const std::vector<ResultDefinition>& iAvailable, Console& ioConsole, ResultsReport& ioReport)
{
  std::string failure;
  if (_Type.empty())
  {
    ResultsListing listing = iTables.Listing(iAvailable);
    listing.file = _File;
    listing.deck = _Deck;
    for (const voxhost::Feature* const group : iResults.Model().Groups())
      listing.groups.push_back(LoadedModel::DisplayName(*group));
    ioReport.List(listing);
    if (_Delete)
      ioReport.Tell(CollectAndDelete(iTables, iAvailable, failure));
  }
  else
  {
    const std::vector<ResultDefinition> chosen = Chosen(iTables, iAvailable, ioConsole);
    ShowTables(iResults, iTables, chosen, ioConsole, ioReport);
    if (_Delete)
      ioReport.Tell(iTables.Delete(chosen, failure));
  }
  if (!failure.empty())
    Complain(ioConsole, failure);
}

ResultsDeleted ResultsCommand::CollectAndDelete(const ResultTables& iTables,
                                                const std::vector<ResultDefinition>& iAvailable, std::string& oFailure)
{
  for (const ResultDefinition& definition : iAvailable)
    if (const std::string failure = iTables.Table(definition, nullptr).failure; !failure.empty())
      oFailure = failure;
  return iTables.DeleteAll(oFailure);
}

std::vector<ResultDefinition>
ResultsCommand::Chosen(const ResultTables& iTables, const std::vector<ResultDefinition>& iAvailable, Console& ioConsole)
{
  std::vector<ResultDefinition> ofType;
  for (const ResultDefinition& definition : iAvailable)
    if (iTables.NameOf(definition.physicalType) == _Type)
      ofType.push_back(definition);
  if (ofType.empty())
  {
    Complain(ioConsole,
             fmt::format("{} has no values of type {}: it has {}", _File, _Type, NamesOf(iTables, iAvailable)));
    return {};
  }
  const std::string position = _Position.empty() ? static_cast<const char*>(ofType.front().position) : _Position;
  std::int32_t last = 0;
  for (const ResultDefinition& definition : ofType)
    last = std::max(last, definition.version._Occurrence);
  std::vector<ResultDefinition> chosen;
  for (const std::string& asked : _Versions.empty() ? std::vector<std::string>{kLast} : _Versions)
  {
    const std::size_t before = chosen.size();
    for (const ResultDefinition& definition : ofType)
      if (definition.position == position.c_str() &&
          (asked == kAllIncrements ||
           ResultTables::NameOf(definition.version) == (asked == kLast ? std::to_string(last) : asked)))
        chosen.push_back(definition);
    if (chosen.size() == before)
      Complain(ioConsole,
               fmt::format("{} has no values of type {}, version {}, at {}: voxbench results FILE lists what "
                           "it has",
                           _File, _Type, asked, position));
  }
  return chosen;
}

std::vector<GroupNodes> ResultsCommand::ChosenGroups(const LoadedResults& iResults, Console& ioConsole)
{
  if (_Deck.empty())
    Complain(ioConsole,
             fmt::format("there are no groups without the deck that {} was made of: give it with --deck", _File));
  std::vector<GroupNodes> groups = NodesOfGroups(iResults.Model(), _Groups);
  for (const std::string& asked : _Groups)
  {
    const auto fits = [&asked](const GroupNodes& iGroup) { return MatchesPattern(iGroup.name, asked); };
    if (!_Deck.empty() && std::none_of(groups.begin(), groups.end(), fits))
      Complain(ioConsole, fmt::format("{} has no group named {}: voxbench groups lists them all", _Deck, asked));
  }
  for (const GroupNodes& group : groups)
    _SomeFailed = _SomeFailed || !group.failure.empty();
  TellStrangers(ioConsole);
  return groups;
}

//! A group that has none of its own in the file is as good as not there.
void ResultsCommand::TellStrangers(Console& ioConsole)
{
  for (const GroupStrangers& group : _Strangers)
  {
    const char* const otherReason = group.ofNodes ? ", or no solid has these nodes" : "";
    ioConsole.errors << Printable(fmt::format(
        "voxbench results: {} of {} {} of group {} are not in {}: {} may not be the deck that was solved{}\n",
        group.count, group.members, group.ofNodes ? "nodes" : "elements", group.name, _File, _Deck, otherReason));
    _SomeFailed = _SomeFailed || group.count == group.members;
  }
}

void ResultsCommand::ShowTables(const LoadedResults& iResults, const ResultTables& iTables,
                                const std::vector<ResultDefinition>& iChosen, Console& ioConsole,
                                ResultsReport& ioReport)
{
  const std::vector<GroupNodes> groups =
      _Groups.empty() ? std::vector<GroupNodes>{} : ChosenGroups(iResults, ioConsole);
  for (const ResultDefinition& definition : iChosen)
  {
    const ResultTable table = iTables.Table(definition, _Groups.empty() ? nullptr : &groups);
    ioReport.Add(table);
    _SomeFailed = _SomeFailed || !table.failure.empty();
  }
}

void ResultsCommand::Complain(Console& ioConsole, const std::string& iSentence)
{
  ioConsole.errors << "voxbench results: " << iSentence << '\n';
  _SomeFailed = true;
}

} // namespace voxbench
