// SPDX-License-Identifier: MIT
#include "FrdBench.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace voxbench
{
using namespace frdtext;

namespace
{

//! The mesh, and a file with the block given.
std::string FileWith(const std::string& iBlocks)
{
  return Mesh() + iBlocks + kFileEnd;
}

std::string DispIn(const std::string& iState)
{
  return Block("DISP", {"D1"}, iState);
}

} // namespace

TEST(FrdText, NodesHaveTheirIdsAndPlaces)
{
  FrdBench bench;
  bench.Read(SmallFile());

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_THAT(Ids(bench.records.nodes.ids), ElementsAre(1, 2, 3, 4));
  EXPECT_EQ(bench.records.nodes.xyz[3], 1.);
  EXPECT_EQ(bench.records.nodes.xyz[11], 1.);
}

TEST(FrdText, NodesInAnyOrderBecomeAscending)
{
  FrdBench bench;
  bench.Read(kHead + NodesHead(2) + Row(9, {9, 0, 0}) + Row(4, {4, 0, 0}) + kBlockEnd + kFileEnd);

  EXPECT_THAT(Ids(bench.records.nodes.ids), ElementsAre(4, 9));
  EXPECT_EQ(bench.records.nodes.xyz[0], 4.);
  EXPECT_EQ(bench.records.nodes.xyz[3], 9.);
}

TEST(FrdText, AnElementHasItsTypeAndNodes)
{
  FrdBench bench;
  bench.Read(SmallFile());

  const ElementTable& elements = bench.records.elements;
  ASSERT_EQ(elements.size(), 1u);
  EXPECT_EQ(bench.records.elementTypes[elements.types[0]].name, "TE4");
  const auto nodes = elements.NodesOf(0);
  EXPECT_THAT(std::vector<int>(nodes.begin(), nodes.end()), ElementsAre(1, 2, 3, 4));
}

TEST(FrdText, ABlockHasItsNameComponentsAndValues)
{
  FrdBench bench;
  bench.Read(SmallFile());

  ASSERT_EQ(bench.records.blocks.size(), 2u);
  const ResultBlock& stress = bench.records.blocks[1];
  EXPECT_EQ(stress.name, "STRESS");
  EXPECT_THAT(ComponentNames(stress), ElementsAre("SXX", "SYY", "SZZ", "SXY", "SYZ", "SZX"));
  EXPECT_THAT(Ids(*stress.nodes), ElementsAre(1, 2, 3, 4));
  ASSERT_EQ(stress.values.size(), 24u);
  EXPECT_EQ(stress.values[0], 1.);
  EXPECT_EQ(stress.values[23], 4.5);
}

TEST(FrdText, AComponentThatIsDerivedHasNoValues)
{
  FrdBench bench;
  bench.Read(SmallFile());

  EXPECT_THAT(ComponentNames(bench.records.blocks[0]), ElementsAre("D1", "D2", "D3"));
  EXPECT_EQ(bench.records.blocks[0].values.size(), 12u);
}

TEST(FrdText, MoreThanSixValuesGoOnInFurtherLines)
{
  std::vector<std::string> names;
  for (int number = 1; number <= 14; ++number)
    names.push_back("SDV" + std::to_string(number));
  FrdBench bench;
  bench.Read(FileWith(Block("SDV", names, ResultsHead(1, " 1.000000000", 4, 0))));

  ASSERT_EQ(bench.Refusal(), "read");
  const ResultBlock& block = bench.records.blocks[0];
  EXPECT_EQ(block.components.size(), 14u);
  ASSERT_EQ(block.values.size(), 56u);
  EXPECT_EQ(block.values[13], 2.3);
  EXPECT_EQ(block.values[55], 5.3);
}

TEST(FrdText, ABlockOfAnyNameIsKept)
{
  FrdBench bench;
  bench.Read(FileWith(Block("GUESSME", {"A", "B"}, ResultsHead(1, " 1.000000000", 4, 0))));

  ASSERT_EQ(bench.records.blocks.size(), 1u);
  EXPECT_EQ(bench.records.blocks[0].name, "GUESSME");
  EXPECT_EQ(bench.records.blocks[0].values.size(), 8u);
}

TEST(FrdText, TheShortFormIsRead)
{
  FrdBench bench;
  bench.Read(kHead + NodesHead(2, 0) + Row(1, {0, 0, 0}, 5) + Row(2, {1, 0, 0}, 5) + kBlockEnd + ElementsHead(1, 0) +
             " -1    7   11    0    1\n -2    1    2\n" + kBlockEnd + ResultsHead(1, " 1.000000000", 2, 0, 0) +
             Names("NDTEMP", {"T"}) + Row(1, {20}, 5) + Row(2, {30}, 5) + kBlockEnd + kFileEnd);

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_THAT(Ids(bench.records.elements.ids), ElementsAre(7));
  EXPECT_THAT(Values(bench.records.blocks[0]), ElementsAre(20., 30.));
}

TEST(FrdText, AStateTellsItsKindStepIncrementAndValue)
{
  FrdBench bench;
  bench.Read(FileWith(StepRecord(7, 3, 2) + DispIn(ResultsHead(4, " 2.50000E+00", 4, 0))));

  ASSERT_EQ(bench.records.states.size(), 1u);
  const ResultState& state = bench.records.states[0];
  EXPECT_EQ(state.kind, ResultKind::Static);
  EXPECT_EQ(state.number, 4);
  EXPECT_EQ(state.step, 2);
  EXPECT_EQ(state.increment, 3);
  EXPECT_EQ(state.value, 2.5);
}

TEST(FrdText, AModeTellsItsNumberAndNodalDiameter)
{
  FrdBench bench;
  bench.Read(
      FileWith(StepRecord(1, 1, 1) + "    1PGM                1.000000E+00\n    1PHID                          2\n" +
               "    1PMODE                         6\n" + DispIn(ResultsHead(1, " 63711.55941", 4, 2, 1, "MODAL"))));

  const ResultState& state = bench.records.states[0];
  EXPECT_EQ(state.kind, ResultKind::Mode);
  EXPECT_EQ(state.mode, 6);
  EXPECT_EQ(state.nodalDiameter, 2);
  EXPECT_EQ(state.value, 63711.55941);
}

TEST(FrdText, BucklingFactorsAndTimesAreKindsOfTheirOwn)
{
  FrdBench bench;
  bench.Read(FileWith(DispIn(ResultsHead(1, " 53.53337523", 4, 4)) + DispIn(ResultsHead(2, " 1.00000E-03", 4, 1))));

  EXPECT_EQ(bench.records.states[0].kind, ResultKind::Buckling);
  EXPECT_EQ(bench.records.states[1].kind, ResultKind::Time);
}

TEST(FrdText, BlocksOfOneStateShareIt)
{
  FrdBench bench;
  bench.Read(SmallFile());

  EXPECT_EQ(bench.records.states.size(), 1u);
  EXPECT_EQ(bench.records.blocks[1].state, 0);
}

TEST(FrdText, TheParametersOfABlockAreForgottenBehindIt)
{
  FrdBench bench;
  bench.Read(FileWith(StepRecord(1, 1, 1) + "    1PMODE                         6\n" +
                      DispIn(ResultsHead(1, " 10.00000000", 4, 2)) + StepRecord(2, 1, 2) +
                      DispIn(ResultsHead(2, " 1.000000000", 4, 0))));

  EXPECT_EQ(bench.records.states[1].mode, 0);
  EXPECT_EQ(bench.records.states[1].step, 2);
}

TEST(FrdText, AnImaginaryPartCarriesTheNameOfItsRealPart)
{
  const std::string state = ResultsHead(1, " 12000.00000", 4, 1);
  FrdBench bench;
  bench.Read(FileWith(Block("TOSTRAIN", {"EXX"}, state) + Block("TOSTRAII", {"EXX"}, state) + DispIn(state) +
                      Block("DISPI", {"D1"}, state)));

  ASSERT_EQ(bench.records.blocks.size(), 4u);
  EXPECT_EQ(bench.records.blocks[1].name, "TOSTRAIN");
  EXPECT_TRUE(bench.records.blocks[1].imaginary);
  EXPECT_EQ(bench.records.blocks[3].name, "DISP");
  EXPECT_EQ(bench.records.blocks[3].nameInFile, "DISPI");
  EXPECT_FALSE(bench.records.blocks[2].imaginary);
}

TEST(FrdText, ATimeWithImaginaryPartsIsAFrequency)
{
  const std::string state = ResultsHead(1, " 12000.00000", 4, 1);
  FrdBench bench;
  bench.Read(FileWith(DispIn(state) + Block("DISPI", {"D1"}, state)));

  EXPECT_EQ(bench.records.states[0].kind, ResultKind::Frequency);
}

TEST(FrdText, ANameLikeThatOfAnImaginaryPartStandsForItselfAlone)
{
  FrdBench bench;
  bench.Read(FileWith(Block("DISPI", {"D1"}, ResultsHead(1, " 1.000000000", 4, 0))));

  EXPECT_EQ(bench.records.blocks[0].name, "DISPI");
  EXPECT_FALSE(bench.records.blocks[0].imaginary);
}

TEST(FrdText, StatesOfOneNumberAreCountedAnew)
{
  FrdBench bench;
  bench.Read(FileWith(DispIn(ResultsHead(1, " 1.000000000", 4, 0)) + DispIn(ResultsHead(1, " 2.000000000", 4, 0))));

  EXPECT_EQ(bench.records.states[1].number, 2);
  EXPECT_THAT(bench.Findings(), ElementsAre(" several states have one number: they are counted anew."));
}

TEST(FrdText, ResultsOfSomeNodesOnlyNameThem)
{
  FrdBench bench;
  bench.Read(FileWith(ResultsHead(1, " 1.000000000", 2, 0) + Names("CONTACT", {"COPEN"}) + Row(4, {.4}) + Row(2, {.2}) +
                      kBlockEnd));

  EXPECT_THAT(Ids(*bench.records.blocks[0].nodes), ElementsAre(4, 2));
  EXPECT_THAT(Values(bench.records.blocks[0]), ElementsAre(.4, .2));
}

TEST(FrdText, BlocksOnTheSameNodesShareTheIds)
{
  FrdBench bench;
  bench.Read(SmallFile());

  EXPECT_EQ(bench.records.blocks[0].nodes, bench.records.blocks[1].nodes);
}

TEST(FrdText, ANodeWithoutAPlaceIsAFinding)
{
  FrdBench bench;
  bench.Read(FileWith(ResultsHead(1, " 1.000000000", 1, 0) + Names("NDTEMP", {"T"}) + Row(77, {20}) + kBlockEnd));

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_THAT(bench.Findings(), ElementsAre("NDTEMP 1 nodes have values but no place in the file."));
}

TEST(FrdText, ValuesThatAreNoNumbersAreNaNAndAFinding)
{
  FrdBench bench;
  bench.Read(FileWith(ResultsHead(1, " 1.000000000", 1, 0) + Names("FORC", {"F1", "F2", "F3"}) +
                      " -1         3         INF        -NAN 1.00000E+00\n" + kBlockEnd));

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_TRUE(std::isnan(bench.records.blocks[0].values[0]));
  EXPECT_TRUE(std::isnan(bench.records.blocks[0].values[1]));
  EXPECT_EQ(bench.records.blocks[0].values[2], 1.);
  EXPECT_THAT(bench.Findings(), ElementsAre("FORC 2 values are no numbers."));
}

TEST(FrdText, ExponentsOfThreeDigitsMoveTheirNeighbours)
{
  FrdBench bench;
  bench.Read(FileWith(ResultsHead(1, " 1.000000000", 2, 0) + Names("FORC", {"F1", "F2", "F3"}) +
                      " -1         3-1.00000E-100 2.00000E+001.50000E-101\n" +
                      " -1         41.00000E+0011.50000E+0022.00000E+000\n" + kBlockEnd));

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_THAT(Values(bench.records.blocks[0]), ElementsAre(-1e-100, 2., 1.5e-101, 10., 150., 2.));
}

TEST(FrdText, LinesMayEndWithACarriageReturn)
{
  std::string text = SmallFile();
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 2))
    text.insert(at, "\r");
  FrdBench bench;
  bench.Read(text);

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_EQ(bench.records.blocks[1].values[23], 4.5);
}

