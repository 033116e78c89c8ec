// SPDX-License-Identifier: MIT
#include "VOXEAnalysisGroup.h"

#include "host/AnalysisCore/TraceLog.h"
#include "host/Instruments/Faults.h"
#include "tests/adaptors/GroupWorld.h"
#include "tests/adaptors/Reported.h"
#include "tests/support/Memory.h"

#include <optional>
#include <set>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ErrorLog;
using voxhost::Faults;
using voxhost::Ledger;

namespace
{

const std::string kGroup = SourceOf("VOXEAnalysisGroup");
const std::string kTools = SourceOf("VOXSamGroupTools");

class VOXEAnalysisGroupFailures : public testing::Test
{
protected:
  VOXEAnalysisGroupFailures()
  {
    ResetErrors();
    Ledger::TurnOn();
    world.emplace();
  }

  ~VOXEAnalysisGroupFailures() override
  {
    EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1);
    EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
    EXPECT_EQ(Ledger::Read().arraysOut, 0);
    world.reset();
    EXPECT_EQ(Ledger::Read().references, 0);
    Ledger::TurnOff();
    ResetErrors();
  }

  // The reports of a content that fails.
  std::vector<Reported> Fail(VOXSamValue iValue = VOXSamValueNode, const char* iEntityType = "NODE")
  {
    const Content content(*world, iValue, iEntityType);
    Faults::Disarm();
    Memory::Disarm();
    EXPECT_EQ(content.Result(), E_FAIL);
    EXPECT_EQ(content.Collector(), nullptr);
    return AllReported();
  }

  void TakePointersFromTheFeature()
  {
    world->Spec().upToDate = 0;
    world->Told().pointers = {world->Node(1)};
  }

  std::vector<Reported> FailAt(const char* iOperation)
  {
    Faults::FailOperation(iOperation, 1, false);
    return Fail();
  }

  std::optional<GroupWorld> world;
};

// The one report of a kind-1 site of GetContent.
std::vector<Reported> OnePropagated()
{
  return {{VOXSamErrorPropagated, "", kGroup}};
}

} // namespace

TEST_F(VOXEAnalysisGroupFailures, MembershipThatFailsIsPropagated)
{
  world->Told().kindsResult = E_NOTIMPL;
  EXPECT_EQ(Fail(), OnePropagated());
}

TEST_F(VOXEAnalysisGroupFailures, MembershipIsAskedThroughTheVirtualTable)
{
  class Refusing : public ScriptedGroup
  {
  public:
    HRESULT IsGroupOf(VOXSamValue, VOXString, unsigned char& oIsGroupOf) const override
    {
      oIsGroupOf = 1;
      return E_NOTIMPL;
    }
  };
  Bench bench;
  const VOXISamGroup_var spGroup(bench.Component<Refusing>());
  const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
  EXPECT_EQ(spGroup->GetContent(VOXSamValueNode, "NODE", collector), E_FAIL);
  EXPECT_EQ(collector, nullptr);
  EXPECT_EQ(AllReported(), OnePropagated());
}

TEST_F(VOXEAnalysisGroupFailures, AnObjectOfTheModelThatCannotBeGivenIsPropagated)
{
  world->Explicit().parentResult = E_INVALIDARG;
  EXPECT_EQ(Fail(), OnePropagated());
}

TEST_F(VOXEAnalysisGroupFailures, ASearchForACollectorThatFailsIsPropagated)
{
  EXPECT_EQ(FailAt("VOXAnalysisExplicitParent::FindEntityCollector"), OnePropagated());
}

TEST_F(VOXEAnalysisGroupFailures, ChildrenThatCannotBeListedArePropagated)
{
  EXPECT_EQ(FailAt("VOXAnalysisExplicitParent::GetChildrenList"), OnePropagated());
}

TEST_F(VOXEAnalysisGroupFailures, PointersThatTheFeatureCannotGiveArePropagatedAndFreed)
{
  TakePointersFromTheFeature();
  world->Told().indices = {1};
  world->Told().pointersResult = E_NOTIMPL;
  EXPECT_EQ(Fail(), OnePropagated());
}

