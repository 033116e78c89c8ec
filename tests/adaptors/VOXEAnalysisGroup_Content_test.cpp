// SPDX-License-Identifier: MIT
#include "VOXEAnalysisGroup.h"

#include "host/Instruments/Faults.h"
#include "tests/adaptors/GroupWorld.h"
#include "tests/support/CallLog.h"
#include "tests/support/Memory.h"
#include "tests/support/Torture.h"
#include "tests/support/VirtualTable.h"

#include <optional>
#include <typeinfo>

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using Objects = std::vector<VOXSamModelDataRoot*>;

// The host's calls without those that it makes of itself.
Calls HostCalls(const CallLog& iLog)
{
  return iLog.Without({"VOXBaseUnknown::operator new", "VOXAnalysisCollectorRoot::SetEntities",
                       "VOXAnalysisCollectorRoot::GetEntities"});
}

class VOXEAnalysisGroupContent : public testing::Test
{
protected:
  VOXEAnalysisGroupContent()
  {
    ResetErrors();
    voxhost::Ledger::TurnOn();
    world.emplace();
  }

  ~VOXEAnalysisGroupContent() override
  {
    EXPECT_TRUE(voxhost::ErrorLog::Reports().empty());
    EXPECT_EQ(Bench::References(world->Feature()), 1) << "the world's handle on the group is the only one";
    world.reset();
    EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced");
    voxhost::Ledger::TurnOff();
  }

  void MakeOutOfDate() { world->Spec().upToDate = 0; }

  voxhost::Ledger::Balance before = []
  {
    voxhost::Ledger::Balance balance = voxhost::Ledger::Read();
    balance.references = 0; // turning the ledger on sets these back
    balance.arraysOut = 0;
    return balance;
  }();
  std::optional<GroupWorld> world;
};

} // namespace

TEST_F(VOXEAnalysisGroupContent, ComesFromTheFirstChildOfTheGroupsPhysicalType)
{
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(content.Result(), S_OK);
  EXPECT_EQ(content.Objects(), (Objects{world->Node(2), world->Node(4)}));
  EXPECT_TRUE(content.Indices().empty());
}

TEST_F(VOXEAnalysisGroupContent, SkipsChildrenOfOtherTypesAndStopsAtTheFirstThatFits)
{
  world->AddChild("ELEMENT_GROUP", VOXSamPositionElement, {1});
  world->AddChild("ELEMENT_GROUP", VOXSamPositionElement, {0});
  const Content content(*world, VOXSamValueElement, "ELEMENT");
  EXPECT_EQ(content.Objects(), (Objects{world->Element(20)}));
}

TEST_F(VOXEAnalysisGroupContent, GivesTheSidesOfFacesAndEdgesBesideTheirElements)
{
  world->AddChild("FACE_GROUP", VOXSamPositionFace, {0, 1}, {2, 3});
  world->AddChild("EDGE_GROUP", VOXSamPositionEdge, {1}, {1});
  const Content faces(*world, VOXSamValueElement, "FACE");
  EXPECT_EQ(faces.Objects(), (Objects{world->Element(10), world->Element(20)}));
  EXPECT_EQ(faces.Indices(), (std::vector<int>{2, 3}));
  const Content edges(*world, VOXSamValueElement, "EDGE");
  EXPECT_EQ(edges.Indices(), (std::vector<int>{1}));
}

TEST_F(VOXEAnalysisGroupContent, AsksTheHostInThisOrder)
{
  const VOXISamExplicit_var spExplicit(world->Feature()); // made already, as in a document that is in use
  const VOXISpecObject_var spSpec(world->Feature());
  CallLog log;
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(
      HostCalls(log),
      (Calls{"VOXISamGroup::GetValueKinds", "VOXISamGroup::GetKeywords(8)", "VOXBaseUnknown::QueryInterface",
             "VOXBaseUnknown::QueryInterface", "VOXISamExplicit::GetExplicitParent(1)",
             "VOXAnalysisExplicitParent::FindEntityCollector", "VOXISpecObject::IsUpToDate(whole document)",
             "VOXAnalysisExplicitParent::GetChildrenList", "VOXAnalysisExplicitData::GetModel", "VOXSamIdentityEnum",
             "VOXAnalysisExplicitModel::GetRulesData", "VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber",
             "VOXAnalysisExplicitChild::GetPhysicalType", "VOXAnalysisExplicitEntity::GetApplyTo",
             "VOXAnalysisCollectorRoot::SetContext", "VOXAnalysisEntityCollector::SetDefinition",
             "VOXAnalysisEntityCollector::SetExplicitPointers", "VOXAnalysisCollectorRoot::SetAttachedToModel"}));
}

