// SPDX-License-Identifier: MIT
// What feature types use beside the upgrade: FindInList, GetValuesOnInstanceOrStartup, RemoveBasicComp.
#include "VOXEAnalysisUpgrade.h"

#include "tests/adaptors/UpgradeWorld.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Feature;

namespace
{

class UpgradeFinding : public InBalance<UpgradeWorld>
{
protected:
  UpgradeFinding() : load(world->Old("LoadOfAB")), adaptor(UpgradeWorld::Adaptor(load)) {}

  // Whether the components of the load are found to hold a name.
  bool Finds(const char* iName) const
  {
    VOXListValVOXBaseUnknown_var list;
    for (Feature* const son : load.Features("SonsList"))
      list.Append(VOXBaseUnknown_var(UpgradeWorld::Face(*son)));
    return adaptor.FindInList(iName, list);
  }

  Feature& load;
  VOXEAnalysisUpgrade& adaptor;
};

} // namespace

TEST_F(UpgradeFinding, TheEqualNameIsFound)
{
  world->Put(load, "X");
  world->Put(load, "A");
  EXPECT_TRUE(Finds("A"));
}

TEST_F(UpgradeFinding, ANumberedCopyIsFound)
{
  world->Put(load, "Pressure.1");
  EXPECT_TRUE(Finds("Pressure"));
  EXPECT_FALSE(Finds("Pressure.1.")) << "the name is the beginning, not the other way round";
}

TEST_F(UpgradeFinding, ANameThatGoesOnWithoutAPointIsAnother)
{
  world->Put(load, "AB");
  EXPECT_FALSE(Finds("A"));
}

TEST_F(UpgradeFinding, ANamePrefixFurtherInIsAnother)
{
  world->Put(load, "X.A.");
  EXPECT_FALSE(Finds("A"));
}

TEST_F(UpgradeFinding, APrefixAtTheBeginningIsFoundAlthoughItComesAgain)
{
  world->Put(load, "A.A.1");
  EXPECT_TRUE(Finds("A"));
}

TEST_F(UpgradeFinding, LettersCount)
{
  world->Put(load, "a");
  EXPECT_FALSE(Finds("A"));
}

TEST_F(UpgradeFinding, AnyNameIsFoundWhoseRelatedObjectIsCalledSo)
{
  world->Copy(load, 1, "AB");
  EXPECT_TRUE(Finds("A"));
  EXPECT_TRUE(Finds("AB"));
  EXPECT_FALSE(Finds("B"));
}

TEST_F(UpgradeFinding, ThePrefixRuleDoesNotHoldForTheRelatedObject)
{
  load.StartUp()->Features("SonsList")[0]->SetName("A.1");
  world->Copy(load, 1, "AB");
  EXPECT_FALSE(Finds("A"));
  EXPECT_TRUE(Finds("A.1"));
}

TEST_F(UpgradeFinding, TheRelatedObjectIsAskedForWhenThePrefixStandsFurtherIn)
{
  world->Copy(load, 1, "X.A.");
  EXPECT_TRUE(Finds("A"));
}

TEST_F(UpgradeFinding, AnEmptyListHoldsNothing)
{
  EXPECT_FALSE(Finds("A"));
  EXPECT_FALSE(Finds(""));
}

TEST_F(UpgradeFinding, WhatIsNoBasicComponentIsPassedOverAndTheRestSearched)
{
  VOXListValVOXBaseUnknown_var list;
  list.Append(VOXBaseUnknown_var());
  list.Append(VOXBaseUnknown_var(UpgradeWorld::Face(*world->document.New("AnalysisSensor", "A"))));
  EXPECT_FALSE(adaptor.FindInList("A", list));
  list.Append(VOXBaseUnknown_var(UpgradeWorld::Face(world->Put(load, "A"))));
  EXPECT_TRUE(adaptor.FindInList("A", list));
}

TEST_F(UpgradeFinding, AComponentThatIsNoFeatureIsFoundByItsNameAlone)
{
  Bench bench;
  VOXBaseUnknown* const component = bench.Component<ScriptedBasicComponent>();
  ScriptedBasicComponent::ScriptOf(component).name = "AB";
  VOXListValVOXBaseUnknown_var list;
  list.Append(VOXBaseUnknown_var(component));
  EXPECT_FALSE(adaptor.FindInList("A", list));
  EXPECT_TRUE(adaptor.FindInList("AB", list));
}

TEST_F(UpgradeFinding, AComponentThatIsNoFeatureDoesNotEndTheScan)
{
  Bench bench;
  VOXBaseUnknown* const component = bench.Component<ScriptedBasicComponent>();
  ScriptedBasicComponent::ScriptOf(component).name = "AB";
  VOXListValVOXBaseUnknown_var list;
  list.Append(VOXBaseUnknown_var(component));
  list.Append(VOXBaseUnknown_var(UpgradeWorld::Face(world->Put(load, "A"))));
  EXPECT_TRUE(adaptor.FindInList("A", list));
}

