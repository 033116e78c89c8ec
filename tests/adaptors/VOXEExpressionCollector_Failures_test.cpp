// SPDX-License-Identifier: MIT
// How the operations leave when they fail: sites, pending errors, guarded exits.
#include "tests/adaptors/ExpressionWorld.h"
#include "tests/adaptors/TraceReader.h"
#include "tests/support/Memory.h"

#include <set>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ErrorLog;
using voxhost::Faults;

namespace
{

constexpr char kQuery[] = "VOXBaseUnknown::QueryInterface";
constexpr char kParent[] = "VOXISamExplicit::GetExplicitParent";
constexpr char kCreateList[] = "VOXAnalysisExplicitListUsr::CreateList";
constexpr char kChildren[] = "VOXAnalysisExplicitParent::GetChildrenList";
constexpr char kDelete[] = "VOXAnalysisExplicitListUsr::Delete";
constexpr char kDeleteObject[] = "VOXAnalysisExplicitChild::Delete";
constexpr char kContents[] = "VOXAnalysisExplicitList::GetContents";
constexpr char kLink[] = "VOXAnalysisExplicitChild::LinkWithPointer";

// One way to fail: an operation of a world of its own, and a host call that fails in it.
struct Way
{
  const char* call;
  std::function<HRESULT(ExpressionWorld&)> operation;
};

HRESULT Available(ExpressionWorld& ioWorld)
{
  VOXAnalysisExplicitListUsr notCreated;
  return ioWorld->GetAvailableExpressions({}, notCreated);
}

HRESULT Number(ExpressionWorld& ioWorld)
{
  int number = 0;
  return ioWorld->GetNumberOfExpressions(number);
}

HRESULT Get(ExpressionWorld& ioWorld, int iNumber, unsigned char iCollectValues)
{
  VOXAnalysisExplicitExpression expression;
  return ioWorld->GetExpression(iNumber, expression, iCollectValues);
}

HRESULT Expression(ExpressionWorld& ioWorld)
{
  return Get(ioWorld, 0, 0);
}

HRESULT Context(ExpressionWorld& ioWorld)
{
  return ioWorld.Adaptor().GetContext();
}

HRESULT List(ExpressionWorld& ioWorld)
{
  ExpressionParts::Context(ioWorld.Adaptor()) = ioWorld.Context();
  return ExpressionParts::GetList(ioWorld.Adaptor());
}

HRESULT ContextAnew(ExpressionWorld& ioWorld)
{
  List(ioWorld);
  ExpressionParts::Context(ioWorld.Adaptor()) = NULL_exp;
  return Context(ioWorld);
}

HRESULT DeleteOne(ExpressionWorld& ioWorld)
{
  List(ioWorld);
  return ioWorld->DeleteExpression(ioWorld.Expressions()[0]);
}

HRESULT DeleteAll(ExpressionWorld& ioWorld)
{
  List(ioWorld);
  return ioWorld->DeleteAll();
}

HRESULT Update(ExpressionWorld& ioWorld)
{
  List(ioWorld);
  return ioWorld->Update();
}

// Every site of kind 1, reached at the outermost level.
const std::vector<Way> kPropagating{
    {kParent, Available},       {kCreateList, Available},   {"VOXAnalysisExplicitListUsr::Insert", Available},
    {kParent, Number},          {kCreateList, Number},      {kParent, Expression},
    {kCreateList, Expression},  {kContents, Expression},    {kLink, Expression},
    {kParent, Context},         {kDelete, ContextAnew},     {kCreateList, List},
    {kChildren, List},          {kDeleteObject, DeleteOne}, {kDelete, DeleteOne},
    {kDeleteObject, DeleteAll}, {kDelete, DeleteAll},       {kDelete, Update},
};

class VOXEExpressionCollectorFailures : public ExpressionTest
{
protected:
  ~VOXEExpressionCollectorFailures() override { EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1); }

  static void Fail(const Way& iWay)
  {
    ExpressionWorld one;
    Faults::FailOperation(iWay.call, 1, false);
    EXPECT_EQ(iWay.operation(one), E_FAIL) << iWay.call;
    Faults::Disarm();
  }
};

} // namespace

