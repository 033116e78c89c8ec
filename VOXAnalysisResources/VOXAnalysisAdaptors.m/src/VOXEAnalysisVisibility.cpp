// SPDX-License-Identifier: MIT
#include "VOXEAnalysisVisibility.h"

#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamViewManager.h"
#include "Counted.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "ObjectModeler/VOXIRedrawEvent.h"

static_assert(sizeof(VOXEAnalysisVisibility) == sizeof(VOXBaseUnknown) + 8,
              "deriving classes are laid out on this size");

namespace
{

constexpr int kShowInGraph = 2;
constexpr int kShowIn3D = 1;

bool SwitchesOn(VOXSamVisibility iBit, VOXSamVisibility iOld, VOXSamVisibility iNew)
{
  return (iOld & iBit) == 0 && (iNew & iBit) != 0;
}

// A new list that holds the father's implementation object; caller deletes.
VOXListValVOXBaseUnknown_var* NewListOf(VOXBaseUnknown* iFather)
{
  auto* const fathers = new VOXListValVOXBaseUnknown_var;
  fathers->Append(VOXBaseUnknown_var(iFather->GetImpl(0)));
  return fathers;
}

VOXListValVOXBaseUnknown_var* FathersOfEntity(const VOXISamAnalysisEntity_var& iEntity)
{
  VOXListValVOXBaseUnknown_var* fathers = nullptr;
  if (!iEntity->IsShownUnderItsSet())
  {
    iEntity->ListShownUnder(fathers);
    return fathers;
  }
  VOXBaseUnknown_var spSet;
  iEntity->GetAnalysisSet(spSet);
  return !spSet ? nullptr : NewListOf(spSet);
}

} // namespace

VOXEAnalysisVisibility::VOXEAnalysisVisibility() : _Visibility(VOXSamVisibleInBoth), _NoShow(0) {}

VOXEAnalysisVisibility::~VOXEAnalysisVisibility() = default;

VOXEAnalysisVisibility::VOXEAnalysisVisibility(const VOXEAnalysisVisibility& iOther) = default;

VOXEAnalysisVisibility& VOXEAnalysisVisibility::operator=(const VOXEAnalysisVisibility& iOther) = default;

void VOXEAnalysisVisibility::SetVisibilityProperty(VOXSamVisibility iVisibility)
{
  if (_Visibility == iVisibility)
    return;
  VOXListValVOXBaseUnknown_var* const fathers = GetFatherForGraphAnd3D();
  if (fathers == nullptr)
    return;
  const VOXISamViewManager_var spViewManager(GetImpl(0));
  if (!spViewManager)
    return; // Kept: this path leaves the father list undeleted

  const bool graphSwitchedOn = SwitchesOn(VOXSamVisibleInGraph, _Visibility, iVisibility);
  const bool spaceSwitchedOn = SwitchesOn(VOXSamVisibleIn3D, _Visibility, iVisibility);
  _Visibility = iVisibility;
  for (int i = 1; i <= fathers->Size(); ++i) // the views may change the list
  {
    const VOXBaseUnknown_var spFather((*fathers)[i]);
    if (!spFather)
      continue;
    if (graphSwitchedOn)
      spViewManager->Show(spFather, kShowInGraph);
    if (spaceSwitchedOn)
      spViewManager->Show(spFather, kShowIn3D);
  }
  delete fathers;

  const auto piRedraw = voxframe::QueryFor<VOXIRedrawEvent>(GetImpl(0));
  if (piRedraw)
    piRedraw->RequestRedraw();
}

VOXSamVisibility VOXEAnalysisVisibility::GetVisibilityProperty()
{
  return _Visibility;
}

unsigned char VOXEAnalysisVisibility::IsVisibleInGraph()
{
  return (_Visibility & VOXSamVisibleInGraph) != 0 ? 1 : 0;
}

unsigned char VOXEAnalysisVisibility::IsVisibleIn3D()
{
  return (_Visibility & VOXSamVisibleIn3D) != 0 ? 1 : 0;
}

unsigned char VOXEAnalysisVisibility::IsPersistent() const
{
  return 0;
}

void VOXEAnalysisVisibility::SetShowStatus(unsigned char iNoShow)
{
  if (_NoShow == iNoShow)
    return;
  _NoShow = iNoShow;
  const auto piViewManager = voxframe::QueryFor<VOXISamViewManager>(this);
  if (piViewManager)
    piViewManager->UpdateShowStatus(0);
}

unsigned char VOXEAnalysisVisibility::IsNoShow()
{
  return _NoShow;
}

VOXListValVOXBaseUnknown_var* VOXEAnalysisVisibility::GetFatherForGraphAnd3D()
{
  const VOXISamAnalysisEntity_var spEntity(GetImpl(0));
  if (!!spEntity)
    return FathersOfEntity(spEntity);

  VOXListValVOXBaseUnknown_var* fathers = nullptr;
  const VOXISamAnalysisSet_var spSet(GetImpl(0));
  if (!!spSet)
    spSet->ListShownUnder(fathers);
  if (fathers != nullptr)
    return fathers;

  const VOXISpecObject_var spFeature(GetImpl(0));
  if (!spFeature)
    return nullptr;
  const voxframe::Counted<VOXBaseUnknown> piFather(spFeature->GetFatherObject());
  return piFather ? NewListOf(piFather.Get()) : nullptr;
}