TEST_F(VOXEAnalysisGroupFailures, EveryStepOfTheNewCollectorIsPropagatedAndTheCollectorDestroyed)
{
  for (const char* const step : {"VOXAnalysisCollectorRoot::SetContext", "VOXAnalysisEntityCollector::SetDefinition",
                                 "VOXAnalysisEntityCollector::SetExplicitPointers"})
  {
    ResetErrors();
    const auto before = Ledger::Read().collectors;
    EXPECT_EQ(FailAt(step), OnePropagated()) << step;
    EXPECT_EQ(Ledger::Read().collectors, before) << step;
    EXPECT_EQ(world->Attached(VOXSamValueNode, "NODE"), nullptr) << step;
  }
}

TEST_F(VOXEAnalysisGroupFailures, NoMemoryForTheCollectorIsAMissingObject)
{
  TakePointersFromTheFeature();
  Memory::FailSize(sizeof(VOXAnalysisEntityCollector));
  EXPECT_EQ(Fail(), (std::vector<Reported>{{VOXSamErrorMissingObject, "Collector", kGroup}}));
}

TEST_F(VOXEAnalysisGroupFailures, NoMemoryForTheCollectorReplacesAPendingError)
{
  TakePointersFromTheFeature();
  const PendingError pending;
  Memory::FailSize(sizeof(VOXAnalysisEntityCollector));
  EXPECT_EQ(Fail(), (std::vector<Reported>{{VOXSamErrorMissingObject, "Collector", kGroup}}));
  EXPECT_EQ(ErrorDepthHandler::_ier_, VOXSamErrorMissingObject);
  EXPECT_EQ(ErrorDepthHandler::_i_err_, -1);
}

TEST_F(VOXEAnalysisGroupFailures, APendingErrorSurvivesEveryPropagatedOne)
{
  for (const char* const step :
       {"VOXISamGroup::GetValueKinds", "VOXISamExplicit::GetExplicitParent",
        "VOXAnalysisExplicitParent::FindEntityCollector", "VOXAnalysisExplicitParent::GetChildrenList",
        "VOXAnalysisCollectorRoot::SetContext", "VOXAnalysisEntityCollector::SetDefinition",
        "VOXAnalysisEntityCollector::SetExplicitPointers"})
  {
    const PendingError pending;
    EXPECT_EQ(FailAt(step), (std::vector<Reported>{PendingError::AsReported(1)})) << step;
    EXPECT_TRUE(PendingError::Stands()) << step;
  }
}

TEST_F(VOXEAnalysisGroupFailures, AChildListWithoutModelIsAMissingObjectThatThenIsPropagated)
{
  EXPECT_EQ(FailAt("VOXAnalysisExplicitData::GetModel"),
            (std::vector<Reported>{{VOXSamErrorMissingObject, "ExpModel", kGroup, 2},
                                   {VOXSamErrorPropagated, "", kGroup, 1}}));
}

TEST_F(VOXEAnalysisGroupFailures, AMissingObjectIsReportedOnEveryLevelByAHostThatKeepsIt)
{
  ErrorLog::SetResetsPendingError(false);
  EXPECT_EQ(FailAt("VOXAnalysisExplicitData::GetModel"),
            (std::vector<Reported>{{VOXSamErrorMissingObject, "ExpModel", kGroup, 2},
                                   {VOXSamErrorMissingObject, "ExpModel", kGroup, 1}}));
}

TEST_F(VOXEAnalysisGroupFailures, AFailureWhileTheChildrenAreReadIsReportedOnBothLevels)
{
  for (const char* const step :
       {"VOXSamIdentityEnum", "VOXAnalysisExplicitChild::GetPhysicalType", "VOXAnalysisExplicitEntity::GetApplyTo"})
  {
    ResetErrors();
    EXPECT_EQ(FailAt(step),
              (std::vector<Reported>{{VOXSamErrorPropagated, "", kGroup, 2}, {VOXSamErrorPropagated, "", kGroup, 1}}))
        << step;
  }
}

TEST_F(VOXEAnalysisGroupFailures, AnUnknownKeywordFailsOnceThereIsAChildToRead)
{
  EXPECT_EQ(Fail(VOXSamValueNode, "CORNER"),
            (std::vector<Reported>{{VOXSamErrorPropagated, "", kGroup, 2}, {VOXSamErrorPropagated, "", kGroup, 1}}));
}

