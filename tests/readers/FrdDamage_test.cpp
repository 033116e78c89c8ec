// SPDX-License-Identifier: MIT
// Result files cut off and with changed bytes: those cut off are refused; the others are read or refused with a reason.
#include "Flipped.h"
#include "FrdBench.h"
#include "tests/support/Solver.h"

#include <random>
#include <sstream>

namespace voxbench
{
using namespace frdtext;

namespace
{

void ExpectConsistent(const ResultRecords& iRecords)
{
  ASSERT_EQ(iRecords.nodes.xyz.size(), 3 * iRecords.nodes.size());
  for (std::size_t row = 0; row < iRecords.elements.size(); ++row)
    ASSERT_LT(iRecords.elements.types[row], iRecords.elementTypes.size());
  for (const ResultBlock& block : iRecords.blocks)
  {
    ASSERT_LT(static_cast<std::size_t>(block.state), iRecords.states.size());
    ASSERT_EQ(block.values.size(), block.components.size() * block.nodes->size());
  }
}

void ReadDamaged(FrdBench& ioBench, std::string_view iText)
{
  ioBench.Read(iText);
  if (ioBench.outcome.ok)
    return ExpectConsistent(ioBench.records);
  EXPECT_FALSE(ioBench.outcome.reason.empty());
  EXPECT_TRUE(ioBench.outcome.line > 0 || ioBench.outcome.reason.find("byte") != std::string::npos)
      << ioBench.outcome.Describe();
}

void FlipAndRead(FrdBench& ioBench, const std::string& iText, std::mt19937& ioRandom, int iFlips)
{
  ReadDamaged(ioBench, Flipped(iText, " -19\n3E.+\r0", ioRandom, iFlips));
}

std::string FileOf(const voxtest::Solved& iSolved)
{
  std::stringstream text;
  text << std::ifstream(iSolved.Results(), std::ios::binary).rdbuf();
  return text.str();
}

} // namespace

TEST(FrdDamage, AFileCutOffAnywhereIsRefused)
{
  const std::string whole = SmallFile();
  FrdBench bench;
  for (std::size_t length = 0; length + 1 < whole.size(); ++length) // the last line may lack its end
  {
    ReadDamaged(bench, std::string_view(whole).substr(0, length));
    EXPECT_FALSE(bench.outcome.ok) << "cut off at byte " << length;
  }
}

TEST(FrdDamage, AFileWithChangedBytesIsReadOrRefused)
{
  const std::string whole = SmallFile();
  FrdBench bench;
  std::mt19937 random(1);
  for (int round = 0; round < 4000; ++round)
    FlipAndRead(bench, whole, random, 1 + round % 7);
}

// A digit in place of another leaves a file that holds together; any other character in a row of values does not.
TEST(FrdDamage, ALetterInARowOfValuesIsRefused)
{
  const std::string whole = SmallFile();
  const std::size_t row = whole.find(" -1         2 2.00000E+00 2.10000E+00 2.20000E+00 2.30000E+00");
  ASSERT_NE(row, std::string::npos);
  FrdBench bench;
  for (std::size_t at = row; at < row + 13 + 72; ++at)
  {
    std::string text = whole;
    text[at] = 'x';
    ReadDamaged(bench, text);
    EXPECT_FALSE(bench.outcome.ok) << "changed at byte " << at;
    EXPECT_EQ(bench.outcome.line, 35) << "changed at byte " << at;
  }
}

TEST(FrdDamageSlow, FilesOfTheSolverWithChangedBytesAreReadOrRefused)
{
  const std::string deck =
      voxtest::WithCardsInEachStep(voxtest::PackagedDeck("beamp"), "*NODE FILE\nU,RF\n*EL FILE\nS,E\n");
  std::mt19937 random(6);
  for (const std::string& variant : {deck, voxtest::WithBinaryResults(deck)})
  {
    const voxtest::Solved solved(variant);
    ASSERT_TRUE(solved.Ran()) << solved.Log();
    const std::string file = FileOf(solved);
    FrdBench bench;
    for (int round = 0; round < 400; ++round)
      FlipAndRead(bench, file, random, 1 + round % 20);
    for (int round = 0; round < 100; ++round)
    {
      ReadDamaged(bench, std::string_view(file).substr(0, random() % (file.size() - 1)));
      EXPECT_FALSE(bench.outcome.ok);
    }
  }
}

} // namespace voxbench
