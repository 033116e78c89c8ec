// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"
#include "host/Instruments/Faults.h"
#include "voxbench/commands/Expressions.h"
#include "voxbench/readers/inp/InpReader.h"

#include <gmock/gmock.h>
#include <sstream>

using nlohmann::json;
using testing::HasSubstr;
using voxtest::RunInProcess;

namespace
{

const std::string kDeck = voxtest::DataFile("block.inp");
using Words = std::vector<std::string>;

json Asked(const Words& iArguments, int iCode = 0)
{
  Words arguments{"expressions", kDeck, "--json"};
  arguments.insert(arguments.end(), iArguments.begin(), iArguments.end());
  const auto run = RunInProcess(arguments);
  EXPECT_EQ(run.code, iCode) << run.errors;
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("expressions"), output), Words{});
  return output;
}

} // namespace

TEST(ExpressionsCommand, ListIsThatOfTheGoldenFile)
{
  const auto run = voxtest::RunBuiltProgram({"expressions", kDeck});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_EQ(voxtest::DifferenceToGolden("block.expressions.txt", run.out), "");
}

TEST(ExpressionsCommand, WhatIsReadIsThatOfTheGoldenFile)
{
  const auto run = RunInProcess({"expressions", kDeck, "--read", "2", "--read", "3", "--delete", "1"});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_EQ(voxtest::DifferenceToGolden("block.expressions-read.txt", run.out), "");
}

TEST(ExpressionsCommand, EquationsAndAmplitudesAreNumberedThroughTheWholeModel)
{
  const json output = Asked({});
  EXPECT_EQ(output["count"], 4);
  Words rows;
  for (const json& row : output["expressions"])
    rows.push_back(row["number"].dump() + " " + row["keyword"].get<std::string>() + " " +
                   row["title"].get<std::string>() + " " + row["size"].dump());
  EXPECT_EQ(rows,
            (Words{"1 EQUATION Equation 1 2", "2 EQUATION Equation 2 3", "3 AMPLITUDE RAMP 3", "4 AMPLITUDE HOLD 2"}));
}

TEST(ExpressionsCommand, AnEquationIsReadWithItsTerms)
{
  const json read = Asked({"--read", "2"})["read"][0];
  EXPECT_EQ(read["terms"], (json{{{"node", 16}, {"dof", 1}, {"coefficient", 1.}},
                                 {{"node", 13}, {"dof", 1}, {"coefficient", -.5}},
                                 {{"node", 3}, {"dof", 1}, {"coefficient", -.5}}}));
}

TEST(ExpressionsCommand, AnAmplitudeIsReadWithItsPoints)
{
  const json read = Asked({"--read", "3"})["read"][0];
  EXPECT_EQ(read["table"], json::parse("[[0.0, 0.0], [1.0, 1.0], [2.0, 1.5]]"));
}

TEST(ExpressionsCommand, OnlyFeaturesOfANameAreAsked)
{
  const json output = Asked({"--feature", "ra*"});
  EXPECT_EQ(output["count"], 1);
  EXPECT_EQ(output["expressions"][0]["feature"], "RAMP");
  EXPECT_EQ(RunInProcess({"expressions", kDeck, "--feature", "NOWHERE"}).code, 1);
}

TEST(ExpressionsCommand, SomeAreDeletedByNumber)
{
  EXPECT_EQ(Asked({"--delete", "1", "--delete", "2"})["deleted"],
            (json{{"operation", "DeleteExpression"}, {"deleted", 2}, {"left", 2}}));
}

TEST(ExpressionsCommand, AllAreDeletedAtOnce)
{
  EXPECT_EQ(Asked({"--delete", "all"})["deleted"], (json{{"operation", "DeleteAll"}, {"deleted", 4}, {"left", 0}}));
}

TEST(ExpressionsCommand, ANumberThatIsNotThereIsAFailure)
{
  for (const char* const option : {"--read", "--delete"})
  {
    const auto run = RunInProcess({"expressions", kDeck, option, "5"});
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.errors, HasSubstr("there is no expression 5"));
  }
}

TEST(ExpressionsCommand, WhatIsNoNumberIsWrongUsage)
{
  EXPECT_EQ(RunInProcess({"expressions", kDeck, "--delete", "some"}).code, 2);
  EXPECT_EQ(RunInProcess({"expressions", kDeck, "--read", "some"}).code, 2);
}

TEST(ExpressionsCommand, AFeatureThatFailsIsARowWithItsReason)
{
  voxbench::NeutralModel records;
  ASSERT_TRUE(voxbench::ReadInp(kDeck, {}, records).ok);
  voxbench::LoadedModel model;
  ASSERT_EQ(model.Build(std::move(records)), "");
  voxhost::Faults::FailOperation("VOXISamExplicit::GetExplicitParent", 1, false);
  const voxbench::Expressions expressions(model, [](const voxhost::Feature&) { return true; });
  voxhost::Faults::Disarm();

  std::ostringstream text;
  {
    voxbench::Output output(text);
    WriteExpressionsJson(output, {expressions.Rows(), {}, {}});
  }
  const json written = json::parse(text.str());
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("expressions"), written), Words{});
  const json& rows = written["expressions"];
  EXPECT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0]["number"], nullptr);
  EXPECT_THAT(rows[0]["failure"].get<std::string>(), HasSubstr("GetNumberOfExpressions failed: error 1"));
  EXPECT_EQ(written["count"], 2);
}

TEST(ExpressionsCommand, AnExpressionThatFailsIsARowAndTheNextIsTold)
{
  voxbench::NeutralModel records;
  ASSERT_TRUE(voxbench::ReadInp(kDeck, {}, records).ok);
  voxbench::LoadedModel model;
  ASSERT_EQ(model.Build(std::move(records)), "");
  voxhost::Faults::FailOperation("VOXAnalysisExplicitChild::LinkWithPointer", 1, false);
  const voxbench::Expressions expressions(model, [](const voxhost::Feature&) { return true; });
  voxhost::Faults::Disarm();

  ASSERT_EQ(expressions.Rows().size(), 4u);
  EXPECT_THAT(expressions.Rows()[0].failure, HasSubstr("GetExpression failed"));
  EXPECT_EQ(expressions.Rows()[1].failure, "");
  EXPECT_EQ(expressions.Rows()[1].size, 3);
}
