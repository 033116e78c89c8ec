// SPDX-License-Identifier: MIT
// Files that only bear the suffix.
#include "InpBench.h"

namespace voxbench
{

using testing::HasSubstr;

namespace
{
std::string ReasonFor(std::string_view iText, int iLine = 1)
{
  InpBench bench;
  bench.Read(iText);
  EXPECT_FALSE(bench.outcome.ok) << iText.substr(0, 60);
  EXPECT_EQ(bench.outcome.line, iLine) << iText.substr(0, 60);
  EXPECT_FALSE(bench.outcome.advice.empty());
  return bench.outcome.reason;
}
} // namespace

TEST(InpRefusals, AMissingFileIsRefused)
{
  InpBench bench;
  bench.ReadFile(bench.Path("gone.inp"));

  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_EQ(bench.outcome.Describe(),
            bench.Path("gone.inp").string() +
                ": the file cannot be read: No such file or directory. Check the path and the "
                "permissions.");
}

TEST(InpRefusals, AFolderIsRefused)
{
  InpBench bench;
  bench.ReadFile(bench.Path(""));
  EXPECT_THAT(bench.outcome.reason, HasSubstr("Is a directory"));
}

TEST(InpRefusals, EmptyAndCommentOnlyFilesAreRefused)
{
  EXPECT_EQ(ReasonFor(""), "the file is empty.");
  EXPECT_EQ(ReasonFor("** nothing\n\n"), "the first lines hold no card, only comments and blank lines.");
}

TEST(InpRefusals, OtherProgramsFilesAreNamedWhenThatIsCertain)
{
  EXPECT_THAT(ReasonFor("; a comment\n[TITLE]\nA network\n\n[JUNCTIONS]\n;ID Elev\n 1 700\n[PIPES]\n"),
              HasSubstr("an EPANET pipe network"));
  EXPECT_THAT(ReasonFor("[TITLE]\n;;Project\n[OPTIONS]\nFLOW_UNITS CFS\n[RAINGAGES]\n[SUBCATCHMENTS]\n[JUNCTIONS]\n"),
              HasSubstr("a SWMM drainage model"));
  EXPECT_THAT(ReasonFor("\n[general]\na=1\n", 2), HasSubstr("a file of bracketed sections"));
  EXPECT_THAT(ReasonFor("<?xml version=\"1.0\"?>\n<mesh/>\n"), HasSubstr("XML"));
  EXPECT_THAT(ReasonFor("{ \"mesh\": 1 }\n"), HasSubstr("JSON"));
  EXPECT_THAT(ReasonFor("8 1 1 0 0\n1 0. 0. 0.\n"), HasSubstr("an AVS UCD mesh"));
  EXPECT_THAT(ReasonFor("Bare sphere\nc cells\n1 1 -18.74 -1 imp:n=1\n2 0 1 imp:n=0\n\n1 so 8.741\n"),
              HasSubstr("an MCNP model"));
  EXPECT_THAT(ReasonFor("SOL 101\nCEND\nBEGIN BULK\nGRID,1,,0.,0.,0.\n"), HasSubstr("a bulk data deck"));
  EXPECT_THAT(ReasonFor(std::string_view("\x7f"
                                         "ELF\2\1\1\0\0\0\0\0\n\0\0",
                                         15)),
              HasSubstr("binary data"));
  EXPECT_THAT(ReasonFor(std::string_view("\xff\xfe*\0N\0O\0D\0E\0\n\0", 14)), HasSubstr("text in UTF-16"));
}

TEST(InpRefusals, PlainTextIsRefusedWithItsFirstLine)
{
  EXPECT_THAT(ReasonFor("\nDear reader,\nthis is a letter.\nIt has lines,\nbut no cards.\n", 2),
              HasSubstr("the first line is no card"));
}

TEST(InpRefusals, DecksOfOtherDialectsAreRefusedByTheirCards)
{
  InpBench bench;
  bench.Read("$ comment\n*KEYWORD\n*TITLE\nx\n*NODE\n1,0.,0.,0.\n");
  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_EQ(bench.outcome.card, "*KEYWORD");
  EXPECT_EQ(bench.outcome.reason, "this is a keyword deck of another dialect.");

  EXPECT_THAT(ReasonFor("* a list\n* of things\n* to do\n"), HasSubstr("none of the first 3 cards is known"));
}

TEST(InpRefusals, ADeckOfPartsAndInstancesIsRefused)
{
  InpBench bench;
  bench.Read("*HEADING\nx\n*PART, NAME=P\n*NODE\n1, 0., 0., 0.\n*END PART\n");

  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_EQ(bench.outcome.line, 3);
  EXPECT_EQ(bench.outcome.card, "*PART");
  EXPECT_EQ(bench.outcome.advice, "Write the model without parts and assemblies (a flat deck).");
}

TEST(InpRefusals, AFewStrayLinesBeforeTheFirstCardAreOnlyReported)
{
  InpBench bench;
  bench.Read(">**\n** comment\n*NODE\n1, 0., 0., 0.\n");

  EXPECT_TRUE(bench.outcome.ok) << bench.outcome.Describe();
  EXPECT_EQ(bench.Findings()[0], "1 E  1 data line from here on could not be used.");
}

TEST(InpRefusals, AByteOrderMarkIsPassedOver)
{
  InpBench bench;
  bench.Read("\xEF\xBB\xBF*NODE, NSET=A\n1, 0., 0., 0.\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1}));
}

TEST(InpRefusals, CompressedDataCutOffIsRefused)
{
  InpBench bench;
  const auto path = bench.WritePacked("packed.inp.gz", NodesUpTo(200000));
  std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
  bench.ReadFile(path);

  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_GT(bench.outcome.line, 1);
  EXPECT_EQ(bench.outcome.card, "*NODE");
  EXPECT_THAT(bench.outcome.reason, HasSubstr("the compressed data is damaged or cut off"));
  EXPECT_THAT(bench.outcome.reason, testing::Not(HasSubstr("fd:")));
}

TEST(InpRefusals, MoreElementTypesThanTheTableHoldsAreRefused)
{
  constexpr int kMost = 65536;
  std::string deck = NodesUpTo(1);
  for (int type = 1; type <= kMost; ++type)
    deck += "*ELEMENT, TYPE=T" + std::to_string(type) + "\n";
  InpBench bench;
  bench.Read(deck);
  EXPECT_TRUE(bench.outcome.ok);
  EXPECT_EQ(bench.model.elementTypes.size(), static_cast<std::size_t>(kMost));

  bench.Read(deck + "*ELEMENT, TYPE=T1\n*ELEMENT, TYPE=T0\n");
  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_EQ(bench.outcome.line, kMost + 4);
  EXPECT_THAT(bench.outcome.reason, HasSubstr("more than 65536 types of elements"));
}

TEST(InpRefusals, ARefusalNamesFileLineCardReasonAndAdvice)
{
  InpBench bench;
  bench.Read("*NODE\n*INCLUDE\n");

  EXPECT_EQ(bench.outcome.Describe(),
            bench.Path("deck.inp").string() + ":2: *INCLUDE: the card names no file. Write *INCLUDE,INPUT=file.");
}

} // namespace voxbench
