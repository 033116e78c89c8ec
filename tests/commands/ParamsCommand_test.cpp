// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::HasSubstr;

namespace
{

const std::string kDeck = voxtest::DataFile("joined.inp");
const std::string kShells = "Shell section on SKIN";

json Params(std::vector<std::string> iArguments, int iCode = 0)
{
  iArguments.insert(iArguments.begin(), {"params", kDeck});
  iArguments.push_back("--json");
  const auto run = voxtest::RunInProcess(iArguments);
  EXPECT_EQ(run.code, iCode) << run.errors;
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("params"), output), std::vector<std::string>{});
  return output["parameters"];
}

json ComponentsOf(const json& iParameter)
{
  json components = json::object();
  for (const json& component : iParameter["components"])
    components[component["name"].get<std::string>()] = component["value"];
  return components;
}

TEST(ParamsCommand, TextIsThatOfTheGoldenFile)
{
  const auto all = voxtest::RunBuiltProgram({"params", kDeck});
  EXPECT_EQ(all.code, 0) << all.errors;
  EXPECT_EQ(voxtest::DifferenceToGolden("joined.params.txt", all.out), "");
  const auto change = voxtest::RunBuiltProgram({"params", kDeck, kShells, "--set", "Shell"});
  EXPECT_EQ(voxtest::DifferenceToGolden("joined.params-set.txt", change.out), "");
}

TEST(ParamsCommand, ASectionIsOneOfTheKindsThatThereAre)
{
  const json kind = Params({"Solid section on LEFT*"})[0];
  EXPECT_EQ(kind["mode"], "list");
  EXPECT_EQ(kind["selected"], "Solid");
  EXPECT_EQ(kind["index"], 1);
  EXPECT_EQ(kind["entries"][1], "Shell");
}

TEST(ParamsCommand, ALayeredShellHasAThicknessPerLayer)
{
  const json components = ComponentsOf(Params({kShells})[0]);
  EXPECT_EQ(components["ShellThickness.1"], 0.1);
  EXPECT_EQ(components["ShellThickness.2"], 0.2);
}

TEST(ParamsCommand, ARestraintTellsWhatItDoes)
{
  const json restraints = Params({"BOUNDARY*"});
  ASSERT_EQ(restraints.size(), 2u);
  EXPECT_EQ(restraints[0]["selected"], "Fixed");
  EXPECT_EQ(restraints[1]["selected"], "Modulated");
  EXPECT_EQ(ComponentsOf(restraints[1])["PrescribedValue"], 0.5);
}

TEST(ParamsCommand, AChangeKeepsRenamesRemovesAndCreates)
{
  const json change = Params({kShells, "--set", "Shell"})[0]["change"];
  EXPECT_EQ(change["from"], "Composite shell");
  EXPECT_EQ(change["to"], "Shell");
  EXPECT_EQ(change["kept"], json({"ShellOffset"}));
  EXPECT_EQ(change["renamed"], json({"ShellThickness.1 to ShellThickness"}));
  EXPECT_EQ(change["removed"], json({"ShellThickness.2"}));
  EXPECT_EQ(Params({kShells, "--set", "Beam"})[0]["change"]["created"], json({"BeamWidth", "BeamHeight"}));
}

TEST(ParamsCommand, AnEntryMayBeGivenInAnyCaseOrByItsIndex)
{
  EXPECT_EQ(Params({kShells, "--set", "mEmBrAnE"})[0]["selected"], "Membrane");
  EXPECT_EQ(Params({kShells, "--set", "5"})[0]["selected"], "Beam");
}

TEST(ParamsCommand, AnEntryThatIsNotThereChangesNothingAndIsTold)
{
  for (const char* const value : {"Plate", "0", "11", "-1", "2x"})
  {
    const json row = Params({kShells, "--set=" + std::string(value)}, 1)[0];
    EXPECT_EQ(row["selected"], "Composite shell");
    EXPECT_FALSE(row.contains("change"));
    EXPECT_THAT(row["failure"], HasSubstr("Membrane"));
  }
}

TEST(ParamsCommand, SelectingTheSelectedEntryAgainKeepsEverything)
{
  const json change = Params({"Solid section on LEFT*", "--set", "Solid"})[0]["change"];
  for (const char* const list : {"kept", "renamed", "removed", "created"})
    EXPECT_EQ(change[list], json::array());
}

TEST(ParamsCommand, SetNeedsAFeature)
{
  const auto run = voxtest::RunInProcess({"params", kDeck, "--set", "Shell"});
  EXPECT_EQ(run.code, 2);
  EXPECT_THAT(run.errors, HasSubstr("FEATURE"));
}

TEST(ParamsCommand, AFeatureThatIsNotThereIsTold)
{
  const auto run = voxtest::RunInProcess({"params", kDeck, "NOWHERE"});
  EXPECT_EQ(run.code, 1);
  EXPECT_THAT(run.errors, HasSubstr("NOWHERE"));
}

TEST(ParamsCommand, BasicComponentsDoNotStandInTheTree)
{
  EXPECT_THAT(voxtest::RunInProcess({"tree", kDeck}).out, testing::Not(HasSubstr("SectionKind")));
}

} // namespace
