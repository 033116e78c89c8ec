// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

namespace
{

const std::string kDeck = voxtest::DataFile("plate_on_block.inp");
const std::string kQuestionable = voxtest::DataFile("questionable.inp");

json InfoOf(const std::string& iFile)
{
  const auto run = voxtest::RunInProcess({"info", iFile, "--json"});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_EQ(run.errors, "");
  return json::parse(run.out);
}

TEST(InfoCommand, TextIsThatOfTheGoldenFile)
{
  const auto run = voxtest::RunBuiltProgram({"info", kDeck});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(voxtest::DifferenceToGolden("plate_on_block.info.txt", run.out), "");
}

TEST(InfoCommand, TextTellsWhatCouldNotBeUsed)
{
  const auto run = voxtest::RunBuiltProgram({"info", kQuestionable});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(voxtest::DifferenceToGolden("questionable.info.txt", run.out), "");
}

TEST(InfoCommand, JsonKeepsItsSchema)
{
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("info"), InfoOf(kDeck)), std::vector<std::string>{});
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("info"), InfoOf(kQuestionable)), std::vector<std::string>{});
}

TEST(InfoCommand, CountsNodesAndElementsPerType)
{
  const json info = InfoOf(kDeck);
  EXPECT_EQ(info["nodes"], 12);
  EXPECT_EQ(info["elements"], 5);
  EXPECT_EQ(info["elementTypes"][0], json::parse(R"({"type": "C3D8", "family": "solid", "count": 2})"));
  EXPECT_EQ(info["elementTypes"].size(), 3u);
}

TEST(InfoCommand, TellsTheBoxAroundAllNodes)
{
  EXPECT_EQ(InfoOf(kDeck)["boundingBox"],
            json::parse(R"({"minimum": [0.0, 0.0, 0.0], "maximum": [20.0, 10.0, 10.0]})"));
}

TEST(InfoCommand, WithoutNodesThereIsNoBox)
{
  EXPECT_EQ(InfoOf(voxtest::TemporaryFile("heading.inp", "*HEADING\nnothing\n"))["boundingBox"], nullptr);
}

TEST(InfoCommand, TellsTheStepsWithTheirProcedures)
{
  EXPECT_EQ(InfoOf(kDeck)["steps"], json::parse(R"([{"number": 1, "procedure": "STATIC", "perturbation": false,
    "nonlinearGeometry": true, "loads": 2, "restraints": 0, "outputRequests": 2}])"));
}

TEST(InfoCommand, CountsCardsThatAreNotUnderstoodWithTheFirstLine)
{
  const json unknown = InfoOf(kQuestionable)["unknownCards"];
  ASSERT_EQ(unknown.size(), 1u);
  EXPECT_EQ(unknown[0]["card"], "*WOBBLE");
  EXPECT_EQ(unknown[0]["count"], 2);
  EXPECT_EQ(unknown[0]["firstLine"], 14);
}

TEST(InfoCommand, FindingsTellLineCardAndWhatIsWrong)
{
  const json findings = InfoOf(kQuestionable)["findings"];
  ASSERT_EQ(findings.size(), 4u);
  EXPECT_EQ(findings[1]["severity"], "error");
  EXPECT_EQ(findings[1]["line"], 12);
  EXPECT_THAT(findings[1]["message"].get<std::string>(), HasSubstr("77"));
}

TEST(InfoCommand, LongListsOfFindingsEndWithTheirNumberUnlessAllIsAsked)
{
  std::string text;
  for (int set = 0; set < 30; ++set)
    text += "*NSET, NSET=S" + std::to_string(set) + "\n" + std::to_string(100 + set) + "\n";
  const std::string file = voxtest::TemporaryFile("many.inp", "*NODE\n1, 0., 0., 0.\n" + text);
  EXPECT_THAT(voxtest::RunInProcess({"info", file}).out, HasSubstr("... and 20 more: --all shows them"));
  EXPECT_THAT(voxtest::RunInProcess({"info", file, "--all"}).out, Not(HasSubstr("--all shows them")));
}

TEST(InfoCommand, TextDoesNotSteerTheTerminal)
{
  const std::string deck = voxtest::TemporaryFile(
      "steering.inp",
      "*HEADING\n\033]0;title\007 of\tBl\303\266cke \302\2332J\n*\033[31mNODES\n1\n*NODE\n1, 0., 0., 0.\n");
  const auto run = voxtest::RunInProcess({"info", deck});
  EXPECT_THAT(run.out, HasSubstr("?]0;title? of\tBl\303\266cke ??2J\n"));
  EXPECT_THAT(run.out, HasSubstr("*?[31MNODES"));
  EXPECT_THAT(run.out, Not(HasSubstr("\033")));
}

TEST(InfoCommand, ARefusalDoesNotSteerTheTerminal)
{
  const std::string deck = voxtest::TemporaryFile("steering.inp", "*\033[31mNODES\n1\n");
  const auto run = voxtest::RunInProcess({"info", deck});
  EXPECT_EQ(run.code, 3);
  EXPECT_THAT(run.errors, HasSubstr("*?[31MNODES"));
}

TEST(InfoCommand, JsonKeepsWhatWouldSteerATerminal)
{
  const std::string deck = voxtest::TemporaryFile("steering.inp", "*NODE\n*HEADING\na\033b\302\233c\177d\n");
  EXPECT_EQ(InfoOf(deck)["title"][0], "a\033b\302\233c\177d");
}

} // namespace