TEST_F(VOXEAnalysisGroupFailures, AKindWithoutGroupTypesIsReportedOnThreeLevels)
{
  EXPECT_EQ(Fail(VOXSamValueMesh, "NODE"), (std::vector<Reported>{{VOXSamErrorEnumValue, "(null)", kTools, 3, 2},
                                                                  {VOXSamErrorPropagated, "", kGroup, 2},
                                                                  {VOXSamErrorPropagated, "", kGroup, 1}}));
}

TEST_F(VOXEAnalysisGroupFailures, TheFirstErrorIsReportedOnEveryLevelByAHostThatKeepsIt)
{
  ErrorLog::SetResetsPendingError(false);
  EXPECT_EQ(Fail(VOXSamValueElement, "NODE"), (std::vector<Reported>{{VOXSamErrorKeyword, "NODE", kTools, 3},
                                                                     {VOXSamErrorKeyword, "NODE", kTools, 2},
                                                                     {VOXSamErrorKeyword, "NODE", kTools, 1}}));
}

TEST_F(VOXEAnalysisGroupFailures, MissingRulesAreReportedOnThreeLevels)
{
  EXPECT_EQ(FailAt("VOXAnalysisExplicitModel::GetRulesData"),
            (std::vector<Reported>{{VOXSamErrorMissingObject, "RulesData", kTools, 3},
                                   {VOXSamErrorPropagated, "", kGroup, 2},
                                   {VOXSamErrorPropagated, "", kGroup, 1}}));
}

TEST_F(VOXEAnalysisGroupFailures, EverySiteHasALineOfItsOwn)
{
  const std::vector<const char*> steps{
      "VOXISamGroup::GetValueKinds",
      "VOXISamExplicit::GetExplicitParent",
      "VOXAnalysisExplicitParent::FindEntityCollector",
      "VOXAnalysisExplicitParent::GetChildrenList",
      "VOXAnalysisExplicitData::GetModel",
      "VOXSamIdentityEnum",
      "VOXAnalysisExplicitChild::GetPhysicalType",
      "VOXAnalysisExplicitEntity::GetApplyTo",
  };
  std::set<int> lines;
  for (const char* const step : steps)
  {
    ResetErrors();
    FailAt(step);
    lines.insert(ErrorLog::Reports().front().line);
  }
  EXPECT_EQ(lines.size(), steps.size());
}

TEST_F(VOXEAnalysisGroupFailures, TheCleanUpRunsBeforeTheReportWithJumpsOff)
{
  TakePointersFromTheFeature();
  world->Told().pointersResult = E_FAIL;
  int mustJump = -1;
  int depth = -1;
  std::size_t reports = 99;
  {
    const WhenArraysReturn look(
        [&]
        {
          mustJump = ErrorDepthHandler::_MustJump_;
          depth = ErrorDepthHandler::_SamDepth_;
          reports = ErrorLog::Reports().size();
        });
    Fail();
  }
  EXPECT_EQ(mustJump, 0);
  EXPECT_EQ(depth, 1);
  EXPECT_EQ(reports, 0u);
}

TEST_F(VOXEAnalysisGroupFailures, ASuccessLeavesJumpsOnWhileItFrees)
{
  int mustJump = -1;
  const WhenArraysReturn look([&] { mustJump = ErrorDepthHandler::_MustJump_; });
  const Content content(*world, VOXSamValueNode, "NODE");
  EXPECT_EQ(content.Result(), S_OK);
  EXPECT_EQ(mustJump, 1);
}

TEST_F(VOXEAnalysisGroupFailures, TheInnerExitWithoutCleanUpLeavesJumpsAlone)
{
  ErrorDepthHandler::_MustJump_ = 5;
  int seen = -1;
  ErrorLog::SetReportHandler(
      [&](const voxhost::ErrorReport& iReport)
      {
        if (iReport.depth == 2)
          seen = ErrorDepthHandler::_MustJump_;
      });
  FailAt("VOXSamIdentityEnum");
  ErrorLog::SetReportHandler({});
  EXPECT_EQ(seen, 5);
  EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1) << "the guarded exit sets it";
}

