// SPDX-License-Identifier: MIT
// Order of calls, positions, references and failing calls of CheckMultiLayer and UpgradeMultiLayer.
#include "VOXEAnalysisUpgrade.h"

#include "tests/adaptors/UpgradeWorld.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Feature;

namespace
{

constexpr char kAdding[] = "VOXEAnalysisUpgrade::Upgrade Adding";
using LabelledSpecObject = Labelled<ScriptedSpecObject>;
using LabelledAccess = Labelled<ScriptedFeatureAccess>;
using LabelledKey = Labelled<ScriptedFeatureKey>;
using LabelledComponent = Labelled<ScriptedBasicComponent>;
using LabelledContainer = Labelled<ScriptedFeatureContainer>;

// A component of three layers that holds A; its start-up holds A and B.
class ScriptedLayers
{
public:
  ScriptedLayers()
      : tied(bench.Component<UpgradeTie>()),
        component(Named<LabelledSpecObject, LabelledAccess, LabelledComponent>("instance")),
        startUp(Named<LabelledSpecObject, LabelledAccess, LabelledComponent>("start-up")),
        container(Named<LabelledContainer>("container")),
        values(Key("Values")),
        dimension(Key("ValuesDim")),
        own(Value("own", "A")),
        first(Value("first", "A")),
        second(Value("second", "B")),
        made(Value("made", "B"))
  {
    SpecOf(component).startUp = FaceOf<VOXISpecObject>(startUp);
    SpecOf(component).container = FaceOf<VOXIContainer>(container);
    LabelledComponent::ScriptOf(component).layers = 3;
    AccessOf(component).keys = {{"Values", FaceOf<VOXISpecAttrKey>(values)},
                                {"ValuesDim", FaceOf<VOXISpecAttrKey>(dimension)}};
    AccessOf(startUp).keys = {{"Values", FaceOf<VOXISpecAttrKey>(values)}};
    AccessOf(component).lists["Values"] = {FaceOf<VOXISamBasicComponent>(own)};
    AccessOf(startUp).lists["Values"] = {FaceOf<VOXISamBasicComponent>(first), FaceOf<VOXISamBasicComponent>(second)};
    SpecOf(second).instance = FaceOf<VOXISpecObject>(made);
  }

  static SpecObjectScript& SpecOf(VOXBaseUnknown* iComponent) { return LabelledSpecObject::ScriptOf(iComponent); }
  static FeatureAccessScript& AccessOf(VOXBaseUnknown* iComponent) { return LabelledAccess::ScriptOf(iComponent); }
  static BasicComponentScript& BasicOf(VOXBaseUnknown* iComponent) { return LabelledComponent::ScriptOf(iComponent); }
  VOXISamFeatureUpgrade* Upgrade() const { return FaceOf<VOXISamFeatureUpgrade>(tied); }
  const VOXISamBasicComponent* Basic() const { return FaceOf<VOXISamBasicComponent>(component); }

private:
  template <class... Faces>
  VOXBaseUnknown* Named(const char* iLabel)
  {
    VOXBaseUnknown* const named = bench.Component<Faces...>();
    Labels::Of(named) = iLabel;
    return named;
  }
  VOXBaseUnknown* Key(const char* iName)
  {
    VOXBaseUnknown* const key = Named<LabelledKey>(iName);
    LabelledKey::ScriptOf(key).name = iName;
    return key;
  }
  VOXBaseUnknown* Value(const char* iLabel, const char* iName)
  {
    VOXBaseUnknown* const value = Named<LabelledSpecObject, LabelledComponent>(iLabel);
    LabelledComponent::ScriptOf(value).name = iName;
    return value;
  }

public:
  Bench bench;
  VOXBaseUnknown* tied;
  VOXBaseUnknown* component;
  VOXBaseUnknown* startUp;
  VOXBaseUnknown* container;
  VOXBaseUnknown* values;
  VOXBaseUnknown* dimension;
  VOXBaseUnknown* own;
  VOXBaseUnknown* first;
  VOXBaseUnknown* second;
  VOXBaseUnknown* made;
};

class LayeredOrder : public InBalance<ScriptedLayers>
{
protected:
  LayeredOrder() : upgrade(world->Upgrade()), basic(world->Basic()) {}

  VOXISamFeatureUpgrade* upgrade;
  const VOXISamBasicComponent* basic;
};

} // namespace

