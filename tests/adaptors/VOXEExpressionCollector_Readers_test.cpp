// SPDX-License-Identifier: MIT
// Counting, listing and reading expressions; the places of the operations.
#include "tests/adaptors/ExpressionWorld.h"
#include "tests/adaptors/TraceReader.h"
#include "tests/support/Memory.h"
#include "tests/support/VirtualTable.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;

namespace
{

constexpr char kQuery[] = "VOXBaseUnknown::QueryInterface";
constexpr char kUpToDate[] = "VOXISpecObject::IsUpToDate(whole document)";
constexpr char kParent[] = "VOXISamExplicit::GetExplicitParent(1)";
constexpr char kLinkValue[] = "VOXILinkableObject::GetLinkValue";
constexpr char kGetModel[] = "VOXAnalysisExplicitData::GetModel";
constexpr char kCreateList[] = "VOXAnalysisExplicitListUsr::CreateList";
constexpr char kChildren[] = "VOXAnalysisExplicitParent::GetChildrenList";
constexpr char kContents[] = "VOXAnalysisExplicitList::GetContents";
constexpr char kLink[] = "VOXAnalysisExplicitChild::LinkWithPointer";
constexpr char kInsert[] = "VOXAnalysisExplicitListUsr::Insert";
constexpr char kBadIndex[] = "(0 > iNumber) || (iNumber >= _Number)";

class VOXEExpressionCollectorReaders : public ExpressionTest
{
protected:
  VOXEExpressionCollectorReaders() { EXPECT_EQ(list.CreateList(&world->Model()), S_OK); }
  ~VOXEExpressionCollectorReaders() override { list.Delete(); }

  HRESULT Available(const VOXAnalysisExplicitExpression& iDefinition = {})
  {
    const HRESULT result = (*world)->GetAvailableExpressions(iDefinition, list);
    Faults::Disarm();
    return result;
  }

  VOXAnalysisExplicitListUsr list;
};

using Names = std::vector<std::string>;

} // namespace

TEST(VOXEExpressionCollectorPattern, OperationsAreInTheInterfacesOrder)
{
  EXPECT_EQ(OwnPlace(&VOXEExpressionCollector::GetAvailableExpressions), 1);
  EXPECT_EQ(OwnPlace(&VOXEExpressionCollector::GetExpressionTitle), 2);
  EXPECT_EQ(OwnPlace(&VOXEExpressionCollector::GetNumberOfExpressions), 3);
  EXPECT_EQ(OwnPlace(&VOXEExpressionCollector::GetExpression), 4);
  EXPECT_EQ(OwnPlace(&VOXEExpressionCollector::DeleteExpression), 5);
  EXPECT_EQ(OwnPlace(&VOXEExpressionCollector::DeleteAll), 6);
  EXPECT_EQ(OwnPlace(&VOXEExpressionCollector::Update), 7);
}

TEST_F(VOXEExpressionCollectorReaders, OperationsAreReachedThroughTheirPlaces)
{
  int number = 0;
  EXPECT_EQ((CallOwn<HRESULT, int&>(&world->Adaptor(), 3, number)), S_OK);
  EXPECT_EQ(number, 3);
  EXPECT_EQ(CallOwn<HRESULT>(&world->Adaptor(), 7), S_OK);
  EXPECT_EQ(world->Number(), -1);
}

TEST_F(VOXEExpressionCollectorReaders, MembersComeInTheirOrderBehindTheBase)
{
  constexpr std::ptrdiff_t kContext = 48 + sizeof(VOXAnalysisExplicitListUsr);
  constexpr std::ptrdiff_t kLinkable = kContext + sizeof(VOXAnalysisExplicitParent);
  EXPECT_EQ(ExpressionParts::Offsets(world->Adaptor()), (std::vector<std::ptrdiff_t>{32, 40, 48, kContext, kLinkable}));
  EXPECT_EQ(sizeof(VOXEExpressionCollector), kLinkable + sizeof(void*));
}

