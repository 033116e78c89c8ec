// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXISamVisibility.h"
#include "JsonSchema.h"
#include "RunProgram.h"
#include "voxbench/commands/FeatureViews.h"
#include "voxbench/readers/inp/InpReader.h"

#include <gmock/gmock.h>

using nlohmann::json;
using testing::HasSubstr;
using voxbench::LoadedModel;
using voxbench::ViewRow;
using voxbench::ViewState;

namespace
{

const std::string kDeck = voxtest::DataFile("plate_on_block.inp");

json Views(std::vector<std::string> iArguments, int iCode = 0)
{
  const std::string verb = iArguments.front();
  iArguments.insert(iArguments.begin() + 1, kDeck);
  iArguments.push_back("--json");
  const auto run = voxtest::RunInProcess(iArguments);
  EXPECT_EQ(run.code, iCode) << run.errors;
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf(verb), output), std::vector<std::string>{});
  return output["features"];
}

const json kVisible = {{"graph", true}, {"3d", true}, {"noShow", false}};

TEST(ViewCommands, HideGivesTheNoShowStatus)
{
  const json features = Views({"hide", "RIM"});
  ASSERT_EQ(features.size(), 1u);
  EXPECT_EQ(features[0]["feature"], "Plate on a block/Groups/RIM");
  EXPECT_EQ(features[0]["before"], kVisible);
  EXPECT_EQ(features[0]["after"], (json{{"graph", true}, {"3d", true}, {"noShow", true}}));
  EXPECT_EQ(features[0]["showStatusUpdates"], 1);
  EXPECT_EQ(features[0]["redraws"], 0);
}

TEST(ViewCommands, HideFromOneViewAsksForARedrawAndShowsNobody)
{
  const json features = Views({"hide", "RIM", "--3d"});
  EXPECT_EQ(features[0]["after"], (json{{"graph", true}, {"3d", false}, {"noShow", false}}));
  EXPECT_EQ(features[0]["shown"], json::array());
  EXPECT_EQ(features[0]["redraws"], 1);
  EXPECT_EQ(features[0]["showStatusUpdates"], 0);
}

TEST(ViewCommands, ShowOfWhatIsVisibleAsksNothing)
{
  const json features = Views({"show", "RIM", "--graph", "--3d"});
  EXPECT_EQ(features[0]["after"], kVisible);
  EXPECT_EQ(features[0]["redraws"], 0);
  EXPECT_EQ(features[0]["done"], true);
}

TEST(ViewCommands, AllFeaturesOfANameAreMeantAndEachOnce)
{
  EXPECT_EQ(Views({"hide", "TIP", "tip", "*/Groups/TIP"}).size(), 2u);
}

TEST(ViewCommands, APathNamesFeaturesOfOneSet)
{
  const json features = Views({"hide", "*/Loads/*"});
  ASSERT_EQ(features.size(), 2u);
  EXPECT_THAT(features[1]["feature"].get<std::string>(), HasSubstr("/Loads/DLOAD"));
}

TEST(ViewCommands, TheModelItselfHasNoFatherAndStaysInTheViews)
{
  const json features = Views({"hide", "Plate on a block", "--graph"}, 1);
  EXPECT_EQ(features[0]["done"], false);
  EXPECT_EQ(features[0]["after"], kVisible);
  EXPECT_THAT(features[0]["remark"].get<std::string>(), HasSubstr("no father"));
}

TEST(ViewCommands, ANameThatNoFeatureHasIsToldAndTheOthersAreDone)
{
  const auto run = voxtest::RunInProcess({"hide", kDeck, "NOBODY", "RIM"});
  EXPECT_EQ(run.code, 1);
  EXPECT_THAT(run.errors, HasSubstr("has no feature named NOBODY"));
  EXPECT_THAT(run.out, HasSubstr("RIM: graph 3D -> graph 3D, no show"));
}

TEST(ViewCommands, TheDeckIsNotWritten)
{
  const std::string copy = voxtest::TemporaryFile("seen.inp", "*NODE, NSET=N\n1, 0., 0., 0.\n");
  const auto before = std::filesystem::last_write_time(copy);
  EXPECT_EQ(voxtest::RunInProcess({"hide", copy, "N"}).code, 0);
  EXPECT_EQ(std::filesystem::last_write_time(copy), before);
}

//! A deck in which views change several times.
class ChangingViews : public testing::Test
{
protected:
  void SetUp() override
  {
    voxbench::NeutralModel records;
    ASSERT_TRUE(voxbench::ReadInp(kDeck, {}, records).ok);
    ASSERT_EQ(model.Build(std::move(records)), "");
  }