TEST_F(LayeredOrder, ACheckAsksBothForTheirDimensionsWithAnEmptyQualifierAndThenForTheValues)
{
  ScriptedLayers::BasicOf(world->component).layers = 1;
  const CallLog log;
  EXPECT_TRUE(upgrade->CheckMultiLayer(basic));
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXISamBasicComponent::GetDimensions()", "VOXISpecObject::GetStartUp",
                   "VOXISamBasicComponent::GetDimensions()", "VOXISpecAttrAccess::GetAttrKey(Values)",
                   "VOXISpecAttrAccess::ListSpecObjects(Values, VOXISamBasicComponent)"}));
}

TEST_F(LayeredOrder, OtherKindsOnTheStartUpEndTheCheckBeforeTheValues)
{
  ScriptedLayers::BasicOf(world->startUp).values = 1;
  const CallLog log;
  EXPECT_TRUE(upgrade->CheckMultiLayer(basic));
  EXPECT_EQ(log.Count("VOXISpecAttrAccess::"), 0);
}

TEST_F(LayeredOrder, AStartUpThatIsNoBasicComponentHasNoKinds)
{
  VOXBaseUnknown* const plain = world->bench.Component<ScriptedSpecObject>();
  ScriptedLayers::SpecOf(world->component).startUp = FaceOf<VOXISpecObject>(plain);
  ScriptedLayers::AccessOf(world->component).lists["Values"] = Objects{};
  EXPECT_FALSE(upgrade->CheckMultiLayer(basic)) << "no kinds on either side: the size counts";
  ScriptedLayers::BasicOf(world->component).values = 1;
  ScriptedLayers::BasicOf(world->component).layers = 0;
  EXPECT_TRUE(upgrade->CheckMultiLayer(basic));
}

TEST_F(LayeredOrder, WhatIsNoFeatureNeedsNoUpgradeAndGetsNone)
{
  VOXBaseUnknown* const bare = world->bench.Component<ScriptedBasicComponent>();
  ScriptedBasicComponent::ScriptOf(bare).values = 4;
  const VOXISamBasicComponent* const component = FaceOf<VOXISamBasicComponent>(bare);
  EXPECT_FALSE(upgrade->CheckMultiLayer(component));
  const CallLog log;
  EXPECT_EQ(upgrade->UpgradeMultiLayer(component), S_OK);
  EXPECT_EQ(log.All(), Calls{"VOXBaseUnknown::QueryInterface"});
}

TEST_F(LayeredOrder, WhatIsNoFeatureIsAskedForItsDimensionsAllTheSame)
{
  VOXBaseUnknown* const bare = world->bench.Component<ScriptedBasicComponent>();
  const VOXISamBasicComponent* const component = FaceOf<VOXISamBasicComponent>(bare);
  const CallLog log;
  EXPECT_FALSE(upgrade->CheckMultiLayer(component));
  EXPECT_EQ(log.All(), (Calls{"VOXISamBasicComponent::GetDimensions()", "VOXBaseUnknown::QueryInterface"}));
}

namespace
{

// A component that tells what it finds in the dimensions, and leaves them so.
class PresetReader : public ScriptedBasicComponent
{
public:
  HRESULT GetDimensions(int& oValues, int& oRows, int& oLayers, const VOXUnicodeString&) const override
  {
    CallLog::Enter("preset", oValues, oRows, oLayers);
    return S_OK;
  }
};

} // namespace

TEST_F(LayeredOrder, EveryDimensionStartsAtZero)
{
  const VOXISamBasicComponent* const component = FaceOf<VOXISamBasicComponent>(world->bench.Component<PresetReader>());
  const CallLog log;
  upgrade->CheckMultiLayer(component);
  EXPECT_EQ(log.Only({"preset"}), Calls{"preset(0, 0, 0)"});
}

TEST_F(LayeredOrder, TheStartUpGoesBackBeforeItsDimensionsAreAskedFor)
{
  const CallLog log(CallLog::References::Recorded);
  upgrade->CheckMultiLayer(basic);
  EXPECT_EQ(log.Only({"Release VOXISpecObject of start-up", "VOXISamBasicComponent::GetDimensions"}),
            (Calls{"VOXISamBasicComponent::GetDimensions()", "Release VOXISpecObject of start-up",
                   "VOXISamBasicComponent::GetDimensions()"}));
}

