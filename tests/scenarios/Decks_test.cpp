// SPDX-License-Identifier: MIT
// Every deck of the package that is installed, through the whole program, in one process.
#include "RunProgram.h"
#include "host/Instruments/Ledger.h"
#include "tests/support/Memory.h"
#include "tests/support/Sanitized.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <nlohmann/json.hpp>
#include <utility>

#include "readers/PlainParser.h"

namespace
{

using nlohmann::json;
using Group = std::pair<std::string, std::set<std::string>>; // "NODE name", "ELEMENT name", "SIDE name"; "7" or "7.1"

std::vector<std::string> AllDecks()
{
  const char* const given = std::getenv("VOX_DECKS");
  const std::string folder = given != nullptr && *given != '\0' ? given : VOX_DECKS_DIR;
  std::vector<std::string> decks;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator(folder, none))
    if (const std::string name = entry.path().filename(); name.ends_with(".inp") || name.ends_with(".inp.gz"))
      decks.push_back(entry.path());
  std::sort(decks.begin(), decks.end());
  return decks;
}

//! All decks; under the sanitizers, which watch other cases read them all, every iStep-th.
std::vector<std::string> PartOf(const std::vector<std::string>& iDecks, std::size_t iStep)
{
  std::vector<std::string> part;
  for (std::size_t place = 0; place < iDecks.size(); place += voxtest::kIsSanitized ? iStep : 1)
    part.push_back(iDecks[place]);
  return part;
}

//! The sides that have letters, by number.
std::string SideNumber(const std::string& iLabel)
{
  return iLabel == "SNEG" ? "1" : iLabel == "SPOS" ? "2" : iLabel.substr(1);
}

//! What a plain reading finds, without ids that do not exist.
std::vector<Group> PlainGroups(const std::string& iDeck)
{
  const PlainParser parser(iDeck);
  std::vector<Group> groups;
  for (const auto& [key, members] : parser.members)
  {
    const bool ofNodes = key[0] == 'N';
    const bool ofSides = key[0] == 'S';
    std::set<std::string> kept;
    for (const std::string& member : members)
    {
      const std::string id = member.substr(0, member.find('.'));
      if ((ofNodes ? parser.nodes : parser.elements).contains(id))
        kept.insert(ofSides ? id + "." + SideNumber(member.substr(id.size() + 1)) : id);
    }
    const char* const kind = ofNodes ? "NODE" : ofSides ? "SIDE" : "ELEMENT";
    groups.emplace_back(kind + key.substr(key.find(' ')), kept);
  }
  std::sort(groups.begin(), groups.end());
  return groups;
}

//! What the program hands out.
std::vector<Group> ProgramGroups(const json& iOutput)
{
  std::vector<Group> groups;
  for (const json& row : iOutput["groups"])
  {
    const std::string kind = row["kind"];
    std::set<std::string> members;
    for (const json& id : row["ids"])
      members.insert(id.is_array() ? id[0].dump() + "." + id[1].dump() : id.dump());
    EXPECT_EQ(members.size(), row["count"]) << row["name"];
    EXPECT_TRUE(std::is_sorted(row["ids"].begin(), row["ids"].end())) << row["name"];
    groups.emplace_back((kind == "FACE" || kind == "EDGE" ? "SIDE" : kind) + " " + row["name"].get<std::string>(),
                        members);
  }
  std::sort(groups.begin(), groups.end());
  return groups;
}

constexpr std::size_t kCountedDecks = 355; // of the package in the version that the golden list was made with

class AllDecksSlow : public testing::Test
{
protected:
  void SetUp() override
  {
    ASSERT_FALSE(decks.empty()) << "there are no decks: install the package calculix-ccx-test, or let VOX_DECKS name a "
                                   "folder of .inp files";
    voxtest::Memory::Disarm(); // links its operator delete[], which settles arrays that were handed out
    voxhost::Ledger::TurnOn();
  }
  void TearDown() override { voxhost::Ledger::TurnOff(); }

  const std::vector<std::string> decks = AllDecks();
};

TEST_F(AllDecksSlow, InfoTellsAboutEachOrSaysWhyNot)
{
  for (const std::string& deck : decks)
  {
    const auto run = voxtest::RunInProcess({"info", deck, "--json"});
    if (run.code == 0)
    {
      EXPECT_EQ(json::parse(run.out)["file"], deck);
      continue;
    }
    EXPECT_EQ(run.code, 3) << deck;
    EXPECT_NE(run.errors.find(deck), std::string::npos) << run.errors;
  }
}

TEST_F(AllDecksSlow, TheTreeOfEachHasAllItsGroups)
{
  for (const std::string& deck : PartOf(decks, 3))
  {
    const auto tree = voxtest::RunInProcess({"tree", deck});
    const auto groups = voxtest::RunInProcess({"groups", deck, "--json"});
    ASSERT_EQ(tree.code, groups.code) << deck;
    if (groups.code != 0)
      continue;
    const json listed = json::parse(groups.out)["groups"];
    for (const json& row : listed)
      EXPECT_NE(tree.out.find(row["name"].get<std::string>()), std::string::npos) << deck << ": " << row["name"];
  }
}

