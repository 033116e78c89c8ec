// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "voxbench/report/GroupsReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"
#include "voxbench/report/TreeReport.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace voxbench;
using nlohmann::json;

namespace
{

//! What is written to an output by a function.
template <class Writer>
std::string Written(Writer iWrite)
{
  std::ostringstream stream;
  {
    Output output(stream);
    iWrite(output);
  }
  return stream.str();
}

std::string GroupsAsJson(const std::vector<GroupRow>& iRows, bool iListEntities)
{
  return Written(
      [&](Output& ioOutput)
      {
        const auto report = GroupsReport::Json(ioOutput, iListEntities);
        for (const GroupRow& row : iRows)
          report->Add(row);
        report->Close();
      });
}

std::string GroupsAsText(const std::vector<GroupRow>& iRows, bool iListEntities)
{
  return Written(
      [&](Output& ioOutput)
      {
        const auto report = GroupsReport::Text(ioOutput, iListEntities);
        for (const GroupRow& row : iRows)
          report->Add(row);
        report->Close();
      });
}

const std::vector<std::int32_t> kIds{1, 2, 30};
const std::vector<std::int32_t> kSides{4, 1, 6};

TEST(TextTable, ColumnsAreAlignedAndNoLineEndsWithBlanks)
{
  TextTable table({Align::Left, Align::Right, Align::Left});
  table.Add({"a", "1", "x"});
  table.Add({"long", "1000", ""});
  EXPECT_EQ(Written([&](Output& ioOutput) { table.Print(ioOutput, 2); }), "  a        1  x\n  long  1000\n");
}

TEST(TextTable, ACharacterOfSeveralBytesTakesOnePlace)
{
  TextTable table({Align::Left, Align::Left});
  table.Add({"\xC3\xA4", "x"});
  table.Add({"bb", "y"});
  EXPECT_EQ(Written([&](Output& ioOutput) { table.Print(ioOutput); }), "\xC3\xA4   x\nbb  y\n");
}

TEST(Numbers, LongOnesAreGroupedInThrees)
{
  EXPECT_EQ(Grouped(0), "0");
  EXPECT_EQ(Grouped(1234), "1234");
  EXPECT_EQ(Grouped(12345), "12 345");
  EXPECT_EQ(Grouped(-1234567), "-1 234 567");
}

TEST(Numbers, OneOfSomethingIsSingular)
{
  EXPECT_EQ(Counted(1, "node", "nodes"), "1 node");
  EXPECT_EQ(Counted(0, "node", "nodes"), "0 nodes");
}

TEST(Output, ReportsAStreamThatTakesNothing)
{
  std::ostringstream stream;
  stream.setstate(std::ios::badbit);
  Output output(stream);
  output.Write("lost");
  EXPECT_FALSE(output.Flush());
}

TEST(GroupsReportJson, WithoutRowsIsAnEmptyList)
{
  EXPECT_EQ(json::parse(GroupsAsJson({}, true)), json::parse(R"({"groups": []})"));
}

TEST(GroupsReportJson, IdsAppearOnlyWhenAskedFor)
{
  const GroupRow row{"FIX", "NODE", 3, kIds, {}, ""};
  EXPECT_EQ(json::parse(GroupsAsJson({row}, false)),
            json::parse(R"({"groups": [{"name": "FIX", "kind": "NODE", "count": 3}]})"));
  EXPECT_EQ(json::parse(GroupsAsJson({row}, true)),
            json::parse(R"({"groups": [{"name": "FIX", "kind": "NODE", "count": 3, "ids": [1, 2, 30]}]})"));
}

TEST(GroupsReportJson, FacesArePairsOfElementAndSide)
{
  const json groups = json::parse(GroupsAsJson({{"TIP", "FACE", 3, kIds, kSides, ""}}, true));
  EXPECT_EQ(groups["groups"][0]["ids"], json::parse("[[1, 4], [2, 1], [30, 6]]"));
}

TEST(GroupsReportJson, AFailedGroupHasItsReasonAndNoCount)
{
  const json groups = json::parse(GroupsAsJson({{"BAD", "NODE", 0, {}, {}, "no object in the model"}}, true));
  EXPECT_EQ(groups["groups"][0]["count"], nullptr);
  EXPECT_EQ(groups["groups"][0]["failure"], "no object in the model");
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("groups"), groups), std::vector<std::string>{});
}