TEST_F(LayeredOrder, WhoseValuesAreReadGoesBackBeforeTheKeyIsAskedFor)
{
  const VOXISpecObject* const spec = FaceOf<VOXISpecObject>(world->component);
  const CallLog log(CallLog::References::Recorded);
  delete UpgradeTie::AdaptorOf(world->tied).GetValuesOnInstanceOrStartup(false, spec);
  EXPECT_EQ(log.Only({"Release VOXISpecObject", "VOXISpecAttrAccess::GetAttrKey"}),
            (Calls{"Release VOXISpecObject of instance", "VOXISpecAttrAccess::GetAttrKey(Values)"}));
}

TEST_F(LayeredOrder, WhoseValuesAreReadGoesBackBeforeItsMissingAccessIsAsserted)
{
  VOXBaseUnknown* const blind = world->bench.Component<LabelledSpecObject>();
  Labels::Of(blind) = "blind";
  const VOXISpecObject* const spec = FaceOf<VOXISpecObject>(blind);
  const CallLog log(CallLog::References::Recorded);
  FatalErrorOf(
      [&]
      {
        voxhost::ErrorLog::SetFatalHandler(
            [](const voxhost::CheckReport& iReport)
            {
              CallLog::Note(iReport.text);
              throw FatalErrorRaised{iReport};
            });
        UpgradeTie::AdaptorOf(world->tied).GetValuesOnInstanceOrStartup(false, spec);
      });
  EXPECT_EQ(log.Only({"Release VOXISpecObject", "AssertionFailed"}),
            (Calls{"Release VOXISpecObject of blind", "AssertionFailed:piAccessThis"}));
}

TEST_F(LayeredOrder, WithoutTheKeyOfValuesTheOwnValuesAreNotListed)
{
  ScriptedLayers::AccessOf(world->component).keys.erase("Values");
  const CallLog log;
  EXPECT_EQ(upgrade->UpgradeMultiLayer(basic), S_OK);
  EXPECT_EQ(log.Only({"VOXISpecAttrAccess::ListSpecObjects"}),
            Calls{"VOXISpecAttrAccess::ListSpecObjects(Values, VOXISamBasicComponent)"})
      << "those of the start-up";
}

TEST_F(LayeredOrder, AnUpgradeTakesItsStepsInOrder)
{
  const TracesNoted traces;
  const CallLog log;
  EXPECT_EQ(upgrade->UpgradeMultiLayer(basic), S_OK);
  Calls expected{"VOXISpecObject::GetContainer",
                 "VOXISamBasicComponent::GetDimensions()",
                 "VOXISpecObject::GetStartUp",
                 "VOXISpecAttrAccess::GetAttrKey(Values)",
                 "VOXISpecAttrAccess::ListSpecObjects(Values, VOXISamBasicComponent)",
                 "VOXISpecAttrAccess::GetAttrKey(Values)",
                 "VOXISpecAttrAccess::ListSpecObjects(Values, null)",
                 "VOXISamBasicComponent::GetName",
                 "VOXISamBasicComponent::GetName",
                 "VOXISamBasicComponent::GetName",
                 "VOXISamBasicComponent::GetName",
                 "VOXISpecObject::GetRelatedObject",
                 "SAMTraceDebug::SetOutputLevel(2)",
                 "SAMTraceDebug::TraPut(VOXEAnalysisUpgrade::Upgrade Adding)",
                 "SAMTraceDebug::SetOutputLevel(2)",
                 "SAMTraceDebug::TraPut(B)"};
  for (const char* const position : {"2", "4", "6"})
    for (const std::string& call :
         {std::string("VOXISpecObject::Instantiate(B, null)"), std::string("VOXISpecObject::Update(whole document)"),
          std::string("VOXISpecAttrAccess::AddSpecObject(Values, made, null, 0, 0)"),
          std::string("VOXISpecAttrAccess::PlaceSpecObject(Values, made, ") + position + ")"})
      expected.push_back(call);
  expected.emplace_back("VOXISpecAttrAccess::GetAttrKey(ValuesDim)");
  expected.emplace_back("VOXISpecAttrAccess::PutInteger(ValuesDim, 2, 1)");
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}), expected);
}

