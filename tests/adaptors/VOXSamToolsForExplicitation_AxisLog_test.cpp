// SPDX-License-Identifier: MIT
#include "host/Instruments/Faults.h"
#include "tests/adaptors/AxisSetWorld.h"
#include "tests/adaptors/Reported.h"
#include "tests/support/CallLog.h"
#include "tests/support/WhenCalled.h"

#include <optional>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Ledger;

namespace
{

class VOXSamToolsForExplicitationAxisLog : public testing::Test
{
protected:
  VOXSamToolsForExplicitationAxisLog()
  {
    ResetErrors();
    Ledger::TurnOn();
    world.emplace();
  }
  ~VOXSamToolsForExplicitationAxisLog() override
  {
    Faults::Disarm();
    EXPECT_TRUE(AllReported().empty());
    EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
    world.reset();
    EXPECT_EQ(Ledger::Read().references, 0);
    Ledger::TurnOff();
  }

  // What is written on a new entity while one operation of the host fails.
  Tags WrittenWithout(const char* iOperation, int iCall = 1)
  {
    Faults::FailOperation(iOperation, iCall, false);
    EXPECT_EQ(world->Log(), S_OK);
    Faults::Disarm();
    return world->Written();
  }

  void Drop(const VOXAnalysisExplicitData& iObject, int iStatus = VOXSamStatusDropped)
  {
    ASSERT_TRUE(world->model.SetStatus(iObject, iStatus));
  }

  std::optional<AxisSetWorld> world;
};

} // namespace

