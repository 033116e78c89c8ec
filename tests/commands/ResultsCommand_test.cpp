// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"
#include "tests/readers/FrdBench.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using voxtest::RunInProcess;
namespace frdtext = voxbench::frdtext;

namespace
{

const std::string kFile = voxtest::DataFile("block.frd");
using Words = std::vector<std::string>;

json Asked(const std::string& iSchema, const Words& iArguments, int iCode)
{
  Words arguments{"results"};
  arguments.insert(arguments.end(), iArguments.begin(), iArguments.end());
  arguments.emplace_back("--json");
  const auto run = RunInProcess(arguments);
  EXPECT_EQ(run.code, iCode) << run.errors;
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf(iSchema), output), Words{});
  return output;
}

json Listing(const std::string& iFile)
{
  return Asked("results", {iFile}, 0);
}

json Shown(const Words& iArguments, int iCode = 0)
{
  return Asked("results-values", iArguments, iCode);
}

//! A result file of displacements with imaginary parts in its second state, and temperatures in the first.
std::string ComplexFile()
{
  using namespace frdtext;
  const std::string second = StepRecord(2, 1, 2);
  return voxtest::TemporaryFile(
      "complex.frd", Mesh() + StepRecord(1, 1, 1) + Block("DISP", {"D1"}, ResultsHead(1, " 0.500000000", 4, 1)) +
                         StepRecord(1, 1, 1) + Block("NDTEMP", {"T"}, ResultsHead(1, " 0.500000000", 4, 1)) + second +
                         Block("DISP", {"D1"}, ResultsHead(2, " 7.000000000", 4, 1)) + second +
                         Block("DISPI", {"D1"}, ResultsHead(2, " 7.000000000", 4, 1)) + kFileEnd);
}

//! One state of temperatures on four nodes, one of them no number.
std::string FileWithAHole()
{
  using namespace frdtext;
  return voxtest::TemporaryFile("hole.frd", Mesh() + ResultsHead(1, " 1.000000000", 4, 0) + Names("NDTEMP", {"T"}) +
                                                " -1         1         NaN\n" + Row(2, {20.}) + Row(3, {10.}) +
                                                Row(4, {30.}) + kBlockEnd + kFileEnd);
}

Words VersionsOf(const json& iType)
{
  Words versions;
  for (const json& available : iType["available"])
    versions.push_back(available["version"]);
  return versions;
}

} // namespace

TEST(ResultsCommand, ListingIsThatOfTheGoldenFile)
{
  const auto run = voxtest::RunBuiltProgram({"results", kFile});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_EQ(voxtest::DifferenceToGolden("block.results.txt", run.out), "");
}

TEST(ResultsCommand, ValuesAreThoseOfTheGoldenFile)
{
  const auto run = voxtest::RunBuiltProgram(
      {"results", kFile, "--type", "U", "--version", "all", "--group", "TIP", "--group", "END"});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_EQ(voxtest::DifferenceToGolden("block.results-values.txt", run.out), "");
}

TEST(ResultsCommand, CommaSeparatedValuesAreThoseOfTheGoldenFile)
{
  const auto run = RunInProcess({"results", kFile, "--type", "STRESS", "--csv"});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_EQ(voxtest::DifferenceToGolden("block.results.csv", run.out), "");
}

TEST(ResultsCommand, EveryTypeTellsItsComponentsVersionsAndPositions)
{
  const json listing = Listing(kFile);
  ASSERT_EQ(listing["types"].size(), 4u);
  const json& disp = listing["types"][0];
  EXPECT_EQ(disp["type"], "DISP");
  EXPECT_EQ(disp["components"], (json{"D1", "D2", "D3"}));
  EXPECT_THAT(VersionsOf(disp), ElementsAre("1", "2"));
  EXPECT_EQ(disp["available"][0]["positions"], json{"NODE"});
  EXPECT_EQ(listing["versions"][1]["step"], 2);
}

TEST(ResultsCommand, AnImaginaryPartIsAVersionOfItsOwn)
{
  const json listing = Listing(ComplexFile());
  EXPECT_THAT(VersionsOf(listing["types"][0]), ElementsAre("1", "2", "2i"));
  EXPECT_THAT(VersionsOf(listing["types"][1]), ElementsAre("1"));

  const json tables = Shown({ComplexFile(), "--type", "DISP", "--version", "2i"})["tables"];
  ASSERT_EQ(tables.size(), 1u);
  EXPECT_EQ(tables[0]["version"]["imaginary"], true);
  EXPECT_EQ(tables[0]["version"]["kind"], "frequency");
}

