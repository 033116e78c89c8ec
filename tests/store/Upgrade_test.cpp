// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXISamUpgradeContainer.h"
#include "UpgradedDocument.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"
#include "voxbench/upgrade/Upgrade.h"

#include <fstream>

using nlohmann::json;
using testing::HasSubstr;
using voxbench::Decision;
using voxbench::LoadedModel;
using voxhost::Feature;

namespace
{

class UpgradeCommand : public voxtest::UpgradedDocument
{
protected:
  //! Opens the document, lets a test change it, and keeps it.
  template <class Change>
  void ChangeDocument(Change iChange)
  {
    LoadedModel model;
    ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
    iChange(model);
    ASSERT_EQ(voxbench::WriteDocumentFile(file, model, true, {}), "");
    original = voxtest::ReadText(file);
  }

  //! Decisions of a kind: "path: what".
  static std::vector<std::string> OfKind(const json& iOutput, const char* iKind)
  {
    std::vector<std::string> found;
    for (const json& decision : iOutput["decisions"])
      if (decision["decision"] == iKind)
        found.push_back(decision["feature"].get<std::string>() + ": " + decision["what"].get<std::string>());
    return found;
  }
};

using Lines = std::vector<std::string>;

TEST_F(UpgradeCommand, PlansAndChangesNothing)
{
  const auto run = RunUpgrade();
  EXPECT_EQ(run.code, 1);
  EXPECT_EQ(run.errors, "");
  const std::string folder = std::filesystem::path(file).parent_path().string() + "/";
  std::string text = run.out;
  for (std::size_t place = text.find(folder); place != std::string::npos; place = text.find(folder))
    text.erase(place, folder.size());
  EXPECT_EQ(voxtest::DifferenceToGolden("layered.upgrade.txt", text), "");
  EXPECT_EQ(voxtest::ReadText(file), original);
  EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(UpgradeCommand, DoesWhatItPlans)
{
  for (const int release : {1, 2})
  {
    TakeRelease(release);
    const json plan = UpgradeJson();
    const json done = UpgradeJson({"--write"});
    EXPECT_FALSE(plan["decisions"].empty());
    EXPECT_EQ(done["decisions"], plan["decisions"]) << release;
    EXPECT_EQ(done["counts"], plan["counts"]) << release;
    EXPECT_EQ(plan["backup"], nullptr);
    EXPECT_EQ(done["backup"], file + ".backup-1");
    EXPECT_EQ(done["from"], release);
  }
}

TEST_F(UpgradeCommand, KeepsTheOldDocumentUnderANumberThatIsFree)
{
  std::ofstream(file + ".backup-1") << "mine";
  EXPECT_EQ(RunUpgrade({"--write"}).code, 1); // something was skipped
  EXPECT_EQ(voxtest::ReadText(file + ".backup-1"), "mine");
  EXPECT_EQ(voxtest::ReadText(file + ".backup-2"), original);
  EXPECT_EQ(FilesInFolder(), 3u);
}

TEST_F(UpgradeCommand, FindsNothingMoreToDoAfterwardsAndChangesNoByte)
{
  RunUpgrade({"--write"});
  const std::string upgraded = voxtest::ReadText(file);
  const auto again = RunUpgrade({"--write"});
  EXPECT_EQ(again.code, 0);
  EXPECT_EQ(again.out, file + ": release 3, newest 3. Nothing to do.\n");
  EXPECT_EQ(voxtest::ReadText(file), upgraded);
  EXPECT_EQ(FilesInFolder(), 2u);
}

TEST_F(UpgradeCommand, MakesOfADocumentWhatTheDeckBecomesNow)
{
  const std::string deck = voxtest::DataFile("layered.inp");
  for (const int release : {1, 2, 3})
  {
    TakeRelease(release);
    RunUpgrade({"--write"});
    for (const char* const command : {"tree", "groups", "check", "axes", "params", "connections"})
      EXPECT_EQ(voxtest::RunInProcess({command, file, "--json"}).out,
                voxtest::RunInProcess({command, deck, "--json"}).out)
          << command << " of release " << release;
  }
}

TEST_F(UpgradeCommand, AddsTheComponentsThatTheStartUpsHaveGained)
{
  const json plan = UpgradeJson();
  const std::string loads = "Layered plate/Loads/";
  EXPECT_EQ(OfKind(plan, "add"),
            (Lines{loads + "CLOAD 3 on TIP, step 1: LoadDelay", loads + "DLOAD P on SKIN, step 1: LoadDelay"}));
  RunUpgrade({"--write"});
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  for (const Feature* const load : model.MembersOf("LoadSet"))
    EXPECT_EQ(load->Features("SonsList").size(), 2u);
}

TEST_F(UpgradeCommand, AddsTheValuesThatALayeredComponentLacksOncePerLayer)
{
  RunUpgrade({"--write"});
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  const Feature& plies = *model.MembersOf("PropertySet").at(0)->Features("SonsList").front();
  EXPECT_EQ(plies.Integer("ValuesDim"), 2);
  Lines values;
  for (const Feature* const value : plies.Features("Values"))
    values.emplace_back(value->Type().Name());
  EXPECT_EQ(values, (Lines{"PlyThickness", "PlyAngle", "PlyThickness", "PlyAngle", "PlyThickness", "PlyAngle"}));
  EXPECT_EQ(plies.Features("Values")[2]->Real("Value"), 1.);
}

TEST_F(UpgradeCommand, PutsAnInstanceOfTheNewStartUpInThePlaceOfTheOld)
{
  LoadedModel before;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, before, {}), "");
  RunUpgrade({"--write"});
  LoadedModel after;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, after, {}), "");
  const auto old = before.MembersOf("RestraintSet");
  const auto made = after.MembersOf("RestraintSet");
  ASSERT_EQ(made.size(), old.size());
  for (std::size_t place = 0; place < made.size(); ++place)
  {
    EXPECT_EQ(made[place]->Type().Name(), "DeckRestraint");
    EXPECT_EQ(LoadedModel::DisplayName(*made[place]), LoadedModel::DisplayName(*old[place]));
    EXPECT_TRUE(made[place]->Name() == old[place]->Name());
    EXPECT_EQ(made[place]->ExplicitTags(), old[place]->ExplicitTags());
    EXPECT_EQ(after.EntitiesOf(*made[place]), before.EntitiesOf(*old[place]));
    EXPECT_FALSE(made[place]->IsOutOfDate());
  }
  EXPECT_EQ(after.Document().NumberOfFeatures(), before.Document().NumberOfFeatures() + 5); // no orphan is left
}

