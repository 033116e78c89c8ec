// SPDX-License-Identifier: MIT
// What a new selection does to the parameter and to the sub-components of a list manager.
#include "VOXESamEnumManager.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"
#include "tests/adaptors/Face.h"
#include "tests/adaptors/Reported.h"
#include "tests/adaptors/SelectionWorld.h"
#include "tests/support/FatalErrorOf.h"

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Ledger;

namespace
{

const char* const kWork = "VOXISamBasicComponent::ListSubComponents";

class VOXESamEnumManagerSelection : public testing::Test
{
protected:
  VOXESamEnumManagerSelection()
  {
    ResetErrors();
    Ledger::TurnOn();
    world.emplace();
  }
  ~VOXESamEnumManagerSelection() override
  {
    Faults::Disarm();
    EXPECT_TRUE(AllReported().empty());
    world.reset();
    EXPECT_EQ(Ledger::Read().references, 0);
    Ledger::TurnOff();
    ResetErrors();
  }

  // Whether a selection does its work, rather than nothing.
  bool Works(int iIndex, HRESULT iExpected = S_OK)
  {
    const CallLog log;
    EXPECT_EQ(world->Select(iIndex), iExpected);
    return log.Count(kWork) == 1;
  }

  // The fatal error that a selection ends with.
  voxhost::CheckReport Fatal()
  {
    const VOXISamSelectionList_var spManager = world->Manager();
    return FatalErrorOf([&] { spManager->SetSelected(1); });
  }

  std::optional<SelectionWorld> world;
};

using Outcome = std::vector<std::string>;

} // namespace

TEST_F(VOXESamEnumManagerSelection, TheFirstSelectionDoesItsWorkForTheStoredEntryAndTheSecondDoesNothing)
{
  EXPECT_TRUE(Works(2));
  const VOXISamSelectionList_var spManager = world->Manager();
  const CallLog log;
  EXPECT_EQ(spManager->SetSelected(2), S_OK);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"own implementation(0)", "VOXISamBasicComponent::GetValue(, 0, 0, 0)", "VOXICkeParm::Value",
                   "VOXICkeInst::AsInteger"}));
}

TEST_F(VOXESamEnumManagerSelection, EveryOtherEntryIsWorkAndTheStoredOneNeverAgain)
{
  EXPECT_TRUE(Works(3));
  EXPECT_FALSE(Works(3));
  EXPECT_TRUE(Works(1));
  EXPECT_FALSE(Works(1));
  EXPECT_TRUE(Works(3));
}

TEST_F(VOXESamEnumManagerSelection, TheValueThatIsStoredMeanwhileCounts)
{
  EXPECT_TRUE(Works(3));
  ScriptedCkeInst::ScriptOf(world->instance).integer = 1;
  EXPECT_FALSE(Works(1));
  EXPECT_TRUE(Works(3));
}

TEST_F(VOXESamEnumManagerSelection, AWholeSelectionIsMadeInThisOrder)
{
  world->Add("Mass.2");
  world->Add("Old");
  world->Derived().needed = {{"Mass", "m", world->Kind("kg")}, {"Force", "f", world->Kind("N")}};
  const VOXISamSelectionList_var spManager = world->Manager();
  const CallLog log;
  EXPECT_EQ(spManager->SetSelected(3), S_OK);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"own implementation(0)", "VOXISamBasicComponent::GetValue(, 0, 0, 0)", "VOXICkeParm::Value",
                   "VOXICkeInst::AsInteger", "VOXICkeParm::Valuate(3)", "GetSelected", "own implementation(0)",
                   "VOXISamBasicComponent::GetValue(, 0, 0, 0)", "VOXICkeParm::Value", "VOXICkeInst::AsString",
                   "VOXICkeInst::AsInteger", "GetResult(entry 3)", "VOXISamBasicComponent::ListSubComponents()",
                   "VOXISpecObject::GetIdentifyingString", "VOXISpecObject::SetIdentifyingString(Mass)",
                   "VOXISpecObject::GetIdentifyingString", "VOXISamBasicComponent::RemoveSubComponent(Old)",
                   "own implementation(0)", "VOXISamBasicComponent::CreateSubComponent(Force, f, N)"}));
}