namespace
{

constexpr char kBanner[] = "**************************************************************\n"
                           "* WARNING : Programming Error in Error Management            *\n"
                           "*   Cpu loop. Do not use error macro in VOXSamReturnE_FAIL_  *\n"
                           "**************************************************************\n";

// Keeps what is put on the explanation channel although it is not active.
class Explanations
{
public:
  Explanations()
  {
    VOXTraceAccess::Clear(Tra_SAMTraceExpli);
    VOXTraceAccess::KeepEverything(Tra_SAMTraceExpli, true);
  }
  ~Explanations()
  {
    VOXTraceAccess::KeepEverything(Tra_SAMTraceExpli, false);
    VOXTraceAccess::Clear(Tra_SAMTraceExpli);
  }
  Explanations(const Explanations&) = delete;
  Explanations& operator=(const Explanations&) = delete;

  static std::string Text() { return VOXTraceAccess::Text(Tra_SAMTraceExpli); }
};

} // namespace

// A clean-up that calls the failing operation again: the inner exit warns and skips its own clean-up.
TEST_F(VOXEAnalysisGroupFailures, ACleanUpThatFailsInTheSameOperationIsToldAndNotRepeated)
{
  const Explanations explanations;
  TakePointersFromTheFeature();
  world->Told().pointersResult = E_FAIL;
  HRESULT inner = S_OK;
  const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
  {
    const WhenArraysReturn failAgain(
        [&]
        {
          world->Told().kindsResult = E_NOTIMPL; // fails before it is given any array
          inner = world->Group()->GetContent(VOXSamValueNode, "NODE", collector);
        });
    EXPECT_EQ(Fail().size(), 2u) << "both report";
  }
  EXPECT_EQ(inner, E_FAIL);
  EXPECT_EQ(collector, nullptr);
  EXPECT_EQ(Explanations::Text(), kBanner);
  ASSERT_EQ(ErrorLog::CheckFailures().size(), 1u);
  const voxhost::CheckReport check = ErrorLog::CheckFailures().front();
  EXPECT_EQ(check.text, "ExpressionCheck:InfiniteLoopDetected == 0");
  EXPECT_EQ(check.file, kGroup);
  EXPECT_GT(check.line, 0);
}

TEST_F(VOXEAnalysisGroupFailures, TheCounterOfTheGuardIsSharedByAllGroups)
{
  const Explanations explanations;
  GroupWorld other;
  other.Told().kindsResult = E_NOTIMPL;
  TakePointersFromTheFeature();
  world->Told().pointersResult = E_FAIL;
  {
    const WhenArraysReturn failElsewhere([&] { const Content inner(other, VOXSamValueNode, "NODE"); });
    Fail();
  }
  EXPECT_EQ(Explanations::Text(), kBanner);
}

TEST_F(VOXEAnalysisGroupFailures, TheNextOrdinaryErrorCleansUpAgain)
{
  const Explanations explanations;
  TakePointersFromTheFeature();
  world->Told().pointersResult = E_FAIL;
  {
    const WhenArraysReturn failAgain(
        [&]
        {
          world->Told().kindsResult = E_NOTIMPL;
          const Content inner(*world, VOXSamValueNode, "NODE");
        });
    Fail();
  }
  ResetErrors();
  VOXTraceAccess::Clear(Tra_SAMTraceExpli);
  world->Told().kindsResult = S_OK;
  EXPECT_EQ(Fail(), OnePropagated()); // the array is freed again: the fixture looks at the ledger
  EXPECT_EQ(Explanations::Text(), "");
  EXPECT_TRUE(ErrorLog::CheckFailures().empty());
}

TEST_F(VOXEAnalysisGroupFailures, AnOrdinaryErrorExplainsNothing)
{
  const Explanations explanations;
  FailAt("VOXAnalysisExplicitParent::GetChildrenList");
  EXPECT_EQ(Explanations::Text(), "");
}