TEST_F(AllDecksSlow, TheGroupsOfEachHandOutWhatAPlainReadingFinds)
{
  for (const std::string& deck : PartOf(decks, 3))
  {
    const auto run = voxtest::RunInProcess({"groups", deck, "--ids", "--json"});
    EXPECT_TRUE(run.code == 0 || run.code == 3) << deck << ": " << run.errors;
    if (run.code != 0)
      continue;
    EXPECT_EQ(ProgramGroups(json::parse(run.out)), PlainGroups(deck)) << deck;
  }
}

TEST_F(AllDecksSlow, AxesOwnersChoicesConnectionsAndExpressionsOfEachAreTold)
{
  for (const std::string& deck : PartOf(decks, 3))
  {
    const int readable = voxtest::RunInProcess({"tree", deck, "--depth", "0"}).code;
    for (const char* const command : {"axes", "params", "connections", "expressions"})
    {
      const auto run = voxtest::RunInProcess({command, deck, "--json"});
      EXPECT_EQ(run.code, readable) << command << " " << deck << ": " << run.errors;
      EXPECT_TRUE(run.code != 0 || json::accept(run.out)) << command << " " << deck;
    }
    const auto owner = voxtest::RunInProcess({"owner", deck, "2", "--json"});
    EXPECT_EQ(owner.code, readable) << deck;
  }
}

//! Imports each deck that is small enough (under the sanitizers a part of them), lets iPrepare have the document, and
//! compares what it tells with the deck.
template <class Prepare>
void CompareDocuments(const std::vector<std::string>& iDecks, const char* iRelease, Prepare iPrepare)
{
  constexpr std::uintmax_t kLargest = 1000000;
  const std::string document = voxtest::TemporaryFile("documents/deck.voxdoc", "");
  for (const std::string& deck : PartOf(iDecks, 20))
  {
    if (std::filesystem::file_size(deck) > kLargest ||
        voxtest::RunInProcess({"import", deck, "-o", document, "--force", "--catalogue", iRelease}).code != 0)
      continue;
    iPrepare(document, deck);
    for (const char* const command : {"tree", "groups", "check", "axes", "params", "connections"})
    {
      const auto ofDeck = voxtest::RunInProcess({command, deck, "--json"});
      const auto ofDocument = voxtest::RunInProcess({command, document, "--json"});
      EXPECT_EQ(ofDocument.code, ofDeck.code) << command << " " << deck << ": " << ofDocument.errors;
      EXPECT_TRUE(ofDocument.out == ofDeck.out) << command << " " << deck;
    }
  }
}

TEST_F(AllDecksSlow, ADocumentOfEachTellsWhatTheDeckTells)
{
  CompareDocuments(decks, "3", [](const std::string&, const std::string&) {});
}

TEST_F(AllDecksSlow, ADocumentOfTheFirstReleaseTellsWhatTheDeckTellsOnceItIsUpgraded)
{
  CompareDocuments(
      decks, "1",
      [](const std::string& iDocument, const std::string& iDeck)
      {
        const json plan = json::parse(voxtest::RunInProcess({"upgrade", iDocument, "--json"}).out);
        const json done = json::parse(voxtest::RunInProcess({"upgrade", iDocument, "--write", "--json"}).out);
        EXPECT_EQ(done["decisions"], plan["decisions"]) << iDeck;
        EXPECT_EQ(done["counts"]["stuck"], 0) << iDeck;
        EXPECT_EQ(voxtest::RunInProcess({"upgrade", iDocument, "--write"}).code, 0) << iDeck;
        if (done["backup"].is_string())
          std::filesystem::remove(done["backup"].get<std::string>());
      });
}

TEST_F(AllDecksSlow, TheCheckOfAllFindsWhatTheGoldenListCounts)
{
  std::map<std::string, int> findings;
  std::size_t readable = 0;
  for (const std::string& deck : decks)
  {
    const auto run = voxtest::RunInProcess({"check", deck, "--json"});
    ASSERT_TRUE(run.code == 0 || run.code == 1 || run.code == 3) << deck << ": " << run.errors;
    if (run.code == 3)
      continue;
    ++readable;
    const json rules = json::parse(run.out)["rules"];
    for (const auto& [rule, number] : rules.items())
      findings[rule] += number.get<int>();
  }
  if (decks.size() != kCountedDecks)
    GTEST_SKIP() << "the golden list counts " << kCountedDecks << " decks, here are " << decks.size();
  std::string counted = std::to_string(readable) + " decks\n";
  for (const auto& [rule, number] : findings)
    counted += rule + " " + std::to_string(number) + "\n";
  EXPECT_EQ(voxtest::DifferenceToGolden("decks.check.txt", counted), "");
}

TEST_F(AllDecksSlow, TheHostGetsBackAllThatItGave)
{
  for (const std::string& deck : PartOf(decks, 3))
  {
    const auto before = voxhost::Ledger::Read();
    voxtest::RunInProcess({"tree", deck});
    voxtest::RunInProcess({"groups", deck, "--ids"});
    voxtest::RunInProcess({"connections", deck});
    voxtest::RunInProcess({"expressions", deck, "--delete", "all"});
    voxtest::RunInProcess({"params", deck, "*", "--set", "Membrane"});
    EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced") << deck;
  }
}

} // namespace
