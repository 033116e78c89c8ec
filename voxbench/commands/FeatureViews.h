// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"
#include "voxbench/report/ViewsReport.h"

#include <optional>

namespace voxbench
{

//! Where a feature is visible, as its visibility adaptor tells; none for a feature without one.
std::optional<ViewState> ViewStateOf(voxhost::Feature& iFeature);

//! What is to change; what is not set stays.
struct ViewChange
{
  std::optional<bool> inGraph;
  std::optional<bool> in3D;
  std::optional<bool> noShow;
};

//! Changes visibility through the feature's adaptor, and notes what the adaptor asked of the document's views.
ViewRow ChangeViews(LoadedModel& ioModel, voxhost::Feature& ioFeature, const ViewChange& iChange);

} // namespace voxbench