TEST_F(VOXESamEnumManagerSelection, WhatIsNoBasicComponentFailsAndHasItsFirstSelectionBeforeIt)
{
  const VOXISamSelectionList_var spStranger(world->MoreComponents().Component<TiedPlainManager>());
  EXPECT_EQ(spStranger->SetSelected(1), E_FAIL);
  Faults::FailOperation("VOXBaseUnknown::QueryInterface", 2, false); // the first is the test's own
  EXPECT_FALSE(Works(2, E_FAIL));
  Faults::Disarm();
  EXPECT_TRUE(Works(2));
}

TEST_F(VOXESamEnumManagerSelection, AValueThatCannotBeHadFailsAndLeavesTheFirstSelectionToCome)
{
  world->Told().valueResult = E_NOTIMPL;
  const CallLog log;
  EXPECT_EQ(world->Select(2), E_FAIL);
  EXPECT_EQ(log.Count("VOXICkeParm::"), 0);
  EXPECT_EQ(log.Count(kWork), 0);
  world->Told().valueResult = S_FALSE;
  EXPECT_EQ(world->Select(2), S_OK);
  EXPECT_EQ(log.Count(kWork), 1);
}

TEST_F(VOXESamEnumManagerSelection, WithoutParameterNothingIsValuatedAndTheStoredEntryIsZero)
{
  world->Told().value = world->instance;
  const CallLog log;
  EXPECT_TRUE(world->Outcome(1).empty());
  EXPECT_EQ(log.Count("VOXICkeParm::"), 0);
}

TEST_F(VOXESamEnumManagerSelection, WithoutParameterOnlyZeroIsTheStoredEntry)
{
  world->Told().value = nullptr;
  EXPECT_TRUE(Works(0));
  EXPECT_FALSE(Works(0));
  EXPECT_TRUE(Works(1));
  EXPECT_TRUE(Works(1));
}

TEST_F(VOXESamEnumManagerSelection, AParameterWithoutValueIsValuatedAndItsStoredEntryIsZero)
{
  world->Parameter().instance = nullptr;
  EXPECT_TRUE(Works(0));
  EXPECT_FALSE(Works(0));
  const CallLog log;
  EXPECT_EQ(world->Select(2), S_OK);
  EXPECT_EQ(log.Count("VOXICkeParm::Valuate(2)"), 1);
}

TEST_F(VOXESamEnumManagerSelection, AParameterThatDoesNotTakeTheEntryChangesNothingElse)
{
  world->Parameter().valuateResult = E_FAIL;
  world->Derived().needed = {{"Mass", "m"}};
  EXPECT_EQ(world->Outcome(3), Outcome{"CreateSubComponent(Mass, m, null)"});
  EXPECT_EQ(ScriptedCkeInst::ScriptOf(world->instance).integer, 2);
}

TEST_F(VOXESamEnumManagerSelection, TheValueOfAnOverrideIsWhatSubComponentsAreNeededFor)
{
  world->Derived().selected = "my own";
  const CallLog log;
  EXPECT_EQ(world->Select(1), S_OK);
  EXPECT_EQ(log.Only({"GetResult"}), Calls{"GetResult(my own)"});
}

TEST_F(VOXESamEnumManagerSelection, AnOverrideThatFailsStopsNothing)
{
  world->Derived().selected = "my own";
  world->Derived().selectedResult = E_FAIL;
  world->Derived().needed = {{"Mass", "m"}};
  world->Derived().neededResult = E_FAIL;
  EXPECT_EQ(world->Outcome(1), Outcome{"CreateSubComponent(Mass, m, null)"});
}

TEST_F(VOXESamEnumManagerSelection, WhatIsNeededIsPutIntoEmptyLists)
{
  bool empty = false;
  world->Derived().whenAskedForResult = [&](bool iEmptyLists) { empty = iEmptyLists; };
  EXPECT_TRUE(Works(1));
  EXPECT_TRUE(empty);
}

