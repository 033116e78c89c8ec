// SPDX-License-Identifier: MIT
// Does a feature lack a component of its start-up, and adding it: NeedToUpgrade, Upgrade.
#include "VOXEAnalysisUpgrade.h"

#include "tests/adaptors/UpgradeWorld.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Feature;

namespace
{

class VOXEAnalysisUpgradeTest : public InBalance<UpgradeWorld>
{
protected:
  static bool Needs(const Feature& iFeature) { return UpgradeWorld::Upgrade(iFeature)->NeedToUpgrade(); }
  static HRESULT Upgrade(const Feature& iFeature) { return UpgradeWorld::Upgrade(iFeature)->Upgrade(); }
  static Names Sons(const Feature& iFeature) { return UpgradeWorld::Names(iFeature); }
};

constexpr char kAnswered0[] = "VOXEAnalysisUpgrade::NeedToUpgrade 0\n";
constexpr char kAnswered1[] = "VOXEAnalysisUpgrade::NeedToUpgrade 1\n";
constexpr char kAdding[] = "VOXEAnalysisUpgrade::Upgrade Adding";

} // namespace

TEST_F(VOXEAnalysisUpgradeTest, AFeatureAsItsStartUpMakesItNeedsNoUpgrade)
{
  EXPECT_FALSE(Needs(*world->document.New("LoadOfAB", "load")));
}

TEST_F(VOXEAnalysisUpgradeTest, AMissingComponentNeedsAnUpgrade)
{
  Feature& load = world->Old("LoadOfAB");
  world->Put(load, "A.1");
  EXPECT_TRUE(Needs(load));
}

TEST_F(VOXEAnalysisUpgradeTest, OnlyTheMissingComponentIsAddedUnderItsNameAndTraced)
{
  Feature& load = world->Old("LoadOfAB");
  world->Put(load, "A.1");
  const UpgradeMessages messages;
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), (Names{"A.1", "B"}));
  EXPECT_EQ(UpgradeMessages::Text(), std::string(kAdding) + "B\n");
  EXPECT_FALSE(Needs(load));
}

TEST_F(VOXEAnalysisUpgradeTest, WhatIsAddedIsAnUpToDateInstanceOfTheStartUpsComponentInTheFeaturesContainer)
{
  voxhost::Container* const container = world->document.NewContainer("Elsewhere");
  Feature& load = *world->document.New("LoadOfAB", "load", container, voxhost::Components::kNone);
  EXPECT_EQ(Upgrade(load), S_OK);
  const auto made = load.Features("SonsList");
  const auto prototypes = load.StartUp()->Features("SonsList");
  ASSERT_EQ(made.size(), 2u);
  for (const std::size_t i : {0u, 1u})
  {
    EXPECT_EQ(made[i]->StartUp(), prototypes[i]);
    EXPECT_EQ(made[i]->OwningContainer(), container);
    EXPECT_EQ(made[i]->Father(), &load);
    EXPECT_FALSE(made[i]->IsOutOfDate());
    EXPECT_EQ(Bench::References(UpgradeWorld::Face(*made[i])), 0) << "the document's reference alone is left";
  }
}

TEST_F(VOXEAnalysisUpgradeTest, AFeatureThatNeverHadComponentsLacksThemAll)
{
  Feature& load = world->Old("LoadOfAB");
  EXPECT_TRUE(Needs(load));
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), (Names{"A", "B"}));
}

TEST_F(VOXEAnalysisUpgradeTest, AFeatureWithAnEmptyListLacksThemAll)
{
  Feature& load = world->Old("LoadOfAB");
  load.Reset(load.IndexOf("SonsList"));
  EXPECT_TRUE(Needs(load));
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), (Names{"A", "B"}));
}

TEST_F(VOXEAnalysisUpgradeTest, AStartUpWithoutListAsksForNothing)
{
  Feature& load = world->Old("UpgradedLoad");
  world->Put(load, "X");
  const UpgradeMessages messages;
  EXPECT_FALSE(Needs(load));
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), Names{"X"});
  EXPECT_EQ(UpgradeMessages::Text(), kAnswered0);
}

