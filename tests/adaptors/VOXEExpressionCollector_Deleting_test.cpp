// SPDX-License-Identifier: MIT
// Deleting expressions, and forgetting what was read of them.
#include "tests/adaptors/ExpressionWorld.h"
#include "tests/support/Memory.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;

namespace
{

constexpr char kQuery[] = "VOXBaseUnknown::QueryInterface";
constexpr char kUpToDate[] = "VOXISpecObject::IsUpToDate(whole document)";
constexpr char kDelete[] = "VOXAnalysisExplicitListUsr::Delete";
constexpr char kDeleteObject[] = "VOXAnalysisExplicitChild::Delete";

using Names = std::vector<std::string>;
const Names kAll{"a child before", "first", "second", "third", "a child behind"};
const Names kOthers{"a child before", "a child behind"};
const Reported kPropagated{VOXSamErrorPropagated, "", kExpressions};

class VOXEExpressionCollectorDeleting : public ExpressionTest
{
protected:
  HRESULT Delete(int iNumber)
  {
    const HRESULT result = (*world)->DeleteExpression(world->Expressions()[static_cast<std::size_t>(iNumber)]);
    Faults::Disarm();
    return result;
  }

  HRESULT DeleteAll()
  {
    const HRESULT result = (*world)->DeleteAll();
    Faults::Disarm();
    return result;
  }

  HRESULT Update()
  {
    const HRESULT result = (*world)->Update();
    Faults::Disarm();
    return result;
  }
};

} // namespace

TEST_F(VOXEExpressionCollectorDeleting, NoExpressionIsRefused)
{
  VOXAnalysisExplicitExpression none;
  world->Count();
  const CallLog log;
  EXPECT_EQ((*world)->DeleteExpression(none), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorNullExplicit, "iExpression", kExpressions}}));
  EXPECT_TRUE(log.All().empty());
  EXPECT_TRUE(world->HasList());
}

TEST_F(VOXEExpressionCollectorDeleting, OneExpressionGoesAndTheCallersHandleIsEmpty)
{
  const CallLog log;
  EXPECT_EQ(Delete(1), S_OK);
  EXPECT_TRUE(world->Expressions()[1] == NULL_exp);
  EXPECT_EQ(log.All(), (Calls{kDeleteObject})) << "there is no list, and none is made";
  EXPECT_EQ(world->Children(), (Names{"a child before", "first", "third", "a child behind"}));
  EXPECT_EQ(world->Number(), -1);
}

TEST_F(VOXEExpressionCollectorDeleting, TheListGoesWithOneExpressionTheItemsStayForTheNextList)
{
  EXPECT_EQ(world->Name(0), "first");
  const auto* const pointers = world->Pointers();
  const CallLog log;
  EXPECT_EQ(Delete(1), S_OK);
  EXPECT_EQ(log.All(), (Calls{kDeleteObject, kDelete}));
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Number(), -1);
  EXPECT_EQ(world->Pointers(), pointers);
}

// Kept: only the list is found anew, whereas an update forgets the context, too.
TEST_F(VOXEExpressionCollectorDeleting, TheContextStaysKnownAfterOneExpressionWent)
{
  EXPECT_EQ(world->Name(0), "first");
  EXPECT_EQ(Delete(0), S_OK);
  EXPECT_TRUE(world->HasContext());
  CallLog log;
  EXPECT_EQ(world->Count(), 2);
  EXPECT_EQ(log.All(), (Calls{kQuery, kUpToDate, "VOXAnalysisExplicitData::GetModel",
                              "VOXAnalysisExplicitListUsr::CreateList", "VOXAnalysisExplicitParent::GetChildrenList"}));
  EXPECT_EQ(world->Pointers(), nullptr);
  EXPECT_EQ(world->Name(0), "second");
}

TEST_F(VOXEExpressionCollectorDeleting, AnExpressionThatCannotBeDeletedIsPropagatedAndTheListStands)
{
  world->Count();
  Faults::FailOperation(kDeleteObject, 1, false);
  EXPECT_EQ(Delete(1), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated}));
  EXPECT_EQ(world->Children(), kAll);
  EXPECT_EQ(world->Number(), 3);
  EXPECT_TRUE(world->HasList());
}

TEST_F(VOXEExpressionCollectorDeleting, AListThatCannotBeDeletedIsPropagatedAfterTheExpressionWent)
{
  EXPECT_EQ(world->Name(0), "first");
  Faults::FailOperation(kDelete, 1, false);
  EXPECT_EQ(Delete(0), E_FAIL);
  EXPECT_EQ(Faults::Calls(), 1) << "it is not tried again";
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated}));
  EXPECT_TRUE(world->Expressions()[0] == NULL_exp);
  EXPECT_TRUE(world->HasList());
  EXPECT_EQ(world->Number(), 3);
}

TEST_F(VOXEExpressionCollectorDeleting, AllOfAListThatWasNeverBuiltIsNothing)
{
  const CallLog log;
  EXPECT_EQ(DeleteAll(), S_OK);
  EXPECT_TRUE(log.All().empty());
  EXPECT_EQ(world->Children(), kAll);
}

