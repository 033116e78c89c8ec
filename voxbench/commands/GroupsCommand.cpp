// SPDX-License-Identifier: MIT
#include "voxbench/commands/GroupsCommand.h"
#include "voxbench/build/MaterialGroups.h"
#include "voxbench/commands/FeatureNames.h"
#include "voxbench/commands/GroupContent.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

//! A kind in any case as its keyword.
std::string Keyword(std::string iText)
{
  std::transform(iText.begin(), iText.end(), iText.begin(),
                 [](unsigned char iLetter) { return std::toupper(iLetter); });
  for (const GroupKind* const kind : kGroupKinds)
    if (iText == kind->keyword)
      return iText;
  throw CLI::ValidationError("needs NODE, EDGE, FACE or ELEMENT, not " + iText);
}

std::vector<std::string> Keywords()
{
  std::vector<std::string> keywords;
  for (const GroupKind* const kind : kGroupKinds)
    keywords.emplace_back(kind->keyword);
  return keywords;
}

} // namespace

CommandDescription GroupsCommand::Describe() const
{
  return {"groups",
          "List the groups and the entities that each hands out",
          "Every node set, element set and surface is a group; a set and a surface of one name are two groups.\n"
          "Each group is asked for its content as any program of the host would ask it. A group that fails is a\n"
          "row with its reason, and the others are listed all the same.",
          {{"voxbench groups bracket.inp", "name, kind and number of entities of each group"},
           {"voxbench groups bracket.inp --kind NODE", "only the groups of nodes"},
           {"voxbench groups bracket.inp --name 'BOLT*' --ids", "the entities of all groups whose name begins so"},
           {"voxbench groups bracket.inp --by-material", "the elements made of each material"},
           {"voxbench groups bracket.inp --ids --json", "everything, as one JSON object"}},
          {{kExitDone, "all groups were listed"},
           {kExitSomeFailed, "some group failed, none has the NAME given, or the output cannot be written"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE cannot be read"}},
          {ModelValues(), {"--kind", Keywords(), {}}}};
}

void GroupsCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  ioParser.add_option("--kind", _Kind, "Only groups of NODE, EDGE, FACE or ELEMENT")
      ->transform(Keyword, "", "")
      ->option_text("KIND");
  ioParser.add_option("--name", _Name, "Only groups of that name; * and ? stand for any text and any character")
      ->option_text("NAME");
  ioParser.add_flag("--by-material", _ByMaterial, "List a group per material instead: the elements made of it");
  ioParser.add_flag("--ids", _ListEntities, "List the entities; of an edge or face its element and side");
}

int GroupsCommand::Run(Console& ioConsole)
{
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model); code != kExitDone)
    return code;

  Output output(ioConsole.out);
  const auto report =
      _File.json ? GroupsReport::Json(output, _ListEntities) : GroupsReport::Text(output, _ListEntities);
  bool someWanted = false;
  for (voxhost::Feature* const group : _ByMaterial ? MakeMaterialGroups(model) : model.Groups())
  {
    const std::string name = LoadedModel::DisplayName(*group);
    if (!IsWanted(name))
      continue;
    someWanted = true;
    Report(*group, name, *report);
  }
  report->Close();

  if (!_Name.empty() && !someWanted)
  {
    ioConsole.errors << fmt::format("voxbench groups: {} has no group named {}: voxbench groups FILE lists them all\n",
                                    _File.file, _Name);
    _SomeFailed = true;
  }
  return FinishOutput(output, ioConsole, _SomeFailed ? kExitSomeFailed : kExitDone);
}

bool GroupsCommand::IsWanted(const std::string& iName) const
{
  return _Name.empty() || MatchesPattern(iName, _Name);
}

void GroupsCommand::Report(voxhost::Feature& iGroup, const std::string& iName, GroupsReport& ioReport)
{
  for (const GroupKind* const kind : kGroupKinds)
  {
    if (!_Kind.empty() && _Kind != kind->keyword)
      continue;
    GroupRow row{iName, kind->keyword, 0, {}, {}, {}};
    const Serves serves = AskServes(iGroup, *kind, row.failure);
    if (serves == Serves::No)
      continue;
    if (serves == Serves::Yes)
    {
      ReportKind(iGroup, *kind, std::move(row), ioReport);
      continue;
    }
    ioReport.Add(row);
    _SomeFailed = true;
  }
}

void GroupsCommand::ReportKind(voxhost::Feature& iGroup, const GroupKind& iKind, GroupRow iRow, GroupsReport& ioReport)
{
  const GroupContent content = AskContent(iGroup, iKind, _ListEntities);
  iRow.count = content.count;
  iRow.ids = content.ids;
  iRow.sides = content.sides;
  iRow.failure = content.failure;
  ioReport.Add(iRow);
  _SomeFailed = _SomeFailed || !content.failure.empty();
}

} // namespace voxbench