TEST_F(LayeredOrder, ACopyThatCannotBeMadeLeavesItsPositionFree)
{
  Faults::FailOperation("VOXISpecObject::Instantiate", 2, false);
  const CallLog log;
  EXPECT_EQ(upgrade->UpgradeMultiLayer(basic), S_OK);
  EXPECT_EQ(log.Only({"VOXISpecAttrAccess::PlaceSpecObject"}),
            (Calls{"VOXISpecAttrAccess::PlaceSpecObject(Values, made, 2)",
                   "VOXISpecAttrAccess::PlaceSpecObject(Values, made, 6)"}));
}

TEST_F(LayeredOrder, AValueThatCannotBeAddedIsPlacedAllTheSame)
{
  Faults::FailOperation("VOXISpecAttrAccess::AddSpecObject", 1, true);
  const CallLog log;
  EXPECT_EQ(upgrade->UpgradeMultiLayer(basic), S_OK);
  EXPECT_EQ(log.Count("VOXISpecAttrAccess::PlaceSpecObject"), 3);
}

TEST_F(LayeredOrder, AValueOfTheStartUpThatIsNoFeatureIsTracedAndThenSkipped)
{
  VOXBaseUnknown* const bare = world->bench.Component<ScriptedBasicComponent>();
  ScriptedBasicComponent::ScriptOf(bare).name = "C";
  ScriptedLayers::AccessOf(world->startUp).lists["Values"] = {bare, world->second};
  const UpgradeMessages messages;
  const CallLog log;
  EXPECT_EQ(upgrade->UpgradeMultiLayer(basic), S_OK);
  EXPECT_EQ(UpgradeMessages::Text(), std::string(kAdding) + "C" + kAdding + "B");
  EXPECT_EQ(log.Count("VOXISpecObject::Instantiate"), 3);
}

TEST_F(LayeredOrder, AValueOfTheStartUpThatIsNoBasicComponentIsSkippedButCounted)
{
  VOXBaseUnknown* const plain = world->bench.Component<ScriptedSpecObject>();
  ScriptedLayers::AccessOf(world->startUp).lists["Values"] = {plain, nullptr, world->second};
  const UpgradeMessages messages;
  const CallLog log;
  EXPECT_EQ(upgrade->UpgradeMultiLayer(basic), S_OK);
  EXPECT_EQ(UpgradeMessages::Text(), std::string(kAdding) + "B");
  EXPECT_EQ(log.Only({"VOXISpecAttrAccess::Pl", "VOXISpecAttrAccess::Pu"}),
            (Calls{"VOXISpecAttrAccess::PlaceSpecObject(Values, made, 3)",
                   "VOXISpecAttrAccess::PlaceSpecObject(Values, made, 6)",
                   "VOXISpecAttrAccess::PlaceSpecObject(Values, made, 9)",
                   "VOXISpecAttrAccess::PutInteger(ValuesDim, 3, 1)"}));
}

TEST_F(LayeredOrder, WithoutTheKeyOfTheDimensionNothingIsWritten)
{
  ScriptedLayers::AccessOf(world->component).keys.erase("ValuesDim");
  const CallLog log;
  EXPECT_EQ(upgrade->UpgradeMultiLayer(basic), S_OK);
  EXPECT_EQ(log.Count("VOXISpecAttrAccess::PutInteger"), 0);
}

TEST_F(LayeredOrder, WithoutValuesOnTheStartUpTheDimensionIsNotAskedFor)
{
  for (const bool isThere : {true, false})
  {
    ScriptedLayers::AccessOf(world->startUp).lists.clear();
    if (isThere)
      ScriptedLayers::AccessOf(world->startUp).lists["Values"] = Objects{};
    const CallLog log;
    EXPECT_EQ(upgrade->UpgradeMultiLayer(basic), S_OK);
    EXPECT_EQ(log.Count("VOXISpecAttrAccess::GetAttrKey(ValuesDim)"), 0);
  }
}

TEST_F(LayeredOrder, AtTheEndTheReferencesGoBackInTheirOrder)
{
  ScriptedLayers::AccessOf(world->startUp).lists["Values"] = {FaceOf<VOXISamBasicComponent>(world->second)};
  const CallLog log(CallLog::References::Recorded);
  upgrade->UpgradeMultiLayer(basic);
  const Calls released = log.Only({"Release"});
  ASSERT_GE(released.size(), 5u);
  EXPECT_EQ(Calls(released.end() - 5, released.end()),
            (Calls{"Release VOXISpecAttrKey of ValuesDim", "Release VOXISpecAttrAccess of instance",
                   "Release VOXISamBasicComponent of second", "Release VOXIContainer of container",
                   "Release VOXISpecObject of instance"}));
}

