// SPDX-License-Identifier: MIT
// How a list manager answers for its value: mode, list, and what is selected.
#include "VOXESamEnumManager.h"
#include "host/Instruments/Ledger.h"
#include "tests/adaptors/Face.h"
#include "tests/adaptors/Reported.h"
#include "tests/adaptors/SelectionWorld.h"

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Ledger;

namespace
{

using Entries = std::vector<std::string>;

Entries AsEntries(const VOXListValVOXUnicodeString& iList)
{
  Entries entries;
  for (int i = 1; i <= iList.Size(); ++i)
    entries.emplace_back(iList[i].ConvertToChar());
  return entries;
}

class VOXESamEnumManagerQueries : public testing::Test
{
protected:
  VOXESamEnumManagerQueries()
  {
    ResetErrors();
    Ledger::TurnOn();
    world.emplace();
  }
  ~VOXESamEnumManagerQueries() override
  {
    EXPECT_TRUE(AllReported().empty());
    world.reset();
    EXPECT_EQ(Ledger::Read().references, 0);
    Ledger::TurnOff();
    ResetErrors();
  }

  VOXSamSelectionMode Mode()
  {
    auto mode = static_cast<VOXSamSelectionMode>(77);
    EXPECT_EQ(world->Manager()->GetMode(mode), S_OK);
    return mode;
  }

  Entries List()
  {
    VOXListValVOXUnicodeString list;
    list.Append("from before");
    EXPECT_EQ(world->Manager()->GetList(list), S_OK);
    return AsEntries(list);
  }

  // The value and the index, "untouched" as long as nobody writes the value.
  std::pair<std::string, int> Selected(HRESULT iExpected = S_OK)
  {
    VOXUnicodeString value("untouched");
    int index = 77;
    EXPECT_EQ(world->Manager()->GetSelected(value, index), iExpected);
    return {value.ConvertToChar(), index};
  }

  // Calls of one operation, without the host's queries.
  template <class Operation>
  Calls During(Operation iOperation)
  {
    const VOXISamSelectionList_var spManager = world->Manager();
    iOperation(spManager); // makes the faces that are asked for
    const CallLog log;
    iOperation(spManager);
    return log.Without({"VOXBaseUnknown::"});
  }

  // A list manager on a component that is no basic component.
  VOXISamSelectionList_var Stranger()
  {
    return VOXISamSelectionList_var(world->MoreComponents().Component<TiedPlainManager>());
  }

  std::optional<SelectionWorld> world;
};

const std::pair<std::string, int> kNothingSelected{"untouched", 0};

} // namespace

TEST_F(VOXESamEnumManagerQueries, AnEnumerationIsChosenFromItsList)
{
  EXPECT_EQ(Mode(), VOXSamSelectFromList);
  EXPECT_EQ(static_cast<int>(VOXSamSelectFromList), 0);
}

TEST_F(VOXESamEnumManagerQueries, AValueOfEveryOtherTypeIsChosenFreely)
{
  for (const VOXCkeContext::TypeKind kind :
       {VOXCkeContext::RealType, VOXCkeContext::IntegerType, VOXCkeContext::StringType, VOXCkeContext::BooleanType})
  {
    ScriptedCkeType::ScriptOf(world->value).kind = kind;
    EXPECT_EQ(Mode(), VOXSamSelectFree) << kind;
  }
  EXPECT_EQ(static_cast<int>(VOXSamSelectFree), 1);
}

TEST_F(VOXESamEnumManagerQueries, AValueWithoutTypeIsChosenFreely)
{
  world->Told().value = world->instance;
  EXPECT_EQ(Mode(), VOXSamSelectFree);
}

TEST_F(VOXESamEnumManagerQueries, NoValueIsChosenFreely)
{
  world->Told().value = nullptr;
  EXPECT_EQ(Mode(), VOXSamSelectFree);
}

TEST_F(VOXESamEnumManagerQueries, TheModeComesFromAValueThatCameWithAFailure)
{
  world->Told().valueResult = E_FAIL;
  EXPECT_EQ(Mode(), VOXSamSelectFromList);
}

TEST_F(VOXESamEnumManagerQueries, TheModeIsFreeWhileTheValueIsAskedFor)
{
  auto mode = static_cast<VOXSamSelectionMode>(77);
  int meanwhile = 0;
  world->Told().whenAskedForValue = [&] { meanwhile = mode; };
  EXPECT_EQ(world->Manager()->GetMode(mode), S_OK);
  EXPECT_EQ(meanwhile, VOXSamSelectFree);
}

