// SPDX-License-Identifier: MIT
// Visibility: the fathers that the host names, and a view manager of the test.
#include "AnalysisInterfaces/VOXISamViewManager.h"
#include "ObjectModeler/VOXIRedrawEvent.h"
#include "VOXEAnalysisVisibility.h"
#include "tests/anyhost/AnyHost.h"

namespace anyhost
{
namespace
{

std::vector<std::string> g_views;

class ViewManager final : public VOXISamViewManager
{
public:
  void Show(VOXBaseUnknown* iObject, int iView) override
  {
    g_views.push_back(NameOf(iObject) + (iView == 2 ? " in the graph" : " in 3D"));
  }
  void UpdateShowStatus(int) override { g_views.push_back("show status of " + NameOf(this)); }
};

class RedrawEvent final : public VOXIRedrawEvent
{
public:
  void ReservedRedrawEvent1() override { g_views.push_back("reserved"); }
  void ReservedRedrawEvent2() override { g_views.push_back("reserved"); }
  void ReservedRedrawEvent3() override { g_views.push_back("reserved"); }
  void ReservedRedrawEvent4() override { g_views.push_back("reserved"); }
  void ReservedRedrawEvent5() override { g_views.push_back("reserved"); }
  void ReservedRedrawEvent6() override { g_views.push_back("reserved"); }
  void ReservedRedrawEvent7() override { g_views.push_back("reserved"); }
  void RequestRedraw() override { g_views.push_back("redraw"); }
};

using Calls = std::vector<std::string>;

class VisibilityOnAnyHost : public AnyHost
{
protected:
  VisibilityOnAnyHost()
  {
    for (const char* const type : {"AnalysisLoad", "GroupSet", "InputUnderTest"})
    {
      VOXExtendLateType<VOXISamVisibility, VOXEAnalysisVisibility>(type);
      VOXExtendLateType<VOXISamViewManager, ViewManager>(type);
      VOXExtendLateType<VOXIRedrawEvent, RedrawEvent>(type);
    }
    g_views.clear();
  }

  // Shows what was hidden: the calls that it takes.
  static Calls SwitchOn(const VOXISamVisibility_var& iVisibility)
  {
    iVisibility->SetVisibilityProperty(VOXSamVisibleNowhere);
    g_views.clear();
    iVisibility->SetVisibilityProperty(VOXSamVisibleInBoth);
    return g_views;
  }
};

TEST_F(VisibilityOnAnyHost, AnEntityIsShownUnderItsSet)
{
  VOXBaseUnknown* const load = New("AnalysisLoad", "load");
  Hold(New("LoadSet", "loads"), load);
  const VOXISamVisibility_var spVisibility(load);
  EXPECT_EQ(SwitchOn(spVisibility), (Calls{"loads in the graph", "loads in 3D", "redraw"}));
  EXPECT_EQ(spVisibility->GetVisibilityProperty(), VOXSamVisibleInBoth);
}

TEST_F(VisibilityOnAnyHost, ASetIsShownUnderWhatHoldsIt)
{
  VOXBaseUnknown* const groups = New("GroupSet", "groups");
  Hold(New("ModelUnderTest", "model"), groups);
  EXPECT_EQ(SwitchOn(VOXISamVisibility_var(groups)), (Calls{"model in the graph", "model in 3D", "redraw"}));
}

TEST_F(VisibilityOnAnyHost, AnyOtherFeatureIsShownUnderItsFather)
{
  VOXBaseUnknown* const input = New("InputUnderTest", "input");
  Hold(New("Mass", "mass"), input);
  EXPECT_EQ(SwitchOn(VOXISamVisibility_var(input)), (Calls{"mass in the graph", "mass in 3D", "redraw"}));
}

TEST_F(VisibilityOnAnyHost, WhatStandsNowhereIsNotHidden)
{
  const VOXISamVisibility_var spVisibility(New("AnalysisLoad", "alone"));
  spVisibility->SetVisibilityProperty(VOXSamVisibleNowhere);
  EXPECT_EQ(spVisibility->GetVisibilityProperty(), VOXSamVisibleInBoth);
  EXPECT_EQ(g_views, Calls{});
}

TEST_F(VisibilityOnAnyHost, TheNoShowStatusIsToldToTheViewManagerOnce)
{
  const VOXISamVisibility_var spVisibility(New("AnalysisLoad", "load"));
  spVisibility->SetShowStatus(1);
  spVisibility->SetShowStatus(1);
  EXPECT_EQ(g_views, Calls{"show status of load"});
  EXPECT_EQ(spVisibility->IsNoShow(), 1);
}

} // namespace
} // namespace anyhost
