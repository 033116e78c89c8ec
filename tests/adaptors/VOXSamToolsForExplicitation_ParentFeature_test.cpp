// SPDX-License-Identifier: MIT
#include "VOXSamToolsForExplicitation.h"

#include "host/Instruments/Faults.h"
#include "tests/adaptors/Face.h"
#include "tests/adaptors/LookUpWorld.h"
#include "tests/adaptors/Reported.h"

#include <memory>
#include <new>
#include <optional>
#include <type_traits>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ExplicitModel;
using voxhost::Faults;
using voxhost::Ledger;

static_assert(!std::is_default_constructible_v<VOXSamToolsForExplicitation>, "nobody makes one");

namespace
{

// Notes the queries that go to the very pointer that the container listed.
class QueriedExplicit : public ScriptedExplicit
{
public:
  using ScriptedExplicit::QueryInterface;
  HRESULT QueryInterface(const IID& iInterface, void** oFace) override
  {
    const bool known = iInterface == IID_VOXISamExplicit || iInterface == IID_VOXISpecObject;
    CallLog::Note(!known                              ? "query of something else"
                  : iInterface == IID_VOXISamExplicit ? "query VOXISamExplicit"
                                                      : "query VOXISpecObject");
    return ScriptedExplicit::QueryInterface(iInterface, oFace);
  }
};

class VOXSamToolsForExplicitationParentFeature : public testing::Test
{
protected:
  VOXSamToolsForExplicitationParentFeature()
  {
    ResetErrors();
    Ledger::TurnOn();
    world.emplace();
  }
  ~VOXSamToolsForExplicitationParentFeature() override
  {
    Faults::Disarm();
    EXPECT_TRUE(voxhost::ErrorLog::Reports().empty());
    world.reset();
    EXPECT_EQ(Ledger::Read().references, 0);
    Ledger::TurnOff();
    ResetErrors();
  }

  // The component that is found, after its one reference was given back; null when nothing is.
  const VOXBaseUnknown* Found(const VOXAnalysisExplicitParent& iParent)
  {
    const auto before = Ledger::Read().references;
    VOXISpecObject* const found = world->LookUp(iParent);
    EXPECT_EQ(Ledger::Read().references - before, found == nullptr ? 0 : 1);
    const VOXBaseUnknown* const component = found == nullptr ? nullptr : found->GetImpl(0);
    if (found != nullptr)
      found->Release();
    return component;
  }

  bool ContainerIsTouchedBy(const VOXAnalysisExplicitParent& iParent)
  {
    const CallLog log;
    EXPECT_EQ(world->LookUp(iParent), nullptr);
    return log.Count("VOXIContainer::") != 0;
  }

  std::optional<LookUpWorld> world;
};

} // namespace

