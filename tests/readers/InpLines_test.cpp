// SPDX-License-Identifier: MIT
// How lines, keywords and parameters may be written.
#include "InpBench.h"

namespace voxbench
{

using testing::ElementsAre;
using testing::IsEmpty;

TEST(InpLines, KeywordsParametersAndNamesKnowNoCase)
{
  InpBench bench;
  bench.Read("*Node, nset=Fix\n1, 0., 0., 0.\n*NSET, NSET=fix\n1\n*nset,NSET=FIX\n1\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("FIX")), (std::vector<int>{1}));
  EXPECT_EQ(bench.model.nodeSets.size(), 1u);
}

TEST(InpLines, BlanksAndTabsMayStandAnywhere)
{
  InpBench bench;
  bench.Read(" * NO DE ,\tNSET =  A B\n\t 1 ,\t0.5 , 1 .5,\t2.5\t\n");

  ASSERT_EQ(bench.model.nodes.size(), 1u);
  EXPECT_EQ(bench.model.nodes.xyz, (Column<double>{.5, 1.5, 2.5}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("AB")), (std::vector<int>{1}));
}

TEST(InpLines, QuotedNamesKeepCaseAndBlanks)
{
  InpBench bench;
  bench.Read("*NODE, NSET=\"Fix it, now\"\n1, 0., 0., 0.\n*NSET, NSET=ALL\n\"Fix it, now\"\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("Fix it, now")), (std::vector<int>{1}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("ALL")), (std::vector<int>{1}));
}

TEST(InpLines, NamesMayBeLong)
{
  InpBench bench;
  const std::string name(300, 'Q');
  bench.Read("*NODE, NSET=" + name + "\n1, 0., 0., 0.\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet(name)), (std::vector<int>{1}));
}

TEST(InpLines, CommentsAndEmptyLinesCountOnlyAsLines)
{
  InpBench bench;
  bench.Read("** top\n\n*NODE\n  ** between\n1, 0., 0., 0.\n\n**\n2, 1., 0., 0.\nx\n");

  EXPECT_EQ(Ids(bench.model.nodes.ids), (std::vector<int>{1, 2}));
  EXPECT_THAT(bench.Findings(),
              ElementsAre("9 E *NODE \"X\" is no node number (1 to 2147483647); the line is not used."));
}

TEST(InpLines, CarriageReturnsBeforeLineEndsVanish)
{
  InpBench bench;
  bench.Read(
      "*NODE, NSET=A\r\n1, 0., 0., 3.\r\n2, 1.\r\n*ELEMENT, TYPE=B31, ELSET=E\r\n1, 1, 2\r\n*ELSET, ELSET=F\r\n1,\r\n");

  EXPECT_EQ(bench.model.nodes.xyz, (Column<double>{0., 0., 3., 1., 0., 0.}));
  EXPECT_EQ(Members(bench.model.FindElementSet("F")), (std::vector<int>{1}));
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpLines, AFileOfCarriageReturnsAloneHasLines)
{
  InpBench bench;
  bench.Read("*NODE, NSET=A\r1, 0., 0., 3.\r2, 1.\r");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 2}));
}

TEST(InpLines, TheLastLineNeedsNoEnd)
{
  InpBench bench;
  bench.Read("*NODE\n1, 0., 0., 0.\n2, 1., 2., 3.25");

  EXPECT_EQ(bench.model.nodes.xyz[5], 3.25);
}

TEST(InpLines, AKeywordLineThatEndsWithACommaGoesOn)
{
  InpBench bench;
  bench.Read("*NODE,\nNSET=A\n1, 0., 0., 0.\n2, 0., 0., 0.\n*NSET, NSET=B,\nGENERATE\n1, 2\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1, 2}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("B")), (std::vector<int>{1, 2}));
}

TEST(InpLines, ACommaAtTheEndOfAKeywordLineDoesNotSwallowData)
{
  InpBench bench;
  bench.Read(NodesUpTo(3) + "*NSET, NSET=A,\n1, 2\n*NSET, NSET=B,\nA, 3\n*BOUNDARY,\n1, 2\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("B")), (std::vector<int>{1, 2, 3}));
  ASSERT_EQ(bench.model.restraints.size(), 1u);
  EXPECT_EQ(bench.model.restraints[0].rows.size(), 1u);
}

TEST(InpLines, GzipIsToldByItsFirstBytesAndNotByTheName)
{
  InpBench bench;
  bench.ReadFile(bench.WritePacked("packed.inp", NodesUpTo(5)));

  EXPECT_TRUE(bench.outcome.ok) << bench.outcome.Describe();
  EXPECT_EQ(bench.model.nodes.size(), 5u);
}

TEST(InpLines, ALineOrElementMayLieAcrossTheWindowsEdge)
{
  InpBench bench;
  std::string deck = NodesUpTo(20) + "*ELEMENT, TYPE=C3D20, ELSET=ALL\n";
  const int count = 40000; // some megabytes: several windows
  for (int id = 1; id <= count; ++id)
    deck += std::to_string(id) + ", 1,2,3,4,5,6,7,8,9,10,\n 11,12,13,14,15,16,17,18,19,20\n";
  bench.Read(deck);

  ASSERT_EQ(bench.model.elements.size(), static_cast<std::size_t>(count));
  EXPECT_EQ(bench.model.elements.nodes.size(), 20u * count);
  EXPECT_EQ(bench.model.FindElementSet("ALL")->members.size(), static_cast<std::size_t>(count));
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpLines, AnUnknownCardIsReportedWithItsLineAndCounted)
{
  InpBench bench;
  bench.Read(NodesUpTo(1) + "*FROBNICATE, A=1\n1, 2\n3\n*FROBNICATE\n*NSET, NSET=A\n1\n");

  EXPECT_THAT(bench.Findings(),
              ElementsAre("3 W *FROBNICATE the card is not understood; it is passed over with its 2 data lines.",
                          "6 W *FROBNICATE the card is not understood; it is passed over with its 0 data lines."));
  EXPECT_EQ(bench.model.diagnostics.unknownCards.at("*FROBNICATE"), 2);
  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1}));
}

