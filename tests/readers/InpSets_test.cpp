// SPDX-License-Identifier: MIT
#include "InpBench.h"

namespace voxbench
{

using testing::ElementsAre;
using testing::IsEmpty;

TEST(InpSets, MembersAreAscendingAndUnique)
{
  InpBench bench;
  bench.Read(NodesUpTo(9) + "*NSET, NSET=A\n9, 3, 1,\n3, 3, 2\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 2, 3, 9}));
}

TEST(InpSets, ASetInPiecesIsOneSet)
{
  InpBench bench;
  bench.Read(NodesUpTo(9) + "*NSET, NSET=A\n5\n*NSET, NSET=B\n1\n*NSET, NSET=A, GENERATE\n7, 9\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{5, 7, 8, 9}));
  EXPECT_EQ(bench.model.nodeSets.size(), 2u);
  EXPECT_EQ(bench.model.FindNodeSet("A")->where.line, 11);
}

TEST(InpSets, SetsNamedWhileNodesAndElementsAreDefinedHoldThem)
{
  InpBench bench;
  bench.Read("*NODE, NSET=N\n3, 0.\n1, 0.\n*NODE\n2, 0.\n*ELEMENT, TYPE=B31, ELSET=E\n8, 1, 2\n*ELSET, ELSET=E\n8, 9\n"
             "*ELEMENT, TYPE=B31, ELSET=E\n9, 2, 3\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("N")), (std::vector<int>{1, 3}));
  EXPECT_EQ(Members(bench.model.FindElementSet("E")), (std::vector<int>{8, 9}));
}

TEST(InpSets, ARangeGoesFromFirstToLastByItsIncrement)
{
  InpBench bench;
  bench.Read(NodesUpTo(10) + "*NSET, NSET=A, GENERATE\n1, 9, 4\n2, 3\n10, 10, 1\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 2, 3, 5, 9, 10}));
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpSets, GeneratedNumbersThatDoNotExistAreReportedOnceWithTheirCount)
{
  InpBench bench;
  bench.Read(NodesUpTo(3) + "*NSET, NSET=A, GENERATE\n2, 5\n*NSET, NSET=A, GENERATE\n1, 2000000000, 1\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 2, 3}));
  EXPECT_THAT(bench.Findings(),
              ElementsAre("6 W *NSET 1999999999 generated numbers of A are no node and are left out."));
}

TEST(InpSets, ARangeThatIsNoneIsAnError)
{
  InpBench bench;
  bench.Read(NodesUpTo(3) + "*NSET, NSET=A, GENERATE\n3, 1\n1\n1, 3, 0\nB, 2\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{}));
  EXPECT_EQ(bench.model.diagnostics.errors, 4);
  EXPECT_EQ(bench.Findings()[1],
            "7 E *NSET \"1, , \" is no range of node numbers (first, last, increment); the line is not used.");
}

TEST(InpSets, NumbersThatDoNotExistAreReportedPerCardAndLeftOut)
{
  InpBench bench;
  bench.Read(NodesUpTo(3) + "*NSET, NSET=A\n1, 17, 18\n*NSET, NSET=A\n2, 19\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 2}));
  EXPECT_THAT(bench.Findings(), ElementsAre("5 E *NSET 2 numbers of A are no node, 17 first; they are left out.",
                                            "7 E *NSET 1 number of A is no node, 19 first; it is left out."));
}

TEST(InpSets, BadNumbersAreErrorsAndCostNoOtherMember)
{
  InpBench bench;
  bench.Read(NodesUpTo(3) + "*NSET, NSET=A\n1, 0, -2, 99999999999, 3\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 3}));
  EXPECT_THAT(bench.Findings(), ElementsAre("6 E *NSET \"0\" is no node number; it is no member.",
                                            "6 E *NSET \"-2\" is no node number; it is no member.",
                                            "6 E *NSET \"99999999999\" is no node number; it is no member."));
}

TEST(InpSets, SetsOfSetsMayNameSetsThatComeLater)
{
  InpBench bench;
  bench.Read("*NSET, NSET=ALL\nLEFT, 5, right\n*NODE\n" + NodesUpTo(6).substr(6) +
             "*NSET, NSET=LEFT\nFAR\n*NSET, NSET=RIGHT, GENERATE\n3, 4\n*NSET, NSET=FAR\n1\n*NSET, NSET=LEFT\n2\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("LEFT")), (std::vector<int>{1, 2}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("ALL")), (std::vector<int>{1, 2, 3, 4, 5}));
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpSets, SetsInACircleShareTheirMembersAndAreReported)
{
  InpBench bench;
  bench.Read(NodesUpTo(3) + "*NSET, NSET=A\n1, B\n*NSET, NSET=B\n2, A\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 2}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("B")), (std::vector<int>{1, 2}));
  EXPECT_THAT(bench.Findings(),
              ElementsAre("5 W *NSET A contains itself; its members are those of all sets in the circle.",
                          "7 W *NSET B contains itself; its members are those of all sets in the circle."));
}

TEST(InpSets, ANameThatIsNoSetIsReported)
{
  InpBench bench;
  bench.Read(NodesUpTo(3) + "*NSET, NSET=A\n1, NOWHERE\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1}));
  EXPECT_THAT(bench.Findings(),
              ElementsAre("6 E *NSET A names NOWHERE, which is neither a number nor a node set; it is left out."));
}

TEST(InpSets, ANodeSetMayTakeTheNodesOfAnElementSet)
{
  InpBench bench;
  bench.Read(NodesUpTo(5) + "*NSET, NSET=A, ELSET=E\n*ELEMENT, TYPE=B31, ELSET=E\n1, 2, 4\n2, 4, 5\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{2, 4, 5}));
}

TEST(InpSets, ANodeSetAndAnElementSetMayShareAName)
{
  InpBench bench;
  bench.Read(NodesUpTo(2) + "*ELEMENT, TYPE=B31, ELSET=X\n1, 1, 2\n*NSET, NSET=X\n2\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("X")), (std::vector<int>{2}));
  EXPECT_EQ(Members(bench.model.FindElementSet("X")), (std::vector<int>{1}));
}

TEST(InpSets, AnEmptySetIsKept)
{
  InpBench bench;
  bench.Read(NodesUpTo(1) + "*NSET, NSET=A\n*ELSET, ELSET=B\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{}));
  EXPECT_EQ(Members(bench.model.FindElementSet("B")), (std::vector<int>{}));
}

TEST(InpSets, ASetWithoutANameIsReportedWithItsData)
{
  InpBench bench;
  bench.Read(NodesUpTo(1) + "*NSET\n1\n");

  EXPECT_THAT(bench.Findings(), ElementsAre("3 E *NSET the set has no name (NSET=); it is not kept.",
                                            "4 E *NSET 1 data line from here on could not be used."));
}

TEST(InpSets, SetsAfterTheFirstStepCountAsWell)
{
  InpBench bench;
  bench.Read(NodesUpTo(2) + "*STEP\n*STATIC\n*NSET, NSET=A\n1, 2\n*END STEP\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 2}));
}

TEST(InpSets, BigUnsortedSetsOverIdsWithHolesComeOutRight)
{
  InpBench bench;
  std::string deck = "*NODE\n";
  std::vector<int> wanted;
  for (int id = 3; id < 3000; id += 3)
    deck += std::to_string(id) + ", 0.\n";
  deck += "*NSET, NSET=A\n";
  for (int id = 2998; id > 0; --id)
    deck += std::to_string(id) + ",\n";
  for (int id = 3; id < 2999; id += 3)
    wanted.push_back(id);
  bench.Read(deck);

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), wanted);
}

TEST(InpSets, ALongChainOfSetsIsFollowedToItsEnd)
{
  InpBench bench;
  std::string deck = NodesUpTo(2) + "*NSET, NSET=S0\n1\n";
  for (int number = 1; number < 20000; ++number) // each names the one before
    deck += "*NSET, NSET=S" + std::to_string(number) + "\nS" + std::to_string(number - 1) + "\n";
  bench.Read(deck + "*NSET, NSET=LAST, GENERATE\n2, 2\n*NSET, NSET=LAST\nS19999\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("S19999")), (std::vector<int>{1}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("LAST")), (std::vector<int>{1, 2}));
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpSets, ASetThatNamesACircleHasTheMembersOfTheCircle)
{
  InpBench bench;
  bench.Read(NodesUpTo(9) +
             "*NSET, NSET=OUTER\nA, 9\n*NSET, NSET=A\nB, 1\n*NSET, NSET=B\nA, C, 2\n*NSET, NSET=C\n3, D\n"
             "*NSET, NSET=D\n4\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("OUTER")), (std::vector<int>{1, 2, 3, 4, 9}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("B")), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("C")), (std::vector<int>{3, 4}));
  EXPECT_EQ(bench.model.diagnostics.warnings, 2);
}

TEST(InpSets, AnElementSetThatNamesNoSetIsReportedAsSuch)
{
  InpBench bench;
  bench.Read("*ELSET, ELSET=E\nNOPE\n");

  EXPECT_THAT(bench.Findings(),
              ElementsAre("2 E *ELSET E names NOPE, which is neither a number nor an element set; it is left out."));
}

} // namespace voxbench