TEST_F(VOXEExpressionCollectorFailures, APendingErrorSurvivesEveryPropagatedOne)
{
  for (const Way& way : kPropagating)
  {
    const PendingError pending;
    Fail(way);
    EXPECT_EQ(AllReported().back(), PendingError::AsReported(1)) << way.call;
    EXPECT_TRUE(PendingError::Stands()) << way.call;
  }
}

TEST_F(VOXEExpressionCollectorFailures, EverySiteHasALineOfItsOwn)
{
  std::set<int> lines;
  for (const Way& way : kPropagating)
  {
    ResetErrors();
    Fail(way);
    EXPECT_EQ(AllReported().back(), (Reported{VOXSamErrorPropagated, "", kExpressions})) << way.call;
    EXPECT_TRUE(lines.insert(ErrorLog::Reports().back().line).second) << way.call;
  }
}

TEST_F(VOXEExpressionCollectorFailures, AllOtherSitesReplaceAPendingError)
{
  const auto outdated = [](ExpressionWorld& ioWorld) { ioWorld.Spec().upToDate = 0; };
  const std::vector<std::pair<std::function<HRESULT(ExpressionWorld&)>, Reported>> ways{
      {[](ExpressionWorld& w)
       {
         VOXAnalysisExplicitListUsr none;
         return w->GetAvailableExpressions(w.Expressions()[0], none);
       },
       {VOXSamErrorCondition, "iDefinition != NULL_exp", kExpressions}},
      {[&](ExpressionWorld& w) { return outdated(w), Available(w); },
       {VOXSamErrorCondition, "!IsUpToDate()", kExpressions}},
      {[&](ExpressionWorld& w) { return outdated(w), Number(w); },
       {VOXSamErrorCondition, "!IsUpToDate()", kExpressions}},
      {[&](ExpressionWorld& w) { return outdated(w), Expression(w); },
       {VOXSamErrorCondition, "!IsUpToDate()", kExpressions}},
      {[](ExpressionWorld& w) { return Get(w, 0, 1); }, {VOXSamErrorCondition, "iCollectValues", kExpressions}},
      {[](ExpressionWorld& w) { return List(w), w.Number() = 7, Get(w, 0, 0); },
       {VOXSamErrorCondition, "Number != _Number", kExpressions}},
      {[](ExpressionWorld& w)
       {
         for (VOXAnalysisExplicitExpression& expression : w.Expressions())
           expression.Delete();
         return Get(w, 0, 0);
       },
       {VOXSamErrorCondition, "! Pointers", kExpressions}},
      {[](ExpressionWorld& w) { return Get(w, 3, 0); },
       {VOXSamErrorCondition, "(0 > iNumber) || (iNumber >= _Number)", kExpressions}},
      {[](ExpressionWorld& w)
       {
         VOXAnalysisExplicitExpression none;
         return w->DeleteExpression(none);
       },
       {VOXSamErrorNullExplicit, "iExpression", kExpressions}},
      {[](ExpressionWorld& w)
       {
         Faults::FailOperation(kQuery, 1, false);
         return Context(w);
       },
       {VOXSamErrorMissingObject, "spExplicit", kExpressions}},
  };
  std::set<int> lines;
  for (const auto& [operation, expected] : ways)
  {
    const PendingError pending;
    ExpressionWorld one;
    EXPECT_EQ(operation(one), E_FAIL) << expected.text;
    Faults::Disarm();
    EXPECT_EQ(AllReported(), (std::vector<Reported>{expected}));
    EXPECT_EQ(ErrorDepthHandler::_i_err_, -1) << expected.text;
    EXPECT_TRUE(lines.insert(ErrorLog::Reports().back().line).second) << expected.text;
  }
}

TEST_F(VOXEExpressionCollectorFailures, ExplanationsAreForWhoeverReadsThemWhileErrorsAreDisplayed)
{
  for (const bool displayed : {false, true})
    for (const bool active : {false, true})
    {
      TraceReader reader(Tra_SAMTraceExpli, displayed, active);
      reader.ReadEverything();
      Get(*world, 0, 1);
      EXPECT_EQ(reader.Text(), displayed && active ? "Adaptor implementation can not collect values\n" : "");
      EXPECT_EQ(VOXSamDisplayError(displayed ? 1 : 0), displayed ? 1 : 0);
    }
}

