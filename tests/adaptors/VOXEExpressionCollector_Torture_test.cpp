// SPDX-License-Identifier: MIT
// Every host call and every allocation of every operation fails once, and from then on.
#include "tests/adaptors/ExpressionWorld.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;

namespace
{

constexpr char kClass[] = "VOXEExpressionCollector";

Torture ExpressionTorture(const char* iOperation)
{
  Torture torture(iOperation);
  torture.Reports(VOXSamErrorPropagated, "", kClass);
  return torture;
}

Torture& OfReader(Torture& ioTorture)
{
  return ioTorture.Reports(VOXSamErrorCondition, "!IsUpToDate()", kClass)
      .Reports(VOXSamErrorMissingObject, "spExplicit", kClass);
}

// Whatever happened before: the list and its count go together, and a reader that is not disturbed finds everything.
void ExpectUsable(ExpressionWorld& ioWorld, int iExpected)
{
  ResetErrors();
  EXPECT_TRUE(ioWorld.HasList() || ioWorld.Number() == -1);
  EXPECT_EQ(ioWorld->Update(), S_OK);
  EXPECT_EQ(ioWorld.Count(), iExpected);
}

} // namespace

TEST(VOXEExpressionCollectorTorture, GetAvailableExpressionsSurvivesEveryFailure)
{
  Torture torture = ExpressionTorture("GetAvailableExpressions");
  OfReader(torture).Run(
      [](TortureRun& ioRun)
      {
        ExpressionWorld world;
        VOXAnalysisExplicitListUsr list;
        list.CreateList(&world.Model());
        ioRun.Call([&] { return world->GetAvailableExpressions({}, list); });
        EXPECT_EQ(list.GetLength(0), ioRun.Succeeded() ? 3 : 0);
        EXPECT_EQ(list.Delete(), S_OK);
        ExpectUsable(world, 3);
      });
}

TEST(VOXEExpressionCollectorTorture, GetNumberOfExpressionsSurvivesEveryFailure)
{
  Torture torture = ExpressionTorture("GetNumberOfExpressions");
  OfReader(torture).Run(
      [](TortureRun& ioRun)
      {
        ExpressionWorld world;
        int number = 99;
        ioRun.Call([&] { return world->GetNumberOfExpressions(number); });
        EXPECT_EQ(number, ioRun.Succeeded() ? 3 : -1);
        ExpectUsable(world, 3);
      });
}

TEST(VOXEExpressionCollectorTorture, ANumberAfterTheContextWasForgottenSurvivesEveryFailure)
{
  Torture torture = ExpressionTorture("GetNumberOfExpressions");
  OfReader(torture).Run(
      [](TortureRun& ioRun)
      {
        ExpressionWorld world;
        EXPECT_EQ(world.Name(0), "first");
        ExpressionParts::Context(world.Adaptor()) = NULL_exp;
        int number = 99;
        ioRun.Call([&] { return world->GetNumberOfExpressions(number); });
        EXPECT_EQ(number, ioRun.Succeeded() ? 3 : -1);
        ExpectUsable(world, 3);
      });
}

TEST(VOXEExpressionCollectorTorture, GetExpressionSurvivesEveryFailure)
{
  Torture torture = ExpressionTorture("GetExpression");
  OfReader(torture).Run(
      [](TortureRun& ioRun)
      {
        ExpressionWorld world;
        VOXAnalysisExplicitExpression expression = world.Expressions()[0];
        ioRun.Call([&] { return world->GetExpression(2, expression, 0); });
        EXPECT_TRUE(ioRun.Succeeded() ? expression == world.Expressions()[2] : expression == NULL_exp);
        ExpectUsable(world, 3);
      });
}

TEST(VOXEExpressionCollectorTorture, DeleteExpressionSurvivesEveryFailure)
{
  ExpressionTorture("DeleteExpression")
      .Run(
          [](TortureRun& ioRun)
          {
            ExpressionWorld world;
            EXPECT_EQ(world.Name(0), "first");
            VOXAnalysisExplicitExpression& expression = world.Expressions()[1];
            ioRun.Call([&] { return world->DeleteExpression(expression); });
            EXPECT_TRUE(ioRun.Failed() || expression == NULL_exp);
            EXPECT_EQ(world.HasList(), ioRun.Failed());
            ExpectUsable(world, expression == NULL_exp ? 2 : 3);
          });
}

TEST(VOXEExpressionCollectorTorture, DeleteAllSurvivesEveryFailure)
{
  ExpressionTorture("DeleteAll")
      .Run(
          [](TortureRun& ioRun)
          {
            ExpressionWorld world;
            EXPECT_EQ(world.Name(0), "first");
            ioRun.Call([&] { return world->DeleteAll(); });
            EXPECT_EQ(world.Number(), -1);
            const int left = static_cast<int>(world.Children().size()) - 2;
            EXPECT_TRUE(ioRun.Failed() || left == 0);
            ExpectUsable(world, left);
          });
}

TEST(VOXEExpressionCollectorTorture, UpdateSurvivesEveryFailure)
{
  ExpressionTorture("Update").Run(
      [](TortureRun& ioRun)
      {
        ExpressionWorld world;
        EXPECT_EQ(world.Name(0), "first");
        ioRun.Call([&] { return world->Update(); });
        EXPECT_FALSE(world.HasContext());
        EXPECT_EQ(world.HasList(), ioRun.Failed());
        EXPECT_EQ(world.Number(), ioRun.Failed() ? 3 : -1);
        EXPECT_EQ(world.Pointers() != nullptr, ioRun.Failed());
        ExpectUsable(world, 3);
      });
}

TEST(VOXEExpressionCollectorTorture, GetContextSurvivesEveryFailure)
{
  ExpressionTorture("GetContext")
      .Reports(VOXSamErrorMissingObject, "spExplicit", kClass)
      .Run(
          [](TortureRun& ioRun)
          {
            ExpressionWorld world;
            int value = 0;
            world.Linkable().value = &value;
            world.Count();
            world.Adaptor()._LinkableValue = nullptr;
            ExpressionParts::Context(world.Adaptor()) = NULL_exp;
            ioRun.Call([&] { return world.Adaptor().GetContext(); });
            EXPECT_EQ(world.HasContext(), ioRun.Succeeded());
            EXPECT_TRUE(ioRun.IsTortured() || world.Adaptor()._LinkableValue == &value);
            ExpectUsable(world, 3);
          });
}

TEST(VOXEExpressionCollectorTorture, IsUpToDateSurvivesEveryFailure)
{
  Torture("IsUpToDate")
      .MayAnswer({0, 1})
      .ReportsNothing()
      .Run(
          [](TortureRun& ioRun)
          {
            ExpressionWorld world;
            world.Count();
            const HRESULT answer = ioRun.Call([&]() -> HRESULT { return world.Adaptor().IsUpToDate(); });
            EXPECT_EQ(answer, ioRun.IsTortured() ? 0 : 1);
            EXPECT_EQ(world.HasContext(), !ioRun.IsTortured());
          });
}
