// SPDX-License-Identifier: MIT
// How the operations leave when they fail: sites, pending errors, guarded exits.
#include "tests/adaptors/CharacWorld.h"
#include "tests/adaptors/TraceReader.h"
#include "tests/support/Memory.h"

#include <set>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ErrorLog;
using voxhost::Faults;

namespace
{

constexpr char kTypes[] = "VOXECharacCollector::GetAvailablePhysicalTypes";
constexpr char kVersions[] = "VOXECharacCollector::GetAvailableVersions";
constexpr char kPositions[] = "VOXECharacCollector::GetAvailablePositions";
constexpr char kQuery[] = "VOXBaseUnknown::QueryInterface";
constexpr char kSetArchiver[] = "VOXAnalysisCharacCollector::SetArchiver";

// One way to fail: an operation, a host call that fails in it, and how often before that it works.
struct Way
{
  const char* call;
  int nth;
  std::function<HRESULT(CharacWorld&)> operation;
};

HRESULT Offers(CharacWorld& ioWorld)
{
  unsigned char available = 0;
  return ioWorld->IsAnAvailableDefinition(11, Version(1), "NODE", available);
}

HRESULT Context(CharacWorld& ioWorld)
{
  VOXAnalysisExplicitParent context;
  return ioWorld->GetContext(context);
}

HRESULT Model(CharacWorld& ioWorld)
{
  const VOXAnalysisExplicitModel* model = nullptr;
  return ioWorld->GetContextModel(model);
}

HRESULT ThirdModel(CharacWorld& ioWorld)
{
  static const voxhost::ExplicitModel m1;
  static const voxhost::ExplicitModel m2;
  static const voxhost::ExplicitModel m3;
  ioWorld->SetContextModel(&m1);
  ioWorld->SetContextModel(&m2);
  return ioWorld->SetContextModel(&m3);
}

HRESULT DeleteOne(CharacWorld& ioWorld)
{
  const VOXAnalysisCharacCollector* collector = &ioWorld.NewCollector();
  return ioWorld->DeleteCharacCollector(collector);
}

HRESULT DeleteAll(CharacWorld& ioWorld)
{
  return ioWorld->DeleteAll();
}

HRESULT Build(CharacWorld& ioWorld)
{
  return CharacArea::Build(ioWorld.Adaptor());
}

HRESULT Locate(CharacWorld& ioWorld)
{
  Build(ioWorld);
  return CharacArea::Locate(ioWorld.Adaptor(), 11, Version(1), "NODE").result;
}

HRESULT Get(CharacWorld& ioWorld)
{
  VOXAnalysisCollectorArchiver* archiver = nullptr;
  return ioWorld.Adaptor().GetCollectorArchiver(11, Version(1), "NODE", archiver);
}

HRESULT Set(CharacWorld& ioWorld)
{
  return ioWorld.Keep(nullptr);
}

HRESULT ForAll(CharacWorld& ioWorld)
{
  unsigned char forAll = 0;
  return ioWorld.Adaptor().CollectorIsForAllEntities(&ioWorld.NewCollector(), forAll);
}

HRESULT Assign(CharacWorld& ioWorld)
{
  return ioWorld.Assign(ioWorld.NewCollector());
}

// Every site of kind 1 that a failing call can reach at the outermost level. In a search the types are asked for a second
// time, the first having been for the area.
const std::vector<Way> kPropagating{
    {kTypes, 1, Offers},
    {kVersions, 1, Offers},
    {kPositions, 1, Offers},
    {"VOXAnalysisExplicitListUsr::CreateList", 1, Context},
    {"VOXISamExplicit::ListParents", 1, Context},
    {"VOXAnalysisExplicitListUsr::Delete", 1, Context},
    {"VOXISamExplicit::ListParents", 1, Model},
    {"VOXECharacCollector::IsAuthorizedToArchiveCollectors", 1, ThirdModel},
    {"VOXISamExplicit::ListParents", 1, DeleteOne},
    {"VOXAnalysisExplicitParent::DeleteCharacCollector", 1, DeleteOne},
    {"VOXISamExplicit::ListParents", 1, DeleteAll},
    {"VOXAnalysisExplicitParent::DeleteAll", 1, DeleteAll},
    {kTypes, 1, Build},
    {kVersions, 1, Build},
    {kPositions, 1, Build},
    {kTypes, 2, Locate},
    {kVersions, 3, Locate},
    {kTypes, 1, Get},
    {kTypes, 2, Get},
    {kTypes, 1, Set},
    {kTypes, 2, Set},
    {"VOXAnalysisCollectorRoot::GetNbEntities", 1, ForAll},
    {"VOXAnalysisCharacCollector::GetEntitiesFLags", 1, ForAll},
    {"VOXECharacCollector::IsAuthorizedToArchiveCollectors", 1, Assign},
    {"VOXAnalysisCollectorRoot::GetNbEntities", 1, Assign},
    {"VOXAnalysisCharacCollector::GetDefinition", 1, Assign},
    {"VOXAnalysisCharacCollector::GetArchiver", 1, Assign},
    {kTypes, 1, Assign},
    {"VOXISamExplicit::ListParents", 1, Assign},
    {kSetArchiver, 1, Assign},
    {kTypes, 3, Assign},
};

class VOXECharacCollectorFailures : public CharacTest
{
protected:
  ~VOXECharacCollectorFailures() override { EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1); }

