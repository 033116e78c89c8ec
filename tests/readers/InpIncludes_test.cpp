// SPDX-License-Identifier: MIT
#include "InpBench.h"

namespace voxbench
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(InpIncludes, AnIncludedFileStandsRelativeToTheIncludingOne)
{
  InpBench bench;
  bench.Write("parts/more/sets.inc", "*NSET, NSET=A\n1\n");
  bench.Write("parts/mesh.inc", "*NODE\n1, 0., 0., 0.\n*INCLUDE, INPUT=more/sets.inc\n");
  bench.Read("*INCLUDE, INPUT=parts/mesh.inc\n*NSET, NSET=B\nA\n");

  EXPECT_TRUE(bench.outcome.ok) << bench.outcome.Describe();
  EXPECT_EQ(Members(bench.model.FindNodeSet("B")), (std::vector<int>{1}));
  ASSERT_EQ(bench.model.files.size(), 3u);
  EXPECT_EQ(bench.model.FindNodeSet("A")->where, (Where{2, 1}));
  EXPECT_EQ(bench.model.FindNodeSet("B")->where, (Where{0, 2}));
}

TEST(InpIncludes, DataLinesOfACardMayBeIncluded)
{
  InpBench bench;
  bench.Write("nodes.txt", "2, 0., 0., 0.\n3, 0., 0., 0.");
  bench.Read("*NODE, NSET=ALL\n1, 0., 0., 0.\n*include, input = nodes.txt\n4, 0., 0., 0.\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("ALL")), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpIncludes, FileNamesKeepTheirCaseAndMayBeQuoted)
{
  InpBench bench;
  bench.Write("My Nodes.inc", "*NODE, NSET=A\n1, 0., 0., 0.\n");
  bench.Read("*INCLUDE, INPUT=\"My Nodes.inc\"\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1}));
}

TEST(InpIncludes, ACompressedFileStandsInForItsPlainName)
{
  InpBench bench;
  bench.WritePacked("nodes.inc.gz", "*NODE, NSET=A\n1, 0., 0., 0.\n");
  bench.Read("*INCLUDE, INPUT=nodes.inc\n");

  EXPECT_TRUE(bench.outcome.ok) << bench.outcome.Describe();
  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1}));
}

TEST(InpIncludes, AMissingFileIsRefusedWithTheCardsLine)
{
  InpBench bench;
  bench.Read("*NODE\n1, 0., 0., 0.\n*INCLUDE, INPUT=gone.inc\n");

  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_EQ(bench.outcome.file, bench.Path("deck.inp").string());
  EXPECT_EQ(bench.outcome.line, 3);
  EXPECT_EQ(bench.outcome.card, "*INCLUDE");
  EXPECT_THAT(bench.outcome.reason, HasSubstr("gone.inc does not exist"));
  EXPECT_EQ(bench.outcome.advice, "Put it beside the including file or correct the name.");
}

TEST(InpIncludes, AFolderIsNoFile)
{
  InpBench bench;
  bench.Write("folder/x", "");
  bench.Read("*NODE\n1, 0., 0., 0.\n*INCLUDE, INPUT=folder\n");

  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_EQ(bench.outcome.line, 3);
  EXPECT_THAT(bench.outcome.reason, HasSubstr("folder cannot be read: Is a directory"));
}

TEST(InpIncludes, AnIncludeWithoutAFileNameIsRefused)
{
  InpBench bench;
  bench.Read("*INCLUDE\n");

  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_EQ(bench.outcome.reason, "the card names no file.");
}

TEST(InpIncludes, AFileThatIncludesItselfIsRefused)
{
  InpBench bench;
  bench.Read("*NODE\n1, 0., 0., 0.\n*INCLUDE, INPUT=deck.inp\n");

  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_EQ(bench.outcome.line, 3);
  EXPECT_THAT(bench.outcome.reason, HasSubstr("includes itself"));
}

TEST(InpIncludes, ACircleOfFilesIsRefusedWhereItCloses)
{
  InpBench bench;
  bench.Write("a.inc", "**\n*INCLUDE, INPUT=b.inc\n");
  bench.Write("b.inc", "*INCLUDE, INPUT=./a.inc\n");
  bench.Read("*NODE\n*INCLUDE, INPUT=a.inc\n");

  EXPECT_FALSE(bench.outcome.ok);
  EXPECT_THAT(bench.outcome.file, HasSubstr("b.inc"));
  EXPECT_EQ(bench.outcome.line, 1);
}

TEST(InpIncludes, AFileMayBeIncludedTwiceOneAfterTheOther)
{
  InpBench bench;
  bench.Write("set.inc", "*NSET, NSET=A\n1\n");
  bench.Read("*NODE\n1, 0., 0., 0.\n*INCLUDE, INPUT=set.inc\n*INCLUDE, INPUT=set.inc\n");

  EXPECT_TRUE(bench.outcome.ok) << bench.outcome.Describe();
  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{1}));
}

TEST(InpIncludes, AFindingInAnIncludedFileNamesThatFile)
{
  InpBench bench;
  bench.Write("nodes.inc", "\nx, 1.\n");
  bench.Read("*NODE\n*INCLUDE, INPUT=nodes.inc\n");

  ASSERT_EQ(bench.model.diagnostics.list.size(), 1u);
  EXPECT_EQ(bench.model.diagnostics.list[0].where, (Where{1, 2}));
  EXPECT_THAT(Describe(bench.model.diagnostics.list[0], bench.model.files),
              HasSubstr("nodes.inc:2: error: *NODE: \"X\""));
}

TEST(InpIncludes, AByteOrderMarkOfAnIncludedFileIsPassedOver)
{
  InpBench bench;
  bench.Write("nodes.txt", "\xEF\xBB\xBF"
                           "2, 0., 0., 0.\n");
  bench.Write("sets.txt", "\xEF\xBB\xBF*NSET, NSET=A\n2\n");
  bench.Read("*NODE, NSET=ALL\n1, 0., 0., 0.\n*INCLUDE, INPUT=nodes.txt\n*INCLUDE, INPUT=sets.txt\n");

  EXPECT_EQ(Members(bench.model.FindNodeSet("ALL")), (std::vector<int>{1, 2}));
  EXPECT_EQ(Members(bench.model.FindNodeSet("A")), (std::vector<int>{2}));
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

} // namespace voxbench
