// SPDX-License-Identifier: MIT
// The solver solves a deck; what the program shows of its results is what the solver prints itself.
#include "RunProgram.h"
#include "tests/support/Solver.h"
#include "tests/support/SolverTables.h"

#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>

namespace
{

using nlohmann::json;
using voxtest::PackagedDeck;
using voxtest::ReadSolverTables;
using voxtest::Solved;
using voxtest::SolverTable;
using voxtest::WithCardsInEachStep;
using voxtest::WithoutPrints;
using NodeValues = std::map<int, std::vector<double>>;

//! A deck that prints and files the same quantities in every step.
std::string DeckWith(const std::string& iDeck, const std::string& iSet, const std::string& iLabels)
{
  return WithCardsInEachStep(WithoutPrints(iDeck),
                             "*NODE FILE\n" + iLabels + "\n*NODE PRINT, NSET=" + iSet + "\n" + iLabels + "\n");
}

//! What the program shows of all versions of a type, one table per version.
json TablesOf(const Solved& iSolved, const std::string& iType, const std::string& iGroup)
{
  const auto run = voxtest::RunBuiltProgram(
      {"results", iSolved.Results(), "--type", iType, "--version", "all", "--group", iGroup, "--json"});
  EXPECT_EQ(run.code, 0) << run.errors << iSolved.Log();
  return run.code == 0 ? json::parse(run.out)["tables"] : json::array();
}

NodeValues ValuesOf(const json& iTable)
{
  NodeValues values;
  for (const json& row : iTable["groups"][0]["values"])
    values[row[0]] = std::vector<double>(row.begin() + 1, row.end());
  return values;
}

void ExpectAlike(const json& iTable, const SolverTable& iPrinted)
{
  const NodeValues values = ValuesOf(iTable);
  ASSERT_EQ(values.size(), iPrinted.rows.size());
  for (const SolverTable::Row& row : iPrinted.rows)
  {
    const auto found = values.find(row.ids[0]);
    ASSERT_NE(found, values.end()) << "node " << row.ids[0];
    ASSERT_EQ(found->second.size(), row.numbers.size());
    for (std::size_t component = 0; component < row.numbers.size(); ++component)
      EXPECT_TRUE(voxtest::AgreeInSixDigits(found->second[component], row.numbers[component]))
          << iTable["version"]["version"] << " node " << row.ids[0] << ": " << found->second[component] << ", printed "
          << row.numbers[component];
  }
}

//! Compares every version with the printed table at its place.
void ExpectAllAlike(const Solved& iSolved, const std::string& iType, const std::string& iGroup,
                    const std::string& iTitle, std::size_t iVersions)
{
  const json tables = TablesOf(iSolved, iType, iGroup);
  const auto printed = ReadSolverTables(iSolved.Tables(), iTitle);
  ASSERT_EQ(tables.size(), iVersions);
  ASSERT_EQ(printed.size(), iVersions);
  for (std::size_t place = 0; place < iVersions; ++place)
    ExpectAlike(tables[place], printed[place]);
}

TEST(ResultsSlow, OfAStaticAnalysisAreWhatTheSolverPrints)
{
  const Solved solved(DeckWith(PackagedDeck("beamp"), "NALL", "U,RF"));
  ExpectAllAlike(solved, "U", "NALL", "displacements", 1);
  ExpectAllAlike(solved, "RF", "NALL", "forces", 1);
}

TEST(ResultsSlow, OfModesAreWhatTheSolverPrints)
{
  const Solved solved(DeckWith(PackagedDeck("beamf"), "CN7", "U"));
  ExpectAllAlike(solved, "U", "CN7", "displacements", 10);
}

TEST(ResultsSlow, OfAHarmonicExcitationAreWhatTheSolverPrintsOfBothParts)
{
  const Solved solved(DeckWith(PackagedDeck("beamdy10"), "N1", "U"));
  ExpectAllAlike(solved, "U", "N1", "displacements", 10 + 2 * 9); // modes, then frequencies
}

TEST(ResultsSlow, OfHeatTransferAreWhatTheSolverPrints)
{
  const Solved solved(DeckWith(PackagedDeck("beamhtbf"), "NALL", "NT"));
  ExpectAllAlike(solved, "NT", "NALL", "temperatures", 1);
}

// The solver prints every mode of a pair, and files the first.
TEST(ResultsSlow, OfCyclicSymmetryAreWhatTheSolverPrintsOfBothParts)
{
  const Solved solved(WithCardsInEachStep(WithoutPrints(PackagedDeck("segment")), "*NODE PRINT, NSET=NLEFT\nU\n"));
  const json tables = TablesOf(solved, "U", "NLEFT");
  const auto printed = ReadSolverTables(solved.Tables(), "displacements");
  ASSERT_EQ(tables.size(), 10u);
  ASSERT_EQ(printed.size(), 20u);
  for (const json& table : tables)
  {
    const std::size_t mode = table["version"]["mode"];
    EXPECT_EQ(table["version"]["nodalDiameter"], 1);
    ExpectAlike(table, printed[2 * (mode - 1) + (table["version"]["imaginary"] ? 1 : 0)]);
  }
}

// An element with one integration point has its stress in all of its nodes; a node has the mean of its elements.
TEST(ResultsSlow, StressesOfNodesAreTheMeanOfWhatTheSolverPrintsOfTheirElements)
{
  std::string deck = WithoutPrints(voxtest::ReadText(voxtest::DataFile("block.inp")));
  deck.replace(deck.find("TYPE=C3D8"), 9, "TYPE=C3D8R");
  const Solved solved(WithCardsInEachStep(deck, "*EL PRINT, ELSET=BLOCK\nS\n"));
  const json tables = TablesOf(solved, "S", "NALL");
  const auto printed = ReadSolverTables(solved.Tables(), "stresses", 2);
  ASSERT_EQ(tables.size(), 2u);
  ASSERT_EQ(printed.size(), 2u);
  constexpr int kColumns[] = {0, 1, 2, 3, 5, 4}; // printed: xx yy zz xy xz yz; filed: xx yy zz xy yz zx
  for (std::size_t place = 0; place < 2; ++place)
    for (const auto& [node, values] : ValuesOf(tables[place]))
      for (std::size_t component = 0; component < 6; ++component)
      {
        const auto column = static_cast<std::size_t>(kColumns[component]);
        const double left = printed[place].rows[0].numbers[column];
        const double right = printed[place].rows[1].numbers[column];
        const int inRow = node % 10; // 1 and 4 stand at the left end, 2 and 5 in the middle
        const double expected = inRow % 3 == 1 ? left : inRow % 3 == 0 ? right : (left + right) / 2.;
        EXPECT_NEAR(values[component], expected, 1e-5 * std::abs(expected) + 1e-4) << node << " " << component;
      }
}

TEST(ResultsSlow, TextAndBinaryFilesShowTheSame)
{
  const std::string deck = DeckWith(PackagedDeck("beamp"), "NALL", "U");
  const Solved text(deck);
  const Solved binary(voxtest::WithBinaryResults(deck));
  const NodeValues left = ValuesOf(TablesOf(text, "U", "LOAD")[0]);
  const NodeValues right = ValuesOf(TablesOf(binary, "U", "LOAD")[0]);
  ASSERT_EQ(left.size(), 9u);
  ASSERT_EQ(right.size(), 9u);
  for (const auto& [node, values] : left)
    for (std::size_t component = 0; component < 3; ++component)
      EXPECT_TRUE(voxtest::AgreeInSixDigits(values[component], right.at(node)[component])) << node;
}

} // namespace