TEST(ResultsCommand, AnImaginaryPartThatIsNotThereIsAFailure)
{
  const auto run = RunInProcess({"results", ComplexFile(), "--type", "NDTEMP", "--version", "1i"});
  EXPECT_EQ(run.code, 1);
  EXPECT_THAT(run.errors, HasSubstr("has no values of type NDTEMP, version 1i, at NODE"));
}

TEST(ResultsCommand, TheLastVersionIsShownUnlessAnotherIsAskedFor)
{
  EXPECT_EQ(Shown({kFile, "--type", "DISP"})["tables"][0]["version"]["version"], "2");
  EXPECT_EQ(Shown({kFile, "--type", "DISP", "--version", "1"})["tables"][0]["version"]["version"], "1");
  EXPECT_EQ(Shown({kFile, "--type", "DISP", "--version", "all"})["tables"].size(), 2u);
}

TEST(ResultsCommand, AGroupOfNodesHasTheValuesOfItsNodes)
{
  const json group = Shown({kFile, "--type", "DISP", "--version", "1", "--group", "TIP"})["tables"][0]["groups"][0];
  EXPECT_EQ(group["kind"], "NODE");
  EXPECT_EQ(group["values"][0], (json{3, 0.00363002, 0.000272251, 0.000272251}));
  EXPECT_EQ(group["values"].size(), 4u);
}

TEST(ResultsCommand, AGroupOfElementsOrFacesStandsForTheirNodes)
{
  const json groups = Shown({kFile, "--type", "DISP", "--group", "OUTER", "--group", "END"})["tables"][0]["groups"];
  const auto nodesOf = [](const json& iGroup)
  {
    std::vector<int> nodes;
    for (const json& row : iGroup["values"])
      nodes.push_back(row[0]);
    return nodes;
  };
  ASSERT_EQ(groups.size(), 2u);
  EXPECT_THAT(nodesOf(groups[0]), ElementsAre(2, 3, 5, 6, 12, 13, 15, 16));
  EXPECT_THAT(nodesOf(groups[1]), ElementsAre(3, 6, 13, 16));
}

TEST(ResultsCommand, ExtremesTellNodeAndPlace)
{
  const json group = Shown({kFile, "--type", "DISP", "--extremes"})["tables"][0]["groups"][0];
  EXPECT_FALSE(group.contains("values"));
  EXPECT_EQ(group["extremes"][0]["maximum"], (json{{"value", 0.00418488}, {"node", 3}, {"place", {20., 0., 0.}}}));
}

TEST(ResultsCommand, ACollectorWithAllItsValuesIsArchived)
{
  const json collector = Shown({kFile, "--type", "DISP"})["tables"][0]["collector"];
  EXPECT_EQ(collector, (json{{"entities", 12}, {"withValues", 12}, {"upToDate", true}, {"archiver", "streamable"}}));
}

TEST(ResultsCommand, ACollectorWithAHoleIsNotArchivedAndItsExtremesPassOverTheHole)
{
  const json table = Shown({FileWithAHole(), "--type", "NT"})["tables"][0];
  EXPECT_EQ(table["collector"], (json{{"entities", 4}, {"withValues", 3}, {"upToDate", true}, {"archiver", "none"}}));
  EXPECT_EQ(table["groups"][0]["extremes"][0]["minimum"]["node"], 3);
  EXPECT_EQ(table["groups"][0]["values"][0], (json{1, nullptr}));
}

TEST(ResultsCommand, WhatWasCollectedIsDeletedOneByOneOrAtOnce)
{
  EXPECT_EQ(Shown({kFile, "--type", "DISP", "--version", "all", "--delete"})["deleted"],
            (json{{"operation", "DeleteCharacCollector"}, {"deleted", 2}, {"left", 0}}));
  EXPECT_EQ(Asked("results", {kFile, "--delete"}, 0)["deleted"],
            (json{{"operation", "DeleteAll"}, {"deleted", 8}, {"left", 0}}));
}

TEST(ResultsCommand, ADeletionLeavesTheFileAsItIs)
{
  const std::string before = voxtest::ReadText(kFile);
  RunInProcess({"results", kFile, "--delete"});
  EXPECT_EQ(voxtest::ReadText(kFile), before);
}

TEST(ResultsCommand, AnUnknownTypeIsAFailureThatNamesThoseThatExist)
{
  const auto run = RunInProcess({"results", kFile, "--type", "NDTEMP"});
  EXPECT_EQ(run.code, 1);
  EXPECT_THAT(run.errors, HasSubstr("has no values of type NDTEMP: it has DISP, STRESS, FORC, ERROR"));
}

