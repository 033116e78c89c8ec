// SPDX-License-Identifier: MIT
#include "host/AnalysisCore/TraceLog.h"
#include "host/Instruments/Faults.h"
#include "tests/adaptors/AxisSetWorld.h"
#include "tests/adaptors/Reported.h"
#include "tests/support/CallLog.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <set>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ErrorLog;
using voxhost::Faults;
using voxhost::Ledger;

namespace
{

const std::string kTools = SourceOf("VOXSamToolsForExplicitation");

std::vector<Reported> Missing(const char* iWhat)
{
  return {{VOXSamErrorMissingObject, iWhat, kTools}};
}

std::vector<Reported> Propagated()
{
  return {{VOXSamErrorPropagated, "", kTools}};
}

class VOXSamToolsForExplicitationAxisFailures : public testing::Test
{
protected:
  VOXSamToolsForExplicitationAxisFailures()
  {
    ResetErrors();
    Ledger::TurnOn();
    world.emplace();
  }
  ~VOXSamToolsForExplicitationAxisFailures() override
  {
    Faults::Disarm();
    EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1);
    EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
    EXPECT_TRUE(ErrorLog::CheckFailures().empty());
    world.reset();
    EXPECT_EQ(Ledger::Read().references, 0);
    Ledger::TurnOff();
    ResetErrors();
  }

  // The reports of a record that fails.
  std::vector<Reported> Fail(const VOXISamAnalysisSet* iSet, const VOXAnalysisExplicitAxis& iAxis)
  {
    ErrorDepthHandler::_MustJump_ = 5; // the guarded exit leaves it at 1
    EXPECT_EQ(VOXSamToolsForExplicitation::LogImplicitAxis(iSet, iAxis), E_FAIL);
    EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1);
    EXPECT_FALSE(world->IsWritten());
    Faults::Disarm();
    return AllReported();
  }
  std::vector<Reported> Fail()
  {
    const VOXISamAnalysisSet_var spSet(world->set);
    return Fail(spSet, world->given);
  }
  std::vector<Reported> FailAt(const char* iOperation, int iCall = 1)
  {
    const VOXISamAnalysisSet_var spSet(world->set);
    Faults::FailOperation(iOperation, iCall, false);
    return Fail(spSet, world->given);
  }

  // A set with other faces than the world's, otherwise like it.
  template <class... Faces>
  VOXISamAnalysisSet_var OtherSet()
  {
    VOXBaseUnknown* const other = world->MoreComponents().Component<ScriptedAnalysisSet, Faces...>();
    AxisSetWorld::ExplicitOf(other) = AxisSetWorld::ExplicitOf(world->set);
    AxisSetWorld::SpecOf(other) = AxisSetWorld::SpecOf(world->set);
    return VOXISamAnalysisSet_var(other);
  }

  std::optional<AxisSetWorld> world;
};

} // namespace