TEST_F(VOXESamEnumManagerQueries, TheModeOfWhatIsNoBasicComponentIsLeftAsItIs)
{
  auto mode = static_cast<VOXSamSelectionMode>(77);
  EXPECT_EQ(Stranger()->GetMode(mode), E_FAIL);
  EXPECT_EQ(mode, 77);
}

TEST_F(VOXESamEnumManagerQueries, TheModeIsFoundByTheseCalls)
{
  auto mode = VOXSamSelectFree;
  EXPECT_EQ(
      During([&](VOXISamSelectionList* iManager) { iManager->GetMode(mode); }),
      (Calls{"own implementation(0)", "VOXISamBasicComponent::GetValue(, 0, 0, 0)", "VOXICkeType::IsAKindOfType(4)"}));
}

TEST_F(VOXESamEnumManagerQueries, TheListHasTheEntriesInTheirOrderAndNothingFromBefore)
{
  EXPECT_EQ(List(), (Entries{"Solid", "Shell", "Beam"}));
}

TEST_F(VOXESamEnumManagerQueries, AnotherTypeHasAnEmptyListAndIsNotAskedForEntries)
{
  ScriptedCkeType::ScriptOf(world->value).kind = VOXCkeContext::IntegerType;
  const CallLog log;
  EXPECT_EQ(List(), Entries{});
  EXPECT_EQ(log.Count("VOXIEnumere::"), 0);
}

TEST_F(VOXESamEnumManagerQueries, AnEnumerationThatGivesNoEntriesHasAnEmptyList)
{
  world->Told().value = world->MoreComponents().Component<ScriptedCkeType>();
  EXPECT_EQ(List(), Entries{});
}

TEST_F(VOXESamEnumManagerQueries, AValueWithoutTypeHasAnEmptyList)
{
  world->Told().value = world->instance;
  EXPECT_EQ(List(), Entries{});
  world->Told().value = nullptr;
  EXPECT_EQ(List(), Entries{});
}

TEST_F(VOXESamEnumManagerQueries, TheListComesFromAValueThatCameWithAFailure)
{
  world->Told().valueResult = E_FAIL;
  EXPECT_EQ(List(), (Entries{"Solid", "Shell", "Beam"}));
}

TEST_F(VOXESamEnumManagerQueries, TheListIsEmptyWhileTheValueIsAskedFor)
{
  VOXListValVOXUnicodeString list;
  list.Append("from before");
  int meanwhile = -1;
  world->Told().whenAskedForValue = [&] { meanwhile = list.Size(); };
  EXPECT_EQ(world->Manager()->GetList(list), S_OK);
  EXPECT_EQ(meanwhile, 0);
}

TEST_F(VOXESamEnumManagerQueries, TheListOfWhatIsNoBasicComponentIsEmptiedAllTheSame)
{
  VOXListValVOXUnicodeString list;
  list.Append("from before");
  EXPECT_EQ(Stranger()->GetList(list), E_FAIL);
  EXPECT_EQ(list.Size(), 0);
}

TEST_F(VOXESamEnumManagerQueries, TheListIsFoundByTheseCalls)
{
  VOXListValVOXUnicodeString list;
  EXPECT_EQ(During([&](VOXISamSelectionList* iManager) { iManager->GetList(list); }),
            (Calls{"own implementation(0)", "VOXISamBasicComponent::GetValue(, 0, 0, 0)",
                   "VOXICkeType::IsAKindOfType(4)", "VOXIEnumere::GetValueList(0)"}));
}

TEST_F(VOXESamEnumManagerQueries, TheSelectedEntryIsTheTextAndTheNumberOfTheValue)
{
  EXPECT_EQ(Selected(), (std::pair<std::string, int>{"Shell", 2}));
}

TEST_F(VOXESamEnumManagerQueries, AValueThatIsNoEnumerationIsSelectedLikeOne)
{
  ScriptedCkeType::ScriptOf(world->value).kind = VOXCkeContext::StringType;
  ScriptedCkeInst::ScriptOf(world->instance) = {"steel", 7};
  EXPECT_EQ(Selected(), (std::pair<std::string, int>{"steel", 7}));
}

TEST_F(VOXESamEnumManagerQueries, NothingIsSelectedWithoutParameter)
{
  world->Told().value = world->instance;
  EXPECT_EQ(Selected(), kNothingSelected);
  world->Told().value = nullptr;
  EXPECT_EQ(Selected(), kNothingSelected);
}