TEST_F(UpgradeFinding, TheFirstHitEndsTheScan)
{
  for (const char* const name : {"X", "A", "A.1", "Y"})
    world->Put(load, name);
  VOXListValVOXBaseUnknown_var list;
  for (Feature* const son : load.Features("SonsList"))
    list.Append(VOXBaseUnknown_var(UpgradeWorld::Face(*son)));
  const CallLog log;
  EXPECT_TRUE(adaptor.FindInList("A", list));
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXISamBasicComponent::GetName", "VOXISpecObject::GetRelatedObject", "VOXISpecObject::GetName",
                   "VOXISamBasicComponent::GetName"}))
      << "a related object is asked for only when both names differ";
}

namespace
{

class UpgradeValues : public InBalance<UpgradeWorld>
{
protected:
  UpgradeValues()
      : component(*world->document.New("LayersOfABE", "layers", nullptr, voxhost::Components::kNone)),
        adaptor(UpgradeWorld::Adaptor(component))
  {
    world->Put(component, "Own", "Values");
  }

  // Names of the values; one name "none" without a list.
  Names Values(bool iOnStartup, const VOXISpecObject* iSpec) const
  {
    const std::unique_ptr<VOXListValVOXBaseUnknown_var> list(adaptor.GetValuesOnInstanceOrStartup(iOnStartup, iSpec));
    if (list == nullptr)
      return {"none"};
    Names names;
    for (int i = 1; i <= list->Size(); ++i)
      names.emplace_back(Feature::Of((*list)[i])->Name().ConvertToChar());
    return names;
  }

  Feature& component;
  VOXEAnalysisUpgrade& adaptor;
};

} // namespace

TEST_F(UpgradeValues, AreThoseOfTheInstanceOrOfItsStartUpAsAsked)
{
  EXPECT_EQ(Values(false, &component), Names{"Own"});
  EXPECT_EQ(Values(true, &component), (Names{"A", "B", "E"}));
}

TEST_F(UpgradeValues, AreNotThereForNothing)
{
  EXPECT_EQ(Values(false, nullptr), Names{"none"});
  EXPECT_EQ(Values(true, nullptr), Names{"none"});
}

TEST_F(UpgradeValues, AreNotThereWithoutAStartUp)
{
  EXPECT_EQ(Values(true, component.StartUp()), Names{"none"});
  EXPECT_EQ(Values(false, component.StartUp()), (Names{"A", "B", "E"}));
}

TEST_F(UpgradeValues, AreNotThereWhenTheAttributeNeverHadAny)
{
  EXPECT_EQ(Values(false, &world->Old("LayersOfABE")), Names{"none"});
}

TEST_F(UpgradeValues, AreNotThereWhenTheInstanceIsNoFeatureWhenAskedAgain)
{
  Faults::FailOperation("VOXBaseUnknown::QueryInterface", 1, false);
  EXPECT_EQ(adaptor.GetValuesOnInstanceOrStartup(false, &component), nullptr);
}

TEST_F(UpgradeValues, AreElementsThatCarryTheInterfaceOfBasicComponents)
{
  const std::unique_ptr<VOXListValVOXBaseUnknown_var> list(adaptor.GetValuesOnInstanceOrStartup(false, &component));
  const Feature& own = *component.Features("Values")[0];
  EXPECT_EQ(static_cast<const void*>((*list)[1].Get()), static_cast<const void*>(UpgradeWorld::Basic(own)));
}

TEST_F(UpgradeValues, AreReadThroughTheAttributeThatIsCalledValues)
{
  const CallLog log;
  Values(false, &component);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXISpecAttrAccess::GetAttrKey", "VOXISpecAttrAccess::ListSpecObjects"}));
}

TEST_F(UpgradeValues, AreAssertedToHaveAccessAndAKey)
{
  const voxhost::CheckReport noKey =
      FatalErrorOf([this] { adaptor.GetValuesOnInstanceOrStartup(false, &world->Old("LoadOfAB")); });
  EXPECT_EQ(noKey.text, "AssertionFailed:piKey");
  EXPECT_EQ(noKey.file, SourceOf("VOXEAnalysisUpgrade"));
  EXPECT_GT(noKey.line, 0);

  Bench bench;
  VOXBaseUnknown* const bare = bench.Component<ScriptedSpecObject>();
  const voxhost::CheckReport noAccess =
      FatalErrorOf([&] { adaptor.GetValuesOnInstanceOrStartup(false, FaceOf<VOXISpecObject>(bare)); });
  EXPECT_EQ(noAccess.text, "AssertionFailed:piAccessThis");
  EXPECT_EQ(noAccess.file, SourceOf("VOXEAnalysisUpgrade"));
}

namespace
{

class UpgradeRemoval : public InBalance<UpgradeWorld>
{
protected:
  UpgradeRemoval() : load(*world->document.New("LoadOfAB", "load")) { world->document.UpdateAll(); }