TEST(ResultsCommand, AnUnknownPositionOrGroupIsAFailure)
{
  EXPECT_EQ(RunInProcess({"results", kFile, "--type", "U", "--position", "CENTER"}).code, 1);
  const auto run = RunInProcess({"results", kFile, "--type", "U", "--group", "NOWHERE"});
  EXPECT_EQ(run.code, 1);
  EXPECT_THAT(run.errors, HasSubstr("has no group named NOWHERE"));
}

TEST(ResultsCommand, AGroupWhoseNodesTheFileDoesNotHaveTellsOfAnotherDeck)
{
  const std::string deck = voxtest::TemporaryFile(
      "other.inp",
      "*NODE, NSET=PARTLY\n1, 0., 0., 0.\n2, 1., 0., 0.\n901, 0., 0., 0.\n*NODE, NSET=NOWHERE\n902, 0., 0., "
      "0.\n*ELEMENT, TYPE=MASS, ELSET=LUMP\n903, 1\n*NSET, NSET=HERE\n1\n");
  const auto shown = [&deck](const std::string& iGroup) {
    return RunInProcess({"results", kFile, "--deck", deck, "--type", "U", "--group", iGroup});
  };
  const std::string reason = " are not in " + kFile + ": " + deck + " may not be the deck that was solved";

  const auto nowhere = shown("NOWHERE");
  EXPECT_EQ(nowhere.code, 1);
  EXPECT_EQ(nowhere.errors,
            "voxbench results: 1 of 1 nodes of group NOWHERE" + reason + ", or no solid has these nodes\n");
  const auto partly = shown("PARTLY");
  EXPECT_EQ(partly.code, 0);
  EXPECT_THAT(partly.errors, HasSubstr("1 of 3 nodes of group PARTLY" + reason));
  EXPECT_THAT(shown("LUMP").errors, HasSubstr("1 of 1 elements of group LUMP" + reason + "\n"));
  EXPECT_EQ(shown("HERE").errors, "");
}

TEST(ResultsCommand, WithoutADeckThereAreNoGroups)
{
  EXPECT_EQ(Listing(ComplexFile())["deck"], nullptr);
  const auto run = RunInProcess({"results", ComplexFile(), "--type", "U", "--group", "TIP"});
  EXPECT_EQ(run.code, 1);
  EXPECT_THAT(run.errors, HasSubstr("give it with --deck"));
}

TEST(ResultsCommand, ADeckMayBeNamed)
{
  const json listing = Asked("results", {ComplexFile(), "--deck", voxtest::DataFile("block.inp")}, 0);
  EXPECT_THAT(listing["groups"], testing::Contains("TIP"));
}

TEST(ResultsCommand, TheDeckBesideACompressedFileIsFound)
{
  const voxbench::InpBench files;
  const std::string file = files.WritePacked("job.frd.gz", frdtext::SmallFile()).string();
  const std::string deck = files.Write("job.inp", "*NODE, NSET=N\n1, 0., 0., 0.\n").string();
  EXPECT_EQ(Listing(file)["deck"], deck);
}

TEST(ResultsCommand, ADeckThatCannotBeReadCostsTheGroupsAlone)
{
  const std::string file = voxtest::TemporaryFile("lonely.frd", frdtext::SmallFile());
  voxtest::TemporaryFile("lonely.inp", "");
  const auto beside = RunInProcess({"results", file});
  EXPECT_EQ(beside.code, 0);
  EXPECT_THAT(beside.errors, HasSubstr("no groups: "));
  EXPECT_EQ(RunInProcess({"results", file, "--deck", "/no/such/deck.inp"}).code, 3);
}

TEST(ResultsCommand, AFileThatIsNoResultFileIsUnreadable)
{
  const auto run = RunInProcess({"results", voxtest::DataFile("block.inp")});
  EXPECT_EQ(run.code, 3);
  EXPECT_THAT(run.errors, HasSubstr("this is no result file"));
}

TEST(ResultsCommand, OptionsThatMakeNoSenseAreWrongUsage)
{
  EXPECT_EQ(RunInProcess({"results", kFile, "--version", "2"}).code, 2);
  EXPECT_EQ(RunInProcess({"results", kFile, "--type", "U", "--version", "x"}).code, 2);
  EXPECT_EQ(RunInProcess({"results", kFile, "--csv", "--json"}).code, 2);
}

TEST(ResultsCommand, AQuantityThatStandsTwiceInAStateCountsOnce)
{
  using namespace frdtext;
  const std::string head = ResultsHead(1, " 1.000000000", 4, 0);
  const std::string file = voxtest::TemporaryFile("twice.frd", Mesh() + Block("DISP", {"D1"}, head) +
                                                                   Block("DISP", {"D1", "D2"}, head) + kFileEnd);
  const json type = Listing(file)["types"][0];
  EXPECT_THAT(VersionsOf(type), ElementsAre("1"));
  EXPECT_EQ(type["components"], json{"D1"});
}

