// SPDX-License-Identifier: MIT
#include "voxbench/report/OwnersReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

namespace voxbench
{
namespace
{

Json TextOrNull(const std::string& iText)
{
  return iText.empty() ? Json() : Json(iText);
}

} // namespace

void PrintOwners(Output& ioOutput, const std::vector<OwnerRow>& iRows)
{
  TextTable table({Align::Left, Align::Right, Align::Left, Align::Left, Align::Left});
  table.Add({"ASKED", "TAG", "KIND", "OBJECT", "MADE BY"});
  for (const OwnerRow& row : iRows)
    table.Add({row.asked, row.tag == 0 ? "" : std::to_string(row.tag), row.kind, row.name,
               row.owner.empty() ? row.remark : row.owner});
  table.Print(ioOutput);
}

void WriteOwnersJson(Output& ioOutput, const std::vector<OwnerRow>& iRows)
{
  Json result;
  result["owners"] = Json::array();
  for (const OwnerRow& row : iRows)
  {
    Json entry;
    entry["asked"] = row.asked;
    entry["tag"] = row.tag == 0 ? Json() : Json(row.tag);
    entry["kind"] = TextOrNull(row.kind);
    entry["name"] = row.name;
    entry["owner"] = TextOrNull(row.owner);
    entry["ownerType"] = TextOrNull(row.ownerType);
    entry["remark"] = row.remark;
    result["owners"].push_back(std::move(entry));
  }
  WriteJson(ioOutput, result);
}

} // namespace voxbench