TEST_F(VOXEAnalysisGroupContent, TheNewCollectorKnowsItsContextAndItsDefinition)
{
  const Content content(*world, VOXSamValueNode, "NODE");
  VOXAnalysisExplicitParent context;
  content->GetContext(context);
  EXPECT_TRUE(context == world->Entity());
  VOXSamValue value = VOXSamValueNone;
  VOXString name;
  content->GetDefinition(value, name);
  EXPECT_EQ(value, VOXSamValueNode);
  EXPECT_TRUE(name == "NODE");
}

TEST_F(VOXEAnalysisGroupContent, OfAnUpToDateGroupIsAttachedToTheModel)
{
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(content->IsAttachedToModel(), 1);
  EXPECT_EQ(world->Attached(VOXSamValueNode, "NODE"), content.Collector());
  EXPECT_EQ(content.References(), 2) << "the model's and the caller's";
}

TEST_F(VOXEAnalysisGroupContent, IsGivenEvenWhenItCannotBeAttached)
{
  voxhost::Faults::FailOperation("VOXAnalysisCollectorRoot::SetAttachedToModel", 1, false);
  const Content content(*world, VOXSamValueNode, "NODE");
  voxhost::Faults::Disarm();
  EXPECT_EQ(content.Result(), S_OK);
  ASSERT_NE(content.Collector(), nullptr);
  EXPECT_EQ(content->IsAttachedToModel(), 0);
  EXPECT_EQ(content.References(), 1);
}

TEST_F(VOXEAnalysisGroupContent, TheCollectorIsOfAClassOfItsOwnThatAddsNothing)
{
  MemoryWatch watch;
  const Content content(*world, VOXSamValueNode, "NODE");
  const VOXAnalysisEntityCollector& collector = *content.Collector();
  EXPECT_NE(typeid(collector), typeid(VOXAnalysisEntityCollector));
  bool found = false;
  for (const MemoryWatch::Block& block : watch.StillLive())
    found = found || (block.address == &collector && block.size == sizeof(VOXAnalysisEntityCollector));
  EXPECT_TRUE(found) << "a block of the plain operator new, of the size of the host's class";
}

TEST_F(VOXEAnalysisGroupContent, IsReusedWhileItsCollectorIsUpToDate)
{
  VOXAnalysisEntityCollector* const attached = world->Attach(VOXSamValueNode, "NODE", {world->Node(1)});
  const VOXISamExplicit_var spExplicit(world->Feature());
  const VOXISpecObject_var spSpec(world->Feature());
  CallLog log;
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(content.Result(), S_OK);
  EXPECT_EQ(content.Collector(), attached);
  EXPECT_EQ(HostCalls(log).back(), "VOXAnalysisCollectorRoot::IsUpToDate") << "and nothing after it";
  EXPECT_EQ(content.References(), 2);
  EXPECT_EQ(content.Objects(), (Objects{world->Node(1)}));
}

TEST_F(VOXEAnalysisGroupContent, ACollectorOfAnotherDefinitionIsNotReused)
{
  VOXAnalysisEntityCollector* const attached = world->Attach(VOXSamValueElement, "ELEMENT", {world->Element(10)});
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_NE(content.Collector(), attached);
  EXPECT_EQ(attached->IsAttachedToModel(), 1);
}

TEST_F(VOXEAnalysisGroupContent, ACollectorThatIsOutOfDateIsRetiredReleasedAndReplaced)
{
  VOXAnalysisEntityCollector* const old = world->Attach(VOXSamValueNode, "NODE", {world->Node(1)});
  old->AddRef(); // somebody else still looks at it
  world->Model().Touch(world->Entity());
  {
    const Content content(*world, VOXSamValueNode, "NODE");
    EXPECT_NE(content.Collector(), old);
    EXPECT_EQ(content.Objects(), (Objects{world->Node(2), world->Node(4)}));
    EXPECT_EQ(world->Attached(VOXSamValueNode, "NODE"), content.Collector());
  }
  EXPECT_EQ(old->IsAttachedToModel(), 0);
  EXPECT_EQ(old->IsStreamable(), 0) << "its destruction is asked for";
  EXPECT_EQ(old->Release(), 0) << "the model's reference was given back";
}