TEST_F(VOXEExpressionCollectorDeleting, AllExpressionsGoAndOtherChildrenStay)
{
  EXPECT_EQ(world->Name(0), "first");
  const auto* const pointers = world->Pointers();
  const CallLog log;
  EXPECT_EQ(DeleteAll(), S_OK);
  EXPECT_EQ(log.All(), (Calls{kDeleteObject, kDeleteObject, kDeleteObject, kDelete}));
  EXPECT_EQ(world->Children(), kOthers);
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Number(), -1);
  EXPECT_TRUE(world->HasContext());
  EXPECT_EQ(world->Pointers(), pointers) << "the next list frees them";
}

TEST_F(VOXEExpressionCollectorDeleting, AllOfAnEmptyListDeletesTheList)
{
  for (VOXAnalysisExplicitExpression& expression : world->Expressions())
    expression.Delete();
  world->Count();
  EXPECT_EQ(DeleteAll(), S_OK);
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Number(), -1);
}

TEST_F(VOXEExpressionCollectorDeleting, ExpressionsThatWereNotListedStay)
{
  world->Count();
  world->Add("fourth");
  EXPECT_EQ(DeleteAll(), S_OK);
  EXPECT_EQ(world->Children(), (Names{"a child before", "a child behind", "fourth"}));
}

TEST_F(VOXEExpressionCollectorDeleting, ListedExpressionsThatWentMeanwhileAreLeftOut)
{
  world->Count();
  world->Add("fourth");
  Update();
  world->Count();
  world->Expressions()[0].Delete();
  world->Expressions()[2].Delete();
  EXPECT_EQ(DeleteAll(), S_OK);
  EXPECT_EQ(world->Children(), kOthers);
}

// Kept: the next expression is fetched before one is deleted. Where it goes along, it ends the deletion.
TEST_F(VOXEExpressionCollectorDeleting, AnExpressionThatGoesWithTheOneBeforeEndsTheDeletion)
{
  world->Count();
  {
    const WhenCalled goesAlong(kDeleteObject, [this] { world->Expressions()[1].Delete(); });
    EXPECT_EQ(DeleteAll(), S_OK);
  }
  EXPECT_EQ(world->Children(), (Names{"a child before", "third", "a child behind"}));
  EXPECT_FALSE(world->HasList());
}

TEST_F(VOXEExpressionCollectorDeleting, TheFirstExpressionThatCannotBeDeletedEndsTheDeletionAndTheListGoes)
{
  world->Count();
  const CallLog log;
  Faults::FailOperation(kDeleteObject, 2, false);
  EXPECT_EQ(DeleteAll(), E_FAIL);
  EXPECT_EQ(log.All(), (Calls{kDeleteObject, kDeleteObject, kDelete}));
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated}));
  EXPECT_EQ(world->Children(), (Names{"a child before", "second", "third", "a child behind"}));
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Number(), -1);
  EXPECT_EQ(world->Count(), 2);
}

TEST_F(VOXEExpressionCollectorDeleting, AListThatCannotBeDeletedAtFirstIsDeletedByTheCleanUp)
{
  world->Count();
  Faults::FailOperation(kDelete, 1, false);
  EXPECT_EQ(DeleteAll(), E_FAIL);
  EXPECT_EQ(Faults::Calls(), 2);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated}));
  EXPECT_EQ(world->Children(), kOthers);
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Number(), -1);
}

// Kept: the list outlives a deletion that fails throughout, and then its count of -1 is given without failure.
TEST_F(VOXEExpressionCollectorDeleting, AfterADeletionThatFailsThroughoutTheNumberIsMinusOneWithoutFailure)
{
  for (const bool hasItems : {false, true})
  {
    EXPECT_EQ(world->Count(), 3);
    EXPECT_EQ(hasItems ? world->Name(0) : "first", "first");
    ResetErrors();
    Faults::FailOperation(kDelete, 1, true);
    WhenCalled atOnce(kDeleteObject, [] { Faults::FailCall(1, true); }); // the first deletion of an expression
    EXPECT_EQ(DeleteAll(), E_FAIL);
    EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated})) << "the clean-up reports nothing";
    EXPECT_TRUE(world->HasList());
    EXPECT_EQ(world->Children(), kAll);
    ResetErrors();
    EXPECT_EQ(world->Count(), -1);
    EXPECT_TRUE(AllReported().empty());
    VOXAnalysisExplicitListUsr list;
    list.CreateList(&world->Model());
    EXPECT_EQ((*world)->GetAvailableExpressions({}, list), S_OK);
    EXPECT_EQ(list.GetLength(0), 3) << "its expressions are given all the same";
    list.Delete();
    EXPECT_EQ(world->Name(0), "");
    EXPECT_EQ(AllReported(),
              (std::vector<Reported>{{VOXSamErrorCondition,
                                      hasItems ? "(0 > iNumber) || (iNumber >= _Number)" : "Number != _Number",
                                      kExpressions}}));
    EXPECT_EQ(Update(), S_OK);
  }
}