TEST_F(VOXESamEnumManagerSelection, SelectingTheSameEntryMeanwhileDoesNothing)
{
  const VOXISamSelectionList_var spManager = world->Manager();
  HRESULT meanwhile = E_FAIL;
  world->Derived().whenAskedForResult = [&](bool) { meanwhile = spManager->SetSelected(3); };
  EXPECT_TRUE(Works(3));
  EXPECT_EQ(meanwhile, S_OK);
}

TEST_F(VOXESamEnumManagerSelection, TheManagerItselfRemovesEverySubComponentAndCreatesNone)
{
  VOXBaseUnknown* const plain = world->MoreComponents().Component<ScriptedListedComponent, TiedPlainManager>();
  world->Add("Mass");
  world->Add("Force");
  ScriptedListedComponent::ScriptOf(plain) = world->Told();
  const VOXISamSelectionList_var spManager(plain);
  const CallLog log;
  EXPECT_EQ(spManager->SetSelected(2), S_OK);
  EXPECT_EQ(spManager->SetSelected(2), S_OK);
  EXPECT_EQ(
      log.Only({"VOXISamBasicComponent::R", "VOXISamBasicComponent::C"}),
      (Calls{"VOXISamBasicComponent::RemoveSubComponent(Mass)", "VOXISamBasicComponent::RemoveSubComponent(Force)"}));
}

TEST_F(VOXESamEnumManagerSelection, AWantedSubComponentIsKeptAndNothingIsWrittenToIt)
{
  world->Add("Mass");
  world->Derived().needed = {{"Force", "f"}, {"Mass", "m"}};
  EXPECT_EQ(world->Outcome(1), Outcome{"CreateSubComponent(Force, f, null)"});
}

TEST_F(VOXESamEnumManagerSelection, ANumberedCopyIsKeptUnderThePlainString)
{
  VOXBaseUnknown* const copy = world->Add("Mass.2");
  world->Derived().needed = {{"Force", "f"}, {"Mass", "m"}};
  EXPECT_EQ(world->Outcome(1), (Outcome{"SetIdentifyingString(Mass)", "CreateSubComponent(Force, f, null)"}));
  EXPECT_EQ(SelectionWorld::StringOf(copy), "Mass");
}

TEST_F(VOXESamEnumManagerSelection, AStringIsShortenedAtItsFirstDot)
{
  world->Add("Mass.2.1");
  world->Derived().needed = {{"Mass", "m"}};
  EXPECT_EQ(world->Outcome(1), Outcome{"SetIdentifyingString(Mass)"});
  world->Derived().needed = {{"Mass.2", "m"}};
  EXPECT_EQ(world->Outcome(3), (Outcome{"RemoveSubComponent(Mass.2.1)", "CreateSubComponent(Mass.2, m, null)"}));
}

TEST_F(VOXESamEnumManagerSelection, TheWholeStringIsLookedUpBeforeTheShortenedOne)
{
  world->Add("Mass.2");
  world->Derived().needed = {{"Mass", "plain"}, {"Mass.2", "numbered"}};
  EXPECT_EQ(world->Outcome(1), Outcome{"CreateSubComponent(Mass, plain, null)"});
}

TEST_F(VOXESamEnumManagerSelection, AStringThatBeginsWithADotIsNeverShortened)
{
  world->Add(".Mass");
  world->Add(".");
  world->Derived().needed = {{"", "empty"}, {"Mass", "m"}};
  EXPECT_EQ(world->Outcome(1), (Outcome{"RemoveSubComponent(.Mass)", "RemoveSubComponent(.)",
                                        "CreateSubComponent(, empty, null)", "CreateSubComponent(Mass, m, null)"}));
}

TEST_F(VOXESamEnumManagerSelection, AStringThatBeginsWithADotIsNotShortenedAtALaterOneEither)
{
  world->Add(".Mass.2");
  world->Derived().needed = {{".Mass", "m"}};
  EXPECT_EQ(world->Outcome(1), (Outcome{"RemoveSubComponent(.Mass.2)", "CreateSubComponent(.Mass, m, null)"}));
}