TEST_F(UpgradeCommand, LetsWhatReferredToTheOldInstanceReferToTheNewOne)
{
  ChangeDocument([](LoadedModel& ioModel)
                 { ioModel.MembersOf("SensorSet").at(0)->Add("Supports", *ioModel.MembersOf("RestraintSet").at(1)); });
  RunUpgrade({"--write"});
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  EXPECT_EQ(model.MembersOf("SensorSet").at(0)->Features("Supports").back(), model.MembersOf("RestraintSet").at(1));
}

TEST_F(UpgradeCommand, CarriesOverWhatIsNoAttribute)
{
  ChangeDocument(
      [](LoadedModel& ioModel)
      {
        Feature& restraint = *ioModel.MembersOf("RestraintSet").at(0);
        restraint.SetActive(false);
        restraint.SetSubscribed(true);
        restraint.SetExplicitState(7);
        restraint.SetIdentifyingString(std::string("held"));
        restraint.SetPhysicalType("OTHER_RESTRAINT");
        ioModel.Document().ShownViews().Show(&restraint, voxhost::Views::kIn3D);
      });
  RunUpgrade({"--write"});
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  const Feature& restraint = *model.MembersOf("RestraintSet").at(0);
  EXPECT_FALSE(restraint.IsActive());
  EXPECT_TRUE(restraint.IsSubscribed());
  EXPECT_EQ(restraint.ExplicitState(), 7);
  EXPECT_TRUE(restraint.IdentifyingString() == "held");
  EXPECT_EQ(restraint.PhysicalType(), "OTHER_RESTRAINT");
  EXPECT_TRUE(model.Document().ShownViews().IsShown(&restraint, voxhost::Views::kIn3D));
}

