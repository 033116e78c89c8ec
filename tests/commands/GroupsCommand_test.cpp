// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"
#include "host/Instruments/Faults.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::HasSubstr;

namespace
{

const std::string kDeck = voxtest::DataFile("plate_on_block.inp");

json GroupsOf(std::vector<std::string> iArguments)
{
  iArguments.insert(iArguments.begin(), "groups");
  iArguments.push_back("--json");
  const auto run = voxtest::RunInProcess(iArguments);
  EXPECT_EQ(run.code, 0) << run.errors;
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("groups"), output), std::vector<std::string>{});
  return output["groups"];
}

//! The row of a name and kind; null when there is none.
json RowOf(const json& iGroups, const std::string& iName, const std::string& iKind)
{
  for (const json& row : iGroups)
    if (row["name"] == iName && row["kind"] == iKind)
      return row;
  return nullptr;
}

std::vector<std::string> NamesOf(const json& iGroups)
{
  std::vector<std::string> names;
  for (const json& row : iGroups)
    names.push_back(row["name"]);
  return names;
}

TEST(GroupsCommand, TextIsThatOfTheGoldenFiles)
{
  const auto table = voxtest::RunBuiltProgram({"groups", kDeck});
  EXPECT_EQ(table.code, 0);
  EXPECT_EQ(table.errors, "");
  EXPECT_EQ(voxtest::DifferenceToGolden("plate_on_block.groups.txt", table.out), "");
  const auto entities = voxtest::RunBuiltProgram({"groups", kDeck, "--ids"});
  EXPECT_EQ(voxtest::DifferenceToGolden("plate_on_block.groups-ids.txt", entities.out), "");
}

TEST(GroupsCommand, JsonIsThatOfTheGoldenFile)
{
  const auto run = voxtest::RunBuiltProgram({"groups", kDeck, "--ids", "--json"});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(voxtest::DifferenceToGolden("plate_on_block.groups.json", run.out), "");
}

TEST(GroupsCommand, ANodeSetIsAGroupOfNodes)
{
  EXPECT_EQ(RowOf(GroupsOf({kDeck, "--ids"}), "FIX", "NODE")["ids"], json({1, 4}));
}

TEST(GroupsCommand, AnElementSetIsAGroupOfElements)
{
  EXPECT_EQ(RowOf(GroupsOf({kDeck, "--ids"}), "EVERYTHING", "ELEMENT")["ids"], json({1, 2, 10, 11}));
}

TEST(GroupsCommand, ASurfaceOfFacesGivesPairsOfElementAndSide)
{
  EXPECT_EQ(RowOf(GroupsOf({kDeck, "--ids"}), "TIP", "FACE")["ids"], json::parse("[[2, 4], [11, 2]]"));
}

TEST(GroupsCommand, ASurfaceOfShellRimsIsAGroupOfEdges)
{
  EXPECT_EQ(RowOf(GroupsOf({kDeck, "--ids"}), "RIM", "EDGE")["ids"], json::parse("[[10, 3], [11, 3]]"));
}

TEST(GroupsCommand, ASurfaceOfNodesIsAGroupOfNodes)
{
  EXPECT_EQ(RowOf(GroupsOf({kDeck, "--ids"}), "CORNERS", "NODE")["ids"], json({1, 4, 13}));
}

TEST(GroupsCommand, ASetAndASurfaceOfOneNameAreTwoGroups)
{
  const json groups = GroupsOf({kDeck});
  EXPECT_EQ(RowOf(groups, "TIP", "ELEMENT")["count"], 1);
  EXPECT_EQ(RowOf(groups, "TIP", "FACE")["count"], 2);
}

TEST(GroupsCommand, AnEmptySetIsAGroupOfNothing)
{
  const json row = RowOf(GroupsOf({voxtest::DataFile("questionable.inp"), "--ids"}), "NOTHING", "NODE");
  EXPECT_EQ(row["count"], 0);
  EXPECT_EQ(row["ids"], json::array());
}

TEST(GroupsCommand, OneSideOfAnElementFollowsTheOther)
{
  const std::string file = voxtest::TemporaryFile(
      "sides.inp", "*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n3, 0., 1., 0.\n4, 0., 0., 1.\n*ELEMENT, TYPE=C3D4, ELSET=E\n"
                   "1, 1, 2, 3, 4\n*SURFACE, NAME=S\n1, S4\nE, S1\n1, S3\n");
  EXPECT_EQ(RowOf(GroupsOf({file, "--ids"}), "S", "FACE")["ids"], json::parse("[[1, 1], [1, 3], [1, 4]]"));
}

TEST(GroupsCommand, WithoutIdsOnlyTheNumbersAreGiven)
{
  EXPECT_FALSE(RowOf(GroupsOf({kDeck}), "FIX", "NODE").contains("ids"));
}

