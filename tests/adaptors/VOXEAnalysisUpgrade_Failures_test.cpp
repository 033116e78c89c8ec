// SPDX-License-Identifier: MIT
// Assertions, order of calls and releases, and every failing call of NeedToUpgrade, Upgrade and their services.
#include "VOXEAnalysisUpgrade.h"

#include "tests/adaptors/UpgradeWorld.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Feature;

namespace
{

using LabelledSpecObject = Labelled<ScriptedSpecObject>;
using LabelledAccess = Labelled<ScriptedFeatureAccess>;
using LabelledKey = Labelled<ScriptedFeatureKey>;
using LabelledComponent = Labelled<ScriptedBasicComponent>;
using LabelledContainer = Labelled<ScriptedFeatureContainer>;

// A feature and its start-up, both scripted whole: the start-up holds A, the feature holds Z.
class ScriptedWorld
{
public:
  ScriptedWorld()
      : feature(Named<UpgradeTie, LabelledSpecObject, LabelledAccess>("instance")),
        startUp(Named<LabelledSpecObject, LabelledAccess>("start-up")),
        container(Named<LabelledContainer>("container")),
        instanceKey(Named<LabelledKey>("instance key")),
        startUpKey(Named<LabelledKey>("start-up key")),
        startUpSon(Son("start-up son", "A")),
        instanceSon(Son("instance son", "Z")),
        madeSon(Son("new son", "A"))
  {
    Spec().startUp = FaceOf<VOXISpecObject>(startUp);
    Spec().container = FaceOf<VOXIContainer>(container);
    Give(feature, instanceKey, instanceSon);
    Give(startUp, startUpKey, startUpSon);
    LabelledSpecObject::ScriptOf(startUpSon).instance = FaceOf<VOXISpecObject>(madeSon);
  }

  SpecObjectScript& Spec() { return LabelledSpecObject::ScriptOf(feature); }
  VOXISamFeatureUpgrade* Upgrade() const { return FaceOf<VOXISamFeatureUpgrade>(feature); }

private:
  template <class... Faces>
  VOXBaseUnknown* Named(const char* iLabel)
  {
    VOXBaseUnknown* const made = _Bench.Component<Faces...>();
    Labels::Of(made) = iLabel;
    return made;
  }

  VOXBaseUnknown* Son(const char* iLabel, const char* iName)
  {
    VOXBaseUnknown* const made = Named<LabelledSpecObject, LabelledComponent>(iLabel);
    LabelledComponent::ScriptOf(made).name = iName;
    return made;
  }

  static void Give(VOXBaseUnknown* iOwner, VOXBaseUnknown* iKey, VOXBaseUnknown* iSon)
  {
    LabelledKey::ScriptOf(iKey).name = "SonsList";
    LabelledAccess::ScriptOf(iOwner).keys["SonsList"] = FaceOf<VOXISpecAttrKey>(iKey);
    LabelledAccess::ScriptOf(iOwner).lists["SonsList"] = {FaceOf<VOXISamBasicComponent>(iSon)};
  }

  Bench _Bench;

public:
  VOXBaseUnknown* feature;
  VOXBaseUnknown* startUp;
  VOXBaseUnknown* container;
  VOXBaseUnknown* instanceKey;
  VOXBaseUnknown* startUpKey;
  VOXBaseUnknown* startUpSon;
  VOXBaseUnknown* instanceSon;
  VOXBaseUnknown* madeSon;
};

class UpgradeOrder : public InBalance<ScriptedWorld>
{
protected:
  UpgradeOrder() : upgrade(world->Upgrade()) {}

  static Calls Last(const Calls& iCalls, std::size_t iCount)
  {
    return {iCalls.end() - static_cast<std::ptrdiff_t>(std::min(iCount, iCalls.size())), iCalls.end()};
  }

  SpecObjectScript& Spec() { return world->Spec(); }

  VOXISamFeatureUpgrade* upgrade;
};

} // namespace