TEST(GroupsReportJson, NamesThatAreNoUtf8StillGiveValidJson)
{
  const json groups = json::parse(GroupsAsJson({{"\xE4\"\\", "NODE", 0, {}, {}, ""}}, true));
  EXPECT_EQ(groups["groups"][0]["name"], "\xEF\xBF\xBD\"\\");
}

TEST(GroupsReportText, IsATableOfNameKindAndCount)
{
  EXPECT_EQ(GroupsAsText({{"FIX", "NODE", 3, {}, {}, ""}, {"TIPS", "FACE", 0, {}, {}, "out of date"}}, false),
            "NAME  KIND   COUNT\n"
            "FIX   NODE       3\n"
            "TIPS  FACE  failed  out of date\n");
}

TEST(GroupsReportText, EntitiesFollowTheirGroupAndSidesTheirElement)
{
  EXPECT_EQ(GroupsAsText({{"FIX", "NODE", 3, kIds, {}, ""}, {"TIP", "FACE", 3, kIds, kSides, ""}}, true),
            "FIX  NODE  3\n  1 2 30\n\nTIP  FACE  3\n  1/4 2/1 30/6\n");
}

TEST(GroupsReportText, LongListsOfEntitiesAreBrokenIntoLines)
{
  std::vector<std::int32_t> ids(1000);
  for (std::size_t place = 0; place < ids.size(); ++place)
    ids[place] = static_cast<std::int32_t>(100000 + place);
  std::istringstream lines(GroupsAsText({{"ALL", "NODE", 1000, ids, {}, ""}}, true));
  std::int64_t members = -3; // words of the head line
  for (std::string line; std::getline(lines, line);)
  {
    EXPECT_LE(line.size(), 100u);
    std::istringstream words(line);
    for (std::string word; words >> word;)
      ++members;
  }
  EXPECT_EQ(members, 1000);
}

TreeNode SmallTree()
{
  const TreeNode loads{.name = "Loads", .type = "LoadSet", .hidden = 3};
  const TreeNode group{.name = "FIX",
                       .type = "G",
                       .setType = "GroupSet",
                       .entities = 12345,
                       .view = voxbench::ViewState{.inGraph = true, .noShow = true}};
  return {.name = "Model", .type = "AnalysisModel", .children = {loads, group}};
}

TEST(TreeReportText, IndentsByTwoBlanksPerLevel)
{
  const TreeNode root = SmallTree();
  EXPECT_EQ(Written([&](Output& ioOutput) { PrintTree(ioOutput, root); }),
            "Model    AnalysisModel\n"
            "  Loads  LoadSet                                          3 features below\n"
            "  FIX    G              GroupSet  12 345  graph, no show\n");
}

TEST(TreeReportJson, KeepsItsSchema)
{
  const TreeNode root = SmallTree();
  const json tree = json::parse(Written([&](Output& ioOutput) { WriteTreeJson(ioOutput, root); }));
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("tree"), tree), std::vector<std::string>{});
  EXPECT_EQ(tree["tree"]["children"][0]["hidden"], 3);
  EXPECT_EQ(tree["tree"]["children"][1]["entities"], 12345);
}

TEST(JsonSchema, TheCheckerSeesWhatIsWrong)
{
  const json schema = voxtest::SchemaOf("groups");
  EXPECT_EQ(
      voxtest::Violations(schema, json::parse(R"({"groups": [{"name": "A", "kind": "NODE", "count": 1}]})")).size(),
      0u);
  EXPECT_EQ(voxtest::Violations(schema, json::parse(R"({})")).size(), 1u);
  EXPECT_EQ(voxtest::Violations(schema, json::parse(R"({"groups": [], "more": 1})")).size(), 1u);
  EXPECT_EQ(
      voxtest::Violations(schema, json::parse(R"({"groups": [{"name": 1, "kind": "HEAP", "count": -1}]})")).size(), 3u);
  EXPECT_EQ(voxtest::Violations(schema,
                                json::parse(R"({"groups": [{"name": "A", "kind": "FACE", "count": 1, "ids": [[1]]}]})"))
                .size(),
            1u);
}

} // namespace