TEST_F(VOXEAnalysisUpgradeTest, AStartUpWithAnEmptyListAsksForNothing)
{
  Feature& load = world->Old("LoadOfAB");
  load.StartUp()->Reset(load.IndexOf("SonsList"));
  EXPECT_FALSE(Needs(load));
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), Names{});
}

TEST_F(VOXEAnalysisUpgradeTest, WhatTheFeatureHasBeyondItsStartUpIsLeftAlone)
{
  Feature& load = world->Old("LoadOfAB");
  for (const char* const name : {"Z", "B.3", "A"})
    world->Put(load, name);
  EXPECT_FALSE(Needs(load));
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), (Names{"Z", "B.3", "A"}));
}

TEST_F(VOXEAnalysisUpgradeTest, TheAnswerIsTracedWithItsNumberAtLevelTwo)
{
  const UpgradeMessages messages;
  Tra_SAMTraceDebug.SetOutputLevel(0);
  Needs(*world->document.New("LoadOfAB", "whole"));
  Needs(world->Old("LoadOfAB"));
  EXPECT_EQ(UpgradeMessages::Text(), std::string(kAnswered0) + kAnswered1);
  EXPECT_EQ(VOXTraceAccess::Level(Tra_SAMTraceDebug), 2);
}

TEST_F(VOXEAnalysisUpgradeTest, EachPutOfATraceIsPrecededByItsLevel)
{
  Feature& load = world->Old("LoadOfAB");
  world->Put(load, "A");
  UpgradeWorld::Upgrade(load);
  const TracesNoted traces;
  const CallLog log;
  Upgrade(load);
  Needs(load);
  EXPECT_EQ(log.Only({"SAMTrace"}),
            (Calls{"SAMTraceDebug::SetOutputLevel(2)", std::string("SAMTraceDebug::TraPut(") + kAdding + ")",
                   "SAMTraceDebug::SetOutputLevel(2)", "SAMTraceDebug::TraPutLN(B)", "SAMTraceDebug::SetOutputLevel(2)",
                   "SAMTraceDebug::TraPutLN(VOXEAnalysisUpgrade::NeedToUpgrade)"}));
}

TEST_F(VOXEAnalysisUpgradeTest, MessagesGoToAnInactiveChannelAsWellAndNowhere)
{
  VOXTraceAccess::Clear(Tra_SAMTraceDebug);
  ASSERT_FALSE(Tra_SAMTraceDebug.IsActive());
  Needs(world->Old("LoadOfAB"));
  EXPECT_EQ(VOXTraceAccess::Text(Tra_SAMTraceDebug), "");
}

TEST_F(VOXEAnalysisUpgradeTest, TwoComponentsOfOneNameAreBothAddedWhenTheNameIsMissing)
{
  Feature& load = world->Old("LoadOfTwins");
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), (Names{"A", "A"})) << "what the pass adds is not seen by the pass";
  EXPECT_EQ(load.Features("SonsList")[1]->StartUp(), load.StartUp()->Features("SonsList")[1]);
}

TEST_F(VOXEAnalysisUpgradeTest, OneComponentStandsForTwoOfItsNameOnTheStartUp)
{
  Feature& load = world->Old("LoadOfTwins");
  world->Put(load, "A");
  EXPECT_FALSE(Needs(load));
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), Names{"A"});
}

TEST_F(VOXEAnalysisUpgradeTest, WhatIsNoBasicComponentOnTheStartUpIsSkipped)
{
  Feature& load = world->Old("LoadOfMixed");
  EXPECT_TRUE(Needs(load)) << "the scan goes on to A";
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), Names{"A"});
  EXPECT_FALSE(Needs(load));
}

TEST_F(VOXEAnalysisUpgradeTest, WhatIsNoBasicComponentOnTheFeatureIsSkipped)
{
  Feature& load = world->Old("LoadOfMixed");
  world->Put(load, "A", "SonsList", "AnalysisSensor");
  EXPECT_TRUE(Needs(load));
  EXPECT_EQ(Upgrade(load), S_OK);
  EXPECT_EQ(Sons(load), (Names{"A", "A"}));
}