  ViewRow Change(voxhost::Feature& iFeature, std::optional<bool> iGraph, std::optional<bool> i3D)
  {
    return voxbench::ChangeViews(model, iFeature, {iGraph, i3D, std::nullopt});
  }

  ViewRow Hide(voxhost::Feature& iFeature, bool iNoShow)
  {
    return voxbench::ChangeViews(model, iFeature, {std::nullopt, std::nullopt, iNoShow});
  }

  static std::vector<std::string> Shown(const ViewRow& iRow)
  {
    std::vector<std::string> shown;
    for (const voxbench::ShownFather& father : iRow.shown)
      shown.push_back(father.view + ": " + father.father);
    return shown;
  }

  LoadedModel model;
};

TEST_F(ChangingViews, WhatBecomesVisibleIsShownUnderItsSetInTheTreeAndThenIn3D)
{
  voxhost::Feature& group = *model.Groups().front();
  Change(group, false, false);
  const ViewRow row = Change(group, true, true);
  EXPECT_EQ(Shown(row), (std::vector<std::string>{"graph: Plate on a block/Groups", "3D: Plate on a block/Groups"}));
  EXPECT_EQ(row.redraws, 1);
  EXPECT_TRUE(row.done);
  EXPECT_TRUE(model.Document().ShownViews().IsShown(group.Father(), voxhost::Views::kInGraph));
}

TEST_F(ChangingViews, OnlyTheViewThatIsSwitchedOnIsAsked)
{
  voxhost::Feature& load = *model.MembersOf("LoadSet").front();
  Change(load, std::nullopt, false);
  EXPECT_EQ(Shown(Change(load, true, true)), (std::vector<std::string>{"3D: Plate on a block/Loads"}));
}

TEST_F(ChangingViews, AViewThatIsNotMeantStaysAsItIs)
{
  voxhost::Feature& group = *model.Groups().front();
  EXPECT_EQ(Change(group, false, std::nullopt).after, (ViewState{false, true, false}));
  EXPECT_EQ(Change(group, std::nullopt, false).after, (ViewState{false, false, false}));
  EXPECT_EQ(Change(group, true, std::nullopt).after, (ViewState{true, false, false}));
}

TEST_F(ChangingViews, AFeatureThatIsPutOutOfSightStaysSoWhenAViewChanges)
{
  voxhost::Feature& group = *model.Groups().front();
  Hide(group, true);
  const ViewRow row = Change(group, std::nullopt, false);
  EXPECT_EQ(row.before, (ViewState{true, true, true}));
  EXPECT_EQ(row.after, (ViewState{true, false, true}));
  EXPECT_EQ(row.showStatusUpdates, 0);
}

TEST_F(ChangingViews, AFeatureThatWasPutOutOfSightComesBack)
{
  voxhost::Feature& group = *model.Groups().front();
  Hide(group, true);
  const ViewRow row = Hide(group, false);
  EXPECT_EQ(row.after, (ViewState{true, true, false}));
  EXPECT_EQ(row.showStatusUpdates, 1);
  EXPECT_TRUE(row.done);
}

TEST_F(ChangingViews, WhatViewsAreAskedOutsideAChangeIsNotNoted)
{
  voxhost::Feature& group = *model.Groups().front();
  Change(group, false, false);
  const VOXISamVisibility_var spVisibility(static_cast<VOXBaseUnknown*>(&group));
  spVisibility->SetVisibilityProperty(VOXSamVisibleInBoth);
  EXPECT_TRUE(model.Document().ShownViews().Calls().empty());
}

TEST_F(ChangingViews, AFeatureWithoutVisibilityIsNamedAndNotDone)
{
  voxhost::Feature& component = *model.Document().New("SAMRealComponent", "thickness");
  EXPECT_EQ(voxbench::ViewStateOf(component), std::nullopt);
  const ViewRow row = Change(component, true, true);
  EXPECT_FALSE(row.done);
  EXPECT_EQ(row.remark, "the feature has no visibility of its own");
}

TEST_F(ChangingViews, ASetIsShownUnderTheModel)
{
  voxhost::Feature& set = *model.MembersOf("LoadSet").front()->Father();
  Change(set, false, std::nullopt);
  EXPECT_EQ(Shown(Change(set, true, std::nullopt)), (std::vector<std::string>{"graph: Plate on a block"}));
}

} // namespace
