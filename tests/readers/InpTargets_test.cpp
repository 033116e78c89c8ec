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
              ElementsAre("9 E *INITIAL CONDITIONS the card names 1 node that the deck does not define, 7 first."));
}

TEST(InpTargets, ARestraintOfANodeThatDoesNotExistIsReported)
{
  EXPECT_THAT(FindingsOf("*BOUNDARY\n77, 1\n"),
              ElementsAre("7 E *BOUNDARY the card names 1 node that the deck does not define, 77 first."));
}

TEST(InpTargets, TheElementOfAPreTensionSectionIsLookedForAmongTheElements)
{
  EXPECT_THAT(FindingsOf("*PRE-TENSION SECTION, ELEMENT=9, NODE=1\n1., 0., 0.\n"
                         "*PRE-TENSION SECTION, ELEMENT=1, NODE=1\n1., 0., 0.\n"),
              ElementsAre("7 E *PRE-TENSION SECTION the card names 1 element that the deck does not define, 9 first."));
}

TEST(InpTargets, NumbersOnCardsThatAreKeptAsTheyStandAreLookedFor)
{
  EXPECT_THAT(
      FindingsOf("*EQUATION, REMOVE\n1, 1, 1\n41, 1, 1\n*DISTRIBUTING COUPLING, ELSET=E\n2, 1.\n42, 1.\nALL, 1.\n"
                 "*RETAINED NODAL DOFS\n43, 1, 3\n*NORMAL\n1, 3, 0., 0., 1.\n44, 45, 0., 0., 1.\n"
                 "*MODEL CHANGE, TYPE=ELEMENT, REMOVE\n46\n*MODEL CHANGE, TYPE=CONTACT PAIR, REMOVE\n47, 48\n"
                 "*INITIAL STRAIN INCREASE\n49, 1, 0., 0., 0., 0., 0., 0.\n"),
      testing::UnorderedElementsAre(
          "7 E *EQUATION the card names 1 node that the deck does not define, 41 first.",
          "10 E *DISTRIBUTING COUPLING the card names 1 node that the deck does not define, 42 first.",
          "14 E *RETAINED NODAL DOFS the card names 1 node that the deck does not define, 43 first.",
          "16 E *NORMAL the card names 1 element that the deck does not define, 44 first.",
          "16 E *NORMAL the card names 1 node that the deck does not define, 45 first.",
          "19 E *MODEL CHANGE the card names 1 element that the deck does not define, 46 first.",
          "23 E *INITIAL STRAIN INCREASE the card names 1 element that the deck does not define, 49 first."));
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
              ElementsAre("7 E *RIGID BODY the card names 2 nodes that the deck does not define, 4 first."));
}

} // namespace voxbench
