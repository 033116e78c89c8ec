// SPDX-License-Identifier: MIT
#include "voxbench/report/ConnectionsReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

std::string NamesOf(const std::vector<ConnectionSide::Member>& iMembers)
{
  std::string names;
  for (const ConnectionSide::Member& member : iMembers)
    names += (names.empty() ? "" : ", ") + fmt::format("{} ({})", member.name, member.type);
  return names.empty() ? "none" : names;
}

Json MembersOf(const std::vector<ConnectionSide::Member>& iMembers)
{
  Json members = Json::array();
  for (const ConnectionSide::Member& member : iMembers)
    members.push_back({{"name", member.name}, {"type", member.type}});
  return members;
}

Json ToJson(const ConnectionSide& iSide)
{
  Json side;
  side["designer"] = iSide.designer.empty() ? Json() : Json(iSide.designer);
  side["supports"] = MembersOf(iSide.supports);
  side["designers"] = MembersOf(iSide.designers);
  return side;
}

} // namespace

void PrintConnections(Output& ioOutput, const std::vector<ConnectionRow>& iRows)
{
  if (iRows.empty())
    ioOutput.Write("No connections.\n");
  for (const ConnectionRow& row : iRows)
  {
    ioOutput.Write(fmt::format("{} ({})\n", row.name, row.keyword));
    TextTable table({Align::Left, Align::Left, Align::Left, Align::Left});
    for (int number = 1; number <= 2; ++number)
    {
      const ConnectionSide& side = row.sides[number - 1];
      table.Add({fmt::format("side {}", number), side.designer.empty() ? "no designer" : side.designer,
                 "on " + NamesOf(side.supports), "designed by " + NamesOf(side.designers)});
    }
    table.Print(ioOutput, 2);
    if (!row.failure.empty())
      ioOutput.Write(fmt::format("  failed: {}\n", row.failure));
  }
}

void WriteConnectionsJson(Output& ioOutput, const std::vector<ConnectionRow>& iRows)
{
  Json result;
  result["connections"] = Json::array();
  for (const ConnectionRow& row : iRows)
  {
    Json entry;
    entry["name"] = row.name;
    entry["keyword"] = row.keyword;
    entry["sides"] = Json::array({ToJson(row.sides[0]), ToJson(row.sides[1])});
    if (!row.failure.empty())
      entry["failure"] = row.failure;
    result["connections"].push_back(std::move(entry));
  }
  WriteJson(ioOutput, result);
}

} // namespace voxbench
