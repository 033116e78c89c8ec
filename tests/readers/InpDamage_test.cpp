// SPDX-License-Identifier: MIT
// Decks cut off and with changed bytes: the reader reads or refuses, and its tables hold together.
#include "Flipped.h"
#include "InpBench.h"

#include <cstdlib>
#include <random>
#include <sstream>

namespace voxbench
{

namespace
{
// A deck that has a bit of everything.
const char* const kDeck =
    "*HEADING\nA bit of everything\n*NODE, NSET=ALL\n1, 0., 0., 0.\n2, 1., 0., 0.\n3, 1., 1., 0.\n"
    "4, 0., 1., 0.\n5, 0., 0., 1.\n6, 1., 0., 1.\n7, 1., 1., 1.\n8, 0., 1., 1.\n"
    "*ELEMENT, TYPE=C3D8, ELSET=E\n1, 1, 2, 3, 4,\n5, 6, 7, 8\n*ELEMENT, TYPE=S3, ELSET=SH\n2, 1, 2, 3\n"
    "*USER ELEMENT, TYPE=U5, NODES=2\n*ELEMENT, TYPE=U5\n3, 1, 2\n*ELEMENT, TYPE=WHAT\n4, 1, 2,\n3\n"
    "*NSET, NSET=GEN, GENERATE\n1, 9, 2\n*NSET, NSET=SOS\nGEN, 2, \"q n\"\n*NSET, NSET=\"q n\"\n8\n"
    "*ELSET, ELSET=F\nE, 2\n*SURFACE, NAME=S, TYPE=ELEMENT\nE, S1\nSH, SPOS\n2, S4\n*SURFACE, NAME=S,\n"
    "TYPE=NODE\nGEN\n5\n*MATERIAL, NAME=M\n*ELASTIC\n2.1D5, .3\n*SOLID SECTION, ELSET=E, MATERIAL=M\n"
    "*SHELL SECTION, ELSET=SH, COMPOSITE\n.1,,M\n*SPRING, ELSET=F\n\n10.\n*AMPLITUDE, NAME=A\n0., 0., 1., 1.\n"
    "*ORIENTATION, NAME=O\n1., 0., 0., 0., 1., 0.\n*EQUATION\n2\n1, 1, 1., 2, 1, -1.\n*MPC\nPLANE, 1, 2, 3\n"
    "*TIE, NAME=T\nS, S\n*COUPLING, REF NODE=1, SURFACE=S, CONSTRAINT NAME=C\n*KINEMATIC\n1, 3\n"
    "*BOUNDARY\nGEN, 1, 3\n*STEP, NLGEOM\n*STATIC\n*CLOAD, AMPLITUDE=A\n8, 3, 1.\n*DLOAD\nE, P2, 3.\n"
    "*NODE PRINT, NSET=ALL\nU\n*END STEP\n";

void ExpectConsistent(const NeutralModel& iModel)
{
  const ElementTable& elements = iModel.elements;
  ASSERT_EQ(iModel.nodes.xyz.size(), 3 * iModel.nodes.size());
  ASSERT_EQ(elements.offsets.size(), elements.size() + 1);
  ASSERT_EQ(elements.offsets.back(), elements.nodes.size());
  for (std::size_t row = 0; row < elements.size(); ++row)
    ASSERT_LT(elements.types[row], iModel.elementTypes.size());
  ASSERT_TRUE(std::is_sorted(elements.ids.begin(), elements.ids.end()));
  for (const Surface& surface : iModel.surfaces)
    ASSERT_EQ(surface.members.size(), surface.sides.size());
  for (const AppliedCard& card : iModel.loads)
    for (const AppliedRow& row : card.rows)
      ASSERT_LE(row.firstValue + row.valueCount, card.values.size());
}

// Reads the text; whatever comes of it, it comes in order.
void ReadDamaged(InpBench& ioBench, std::string_view iText)
{
  ioBench.Read(iText);
  if (ioBench.outcome.ok)
    ExpectConsistent(ioBench.model);
  else
    EXPECT_FALSE(ioBench.outcome.reason.empty());
}

std::vector<std::string> SomeRealDecks()
{
  const char* const given = std::getenv("VOX_DECKS");
  const std::filesystem::path folder = given != nullptr && *given != '\0' ? given : VOX_DECKS_DIR;
  std::vector<std::filesystem::path> paths;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator(folder, none))
    if (entry.path().extension() == ".inp")
      paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> texts;
  for (std::size_t at = 0; at < paths.size(); at += 10)
  {
    std::stringstream text;
    text << std::ifstream(paths[at]).rdbuf();
    texts.push_back(text.str());
  }
  return texts;
}

void FlipAndRead(InpBench& ioBench, const std::string& iText, std::mt19937& ioRandom, int iFlips)
{
  ReadDamaged(ioBench, Flipped(iText, "*,\n =0-\"\r\t9S", ioRandom, iFlips));
}
} // namespace

TEST(InpDamage, TheDeckOfThisTestIsRead)
{
  InpBench bench;
  bench.Read(kDeck);

  ASSERT_TRUE(bench.outcome.ok) << bench.outcome.Describe();
  EXPECT_EQ(bench.model.diagnostics.errors, 1) << "only the unknown element type";
  ExpectConsistent(bench.model);
}

TEST(InpDamage, ADeckCutOffAnywhereIsReadOrRefused)
{
  InpBench bench;
  const std::string deck = kDeck;
  for (std::size_t length = 0; length <= deck.size(); ++length)
    ReadDamaged(bench, std::string_view(deck).substr(0, length));
}

TEST(InpDamage, ADeckWithChangedBytesIsReadOrRefused)
{
  InpBench bench;
  std::mt19937 random(1);
  for (int round = 0; round < 4000; ++round)
    FlipAndRead(bench, kDeck, random, 1 + round % 7);
}

TEST(InpDamage, ACompressedDeckWithChangedBytesIsReadOrRefused)
{
  InpBench bench;
  std::stringstream packed;
  packed << std::ifstream(bench.WritePacked("packed.inp", kDeck), std::ios::binary).rdbuf();
  std::mt19937 random(3);
  for (int round = 0; round < 300; ++round)
    FlipAndRead(bench, packed.str(), random, 1);
}

TEST(InpDamageSlow, RealDecksCutOffAreReadOrRefused)
{
  const auto decks = SomeRealDecks();
  ASSERT_FALSE(decks.empty()) << "there are no decks: install calculix-ccx-test or set VOX_DECKS";
  InpBench bench;
  std::mt19937 random(5);
  for (const std::string& deck : decks)
    for (int round = 0; round < 60; ++round)
      ReadDamaged(bench, std::string_view(deck).substr(0, random() % deck.size()));
}

TEST(InpDamageSlow, RealDecksWithChangedBytesAreReadOrRefused)
{
  const auto decks = SomeRealDecks();
  ASSERT_FALSE(decks.empty()) << "there are no decks: install calculix-ccx-test or set VOX_DECKS";
  InpBench bench;
  std::mt19937 random(6);
  for (const std::string& deck : decks)
    for (int round = 0; round < 100; ++round)
      FlipAndRead(bench, deck, random, 1 + round % 20);
}

} // namespace voxbench