TEST_F(VOXESamEnumManagerSelection, AStringWithoutDotThatIsNotWantedIsRemoved)
{
  world->Add("Masses");
  world->Add("Mas");
  world->Derived().needed = {{"Mass", "m"}};
  EXPECT_EQ(world->Outcome(1),
            (Outcome{"RemoveSubComponent(Masses)", "RemoveSubComponent(Mas)", "CreateSubComponent(Mass, m, null)"}));
}

TEST_F(VOXESamEnumManagerSelection, AShortenedStringThatIsNotWantedIsNotWritten)
{
  VOXBaseUnknown* const copy = world->Add("Mass.2");
  EXPECT_EQ(world->Outcome(1), Outcome{"RemoveSubComponent(Mass.2)"});
  EXPECT_EQ(SelectionWorld::StringOf(copy), "Mass.2");
}

TEST_F(VOXESamEnumManagerSelection, OfTwoEqualEntriesASubComponentUsesUpTheFirst)
{
  world->Add("Mass");
  world->Derived().needed = {
      {"Mass", "first", world->Kind("kg")}, {"Force", "f", world->Kind("N")}, {"Mass", "second", world->Kind("g")}};
  EXPECT_EQ(world->Outcome(1), (Outcome{"CreateSubComponent(Force, f, N)", "CreateSubComponent(Mass, second, g)"}));
}

TEST_F(VOXESamEnumManagerSelection, OfTwoEqualSubComponentsTheFirstIsKept)
{
  world->Add("Mass.2");
  world->Add("Mass");
  world->Derived().needed = {{"Mass", "m"}};
  EXPECT_EQ(world->Outcome(1), (Outcome{"SetIdentifyingString(Mass)", "RemoveSubComponent(Mass)"}));
}

TEST_F(VOXESamEnumManagerSelection, ASubComponentThatIsNoFeatureHasTheEmptyString)
{
  world->AddNoFeature("bare");
  world->AddNoFeature("bare too");
  world->Derived().needed = {{"", "empty"}};
  EXPECT_EQ(world->Outcome(1), Outcome{"RemoveSubComponent(bare too)"});
}

TEST_F(VOXESamEnumManagerSelection, AnEmptyHandleAmongTheSubComponentsIsHandedBackForRemoval)
{
  world->Told().subComponents = Objects{nullptr};
  EXPECT_EQ(world->Outcome(1), Outcome{"RemoveSubComponent(null)"});
}

TEST_F(VOXESamEnumManagerSelection, AListThatComesWithAFailureIsUsed)
{
  world->Add("Old");
  world->Told().listResult = E_FAIL;
  EXPECT_EQ(world->Outcome(1), Outcome{"RemoveSubComponent(Old)"});
}

TEST_F(VOXESamEnumManagerSelection, WithoutSubComponentsEverythingIsCreatedInOrder)
{
  world->Derived().needed = {{"Mass", "m", world->Kind("kg")}, {"Force", "f"}, {"Mass", "n"}};
  EXPECT_EQ(world->Outcome(1), (Outcome{"CreateSubComponent(Mass, m, kg)", "CreateSubComponent(Force, f, null)",
                                        "CreateSubComponent(Mass, n, null)"}));
}

TEST_F(VOXESamEnumManagerSelection, RemovalsAndCreationsThatFailDoNotKeepTheRestFromBeingDone)
{
  world->Add("Old");
  world->Add("Older");
  world->Derived().needed = {{"Mass", "m"}, {"Force", "f"}};
  world->Told().removeResult = E_FAIL;
  world->Told().createResult = E_FAIL;
  EXPECT_EQ(world->Outcome(1), (Outcome{"RemoveSubComponent(Old)", "RemoveSubComponent(Older)",
                                        "CreateSubComponent(Mass, m, null)", "CreateSubComponent(Force, f, null)"}));
}