TEST_F(VOXEAnalysisGroupContent, OfAnOutOfDateGroupComesFromTheFeatureAndIsNotAttached)
{
  MakeOutOfDate();
  world->Told().pointers = {world->Node(3), world->Node(1)};
  world->Told().indices = {5, 6};
  CallLog log;
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(content.Objects(), (Objects{world->Node(3), world->Node(1)}));
  EXPECT_EQ(content.Indices(), (std::vector<int>{5, 6}));
  EXPECT_EQ(content->IsAttachedToModel(), 0);
  EXPECT_EQ(content.References(), 1);
  EXPECT_EQ(log.Only({"VOXISamGroup::GetExplicitPointers"}), (Calls{"VOXISamGroup::GetExplicitPointers(8, NODE)"}));
  EXPECT_EQ(log.Count("VOXAnalysisExplicitParent::GetChildrenList"), 0);
}

// Kept: a group that is up to date but has no children gets its collector attached too.
TEST_F(VOXEAnalysisGroupContent, OfAnUpToDateGroupWithoutChildrenComesFromTheFeatureAndIsAttached)
{
  world->DropChild();
  world->Told().pointers = {world->Node(3)};
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(content.Objects(), (Objects{world->Node(3)}));
  EXPECT_EQ(content->IsAttachedToModel(), 1);
}

// Kept: with a first child the feature is not asked, even when no child has the group's type.
TEST_F(VOXEAnalysisGroupContent, IsEmptyWhenNoChildHasTheGroupsType)
{
  world->Told().pointers = {world->Node(3)};
  CallLog log;
  const Content content(*world, VOXSamValueElement, "FACE");
  EXPECT_EQ(content.Result(), S_OK);
  EXPECT_EQ(content.Collector(), nullptr);
  EXPECT_EQ(log.Count("VOXISamGroup::GetExplicitPointers"), 0);
  EXPECT_EQ(log.Count("VOXAnalysisExplicitChild::GetPhysicalType"), 1);
}

TEST_F(VOXEAnalysisGroupContent, IsEmptyWhenTheMatchingChildAppliesToNothing)
{
  world->AddChild("FACE_GROUP", VOXSamPositionFace, {});
  const Content content(*world, VOXSamValueElement, "FACE");
  EXPECT_EQ(content.Result(), S_OK);
  EXPECT_EQ(content.Collector(), nullptr);
}

TEST_F(VOXEAnalysisGroupContent, IsEmptyForANullArrayWhateverTheCount)
{
  MakeOutOfDate();
  world->Told().count = 5;
  world->Told().indices = {1, 2};
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(content.Result(), S_OK);
  EXPECT_EQ(content.Collector(), nullptr); // and the index array is freed: the ledger is balanced
}

TEST_F(VOXEAnalysisGroupContent, IsEmptyForACountOfZeroOrLessAndFreesTheArrays)
{
  MakeOutOfDate();
  world->Told().pointers = {world->Node(3)};
  world->Told().indices = {1};
  for (const int count : {0, -3})
  {
    world->Told().count = count;
    const Content content(*world, VOXSamValueNode, "NODE");
    EXPECT_EQ(content.Result(), S_OK);
    EXPECT_EQ(content.Collector(), nullptr);
  }
}

TEST_F(VOXEAnalysisGroupContent, IsBuiltForAKindAndKeywordThatTheGroupDoesNotServe)
{
  world->Told().kinds.clear();
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(content.Objects(), (Objects{world->Node(2), world->Node(4)}));
}

TEST_F(VOXEAnalysisGroupContent, OfAnyKindAndKeywordComesFromAnOutOfDateFeature)
{
  MakeOutOfDate();
  world->Told().pointers = {world->Node(3)};
  const Content content(*world, VOXSamValueMesh, "whatever");
  EXPECT_EQ(content.Objects(), (Objects{world->Node(3)}));
}

