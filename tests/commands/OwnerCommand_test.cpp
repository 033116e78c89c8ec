// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::HasSubstr;

namespace
{

const std::string kDeck = voxtest::DataFile("plate_on_block.inp");

//! The one row of a question.
json Owner(std::vector<std::string> iQuestion, int iCode = 0)
{
  iQuestion.insert(iQuestion.begin(), {"owner", kDeck});
  iQuestion.push_back("--json");
  const auto run = voxtest::RunInProcess(iQuestion);
  EXPECT_EQ(run.code, iCode) << run.errors;
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("owner"), output), std::vector<std::string>{});
  return output["owners"][0];
}

//! Tag of the first object of a kind.
std::string TagOf(const std::string& iKind)
{
  for (int tag = 1; tag < 100; ++tag)
  {
    const auto run = voxtest::RunInProcess({"owner", kDeck, std::to_string(tag), "--json"});
    if (json::parse(run.out)["owners"][0]["kind"] == iKind)
      return std::to_string(tag);
  }
  return "0";
}

TEST(OwnerCommand, AnObjectWasMadeByTheFeatureThatReportsItsTag)
{
  const json row = Owner({TagOf("GROUP")});
  EXPECT_EQ(row["owner"], "Plate on a block/Groups/NALL");
  EXPECT_EQ(row["ownerType"], "DeckNodeGroup");
}

TEST(OwnerCommand, ANodeWasMadeByTheFeatureOfItsMesh)
{
  const json row = Owner({"--node", "5"});
  EXPECT_EQ(row["kind"], "NODE");
  EXPECT_EQ(row["ownerType"], "MSHPart");
}

TEST(OwnerCommand, AnElementWasMadeByTheFeatureOfItsMesh)
{
  EXPECT_EQ(Owner({"--element", "10"})["ownerType"], "MSHPart");
}

TEST(OwnerCommand, AnObjectWithoutAFeatureIsToldWithWhatStandsAboveIt)
{
  const json row = Owner({TagOf("NODE_GROUP")}, 1);
  EXPECT_EQ(row["owner"], nullptr);
  EXPECT_THAT(row["remark"], HasSubstr("Plate on a block/Groups/NALL"));
}

TEST(OwnerCommand, AnIdThatIsNotThereHasNoTag)
{
  const json row = Owner({"--node", "77"}, 1);
  EXPECT_EQ(row["tag"], nullptr);
  EXPECT_THAT(row["remark"], HasSubstr("no such object"));
}

TEST(OwnerCommand, SeveralQuestionsAreAnsweredInTheirOrder)
{
  const auto run = voxtest::RunInProcess({"owner", kDeck, "2", "4", "--node", "1"});
  EXPECT_EQ(run.code, 0);
  const auto first = run.out.find("tag 2");
  const auto second = run.out.find("tag 4");
  const auto third = run.out.find("node 1");
  EXPECT_LT(first, second);
  EXPECT_LT(second, third);
  EXPECT_NE(third, std::string::npos);
}

TEST(OwnerCommand, WithoutAQuestionItIsAWrongUse)
{
  const auto run = voxtest::RunInProcess({"owner", kDeck});
  EXPECT_EQ(run.code, 2);
  EXPECT_THAT(run.errors, HasSubstr("TAG"));
}

TEST(OwnerCommand, ANumberThatNoObjectCanHaveIsAWrongUse)
{
  for (const char* const option : {"TAG", "--node", "--element"})
    for (const std::string number : {"99999999999", "2147483648", "abc", "1.5"})
    {
      std::vector<std::string> arguments{"owner", kDeck, option, number};
      if (option[0] != '-')
        arguments.erase(arguments.begin() + 2);
      const auto run = voxtest::RunInProcess(arguments);
      EXPECT_EQ(run.code, 2);
      EXPECT_THAT(run.errors, HasSubstr(std::string(option) + ": " + number + " is no whole number up to 2147483647"));
    }
}

TEST(OwnerCommand, WhatFollowsTheIdOfAnOptionIsATag)
{
  const auto run = voxtest::RunInProcess({"owner", kDeck, "--node", "1", "2"});
  EXPECT_THAT(run.out, HasSubstr("node 1"));
  EXPECT_THAT(run.out, HasSubstr("tag 2"));
}

TEST(OwnerCommand, TwoDashesEndTheOptions)
{
  const auto run = voxtest::RunInProcess({"owner", "--node", "1", "--element", "10", "--", kDeck, "2"});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_THAT(run.out, HasSubstr("tag 2"));
}

} // namespace
