// SPDX-License-Identifier: MIT
#include "voxbench/report/AxesReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

using Triple = std::array<double, 3>;

//! Six digits, and no sign before a zero.
std::string Text(const Triple& iTriple)
{
  std::string text;
  for (const double number : iTriple)
  {
    const std::string digits = fmt::format("{:.6g}", number);
    if (!text.empty())
      text += ' ';
    text += digits == "-0" ? "0" : digits;
  }
  return text;
}

std::string MadeBy(const AxisRow& iAxis)
{
  return iAxis.madeBy.empty() ? "implicit" : iAxis.madeBy;
}

Json ToJson(const AxisRow& iAxis)
{
  Json row;
  row["tag"] = iAxis.tag;
  row["name"] = iAxis.name;
  row["system"] = iAxis.system;
  row["origin"] = iAxis.origin;
  row["i"] = iAxis.i;
  row["j"] = iAxis.j;
  row["k"] = iAxis.k;
  row["implicit"] = iAxis.madeBy.empty();
  row["madeBy"] = iAxis.madeBy.empty() ? Json() : Json(iAxis.madeBy);
  row["status"] = iAxis.dropped ? "dropped" : "used";
  row["recorded"] = iAxis.recorded;
  return row;
}

} // namespace

void PrintAxes(Output& ioOutput, const AxesResult& iResult)
{
  TextTable table({Align::Right, Align::Left, Align::Left, Align::Left, Align::Left, Align::Left, Align::Left,
                   Align::Left, Align::Left});
  table.Add({"TAG", "NAME", "SYSTEM", "ORIGIN", "FIRST", "SECOND", "THIRD", "MADE BY", "STATUS"});
  for (const AxisRow& axis : iResult.axes)
    table.Add({std::to_string(axis.tag), axis.name, axis.system, Text(axis.origin), Text(axis.i), Text(axis.j),
               Text(axis.k), MadeBy(axis), axis.dropped ? "dropped" : "used"});
  table.Print(ioOutput);
  ioOutput.Write(fmt::format(
      "\nAllImplicitAxis records {}.\n",
      iResult.implicitTags.empty() ? "no axis" : fmt::format("the tags {}", fmt::join(iResult.implicitTags, ", "))));
}

void WriteAxesJson(Output& ioOutput, const AxesResult& iResult)
{
  Json result;
  result["axes"] = Json::array();
  for (const AxisRow& axis : iResult.axes)
    result["axes"].push_back(ToJson(axis));
  result["allImplicitAxis"]["tags"] = iResult.implicitTags;
  WriteJson(ioOutput, result);
}

} // namespace voxbench
