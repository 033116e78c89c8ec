// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::HasSubstr;

namespace
{

const std::string kDeck = voxtest::DataFile("plate_on_block.inp");

json TreeOf(std::vector<std::string> iArguments)
{
  iArguments.insert(iArguments.begin(), "tree");
  iArguments.push_back("--json");
  const auto run = voxtest::RunInProcess(iArguments);
  EXPECT_EQ(run.code, 0) << run.errors;
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("tree"), output), std::vector<std::string>{});
  return output["tree"];
}

json ChildOf(const json& iNode, const std::string& iName)
{
  for (const json& child : iNode["children"])
    if (child["name"] == iName)
      return child;
  return nullptr;
}

TEST(TreeCommand, TextIsThatOfTheGoldenFile)
{
  const auto run = voxtest::RunBuiltProgram({"tree", kDeck});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(voxtest::DifferenceToGolden("plate_on_block.tree.txt", run.out), "");
}

TEST(TreeCommand, TheRootIsAnAnalysisModelWithItsMeshAndItsSets)
{
  const json root = TreeOf({kDeck});
  EXPECT_EQ(root["type"], "AnalysisModel");
  std::vector<std::string> types;
  for (const json& child : root["children"])
    types.push_back(child["type"]);
  EXPECT_EQ(types,
            (std::vector<std::string>{"MSHSetContainer", "GroupSet", "MaterialSet", "AxisSet", "PropertySet", "MassSet",
                                      "RestraintSet", "LoadSet", "ModulationSet", "SensorSet", "ConnectionSet"}));
}

TEST(TreeCommand, GroupsStandInTheGroupSetInTheOrderOfTheDeck)
{
  const json groups = ChildOf(TreeOf({kDeck}), "Groups");
  std::vector<std::string> names;
  for (const json& group : groups["children"])
    names.push_back(group["name"]);
  EXPECT_EQ(names, (std::vector<std::string>{"NALL", "FIX", "TOP", "BLOCK", "PLATE", "LUMP", "EVERYTHING", "TIP", "TIP",
                                             "RIM", "CORNERS"}));
}

TEST(TreeCommand, EveryEntityOfTheDeckIsAFeatureOfItsSet)
{
  const json root = TreeOf({kDeck});
  EXPECT_EQ(ChildOf(root, "Loads")["children"].size(), 2u);
  EXPECT_EQ(ChildOf(root, "Restraints")["children"].size(), 1u);
  EXPECT_EQ(ChildOf(root, "Masses")["children"].size(), 1u);
  EXPECT_EQ(ChildOf(root, "Properties")["children"].size(), 2u);
  EXPECT_EQ(ChildOf(root, "Modulations")["children"].size(), 1u);
  EXPECT_EQ(ChildOf(root, "Sensors")["children"].size(), 2u);
}

TEST(TreeCommand, AnEntityTellsTheTypeOfItsSetAndASetNone)
{
  const json root = TreeOf({kDeck});
  EXPECT_EQ(ChildOf(root, "Loads")["set"], nullptr);
  EXPECT_EQ(ChildOf(root, "Loads")["children"][0]["set"], "LoadSet");
  EXPECT_EQ(ChildOf(root, "Groups")["children"][0]["set"], "GroupSet");
}

TEST(TreeCommand, EveryFeatureIsVisibleAtFirst)
{
  const json load = ChildOf(TreeOf({kDeck}), "Loads")["children"][0];
  EXPECT_EQ(load["visible"], (json{{"graph", true}, {"3d", true}}));
  EXPECT_EQ(load["noShow"], false);
}

TEST(TreeCommand, DepthLeavesOutLowerLevelsAndCountsThem)
{
  const json root = TreeOf({kDeck, "--depth", "1"});
  EXPECT_EQ(ChildOf(root, "Groups")["hidden"], 11);
  EXPECT_EQ(ChildOf(root, "Groups")["children"], json::array());
  EXPECT_FALSE(root.contains("hidden"));
}

TEST(TreeCommand, DepthZeroIsTheModelAlone)
{
  EXPECT_EQ(TreeOf({kDeck, "--depth", "0"})["children"], json::array());
}

TEST(TreeCommand, ANegativeDepthIsAWrongUse)
{
  const auto run = voxtest::RunInProcess({"tree", kDeck, "--depth", "-1"});
  EXPECT_EQ(run.code, 2);
  EXPECT_THAT(run.errors, HasSubstr("--depth"));
}

} // namespace
