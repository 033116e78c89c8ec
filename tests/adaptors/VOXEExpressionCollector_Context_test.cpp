// SPDX-License-Identifier: MIT
// The context of a feature's expressions, and the list of them.
#include "tests/adaptors/ExpressionWorld.h"
#include "tests/support/Memory.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;

namespace
{

constexpr char kQuery[] = "VOXBaseUnknown::QueryInterface";
constexpr char kCreateList[] = "VOXAnalysisExplicitListUsr::CreateList";
constexpr char kDelete[] = "VOXAnalysisExplicitListUsr::Delete";
constexpr char kChildren[] = "VOXAnalysisExplicitParent::GetChildrenList";

const Reported kPropagated{VOXSamErrorPropagated, "", kExpressions};

class VOXEExpressionCollectorContext : public ExpressionTest
{
protected:
  HRESULT GetContext()
  {
    const HRESULT result = world->Adaptor().GetContext();
    Faults::Disarm();
    return result;
  }

  HRESULT GetList()
  {
    const HRESULT result = ExpressionParts::GetList(world->Adaptor());
    Faults::Disarm();
    return result;
  }

  // Everything read, then the context forgotten: the list is still there.
  void ReadAndForget()
  {
    EXPECT_EQ(world->Name(0), "first");
    ExpressionParts::Context(world->Adaptor()) = NULL_exp;
  }
};

} // namespace

TEST_F(VOXEExpressionCollectorContext, IsTheFeaturesObject)
{
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_TRUE(ExpressionParts::Context(world->Adaptor()) == world->Context());
  EXPECT_FALSE(world->HasList());
}

TEST_F(VOXEExpressionCollectorContext, ThatIsKnownIsNotTouched)
{
  EXPECT_EQ(world->Name(0), "first");
  world->Explicit().parent = NULL_exp;
  const auto* const pointers = world->Pointers();
  const CallLog log;
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_TRUE(log.All().empty());
  EXPECT_TRUE(ExpressionParts::Context(world->Adaptor()) == world->Context());
  EXPECT_EQ(world->Pointers(), pointers);
  EXPECT_EQ(world->Number(), 3);
}

TEST_F(VOXEExpressionCollectorContext, IsLookedForAfterTheOldListIsDeleted)
{
  ReadAndForget();
  const CallLog log;
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_EQ(log.All(), (Calls{kDelete, kQuery, "VOXISamExplicit::GetExplicitParent(1)", kQuery,
                              "VOXILinkableObject::GetLinkValue"}));
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Number(), -1);
  EXPECT_NE(world->Pointers(), nullptr) << "the next list frees them";
}

TEST_F(VOXEExpressionCollectorContext, IsNotLookedForWhenTheOldListCannotBeDeleted)
{
  ReadAndForget();
  Faults::FailOperation(kDelete, 1, false);
  EXPECT_EQ(GetContext(), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated}));
  EXPECT_FALSE(world->HasContext());
  EXPECT_TRUE(world->HasList());
  EXPECT_EQ(world->Number(), 3);
}

TEST_F(VOXEExpressionCollectorContext, CannotBeHadWithoutTheExplicitInterface)
{
  ReadAndForget();
  Faults::FailOperation(kQuery, 1, false);
  EXPECT_EQ(GetContext(), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorMissingObject, "spExplicit", kExpressions}}));
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Number(), -1) << "the list went before";
}

TEST_F(VOXEExpressionCollectorContext, ThatTheFeatureCannotGiveIsPropagatedAndNoLinkValueIsTaken)
{
  int value = 0;
  world->Linkable().value = &value;
  world->Explicit().parentResult = E_NOTIMPL;
  EXPECT_EQ(GetContext(), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated}));
  EXPECT_FALSE(world->HasContext());
  EXPECT_EQ(world->Adaptor()._LinkableValue, nullptr);
}

TEST_F(VOXEExpressionCollectorContext, ThatIsNoneIsNoFailureAndIsLookedForAgain)
{
  world->Explicit().parent = NULL_exp;
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_FALSE(world->HasContext());
  world->Explicit().parent = world->Context();
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_TRUE(world->HasContext());
}