TEST_F(VOXEExpressionCollectorReaders, ANewAdaptorKnowsNothing)
{
  EXPECT_EQ(world->Number(), -1);
  EXPECT_EQ(world->Pointers(), nullptr);
  EXPECT_FALSE(world->HasList());
  EXPECT_FALSE(world->HasContext());
  EXPECT_EQ(world->Adaptor()._LinkableValue, nullptr);
}

TEST_F(VOXEExpressionCollectorReaders, ExpressionsAreCountedAndOtherChildrenAreNot)
{
  EXPECT_EQ(world->Count(), 3);
  EXPECT_EQ(world->Number(), 3);
}

TEST_F(VOXEExpressionCollectorReaders, AContextWithoutExpressionsHasNone)
{
  for (VOXAnalysisExplicitExpression& expression : world->Expressions())
    expression.Delete();
  EXPECT_EQ(world->Count(), 0);
  EXPECT_TRUE(world->HasList());
  EXPECT_EQ(Available(), S_OK);
  EXPECT_EQ(list.GetLength(0), 0);
}

TEST_F(VOXEExpressionCollectorReaders, TheFirstCountFindsContextAndListInThisOrder)
{
  world->MakeInterfaces();
  const CallLog log;
  world->Count();
  EXPECT_EQ(log.All(),
            (Calls{kQuery, kUpToDate, kQuery, kParent, kQuery, kLinkValue, kGetModel, kCreateList, kChildren}));
}

TEST_F(VOXEExpressionCollectorReaders, FurtherReadersAskOnlyWhetherTheFeatureIsUpToDate)
{
  world->Count();
  CallLog log;
  world->Count();
  EXPECT_EQ(log.All(), (Calls{kQuery, kUpToDate}));
  log.Clear();
  Available();
  EXPECT_EQ(log.All(), (Calls{kQuery, kUpToDate, kInsert}));
  log.Clear();
  world->Name(0);
  EXPECT_EQ(log.All(), (Calls{kQuery, kUpToDate, kContents, kGetModel, kLink}));
  log.Clear();
  world->Name(1);
  EXPECT_EQ(log.All(), (Calls{kQuery, kUpToDate, kGetModel, kLink})) << "the contents are asked for once";
}

TEST_F(VOXEExpressionCollectorReaders, EveryInterfaceIsGivenBack)
{
  world->MakeInterfaces();
  const CallLog log(CallLog::References::Recorded);
  world->Count();
  EXPECT_EQ(log.Only({"Release"}),
            (Calls{"Release VOXISpecObject", "Release VOXILinkableObject", "Release VOXISamExplicit"}));
  EXPECT_EQ(Bench::References(world->Feature()), 1) << "the handle's of the world";
}

TEST_F(VOXEExpressionCollectorReaders, WhatComesLaterIsCountedAfterTheNextUpdate)
{
  EXPECT_EQ(world->Count(), 3);
  world->Add("fourth");
  EXPECT_EQ(world->Count(), 3);
  (*world)->Update();
  EXPECT_EQ(world->Count(), 4);
  EXPECT_EQ(world->Name(3), "fourth");
}

TEST_F(VOXEExpressionCollectorReaders, TheExpressionsAreAppendedToTheCallersList)
{
  list.Append(world->Context());
  EXPECT_EQ(Available(), S_OK);
  EXPECT_EQ(list.GetLength(0), 4);
  EXPECT_TRUE(*list.First(1) == world->Context());
  EXPECT_TRUE(*list.Next(1) == world->Expressions().front());
  EXPECT_EQ(Available(), S_OK);
  EXPECT_EQ(list.GetLength(0), 7) << "also those that are there already";
}

TEST_F(VOXEExpressionCollectorReaders, AListThatWasNotCreatedCannotTakeThem)
{
  VOXAnalysisExplicitListUsr none;
  EXPECT_EQ((*world)->GetAvailableExpressions({}, none), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kExpressions}}));
  EXPECT_EQ(world->Number(), 3) << "the adaptor's own list stands";
}

