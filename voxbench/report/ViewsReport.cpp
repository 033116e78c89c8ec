// SPDX-License-Identifier: MIT
#include "voxbench/report/ViewsReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

Json JsonOf(const ViewState& iState)
{
  return {{"graph", iState.inGraph}, {"3d", iState.in3D}, {"noShow", iState.noShow}};
}

} // namespace

std::string WordsFor(const ViewState& iState)
{
  std::string words = iState.inGraph && iState.in3D ? "graph 3D"
                      : iState.inGraph              ? "graph"
                      : iState.in3D                 ? "3D"
                                                    : "nowhere";
  return iState.noShow ? words + ", no show" : words;
}

void PrintViews(Output& ioOutput, const std::vector<ViewRow>& iRows)
{
  for (const ViewRow& row : iRows)
  {
    const std::string change = row.before == row.after
                                   ? "stays " + WordsFor(row.before)
                                   : fmt::format("{} -> {}", WordsFor(row.before), WordsFor(row.after));
    ioOutput.Write(fmt::format("{}: {}\n", row.feature, row.remark.empty() ? change : row.remark));
    for (const ShownFather& shown : row.shown)
      ioOutput.Write(fmt::format("  shown in the {} view: {}\n", shown.view, shown.father));
    if (row.showStatusUpdates > 0)
      ioOutput.Write(fmt::format("  {} of the show status\n", Counted(row.showStatusUpdates, "update", "updates")));
    if (row.redraws > 0)
      ioOutput.Write(fmt::format("  {} requested\n", Counted(row.redraws, "redraw", "redraws")));
  }
}

void WriteViewsJson(Output& ioOutput, const std::vector<ViewRow>& iRows)
{
  Json result;
  result["features"] = Json::array();
  for (const ViewRow& row : iRows)
  {
    Json shown = Json::array();
    for (const ShownFather& father : row.shown)
      shown.push_back({{"father", father.father}, {"view", father.view}});
    result["features"].push_back({{"feature", row.feature},
                                  {"before", JsonOf(row.before)},
                                  {"after", JsonOf(row.after)},
                                  {"shown", std::move(shown)},
                                  {"showStatusUpdates", row.showStatusUpdates},
                                  {"redraws", row.redraws},
                                  {"done", row.done},
                                  {"remark", row.remark.empty() ? Json() : Json(row.remark)}});
  }
  WriteJson(ioOutput, result);
}

} // namespace voxbench
