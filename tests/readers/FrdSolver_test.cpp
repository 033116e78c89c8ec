// SPDX-License-Identifier: MIT
// Files that the solver makes of its own decks, in both forms.
#include "FrdBench.h"
#include "tests/support/Solver.h"

#include <set>

using voxtest::PackagedDeck;
using voxtest::Solved;
using voxtest::WithBinaryResults;
using voxtest::WithCardsInEachStep;

namespace voxbench
{

namespace
{

constexpr const char* kFiles = "*NODE FILE\nU,RF,NT\n*EL FILE\nS,E\n";

std::string DeckWithFiles(const char* iName)
{
  return WithCardsInEachStep(PackagedDeck(iName), kFiles);
}

//! Names of the blocks of a state, imaginary parts with an "i".
std::set<std::string> BlocksOf(const ResultRecords& iRecords, std::size_t iState)
{
  std::set<std::string> names;
  for (const ResultBlock& block : iRecords.blocks)
    if (static_cast<std::size_t>(block.state) == iState)
      names.insert(block.name + (block.imaginary ? "i" : ""));
  return names;
}

//! Whether two numbers print alike with the six digits that the text form has.
bool AreAlike(double iText, double iBinary)
{
  return (std::isnan(iText) && std::isnan(iBinary)) || std::abs(iText - iBinary) <= 6e-6 * std::abs(iText) ||
         std::abs(iBinary) < 1e-36; // single precision ends there
}

std::vector<int> NodesOf(const ElementTable& iElements, std::int32_t iId)
{
  const std::int64_t row = iElements.Find(iId);
  if (row < 0)
    return {};
  const auto nodes = iElements.NodesOf(static_cast<std::size_t>(row));
  return {nodes.begin(), nodes.end()};
}

} // namespace

TEST(FrdSolverSlow, AStaticAnalysisHasItsResults)
{
  const Solved solved(DeckWithFiles("beamp"));
  ASSERT_TRUE(solved.Ran()) << solved.Log();
  FrdBench bench;
  bench.ReadFile(solved.Results());

  ASSERT_EQ(bench.Refusal(), "read");
  EXPECT_EQ(bench.records.nodes.size(), 261u);
  EXPECT_EQ(bench.records.elements.size(), 32u);
  ASSERT_EQ(bench.records.states.size(), 1u);
  EXPECT_EQ(BlocksOf(bench.records, 0), (std::set<std::string>{"DISP", "ERROR", "FORC", "STRESS", "TOSTRAIN"}));
}

TEST(FrdSolverSlow, TextAndBinaryFormsHoldTheSame)
{
  for (const char* const name : {"beamp", "beamdy10", "beam8b", "shell1"})
  {
    const Solved text(DeckWithFiles(name));
    const Solved binary(WithBinaryResults(DeckWithFiles(name)));
    ASSERT_TRUE(text.Ran() && binary.Ran()) << name << text.Log() << binary.Log();
    FrdBench left;
    left.ReadFile(text.Results());
    FrdBench right;
    right.ReadFile(binary.Results());
    ASSERT_EQ(left.Refusal(), "read") << name;
    ASSERT_EQ(right.Refusal(), "read") << name;

    EXPECT_EQ(left.records.elements.nodes, right.records.elements.nodes) << name;
    ASSERT_EQ(left.records.blocks.size(), right.records.blocks.size()) << name;
    for (std::size_t place = 0; place < left.records.blocks.size(); ++place)
    {
      const ResultBlock& one = left.records.blocks[place];
      const ResultBlock& other = right.records.blocks[place];
      ASSERT_EQ(one.nameInFile, other.nameInFile) << name;
      ASSERT_EQ(*one.nodes, *other.nodes) << name << one.nameInFile;
      if (one.nameInFile == "FORCI")
        continue; // the solver writes what happens to lie there: each run writes something else
      for (std::size_t row = 0; row < one.values.size(); ++row)
        ASSERT_TRUE(AreAlike(one.values[row], other.values[row]))
            << name << " " << one.nameInFile << " " << one.values[row] << " " << other.values[row];
    }
  }
}

TEST(FrdSolverSlow, ElementsHaveTheNodesOfTheDeckInItsOrder)
{
  for (const char* const name : {"beamp", "oneel20cf", "oneel15", "beam8p", "beam10p"})
  {
    const std::string deck = PackagedDeck(name);
    if (deck.empty())
      continue;
    const Solved solved(deck);
    InpBench input;
    input.ReadFile(solved.Deck());
    FrdBench results;
    results.ReadFile(solved.Results());
    ASSERT_EQ(results.Refusal(), "read") << name;
    for (const std::int32_t id : results.records.elements.ids)
      ASSERT_EQ(NodesOf(results.records.elements, id), NodesOf(input.model.elements, id)) << name << " " << id;
  }
}

TEST(FrdSolverSlow, AnalysesOfAllKindsTellThem)
{
  const std::pair<const char*, ResultKind> kinds[] = {{"beamp", ResultKind::Static},
                                                      {"beam8b", ResultKind::Buckling},
                                                      {"beamf", ResultKind::Mode},
                                                      {"beamdy1", ResultKind::Time}};
  for (const auto& [name, kind] : kinds)
  {
    const Solved solved(DeckWithFiles(name));
    ASSERT_TRUE(solved.Ran()) << name << solved.Log();
    FrdBench bench;
    bench.ReadFile(solved.Results());
    ASSERT_EQ(bench.Refusal(), "read") << name;
    EXPECT_EQ(bench.records.states.back().kind, kind) << name;
  }
}

TEST(FrdSolverSlow, HarmonicExcitationHasRealAndImaginaryPartsPerFrequency)
{
  const Solved solved(DeckWithFiles("beamdy10"));
  ASSERT_TRUE(solved.Ran()) << solved.Log();
  FrdBench bench;
  bench.ReadFile(solved.Results());

  ASSERT_EQ(bench.Refusal(), "read");
  const ResultState& last = bench.records.states.back();
  EXPECT_EQ(last.kind, ResultKind::Frequency);
  EXPECT_EQ(last.value, 14000.);
  EXPECT_EQ(BlocksOf(bench.records, bench.records.states.size() - 1),
            (std::set<std::string>{"DISP", "DISPi", "ERROR", "ERRORi", "FORC", "FORCi", "STRESS", "STRESSi", "TOSTRAIN",
                                   "TOSTRAINi"}));
}

TEST(FrdSolverSlow, LayersOfCompositeShellsAreElementsBeyondTheirAnnouncement)
{
  const Solved solved(PackagedDeck("concretebeam"));
  ASSERT_TRUE(solved.Ran()) << solved.Log();
  FrdBench bench;
  bench.ReadFile(solved.Results());

  EXPECT_EQ(bench.Refusal(), "read");
  EXPECT_THAT(bench.Findings(), testing::Contains("elements 10 elements are announced, 110 follow."));
}

} // namespace voxbench