TEST_F(VOXEExpressionCollectorFailures, OnlyListExpressionAndDeletionOfAllLeaveThroughAGuardedExit)
{
  for (const auto& [way, isGuarded] :
       std::vector<std::pair<Way, bool>>{{{kCreateList, List}, true},
                                         {{kChildren, List}, true},
                                         {{kQuery, Expression}, true},
                                         {{kParent, Expression}, true},
                                         {{kContents, Expression}, true},
                                         {{kLink, Expression}, true},
                                         {{kDeleteObject, DeleteAll}, true},
                                         {{kDelete, DeleteAll}, true},
                                         {{kParent, Available}, false},
                                         {{"VOXAnalysisExplicitListUsr::Insert", Available}, false},
                                         {{kParent, Number}, false},
                                         {{kParent, Context}, false},
                                         {{kDelete, ContextAnew}, false},
                                         {{kDelete, DeleteOne}, false},
                                         {{kDeleteObject, DeleteOne}, false},
                                         {{kDelete, Update}, false}})
  {
    ResetErrors();
    ErrorDepthHandler::_MustJump_ = 5;
    Fail(way);
    EXPECT_EQ(ErrorDepthHandler::_MustJump_, isGuarded ? 1 : 5) << way.call;
  }
  for (const auto& [number, collects] : {std::pair(0, 1), std::pair(9, 0)})
  {
    ErrorDepthHandler::_MustJump_ = 5;
    Get(*world, number, static_cast<unsigned char>(collects));
    EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1);
  }
  for (VOXAnalysisExplicitExpression& expression : world->Expressions())
    (*world)->DeleteExpression(expression);
  ErrorDepthHandler::_MustJump_ = 5;
  EXPECT_EQ(Get(*world, 0, 0), E_FAIL) << "none left";
  EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1);
}

TEST_F(VOXEExpressionCollectorFailures, ASuccessLeavesJumpsAlone)
{
  ErrorDepthHandler::_MustJump_ = 5;
  for (const auto& operation : {Number, Expression, Context, List, DeleteOne, DeleteAll, Update})
    EXPECT_EQ(operation(*world), S_OK);
  EXPECT_EQ(ErrorDepthHandler::_MustJump_, 5);
  ErrorDepthHandler::_MustJump_ = 1;
}

namespace
{

// What a clean-up sees when it runs.
struct Seen
{
  int mustJump = -1;
  std::size_t reports = 99;

  void Look()
  {
    mustJump = ErrorDepthHandler::_MustJump_;
    reports = ErrorLog::Reports().size();
  }
};

// Makes the list of a world fail to be filled: its clean-up then deletes it.
HRESULT FailList(ExpressionWorld& ioWorld)
{
  Faults::FailOperation(kChildren, 1, true);
  return List(ioWorld);
}

HRESULT FailDeletion(ExpressionWorld& ioWorld)
{
  List(ioWorld);
  Faults::FailOperation(kDeleteObject, 1, true);
  return ioWorld->DeleteAll();
}

HRESULT FailExpression(ExpressionWorld& ioWorld)
{
  List(ioWorld);
  ioWorld.Number() = 7;
  return Get(ioWorld, 0, 0);
}

void ExpectLoopTold(const TraceReader& iReader)
{
  EXPECT_EQ(iReader.Text(), kLoopBanner);
  ASSERT_EQ(ErrorLog::CheckFailures().size(), 1u);
  EXPECT_EQ(ErrorLog::CheckFailures().front().text, "ExpressionCheck:InfiniteLoopDetected == 0");
  EXPECT_EQ(ErrorLog::CheckFailures().front().file, kExpressions);
  EXPECT_GT(ErrorLog::CheckFailures().front().line, 0);
}

} // namespace