TEST_F(UpgradeOrder, BothSidesAreReadAsBasicComponentsTheStartUpFirst)
{
  const CallLog log;
  EXPECT_TRUE(upgrade->NeedToUpgrade());
  EXPECT_EQ(
      log.Without({"VOXBaseUnknown::"}),
      (Calls{"own query", "VOXISpecObject::GetStartUp", "own query", "VOXISpecAttrAccess::GetAttrKey(SonsList)",
             "VOXISpecAttrAccess::ListSpecObjects(SonsList, VOXISamBasicComponent)",
             "VOXISpecAttrAccess::GetAttrKey(SonsList)",
             "VOXISpecAttrAccess::ListSpecObjects(SonsList, VOXISamBasicComponent)", "VOXISamBasicComponent::GetName",
             "VOXISamBasicComponent::GetName", "VOXISpecObject::GetRelatedObject"}));
}

TEST_F(UpgradeOrder, AfterTheAnswerTheReferencesGoBackInTheirOrder)
{
  const CallLog log(CallLog::References::Recorded);
  upgrade->NeedToUpgrade();
  EXPECT_EQ(Last(log.Only({"Release"}), 7),
            (Calls{"Release VOXISpecAttrKey of instance key", "Release VOXISpecObject of instance",
                   "Release VOXISpecObject of start-up", "Release VOXISpecAttrAccess of instance",
                   "Release VOXISpecAttrAccess of start-up", "Release VOXISamBasicComponent of start-up son",
                   "Release VOXISamBasicComponent of instance son"}));
}

TEST_F(UpgradeOrder, TheStartUpsKeyGoesBackBeforeTheInstanceIsAskedForIts)
{
  const CallLog log(CallLog::References::Recorded);
  upgrade->NeedToUpgrade();
  const Calls calls = log.Only({"Release VOXISpecAttrKey", "VOXISpecAttrAccess::"});
  ASSERT_GE(calls.size(), 4u);
  EXPECT_EQ(calls[2], "Release VOXISpecAttrKey of start-up key");
  EXPECT_EQ(calls[3], "VOXISpecAttrAccess::GetAttrKey(SonsList)");
}

TEST_F(UpgradeOrder, TheAnswerIsTracedWhenAllIsGivenBack)
{
  const TracesNoted traces;
  const CallLog log(CallLog::References::Recorded);
  upgrade->NeedToUpgrade();
  EXPECT_EQ(Last(log.All(), 3),
            (Calls{"Release VOXISamBasicComponent of instance son", "SAMTraceDebug::SetOutputLevel(2)",
                   "SAMTraceDebug::TraPutLN(VOXEAnalysisUpgrade::NeedToUpgrade)"}));
}

TEST_F(UpgradeOrder, AnUpgradeAsksForTheContainerFirstAndEndsWithTheComponentsInitialisation)
{
  const TracesNoted traces;
  const CallLog log;
  EXPECT_EQ(upgrade->Upgrade(), S_OK);
  EXPECT_EQ(
      log.Without({"VOXBaseUnknown::"}),
      (Calls{"own query", "VOXISpecObject::GetContainer", "VOXISpecObject::GetStartUp", "own query",
             "VOXISpecAttrAccess::GetAttrKey(SonsList)",
             "VOXISpecAttrAccess::ListSpecObjects(SonsList, VOXISamBasicComponent)",
             "VOXISpecAttrAccess::GetAttrKey(SonsList)",
             "VOXISpecAttrAccess::ListSpecObjects(SonsList, VOXISamBasicComponent)", "VOXISamBasicComponent::GetName",
             "VOXISamBasicComponent::GetName", "VOXISpecObject::GetRelatedObject", "SAMTraceDebug::SetOutputLevel(2)",
             "SAMTraceDebug::TraPut(VOXEAnalysisUpgrade::Upgrade Adding)", "SAMTraceDebug::SetOutputLevel(2)",
             "SAMTraceDebug::TraPutLN(A)", "VOXISpecObject::Instantiate(A, null)",
             "VOXISpecObject::Update(whole document)", "VOXSpecPubServices::UpgradeSpecObjectAttribute",
             "VOXISamBasicComponent::InitializeAfterCreation"}));
}

