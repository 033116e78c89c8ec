// SPDX-License-Identifier: MIT
// Groups as the host sees them: features of a document, translated into an explicit model, nothing scripted but the
// feature type's own operations.
#include "VOXSamGroupTools.h"
#include "host/Instruments/Faults.h"
#include "tests/adaptors/RealFeatures.h"
#include "tests/adaptors/Reported.h"

#include <optional>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Document;
using voxhost::Feature;
using voxhost::Ledger;

namespace
{

// A document with one group feature, up to date, whose object in the model has a NODE_GROUP of nodes 1 and 3.
class RealWorld
{
public:
  RealWorld() : document(CatalogueWithGroup())
  {
    document.SetExplicitModel(&model);
    const VOXAnalysisExplicitEntity root = model.Create(NULL_exp, "ANALYSIS_MODEL", "model");
    voxhost::MeshData mesh;
    mesh.nodeIds = voxhost::SharedArray<std::int32_t>({1, 2, 3});
    mesh.coordinates = voxhost::SharedArray<double>(std::vector<double>(9, 0.));
    mesh.offsets = voxhost::SharedArray<std::uint32_t>(std::vector<std::uint32_t>{0});
    model.SetMesh(model.Create(root, "MESH", "mesh"), mesh);
    entity = model.Create(root, "GROUP", "group");
    voxhost::ApplyTo applyTo;
    applyTo.position = VOXSamPositionNode;
    applyTo.places = voxhost::SharedArray<std::uint32_t>({0, 2});
    model.SetApplyTo(model.Create(entity, "NODE_GROUP", "nodes"), applyTo);

    group = document.New("GroupUnderTest", "group");
    int tag = 0;
    entity.GetTag(tag);
    group->Set("ExplicitTag", tag);
    document.UpdateAll();
    spGroup = VOXISamGroup_var(Face(group));
  }

  ~RealWorld() { ScriptedGroup::ForgetScripts(Face(group)); }

  static VOXBaseUnknown* Face(Feature* iFeature) { return iFeature; }
  GroupScript& Told() const { return ScriptedGroup::ScriptOf(Face(group)); }
  VOXSamModelDataRoot* Node(int iId) const { return VOXExplicitAccess::Object(model.FindNode(iId)); }

  voxhost::ExplicitModel model;
  Document document;
  VOXAnalysisExplicitEntity entity;
  Feature* group = nullptr;
  VOXISamGroup_var spGroup;
};

class RealFeatures : public testing::Test
{
protected:
  RealFeatures()
  {
    CatalogueWithGroup();
    ResetErrors();
    Ledger::TurnOn();
    before = Ledger::Read();
    world.emplace();
  }

  ~RealFeatures() override
  {
    world.reset();
    EXPECT_EQ((Ledger::Read() - before).Describe(), "balanced");
    Ledger::TurnOff();
  }

  std::vector<VOXSamModelDataRoot*> Content()
  {
    const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
    EXPECT_EQ(world->spGroup->GetContent(VOXSamValueNode, "NODE", collector), S_OK);
    if (collector == nullptr)
      return {};
    const std::vector<VOXSamModelDataRoot*> objects = ObjectsOf(*collector);
    attached = collector->IsAttachedToModel() != 0;
    collector->Release();
    return objects;
  }

  // What the target of a stamp keeps of a feature.
  voxhost::Record Stamp(Feature* iFeature)
  {
    VOXAnalysisExplicitParent nothing;
    VOXSamGroupTools::MakeReadyForVisu(iFeature, nothing, world->entity);
    return *world->model.RecordOf(world->entity);
  }

  Ledger::Balance before;
  std::optional<RealWorld> world;
  bool attached = false;
};

using Objects = std::vector<VOXSamModelDataRoot*>;

} // namespace

TEST_F(RealFeatures, AnUpToDateGroupIsReadFromItsObjectInTheModel)
{
  EXPECT_EQ(Content(), (Objects{world->Node(1), world->Node(3)}));
  EXPECT_TRUE(attached);
}