TEST_F(VOXSamToolsForExplicitationAxisFailures, NoSetFailsBeforeAnythingIsTouched)
{
  const CallLog log;
  EXPECT_EQ(Fail(nullptr, VOXAnalysisExplicitAxis()), Missing("piAxisSet"));
  EXPECT_EQ(log.All(), Calls{});
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, ASetThatIsNoFeatureIsReported)
{
  const CallLog log;
  EXPECT_EQ(Fail(OtherSet<ScriptedExplicit>(), world->given), Missing("!!spSet"));
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}), Calls{});
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, ASetThatIsNeitherFeatureNorExplicitIsReportedAsNoFeature)
{
  EXPECT_EQ(Fail(OtherSet<>(), world->given), Missing("!!spSet"));
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, ASetThatIsNotExplicitIsReported)
{
  const CallLog log;
  EXPECT_EQ(Fail(OtherSet<ScriptedSpecObject>(), world->given), Missing("!!spSetExplicit"));
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}), Calls{});
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, ASetWithoutModelIsReportedBeforeItsMembersAreAskedFor)
{
  AxisSetWorld::ExplicitOf(world->set).model = nullptr;
  const CallLog log;
  EXPECT_EQ(Fail(), Missing("pModel"));
  EXPECT_EQ(log.Count("VOXISamAnalysisSet::"), 0);
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, AnExistingEntityThatIsNotExplicitIsReported)
{
  VOXBaseUnknown* const bare = world->MoreComponents().Component<ScriptedSpecObject, ScriptedAttrAccess>();
  world->SetScript().membersByName["AllImplicitAxis"] = bare;
  EXPECT_EQ(Fail(), Missing("!!spEntiExplicit"));
  EXPECT_FALSE(AxisSetWorld::AccessOf(bare).written);
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, ASetWithoutObjectInTheModelIsReported)
{
  AxisSetWorld::ExplicitOf(world->set).parent = VOXAnalysisExplicitParent();
  EXPECT_EQ(Fail(), (std::vector<Reported>{{VOXSamErrorNullExplicit, "ParentSet", kTools}}));
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, AnObjectThatCannotBeGivenIsAMissingOne)
{
  AxisSetWorld::ExplicitOf(world->set).parentResult = E_INVALIDARG;
  EXPECT_EQ(Fail(), (std::vector<Reported>{{VOXSamErrorNullExplicit, "ParentSet", kTools}}));
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, ChildrenThatCannotBeListedArePropagated)
{
  const CallLog log;
  EXPECT_EQ(FailAt("VOXAnalysisExplicitParent::GetChildrenList"), Propagated());
  EXPECT_EQ(log.Count("VOXISamAnalysisSet::ListMembers"), 0);
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, AChildWithoutTagIsPropagatedAtOnce)
{
  const CallLog log;
  EXPECT_EQ(FailAt("VOXAnalysisExplicitChild::GetTag", 2), Propagated());
  EXPECT_EQ(log.Count("VOXAnalysisExplicitChild::GetTag"), 2);
  EXPECT_EQ(log.Count("VOXISamAnalysisSet::ListMembers"), 0);
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, AMissingFactoryIsReported)
{
  AxisSetWorld::SpecOf(world->set).modelFactory = nullptr;
  const CallLog log;
  EXPECT_EQ(Fail(), Missing("!!spFacto"));
  EXPECT_EQ(log.Count("VOXISpecObject::GetFatherObject"), 0);
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, AFactoryOfAnotherSortIsReported)
{
  AxisSetWorld::SpecOf(world->set).modelFactory = world->father;
  EXPECT_EQ(Fail(), Missing("!!spFacto"));
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, AnEntityThatCannotBeMadeIsReported)
{
  world->Factory().entity = nullptr;
  const CallLog log;
  EXPECT_EQ(Fail(), Missing("!!spEntity"));
  EXPECT_EQ(Bench::References(world->father), 0) << "the father was given back before";
  EXPECT_EQ(log.Count("VOXISpecObject::Update"), 0);
}

// The creation's reference stays on what is no feature: the released behaviour.
TEST_F(VOXSamToolsForExplicitationAxisFailures, WhatIsMadeAndIsNoFeatureIsReportedAndNotReleased)
{
  VOXBaseUnknown* const noFeature = world->MoreComponents().Component<ScriptedExplicit>();
  world->Factory().entity = noFeature;
  EXPECT_EQ(Fail(), Missing("!!spEntity"));
  EXPECT_EQ(Bench::References(noFeature), 1);
  noFeature->Release();
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, ANewEntityThatIsNotExplicitIsReportedAndStaysAmongTheSons)
{
  VOXBaseUnknown* const bare = world->MoreComponents().Component<ScriptedSpecObject, ScriptedAttrAccess>();
  world->Factory().entity = bare;
  const CallLog log;
  EXPECT_EQ(Fail(), Missing("!!spEntiExplicit"));
  EXPECT_EQ(log.Count("VOXSpecPubServices::UpgradeSpecObjectAttribute"), 1);
  EXPECT_EQ(log.Count("VOXISpecObject::Update"), 1);
  EXPECT_EQ(log.Count("VOXAnalysisExplicitModel::GetGlobalRefFrame"), 0);
  EXPECT_EQ(Bench::References(bare), 0);
  EXPECT_FALSE(AxisSetWorld::AccessOf(bare).written);
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, AnEmptyAxisIsPropagatedAfterTheEntityWasMade)
{
  const VOXISamAnalysisSet_var spSet(world->set);
  const CallLog log;
  EXPECT_EQ(Fail(spSet, VOXAnalysisExplicitAxis()), Propagated());
  EXPECT_EQ(log.Count("VOXSpecPubServices::UpgradeSpecObjectAttribute"), 1) << "it stays among the sons";
  EXPECT_EQ(log.Count("VOXISamExplicit::SetExplicitState"), 0);
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, AnEmptyAxisLeavesAnExistingEntityAsItIs)
{
  world->LetItExist({TagOf(world->b)});
  const VOXISamAnalysisSet_var spSet(world->set);
  EXPECT_EQ(Fail(spSet, VOXAnalysisExplicitAxis()), Propagated());
}

