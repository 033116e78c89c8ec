// SPDX-License-Identifier: MIT
#include "FrdBench.h"

using testing::HasSubstr;

namespace voxbench
{
using namespace frdtext;

namespace
{

constexpr const char* kState = " 1.000000000";

//! What comes of a file with the mesh and these lines.
std::string RefusalOf(const std::string& iLines)
{
  FrdBench bench;
  bench.Read(Mesh() + iLines + kFileEnd);
  return bench.Refusal();
}

std::string Replaced(std::string iText, const std::string& iWhat, const std::string& iBy)
{
  const std::size_t at = iText.find(iWhat);
  EXPECT_NE(at, std::string::npos);
  return at == std::string::npos ? iText : iText.replace(at, iWhat.size(), iBy);
}

std::string RefusalOfChange(const std::string& iWhat, const std::string& iBy)
{
  FrdBench bench;
  bench.Read(Replaced(SmallFile(), iWhat, iBy));
  return bench.Refusal();
}

} // namespace

TEST(FrdRefusals, AMissingFileIsRefusedWithTheReasonOfTheSystem)
{
  FrdBench bench;
  bench.ReadFile("/no/such/file.frd");

  EXPECT_THAT(bench.outcome.Describe(), HasSubstr("/no/such/file.frd: No such file or directory."));
  EXPECT_FALSE(bench.outcome.advice.empty());
}

TEST(FrdRefusals, AFileOfAnotherKindIsRefusedAtItsFirstLine)
{
  FrdBench bench;
  bench.Read("*HEADING\n");

  EXPECT_EQ(bench.Refusal(), "1 : this is no result file: it does not begin with a record \"1C\".");
}

TEST(FrdRefusals, AnEmptyFileIsRefused)
{
  FrdBench bench;
  bench.Read("");

  EXPECT_FALSE(bench.outcome.ok);
}

TEST(FrdRefusals, AFileWithoutItsEndIsRefused)
{
  FrdBench bench;
  bench.Read(Mesh());

  EXPECT_EQ(bench.Refusal(),
            "12 : the file ends at byte " + std::to_string(Mesh().size()) + " without its end record 9999.");
}

TEST(FrdRefusals, TextBehindTheEndIsRefused)
{
  FrdBench bench;
  bench.Read(SmallFile() + "more\n");

  EXPECT_THAT(bench.Refusal(), HasSubstr("goes on behind its end record"));
}

TEST(FrdRefusals, ALineThatBeginsNoBlockIsShown)
{
  EXPECT_EQ(RefusalOf("   77X what\n"), "13 : the line begins no block of a result file: \"   77X what\".");
}

TEST(FrdRefusals, ANumberOfNodesThatDoesNotHoldIsRefused)
{
  EXPECT_EQ(RefusalOf(Block("DISP", {"D1"}, ResultsHead(1, kState, 5, 0))),
            "20 results DISP: line 13 announces 5 nodes, but 4 follow.");
}

TEST(FrdRefusals, ARowWithTooFewValuesIsRefusedAtTheLineBehindIt)
{
  EXPECT_EQ(RefusalOfChange(" 1.00000E+00 1.10000E+00 1.20000E+00\n", " 1.00000E+00 1.10000E+00\n"),
            "21 results DISP: node 1 has 2 values of 3: \" -1         2 2.00000E+00 2.10000E+00 2.\".");
}

TEST(FrdRefusals, ARowWithTooManyValuesIsRefused)
{
  EXPECT_EQ(
      RefusalOfChange(" 1.00000E+00 1.10000E+00 1.20000E+00\n", " 1.00000E+00 1.10000E+00 1.20000E+00 9.00000E+00\n"),
      "20 results DISP: the row has more than 3 values.");
}

TEST(FrdRefusals, AValueThatIsNoNumberIsShownWithItsColumn)
{
  EXPECT_EQ(RefusalOfChange(" 1.10000E+00", " 1.1x000E+00"),
            "20 results DISP: there is no number at column 30 of \" -1         1 1.00000E+00 1.1x000E+00 "
            "1.20000E+00\".");
}

TEST(FrdRefusals, ARowWithoutANodeNumberIsRefused)
{
  EXPECT_THAT(RefusalOfChange(" -1         2 2.00000E+00", " -1         z 2.00000E+00"),
              HasSubstr("21 results DISP: the row has no node number"));
}

TEST(FrdRefusals, ALineOfAnotherKindAmongTheRowsIsRefused)
{
  EXPECT_THAT(RefusalOfChange(" -1         2 2.00000E+00", " -8         2 2.00000E+00"),
              HasSubstr("21 results DISP: a row of values must begin with -1"));
}

TEST(FrdRefusals, ABlockWithoutAFormIsRefused)
{
  EXPECT_THAT(RefusalOfChange("                    1\n -1", "                    7\n -1"),
              HasSubstr("3 nodes: the block has no form 0, 1, 2 or 3 at its end"));
}

TEST(FrdRefusals, ANodeThatStandsTwiceIsRefused)
{
  EXPECT_EQ(RefusalOfChange(" -1         4 0.00000E+00", " -1         3 0.00000E+00"), "8 nodes: node 3 stands twice.");
}

TEST(FrdRefusals, ACoordinateThatIsNoNumberIsRefused)
{
  EXPECT_EQ(RefusalOfChange(" -1         4 0.00000E+00", " -1         4         NAN"),
            "8 nodes: 1 coordinates are no numbers.");
}

TEST(FrdRefusals, AnElementOfANodeThatIsNotThereIsRefused)
{
  EXPECT_EQ(RefusalOfChange("         3         4\n", "         3        44\n"),
            "12 elements: an element has node 44, which the file does not have.");
}

TEST(FrdRefusals, AnElementOfUnknownTypeIsRefused)
{
  EXPECT_EQ(RefusalOfChange(" -1         1    3    0", " -1         1   13    0"),
            "10 elements: element 1 is of type 13: there are types 1 to 12.");
}

TEST(FrdRefusals, AnElementWithTooManyNodesIsRefused)
{
  EXPECT_THAT(RefusalOfChange("         3         4\n", "         3         4         1\n"),
              HasSubstr("11 elements: element 1 needs 4 nodes"));
}

TEST(FrdRefusals, AnElementWithTooFewNodesIsRefused)
{
  EXPECT_THAT(RefusalOfChange("         3         4\n", "         3\n"),
              HasSubstr("12 elements: element 1 needs 4 nodes"));
}

TEST(FrdRefusals, ASecondMeshIsRefused)
{
  EXPECT_THAT(RefusalOf(NodesHead(0)), HasSubstr("13 nodes: a second block of nodes"));
}

TEST(FrdRefusals, ResultsWithoutANameAreRefused)
{
  EXPECT_THAT(RefusalOf(ResultsHead(1, kState, 4, 0) + " -1         1 1.00000E+00\n"),
              HasSubstr("14 results: results must name themselves in a record -4"));
}

TEST(FrdRefusals, ResultsOnElementsAreRefused)
{
  EXPECT_THAT(RefusalOfChange(" -4  DISP        4    1", " -4  DISP        4    3"),
              HasSubstr("15 results DISP: only values on nodes (kind 1) are understood"));
}

TEST(FrdRefusals, AComponentThatIsNotNamedIsRefused)
{
  EXPECT_THAT(RefusalOfChange(" -5  D3  ", " -6  D3  "),
              HasSubstr("results DISP: a component must be named in a record -5"));
}

TEST(FrdRefusals, ResultsWithoutAComponentWithValuesAreRefused)
{
  EXPECT_THAT(RefusalOf(Block("DISP", {"ALL*"}, ResultsHead(1, kState, 4, 0))),
              HasSubstr("results must have a component with values"));
}

TEST(FrdRefusals, AStateThatCannotBeReadIsRefused)
{
  EXPECT_THAT(RefusalOfChange("  100CL  101 1.000000000", "  100CL  101 1.0o0000000"),
              HasSubstr("14 results: the value, kind or number of the state cannot be read"));
}

TEST(FrdRefusals, ALineOfNoEndIsRefused)
{
  EXPECT_THAT(RefusalOf(std::string(10000, 'x')), HasSubstr("13 : the line is longer than any line of a result file."));
}

TEST(FrdRefusals, DamagedCompressionIsRefused)
{
  FrdBench bench;
  InpBench files;
  std::string packed;
  {
    std::ifstream file(files.WritePacked("job.frd.gz", SmallFile()), std::ios::binary);
    packed.assign(std::istreambuf_iterator<char>(file), {});
  }
  bench.ReadFile(files.Write("cut.frd.gz", std::string_view(packed).substr(0, packed.size() / 2)));

  EXPECT_THAT(bench.Refusal(), HasSubstr("the compressed data is damaged or cut off"));
}

} // namespace voxbench