TEST_F(VOXSamToolsForExplicitationParentFeature, AnObjectOfAnotherCategoryIsLookedUpByItsOwnTag)
{
  world->Add({TagOf(world->mesh)});
  VOXBaseUnknown* const maker = world->Add({TagOf(world->group)});
  EXPECT_EQ(Found(world->group), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AMeshIsLookedUpByItsOwnTag)
{
  VOXBaseUnknown* const maker = world->Add({TagOf(world->mesh)});
  world->Add({TagOf(world->root)});
  EXPECT_EQ(Found(world->mesh), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, ANodeIsLookedUpByTheTagOfItsMesh)
{
  world->Add({TagOf(world->node)});
  VOXBaseUnknown* const maker = world->Add({TagOf(world->mesh)});
  EXPECT_EQ(Found(world->node), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AnElementIsLookedUpByTheTagOfItsMesh)
{
  world->Add({TagOf(world->element)});
  VOXBaseUnknown* const maker = world->Add({TagOf(world->mesh)});
  EXPECT_EQ(Found(world->element), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AnElementUnderSomethingElseIsNotFoundEvenIfAMeshIsAbove)
{
  const VOXAnalysisExplicitEntity group = world->model.Create(world->mesh, "GROUP", "group of the mesh");
  const VOXAnalysisExplicitParent stray = world->model.Create(group, "ELEMENT", "stray");
  world->Add({TagOf(stray), TagOf(group), TagOf(world->mesh), TagOf(world->root), -1, 0});
  EXPECT_FALSE(ContainerIsTouchedBy(stray));
}

TEST_F(VOXSamToolsForExplicitationParentFeature, TheParentOfTheParentIsFetchedInVain)
{
  const VOXAnalysisExplicitEntity group = world->model.Create(world->mesh, "GROUP", "group of the mesh");
  const VOXAnalysisExplicitParent stray = world->model.Create(group, "NODE", "stray");
  const CallLog log;
  world->LookUp(stray);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXAnalysisExplicitData::GetModel", "VOXAnalysisExplicitParent::GetCategory",
                   "VOXAnalysisExplicitModel::GetRulesData", "VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber",
                   "VOXAnalysisExplicitChild::GetParentList", "VOXAnalysisExplicitChild::GetPhysicalType",
                   "VOXAnalysisExplicitChild::GetParentList"}));
}

TEST_F(VOXSamToolsForExplicitationParentFeature, OfSeveralParentsTheFirstDecides)
{
  const VOXAnalysisExplicitParent firstInGroup = world->model.Create(world->group, "NODE", "first in the group");
  ASSERT_TRUE(world->model.AddChild(world->mesh, firstInGroup));
  const VOXAnalysisExplicitParent firstInMesh = world->model.Create(world->mesh, "NODE", "first in the mesh");
  ASSERT_TRUE(world->model.AddChild(world->group, firstInMesh));
  VOXBaseUnknown* const maker = world->Add({TagOf(world->mesh)});
  EXPECT_EQ(Found(firstInGroup), nullptr);
  EXPECT_EQ(Found(firstInMesh), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, WhatIsDoneForANodeComesInThisOrder)
{
  world->Add({TagOf(world->mesh)});
  const CallLog log;
  VOXISpecObject* const found = world->LookUp(world->node);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXAnalysisExplicitData::GetModel", "VOXAnalysisExplicitParent::GetCategory",
                   "VOXAnalysisExplicitModel::GetRulesData", "VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber",
                   "VOXAnalysisExplicitChild::GetParentList", "VOXAnalysisExplicitChild::GetPhysicalType",
                   "VOXAnalysisExplicitChild::GetTag", "VOXIContainer::ListMembers(VOXISamExplicit)",
                   "VOXISamExplicit::ListTags"}));
  found->Release();
}

TEST_F(VOXSamToolsForExplicitationParentFeature, WhatIsNoNodeOrElementNeedsNoRules)
{
  world->Add({TagOf(world->group)});
  const CallLog log;
  VOXISpecObject* const found = world->LookUp(world->group);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXAnalysisExplicitData::GetModel", "VOXAnalysisExplicitParent::GetCategory",
                   "VOXAnalysisExplicitChild::GetTag", "VOXIContainer::ListMembers(VOXISamExplicit)",
                   "VOXISamExplicit::ListTags"}));
  found->Release();
}

TEST_F(VOXSamToolsForExplicitationParentFeature, ANodeWithoutParentsInAModelWithoutMeshesIsNotFound)
{
  ExplicitModel bare(std::make_shared<const voxhost::ExplicitRules>(
      std::vector<voxhost::PhysicalTypeRule>{{"LOOSE", VOXSamValueNode, {}}}));
  const VOXAnalysisExplicitParent loose = bare.Create(NULL_exp, "LOOSE", "loose");
  ASSERT_TRUE(loose != NULL_exp);
  world->Add({TagOf(loose), 0, -1});
  const CallLog log;
  EXPECT_EQ(world->LookUp(loose), nullptr);
  EXPECT_EQ(log.Count("VOXIContainer::"), 0);
  EXPECT_EQ(log.Count("VOXAnalysisExplicitChild::GetParentList"), 1) << "both types are 0: the empty parent is taken";
  EXPECT_EQ(log.Count("VOXAnalysisExplicitChild::GetPhysicalType"), 0) << "an empty parent has no type to read";
}

TEST_F(VOXSamToolsForExplicitationParentFeature, ANodeWithoutParentsIsNotFoundWhereMeshesAreKnown)
{
  const VOXAnalysisExplicitParent loose = world->model.Create(NULL_exp, "NODE", "loose");
  EXPECT_FALSE(ContainerIsTouchedBy(loose));
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AMeshTypeWithoutNumberMatchesNoParentThatHasAType)
{
  Faults::FailOperation("VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber", 1, false);
  EXPECT_FALSE(ContainerIsTouchedBy(world->node));
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AParentWhoseTypeCannotBeReadIsNoMeshWhereMeshesAreKnown)
{
  Faults::FailOperation("VOXAnalysisExplicitChild::GetPhysicalType", 1, false);
  EXPECT_FALSE(ContainerIsTouchedBy(world->node));
}

