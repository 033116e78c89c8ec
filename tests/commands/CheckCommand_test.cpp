// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "voxbench/check/Check.h"
#include "voxbench/readers/inp/InpReader.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::HasSubstr;
using testing::IsSupersetOf;
using voxbench::LoadedModel;
using voxhost::Feature;

namespace
{

const std::string kMesh =
    "*NODE, NSET=NALL\n1, 0., 0., 0.\n2, 1., 0., 0.\n3, 0., 1., 0.\n4, 0., 0., 1.\n5, 1., 1., 1.\n"
    "*ELEMENT, TYPE=C3D4, ELSET=E1\n1, 1, 2, 3, 4\n*ELEMENT, TYPE=C3D4, ELSET=E2\n2, 2, 3, 4, 5\n"
    "*MATERIAL, NAME=M\n";
const std::string kSections = "*SOLID SECTION, ELSET=E1, MATERIAL=M\n*SOLID SECTION, ELSET=E2, MATERIAL=M\n";
const std::string kUse = "*NODE PRINT, NSET=NALL\nU\n";

//! Findings of a deck: "rule: path: what was found".
std::vector<std::string> FindingsOf(const std::string& iDeck)
{
  const auto run = voxtest::RunInProcess({"check", voxtest::TemporaryFile("checked.inp", iDeck), "--json"});
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("check"), output), std::vector<std::string>{});
  EXPECT_EQ(run.code, output["findings"].empty() ? 0 : 1);
  std::vector<std::string> findings;
  for (const json& finding : output["findings"])
    findings.push_back(finding["rule"].get<std::string>() + ": " + finding["feature"].get<std::string>() + ": " +
                       finding["found"].get<std::string>());
  return findings;
}

using Findings = std::vector<std::string>;

} // namespace

TEST(CheckCommand, ASoundModelHasNoFindings)
{
  EXPECT_EQ(FindingsOf(kMesh + kSections + kUse), Findings{});
}

TEST(CheckCommand, TextIsThatOfTheGoldenFiles)
{
  const auto run = voxtest::RunBuiltProgram({"check", voxtest::DataFile("plate_on_block.inp")});
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(voxtest::DifferenceToGolden("plate_on_block.check.txt", run.out), "");
  const auto list = voxtest::RunBuiltProgram({"check", "--list"});
  EXPECT_EQ(list.code, 0);
  EXPECT_EQ(voxtest::DifferenceToGolden("check.rules.txt", list.out), "");
}

TEST(CheckCommand, AnElementWithoutAPropertyIsFound)
{
  EXPECT_EQ(FindingsOf(kMesh + "*SOLID SECTION, ELSET=E1, MATERIAL=M\n" + kUse + "*EL PRINT, ELSET=E2\nS\n"),
            Findings{"element-without-property: Analysis model/Mesh set/Mesh: 1 element: 2"});
}

TEST(CheckCommand, AnElementWithTwoPropertiesIsFound)
{
  EXPECT_EQ(FindingsOf(kMesh + kSections + kUse + "*SOLID SECTION, ELSET=E2, MATERIAL=M\n"),
            Findings{"element-with-two-properties: Analysis model/Mesh set/Mesh: 1 element: 2"});
}

TEST(CheckCommand, ANodeThatNothingUsesIsFound)
{
  EXPECT_EQ(FindingsOf(kMesh + "*NODE\n9, 5., 5., 5.\n" + kSections + kUse),
            Findings{"node-unused: Analysis model/Mesh set/Mesh: 1 node: 9"});
}

TEST(CheckCommand, ANodeOfAConstraintAConnectionOrAFluidIsUsed)
{
  const std::string nodes = "*NODE\n7, 5., 5., 5.\n8, 5., 5., 5.\n9, 5., 5., 5.\n10, 5., 5., 5.\n11, 5., 5., 5.\n";
  EXPECT_EQ(
      FindingsOf(kMesh + nodes + kSections + kUse +
                 "*EQUATION\n2\n1, 1, 1., 7, 1, -1.\n*MPC\nPLANE, 1, 2, 8\n*RIGID BODY, NSET=NALL, REF NODE=9, ROT "
                 "NODE=10\n*FILM\n1, F1FC, 11, 5.\n"),
      Findings{});
}

TEST(CheckCommand, AGroupThatNothingUsesIsFound)
{
  EXPECT_EQ(FindingsOf(kMesh + kSections), Findings{"group-unused: Analysis model/Groups/NALL: nothing uses it"});
}

TEST(CheckCommand, AGroupIsUsedByWhateverNamesIt)
{
  const std::string sets = "*NSET, NSET=A\n1\n*NSET, NSET=B\nA\n*ELSET, ELSET=F\n1\n*SURFACE, NAME=S\nF, S1\n";
  EXPECT_EQ(FindingsOf(kMesh + kSections + kUse + sets +
                       "*INITIAL CONDITIONS, TYPE=TEMPERATURE\nB, 20.\n*DSLOAD\nS, P, 1.\n"),
            Findings{});
}

TEST(CheckCommand, ALoadOnAGroupThatIsNotDefinedIsFound)
{
  EXPECT_EQ(FindingsOf(kMesh + kSections + kUse + "*CLOAD\nNOWHERE, 1, 5.\n"),
            Findings{"name-missing: Analysis model/Loads/CLOAD 1 on NOWHERE: NOWHERE is not defined"});
}