TEST_F(VOXEAnalysisUpgradeTest, TheFirstMissingComponentEndsTheScan)
{
  Feature& load = world->Old("LoadOfTwins");
  load.Reset(load.IndexOf("SonsList"));
  const CallLog log;
  EXPECT_TRUE(Needs(load));
  EXPECT_EQ(log.Count("VOXISamBasicComponent::GetName"), 1);
}

TEST_F(VOXEAnalysisUpgradeTest, AnUpgradeThatCanMakeNothingStillSucceedsAndIsTraced)
{
  Feature& load = world->Old("LoadOfAB");
  const UpgradeMessages messages;
  Faults::FailOperation("VOXISpecObject::Instantiate", 1, true);
  EXPECT_EQ(Upgrade(load), S_OK);
  Faults::Disarm();
  EXPECT_EQ(Sons(load), Names{});
  EXPECT_EQ(UpgradeMessages::Text(), std::string(kAdding) + "A\n" + kAdding + "B\n");
  EXPECT_TRUE(Needs(load));
}

TEST_F(VOXEAnalysisUpgradeTest, AnUpdateThatFailsChangesNothingElse)
{
  Feature& load = world->Old("LoadOfAB");
  Faults::FailOperation("VOXISpecObject::Update", 1, true);
  EXPECT_EQ(Upgrade(load), S_OK);
  Faults::Disarm();
  EXPECT_EQ(Sons(load), (Names{"A", "B"}));
  EXPECT_TRUE(load.Features("SonsList")[0]->IsOutOfDate());
}

TEST_F(VOXEAnalysisUpgradeTest, AWriteThatFailsLeavesTheComponentOutAndInitialisesItAllTheSame)
{
  Feature& load = world->Old("LoadOfAB");
  Faults::FailOperation("VOXSpecPubServices::UpgradeSpecObjectAttribute", 1, false);
  const CallLog log;
  EXPECT_EQ(Upgrade(load), S_OK);
  Faults::Disarm();
  EXPECT_EQ(Sons(load), Names{"B"});
  EXPECT_EQ(log.Count("VOXISamBasicComponent::InitializeAfterCreation"), 2);
}

TEST_F(VOXEAnalysisUpgradeTest, WhatIsNoFeatureNeedsNoUpgradeAndGetsNone)
{
  Bench bench;
  VOXBaseUnknown* const thing = bench.Component<UpgradeTie>();
  VOXISamFeatureUpgrade* const upgrade = FaceOf<VOXISamFeatureUpgrade>(thing);
  const UpgradeMessages messages;
  const TracesNoted traces;
  const CallLog log;
  EXPECT_FALSE(upgrade->NeedToUpgrade());
  EXPECT_EQ(upgrade->Upgrade(), S_FALSE);
  EXPECT_EQ(UpgradeMessages::Text(), "");
  EXPECT_EQ(log.All(),
            (Calls{"own query", "VOXBaseUnknown::QueryInterface", "own query", "VOXBaseUnknown::QueryInterface"}))
      << "nothing else is done";
}

TEST_F(VOXEAnalysisUpgradeTest, TheTwoOperationsStandAtTheirPlacesAndTheTieForwardsThem)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisUpgrade::NeedToUpgrade), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisUpgrade::Upgrade), 2);
  Feature& load = world->Old("LoadOfAB");
  const VOXEAnalysisUpgrade* const adaptor = &UpgradeWorld::Adaptor(load);
  EXPECT_TRUE(CallOwn<bool>(adaptor, 1));
  EXPECT_EQ(CallOwn<HRESULT>(adaptor, 2), S_OK);
  EXPECT_FALSE(CallOwn<bool>(adaptor, 1));
}

TEST_F(VOXEAnalysisUpgradeTest, AnObjectOfItsOwnIsNoFeature)
{
  VOXEAnalysisUpgrade* const adaptor = new VOXEAnalysisUpgrade;
  EXPECT_FALSE(adaptor->NeedToUpgrade());
  EXPECT_EQ(adaptor->Upgrade(), S_FALSE);
  EXPECT_EQ(adaptor->Release(), 0u);
}