TEST_F(UpgradeOrder, AfterAnUpgradeTheReferencesGoBackInTheSameOrderAndTheContainerLast)
{
  const CallLog log(CallLog::References::Recorded);
  upgrade->Upgrade();
  EXPECT_EQ(Last(log.Only({"Release"}), 8),
            (Calls{"Release VOXISpecAttrKey of instance key", "Release VOXISpecObject of instance",
                   "Release VOXISpecObject of start-up", "Release VOXISpecAttrAccess of instance",
                   "Release VOXISpecAttrAccess of start-up", "Release VOXISamBasicComponent of start-up son",
                   "Release VOXISamBasicComponent of instance son", "Release VOXIContainer of container"}));
}

TEST_F(UpgradeOrder, TheNewComponentsPointerGoesBackBeforeItIsWrittenAndTheHandleKeepsIt)
{
  const CallLog log(CallLog::References::Recorded);
  upgrade->Upgrade();
  const Calls calls =
      log.Only({"VOXISpecObject::Update", "VOXSpecPub", "VOXISamBasicComponent::Init", "Release VOXISpecObject of new",
                "Release VOXISamBasicComponent of new", "AddRef VOXISpecObject of new"});
  EXPECT_EQ(calls, (Calls{"AddRef VOXISpecObject of new son", "VOXISpecObject::Update(whole document)",
                          "Release VOXISpecObject of new son", "VOXSpecPubServices::UpgradeSpecObjectAttribute",
                          "VOXISamBasicComponent::InitializeAfterCreation", "Release VOXISpecObject of new son",
                          "Release VOXISamBasicComponent of new son"}));
}

TEST_F(UpgradeOrder, AComponentOfTheStartUpThatIsNoFeatureIsNotAddedNorTraced)
{
  Bench bench;
  VOXBaseUnknown* const bare = bench.Component<ScriptedBasicComponent>();
  ScriptedBasicComponent::ScriptOf(bare).name = "C";
  LabelledAccess::ScriptOf(world->startUp).lists["SonsList"] = {bare};
  const TracesNoted traces;
  EXPECT_TRUE(upgrade->NeedToUpgrade()) << "it is missing, though";
  const CallLog log;
  EXPECT_EQ(upgrade->Upgrade(), S_OK);
  EXPECT_EQ(log.Only({"SAMTrace", "VOXISpecObject::Instantiate", "VOXSpecPub"}), Calls{});
}

TEST_F(UpgradeOrder, AfterAComponentOfTheStartUpThatIsNoFeatureTheRestIsStillAdded)
{
  Bench bench;
  VOXBaseUnknown* const bare = bench.Component<ScriptedBasicComponent>();
  ScriptedBasicComponent::ScriptOf(bare).name = "C";
  LabelledAccess::ScriptOf(world->startUp).lists["SonsList"] = {bare, FaceOf<VOXISamBasicComponent>(world->startUpSon)};
  const CallLog log;
  EXPECT_EQ(upgrade->Upgrade(), S_OK);
  EXPECT_EQ(log.Only({"VOXISpecObject::Instantiate"}), Calls{"VOXISpecObject::Instantiate(A, null)"});
}

TEST_F(UpgradeOrder, ANewObjectThatIsNoBasicComponentIsUpdatedAndThenLeft)
{
  Bench bench;
  VOXBaseUnknown* const plain = bench.Component<ScriptedSpecObject>();
  LabelledSpecObject::ScriptOf(world->startUpSon).instance = FaceOf<VOXISpecObject>(plain);
  const CallLog log;
  EXPECT_EQ(upgrade->Upgrade(), S_OK);
  EXPECT_EQ(log.Only({"VOXISpecObject::Update", "VOXSpecPub", "VOXISamBasicComponent::Init"}),
            Calls{"VOXISpecObject::Update(whole document)"});
  EXPECT_EQ(Bench::References(plain), 0);
}