TEST_F(VOXESamEnumManagerSelection, ASubComponentThatComesWhileOthersAreRemovedIsNotLookedAt)
{
  VOXBaseUnknown* const late = world->Add("Late");
  world->Told().subComponents->clear();
  world->Add("Old");
  VOXListValVOXBaseUnknown_var* listed = nullptr;
  world->Told().whenListed = [&](VOXListValVOXBaseUnknown_var& iList) { listed = &iList; };
  world->Told().whenRemoved = [&] { listed->Append(VOXBaseUnknown_var(late)); };
  EXPECT_EQ(world->Outcome(1), Outcome{"RemoveSubComponent(Old)"});
}

TEST_F(VOXESamEnumManagerSelection, TheListOfSubComponentsIsGivenBackBeforeAnyIsCreated)
{
  VOXBaseUnknown* const kept = world->Add("Mass");
  world->Derived().needed = {{"Mass", "m"}, {"Force", "f"}};
  long meanwhile = -1;
  world->Told().whenCreated = [&] { meanwhile = Bench::References(kept); };
  EXPECT_TRUE(Works(1));
  EXPECT_EQ(meanwhile, 0);
}

TEST_F(VOXESamEnumManagerSelection, NothingIsCreatedOnceTheComponentIsGoneHoweverLongTheListsAre)
{
  world->Add("Old");
  world->Derived().needed = {{"Mass", "m"}};
  world->Derived().moreSeconds = {"one too many"};
  world->Derived().losesComponent = true;
  EXPECT_EQ(world->Outcome(1), Outcome{"RemoveSubComponent(Old)"});
}

TEST_F(VOXESamEnumManagerSelection, ListsOfDifferentLengthsEndFatallyBeforeAnythingIsCreated)
{
  for (const bool inSeconds : {true, false})
  {
    world.emplace();
    world->Add("Mass");
    world->Add("Old");
    world->Derived().needed = {{"Mass", "m"}, {"Force", "f"}};
    if (inSeconds)
      world->Derived().moreSeconds = {"one too many"};
    else
      world->Derived().moreKinds = {nullptr};
    const CallLog log;
    const voxhost::CheckReport fatal = Fatal();
    EXPECT_EQ(fatal.text, "AssertionFailed:size==iFeatureType.Size() && iListOfVOXICkeType.Size()==size") << inSeconds;
    EXPECT_EQ(fatal.file, "VOXAnalysisAdaptors.m/src/VOXESamEnumManager");
    EXPECT_GT(fatal.line, 0);
    EXPECT_EQ(log.Count("VOXISamBasicComponent::RemoveSubComponent(Old)"), 1) << "what is old went before";
    EXPECT_EQ(log.Count("VOXISamBasicComponent::CreateSubComponent"), 0);
  }
}

TEST_F(VOXESamEnumManagerSelection, ListsThatAreLongerThanTheFirstEndFatallyEvenIfThatIsEmpty)
{
  world->Derived().moreSeconds = {"one"};
  world->Derived().moreKinds = {nullptr};
  EXPECT_NE(Fatal().text, "");
}

TEST(VOXESamEnumManagerSelectionTorture, ASelectionSurvivesEveryFailure)
{
  Torture torture("SetSelected");
  torture.ReportsNothing().Run(
      [](TortureRun& ioRun)
      {
        SelectionWorld world;
        VOXBaseUnknown* const kept = world.Add("Mass");
        VOXBaseUnknown* const copy = world.Add("Force.2");
        world.Add("Old.1");
        world.Derived().needed = {{"Mass", "m"}, {"Force", "f"}, {"Length", "l", world.Kind("mm")}};
        const VOXISamSelectionList_var spManager = world.Manager();
        ioRun.Call([&] { return spManager->SetSelected(3); });
        EXPECT_EQ(SelectionWorld::StringOf(kept), "Mass");
        const std::string renamed = SelectionWorld::StringOf(copy);
        EXPECT_TRUE(renamed == "Force" || (ioRun.IsTortured() && renamed == "Force.2"));
        EXPECT_TRUE(ioRun.Succeeded() || renamed == "Force.2");
      });
  EXPECT_GT(torture.HostCalls(), 15);
}
