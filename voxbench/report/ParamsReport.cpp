// SPDX-License-Identifier: MIT
#include "voxbench/report/ParamsReport.h"
#include "voxbench/report/Json.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

void PrintNames(Output& ioOutput, const char* iWhat, const std::vector<std::string>& iNames)
{
  if (!iNames.empty())
    ioOutput.Write(fmt::format("  {}: {}\n", iWhat, fmt::join(iNames, ", ")));
}

void PrintChange(Output& ioOutput, const SelectionChange& iChange)
{
  ioOutput.Write(fmt::format("  changed from {} to {}\n", iChange.from.empty() ? "nothing" : iChange.from, iChange.to));
  PrintNames(ioOutput, "kept", iChange.kept);
  PrintNames(ioOutput, "renamed", iChange.renamed);
  PrintNames(ioOutput, "removed", iChange.removed);
  PrintNames(ioOutput, "created", iChange.created);
}

Json ToJson(const SelectionChange& iChange)
{
  Json change;
  change["from"] = iChange.from;
  change["to"] = iChange.to;
  change["kept"] = iChange.kept;
  change["renamed"] = iChange.renamed;
  change["removed"] = iChange.removed;
  change["created"] = iChange.created;
  return change;
}

Json ToJson(const ParameterRow& iRow)
{
  Json row;
  row["feature"] = iRow.feature;
  row["component"] = iRow.component;
  row["mode"] = iRow.mode;
  row["entries"] = iRow.entries;
  row["selected"] = iRow.selected;
  row["index"] = iRow.index;
  row["components"] = Json::array();
  for (const ComponentRow& component : iRow.components)
    row["components"].push_back(
        {{"name", component.name}, {"value", component.value ? Json(*component.value) : Json()}});
  if (iRow.change)
    row["change"] = ToJson(*iRow.change);
  if (!iRow.failure.empty())
    row["failure"] = iRow.failure;
  return row;
}

} // namespace

void PrintParams(Output& ioOutput, const std::vector<ParameterRow>& iRows)
{
  if (iRows.empty())
    ioOutput.Write("No choices.\n");
  for (const ParameterRow& row : iRows)
  {
    ioOutput.Write(fmt::format("{}: {}\n", row.feature, row.component));
    if (row.mode == "list")
      ioOutput.Write(fmt::format("  one of: {}\n", fmt::join(row.entries, ", ")));
    ioOutput.Write(fmt::format("  selected: {} ({})\n", row.selected.empty() ? "nothing" : row.selected, row.index));
    for (const ComponentRow& component : row.components)
      ioOutput.Write(component.value ? fmt::format("  {} = {:.10g}\n", component.name, *component.value)
                                     : fmt::format("  {}\n", component.name));
    if (row.change)
      PrintChange(ioOutput, *row.change);
    if (!row.failure.empty())
      ioOutput.Write(fmt::format("  failed: {}\n", row.failure));
  }
}

void WriteParamsJson(Output& ioOutput, const std::vector<ParameterRow>& iRows)
{
  Json result;
  result["parameters"] = Json::array();
  for (const ParameterRow& row : iRows)
    result["parameters"].push_back(ToJson(row));
  WriteJson(ioOutput, result);
}

} // namespace voxbench