TEST(GroupsCommand, KindLeavesOutAllOthersWhateverItsCase)
{
  EXPECT_EQ(NamesOf(GroupsOf({kDeck, "--kind", "face"})), std::vector<std::string>{"TIP"});
  EXPECT_EQ(NamesOf(GroupsOf({kDeck, "--kind", "NODE"})), (std::vector<std::string>{"NALL", "FIX", "TOP", "CORNERS"}));
}

TEST(GroupsCommand, AnUnknownKindIsAWrongUse)
{
  const auto run = voxtest::RunInProcess({"groups", kDeck, "--kind", "VOLUME"});
  EXPECT_EQ(run.code, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.errors, HasSubstr("VOLUME"));
  EXPECT_THAT(run.errors, HasSubstr("ELEMENT"));
}

TEST(GroupsCommand, NameMayBeInAnyCaseAndHavePlaceholders)
{
  EXPECT_EQ(NamesOf(GroupsOf({kDeck, "--name", "fix"})), std::vector<std::string>{"FIX"});
  EXPECT_EQ(NamesOf(GroupsOf({kDeck, "--name", "T*P"})), (std::vector<std::string>{"TOP", "TIP", "TIP"}));
}

TEST(GroupsCommand, ANameThatNoGroupHasIsToldAndTheOutputStaysValid)
{
  const auto run = voxtest::RunInProcess({"groups", kDeck, "--name", "NOWHERE", "--json"});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(json::parse(run.out), json::parse(R"({"groups": []})"));
  EXPECT_THAT(run.errors, HasSubstr("no group named NOWHERE"));
}

TEST(GroupsCommand, ByMaterialGathersTheElementsOfItsSections)
{
  const json groups = GroupsOf({kDeck, "--by-material", "--ids"});
  ASSERT_EQ(groups.size(), 1u);
  EXPECT_EQ(groups[0], json::parse(R"({"name": "STEEL", "kind": "ELEMENT", "count": 4, "ids": [1, 2, 10, 11]})"));
}

TEST(GroupsCommand, AnElementOfTwoSectionsOfOneMaterialIsListedOnce)
{
  const std::string file = voxtest::TemporaryFile(
      "shared.inp", "*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n3, 0., 1., 0.\n4, 0., 0., 1.\n*ELEMENT, TYPE=C3D4\n"
                    "7, 1, 2, 3, 4\n3, 4, 2, 3, 1\n*ELSET, ELSET=A\n7\n*ELSET, ELSET=B\n3, 7\n*MATERIAL, NAME=M\n"
                    "*SOLID SECTION, ELSET=A, MATERIAL=M\n*SOLID SECTION, ELSET=B, MATERIAL=M\n");
  EXPECT_EQ(GroupsOf({file, "--by-material", "--ids"})[0]["ids"], json({3, 7}));
}

TEST(GroupsCommand, AGroupThatASupportOfAMaterialFailsIsARowWithItsReason)
{
  voxhost::Faults::FailOperation("VOXAnalysisExplicitEntity::GetApplyTo", 2, false);
  const auto run = voxtest::RunInProcess({"groups", kDeck, "--json", "--by-material"});
  voxhost::Faults::Disarm();
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(json::parse(run.out)["groups"][0]["count"], nullptr);
}

TEST(GroupsCommand, AMaterialThatNoSectionUsesHasNoGroup)
{
  const auto run = voxtest::RunInProcess(
      {"groups", voxtest::TemporaryFile("unused.inp", "*NODE\n1, 0., 0., 0.\n*MATERIAL, NAME=M\n"), "--by-material"});
  EXPECT_EQ(run.out, "No groups.\n");
}

TEST(GroupsCommand, ADeckWithoutSetsHasNoGroups)
{
  const auto run = voxtest::RunInProcess({"groups", voxtest::TemporaryFile("bare.inp", "*NODE\n1, 0., 0., 0.\n")});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.out, "No groups.\n");
}

TEST(GroupsCommand, AGroupThatFailsIsARowWithItsReasonAndTheOthersAreListed)
{
  voxhost::Faults::FailOperation("VOXAnalysisExplicitEntity::GetApplyTo", 2, false);
  const auto run = voxtest::RunInProcess({"groups", kDeck, "--json", "--kind", "NODE"});
  voxhost::Faults::Disarm();
  EXPECT_EQ(run.code, 1);
  const json groups = json::parse(run.out)["groups"];
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("groups"), json::parse(run.out)), std::vector<std::string>{});
  ASSERT_EQ(groups.size(), 4u);
  EXPECT_EQ(groups[0]["count"], 12);
  EXPECT_EQ(groups[1]["count"], nullptr);
  EXPECT_NE(groups[1]["failure"], "");
  EXPECT_EQ(groups[2]["count"], 6);
}

TEST(GroupsCommand, ANameWithBracketsIsFoundAsItIsWritten)
{
  const std::string deck = voxtest::TemporaryFile("brackets.inp", "*NODE, NSET=BOLT[1]\n1, 0., 0., 0.\n");
  EXPECT_EQ(NamesOf(GroupsOf({deck, "--name", "bolt[1]"})), std::vector<std::string>{"BOLT[1]"});
}

} // namespace
