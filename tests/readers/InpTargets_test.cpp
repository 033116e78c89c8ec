// SPDX-License-Identifier: MIT
// What cards apply to, named by numbers.
#include "InpBench.h"

namespace voxbench
{

namespace
{
const std::string kMesh = NodesUpTo(3) + "*ELEMENT, TYPE=B31\n1, 1, 2\n"; // six lines

std::vector<std::string> FindingsOf(const std::string& iCards)
{
  InpBench bench;
  bench.Read(kMesh + iCards);
  return bench.Findings();
}
} // namespace

using testing::ElementsAre;
using testing::IsEmpty;

TEST(InpTargets, NodesOfTheDeckAreNoFinding)
{
  EXPECT_THAT(FindingsOf("*BOUNDARY\n1, 1, 3\n*CLOAD\n3, 1, 1.\n*DLOAD\n1, P1, 1.\n*DLOAD\n, GRAV, 9.81, 0, 0, -1\n"
                         "*EQUATION\n2\n1, 1, 1., 2, 1, -1.\n*MPC\nBEAM, 1, 2\n*RIGID BODY, NSET=N, REF NODE=3\n"),
              IsEmpty());
}

TEST(InpTargets, ALoadOnNodesThatDoNotExistIsReportedOnceWithTheirCount)
{
  EXPECT_THAT(FindingsOf("*CLOAD\n1, 1, 1.\n8, 1, 1.\n9, 1, 1.\n"),
              ElementsAre("7 E *CLOAD the card names 2 nodes that the deck does not define, 8 first."));
}

TEST(InpTargets, ALoadOnAnElementIsLookedForAmongTheElements)
{
  EXPECT_THAT(FindingsOf("*DLOAD\n2, P1, 1.\n"),
              ElementsAre("7 E *DLOAD the card names 1 element that the deck does not define, 2 first."));
}

TEST(InpTargets, AnInitialStressIsLookedForAmongTheElements)
{
  EXPECT_THAT(FindingsOf("*INITIAL CONDITIONS, TYPE=STRESS\n1, 1, 0., 0., 0., 0., 0., 0.\n"
                         "*INITIAL CONDITIONS, TYPE=TEMPERATURE\n7, 20.\n"),
              ElementsAre("9 E *INITIALCONDITIONS the card names 1 node that the deck does not define, 7 first."));
}

TEST(InpTargets, ARestraintOfANodeThatDoesNotExistIsReported)
{
  EXPECT_THAT(FindingsOf("*BOUNDARY\n77, 1\n"),
              ElementsAre("7 E *BOUNDARY the card names 1 node that the deck does not define, 77 first."));
}

TEST(InpTargets, ConstraintsOfNodesThatDoNotExistAreReported)
{
  EXPECT_THAT(FindingsOf("*EQUATION\n2\n1, 1, 1., 50, 1, -1.\n*MPC\nBEAM, 1, 60\n"),
              ElementsAre("8 E *EQUATION the card names 1 node that the deck does not define, 50 first.",
                          "11 E *MPC the card names 1 node that the deck does not define, 60 first."));
}

TEST(InpTargets, AReferenceNodeThatDoesNotExistIsReported)
{
  EXPECT_THAT(FindingsOf("*RIGID BODY, NSET=N, REF NODE=4, ROT NODE=5\n"),
              ElementsAre("7 E *RIGIDBODY the card names 2 nodes that the deck does not define, 4 first."));
}

} // namespace voxbench