// Both types stay 0, and agree.
TEST_F(VOXSamToolsForExplicitationParentFeature, AParentWithoutReadableTypeIsTakenInAModelWithoutMeshes)
{
  ExplicitModel bare(std::make_shared<const voxhost::ExplicitRules>(
      std::vector<voxhost::PhysicalTypeRule>{{"POINT", VOXSamValueNode, {}}, {"PART", VOXSamValueEntity, {}}}));
  const VOXAnalysisExplicitEntity part = bare.Create(NULL_exp, "PART", "part");
  const VOXAnalysisExplicitParent point = bare.Create(part, "POINT", "point");
  VOXBaseUnknown* const maker = world->Add({TagOf(part)});
  EXPECT_EQ(Found(point), nullptr);
  Faults::FailOperation("VOXAnalysisExplicitChild::GetPhysicalType", 1, false);
  EXPECT_EQ(Found(point), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, NothingIsFoundForTheEmptyHandle)
{
  world->Add({0, -1});
  const VOXIContainer_var spContainer(world->container);
  const CallLog log;
  EXPECT_EQ(VOXSamToolsForExplicitation::GetParentFeature(VOXAnalysisExplicitParent(), spContainer), nullptr);
  EXPECT_EQ(log.All(), Calls{});
}

TEST_F(VOXSamToolsForExplicitationParentFeature, NothingIsFoundWithoutContainer)
{
  const CallLog log;
  EXPECT_EQ(VOXSamToolsForExplicitation::GetParentFeature(world->group, nullptr), nullptr);
  EXPECT_EQ(log.All(), Calls{});
}

TEST_F(VOXSamToolsForExplicitationParentFeature, NothingIsFoundWithoutModel)
{
  Faults::FailOperation("VOXAnalysisExplicitData::GetModel", 1, false);
  EXPECT_FALSE(ContainerIsTouchedBy(world->group));
}

TEST_F(VOXSamToolsForExplicitationParentFeature, NoNodeIsFoundWithoutRules)
{
  world->Add({TagOf(world->mesh), TagOf(world->node)});
  Faults::FailOperation("VOXAnalysisExplicitModel::GetRulesData", 1, false);
  EXPECT_FALSE(ContainerIsTouchedBy(world->node));
}

TEST_F(VOXSamToolsForExplicitationParentFeature, ANodeWhoseCategoryCannotBeReadIsLookedUpByItsOwnTag)
{
  VOXBaseUnknown* const maker = world->Add({TagOf(world->node)});
  Faults::FailOperation("VOXAnalysisExplicitParent::GetCategory", 1, false);
  EXPECT_EQ(Found(world->node), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AnObjectWhoseTagCannotBeReadIsLookedUpByMinusOne)
{
  world->Add({0, TagOf(world->group)});
  VOXBaseUnknown* const odd = world->Add({-1});
  Faults::FailOperation("VOXAnalysisExplicitChild::GetTag", 1, false);
  EXPECT_EQ(Found(world->group), odd);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AContainerWithoutMembersFindsNothing)
{
  EXPECT_EQ(Found(world->group), nullptr);
  world->Told().count = -1;
  EXPECT_EQ(Found(world->group), nullptr);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, NoMemberThatReportsTheTagFindsNothing)
{
  world->Add({TagOf(world->mesh)});
  world->Add({});
  EXPECT_EQ(Found(world->group), nullptr);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AnyTagOfAFeatureMatches)
{
  VOXBaseUnknown* const maker = world->Add({9001, 9002, TagOf(world->group)});
  EXPECT_EQ(Found(world->group), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, TheFirstMemberInTheContainersOrderWins)
{
  VOXBaseUnknown* const first = world->Add({TagOf(world->group)});
  world->Add({TagOf(world->group)});
  EXPECT_EQ(Found(world->group), first);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, MembersBehindAMatchAreReleasedAndNotQueried)
{
  world->Add({TagOf(world->group)});
  VOXBaseUnknown* const behind = world->Add<QueriedExplicit>({TagOf(world->group)});
  const CallLog log;
  VOXISpecObject* const found = world->LookUp(world->group);
  EXPECT_EQ(log.Count("query"), 0);
  EXPECT_EQ(log.Count("VOXISamExplicit::ListTags"), 1);
  EXPECT_EQ(Bench::References(behind), 0);
  found->Release();
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AMemberIsQueriedThroughWhatWasListedAndThenThroughItsExplicitFace)
{
  world->Add<QueriedExplicit>({TagOf(world->group)});
  const CallLog log;
  VOXISpecObject* const found = world->LookUp(world->group);
  EXPECT_EQ(log.Only({"query", "VOXISamExplicit::"}),
            (Calls{"query VOXISamExplicit", "VOXISamExplicit::ListTags", "query VOXISpecObject"}));
  found->Release();
}

TEST_F(VOXSamToolsForExplicitationParentFeature, TheFeatureIsReachedThroughTheExplicitFaceWhateverFaceIsListed)
{
  VOXBaseUnknown* const maker = world->Add<QueriedExplicit>({TagOf(world->group)});
  world->Told().members = {maker};
  const CallLog log;
  VOXISpecObject* const found = world->LookUp(world->group);
  EXPECT_EQ(log.Only({"query", "VOXISamExplicit::"}), (Calls{"VOXISamExplicit::ListTags", "query VOXISpecObject"}));
  found->Release();
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AMemberThatDoesNotMatchIsNotAskedForItsFeature)
{
  world->Add<QueriedExplicit>({TagOf(world->mesh)});
  const CallLog log;
  world->LookUp(world->group);
  EXPECT_EQ(log.Only({"query", "VOXISamExplicit::"}), (Calls{"query VOXISamExplicit", "VOXISamExplicit::ListTags"}));
}

TEST_F(VOXSamToolsForExplicitationParentFeature, TheAnswerIsTheFeatureFaceWithOneReferenceForTheCaller)
{
  VOXBaseUnknown* const maker = world->Add({TagOf(world->group)});
  VOXISpecObject* const found = world->LookUp(world->group);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(Bench::References(maker), 1);
  EXPECT_EQ(found, VOXISpecObject_var(maker).Get());
  found->Release();
}

TEST_F(VOXSamToolsForExplicitationParentFeature, EveryMemberIsReleasedWhenNothingIsFound)
{
  const VOXBaseUnknown* const first = world->Add({1});
  const VOXBaseUnknown* const second = world->Add({2});
  EXPECT_EQ(Found(world->group), nullptr);
  EXPECT_EQ(Bench::References(first), 0);
  EXPECT_EQ(Bench::References(second), 0);
}

// The handle of a member and the listing's reference on it are two references.
TEST_F(VOXSamToolsForExplicitationParentFeature, TheHandleOfAMemberHoldsAReferenceBesideTheListings)
{
  VOXBaseUnknown* const member = world->Add({TagOf(world->mesh)});
  long whileAsked = 0;
  ScriptedExplicit::ScriptOf(member).whenAskedForTags = [&](const VOXRawCollint&)
  { whileAsked = Bench::References(member); };
  world->LookUp(world->group);
  EXPECT_EQ(whileAsked, 3) << "the listing's, the handle's and that of the query";
}

TEST_F(VOXSamToolsForExplicitationParentFeature, TheSlotOfAMemberIsEmptiedBeforeTheNextIsLookedAt)
{
  world->Add({1});
  VOXBaseUnknown* const second = world->Add({2});
  _SEQUENCE_VOXBaseUnknown_ptr* sequence = nullptr;
  world->Told().whenListed = [&](_SEQUENCE_VOXBaseUnknown_ptr& iListed) { sequence = &iListed; };
  bool firstIsEmpty = false;
  bool secondIsThere = false;
  ScriptedExplicit::ScriptOf(second).whenAskedForTags = [&](const VOXRawCollint&)
  {
    firstIsEmpty = (*sequence)[0] == nullptr;
    secondIsThere = (*sequence)[1] != nullptr;
  };
  world->LookUp(world->group);
  EXPECT_TRUE(firstIsEmpty);
  EXPECT_TRUE(secondIsThere);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AnEmptySlotIsPassedOver)
{
  world->Told().members.push_back(nullptr);
  VOXBaseUnknown* const maker = world->Add({TagOf(world->group)});
  world->Told().members.push_back(nullptr);
  EXPECT_EQ(Found(world->group), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, OnlyAsManyMembersAreLookedAtAsTheContainerSays)
{
  world->Add({1});
  VOXBaseUnknown* const second = world->Add({TagOf(world->group)});
  world->Told().count = 1;
  EXPECT_EQ(world->LookUp(world->group), nullptr);
  EXPECT_EQ(Bench::References(second), 1) << "nobody looked at it";
  second->Release();
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AMemberThatIsNotExplicitIsPassedOverAndReleased)
{
  VOXBaseUnknown* const other = world->MoreComponents().Component<ScriptedSpecObject>();
  world->Told().members.push_back(other);
  VOXBaseUnknown* const maker = world->Add({TagOf(world->group)});
  EXPECT_EQ(Found(world->group), maker);
  EXPECT_EQ(Bench::References(other), 0);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, AMemberWhoseTagsCannotBeListedIsPassedOver)
{
  world->Add({TagOf(world->group)});
  VOXBaseUnknown* const second = world->Add({TagOf(world->group)});
  Faults::FailOperation("VOXISamExplicit::ListTags", 1, false);
  EXPECT_EQ(Found(world->group), second);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, TheFirstMemberIsGivenAnEmptyList)
{
  VOXBaseUnknown* const member = world->Add({5});
  int size = -1;
  ScriptedExplicit::ScriptOf(member).whenAskedForTags = [&](const VOXRawCollint& iSoFar) { size = iSoFar.Size(); };
  world->LookUp(world->group);
  EXPECT_EQ(size, 0);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, ALaterMemberMatchesOnATagThatAnEarlierOneReported)
{
  world->AddNoFeature({TagOf(world->group)});
  VOXBaseUnknown* const later = world->Add({TagOf(world->mesh)});
  EXPECT_EQ(Found(world->group), later);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, ALaterMemberMatchesOnItsOwnTagsWhereListingsReplace)
{
  world->AddNoFeature({TagOf(world->group)});
  ScriptedExplicit::ScriptOf(world->Add({TagOf(world->mesh)})).replacesTags = true;
  EXPECT_EQ(Found(world->group), nullptr);
  VOXBaseUnknown* const maker = world->Add({TagOf(world->group)});
  ScriptedExplicit::ScriptOf(maker).replacesTags = true;
  EXPECT_EQ(Found(world->group), maker);
}

TEST_F(VOXSamToolsForExplicitationParentFeature, APendingErrorIsLeftAloneAndNoHandlerIsMade)
{
  const PendingError pending;
  int depth = -1;
  world->Told().whenListed = [&](_SEQUENCE_VOXBaseUnknown_ptr&) { depth = ErrorDepthHandler::_SamDepth_; };
  world->LookUp(world->group);
  EXPECT_EQ(depth, 0);
  EXPECT_TRUE(PendingError::Stands());
}

TEST(VOXSamToolsForExplicitation, HasNoDataAndAnAssignmentThatCopiesNothing)
{
  static_assert(std::is_empty_v<VOXSamToolsForExplicitation>);
  alignas(VOXSamToolsForExplicitation) unsigned char memory[2] = {3, 4};
  auto& left = *std::launder(reinterpret_cast<VOXSamToolsForExplicitation*>(&memory[0]));
  const auto& right = *std::launder(reinterpret_cast<VOXSamToolsForExplicitation*>(&memory[1]));
  EXPECT_EQ(&(left = right), &left);
  EXPECT_EQ(memory[0], 3);
}

namespace
{

void TortureLookUpOf(const VOXAnalysisExplicitParent LookUpWorld::*iObject)
{
  Torture torture("GetParentFeature");
  torture.ReportsNothing().Run(
      [iObject](TortureRun& ioRun)
      {
        LookUpWorld world;
        const VOXBaseUnknown* const ofGroup = world.Add({TagOf(world.group)});
        const VOXBaseUnknown* const ofMesh = world.Add({TagOf(world.mesh)});
        world.Add({TagOf(world.node)});
        const VOXIContainer_var spContainer(world.container);
        const bool isNode = iObject == &LookUpWorld::node;
        VOXISpecObject* found = nullptr;
        ioRun.Call(
            [&]
            {
              found = VOXSamToolsForExplicitation::GetParentFeature(world.*iObject, spContainer);
              return S_OK;
            });
        EXPECT_TRUE(ioRun.IsTortured() || found->GetImpl(0) == (isNode ? ofMesh : ofGroup));
        EXPECT_TRUE(found == nullptr || !isNode || found->GetImpl(0) != ofGroup);
        if (found != nullptr)
          found->Release();
      });
  EXPECT_GT(torture.HostCalls(), 4);
}

} // namespace

TEST(VOXSamToolsForExplicitationParentFeatureTorture, ALookUpOfANodeSurvivesEveryFailure)
{
  TortureLookUpOf(&LookUpWorld::node);
}

TEST(VOXSamToolsForExplicitationParentFeatureTorture, ALookUpOfAnotherObjectSurvivesEveryFailure)
{
  TortureLookUpOf(&LookUpWorld::groupParent);
}