TEST_F(VOXEExpressionCollectorDeleting, AnUpdateForgetsEverything)
{
  EXPECT_EQ(world->Name(0), "first");
  CallLog log;
  {
    const WhenArraysReturn note([] { CallLog::Note("items freed"); });
    EXPECT_EQ(Update(), S_OK);
  }
  EXPECT_EQ(log.All(), (Calls{kDelete, "items freed"}));
  EXPECT_FALSE(world->HasContext());
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Number(), -1);
  EXPECT_EQ(world->Pointers(), nullptr);
}

TEST_F(VOXEExpressionCollectorDeleting, AnUpdateOfAFreshAdaptorDoesNothing)
{
  const CallLog log;
  EXPECT_EQ(Update(), S_OK);
  EXPECT_TRUE(log.All().empty());
}

TEST_F(VOXEExpressionCollectorDeleting, AnUpdateFreesTheItemsOfAListThatWentBefore)
{
  EXPECT_EQ(world->Name(0), "first");
  Delete(0);
  EXPECT_EQ(Update(), S_OK);
  EXPECT_EQ(world->Pointers(), nullptr);
  EXPECT_EQ(Change().arraysOut, 0);
}

TEST_F(VOXEExpressionCollectorDeleting, AnUpdateSetsTheNumberBackWithoutAListToo)
{
  world->Number() = 5;
  EXPECT_EQ(Update(), S_OK);
  EXPECT_EQ(world->Number(), -1);
}

TEST_F(VOXEExpressionCollectorDeleting, AnUpdateThatCannotDeleteTheListForgetsTheContextOnly)
{
  EXPECT_EQ(world->Name(0), "first");
  const auto* const pointers = world->Pointers();
  Faults::FailOperation(kDelete, 1, false);
  EXPECT_EQ(Update(), E_FAIL);
  EXPECT_EQ(Faults::Calls(), 1);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated}));
  EXPECT_FALSE(world->HasContext());
  EXPECT_TRUE(world->HasList());
  EXPECT_EQ(world->Number(), 3);
  EXPECT_EQ(world->Pointers(), pointers);
  EXPECT_EQ(world->Name(2), "third") << "the next reader finds everything anew";
}

TEST_F(VOXEExpressionCollectorDeleting, AfterAnUpdateTheNextReaderFindsContextAndListAnew)
{
  world->Count();
  Update();
  const VOXAnalysisExplicitParent other = world->Model().Create(NULL_exp, "SOLUTION", "other");
  world->Model().Create(other, "EXPRESSION", "of the other");
  world->Explicit().parent = other;
  EXPECT_EQ(world->Count(), 1);
  EXPECT_EQ(world->Name(0), "of the other");
}

namespace
{

// A feature whose adaptor ends before the test does.
class ShortLived
{
public:
  explicit ShortLived(ExpressionWorld& ioWorld)
      : _Bench(std::in_place),
        _Feature(_Bench->Component<ExpressionTie, ScriptedExplicit, ScriptedSpecObject>())
  {
    ScriptedExplicit::ScriptOf(_Feature).parent = ioWorld.Context();
    VOXAnalysisExplicitExpression expression;
    EXPECT_EQ(VOXIExpressionCollector_var(_Feature)->GetExpression(0, expression, 0), S_OK);
  }
  void End() { _Bench.reset(); }

private:
  std::optional<Bench> _Bench;
  VOXBaseUnknown* _Feature;
};

} // namespace

TEST_F(VOXEExpressionCollectorDeleting, TheEndOfTheAdaptorFreesTheItemsThenDeletesTheList)
{
  ShortLived feature(*world);
  EXPECT_EQ(Change().arraysOut, 1);
  EXPECT_EQ(Change().userLists, 1);
  CallLog log;
  {
    const WhenArraysReturn note([] { CallLog::Note("items freed"); });
    feature.End();
  }
  EXPECT_EQ(log.All(), (Calls{"items freed", kDelete}));
  EXPECT_EQ(Change().arraysOut, 0);
  EXPECT_EQ(Change().userLists, 0);
  EXPECT_EQ(world->Children(), kAll) << "the expressions stay";
}

TEST_F(VOXEExpressionCollectorDeleting, TheEndOfTheAdaptorDoesNotTellThatTheListCannotBeDeleted)
{
  ShortLived feature(*world);
  Faults::FailOperation(kDelete, 1, true);
  feature.End();
  Faults::Disarm();
  EXPECT_EQ(Faults::Calls(), 1);
  EXPECT_TRUE(AllReported().empty());
  EXPECT_EQ(Change().userLists, 1) << "the model takes it along";
}

TEST_F(VOXEExpressionCollectorDeleting, TheEndOfAnAdaptorWithoutListDeletesNone)
{
  std::optional<ExpressionWorld> fresh;
  fresh.emplace();
  const CallLog log;
  fresh.reset();
  EXPECT_EQ(log.Count(kDelete), 0);
}