namespace
{

Torture GroupTorture()
{
  Torture torture("GetContent");
  torture.Reports(VOXSamErrorPropagated, "", "VOXEAnalysisGroup");
  return torture;
}

void CheckAndGiveBack(const TortureRun& iRun, const VOXAnalysisEntityCollector* iCollector)
{
  EXPECT_NE(iCollector, Poison<const VOXAnalysisEntityCollector>());
  EXPECT_TRUE(iRun.Succeeded() || iCollector == nullptr);
  if (iCollector == nullptr)
    return;
  EXPECT_EQ(ObjectsOf(*iCollector).size(), 2u);
  iCollector->Release();
}

} // namespace

TEST(VOXEAnalysisGroupTorture, ContentFromTheChildrenSurvivesEveryFailure)
{
  Torture torture = GroupTorture();
  torture.Reports(VOXSamErrorMissingObject, "ExpModel", "VOXEAnalysisGroup")
      .Reports(VOXSamErrorMissingObject, "Collector", "VOXEAnalysisGroup")
      .Reports(VOXSamErrorMissingObject, "RulesData", "VOXSamGroupTools")
      .Reports(VOXSamErrorPropagated, "", "VOXSamGroupTools");
  torture.Run(
      [](TortureRun& ioRun)
      {
        GroupWorld world;
        world.Told().pointers = {world.Node(3), world.Node(1)}; // for when a failing call says that it is out of date
        const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
        ioRun.Call([&] { return world.Group()->GetContent(VOXSamValueNode, "NODE", collector); });
        CheckAndGiveBack(ioRun, collector);
      });
}

TEST(VOXEAnalysisGroupTorture, ContentFromTheFeatureSurvivesEveryFailure)
{
  GroupTorture()
      .Reports(VOXSamErrorMissingObject, "Collector", "VOXEAnalysisGroup")
      .Run(
          [](TortureRun& ioRun)
          {
            GroupWorld world;
            world.Spec().upToDate = 0;
            world.Told().pointers = {world.Node(3), world.Node(1)};
            world.Told().indices = {1, 2};
            const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
            ioRun.Call([&] { return world.Group()->GetContent(VOXSamValueNode, "NODE", collector); });
            CheckAndGiveBack(ioRun, collector);
          });
}

TEST(VOXEAnalysisGroupTorture, AReusedContentSurvivesEveryFailure)
{
  GroupTorture()
      .MayReport(VOXSamErrorMissingObject, "Collector", "VOXEAnalysisGroup")
      .MayReport(VOXSamErrorMissingObject, "ExpModel", "VOXEAnalysisGroup")
      .MayReport(VOXSamErrorMissingObject, "RulesData", "VOXSamGroupTools")
      .MayReport(VOXSamErrorPropagated, "", "VOXSamGroupTools")
      .Run(
          [](TortureRun& ioRun)
          {
            GroupWorld world;
            world.Told().pointers = {world.Node(3), world.Node(1)};
            world.Attach(VOXSamValueNode, "NODE", {world.Node(2), world.Node(4)});
            const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
            ioRun.Call([&] { return world.Group()->GetContent(VOXSamValueNode, "NODE", collector); });
            CheckAndGiveBack(ioRun, collector);
          });
}

TEST(VOXEAnalysisGroupTorture, ReplacingAnOutdatedContentSurvivesEveryFailure)
{
  GroupTorture()
      .Reports(VOXSamErrorMissingObject, "Collector", "VOXEAnalysisGroup")
      .Reports(VOXSamErrorMissingObject, "ExpModel", "VOXEAnalysisGroup")
      .Reports(VOXSamErrorMissingObject, "RulesData", "VOXSamGroupTools")
      .Reports(VOXSamErrorPropagated, "", "VOXSamGroupTools")
      .Run(
          [](TortureRun& ioRun)
          {
            GroupWorld world;
            world.Told().pointers = {world.Node(3), world.Node(1)};
            world.Attach(VOXSamValueNode, "NODE", {world.Node(1)});
            world.Model().Touch(world.Entity());
            const VOXAnalysisEntityCollector* collector = Poison<const VOXAnalysisEntityCollector>();
            ioRun.Call([&] { return world.Group()->GetContent(VOXSamValueNode, "NODE", collector); });
            CheckAndGiveBack(ioRun, collector);
          });
}