  void Fail(const Way& iWay)
  {
    CharacWorld one;
    const auto archivers = Archivers();
    Faults::FailOperation(iWay.call, iWay.nth, false);
    EXPECT_EQ(iWay.operation(one), E_FAIL) << iWay.call;
    Faults::Disarm();
    if (std::string_view(iWay.call) == kSetArchiver)
    {
      EXPECT_EQ(Archivers(), archivers + 1);
      ++kept.archivers;
    }
  }
};

} // namespace

TEST_F(VOXECharacCollectorFailures, APendingErrorSurvivesEveryPropagatedOne)
{
  for (const Way& way : kPropagating)
  {
    const PendingError pending;
    Fail(way);
    EXPECT_EQ(AllReported().back(), PendingError::AsReported(1)) << way.call;
    EXPECT_TRUE(PendingError::Stands()) << way.call;
  }
}

TEST_F(VOXECharacCollectorFailures, EverySiteHasALineOfItsOwn)
{
  std::set<int> lines;
  for (const Way& way : kPropagating)
  {
    ResetErrors();
    Fail(way);
    EXPECT_EQ(AllReported().back(), (Reported{VOXSamErrorPropagated, "", kCharac})) << way.call;
    EXPECT_TRUE(lines.insert(ErrorLog::Reports().back().line).second) << way.call;
  }
}

TEST_F(VOXECharacCollectorFailures, ConditionsAndMissingObjectsReplaceAPendingError)
{
  const std::vector<std::pair<Way, Reported>> ways{
      {{kQuery, 2, Context}, {VOXSamErrorMissingObject, "Explicit", kCharac}},
      {{"VOXISamExplicit::GetExplicitModel", 1, Context},
       {VOXSamErrorMissingObject, "CurrentModel = Explicit->GetExplicitModel()", kCharac}},
      {{kQuery, 1, Build}, {VOXSamErrorCondition, "(aVOXICharacCollector = GetImpl()) == NULL_var", kCharac}},
      {{kQuery, 2, Locate}, {VOXSamErrorCondition, "(aVOXICharacCollector = GetImpl()) == NULL_var", kCharac}},
      {{"VOXAnalysisExplicitData::GetModel", 1, Assign},
       {VOXSamErrorMissingObject, "CurrentModel = Context.GetModel()", kCharac}},
      {{kQuery, 5, Assign}, {VOXSamErrorCondition, "(aSpecObject = GetImpl()) == NULL_var", kCharac}},
  };
  for (const auto& [way, expected] : ways)
  {
    const PendingError pending;
    Fail(way);
    EXPECT_EQ(AllReported(), (std::vector<Reported>{expected})) << way.call;
    EXPECT_EQ(ErrorDepthHandler::_i_err_, -1) << way.call;
  }
}

TEST_F(VOXECharacCollectorFailures, TracedConditionsReplaceAPendingErrorToo)
{
  {
    const PendingError pending;
    world->Explicit().parents.clear();
    EXPECT_EQ(Context(*world), E_FAIL);
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, "oContext == NULL_exp", kCharac}}));
  }
  for (const auto& operation : {Get, Set})
  {
    const PendingError pending;
    world->Told().types.clear();
    EXPECT_EQ(operation(*world), E_FAIL);
    EXPECT_EQ(
        AllReported(),
        (std::vector<Reported>{{VOXSamErrorCondition,
                                "oPhysicalTypeIndex == -1 || oVersionIndex == -1 || oPositionIndex == -1", kCharac}}));
  }
}

TEST_F(VOXECharacCollectorFailures, ExplanationsAreForWhoeverReadsThemWhileErrorsAreDisplayed)
{
  world->Told().types.clear();
  for (const bool displayed : {false, true})
    for (const bool active : {false, true})
    {
      TraceReader reader(Tra_SAMTraceExpli, displayed, active);
      reader.ReadEverything();
      Get(*world);
      EXPECT_EQ(reader.Text(), displayed && active ? "Can't Locate Archiver ...\n" : "");
      EXPECT_EQ(VOXSamDisplayError(displayed ? 1 : 0), displayed ? 1 : 0);
    }
}