TEST(ResultsCommand, ANodeWithoutAPlaceIsNoEntityOfTheCollector)
{
  using namespace frdtext;
  const std::string file =
      voxtest::TemporaryFile("stray.frd", Mesh() + ResultsHead(1, " 1.000000000", 2, 0) + Names("NDTEMP", {"T"}) +
                                              Row(9, {5.}) + Row(2, {7.}) + kBlockEnd + kFileEnd);
  const json table = Shown({file, "--type", "NT"})["tables"][0];
  EXPECT_EQ(table["collector"]["entities"], 1);
  EXPECT_EQ(table["groups"][0]["values"], json::parse("[[2, 7]]"));
}

TEST(ResultsCommand, NodesInAnyOrderAreShownAscending)
{
  using namespace frdtext;
  const std::string file =
      voxtest::TemporaryFile("order.frd", Mesh() + ResultsHead(1, " 1.000000000", 3, 0) + Names("NDTEMP", {"T"}) +
                                              Row(4, {5.}) + Row(1, {7.}) + Row(2, {6.}) + kBlockEnd + kFileEnd);
  EXPECT_EQ(Shown({file, "--type", "NT"})["tables"][0]["groups"][0]["values"], json::parse("[[1, 7], [2, 6], [4, 5]]"));
}

TEST(ResultsCommand, SidesOfShellsAreAGroupThatFails)
{
  using namespace frdtext;
  const std::string mesh = kHead + NodesHead(3) + Row(1, {0, 0, 0}) + Row(2, {1, 0, 0}) + Row(3, {0, 1, 0}) +
                           kBlockEnd + ElementsHead(1) +
                           " -1         1    7    0    1\n -2         1         2         3\n" + kBlockEnd;
  const std::string file =
      voxtest::TemporaryFile("shell.frd", mesh + ResultsHead(1, " 1.000000000", 3, 0) + Names("NDTEMP", {"T"}) +
                                              Row(1, {5.}) + Row(2, {7.}) + Row(3, {6.}) + kBlockEnd + kFileEnd);
  voxtest::TemporaryFile("shell.inp", "*NODE\n1, 0., 0.\n2, 1., 0.\n3, 0., 1.\n*ELEMENT, TYPE=S3, ELSET=E\n1, 1, 2, 3\n"
                                      "*SURFACE, NAME=TOP\nE, SPOS\n*SURFACE, NAME=RIM\nE, S3\n");
  const json groups = Shown({file, "--type", "NT", "--group", "*"}, 1)["tables"][0]["groups"];
  ASSERT_EQ(groups.size(), 3u);
  EXPECT_EQ(groups[0]["values"].size(), 3u);
  for (const int side : {1, 2})
    EXPECT_THAT(groups[side]["failure"].get<std::string>(), HasSubstr("ask for a group of nodes or elements"));
}

// Kept: the reference that a new archiver is born with is never given back.
TEST(ResultsCommand, TheHostGetsBackAllButTheArchivers)
{
  const auto before = voxhost::Ledger::Read();
  RunInProcess({"results", kFile, "--type", "DISP", "--version", "all"});
  const auto left = voxhost::Ledger::Read() - before;
  EXPECT_EQ(left.collectors, 0);
  EXPECT_EQ(left.components, 0);
  EXPECT_EQ(left.userLists, 0);
  EXPECT_EQ(left.archivers, 2);
}

TEST(ResultsCommand, ACollectorThatCannotBeFilledIsATableWithItsReason)
{
  voxhost::Faults::FailOperation("VOXAnalysisCharacCollector::SetValues", 1, false);
  const json table = Shown({kFile, "--type", "DISP"}, 1)["tables"][0];
  voxhost::Faults::Disarm();
  EXPECT_THAT(table["failure"].get<std::string>(), HasSubstr("GetCharacCollector failed"));
}

TEST(ResultsCommand, ADeletionThatFailsIsTold)
{
  voxhost::Faults::FailOperation("VOXAnalysisExplicitParent::DeleteCharacCollector", 1, false);
  const auto run = RunInProcess({"results", kFile, "--type", "DISP", "--delete"});
  voxhost::Faults::Disarm();
  EXPECT_EQ(run.code, 1);
  EXPECT_THAT(run.errors, HasSubstr("DeleteCharacCollector failed: error 1"));
  EXPECT_THAT(run.out, HasSubstr("0 collectors deleted, 1 left"));
}