TEST(InpLines, FindingsShowKeywordsWithSingleBlanks)
{
  InpBench bench;
  bench.Read(NodesUpTo(1) + "* no  such\tcard , A=1\n*ENDSTEP\n*solid  section, NOSUCH\n");

  EXPECT_THAT(bench.Findings(),
              testing::IsSupersetOf({"3 W *NO SUCH CARD the card is not understood; it is passed over with its 0 data "
                                     "lines.",
                                     "5 E *SOLID SECTION the section names no element set (ELSET=)."}));
  EXPECT_EQ(bench.model.diagnostics.list.at(1).card, "*END STEP");
  EXPECT_EQ(bench.model.diagnostics.unknownCards.at("*NO SUCH CARD"), 1);
}

TEST(InpLines, FindingsAreShortWhateverTheDeckSays)
{
  InpBench bench;
  const std::string endless(1000000, 'X');
  std::string words;
  for (int word = 0; word < 1000; ++word)
    words += "A ";
  bench.Read(NodesUpTo(1) + "*" + endless + "\n*NSET, NSET=A, " + endless + "\n1\n*ELASTIC, TYPE=\"" + words +
             "\"\n*NODE\n\"" + words + "\", 0., 0., 0.\n");

  const std::string first(80, 'X');
  EXPECT_EQ(bench.Findings().at(0),
            "3 W *" + first + "... the card is not understood; it is passed over with its 0 data lines.");
  EXPECT_EQ(bench.Findings().at(1), "4 W *NSET the parameter " + first + "... has no effect.");
  for (const std::string& finding : bench.Findings())
    EXPECT_LT(finding.size(), 600u);
}

TEST(InpLines, FindingsCutNoCharacterThrough)
{
  InpBench bench;
  bench.Read(NodesUpTo(1) + "*NSET, NSET=A, " + std::string(79, 'X') + "\xC3\xA9X\n1\n");

  EXPECT_EQ(bench.Findings().at(0), "3 W *NSET the parameter " + std::string(79, 'X') + "... has no effect.");
}

TEST(InpLines, AParameterWithoutEffectIsReported)
{
  InpBench bench;
  bench.Read("*NODE, COLOUR=RED\n1, 0., 0., 0.\n");

  EXPECT_THAT(bench.Findings(), ElementsAre("1 W *NODE the parameter COLOUR has no effect."));
}

TEST(InpLines, FindingsBeyondTheListedOnesAreCounted)
{
  InpBench bench;
  std::string deck = "*NODE\n";
  for (int line = 0; line < Diagnostics::kListedPerCard + 50; ++line)
    deck += "x\n";
  bench.Read(deck);

  EXPECT_EQ(bench.model.diagnostics.list.size(), static_cast<std::size_t>(Diagnostics::kListedPerCard));
  EXPECT_EQ(bench.model.diagnostics.unlisted.at("*NODE"), 50);
  EXPECT_EQ(bench.model.diagnostics.errors, Diagnostics::kListedPerCard + 50);
}

TEST(InpLines, ProgressRisesToAllBytes)
{
  InpBench bench;
  const auto path = bench.Write("deck.inp", NodesUpTo(60000));
  std::vector<std::pair<std::uint64_t, std::uint64_t>> calls;
  ReadOptions options;
  options.progress = [&](std::uint64_t iDone, std::uint64_t iTotal) { calls.emplace_back(iDone, iTotal); };
  ReadInp(path, options, bench.model);

  ASSERT_GT(calls.size(), 2u);
  EXPECT_TRUE(std::is_sorted(calls.begin(), calls.end()));
  EXPECT_EQ(calls.back().first, std::filesystem::file_size(path));
  EXPECT_EQ(calls.back().second, std::filesystem::file_size(path));
}

} // namespace voxbench