TEST(FrdText, TheLastLineMayLackItsEnd)
{
  std::string text = SmallFile();
  text.pop_back();
  FrdBench bench;
  bench.Read(text);

  EXPECT_EQ(bench.Refusal(), "read");
}

TEST(FrdText, MoreElementsThanAnnouncedAreAFinding)
{
  FrdBench bench;
  bench.Read(kHead + NodesHead(2) + Row(1, {0, 0, 0}) + Row(2, {1, 0, 0}) + kBlockEnd + ElementsHead(1) +
             " -1         1   11    0    1\n -2         1         2\n -1         2   11    0    1\n" +
             " -2         2         1\n" + kBlockEnd + kFileEnd);

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_EQ(bench.records.elements.size(), 2u);
  EXPECT_THAT(bench.Findings(), ElementsAre("elements 1 elements are announced, 2 follow."));
}

TEST(FrdText, NumbersOfRowsMayBeLeftBlank)
{
  FrdBench bench;
  bench.Read(kHead + Printed("    2C%67s%1d\n", "", 1) + Row(1, {0, 0, 0}) + kBlockEnd +
             Printed("    3C%67s%1d\n", "", 1) + kBlockEnd + kFileEnd);

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_EQ(bench.records.nodes.size(), 1u);
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(FrdText, AMaterialThatIsANameIsPassedOver)
{
  FrdBench bench;
  bench.Read(kHead + NodesHead(2) + Row(1, {0, 0, 0}) + Row(2, {1, 0, 0}) + kBlockEnd + ElementsHead(1) +
             " -1         1   11    0WATER\n -2         1         2\n" + kBlockEnd + kFileEnd);

  EXPECT_EQ(bench.Refusal(), "read");
}

TEST(FrdText, OfValuesThatAreNotWantedOnlyTheirNumberIsKept)
{
  FrdBench bench;
  bench.options.wants = [](const ResultRecords&, const ResultBlock& iBlock) { return iBlock.name == "DISP"; };
  bench.Read(SmallFile());

  EXPECT_TRUE(bench.records.blocks[0].kept);
  const ResultBlock& stress = bench.records.blocks[1];
  EXPECT_FALSE(stress.kept);
  EXPECT_EQ(stress.count, 4);
  EXPECT_EQ(stress.values.size(), 0u);
  EXPECT_EQ(stress.nodes, nullptr);
}

TEST(FrdText, ACompressedFileIsRead)
{
  FrdBench bench;
  bench.ReadPacked(SmallFile());

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_EQ(bench.records.blocks.size(), 2u);
}

TEST(FrdText, AFileMuchLargerThanTheWindowIsRead)
{
  constexpr int kNodes = 60000; // 3 MB of lines
  std::string text = kHead + NodesHead(kNodes);
  for (int node = 1; node <= kNodes; ++node)
    text += Row(node, {1. * node, -.5 * node, .25});
  text += std::string(kBlockEnd) + kFileEnd;
  FrdBench bench;
  bench.Read(text);

  ASSERT_EQ(bench.Refusal(), "read");
  ASSERT_EQ(bench.records.nodes.size(), static_cast<std::size_t>(kNodes));
  EXPECT_EQ(bench.records.nodes.xyz[3 * 59999], 60000.);
  EXPECT_EQ(bench.records.nodes.xyz[3 * 59999 + 1], -30000.);
}

TEST(FrdText, ProgressEndsWithTheWholeFile)
{
  std::uint64_t done = 0;
  std::uint64_t total = 1;
  FrdBench bench;
  bench.options.progress = [&done, &total](std::uint64_t iDone, std::uint64_t iTotal)
  {
    done = iDone;
    total = iTotal;
  };
  bench.Read(SmallFile());

  EXPECT_EQ(done, SmallFile().size());
  EXPECT_EQ(total, SmallFile().size());
}

} // namespace voxbench