TEST_F(VOXESamEnumManagerQueries, NothingIsSelectedWhileTheParameterHasNoValue)
{
  world->Parameter().instance = nullptr;
  EXPECT_EQ(Selected(), kNothingSelected);
}

TEST_F(VOXESamEnumManagerQueries, NothingIsSelectedWhenTheValueCannotBeHadEvenIfItComes)
{
  world->Told().valueResult = E_NOTIMPL;
  const CallLog log;
  EXPECT_EQ(Selected(E_FAIL), kNothingSelected);
  EXPECT_EQ(log.Count("VOXICkeParm::"), 0);
}

TEST_F(VOXESamEnumManagerQueries, AQueryForTheValueThatSucceedsInAnotherWayIsNoFailure)
{
  world->Told().valueResult = S_FALSE;
  EXPECT_EQ(Selected(), (std::pair<std::string, int>{"Shell", 2}));
}

TEST_F(VOXESamEnumManagerQueries, TheIndexIsZeroWhileTheValueIsAskedFor)
{
  VOXUnicodeString value;
  int index = 77;
  int meanwhile = -1;
  world->Told().whenAskedForValue = [&] { meanwhile = index; };
  EXPECT_EQ(world->Manager()->GetSelected(value, index), S_OK);
  EXPECT_EQ(meanwhile, 0);
}

TEST_F(VOXESamEnumManagerQueries, NothingIsSelectedInWhatIsNoBasicComponent)
{
  VOXUnicodeString value("untouched");
  int index = 77;
  EXPECT_EQ(Stranger()->GetSelected(value, index), E_FAIL);
  EXPECT_EQ(index, 0);
  EXPECT_TRUE(value == "untouched");
}

TEST_F(VOXESamEnumManagerQueries, TheSelectedEntryIsFoundByTheseCalls)
{
  VOXUnicodeString value;
  int index = 0;
  EXPECT_EQ(During([&](VOXISamSelectionList* iManager) { iManager->GetSelected(value, index); }),
            (Calls{"GetSelected", "own implementation(0)", "VOXISamBasicComponent::GetValue(, 0, 0, 0)",
                   "VOXICkeParm::Value", "VOXICkeInst::AsString", "VOXICkeInst::AsInteger"}));
}

TEST_F(VOXESamEnumManagerQueries, NoErrorHandlerIsMadeAndAPendingErrorStays)
{
  const PendingError pending;
  EXPECT_EQ(ErrorHandlersDuring(
                [this]
                {
                  Mode();
                  List();
                  Selected();
                  world->Select(1);
                }),
            0);
  EXPECT_TRUE(PendingError::Stands());
}

TEST(VOXESamEnumManagerQueriesTorture, TheModeSurvivesEveryFailure)
{
  Torture("GetMode").ReportsNothing().Run(
      [](TortureRun& ioRun)
      {
        SelectionWorld world;
        const VOXISamSelectionList_var spManager = world.Manager();
        auto mode = static_cast<VOXSamSelectionMode>(77);
        ioRun.Call([&] { return spManager->GetMode(mode); });
        EXPECT_EQ(ioRun.Failed(), mode == 77);
        EXPECT_TRUE(ioRun.IsTortured() || mode == VOXSamSelectFromList);
      });
}

TEST(VOXESamEnumManagerQueriesTorture, TheListSurvivesEveryFailure)
{
  Torture("GetList").ReportsNothing().Run(
      [](TortureRun& ioRun)
      {
        SelectionWorld world;
        const VOXISamSelectionList_var spManager = world.Manager();
        VOXListValVOXUnicodeString list;
        list.Append("from before");
        ioRun.Call([&] { return spManager->GetList(list); });
        EXPECT_TRUE(list.Size() == 0 || (ioRun.Succeeded() && list.Size() == 3));
        EXPECT_TRUE(ioRun.IsTortured() || list.Size() == 3);
      });
}

TEST(VOXESamEnumManagerQueriesTorture, TheSelectedEntrySurvivesEveryFailure)
{
  Torture("GetSelected")
      .ReportsNothing()
      .Run(
          [](TortureRun& ioRun)
          {
            SelectionWorld world;
            const VOXISamSelectionList_var spManager = world.Manager();
            VOXUnicodeString value("untouched");
            int index = 77;
            ioRun.Call([&] { return spManager->GetSelected(value, index); });
            EXPECT_TRUE(index == 0 || index == 2);
            EXPECT_TRUE(ioRun.Succeeded() || (index == 0 && value == "untouched"));
            EXPECT_TRUE(ioRun.IsTortured() || index == 2);
          });
}