namespace
{

struct Failure
{
  const char* name;
  std::function<void(AxisSetWorld&)> prepare; // may arm a fault
  bool overwrites;                            // a pending error
};

const std::vector<Failure>& AllFailures()
{
  static const std::vector<Failure> failures = {
      {"pModel", [](AxisSetWorld& w) { AxisSetWorld::ExplicitOf(w.set).model = nullptr; }, true},
      {"ParentSet", [](AxisSetWorld& w) { AxisSetWorld::ExplicitOf(w.set).parent = VOXAnalysisExplicitParent(); },
       true},
      {"children", [](AxisSetWorld&) { Faults::FailOperation("VOXAnalysisExplicitParent::GetChildrenList", 1, false); },
       false},
      {"tag of a child", [](AxisSetWorld&) { Faults::FailOperation("VOXAnalysisExplicitChild::GetTag", 1, false); },
       false},
      {"factory", [](AxisSetWorld& w) { AxisSetWorld::SpecOf(w.set).modelFactory = nullptr; }, true},
      {"entity", [](AxisSetWorld& w) { w.Factory().entity = nullptr; }, true},
      {"tag of the axis", [](AxisSetWorld&) { Faults::FailOperation("VOXAnalysisExplicitChild::GetTag", 5, false); },
       false},
  };
  return failures;
}

} // namespace

TEST_F(VOXSamToolsForExplicitationAxisFailures, APendingErrorSurvivesPropagatedFailuresAndNoOthers)
{
  for (const Failure& failure : AllFailures())
  {
    world.emplace();
    const VOXISamAnalysisSet_var spSet(world->set);
    const PendingError pending;
    failure.prepare(*world);
    const std::vector<Reported> reports = Fail(spSet, world->given);
    ASSERT_EQ(reports.size(), 1u) << failure.name;
    EXPECT_EQ(reports[0] == PendingError::AsReported(1), !failure.overwrites) << failure.name;
    EXPECT_EQ(PendingError::Stands(), !failure.overwrites) << failure.name;
  }
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, EverySiteHasALineOfItsOwn)
{
  std::set<int> lines;
  for (const Failure& failure : AllFailures())
  {
    world.emplace();
    ResetErrors();
    const VOXISamAnalysisSet_var spSet(world->set);
    failure.prepare(*world);
    Fail(spSet, world->given);
    lines.insert(ErrorLog::Reports().at(0).line);
  }
  ResetErrors();
  Fail(nullptr, world->given);
  lines.insert(ErrorLog::Reports().at(0).line);
  EXPECT_EQ(lines.size(), AllFailures().size() + 1);
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, TheReportComesOnceTheGuardIsPassedAndBeforeTheLocalsDie)
{
  world->Factory().entity = nullptr;
  int mustJump = -1;
  int depth = -1;
  long onSet = 0;
  long onFactory = 0;
  long onFather = -1;
  ErrorLog::SetReportHandler(
      [&](const voxhost::ErrorReport&)
      {
        mustJump = ErrorDepthHandler::_MustJump_;
        depth = ErrorDepthHandler::_SamDepth_;
        onSet = Bench::References(world->set);
        onFactory = Bench::References(world->factory);
        onFather = Bench::References(world->father);
      });
  Fail();
  ErrorLog::SetReportHandler({});
  EXPECT_EQ(mustJump, 1);
  EXPECT_EQ(depth, 1);
  EXPECT_EQ(onSet, 3) << "the caller's, the feature's handle and that of the explicit face";
  EXPECT_EQ(onFactory, 1);
  EXPECT_EQ(onFather, 0);
}

namespace
{

// Notes queries for attributes that go to the feature's own face, and how deep errors are when it is released.
class NotedFeature : public ScriptedSpecObject
{
public:
  using ScriptedSpecObject::QueryInterface;
  HRESULT QueryInterface(const IID& iInterface, void** oFace) override
  {
    if (iInterface == VOXISpecAttrAccess::ClassId())
      CallLog::Note("the feature is asked for its attributes");
    return ScriptedSpecObject::QueryInterface(iInterface, oFace);
  }
  unsigned long Release() override
  {
    leastDepth = std::min(leastDepth, ErrorDepthHandler::_SamDepth_);
    return ScriptedSpecObject::Release();
  }
  static inline int leastDepth = 0;
};

} // namespace