TEST_F(UpgradeOrder, WhatCannotBeMissingIsAsserted)
{
  const auto fatalText = [this](bool iUpgrade)
  {
    const voxhost::CheckReport fatal = FatalErrorOf(
        [&] { iUpgrade ? static_cast<void>(upgrade->Upgrade()) : static_cast<void>(upgrade->NeedToUpgrade()); });
    if (!fatal.text.empty())
    {
      EXPECT_EQ(fatal.file, SourceOf("VOXEAnalysisUpgrade"));
      EXPECT_GT(fatal.line, 0);
    }
    return fatal.text;
  };
  const auto bothSay = [&](const std::string& iText)
  {
    EXPECT_EQ(fatalText(false), iText);
    EXPECT_EQ(fatalText(true), iText);
  };

  LabelledAccess::ScriptOf(world->feature).keys["SonsList"] = nullptr;
  bothSay("AssertionFailed:piKey");
  LabelledAccess::ScriptOf(world->startUp).keys["SonsList"] = nullptr;
  LabelledAccess::ScriptOf(world->feature).keys["SonsList"] = FaceOf<VOXISpecAttrKey>(world->instanceKey);
  bothSay("AssertionFailed:piKey");
  Bench bench;
  Spec().startUp = FaceOf<VOXISpecObject>(bench.Component<ScriptedSpecObject>());
  bothSay("AssertionFailed:piAccessStar");
  Spec().startUp = nullptr;
  bothSay("AssertionFailed:piSpecStar");
  Spec().container = nullptr;
  EXPECT_EQ(fatalText(false), "AssertionFailed:piSpecStar") << "only an upgrade asks for the container";
  EXPECT_EQ(fatalText(true), "AssertionFailed:!!spCont");

  VOXBaseUnknown* const withoutAccess = bench.Component<UpgradeTie, ScriptedSpecObject>();
  ScriptedSpecObject::ScriptOf(withoutAccess).startUp = FaceOf<VOXISpecObject>(world->startUp);
  ScriptedSpecObject::ScriptOf(withoutAccess).container = FaceOf<VOXIContainer>(world->container);
  upgrade = FaceOf<VOXISamFeatureUpgrade>(withoutAccess);
  bothSay("AssertionFailed:piAccessThis");
}

TEST_F(UpgradeOrder, TheFeatureIsAskedForItsAttributesBeforeTheStartUp)
{
  Bench bench;
  VOXBaseUnknown* const withoutAccess = bench.Component<UpgradeTie, ScriptedSpecObject>();
  ScriptedSpecObject::ScriptOf(withoutAccess).startUp = FaceOf<VOXISpecObject>(bench.Component<ScriptedSpecObject>());
  upgrade = FaceOf<VOXISamFeatureUpgrade>(withoutAccess);
  EXPECT_EQ(FatalErrorOf([this] { upgrade->NeedToUpgrade(); }).text, "AssertionFailed:piAccessThis");
}

namespace
{

Torture UpgradeTorture(const char* iOperation)
{
  Torture torture(iOperation);
  torture.MayAnswer({S_OK, S_FALSE}).ReportsNothing();
  for (const char* const condition : {"!!spCont", "piSpecStar", "piAccessThis", "piAccessStar", "piKey"})
    torture.MayEndFatally(std::string("AssertionFailed:") + condition);
  return torture;
}

// A load that has A, a stranger, and lacks B.
Feature& LoadWithoutB(UpgradeWorld& ioWorld)
{
  Feature& load = ioWorld.Old("LoadOfAB");
  ioWorld.Put(load, "Stranger", "SonsList", "AnalysisSensor");
  ioWorld.Copy(load, 1, "AnyName");
  ioWorld.document.UpdateAll();
  return load;
}

} // namespace