TEST_F(VOXEExpressionCollectorContext, BringsTheLinkValueOnce)
{
  int value = 0;
  int other = 0;
  world->Linkable().value = &value;
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_EQ(world->Adaptor()._LinkableValue, &value);
  world->Linkable().value = &other;
  ExpressionParts::Context(world->Adaptor()) = NULL_exp;
  const CallLog log;
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_EQ(log.Count("VOXILinkableObject"), 0);
  EXPECT_EQ(log.Count(kQuery), 1) << "the interface is not asked for again";
  EXPECT_EQ(world->Adaptor()._LinkableValue, &value);
}

TEST_F(VOXEExpressionCollectorContext, AsksForALinkValueThatWasNullAgain)
{
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_EQ(world->Adaptor()._LinkableValue, nullptr);
  int value = 0;
  world->Linkable().value = &value;
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_EQ(world->Adaptor()._LinkableValue, nullptr) << "not while the context is known";
  (*world)->Update();
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_EQ(world->Adaptor()._LinkableValue, &value);
}

TEST_F(VOXEExpressionCollectorContext, OfAFeatureThatCannotBeLinkedIsFoundAllTheSame)
{
  Faults::FailOperation(kQuery, 2, false);
  EXPECT_EQ(GetContext(), S_OK);
  EXPECT_TRUE(world->HasContext());
  EXPECT_EQ(world->Adaptor()._LinkableValue, nullptr);
  EXPECT_TRUE(AllReported().empty());
}

TEST_F(VOXEExpressionCollectorContext, TheLinkValueOutlivesUpdatesAndDeletions)
{
  int value = 0;
  world->Linkable().value = &value;
  world->Count();
  EXPECT_EQ((*world)->DeleteAll(), S_OK);
  EXPECT_EQ((*world)->Update(), S_OK);
  EXPECT_EQ(world->Adaptor()._LinkableValue, &value);
}

TEST_F(VOXEExpressionCollectorContext, AListThatStandsIsNotMadeAgain)
{
  world->Count();
  const CallLog log;
  EXPECT_EQ(GetList(), S_OK);
  EXPECT_TRUE(log.All().empty());
}

TEST_F(VOXEExpressionCollectorContext, OldItemsAreFreedBeforeANewListIsMade)
{
  ReadAndForget();
  GetContext();
  CallLog log;
  {
    const WhenArraysReturn note([] { CallLog::Note("items freed"); });
    EXPECT_EQ(GetList(), S_OK);
  }
  EXPECT_EQ(log.All(), (Calls{"items freed", "VOXAnalysisExplicitData::GetModel", kCreateList, kChildren}));
  EXPECT_EQ(world->Pointers(), nullptr);
}

TEST_F(VOXEExpressionCollectorContext, AListThatCannotBeMadeIsPropagatedAndLeavesNothingBehind)
{
  ReadAndForget();
  GetContext();
  const CallLog log;
  Faults::FailOperation(kCreateList, 1, false);
  EXPECT_EQ(GetList(), E_FAIL);
  EXPECT_EQ(log.Count(kDelete), 0) << "there is none to delete";
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated}));
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Pointers(), nullptr);
  EXPECT_EQ(world->Number(), -1);
  EXPECT_TRUE(world->HasContext());
}

TEST_F(VOXEExpressionCollectorContext, AListThatCannotBeFilledIsPropagatedAndDeleted)
{
  GetContext();
  world->Number() = 5;
  Faults::FailOperation(kChildren, 1, false);
  EXPECT_EQ(GetList(), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated}));
  EXPECT_FALSE(world->HasList());
  EXPECT_EQ(world->Number(), -1);
  EXPECT_EQ(Change().userLists, 0);
  EXPECT_EQ(world->Count(), 3) << "the next reader tries again";
}

// Kept: a list that nobody filled and that cannot be deleted stands, and passes for one that is known.
TEST_F(VOXEExpressionCollectorContext, AListThatCannotBeFilledNorDeletedCountsAsMinusOneWithoutFailure)
{
  GetContext();
  Faults::FailCall(3, true); // model, list, children and all later ones
  EXPECT_EQ(GetList(), E_FAIL);
  EXPECT_EQ(Faults::LastFailed(), kDelete);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{kPropagated})) << "the clean-up reports nothing";
  EXPECT_TRUE(world->HasList());
  EXPECT_EQ(world->Number(), -1);
  ResetErrors();
  EXPECT_EQ(world->Count(), -1);
  EXPECT_TRUE(AllReported().empty());
  EXPECT_EQ(world->Name(0), "");
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "Number != _Number", kExpressions}}));
  EXPECT_EQ((*world)->Update(), S_OK);
  EXPECT_EQ(world->Count(), 3);
}