// For value 8 an unknown keyword leads to no physical type, which no child has.
TEST_F(VOXEAnalysisGroupContent, OfNodesUnderAnotherKeywordIsEmpty)
{
  const Content content(*world, VOXSamValueNode, "FACE");
  EXPECT_EQ(content.Result(), S_OK);
  EXPECT_EQ(content.Collector(), nullptr);
}

TEST_F(VOXEAnalysisGroupContent, WithoutAnObjectInTheModelComesFromTheFeature)
{
  world->Explicit().parent = NULL_exp;
  world->Told().pointers = {world->Node(3)};
  CallLog log;
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(content.Objects(), (Objects{world->Node(3)}));
  EXPECT_EQ(content->IsAttachedToModel(), 0);
  EXPECT_EQ(log.Count("VOXAnalysisExplicitParent::FindEntityCollector"), 0);
  EXPECT_EQ(log.Count("VOXISpecObject::IsUpToDate"), 0);
}

TEST_F(VOXEAnalysisGroupContent, IsReachedThroughItsPlaceInTheVirtualTable)
{
  const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
  EXPECT_EQ((CallOwn<HRESULT, VOXSamValue, VOXString, const VOXAnalysisEntityCollector*&>(
                world->Group(), 5, VOXSamValueNode, VOXString("NODE"), collector)),
            S_OK);
  ASSERT_NE(collector, nullptr);
  collector->Release();
}

TEST_F(VOXEAnalysisGroupContent, OutlivesTheArraysThatItWasMadeFrom)
{
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ((voxhost::Ledger::Read() - before).arraysOut, 0) << "freed although the collector lives";
  EXPECT_EQ(content.Objects().size(), 2u);
}

namespace
{

// The faces of a feature that is not translated, and of one that is no feature.
template <class... Faces>
Objects ContentOfFeatureWith(VOXSamModelDataRoot* iNode, CallLog& ioLog)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<ScriptedGroup, Faces...>();
  ScriptedGroup::ScriptOf(feature).pointers = {iNode};
  const VOXISamGroup_var spGroup(feature);
  const VOXAnalysisEntityCollector* collector = nullptr;
  ioLog.Clear();
  EXPECT_EQ(spGroup->GetContent(VOXSamValueNode, "NODE", collector), S_OK);
  if (collector == nullptr)
    return {};
  EXPECT_EQ(collector->IsAttachedToModel(), 0);
  const Objects objects = ObjectsOf(*collector);
  EXPECT_EQ(collector->Release(), 0);
  return objects;
}

} // namespace

TEST_F(VOXEAnalysisGroupContent, OfAFeatureThatIsNotExplicitComesFromTheFeature)
{
  CallLog log;
  EXPECT_EQ(ContentOfFeatureWith<ScriptedSpecObject>(world->Node(1), log), (Objects{world->Node(1)}));
  EXPECT_EQ(log.Count("VOXISpecObject::IsUpToDate"), 0) << "asked only when there is an object in the model";
}

TEST_F(VOXEAnalysisGroupContent, OfAComponentThatIsNoFeatureComesFromTheGroupItself)
{
  CallLog log;
  EXPECT_EQ(ContentOfFeatureWith<>(world->Node(1), log), (Objects{world->Node(1)}));
}

TEST_F(VOXEAnalysisGroupContent, OfAnExplicitComponentThatIsNoFeatureIsNotAttached)
{
  Bench bench;
  VOXBaseUnknown* const component = bench.Component<ScriptedGroup, ScriptedExplicit>();
  ScriptedExplicit::ScriptOf(component).parent = world->Entity();
  ScriptedGroup::ScriptOf(component).pointers = {world->Node(1)};
  CallLog log;
  const VOXAnalysisEntityCollector* collector = nullptr;
  EXPECT_EQ(VOXISamGroup_var(component)->GetContent(VOXSamValueNode, "NODE", collector), S_OK);
  ASSERT_NE(collector, nullptr);
  EXPECT_EQ(ObjectsOf(*collector), (Objects{world->Node(1)}));
  EXPECT_EQ(collector->IsAttachedToModel(), 0);
  EXPECT_EQ(log.Count("VOXAnalysisExplicitParent::FindEntityCollector"), 1);
  EXPECT_EQ(log.Count("VOXAnalysisExplicitParent::GetChildrenList"), 0);
  collector->Release();
}