TEST(VOXEAnalysisUpgradeTorture, NeedToUpgradeSurvivesEveryFailure)
{
  UpgradeTorture("NeedToUpgrade")
      .Run(
          [](TortureRun& ioRun)
          {
            UpgradeWorld world;
            VOXISamFeatureUpgrade* const upgrade = UpgradeWorld::Upgrade(LoadWithoutB(world));
            ioRun.Call([&] { return upgrade->NeedToUpgrade() ? S_OK : S_FALSE; });
          });
}

TEST(VOXEAnalysisUpgradeTorture, UpgradeSurvivesEveryFailureAndRemovesNothing)
{
  UpgradeTorture("Upgrade").Run(
      [](TortureRun& ioRun)
      {
        UpgradeWorld world;
        Feature& load = LoadWithoutB(world);
        VOXISamFeatureUpgrade* const upgrade = UpgradeWorld::Upgrade(load);
        ioRun.Call([&] { return upgrade->Upgrade(); });
        const Names names = UpgradeWorld::Names(load);
        ASSERT_GE(names.size(), 2u);
        EXPECT_EQ(Names(names.begin(), names.begin() + 2), (Names{"Stranger", "AnyName"}));
        EXPECT_TRUE(ioRun.IsTortured() || names.size() == 3);
      });
}

TEST(VOXEAnalysisUpgradeTorture, ScriptedUpgradeSurvivesEveryFailure)
{
  UpgradeTorture("Upgrade").Run(
      [](TortureRun& ioRun)
      {
        ScriptedWorld world;
        VOXISamFeatureUpgrade* const upgrade = world.Upgrade();
        ioRun.Call([&] { return upgrade->Upgrade(); });
      });
}

TEST(VOXEAnalysisUpgradeTorture, FindInListSurvivesEveryFailure)
{
  UpgradeTorture("FindInList")
      .Run(
          [](TortureRun& ioRun)
          {
            UpgradeWorld world;
            Feature& load = LoadWithoutB(world);
            VOXListValVOXBaseUnknown_var list;
            for (Feature* const son : load.Features("SonsList"))
              list.Append(VOXBaseUnknown_var(UpgradeWorld::Face(*son)));
            VOXEAnalysisUpgrade& adaptor = UpgradeWorld::Adaptor(load);
            bool found = false;
            ioRun.Call(
                [&]
                {
                  found = adaptor.FindInList("A", list);
                  return S_OK;
                });
            EXPECT_TRUE(ioRun.IsTortured() || found);
          });
}

TEST(VOXEAnalysisUpgradeTorture, GetValuesOnInstanceOrStartupSurvivesEveryFailure)
{
  for (const bool onStartUp : {false, true})
    UpgradeTorture("GetValuesOnInstanceOrStartup")
        .Run(
            [onStartUp](TortureRun& ioRun)
            {
              UpgradeWorld world;
              Feature& component = *world.document.New("LayersOfABE", "layers");
              VOXEAnalysisUpgrade& adaptor = UpgradeWorld::Adaptor(component);
              ioRun.Call(
                  [&]
                  {
                    delete adaptor.GetValuesOnInstanceOrStartup(onStartUp, &component);
                    return S_OK;
                  });
            });
}

TEST(VOXEAnalysisUpgradeTorture, RemoveBasicCompSurvivesEveryFailure)
{
  UpgradeTorture("RemoveBasicComp")
      .Run(
          [](TortureRun& ioRun)
          {
            UpgradeWorld world;
            Feature& load = LoadWithoutB(world);
            VOXEAnalysisUpgrade& adaptor = UpgradeWorld::Adaptor(load);
            const VOXISamBasicComponent* const son = UpgradeWorld::Basic(*load.Features("SonsList")[1]);
            ioRun.Call([&] { return adaptor.RemoveBasicComp(son); });
            EXPECT_TRUE(ioRun.IsTortured() || UpgradeWorld::Names(load) == Names{"Stranger"});
          });
}
