// SPDX-License-Identifier: MIT
// What a deck becomes: features on one side, objects of the explicit model on the other.
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "AnalysisInterfaces/VOXISamGroup.h"
#include "RunProgram.h"
#include "host/AnalysisCore/ErrorLog.h"
#include "voxbench/build/LoadedModel.h"
#include "voxbench/commands/GroupContent.h"
#include "voxbench/readers/inp/InpReader.h"

#include <cstdlib>
#include <gmock/gmock.h>

using voxbench::LoadedModel;
using voxhost::Feature;

namespace
{

class OpenedDeck : public testing::Test
{
protected:
  void SetUp() override
  {
    voxbench::NeutralModel records;
    ASSERT_TRUE(voxbench::ReadInp(voxtest::DataFile("plate_on_block.inp"), {}, records).ok);
    ASSERT_EQ(model.Build(std::move(records)), "");
  }

  Feature* GroupNamed(const std::string& iName, int iPlace = 0) const
  {
    for (Feature* const group : model.Groups())
      if (LoadedModel::DisplayName(*group) == iName && iPlace-- == 0)
        return group;
    return nullptr;
  }

  Feature* SetOf(const char* iType) const
  {
    for (Feature* const set : LoadedModel::ChildrenOf(model.Root()))
      if (set->Type().IsSubTypeOf(iType))
        return set;
    return nullptr;
  }

  //! Physical type of an object in words.
  std::string TypeOf(const VOXAnalysisExplicitChild& iObject) const
  {
    int type = 0;
    iObject.GetPhysicalType(type);
    return model.Explicit().Rules()->NameOf(type);
  }