TEST_F(VOXECharacCollectorFailures, OnlyTheContextAndTheBuildLeaveThroughAGuardedExit)
{
  for (const auto& [way, isGuarded] : std::vector<std::pair<Way, bool>>{
           {{kQuery, 2, Context}, true},
           {{"VOXISamExplicit::GetExplicitModel", 1, Context}, true},
           {{"VOXAnalysisExplicitListUsr::CreateList", 1, Context}, true},
           {{"VOXISamExplicit::ListParents", 1, Context}, true},
           {{kTypes, 1, Build}, true},
           {{kQuery, 1, Build}, true},
           {{kTypes, 1, Offers}, false},
           {{kTypes, 2, Locate}, false},
           {{kTypes, 2, Get}, false},
           {{kTypes, 2, Set}, false},
           {{"VOXECharacCollector::IsAuthorizedToArchiveCollectors", 1, ThirdModel}, false},
           {{"VOXAnalysisExplicitParent::DeleteAll", 1, DeleteAll}, false},
           {{"VOXAnalysisExplicitParent::DeleteCharacCollector", 1, DeleteOne}, false},
           {{"VOXAnalysisCollectorRoot::GetNbEntities", 1, ForAll}, false},
           {{"VOXAnalysisCharacCollector::GetDefinition", 1, Assign}, false}})
  {
    ResetErrors();
    ErrorDepthHandler::_MustJump_ = 5;
    Fail(way);
    EXPECT_EQ(ErrorDepthHandler::_MustJump_, isGuarded ? 1 : 5) << way.call;
  }
  ErrorDepthHandler::_MustJump_ = 1;
}

TEST_F(VOXECharacCollectorFailures, ASuccessLeavesJumpsAlone)
{
  ErrorDepthHandler::_MustJump_ = 5;
  EXPECT_EQ(Context(*world), S_OK);
  EXPECT_EQ(Build(*world), S_OK);
  EXPECT_EQ(Assign(*world), S_OK);
  EXPECT_EQ(ErrorDepthHandler::_MustJump_, 5);
  ErrorDepthHandler::_MustJump_ = 1;
}

TEST_F(VOXECharacCollectorFailures, TheEndOfAnAdaptorReportsNothing)
{
  {
    CharacWorld other;
    EXPECT_EQ(Assign(other), S_OK);
  }
  EXPECT_TRUE(AllReported().empty());
  EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
}

namespace
{

// Gives a test the moment in which the interface is given back: the clean-up of GetContext.
class WatchedExplicit : public ScriptedExplicit
{
public:
  unsigned long Release() override
  {
    const std::function<void()> watch = std::exchange(whenReleased, {});
    if (watch)
      watch();
    return ScriptedExplicit::Release();
  }

  static std::function<void()> whenReleased; // once
};
std::function<void()> WatchedExplicit::whenReleased;

class WatchedWorld
{
public:
  WatchedWorld() : feature(bench.Component<CharacTie<ScriptedCharac>, WatchedExplicit>()), collector(feature) {}
  HRESULT Fail()
  {
    VOXAnalysisExplicitParent context;
    return collector->GetContext(context); // without a model
  }

  Bench bench;
  VOXBaseUnknown* feature;
  VOXICharacCollector_var collector;
};

} // namespace

TEST_F(VOXECharacCollectorFailures, TheCleanUpOfTheContextRunsBeforeTheReportWithJumpsOff)
{
  WatchedWorld watched;
  int mustJump = -1;
  std::size_t reports = 99;
  WatchedExplicit::whenReleased = [&]
  {
    mustJump = ErrorDepthHandler::_MustJump_;
    reports = ErrorLog::Reports().size();
  };
  EXPECT_EQ(watched.Fail(), E_FAIL);
  EXPECT_EQ(mustJump, 0);
  EXPECT_EQ(reports, 0u);
}

TEST_F(VOXECharacCollectorFailures, ACleanUpOfTheContextThatFailsInTheContextAgainIsToldAndNotRepeated)
{
  WatchedWorld watched;
  WatchedWorld other; // the guard is shared by all adaptors
  for (WatchedWorld* const again : {&watched, &other})
  {
    ResetErrors();
    TraceReader reader(Tra_SAMTraceExpli, false, false);
    reader.ReadEverything();
    HRESULT inner = S_OK;
    WatchedExplicit::whenReleased = [&] { inner = again->Fail(); };
    EXPECT_EQ(watched.Fail(), E_FAIL);
    EXPECT_EQ(inner, E_FAIL);
    EXPECT_EQ(AllReported().size(), 2u) << "both report";
    EXPECT_EQ(reader.Text(), kLoopBanner);
    ASSERT_EQ(ErrorLog::CheckFailures().size(), 1u);
    EXPECT_EQ(ErrorLog::CheckFailures().front().text, "ExpressionCheck:InfiniteLoopDetected == 0");
    EXPECT_EQ(ErrorLog::CheckFailures().front().file, kCharac);
    EXPECT_GT(ErrorLog::CheckFailures().front().line, 0);
    EXPECT_EQ(Bench::References(watched.feature), 1) << "the handle's: the interfaces are back, none of them twice";
  }
  ResetErrors();
  EXPECT_EQ(watched.Fail(), E_FAIL);
  EXPECT_TRUE(ErrorLog::CheckFailures().empty()) << "the next ordinary error cleans up again";
}

TEST_F(VOXECharacCollectorFailures, ABuildThatFailsInTheCleanUpOfTheContextHasAGuardOfItsOwn)
{
  WatchedWorld watched;
  WatchedExplicit::whenReleased = [this]
  {
    world->Told().typesResult = E_NOTIMPL;
    EXPECT_EQ(Build(*world), E_FAIL);
  };
  EXPECT_EQ(watched.Fail(), E_FAIL);
  EXPECT_TRUE(ErrorLog::CheckFailures().empty());
}