TEST_F(RealFeatures, AGroupThatChangedIsAskedItself)
{
  world->Told().pointers = {world->Node(2)};
  world->group->SetOutOfDate(true);
  EXPECT_EQ(Content(), (Objects{world->Node(2)}));
  EXPECT_FALSE(attached);
}

TEST_F(RealFeatures, AGroupThatWasNeverTranslatedIsAskedItself)
{
  world->Told().pointers = {world->Node(2)};
  world->group->Reset(world->group->IndexOf("ExplicitTag"));
  EXPECT_EQ(Content(), (Objects{world->Node(2)}));
  EXPECT_FALSE(attached);
}

TEST_F(RealFeatures, AGroupWithoutModelCannotGiveItsContent)
{
  world->document.SetExplicitModel(nullptr);
  const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
  EXPECT_EQ(world->spGroup->GetContent(VOXSamValueNode, "NODE", collector), E_FAIL);
  EXPECT_EQ(collector, nullptr);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", SourceOf("VOXEAnalysisGroup")}}));
}

TEST_F(RealFeatures, AskingTwiceGivesTheSameCollectorUntilTheModelChanges)
{
  const auto ask = [this]
  {
    const VOXAnalysisEntityCollector* collector = nullptr;
    world->spGroup->GetContent(VOXSamValueNode, "NODE", collector);
    return collector;
  };
  const VOXAnalysisEntityCollector* const first = ask();
  const VOXAnalysisEntityCollector* const second = ask();
  EXPECT_EQ(first, second);
  world->model.Touch(world->entity);
  const VOXAnalysisEntityCollector* const third = ask();
  EXPECT_NE(first, third);
  first->Release();
  second->Release();
  third->Release();
}

TEST_F(RealFeatures, EachFeatureIsStampedWithItsOwnIdentifier)
{
  Feature* const other = world->document.New("GroupUnderTest", "other");
  EXPECT_EQ(Stamp(world->group).featureIdentifier, world->group->Identifier());
  EXPECT_EQ(Stamp(other).featureIdentifier, other->Identifier());
  EXPECT_NE(other->Identifier(), world->group->Identifier());
}

TEST_F(RealFeatures, AMeshPartIsStampedAsOneOfAMeshSetWithItsVisualisation)
{
  Feature* const meshSet = world->document.New("MSHSetContainer", "meshes");
  Feature* const part = world->document.New("MSHPart", "part");
  EXPECT_EQ(meshSet->Add("SonsList", *part), S_OK);
  const voxhost::Record stamped = Stamp(part);
  EXPECT_EQ(stamped.featureKind, 1);
  VOXHandle<VOXIMSHVisuGrouper> spGrouper(RealWorld::Face(part));
  EXPECT_EQ(stamped.featurePointer, spGrouper->GetVisuObject());
}

TEST_F(RealFeatures, AGroupInAGroupSetIsStampedAsAnyOther)
{
  Feature* const set = world->document.New("GroupSet", "groups");
  EXPECT_EQ(set->Add("SonsList", *world->group), S_OK);
  const voxhost::Record stamped = Stamp(world->group);
  EXPECT_EQ(stamped.featureKind, 2);
  EXPECT_EQ(stamped.featurePointer, nullptr);
}

TEST(RealFeaturesTorture, AContentSurvivesEveryFailure)
{
  CatalogueWithGroup();
  Torture("GetContent")
      .Reports(VOXSamErrorPropagated, "", "VOXEAnalysisGroup")
      .Reports(VOXSamErrorMissingObject, "ExpModel", "VOXEAnalysisGroup")
      .Reports(VOXSamErrorMissingObject, "Collector", "VOXEAnalysisGroup")
      .Reports(VOXSamErrorMissingObject, "RulesData", "VOXSamGroupTools")
      .Reports(VOXSamErrorPropagated, "", "VOXSamGroupTools")
      .Run(
          [](TortureRun& ioRun)
          {
            RealWorld world;
            world.Told().pointers = {world.Node(1), world.Node(3)};
            const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
            ioRun.Call([&] { return world.spGroup->GetContent(VOXSamValueNode, "NODE", collector); });
            EXPECT_TRUE(ioRun.Succeeded() || collector == nullptr);
            if (collector != nullptr)
              collector->Release();
          });
}
