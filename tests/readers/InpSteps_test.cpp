// SPDX-License-Identifier: MIT
#include "InpBench.h"

namespace voxbench
{

using testing::ElementsAre;

TEST(InpSteps, AStepTellsItsProcedureAndBounds)
{
  InpBench bench;
  bench.Read("*HEADING\n  A model, so it says\n*STEP, NLGEOM, INC=50\n*STATIC, DIRECT\n.1, 1.\n*END STEP\n"
             "*STEP, PERTURBATION, NLGEOM=NO\n*FREQUENCY\n10\n*END STEP\n");

  EXPECT_THAT(bench.model.title, ElementsAre("A model, so it says"));
  ASSERT_EQ(bench.model.steps.size(), 2u);
  EXPECT_TRUE(bench.model.steps[0].nonlinearGeometry);
  EXPECT_EQ(bench.model.steps[0].procedure.keyword, "STATIC");
  EXPECT_TRUE(bench.model.steps[0].procedure.Has("DIRECT"));
  EXPECT_EQ(bench.model.steps[0].procedure.Number(0, 1), 1.);
  EXPECT_EQ(bench.model.steps[0].end.line, 6);
  EXPECT_TRUE(bench.model.steps[1].perturbation);
  EXPECT_FALSE(bench.model.steps[1].nonlinearGeometry);
  EXPECT_EQ(bench.model.steps[1].procedure.Number(0, 0), 10.);
}

TEST(InpSteps, StepsThatDoNotEndAreReported)
{
  InpBench bench;
  bench.Read("*STEP\n*STATIC\n*STEP\n*STATIC\n");

  EXPECT_THAT(bench.Findings(),
              ElementsAre("3 W *STEP the step before has no *END STEP.", "3 W *STEP the step has no *END STEP."));
}

TEST(InpSteps, OutputRequestsTellSetAndVariables)
{
  InpBench bench;
  bench.Read("*STEP\n*STATIC\n*NODE PRINT, NSET=N, FREQUENCY=2\nU, RF\n*EL FILE\nS, E\nENER\n*SECTION PRINT, "
             "SURFACE=S1, NAME=X\nSOF\n*END STEP\n");

  const std::vector<OutputRequest>& requests = bench.model.outputRequests;
  ASSERT_EQ(requests.size(), 3u);
  EXPECT_EQ(requests[0].keyword, "NODEPRINT");
  EXPECT_EQ(requests[0].set, "N");
  EXPECT_THAT(requests[0].variables, ElementsAre("U", "RF"));
  EXPECT_EQ(requests[0].card.Get("FREQUENCY"), "2");
  EXPECT_EQ(requests[0].card.step, 1);
  EXPECT_THAT(requests[1].variables, ElementsAre("S", "E", "ENER"));
  EXPECT_EQ(requests[2].set, "S1");
}

TEST(InpSteps, UnderstoodCardsWithoutARecordOfTheirOwnAreKeptWhole)
{
  InpBench bench;
  bench.Read("*PHYSICAL CONSTANTS, ABSOLUTE ZERO=-273.15\n*STEP\n*CONTROLS, PARAMETERS=FIELD\n, , 1.e-3\n*END STEP\n");

  ASSERT_EQ(bench.model.otherCards.size(), 2u);
  EXPECT_EQ(bench.model.otherCards[0].Get("ABSOLUTEZERO"), "-273.15");
  EXPECT_EQ(bench.model.otherCards[1].step, 1);
  EXPECT_EQ(bench.model.otherCards[1].Number(0, 2), 1e-3);
}

} // namespace voxbench