TEST_F(VOXEExpressionCollectorReaders, ADefinitionIsRefusedBeforeTheFeatureIsLookedAt)
{
  const TraceReader reader(Tra_SAMTraceExpli);
  {
    const CallLog log;
    EXPECT_EQ(Available(world->Expressions().front()), E_FAIL);
    EXPECT_TRUE(log.All().empty());
  }
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "iDefinition != NULL_exp", kExpressions}}));
  EXPECT_EQ(reader.Text(), "iDefinition must be NULL_exp\n");
  EXPECT_EQ(list.GetLength(0), 0);
}

TEST_F(VOXEExpressionCollectorReaders, ExpressionsAreReadByNumberFromZero)
{
  EXPECT_EQ((Names{world->Name(0), world->Name(1), world->Name(2)}), (Names{"first", "second", "third"}));
}

TEST_F(VOXEExpressionCollectorReaders, ANumberOutsideIsRefused)
{
  for (const int number : {-1, 3, 4, -1000})
  {
    ResetErrors();
    EXPECT_EQ(world->Name(number), "") << number;
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, kBadIndex, kExpressions}})) << number;
    EXPECT_NE(world->Pointers(), nullptr) << "the items were read nevertheless and are kept";
  }
  EXPECT_EQ(Change().arraysOut, 1);
}

TEST_F(VOXEExpressionCollectorReaders, ValuesAreRefusedBeforeTheFeatureIsLookedAt)
{
  const TraceReader reader(Tra_SAMTraceExpli);
  for (const unsigned char collects : {1, 2, 255})
  {
    ResetErrors();
    const CallLog log;
    VOXAnalysisExplicitExpression expression = world->Expressions().front();
    EXPECT_EQ((*world)->GetExpression(0, expression, collects), E_FAIL);
    EXPECT_TRUE(expression == NULL_exp);
    EXPECT_TRUE(log.All().empty());
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "iCollectValues", kExpressions}}));
  }
  const std::string line = "Adaptor implementation can not collect values\n";
  EXPECT_EQ(reader.Text(), line + line + line);
}

TEST_F(VOXEExpressionCollectorReaders, NoExpressionIsReadWhereThereIsNone)
{
  for (VOXAnalysisExplicitExpression& expression : world->Expressions())
    expression.Delete();
  const TraceReader reader(Tra_SAMTraceExpli);
  for (const int number : {0, -1})
  {
    ResetErrors();
    EXPECT_EQ(world->Name(number), "");
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "! Pointers", kExpressions}}));
  }
  EXPECT_EQ(reader.Text(), "Expression list is empty\nExpression list is empty\n");
  EXPECT_EQ(world->Count(), 0) << "the list stands";
}

TEST_F(VOXEExpressionCollectorReaders, AListThatGrewMeanwhileIsNotReadAndItsItemsAreGivenBack)
{
  world->Count();
  VOXAnalysisExplicitListUsr same = world->List();
  same.Append(world->Context());
  const TraceReader reader(Tra_SAMTraceExpli);
  EXPECT_EQ(world->Name(0), "");
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "Number != _Number", kExpressions}}));
  EXPECT_EQ(world->Pointers(), nullptr);
  EXPECT_EQ(Change().arraysOut, 0);
  EXPECT_EQ(reader.Text(), "") << "not explained";
}

TEST_F(VOXEExpressionCollectorReaders, ANumberOfItemsThatDiffersIsToldBeforeMissingItems)
{
  for (VOXAnalysisExplicitExpression& expression : world->Expressions())
    expression.Delete();
  world->Count();
  world->Number() = 2;
  EXPECT_EQ(world->Name(0), "");
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "Number != _Number", kExpressions}}));
}

TEST_F(VOXEExpressionCollectorReaders, AnExpressionThatCannotBeLinkedIsPropagatedAndTheItemsAreKept)
{
  world->Count();
  Faults::FailOperation(kLink, 1, false);
  EXPECT_EQ(world->Name(1), "");
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kExpressions}}));
  EXPECT_NE(world->Pointers(), nullptr);
  EXPECT_EQ(world->Name(1), "second");
}

