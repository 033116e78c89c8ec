// SPDX-License-Identifier: MIT
#include "voxbench/commands/FeatureViews.h"
#include "AnalysisInterfaces/VOXISamVisibility.h"

namespace voxbench
{
namespace
{

using voxhost::Views;

VOXSamVisibility Changed(VOXSamVisibility iOld, const ViewChange& iChange)
{
  int visibility = iOld;
  const auto put = [&visibility](VOXSamVisibility iBit, const std::optional<bool>& iOn)
  {
    if (iOn)
      visibility = *iOn ? visibility | iBit : visibility & ~iBit;
  };
  put(VOXSamVisibleInGraph, iChange.inGraph);
  put(VOXSamVisibleIn3D, iChange.in3D);
  return static_cast<VOXSamVisibility>(visibility);
}

ViewState StateOf(VOXISamVisibility& iVisibility)
{
  return {iVisibility.IsVisibleInGraph() != 0, iVisibility.IsVisibleIn3D() != 0, iVisibility.IsNoShow() != 0};
}

void NoteCalls(const Views& iViews, ViewRow& ioRow)
{
  for (const Views::ShowCall& call : iViews.Calls())
    ioRow.shown.push_back(
        {LoadedModel::PathOf(*voxhost::Feature::Of(call.object)), call.view == Views::kInGraph ? "graph" : "3D"});
  ioRow.showStatusUpdates = iViews.ShowStatusCalls();
  ioRow.redraws = iViews.RedrawRequests();
}

} // namespace

std::optional<ViewState> ViewStateOf(voxhost::Feature& iFeature)
{
  const VOXISamVisibility_var spVisibility(static_cast<VOXBaseUnknown*>(&iFeature));
  return !spVisibility ? std::nullopt : std::optional(StateOf(*spVisibility));
}

ViewRow ChangeViews(LoadedModel& ioModel, voxhost::Feature& ioFeature, const ViewChange& iChange)
{
  ViewRow row;
  row.feature = LoadedModel::PathOf(ioFeature);
  const VOXISamVisibility_var spVisibility(static_cast<VOXBaseUnknown*>(&ioFeature));
  if (!spVisibility)
  {
    row.remark = "the feature has no visibility of its own";
    return row;
  }
  Views& views = ioModel.Document().ShownViews();
  views.Clear();
  views.RecordCalls(true);
  row.before = StateOf(*spVisibility);
  const VOXSamVisibility wanted = Changed(spVisibility->GetVisibilityProperty(), iChange);
  spVisibility->SetVisibilityProperty(wanted);
  if (iChange.noShow)
    spVisibility->SetShowStatus(*iChange.noShow ? 1 : 0);
  views.RecordCalls(false);

  row.after = StateOf(*spVisibility);
  row.done = spVisibility->GetVisibilityProperty() == wanted;
  if (!row.done)
    row.remark = "the feature has no father that it could be shown under, and stays as it is";
  NoteCalls(views, row);
  return row;
}

} // namespace voxbench
