// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <string>
#include <vector>

namespace voxbench
{

//! Where a feature is visible, and whether it is put out of sight for the time being.
struct ViewState
{
  bool inGraph = false;
  bool in3D = false;
  bool noShow = false;
  bool operator==(const ViewState&) const = default;
};

//! A father that a view was asked to show.
struct ShownFather
{
  std::string father; //!< its path
  std::string view;   //!< "graph" or "3D"
};

//! What showing or hiding did to one feature.
struct ViewRow
{
  std::string feature;
  ViewState before;
  ViewState after;
  std::vector<ShownFather> shown;
  int showStatusUpdates = 0;
  int redraws = 0;
  bool done = false; //!< the feature is now as it was asked for
  std::string remark;
};

//! "graph 3D", "graph", "3D" or "nowhere", and "no show" behind them.
std::string WordsFor(const ViewState& iState);

//! A line per feature; lines below tell what was asked of the views.
void PrintViews(Output& ioOutput, const std::vector<ViewRow>& iRows);

//! {"features": [{"feature", "before": {...}, "after": {...}, "shown": [...], ...}]}
void WriteViewsJson(Output& ioOutput, const std::vector<ViewRow>& iRows);

} // namespace voxbench