  HRESULT Remove(const Feature& iComponent)
  {
    return UpgradeWorld::Adaptor(load).RemoveBasicComp(UpgradeWorld::Basic(iComponent));
  }

  Feature& load;
};

} // namespace

TEST_F(UpgradeRemoval, TakesTheComponentOutOfTheFeatureAndTheDocument)
{
  const std::size_t before = world->document.NumberOfFeatures();
  EXPECT_EQ(Remove(*load.Features("SonsList")[0]), S_OK);
  EXPECT_EQ(UpgradeWorld::Names(load), Names{"B"});
  EXPECT_EQ(world->document.NumberOfFeatures(), before - 1);
}

TEST_F(UpgradeRemoval, BracketsTheRemovalFromAnUpToDateFeatureWithMarks)
{
  const Feature& son = *load.Features("SonsList")[0];
  VOXEAnalysisUpgrade& adaptor = UpgradeWorld::Adaptor(load);
  const VOXISamBasicComponent* const basic = UpgradeWorld::Basic(son);
  const CallLog log;
  adaptor.RemoveBasicComp(basic);
  EXPECT_EQ(
      log.Without({"VOXBaseUnknown::"}),
      (Calls{"own implementation(0)", "VOXISpecObject::IsUpToDate", "VOXSpecObjServices::MarkForRebuild",
             "VOXISpecObject::RemoveComponent", "VOXSpecObjServices::MarkForRebuild", "VOXISpecObject::IsUpToDate"}));
}

TEST_F(UpgradeRemoval, MarksTheFeatureBeforeAndTakesTheMarkBackAfter)
{
  const Feature& elsewhere = *world->document.New("SAMRealComponent", "elsewhere");
  bool outOfDateMeanwhile = false;
  {
    const OnEachCall look(
        [&](const std::string& iOperation)
        {
          if (iOperation == "VOXISpecObject::RemoveComponent")
            outOfDateMeanwhile = load.IsOutOfDate();
        });
    EXPECT_EQ(Remove(elsewhere), S_OK) << "a removal that fails does not show";
  }
  EXPECT_TRUE(outOfDateMeanwhile);
  EXPECT_FALSE(load.IsOutOfDate());
}

TEST_F(UpgradeRemoval, DoesNotMarkAFeatureThatIsOutOfDate)
{
  load.SetOutOfDate(true);
  const Feature& son = *load.Features("SonsList")[0];
  VOXEAnalysisUpgrade& adaptor = UpgradeWorld::Adaptor(load);
  const VOXISamBasicComponent* const basic = UpgradeWorld::Basic(son);
  const CallLog log;
  EXPECT_EQ(adaptor.RemoveBasicComp(basic), S_OK);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"own implementation(0)", "VOXISpecObject::IsUpToDate", "VOXISpecObject::RemoveComponent"}));
  EXPECT_EQ(UpgradeWorld::Names(load), Names{"B"});
}

TEST_F(UpgradeRemoval, OfNothingIsRefusedAndTouchesNothing)
{
  VOXEAnalysisUpgrade& adaptor = UpgradeWorld::Adaptor(load);
  const CallLog log;
  EXPECT_EQ(adaptor.RemoveBasicComp(nullptr), E_INVALIDARG);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}), Calls{"own implementation(0)"});
  EXPECT_FALSE(load.IsOutOfDate());
}

TEST_F(UpgradeRemoval, AsksTheFeatureWithoutADomainAndWithModeZero)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<UpgradeTie, ScriptedSpecObject>();
  VOXBaseUnknown* const component = bench.Component<ScriptedBasicComponent>();
  VOXEAnalysisUpgrade& adaptor = UpgradeTie::AdaptorOf(feature);
  const VOXISamBasicComponent* const basic = FaceOf<VOXISamBasicComponent>(component);
  const CallLog log;
  EXPECT_EQ(adaptor.RemoveBasicComp(basic), S_OK);
  EXPECT_EQ(log.Only({"VOXISpecObject::"}),
            (Calls{"VOXISpecObject::IsUpToDate(whole document)", "VOXISpecObject::RemoveComponent(0)",
                   "VOXISpecObject::IsUpToDate(whole document)"}));
}

TEST_F(UpgradeRemoval, FromWhatIsNoFeatureDoesNothing)
{
  Bench bench;
  VOXBaseUnknown* const thing = bench.Component<UpgradeTie>();
  VOXEAnalysisUpgrade& adaptor = UpgradeTie::AdaptorOf(thing);
  const VOXISamBasicComponent* const basic = UpgradeWorld::Basic(*load.Features("SonsList")[0]);
  const CallLog log;
  EXPECT_EQ(adaptor.RemoveBasicComp(basic), S_OK);
  EXPECT_EQ(adaptor.RemoveBasicComp(nullptr), E_INVALIDARG);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}), (Calls{"own implementation(0)", "own implementation(0)"}));
}
