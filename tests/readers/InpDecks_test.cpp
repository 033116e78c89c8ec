// SPDX-License-Identifier: MIT
// Every deck of the package that is installed, whoever wrote it.
#include "InpBench.h"
#include "PlainParser.h"
#include "tests/support/Sanitized.h"

#include <cstdlib>
#include <map>
#include <set>

namespace voxbench
{

namespace
{
std::filesystem::path DeckFolder()
{
  const char* const given = std::getenv("VOX_DECKS");
  return given != nullptr && *given != '\0' ? given : VOX_DECKS_DIR;
}

std::vector<std::filesystem::path> AllDecks()
{
  std::vector<std::filesystem::path> decks;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator(DeckFolder(), none))
    if (const std::string name = entry.path().filename().string(); name.ends_with(".inp") || name.ends_with(".inp.gz"))
      decks.push_back(entry.path());
  std::sort(decks.begin(), decks.end());
  return decks;
}

const char* const kNoDecks =
    "there are no decks: install the package calculix-ccx-test, or let VOX_DECKS (environment or "
    "CMake variable) name a folder of .inp files; looked in ";

using AllMembers = std::map<std::string, std::set<std::string>>;

// What the reader found, in the words of the plain parser.
AllMembers MembersOf(const NeutralModel& iModel)
{
  AllMembers all;
  for (const NamedSet& one : iModel.nodeSets)
    for (auto& found = all["NSET " + one.name]; const std::int32_t id : one.members)
      found.insert(std::to_string(id));
  for (const NamedSet& one : iModel.elementSets)
    for (auto& found = all["ELSET " + one.name]; const std::int32_t id : one.members)
      found.insert(std::to_string(id));
  for (const Surface& one : iModel.surfaces)
  {
    auto& found = all[(one.kind == SurfaceKind::Node ? "NODESURFACE " : "SURFACE ") + one.name];
    for (std::size_t at = 0; at < one.members.size(); ++at)
      found.insert(one.kind == SurfaceKind::Node
                       ? std::to_string(one.members[at])
                       : std::to_string(one.members[at]) + ".S" + std::to_string(one.sides[at]));
  }
  return all;
}

// What the plain parser found, without ids that do not exist, lettered sides by number.
AllMembers MembersOf(const PlainParser& iParser)
{
  AllMembers all;
  for (const auto& [name, members] : iParser.members)
    for (auto& kept = all[name]; std::string member : members)
    {
      const std::set<std::string>& existing = name[0] == 'N' ? iParser.nodes : iParser.elements;
      if (existing.count(member.substr(0, member.find('.'))) == 0)
        continue;
      if (member.ends_with(".SPOS"))
        member.replace(member.find('.'), std::string::npos, ".S2");
      if (member.ends_with(".SNEG"))
        member.replace(member.find('.'), std::string::npos, ".S1");
      kept.insert(member);
    }
  return all;
}
} // namespace

TEST(InpDecks, EachIsReadOrRefusedWithFileLineAndReason)
{
  const auto decks = AllDecks();
  ASSERT_FALSE(decks.empty()) << kNoDecks << DeckFolder();
  for (const auto& deck : decks)
  {
    InpBench bench;
    bench.ReadFile(deck);
    if (bench.outcome.ok)
    {
      EXPECT_TRUE(bench.model.diagnostics.unlisted.empty()) << deck;
      continue;
    }
    EXPECT_FALSE(bench.outcome.file.empty()) << deck;
    EXPECT_GT(bench.outcome.line, 0) << deck;
    EXPECT_FALSE(bench.outcome.reason.empty()) << deck;
    EXPECT_FALSE(bench.outcome.advice.empty()) << deck;
  }
}

TEST(InpDecks, SetsAndSurfacesHaveTheMembersThatAPlainReadingFinds)
{
  const auto decks = AllDecks();
  ASSERT_FALSE(decks.empty()) << kNoDecks << DeckFolder();
  // Another case reads all decks under the sanitizers; the plain reading takes most of the time there.
  for (std::size_t place = 0; place < decks.size(); place += voxtest::kIsSanitized ? 3 : 1)
  {
    const auto& deck = decks[place];
    InpBench bench;
    bench.ReadFile(deck);
    if (!bench.outcome.ok)
      continue;
    const PlainParser parser(deck);
    EXPECT_EQ(MembersOf(bench.model), MembersOf(parser)) << deck;
    EXPECT_EQ(bench.model.nodes.size(), parser.nodes.size()) << deck;
    EXPECT_EQ(bench.model.elements.size(), parser.elements.size()) << deck;
  }
}

TEST(InpDecks, TablesOfEachDeckAreConsistent)
{
  const auto decks = AllDecks();
  ASSERT_FALSE(decks.empty()) << kNoDecks << DeckFolder();
  for (const auto& deck : decks)
  {
    InpBench bench;
    bench.ReadFile(deck);
    if (!bench.outcome.ok)
      continue;
    const NodeTable& nodes = bench.model.nodes;
    const ElementTable& elements = bench.model.elements;
    EXPECT_EQ(nodes.xyz.size(), 3 * nodes.size()) << deck;
    EXPECT_TRUE(std::is_sorted(nodes.ids.begin(), nodes.ids.end())) << deck;
    EXPECT_TRUE(std::is_sorted(elements.ids.begin(), elements.ids.end())) << deck;
    ASSERT_EQ(elements.offsets.size(), elements.size() + 1) << deck;
    EXPECT_EQ(elements.offsets.back(), elements.nodes.size()) << deck;
    EXPECT_EQ(elements.types.size(), elements.size()) << deck;
    for (const Surface& surface : bench.model.surfaces)
      EXPECT_EQ(surface.members.size(), surface.sides.size()) << deck;
  }
}

} // namespace voxbench