TEST_F(VOXSamToolsForExplicitationAxisFailures, FeaturesAreAskedForTheirAttributesAndAllIsReleasedUnderTheErrorHandler)
{
  const VOXISamAnalysisSet_var spSet = OtherSet<NotedFeature, ScriptedExplicit, ScriptedAttrAccess>();
  AxisSetWorld::AccessOf(spSet) = AxisSetWorld::AccessOf(world->set);
  VOXBaseUnknown* const made = world->MoreComponents().Component<NotedFeature, ScriptedExplicit, ScriptedAttrAccess>();
  AxisSetWorld::AccessOf(made) = AxisSetWorld::AccessOf(world->made);
  world->Factory().entity = made;
  const CallLog log;
  NotedFeature::leastDepth = 99;
  EXPECT_EQ(VOXSamToolsForExplicitation::LogImplicitAxis(spSet, world->given), S_OK);
  EXPECT_EQ(NotedFeature::leastDepth, 1);
  EXPECT_EQ(log.Count("the feature is asked for its attributes"), 2) << "the set and the entity";
}

TEST_F(VOXSamToolsForExplicitationAxisFailures, OneFailureAfterTheOtherIsAnOrdinaryOne)
{
  VOXTraceAccess::Clear(Tra_SAMTraceExpli);
  VOXTraceAccess::KeepEverything(Tra_SAMTraceExpli, true);
  EXPECT_EQ(Fail(nullptr, world->given), Missing("piAxisSet"));
  ResetErrors();
  EXPECT_EQ(Fail(nullptr, world->given), Missing("piAxisSet"));
  EXPECT_EQ(VOXTraceAccess::Text(Tra_SAMTraceExpli), "");
  VOXTraceAccess::KeepEverything(Tra_SAMTraceExpli, false);
  VOXTraceAccess::Clear(Tra_SAMTraceExpli);
}

TEST(VOXSamToolsForExplicitationAxisTorture, EveryFailureOfANewEntityIsSurvived)
{
  Torture torture("LogImplicitAxis");
  for (const char* const missing :
       {"!!spSet", "!!spSetExplicit", "pModel", "!!spFacto", "!!spEntity", "!!spEntiExplicit"})
    torture.Reports(VOXSamErrorMissingObject, missing, "VOXSamToolsForExplicitation");
  torture.Reports(VOXSamErrorNullExplicit, "ParentSet", "VOXSamToolsForExplicitation")
      .Reports(VOXSamErrorPropagated, "", "VOXSamToolsForExplicitation")
      .Run(
          [](TortureRun& ioRun)
          {
            AxisSetWorld world;
            const VOXISamAnalysisSet_var spSet(world.set);
            ioRun.Call([&] { return VOXSamToolsForExplicitation::LogImplicitAxis(spSet, world.given); });
            EXPECT_TRUE(ioRun.Succeeded() || !world.IsWritten());
            const bool isLeft = Bench::References(world.made) == 1;
            const auto& reports = ErrorLog::Reports();
            EXPECT_EQ(Bench::References(world.made), isLeft ? 1 : 0);
            EXPECT_TRUE(!isLeft || (reports.size() == 1 && reports[0].text == "!!spEntity"));
            if (isLeft) // kept on purpose: what was made and is no feature is not released
              world.made->Release();
          });
}

TEST(VOXSamToolsForExplicitationAxisTorture, EveryFailureOfAnExistingEntityIsSurvived)
{
  Torture torture("LogImplicitAxis");
  for (const char* const missing : {"!!spSet", "!!spSetExplicit", "pModel", "!!spEntiExplicit"})
    torture.Reports(VOXSamErrorMissingObject, missing, "VOXSamToolsForExplicitation");
  for (const char* const missing : {"!!spFacto", "!!spEntity"})
    torture.MayReport(VOXSamErrorMissingObject, missing, "VOXSamToolsForExplicitation");
  torture.Reports(VOXSamErrorPropagated, "", "VOXSamToolsForExplicitation")
      .MayReport(VOXSamErrorNullExplicit, "ParentSet", "VOXSamToolsForExplicitation")
      .Run(
          [](TortureRun& ioRun)
          {
            AxisSetWorld world;
            world.LetItExist({TagOf(world.b), TagOf(world.c)});
            const VOXISamAnalysisSet_var spSet(world.set);
            ioRun.Call([&] { return VOXSamToolsForExplicitation::LogImplicitAxis(spSet, world.given); });
            EXPECT_TRUE(ioRun.Succeeded() || !world.IsWritten());
          });
}