TEST_F(VOXSamToolsForExplicitationAxisLog, ANewEntityGetsTheChildrenThatNoEntityMadeTheGlobalFrameAndTheAxis)
{
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->b), TagOf(world->c), TagOf(world->frame), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, ChildrenThatWereAllMadeByEntitiesLeaveTheFrameAndTheAxis)
{
  AxisSetWorld::ExplicitOf(world->axisFeature).tags = {TagOf(world->c), TagOf(world->a), TagOf(world->b)};
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->frame), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AGlobalFrameThatIsDroppedIsNotRecorded)
{
  Drop(world->frame);
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->b), TagOf(world->c), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AGlobalFrameAmongTheChildrenKeepsItsPlace)
{
  ASSERT_TRUE(world->model.AddChild(world->setObject, world->frame));
  const VOXAnalysisExplicitAxis d = world->model.Create(world->setObject, "AXIS", "D");
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written(),
            (Tags{TagOf(world->b), TagOf(world->c), TagOf(world->frame), TagOf(d), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AGivenAxisAmongTheChildrenKeepsItsPlace)
{
  EXPECT_EQ(world->Log(world->b), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->b), TagOf(world->c), TagOf(world->frame)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AGivenAxisThatAnEntityMadeIsRecordedAllTheSame)
{
  EXPECT_EQ(world->Log(world->a), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->b), TagOf(world->c), TagOf(world->frame), TagOf(world->a)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, TheGivenAxisIsNeverPruned)
{
  Drop(world->given);
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written().back(), TagOf(world->given));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, TheGlobalFrameGivenToANewEntityIsRecordedOnce)
{
  EXPECT_EQ(world->Log(world->frame), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->b), TagOf(world->c), TagOf(world->frame)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AChildWithTheDroppedBitIsLeftOutOfANewEntity)
{
  Drop(world->b, VOXSamStatusDropped | VOXSamStatusModified);
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->c), TagOf(world->frame), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, EveryOtherStatusStays)
{
  Drop(world->b, VOXSamStatusModified | VOXSamStatusCreated | VOXSamStatusInactive | 16);
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written().front(), TagOf(world->b));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AnExistingEntityIsPrunedAndExtendedInItsOrder)
{
  VOXAnalysisExplicitAxis gone = world->model.Create(NULL_exp, "AXIS", "gone");
  const int tagOfGone = TagOf(gone);
  gone.Delete();
  Drop(world->c);
  world->LetItExist({TagOf(world->b), tagOfGone, 0, TagOf(world->c), TagOf(world->a), 0});
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->WrittenOnExisting(), (Tags{TagOf(world->b), TagOf(world->a), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, NeighbouringTagsAreAllPruned)
{
  Drop(world->a);
  Drop(world->b);
  Drop(world->c);
  world->LetItExist({TagOf(world->a), TagOf(world->b), TagOf(world->c)});
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->WrittenOnExisting(), (Tags{TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, TheLastTagIsPrunedAsWell)
{
  Drop(world->b);
  world->LetItExist({TagOf(world->a), TagOf(world->b)});
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->WrittenOnExisting(), (Tags{TagOf(world->a), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AnAxisThatIsRecordedAlreadyKeepsItsPlace)
{
  world->LetItExist({TagOf(world->given), TagOf(world->b)});
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->WrittenOnExisting(), (Tags{TagOf(world->given), TagOf(world->b)}));
}

// Pruned where it stood, then added at the end.
TEST_F(VOXSamToolsForExplicitationAxisLog, ARecordedAxisThatIsDroppedGoesToTheEnd)
{
  world->LetItExist({TagOf(world->given), TagOf(world->b)});
  Drop(world->given);
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->WrittenOnExisting(), (Tags{TagOf(world->b), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, TagsThatAnExistingEntityListsTwiceStay)
{
  world->LetItExist({TagOf(world->b), TagOf(world->b)});
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->WrittenOnExisting(), (Tags{TagOf(world->b), TagOf(world->b), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AnExistingEntityGetsNoGlobalFrameAndNoFactoryIsAsked)
{
  world->LetItExist({});
  const Tags expected{TagOf(world->given)};
  const CallLog log;
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->WrittenOnExisting(), expected);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXISamExplicit::GetExplicitModel", "VOXISamAnalysisSet::GetMemberByName(AllImplicitAxis, 0)",
                   "VOXISamExplicit::ListTags", "VOXAnalysisExplicitChild::GetTag",
                   "VOXISpecAttrAccess::GetAttrKey(ExplicitTag)", "VOXISpecAttrAccess::Reset(ExplicitTag)",
                   "VOXISpecAttrAccess::SetIntegerList(ExplicitTag)", "VOXISamExplicit::SetExplicitState(0)"}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, ANewEntityIsMadeInThisOrder)
{
  CallLog log;
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXISamExplicit::GetExplicitModel",
                   "VOXISamAnalysisSet::GetMemberByName(AllImplicitAxis, 0)",
                   "VOXISamExplicit::GetExplicitParent(1)",
                   "VOXAnalysisExplicitParent::GetChildrenList",
                   "VOXAnalysisExplicitChild::GetTag",
                   "VOXAnalysisExplicitChild::GetTag",
                   "VOXAnalysisExplicitChild::GetTag",
                   "VOXISamAnalysisSet::ListMembers(VOXISamAnalysisEntity, 0)",
                   "VOXISamExplicit::ListTags",
                   "VOXISpecObject::GetModelFactory",
                   "VOXISpecObject::GetFatherObject",
                   "VOXISamAnalysisModelFactory::CreateEntity(AllImplicitAxis, SAMImplicitAxes, the father)",
                   "VOXISpecObject::Update(whole document)",
                   "VOXISpecAttrAccess::GetAttrKey(SonsList)",
                   "VOXSpecPubServices::UpgradeSpecObjectAttribute",
                   "VOXAnalysisExplicitModel::GetGlobalRefFrame",
                   "VOXAnalysisExplicitChild::GetTag",
                   "VOXAnalysisExplicitChild::LinkWithTag",
                   "VOXAnalysisExplicitChild::GetStatus",
                   "VOXAnalysisExplicitChild::LinkWithTag",
                   "VOXAnalysisExplicitChild::GetStatus",
                   "VOXAnalysisExplicitChild::LinkWithTag",
                   "VOXAnalysisExplicitChild::GetStatus",
                   "VOXAnalysisExplicitChild::GetTag",
                   "VOXISpecAttrAccess::GetAttrKey(ExplicitTag)",
                   "VOXISpecAttrAccess::Reset(ExplicitTag)",
                   "VOXISpecAttrAccess::SetIntegerList(ExplicitTag)",
                   "VOXISamExplicit::SetExplicitState(0)"}));
}

// Each key goes before the access that gave it; the creation's reference goes once the entity stands among the sons.
TEST_F(VOXSamToolsForExplicitationAxisLog, ReferencesOfTheWritesAreGivenBackAsSoonAsEachWriteIsDone)
{
  const VOXISamAnalysisSet_var spSet(world->set);
  const CallLog log(CallLog::References::Recorded);
  EXPECT_EQ(VOXSamToolsForExplicitation::LogImplicitAxis(spSet, world->given), S_OK);
  const Calls calls = log.Only({"VOXISpecAttrAccess::", "VOXSpecPub", "Release VOXISpecAttr", "VOXISamExplicit::Set"});
  EXPECT_EQ(calls, (Calls{"VOXISpecAttrAccess::GetAttrKey(SonsList)",
                          "Release VOXISpecAttrKey", // the scripted access's own handle
                          "VOXSpecPubServices::UpgradeSpecObjectAttribute", "Release VOXISpecAttrKey",
                          "Release VOXISpecAttrAccess", "VOXISpecAttrAccess::GetAttrKey(ExplicitTag)",
                          "Release VOXISpecAttrKey", "VOXISpecAttrAccess::Reset(ExplicitTag)",
                          "VOXISpecAttrAccess::SetIntegerList(ExplicitTag)", "Release VOXISpecAttrKey",
                          "Release VOXISpecAttrAccess", "VOXISamExplicit::SetExplicitState(0)"}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, TheFatherIsGivenBackBeforeTheNewEntityIsBroughtUpToDate)
{
  long onFather = -1;
  const WhenCalled updated("VOXISpecObject::Update", [&] { onFather = Bench::References(world->father); });
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(onFather, 0);
}

TEST_F(VOXSamToolsForExplicitationAxisLog, TheCreationsReferenceIsStillHeldWhenTheEntityIsPutAmongTheSons)
{
  long onEntity = -1;
  const WhenCalled put("VOXSpecPubServices::UpgradeSpecObjectAttribute",
                       [&] { onEntity = Bench::References(world->made); });
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(onEntity, 2) << "the creation's and that of the log's handle";
}

TEST_F(VOXSamToolsForExplicitationAxisLog, TheCreationsReferenceIsGivenBack)
{
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(Bench::References(world->made), 0);
}

TEST_F(VOXSamToolsForExplicitationAxisLog, ASetWithoutFatherHasItsEntityMadeUnderNothing)
{
  AxisSetWorld::SpecOf(world->set).father = nullptr;
  const CallLog log;
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(log.Only({"VOXISamAnalysisModelFactory::"}),
            (Calls{"VOXISamAnalysisModelFactory::CreateEntity(AllImplicitAxis, SAMImplicitAxes, no father)"}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, TagsOfSeveralEntitiesAreTakenOutEachFromAListOfItsOwn)
{
  VOXBaseUnknown* const second = world->MoreComponents().Component<ScriptedSpecObject, ScriptedExplicit>();
  AxisSetWorld::ExplicitOf(second).tags = {TagOf(world->c)};
  world->SetScript().members = {world->axisFeature, second};
  std::vector<int> sizes;
  for (VOXBaseUnknown* const entity : {world->axisFeature, second})
    AxisSetWorld::ExplicitOf(entity).whenAskedForTags = [&](const VOXRawCollint& iSoFar)
    { sizes.push_back(iSoFar.Size()); };
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->b), TagOf(world->frame), TagOf(world->given)}));
  EXPECT_EQ(sizes, (std::vector<int>{0, 0}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, EveryOccurrenceOfATagOfAnEntityIsTakenOut)
{
  AxisSetWorld::ExplicitOf(world->axisFeature).tags = {TagOf(world->a), 4711, TagOf(world->c), TagOf(world->a)};
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->b), TagOf(world->frame), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, EntitiesThatAreNotExplicitAreSkipped)
{
  VOXBaseUnknown* const other = world->MoreComponents().Component<ScriptedSpecObject>();
  world->SetScript().members = {other, world->axisFeature};
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written().front(), TagOf(world->b));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AnEntityThatComesWhileTheirTagsAreListedIsSeen)
{
  VOXBaseUnknown* const late = world->MoreComponents().Component<ScriptedSpecObject, ScriptedExplicit>();
  AxisSetWorld::ExplicitOf(late).tags = {TagOf(world->b)};
  VOXListValVOXISpecObject_var* members = nullptr;
  world->SetScript().whenListed = [&](VOXListValVOXISpecObject_var& iMembers) { members = &iMembers; };
  AxisSetWorld::ExplicitOf(world->axisFeature).whenAskedForTags = [&](const VOXRawCollint&)
  { members->Append(VOXISpecObject_var(late)); };
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->c), TagOf(world->frame), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, ASetWithoutChildrenGetsTheFrameAndTheAxis)
{
  AxisSetWorld::ExplicitOf(world->set).parent = world->model.Create(NULL_exp, "AXIS_SET", "empty");
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written(), (Tags{TagOf(world->frame), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AnObjectOfTheSetThatComesWithAFailureIsUsed)
{
  class Odd : public ScriptedExplicit
  {
  public:
    HRESULT GetExplicitParent(VOXAnalysisExplicitParent& oParent, unsigned char iMode) const override
    {
      ScriptedExplicit::GetExplicitParent(oParent, iMode);
      return E_NOTIMPL;
    }
  };
  VOXBaseUnknown* const odd =
      world->MoreComponents().Component<ScriptedAnalysisSet, ScriptedSpecObject, Odd, ScriptedAttrAccess>();
  AxisSetWorld::ExplicitOf(odd) = AxisSetWorld::ExplicitOf(world->set);
  AxisSetWorld::SpecOf(odd) = AxisSetWorld::SpecOf(world->set);
  const VOXISamAnalysisSet_var spOdd(odd);
  EXPECT_EQ(VOXSamToolsForExplicitation::LogImplicitAxis(spOdd, world->given), S_OK);
  EXPECT_EQ(world->Written().size(), 5u) << "no member took its child away";
}

TEST_F(VOXSamToolsForExplicitationAxisLog, ALookUpByNameThatFailsIsASetWithoutTheEntity)
{
  world->LetItExist({TagOf(world->b)});
  EXPECT_EQ(WrittenWithout("VOXISamAnalysisSet::GetMemberByName").size(), 4u);
  EXPECT_FALSE(AxisSetWorld::AccessOf(world->existing).written);
}

TEST_F(VOXSamToolsForExplicitationAxisLog, MembersThatCannotBeListedTakeNothingAway)
{
  EXPECT_EQ(WrittenWithout("VOXISamAnalysisSet::ListMembers").front(), TagOf(world->a));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, TagsOfAnEntityThatCannotBeListedAreNotTakenAway)
{
  EXPECT_EQ(WrittenWithout("VOXISamExplicit::ListTags").front(), TagOf(world->a));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AModelWithoutGlobalFrameAddsNothingInItsPlace)
{
  EXPECT_EQ(WrittenWithout("VOXAnalysisExplicitModel::GetGlobalRefFrame"),
            (Tags{TagOf(world->b), TagOf(world->c), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AGlobalFrameWithoutTagAddsNothingInItsPlace)
{
  EXPECT_EQ(WrittenWithout("VOXAnalysisExplicitChild::GetTag", 4),
            (Tags{TagOf(world->b), TagOf(world->c), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AChildThatCannotBeLinkedIsGone)
{
  EXPECT_EQ(WrittenWithout("VOXAnalysisExplicitChild::LinkWithTag"),
            (Tags{TagOf(world->c), TagOf(world->frame), TagOf(world->given)}));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AChildWhoseStatusCannotBeReadStays)
{
  Drop(world->b);
  EXPECT_EQ(WrittenWithout("VOXAnalysisExplicitChild::GetStatus").front(), TagOf(world->b));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AStatusThatCannotBeReadIsNotThatOfTheChildBefore)
{
  Drop(world->b);
  EXPECT_EQ(WrittenWithout("VOXAnalysisExplicitChild::GetStatus", 2).front(), TagOf(world->c));
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AnEntityThatCannotBeUpdatedOrPutAmongTheSonsIsWrittenAllTheSame)
{
  for (const char* const operation : {"VOXISpecObject::Update", "VOXSpecPubServices::UpgradeSpecObjectAttribute",
                                      "VOXISamExplicit::SetExplicitState"})
    EXPECT_EQ(WrittenWithout(operation).size(), 4u) << operation;
}

TEST_F(VOXSamToolsForExplicitationAxisLog, ASetWithoutListOfSonsIsNotWritten)
{
  AxisSetWorld::AccessOf(world->set).keys.clear();
  const CallLog log;
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(log.Count("VOXSpecPubServices::"), 0);
  EXPECT_EQ(world->Written().size(), 4u);
}

TEST_F(VOXSamToolsForExplicitationAxisLog, AnEntityWithoutTagAttributeIsNotWrittenButToldItsState)
{
  AxisSetWorld::AccessOf(world->made).keys.clear();
  const CallLog log;
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_FALSE(world->IsWritten());
  EXPECT_EQ(log.Count("VOXISpecAttrAccess::Reset"), 0);
  EXPECT_EQ(log.Count("VOXISamExplicit::SetExplicitState(0)"), 1);
}

TEST_F(VOXSamToolsForExplicitationAxisLog, ASetAndAnEntityWithoutAttributesAreLeftAlone)
{
  VOXBaseUnknown* const bareSet =
      world->MoreComponents().Component<ScriptedAnalysisSet, ScriptedSpecObject, ScriptedExplicit>();
  VOXBaseUnknown* const bare = world->MoreComponents().Component<ScriptedSpecObject, ScriptedExplicit>();
  AxisSetWorld::ExplicitOf(bareSet) = AxisSetWorld::ExplicitOf(world->set);
  AxisSetWorld::SpecOf(bareSet) = AxisSetWorld::SpecOf(world->set);
  world->Factory().entity = bare;
  const VOXISamAnalysisSet_var spSet(bareSet);
  const CallLog log;
  EXPECT_EQ(VOXSamToolsForExplicitation::LogImplicitAxis(spSet, world->given), S_OK);
  EXPECT_EQ(log.Count("VOXISpecAttrAccess::"), 0);
  EXPECT_EQ(log.Count("VOXISamExplicit::SetExplicitState(0)"), 1);
}

TEST_F(VOXSamToolsForExplicitationAxisLog, WritesThatFailAreNotAnError)
{
  AxisSetWorld::AccessOf(world->made).resetResult = E_FAIL;
  AxisSetWorld::AccessOf(world->made).writeResult = E_FAIL;
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(world->Written().size(), 4u) << "a failed reset does not keep the tags from being written";
}

TEST_F(VOXSamToolsForExplicitationAxisLog, ASuccessLeavesAPendingErrorAndTheJumpFlagAlone)
{
  const PendingError pending;
  ErrorDepthHandler::_MustJump_ = 5;
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_TRUE(PendingError::Stands());
  EXPECT_EQ(ErrorDepthHandler::_MustJump_, 5);
  ErrorDepthHandler::_MustJump_ = 1;
}

TEST_F(VOXSamToolsForExplicitationAxisLog, ItsWorkIsDoneOneLevelDeep)
{
  int depth = 0;
  AxisSetWorld::ExplicitOf(world->axisFeature).whenAskedForTags = [&](const VOXRawCollint&)
  { depth = ErrorDepthHandler::_SamDepth_; };
  EXPECT_EQ(world->Log(), S_OK);
  EXPECT_EQ(depth, 1);
}
