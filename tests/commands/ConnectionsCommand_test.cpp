// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"
#include "host/Instruments/Faults.h"

#include <gmock/gmock.h>

using nlohmann::json;

namespace
{

const std::string kDeck = voxtest::DataFile("joined.inp");

json Connections(const std::string& iFile = kDeck)
{
  const auto run = voxtest::RunInProcess({"connections", iFile, "--json"});
  EXPECT_EQ(run.code, 0) << run.errors;
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("connections"), output), std::vector<std::string>{});
  return output["connections"];
}

json ConnectionOf(const std::string& iKeyword)
{
  for (const json& connection : Connections())
    if (connection["keyword"] == iKeyword)
      return connection;
  return nullptr;
}

std::vector<std::string> NamesOf(const json& iMembers)
{
  std::vector<std::string> names;
  for (const json& member : iMembers)
    names.push_back(member["name"]);
  return names;
}

using Names = std::vector<std::string>;

TEST(ConnectionsCommand, TextIsThatOfTheGoldenFile)
{
  const auto run = voxtest::RunBuiltProgram({"connections", kDeck});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_EQ(voxtest::DifferenceToGolden("joined.connections.txt", run.out), "");
}

TEST(ConnectionsCommand, ATieStandsOnItsDependentSurfaceAndThenOnTheIndependentOne)
{
  const json tie = ConnectionOf("TIE");
  EXPECT_EQ(NamesOf(tie["sides"][0]["supports"]), Names{"SLAVE"});
  EXPECT_EQ(NamesOf(tie["sides"][1]["supports"]), Names{"MASTER"});
  EXPECT_EQ(tie["sides"][0]["supports"][0]["type"], "DeckFaceGroup");
}

TEST(ConnectionsCommand, EachSideIsDesignedByTheMeshPartOfItsDesigner)
{
  const json tie = ConnectionOf("TIE");
  for (const json& side : tie["sides"])
    EXPECT_EQ(NamesOf(side["designers"]), Names{"Mesh"});
}

TEST(ConnectionsCommand, ARigidBodyGoesFromItsReferenceNodeToItsSet)
{
  const json body = ConnectionOf("RIGID BODY");
  EXPECT_EQ(body["sides"][0]["designer"], "node 99");
  EXPECT_EQ(NamesOf(body["sides"][0]["supports"]), Names{"Mesh"});
  EXPECT_EQ(NamesOf(body["sides"][1]["supports"]), Names{"TIP"});
}

TEST(ConnectionsCommand, ACouplingGoesFromItsReferenceNodeToItsSurface)
{
  const json coupling = ConnectionOf("COUPLING");
  EXPECT_EQ(coupling["sides"][0]["designer"], "node 99");
  EXPECT_EQ(NamesOf(coupling["sides"][1]["supports"]), Names{"END"});
}

TEST(ConnectionsCommand, ASideThatNamesASurfaceThatIsMissingStandsOnNothing)
{
  const std::string file = voxtest::TemporaryFile(
      "untied.inp", "*NODE\n1, 0., 0., 0.\n*SURFACE, NAME=A, TYPE=NODE\n1\n*TIE, NAME=T\nA, B\n");
  const json sides = Connections(file)[0]["sides"];
  EXPECT_EQ(NamesOf(sides[0]["supports"]), Names{"A"});
  EXPECT_EQ(sides[1]["designer"], "B");
  EXPECT_EQ(NamesOf(sides[1]["supports"]), Names{});
}

TEST(ConnectionsCommand, AQueryThatFailsIsToldAndTheOthersAreListed)
{
  voxhost::Faults::FailOperation("VOXISamAnalysisEntity::ListByRole", 2, false);
  const auto run = voxtest::RunInProcess({"connections", kDeck, "--json"});
  voxhost::Faults::Disarm();
  EXPECT_EQ(run.code, 1);
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("connections"), output), std::vector<std::string>{});
  EXPECT_EQ(output["connections"][0]["failure"], "GetConnectedSupports failed");
  EXPECT_EQ(output["connections"].size(), 3u);
}

TEST(ConnectionsCommand, AModelWithoutAnyHasNone)
{
  EXPECT_EQ(voxtest::RunInProcess({"connections", voxtest::DataFile("plate_on_block.inp")}).out, "No connections.\n");
}

} // namespace