TEST_F(VOXEExpressionCollectorFailures, CleanUpsRunBeforeTheReportWithJumpsOff)
{
  for (const auto& fail : {FailList, FailDeletion})
  {
    ResetErrors();
    Seen seen;
    ExpressionWorld one;
    {
      const WhenCalled deletes(kDelete, [&seen] { seen.Look(); });
      EXPECT_EQ(fail(one), E_FAIL);
    }
    Faults::Disarm();
    EXPECT_EQ(seen.mustJump, 0);
    EXPECT_EQ(seen.reports, 0u);
  }
  ResetErrors();
  Seen seen;
  {
    const WhenArraysReturn frees([&seen] { seen.Look(); });
    EXPECT_EQ(FailExpression(*world), E_FAIL);
  }
  EXPECT_EQ(seen.mustJump, 0);
  EXPECT_EQ(seen.reports, 0u);
}

TEST_F(VOXEExpressionCollectorFailures, ACleanUpThatFailsInTheSameOperationAgainIsToldAndTheInnerOneIsSkipped)
{
  for (const auto& fail : {FailList, FailDeletion})
  {
    ResetErrors();
    ExpressionWorld one;
    ExpressionWorld other; // the guard is shared by all adaptors
    TraceReader reader(Tra_SAMTraceExpli, false, false);
    reader.ReadEverything();
    HRESULT inner = S_OK;
    {
      const WhenCalled deletes(kDelete, [&] { inner = fail(other); });
      EXPECT_EQ(fail(one), E_FAIL);
    }
    Faults::Disarm();
    EXPECT_EQ(inner, E_FAIL);
    EXPECT_EQ(AllReported().size(), 2u) << "both report";
    EXPECT_FALSE(one.HasList());
    EXPECT_TRUE(other.HasList()) << "its clean-up is skipped";
    ExpectLoopTold(reader);
    ResetErrors();
    one.Number() = 5;
    EXPECT_EQ(fail(one), E_FAIL);
    Faults::Disarm();
    EXPECT_FALSE(one.HasList()) << "the next ordinary error cleans up again";
    EXPECT_EQ(one.Number(), -1);
    EXPECT_TRUE(ErrorLog::CheckFailures().empty());
  }
}

// Kept: items that were read by an operation which fails within its own clean-up are lost.
TEST_F(VOXEExpressionCollectorFailures, AnExpressionThatFailsWhileAnotherIsCleanedUpLosesItsItems)
{
  ExpressionWorld other;
  TraceReader reader(Tra_SAMTraceExpli, false, false);
  reader.ReadEverything();
  HRESULT inner = S_OK;
  {
    const WhenArraysReturn frees([&] { inner = FailExpression(other); });
    EXPECT_EQ(FailExpression(*world), E_FAIL);
  }
  EXPECT_EQ(inner, E_FAIL);
  EXPECT_EQ(AllReported().size(), 2u);
  ExpectLoopTold(reader);
  EXPECT_EQ(Change().arraysOut, 1);
  kept.arraysOut = 1;
  ResetErrors();
  EXPECT_EQ(FailExpression(*world), E_FAIL);
  EXPECT_EQ(Change().arraysOut, 1) << "the next ordinary error cleans up again";
  EXPECT_TRUE(ErrorLog::CheckFailures().empty());
}

TEST_F(VOXEExpressionCollectorFailures, EachGuardedOperationHasAGuardOfItsOwn)
{
  const std::vector<std::function<HRESULT(ExpressionWorld&)>> operations{
      FailList, FailDeletion, [](ExpressionWorld& w) { return Get(w, 0, 1); }};
  for (const std::size_t outer : {0, 1})
    for (std::size_t inner = 0; inner < operations.size(); ++inner)
    {
      if (inner == outer)
        continue;
      ResetErrors();
      ExpressionWorld one;
      ExpressionWorld other;
      {
        const WhenCalled deletes(kDelete,
                                 [&]
                                 {
                                   Faults::Disarm();
                                   EXPECT_EQ(operations[inner](other), E_FAIL);
                                   Faults::Disarm();
                                 });
        EXPECT_EQ(operations[outer](one), E_FAIL);
      }
      Faults::Disarm();
      EXPECT_TRUE(ErrorLog::CheckFailures().empty());
    }
}