  LoadedModel model;
};

VOXAnalysisExplicitEntity ObjectOf(Feature& iFeature)
{
  VOXAnalysisExplicitEntity object;
  const VOXISamExplicit_var spExplicit(&iFeature);
  EXPECT_FALSE(!spExplicit);
  EXPECT_TRUE(SUCCEEDED(spExplicit->GetExplicitParent(object, 1)));
  return object;
}

TEST_F(OpenedDeck, TheMeshStandsInTheModelAndNoLongerInTheRecords)
{
  EXPECT_EQ(model.Explicit().Mesh().nodeIds.size(), 12u);
  EXPECT_EQ(model.Explicit().Mesh().elementIds.size(), 5u);
  EXPECT_EQ(model.Records().nodes.size(), 0u);
  EXPECT_EQ(model.Records().elements.size(), 0u);
}

TEST_F(OpenedDeck, EveryFeatureIsUpToDate)
{
  std::vector<Feature*> toSee{&model.Root()};
  while (!toSee.empty())
  {
    Feature* const feature = toSee.back();
    toSee.pop_back();
    EXPECT_TRUE(feature->IsUpToDate(VOXIDomain_var())) << LoadedModel::DisplayName(*feature);
    for (Feature* const child : LoadedModel::ChildrenOf(*feature))
      toSee.push_back(child);
  }
}

TEST_F(OpenedDeck, EachObjectIsOfTheTypeThatTheRulesAllowUnderItsParent)
{
  const voxhost::ExplicitRules& rules = *model.Explicit().Rules();
  std::vector<VOXAnalysisExplicitParent> toSee{ObjectOf(model.Root())};
  int seen = 0;
  while (!toSee.empty())
  {
    const VOXAnalysisExplicitParent parent = toSee.back();
    toSee.pop_back();
    int parentType = 0;
    ASSERT_TRUE(SUCCEEDED(parent.GetPhysicalType(parentType)));
    VOXAnalysisExplicitList children;
    ASSERT_TRUE(SUCCEEDED(parent.GetChildrenList(children)));
    for (children.First(); *children != NULL_exp; children.Next())
    {
      int type = 0;
      (*children).GetPhysicalType(type);
      const auto& allowed = rules.Find(parentType)->children;
      const bool isAllowed =
          std::any_of(allowed.begin(), allowed.end(), [type](int iOne) { return std::abs(iOne) == type; });
      EXPECT_TRUE(isAllowed) << rules.NameOf(type) << " under " << rules.NameOf(parentType);
      toSee.emplace_back(*children);
      ++seen;
    }
  }
  EXPECT_GT(seen, 50);
}

TEST_F(OpenedDeck, AGroupHasAnObjectWithOneChildOfItsKind)
{
  VOXAnalysisExplicitEntity object = ObjectOf(*GroupNamed("RIM"));
  EXPECT_EQ(TypeOf(object), "GROUP");
  VOXAnalysisExplicitList children;
  object.GetChildrenList(children);
  ASSERT_EQ(children.GetLength(0), 1);
  EXPECT_EQ(TypeOf(*children.First()), "EDGE_GROUP");
}

TEST_F(OpenedDeck, AGroupsObjectKnowsTheFeatureThatMadeIt)
{
  Feature* const group = GroupNamed("FIX");
  const voxhost::Record* const record = model.Explicit().RecordOf(ObjectOf(*group));
  EXPECT_EQ(record->featureIdentifier, group->Identifier());
  EXPECT_EQ(record->featureKind, 2);
}

TEST_F(OpenedDeck, ASetTypeIsThatOfItsEntities)
{
  for (const auto& [entity, set] : {std::pair{"AnalysisLoad", "LoadSet"},
                                    {"AnalysisRestraint", "RestraintSet"},
                                    {"AnalysisMass", "MassSet"},
                                    {"AnalysisProperty", "PropertySet"},
                                    {"SAMSpecifiedGroup", "GroupSet"},
                                    {"AnalysisModulation", "ModulationSet"},
                                    {"AnalysisSensor", "SensorSet"}})
  {
    ASSERT_NE(SetOf(set), nullptr) << set;
    EXPECT_FALSE(LoadedModel::ChildrenOf(*SetOf(set)).empty()) << set;
    for (Feature* const one : LoadedModel::ChildrenOf(*SetOf(set)))
      EXPECT_TRUE(one->IsSubTypeOf(entity)) << LoadedModel::DisplayName(*one);
  }
}

TEST_F(OpenedDeck, ALoadRefersToTheGroupsThatItNames)
{
  Feature* const cload = LoadedModel::ChildrenOf(*SetOf("LoadSet"))[0];
  EXPECT_EQ(LoadedModel::DisplayName(*cload), "CLOAD on TOP and node 13, step 1");
  const auto supports = cload->Features("Supports");
  ASSERT_EQ(supports.size(), 1u);
  EXPECT_EQ(supports[0], GroupNamed("TOP"));
}

TEST_F(OpenedDeck, ALoadOnASetAndOnOneOfItsNodesAppliesToThatNodeOnce)
{
  EXPECT_EQ(model.EntitiesOf(*LoadedModel::ChildrenOf(*SetOf("LoadSet"))[0]), 6);
}

TEST_F(OpenedDeck, APropertyAppliesToTheElementsOfItsSet)
{
  EXPECT_EQ(model.EntitiesOf(*LoadedModel::ChildrenOf(*SetOf("PropertySet"))[1]), 2);
}

TEST_F(OpenedDeck, ASetHasNoEntitiesOfItsOwn)
{
  EXPECT_EQ(model.EntitiesOf(*SetOf("LoadSet")), std::nullopt);
}

TEST_F(OpenedDeck, AGroupTellsHowTheDeckDefinesIt)
{
  for (const auto& [group, words] : {std::pair{GroupNamed("FIX"), "node set"},
                                     {GroupNamed("TIP"), "element set"},
                                     {GroupNamed("TIP", 1), "element surface"},
                                     {GroupNamed("CORNERS"), "node surface"}})
  {
    const VOXISamGroup_var spGroup(group);
    VOXUnicodeString definition;
    EXPECT_EQ(spGroup->GetDefinitionType(definition), S_OK);
    EXPECT_TRUE(definition == words) << static_cast<const char*>(definition);
  }
}

TEST_F(OpenedDeck, AGroupStandsOnTheMesh)
{
  const VOXISamGroup_var spGroup(GroupNamed("FIX"));
  VOXListValVOXBaseUnknown_var supports;
  EXPECT_EQ(spGroup->GetSupports(supports), S_OK);
  ASSERT_EQ(supports.Size(), 1);
  EXPECT_EQ(model.EntitiesOf(*Feature::Of(supports[1])), 5);
}

TEST_F(OpenedDeck, AGroupServesItsOwnKindOnly)
{
  std::string failure;
  EXPECT_EQ(voxbench::AskServes(*GroupNamed("RIM"), voxbench::kEdgeKind, failure), voxbench::Serves::Yes);
  EXPECT_EQ(voxbench::AskServes(*GroupNamed("RIM"), voxbench::kFaceKind, failure), voxbench::Serves::No);
  EXPECT_EQ(voxbench::AskServes(*GroupNamed("RIM"), voxbench::kNodeKind, failure), voxbench::Serves::No);
}

TEST_F(OpenedDeck, AFeatureThatIsNoGroupFailsToServe)
{
  std::string failure;
  EXPECT_EQ(voxbench::AskServes(model.Root(), voxbench::kNodeKind, failure), voxbench::Serves::Failed);
  EXPECT_THAT(failure, testing::HasSubstr("VOXISamGroup"));
}

TEST_F(OpenedDeck, AnUpToDateGroupHandsOutTheSameCollectorTwice)
{
  const VOXISamGroup_var spGroup(GroupNamed("FIX"));
  const VOXAnalysisEntityCollector* pFirst = nullptr;
  const VOXAnalysisEntityCollector* pSecond = nullptr;
  ASSERT_EQ(spGroup->GetContent(VOXSamValueNode, "NODE", pFirst), S_OK);
  ASSERT_EQ(spGroup->GetContent(VOXSamValueNode, "NODE", pSecond), S_OK);
  EXPECT_EQ(pFirst, pSecond);
  pFirst->Release();
  pSecond->Release();
}

TEST_F(OpenedDeck, AGroupThatIsOutOfDateHasAReasonInsteadOfEntities)
{
  Feature* const group = GroupNamed("FIX");
  group->SetOutOfDate(true);
  const auto content = voxbench::AskContent(*group, voxbench::kNodeKind, true);
  EXPECT_THAT(content.failure, testing::HasSubstr("GetContent failed"));
  EXPECT_TRUE(content.ids.empty());
  voxhost::ErrorLog::Clear();
}

} // namespace
