// SPDX-License-Identifier: MIT
// What the placement checks make of rules data that answer otherwise than those of the reference host. The questions are
// defined here: a program's own definitions come before those of the host's library.
#include "VOXEAnalysisEntityInit.h"
#include "VOXEAnalysisSetInit.h"

#include "host/Instruments/Ledger.h"
#include "tests/adaptors/PlacementWorld.h"

#include <gtest/gtest.h>
#include <optional>

using namespace voxtest;
using voxhost::Ledger;

namespace
{

constexpr int kChild = 100;
constexpr int kHolder = 200;

//! What the rules answer, beside a child in a holder that takes it.
struct RulesScript
{
  HRESULT numberResult = S_OK;
  HRESULT categoryResult = S_OK;
  HRESULT childrenResult = S_OK;
  std::optional<std::vector<int>> children = std::vector<int>{kChild}; //!< none: a null list
  int count = 1;

  Calls calls; //!< what was asked, and what the answer is written over
};

RulesScript g_rules;

} // namespace

HRESULT VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber(const char* iName, int& oNumber) const
{
  const std::string name(iName);
  g_rules.calls.push_back("number of " + name + " over " + std::to_string(oNumber));
  oNumber = name == "CHILD" ? kChild : kHolder;
  return g_rules.numberResult;
}

HRESULT VOXAnalysisExplicitRulesData::GetPhysicalTypeCategory(int iType, VOXSamValue& oCategory) const
{
  g_rules.calls.push_back("category of " + std::to_string(iType) + " over " + std::to_string(oCategory));
  return g_rules.categoryResult;
}

HRESULT VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren(int iType, int& oCount, int*& oTypes) const
{
  g_rules.calls.push_back("children of " + std::to_string(iType) + " over " + std::to_string(oCount) +
                          (oTypes == nullptr ? " and null" : " and a list"));
  oCount = g_rules.count;
  if (g_rules.children)
  {
    oTypes = Ledger::HandOut(new int[g_rules.children->size()]);
    std::copy(g_rules.children->begin(), g_rules.children->end(), oTypes);
  }
  return g_rules.childrenResult;
}

namespace
{

constexpr auto kUntouched = static_cast<SAM_Quality>(77);

class OtherRules : public testing::Test
{
protected:
  OtherRules()
  {
    g_rules = RulesScript{};
    Ledger::TurnOn();
  }
  ~OtherRules() override
  {
    EXPECT_EQ(Ledger::Read().arraysOut, _Before.arraysOut);
    Ledger::TurnOff();
  }

  //! Whether an entity may go into a set.
  static int EntityMayGo()
  {
    g_rules.calls.clear();
    const PlacementWorld<Face<VOXEAnalysisEntityInit, VOXISamAnalysisEntityInit>> world;
    return world.Tested()->CheckAnalysisSet(world.Set());
  }

  //! Whether a group set may go under a parent; its quality is worked out whatever the answer.
  static int SetMayGo()
  {
    g_rules.calls.clear();
    const PlacementWorld<Face<VOXEAnalysisSetInit, VOXISamAnalysisSetInit>> world;
    world.Spec().type = "GroupSet";
    SAM_Quality quality = kUntouched;
    const int answer = world.Tested()->CheckAnalysisParent(world.holder, quality);
    EXPECT_EQ(quality, SAM_QualityGroup);
    return answer;
  }

private:
  const Ledger::Balance _Before = Ledger::Read();
};

} // namespace

TEST_F(OtherRules, WhatIsAskedForIsPreset)
{
  const std::string none = std::to_string(VOXSamPhysicalTypeNone);
  const Calls expected{"number of CHILD over " + none, "number of HOLDER over " + none, "category of 200 over 22",
                       "children of 200 over 0 and null"};
  EXPECT_EQ(EntityMayGo(), 1);
  EXPECT_EQ(g_rules.calls, expected);
  EXPECT_EQ(SetMayGo(), 1);
  EXPECT_EQ(g_rules.calls, expected);
}

TEST_F(OtherRules, AListThatComesWithAFailureIsFreedAndTakesNothing)
{
  g_rules.childrenResult = E_FAIL;
  EXPECT_EQ(EntityMayGo(), 0);
  EXPECT_EQ(SetMayGo(), 0);
}

TEST_F(OtherRules, ACountWithoutAListTakesNothing)
{
  g_rules.children.reset();
  EXPECT_EQ(EntityMayGo(), 0);
  EXPECT_EQ(SetMayGo(), 0);
}

TEST_F(OtherRules, EntriesBehindTheCountAreNotLookedAt)
{
  g_rules.children = {kHolder, kChild};
  EXPECT_EQ(EntityMayGo(), 0);
  EXPECT_EQ(SetMayGo(), 0);
  g_rules.count = 0;
  g_rules.children = {kChild};
  EXPECT_EQ(EntityMayGo(), 0);
  EXPECT_EQ(SetMayGo(), 0);
}

TEST_F(OtherRules, NumbersAreTakenWhateverTheResult)
{
  g_rules.numberResult = E_FAIL;
  EXPECT_EQ(EntityMayGo(), 1);
  EXPECT_EQ(SetMayGo(), 1);
}

TEST_F(OtherRules, AnotherSuccessThanOkIsASuccess)
{
  g_rules.childrenResult = S_FALSE;
  EXPECT_EQ(EntityMayGo(), 1);
  EXPECT_EQ(SetMayGo(), 1);
}