TEST_F(VOXEExpressionCollectorReaders, ItemsThatCannotBeHadArePropagated)
{
  world->Count();
  Faults::FailOperation(kContents, 1, false);
  EXPECT_EQ(world->Name(0), "");
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kExpressions}}));
  EXPECT_EQ(world->Pointers(), nullptr);
  EXPECT_EQ(world->Name(0), "first") << "the next reader tries again";
}

TEST_F(VOXEExpressionCollectorReaders, AFeatureThatIsNotUpToDateIsRefusedAndLosesItsContext)
{
  const TraceReader reader(Tra_SAMTraceExpli);
  const std::vector<std::function<void()>> readers{[this] { EXPECT_EQ(world->Count(), -7); },
                                                   [this] { EXPECT_EQ(Available(), E_FAIL); },
                                                   [this] { EXPECT_EQ(world->Name(0), ""); }};
  std::string explained;
  for (const auto& read : readers)
  {
    world->Spec().upToDate = 1;
    EXPECT_EQ(world->Count(), 3);
    world->Spec().upToDate = 0;
    ResetErrors();
    const CallLog log;
    read();
    EXPECT_EQ(log.All(), (Calls{kQuery, kUpToDate}));
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "!IsUpToDate()", kExpressions}}));
    EXPECT_FALSE(world->HasContext());
    EXPECT_TRUE(world->HasList()) << "the list is left for whoever looks for the context next";
    explained += "Feature is not up to date\n";
    EXPECT_EQ(reader.Text(), explained);
  }
}

TEST_F(VOXEExpressionCollectorReaders, AfterAFeatureWasNotUpToDateEverythingIsFoundAnew)
{
  EXPECT_EQ(world->Name(0), "first");
  world->Spec().upToDate = 0;
  world->Count();
  world->Spec().upToDate = 1;
  world->Add("fourth");
  const CallLog log;
  EXPECT_EQ(world->Count(), 4);
  EXPECT_EQ(log.All(), (Calls{kQuery, kUpToDate, "VOXAnalysisExplicitListUsr::Delete", kQuery, kParent, kQuery,
                              kLinkValue, kGetModel, kCreateList, kChildren}));
  EXPECT_EQ(world->Pointers(), nullptr);
  EXPECT_EQ(Change().userLists, 2) << "the new list and that of the test";
}

TEST_F(VOXEExpressionCollectorReaders, AFeatureWithoutSpecObjectIsNotUpToDate)
{
  Faults::FailOperation(kQuery, 1, false);
  EXPECT_EQ(world->Count(), -7);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "!IsUpToDate()", kExpressions}}));
}

TEST_F(VOXEExpressionCollectorReaders, WhetherAFeatureIsUpToDateIsAnsweredAndForgetsTheContextIfNot)
{
  world->Count();
  EXPECT_EQ(world->Adaptor().IsUpToDate(), 1);
  EXPECT_TRUE(world->HasContext());
  world->Spec().upToDate = 0;
  EXPECT_EQ(world->Adaptor().IsUpToDate(), 0);
  EXPECT_FALSE(world->HasContext());
  EXPECT_TRUE(AllReported().empty());
}

TEST_F(VOXEExpressionCollectorReaders, WithoutSpecObjectTheContextIsForgottenToo)
{
  world->Count();
  Faults::FailOperation(kQuery, 1, false);
  EXPECT_EQ(world->Adaptor().IsUpToDate(), 0);
  EXPECT_FALSE(world->HasContext());
}

TEST_F(VOXEExpressionCollectorReaders, AFeatureWithoutObjectInTheModelHasNoList)
{
  world->Explicit().parent = NULL_exp;
  const std::vector<Reported> expected{{VOXSamErrorPropagated, "", kExpressions, 2},
                                       {VOXSamErrorPropagated, "", kExpressions, 1}};
  EXPECT_EQ(world->Adaptor().GetContext(), S_OK) << "finding none is no failure";
  EXPECT_EQ(world->Count(), -7);
  EXPECT_EQ(AllReported(), expected);
  ResetErrors();
  EXPECT_EQ(Available(), E_FAIL);
  EXPECT_EQ(AllReported(), expected);
  ResetErrors();
  EXPECT_EQ(world->Name(0), "");
  EXPECT_EQ(AllReported(), expected);
}
