// SPDX-License-Identifier: MIT
#include "voxbench/commands/ConnectionsCommand.h"
#include "AnalysisInterfaces/VOXISamConnectionDesign.h"
#include "voxbench/readers/inp/InpReader.h"
#include "voxbench/report/ConnectionsReport.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

namespace voxbench
{
namespace
{

ConnectionSide::Member MemberOf(const VOXBaseUnknown* iFace)
{
  const voxhost::Feature* const feature = voxhost::Feature::Of(iFace);
  return feature == nullptr ? ConnectionSide::Member{}
                            : ConnectionSide::Member{LoadedModel::DisplayName(*feature), feature->Type().Name()};
}

template <class List>
std::vector<ConnectionSide::Member> MembersOf(const List& iList)
{
  std::vector<ConnectionSide::Member> members;
  for (int i = 1; i <= iList.Size(); ++i)
    members.push_back(MemberOf(iList[i].Get()));
  return members;
}

std::string DesignerOf(const voxhost::Feature& iConnection, const char* iRole)
{
  const auto designers = iConnection.Features(iRole);
  return designers.size() == 1 ? LoadedModel::DisplayName(*designers.front()) : std::string();
}

ConnectionRow RowOf(voxhost::Feature& iConnection)
{
  ConnectionRow row;
  row.name = LoadedModel::DisplayName(iConnection);
  row.keyword = ShownKeyword(static_cast<const char*>(iConnection.Text("Keyword")));
  row.sides[0].designer = DesignerOf(iConnection, "SAMConnectionDesigner1");
  row.sides[1].designer = DesignerOf(iConnection, "SAMConnectionDesigner2");

  const VOXISamConnectionDesign_var spDesign(static_cast<VOXBaseUnknown*>(&iConnection));
  if (!spDesign)
  {
    row.failure = "the feature has no VOXISamConnectionDesign";
    return row;
  }
  VOXListValVOXBaseUnknown_var supports[2];
  VOXListValVOXISpecObject_var* designers[2] = {};
  if (FAILED(spDesign->GetConnectedSupports(supports[0], supports[1])))
    row.failure = "GetConnectedSupports failed";
  for (int side = 0; side < 2; ++side)
    row.sides[side].supports = MembersOf(supports[side]);
  if (FAILED(spDesign->GetConnectionDesigners(supports[0], designers[0], supports[1], designers[1])))
    row.failure = "GetConnectionDesigners failed";
  for (int side = 0; side < 2; ++side)
  {
    const std::unique_ptr<VOXListValVOXISpecObject_var> owned(designers[side]);
    if (owned)
      row.sides[side].designers = MembersOf(*owned);
  }
  return row;
}

} // namespace

CommandDescription ConnectionsCommand::Describe() const
{
  return {"connections",
          "List what joins the parts of a model",
          "Ties, contact pairs, couplings, rigid bodies, pre-tension sections and cyclic symmetries. Each has two\n"
          "sides: the dependent surface and the independent one, or the reference node and what follows it. A side is\n"
          "told with the features that it stands on and those that design it.",
          {{"voxbench connections bracket.inp", "a paragraph per connection"},
           {"voxbench connections bracket.inp --json", "the same for a program"}},
          {{kExitDone, "all connections were listed"},
           {kExitSomeFailed, "some connection could not be asked, or the output cannot be written"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE cannot be read"}},
          {ModelValues()}};
}

void ConnectionsCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
}

int ConnectionsCommand::Run(Console& ioConsole)
{
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model); code != kExitDone)
    return code;
  std::vector<ConnectionRow> rows;
  for (voxhost::Feature* const connection : model.MembersOf("ConnectionSet"))
    rows.push_back(RowOf(*connection));
  Output output(ioConsole.out);
  if (_File.json)
    WriteConnectionsJson(output, rows);
  else
    PrintConnections(output, rows);
  const auto failed = [](const ConnectionRow& iRow) { return !iRow.failure.empty(); };
  return FinishOutput(output, ioConsole, std::any_of(rows.begin(), rows.end(), failed) ? kExitSomeFailed : kExitDone);
}

} // namespace voxbench