TEST_F(UpgradeCommand, NamesEveryValueThatHasNoPlaceInTheNewInstance)
{
  const json plan = UpgradeJson();
  std::map<std::string, std::string> reasons;
  for (const json& decision : plan["decisions"])
    if (decision["decision"] == "skip" && decision["feature"] == "Layered plate/Restraints/BOUNDARY 1-6 on EDGE")
      reasons[decision["what"]] = decision["reason"];
  EXPECT_EQ(reasons, (std::map<std::string, std::string>{
                         {"Card", "DeckRestraint has no such attribute"},
                         {"Step", "in DeckRestraint it is of another type"},
                         {"Penalty", "it was inherited, and DeckRestraint gives another value"}}));
}

TEST_F(UpgradeCommand, CarriesALocalValueOverThatDiffersFromBothStartUps)
{
  ChangeDocument([](LoadedModel& ioModel) { ioModel.MembersOf("RestraintSet").at(0)->Set("Penalty", 1e6); });
  const json plan = UpgradeJson();
  EXPECT_THAT(OfKind(plan, "skip"),
              testing::Not(testing::Contains("Layered plate/Restraints/BOUNDARY 1-6 on EDGE: Penalty")));
  RunUpgrade({"--write"});
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  EXPECT_EQ(model.MembersOf("RestraintSet").at(0)->Real("Penalty"), 1e6);
}

TEST_F(UpgradeCommand, LeavesEverythingUpToDateThatWasSoBefore)
{
  RunUpgrade({"--write"});
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  for (const Feature* const feature : model.Document().AllFeatures())
    EXPECT_FALSE(feature->IsOutOfDate()) << LoadedModel::PathOf(*feature);
}

TEST_F(UpgradeCommand, CountsTheKindsOfALayeredComponentAnew)
{
  TakeRelease(3);
  ChangeDocument(
      [](LoadedModel& ioModel)
      {
        Feature& plies = *ioModel.MembersOf("PropertySet").at(0)->Features("SonsList").front();
        plies.Set("ValuesDim", std::int32_t{1});
      });
  EXPECT_EQ(OfKind(UpgradeJson(), "layers"), Lines{"Layered plate/Properties/Shell section on SKIN/Plies: ValuesDim"});
  EXPECT_EQ(RunUpgrade({"--write"}).code, 0);
  EXPECT_EQ(RunUpgrade().code, 0);
}

TEST_F(UpgradeCommand, NamesWhatStaysStuckAndLeavesTheFileAlone)
{
  TakeRelease(3);
  ChangeDocument(
      [](LoadedModel& ioModel)
      {
        const Feature& plies = *ioModel.MembersOf("PropertySet").at(0)->Features("SonsList").front();
        ioModel.Document().Remove(*plies.Features("Values").back());
      });
  for (const Lines& options : {Lines{}, Lines{"--write"}})
  {
    const auto run = RunUpgrade(options);
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.out, HasSubstr("its values do not fit: there are 5, for 3 layers of 2 kinds"));
    EXPECT_THAT(run.out, HasSubstr("Nothing can be done: 1 stuck."));
    EXPECT_EQ(voxtest::ReadText(file), original);
    EXPECT_EQ(FilesInFolder(), 1u);
  }
}

TEST_F(UpgradeCommand, FindsStuckWhatCouldNotBeInstantiated)
{
  voxhost::Faults::FailOperation("VOXISpecObject::Instantiate", 1, true);
  const json plan = UpgradeJson({"--write"});
  voxhost::Faults::Disarm();
  EXPECT_EQ(plan["counts"]["stuck"], 5); // two restraints, two loads, one layered component
  EXPECT_EQ(OfKind(plan, "reroute"), Lines{});
  EXPECT_EQ(OfKind(plan, "add"), Lines{});
}