TEST(CheckCommand, ARestraintOnAnEmptyGroupIsFound)
{
  EXPECT_EQ(FindingsOf(kMesh + kSections + kUse + "*NSET, NSET=EMPTY\n*BOUNDARY\nEMPTY, 1\n"),
            Findings{"group-empty: Analysis model/Restraints/BOUNDARY 1 on EMPTY: EMPTY has no members"});
}

TEST(CheckCommand, ALoadOnNothingIsFoundUnlessItTakesOthersAway)
{
  EXPECT_EQ(FindingsOf(kMesh + kSections + kUse + "*CLOAD\n77, 1, 5.\n"),
            Findings{"target-none: Analysis model/Loads/CLOAD 1 on node 77: it applies to nothing"});
  EXPECT_EQ(FindingsOf(kMesh + kSections + kUse + "*STEP\n*STATIC\n*CLOAD, OP=NEW\n*END STEP\n"), Findings{});
}

TEST(CheckCommand, ALoadOnAMeshThatStandsElsewhereIsNoFinding)
{
  EXPECT_EQ(FindingsOf("*RESTART, READ, STEP=1\n*STEP\n*STATIC\n*CLOAD\n7, 1, 5.\n*END STEP\n"), Findings{});
}

TEST(CheckCommand, AMaterialThatNothingUsesAndOneThatIsMissingAreFound)
{
  EXPECT_EQ(FindingsOf(kMesh + kUse +
                       "*MATERIAL, NAME=IDLE\n*SOLID SECTION, ELSET=E1, MATERIAL=M\n"
                       "*SOLID SECTION, ELSET=E2, MATERIAL=GONE\n"),
            (Findings{"material-missing: Analysis model/Properties/Solid section on E2 of GONE: it has no material",
                      "material-unused: Analysis model/Materials/IDLE: no property uses it"}));
}

TEST(CheckCommand, AConnectionWithASideOnNothingIsFound)
{
  EXPECT_EQ(FindingsOf(kMesh + kSections + kUse + "*SURFACE, NAME=A, TYPE=NODE\nNALL\n*TIE, NAME=T\nA, GONE\n"),
            (Findings{"name-missing: Analysis model/Connections/Tie T/GONE: GONE is not defined",
                      "connection-incomplete: Analysis model/Connections/Tie T: side 2 stands on nothing"}));
}

namespace
{

//! A deck that is opened, put into disorder, and checked.
class DisorderedModel : public testing::Test
{
protected:
  void SetUp() override
  {
    voxbench::NeutralModel records;
    ASSERT_TRUE(voxbench::ReadInp(voxtest::DataFile("joined.inp"), {}, records).ok);
    ASSERT_EQ(model.Build(std::move(records)), "");
  }

  Feature& SetOf(const char* iType) const
  {
    for (Feature* const set : LoadedModel::ChildrenOf(model.Root()))
      if (set->Type().IsSubTypeOf(iType))
        return *set;
    return model.Root();
  }

  std::vector<std::string> RulesFound()
  {
    std::vector<std::string> rules;
    for (const voxbench::Finding& finding : voxbench::Check(model).findings)
      rules.push_back(voxbench::CheckRules()[static_cast<std::size_t>(finding.rule)].id);
    return rules;
  }

  LoadedModel model;
};

} // namespace

TEST_F(DisorderedModel, AnEntityInASetThatMayNotHoldItIsFound)
{
  Feature& property = *model.MembersOf("PropertySet").front();
  SetOf("LoadSet").Add("SonsList", property);
  EXPECT_THAT(RulesFound(), IsSupersetOf({"set-not-allowed", "set-of-wrong-type"}));
}

TEST_F(DisorderedModel, ASetUnderAParentThatMayNotHoldItIsFound)
{
  SetOf("LoadSet").Add("SonsList", SetOf("MassSet"));
  EXPECT_THAT(RulesFound(), testing::Contains("parent-not-allowed"));
}

TEST_F(DisorderedModel, ASensorOutsideOfItsSetIsFound)
{
  Feature* const sensor = model.Document().New("DeckSensor", "stray");
  SetOf("LoadSet").Add("SonsList", *sensor);
  EXPECT_THAT(RulesFound(), IsSupersetOf({"sensor-elsewhere", "set-of-wrong-type"}));
}

TEST_F(DisorderedModel, ASubscriptionInAMeshSetIsFound)
{
  Feature* const load = model.Document().New("DeckLoad", "stray");
  SetOf("MSHSetContainer").Add("SonsList", *load);
  load->SetSubscribed(true);
  EXPECT_THAT(RulesFound(), testing::Contains("subscription-needless"));
}

TEST_F(DisorderedModel, EverySetTellsItsQuality)
{
  std::map<std::string, std::string> qualities;
  for (const auto& set : voxbench::Check(model).sets)
    qualities[set.name] = set.quality;
  EXPECT_EQ(qualities["Loads"], "input");
  EXPECT_EQ(qualities["Groups"], "group");
  EXPECT_EQ(qualities["Connections"], "");
}

TEST(CheckCommand, TheListHasEveryRuleWithASentence)
{
  const auto run = voxtest::RunInProcess({"check", "--list", "--json"});
  EXPECT_EQ(run.code, 0);
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("check-list"), output), std::vector<std::string>{});
  EXPECT_EQ(output["rules"].size(), voxbench::CheckRules().size());
}

TEST(CheckCommand, WithoutAFileItIsAWrongUse)
{
  const auto run = voxtest::RunInProcess({"check"});
  EXPECT_EQ(run.code, 2);
  EXPECT_THAT(run.errors, HasSubstr("FILE"));
}