TEST_F(LayeredOrder, TheValuesGoBackBeforeTheirKeyAndBothBeforeTheDimension)
{
  const CallLog log(CallLog::References::Recorded);
  upgrade->UpgradeMultiLayer(basic);
  const Calls calls = log.Only(
      {"Release VOXISamBasicComponent of own", "Release VOXISpecAttrKey", "VOXISpecAttrAccess::GetAttrKey(ValuesDim)"});
  ASSERT_GE(calls.size(), 4u);
  EXPECT_EQ(Calls(calls.end() - 4, calls.end()),
            (Calls{"Release VOXISamBasicComponent of own", "Release VOXISpecAttrKey of Values",
                   "VOXISpecAttrAccess::GetAttrKey(ValuesDim)", "Release VOXISpecAttrKey of ValuesDim"}));
}

TEST_F(LayeredOrder, WhatCannotBeMissingIsAsserted)
{
  const auto fatal = [this](const VOXISamBasicComponent* iComponent)
  {
    const voxhost::CheckReport report = FatalErrorOf([&] { upgrade->UpgradeMultiLayer(iComponent); });
    EXPECT_EQ(report.file, SourceOf("VOXEAnalysisUpgrade"));
    EXPECT_GT(report.line, 0);
    return report.text;
  };
  EXPECT_EQ(fatal(nullptr), "AssertionFailed:ipiBasicComp");
  ScriptedLayers::SpecOf(world->component).container = nullptr;
  EXPECT_EQ(fatal(basic), "AssertionFailed:!!spCont");

  VOXBaseUnknown* const blind = world->bench.Component<ScriptedBasicComponent, ScriptedSpecObject>();
  ScriptedSpecObject::ScriptOf(blind).container = FaceOf<VOXIContainer>(world->container);
  EXPECT_EQ(fatal(FaceOf<VOXISamBasicComponent>(blind)), "AssertionFailed:piAttrAccess");
}

TEST(VOXEAnalysisUpgradeLayersTorture, CheckMultiLayerSurvivesEveryFailure)
{
  Torture torture("CheckMultiLayer");
  torture.MayAnswer({S_OK, S_FALSE}).ReportsNothing();
  for (const char* const condition : {"piAccessThis", "piKey"})
    torture.MayEndFatally(std::string("AssertionFailed:") + condition);
  torture.Run(
      [](TortureRun& ioRun)
      {
        UpgradeWorld world;
        const Feature& component = *world.document.New("LayersOfABE", "layers");
        VOXISamFeatureUpgrade* const upgrade = UpgradeWorld::Upgrade(component);
        const VOXISamBasicComponent* const basic = UpgradeWorld::Basic(component);
        ioRun.Call([&] { return upgrade->CheckMultiLayer(basic) ? S_OK : S_FALSE; });
      });
}

TEST(VOXEAnalysisUpgradeLayersTorture, UpgradeMultiLayerSurvivesEveryFailureAndRemovesNothing)
{
  Torture torture("UpgradeMultiLayer");
  torture.MayAnswer({S_OK}).ReportsNothing();
  for (const char* const condition : {"!!spCont", "piAttrAccess", "piAccessThis", "piKey"})
    torture.MayEndFatally(std::string("AssertionFailed:") + condition);
  torture.Run(
      [](TortureRun& ioRun)
      {
        UpgradeWorld world;
        Feature& component = world.Old("LayersOfABE");
        component.Set("Layers", 2);
        world.Put(component, "A", "Values");
        VOXISamFeatureUpgrade* const upgrade = UpgradeWorld::Upgrade(component);
        const VOXISamBasicComponent* const basic = UpgradeWorld::Basic(component);
        ioRun.Call([&] { return upgrade->UpgradeMultiLayer(basic); });
        const Names names = UpgradeWorld::Names(component, "Values");
        EXPECT_EQ(std::count(names.begin(), names.end(), "A") >= 1, true);
        EXPECT_TRUE(ioRun.IsTortured() || names.size() == 5);
      });
}