TEST_F(UpgradeCommand, GoesOnWithTheOthersWhenOneCannotBeInstantiated)
{
  voxhost::Faults::FailOperation("VOXISpecObject::Instantiate", 1, false);
  const json plan = UpgradeJson();
  voxhost::Faults::Disarm();
  EXPECT_EQ(plan["counts"]["stuck"], 1);
  EXPECT_EQ(plan["counts"]["reroute"], 1);
  EXPECT_EQ(plan["counts"]["add"], 2);
}

TEST_F(UpgradeCommand, HasNothingToDoForADocumentOfTheNewestRelease)
{
  TakeRelease(3);
  const auto run = RunUpgrade({"--write"});
  EXPECT_EQ(run.code, 0);
  EXPECT_EQ(voxtest::ReadText(file), original);
  EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(UpgradeCommand, IsDoneWhenNothingWasSkipped)
{
  TakeRelease(2);
  ChangeDocument(
      [](LoadedModel& ioModel)
      {
        for (Feature* const restraint : ioModel.MembersOf("RestraintSet"))
          ioModel.Document().Remove(*restraint);
      });
  EXPECT_EQ(RunUpgrade().code, 1);
  const auto run = RunUpgrade({"--write"});
  EXPECT_EQ(run.code, 0);
  EXPECT_THAT(run.out, HasSubstr("Done: 1 layered. The old document is " + file + ".backup-1."));
}

TEST_F(UpgradeCommand, IsOfferedByTheContainerOfTheFeaturesToo)
{
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  const VOXISamUpgradeContainer_var spUpgrade(&model.Document().MainContainer());
  ASSERT_FALSE(!spUpgrade);
  EXPECT_TRUE(spUpgrade->NeedToUpgraded(2, 0));
  EXPECT_FALSE(spUpgrade->NeedToUpgraded(voxbench::kNewestRelease, 0));
  EXPECT_EQ(spUpgrade->UpgradeObject(&model.Root()), S_FALSE);
  EXPECT_EQ(spUpgrade->UpgradeObject(nullptr), E_FAIL);
  EXPECT_EQ(spUpgrade->UpgradeContainer(), S_OK);
  for (const Feature* const restraint : model.MembersOf("RestraintSet"))
    EXPECT_EQ(restraint->Type().Name(), "DeckRestraint");
}

TEST_F(UpgradeCommand, FailsForAContainerOfWhichSomethingCannotBeReplaced)
{
  LoadedModel model;
  ASSERT_EQ(voxbench::ReadDocumentFile(file, model, {}), "");
  const VOXISamUpgradeContainer_var spUpgrade(&model.Document().MainContainer());
  voxhost::Faults::FailOperation("VOXISpecObject::Instantiate", 1, false);
  EXPECT_EQ(spUpgrade->UpgradeContainer(), E_FAIL);
  voxhost::Faults::Disarm();
  EXPECT_EQ(model.MembersOf("RestraintSet")[0]->Type().Name(), "DeckBoundary");
  EXPECT_EQ(model.MembersOf("RestraintSet")[1]->Type().Name(), "DeckRestraint");
}

TEST_F(UpgradeCommand, RefusesADeck)
{
  const auto run = voxtest::RunInProcess({"upgrade", voxtest::DataFile("layered.inp")});
  EXPECT_EQ(run.code, 3);
  EXPECT_THAT(run.errors, HasSubstr("is a deck, no document"));
}

TEST_F(UpgradeCommand, GivesBackAllThatItTook)
{
  voxhost::Ledger::TurnOn();
  const auto before = voxhost::Ledger::Read();
  RunUpgrade();
  EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced");
  voxhost::Ledger::TurnOff();
}

} // namespace
