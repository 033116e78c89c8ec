// SPDX-License-Identifier: MIT
#include "VOXEAnalysisSetInit.h"

#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"
#include "tests/adaptors/PlacementWorld.h"
#include "tests/support/FatalErrorOf.h"
#include "tests/support/Memory.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Ledger;

namespace
{

using SetInit = Face<VOXEAnalysisSetInit, VOXISamAnalysisSetInit>;
using World = PlacementWorld<SetInit>;

constexpr auto kUntouched = static_cast<SAM_Quality>(77);

struct Answer
{
  int mayGo;
  SAM_Quality quality;
  bool operator==(const Answer&) const = default;
};

std::ostream& operator<<(std::ostream& ioStream, const Answer& iAnswer)
{
  return ioStream << "{" << iAnswer.mayGo << ", quality " << iAnswer.quality << "}";
}

class VOXEAnalysisSetInitTest : public testing::Test
{
protected:
  VOXEAnalysisSetInitTest()
  {
    ResetErrors();
    Memory::Disarm();
    Ledger::TurnOn();
    world.emplace();
    before = Ledger::Read();
  }
  ~VOXEAnalysisSetInitTest() override
  {
    Faults::Disarm();
    EXPECT_EQ((Ledger::Read() - before).references, 0);
    EXPECT_EQ(Ledger::Read().arraysOut, before.arraysOut);
    EXPECT_TRUE(voxhost::ErrorLog::Reports().empty());
    world.reset();
    Ledger::TurnOff();
  }

  Answer Check(const char* iMemberType, const char* iHolderType, std::vector<std::string> iFeatureTypes = {})
  {
    world->Place(iMemberType, iHolderType);
    world->Spec().alsoOfTypes = std::move(iFeatureTypes);
    SAM_Quality quality = kUntouched;
    const int mayGo = world->Tested()->CheckAnalysisParent(world->holder, quality);
    return {mayGo, quality};
  }

  std::string FatalTextOfCheck()
  {
    const voxhost::CheckReport fatal = FatalErrorOf([this] { Check("CHILD", "HOLDER"); });
    EXPECT_EQ(fatal.file, SourceOf("VOXEAnalysisSetInit"));
    EXPECT_GT(fatal.line, 0);
    return fatal.text;
  }

  std::optional<World> world;
  Ledger::Balance before;
};

} // namespace

TEST_F(VOXEAnalysisSetInitTest, TheFourNotificationsAnswerOkAndCallNothing)
{
  const auto set = world->Tested();
  CallLog log;
  EXPECT_EQ(set->Initialize(), S_OK);
  EXPECT_EQ(set->InitWhenPositioned(world->holder), S_OK);
  EXPECT_EQ(set->Remove(1), S_OK);
  EXPECT_EQ(set->ReorderInScan(nullptr), S_OK);
  EXPECT_EQ(log.All(), Calls{});
}

TEST_F(VOXEAnalysisSetInitTest, ANullParentIsRefusedWithoutAnyQueryAndLeavesTheQuality)
{
  const auto set = world->Tested();
  SAM_Quality quality = kUntouched;
  CallLog log;
  EXPECT_EQ(set->CheckAnalysisParent(nullptr, quality), 0);
  EXPECT_EQ(quality, kUntouched);
  EXPECT_EQ(log.All(), Calls{});
}

TEST_F(VOXEAnalysisSetInitTest, BothSidesTheRulesAndThenTheFeatureTypeAreAskedInOrder)
{
  world->Spec().type = "SensorSet";
  const auto set = world->Tested();
  SAM_Quality quality = kUntouched;
  CallLog log;
  EXPECT_EQ(set->CheckAnalysisParent(world->holder, quality), 1);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXISamExplicit::GetPhysicalTypeName", "VOXISamExplicit::GetPhysicalTypeName",
                   "VOXISamExplicit::GetExplicitModel", "VOXAnalysisExplicitModel::GetRulesData",
                   "VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber",
                   "VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber",
                   "VOXAnalysisExplicitRulesData::GetPhysicalTypeCategory",
                   "VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren",
                   "VOXISpecObject::IsSubTypeOf(LoadSet)", "VOXISpecObject::IsSubTypeOf(RestraintSet)",
                   "VOXISpecObject::IsSubTypeOf(PropertySet)", "VOXISpecObject::IsSubTypeOf(MassSet)",
                   "VOXISpecObject::IsSubTypeOf(SAMMeshSetPointer)", "VOXISpecObject::IsSubTypeOf(SensorSet)"}));
  EXPECT_EQ(log.Count("VOXBaseUnknown::QueryInterface"), 3);
}

TEST_F(VOXEAnalysisSetInitTest, TheQualityFollowsTheSetType)
{
  for (const char* const type : {"LoadSet", "RestraintSet", "PropertySet", "MassSet", "SAMMeshSetPointer"})
    EXPECT_EQ(Check("CHILD", "HOLDER", {type}), (Answer{1, SAM_Quality{0}})) << type;
  for (const char* const type : {"SensorSet", "GroupSet"})
    EXPECT_EQ(Check("CHILD", "HOLDER", {type}), (Answer{1, SAM_Quality{1}})) << type;
}

TEST_F(VOXEAnalysisSetInitTest, AMassSetThatIsAlsoAGroupSetHasTheQualityOfAMassSet)
{
  EXPECT_EQ(Check("CHILD", "HOLDER", {"GroupSet", "MassSet"}), (Answer{1, SAM_Quality{0}}));
}

TEST_F(VOXEAnalysisSetInitTest, ASetOfAnotherTypeLeavesTheQualityWhateverTheAnswer)
{
  EXPECT_EQ(Check("CHILD", "HOLDER", {"ModulationSet"}), (Answer{1, kUntouched}));
  EXPECT_EQ(Check("STRANGER", "HOLDER", {"ModulationSet"}), (Answer{0, kUntouched}));
}

TEST_F(VOXEAnalysisSetInitTest, TheWholeListOfChildrenIsLookedThrough)
{
  EXPECT_EQ(Check("FIRST", "HOLDER").mayGo, 1);
  EXPECT_EQ(Check("LAST", "HOLDER").mayGo, 1);
}

TEST_F(VOXEAnalysisSetInitTest, TheObjectItselfIsAskedAndNotItsImplementation)
{
  const PlacementWorld<QueriedFace<VOXEAnalysisSetInit, VOXISamAnalysisSetInit>> world;
  world.Spec().type = "GroupSet";
  const auto entity = world.Tested();
  const CallLog log;
  SAM_Quality quality = kUntouched;
  EXPECT_EQ(entity->CheckAnalysisParent(world.holder, quality), 1);
  EXPECT_EQ(log.Count("own query"), 2);
}

TEST_F(VOXEAnalysisSetInitTest, ASetThatIsNotListedIsRefusedAndHasItsQualityAllTheSame)
{
  EXPECT_EQ(Check("STRANGER", "HOLDER", {"LoadSet"}), (Answer{0, SAM_Quality{0}}));
}

TEST_F(VOXEAnalysisSetInitTest, ANegatedChildCountsByItsAbsoluteValue)
{
  EXPECT_EQ(Check("RARE", "HOLDER", {"GroupSet"}), (Answer{1, SAM_Quality{1}}));
}

TEST_F(VOXEAnalysisSetInitTest, AParentWithoutAuthorizedChildrenTakesNothingAndTheQualityIsSet)
{
  EXPECT_EQ(Check("CHILD", "EMPTY", {"GroupSet"}), (Answer{0, SAM_Quality{1}}));
}

TEST_F(VOXEAnalysisSetInitTest, ImportedSetsGoUnderParentsOfTheirCategoryAndLeaveTheQuality)
{
  const std::pair<const char*, const char*> pairs[] = {
      {"IMPORTED_MATERIAL", "MATERIALS"},   {"IMPORTED_AXIS", "AXES"},  {"IMPORTED_PROPERTY", "PROPERTIES"},
      {"IMPORTED_RESTRAINT", "RESTRAINTS"}, {"IMPORTED_LOAD", "LOADS"}, {"IMPORTED_MASS", "MASSES"}};
  for (const auto& [imported, parent] : pairs)
  {
    CallLog log;
    EXPECT_EQ(Check(imported, parent, {"LoadSet"}), (Answer{1, kUntouched})) << imported;
    EXPECT_EQ(log.Count("VOXISpecObject::"), 0) << imported;
    EXPECT_EQ(log.Count("VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren"), 0) << imported;
    EXPECT_EQ(Check(imported, "EMPTY", {"LoadSet"}), (Answer{0, SAM_Quality{0}})) << imported;
  }
}

TEST_F(VOXEAnalysisSetInitTest, GenericAndUnknownTypesAreRefusedBeforeTheQuality)
{
  const std::pair<const char*, const char*> pairs[] = {
      {"GENERIC_ENTITY", "HOLDER"}, {"NOBODY", "HOLDER"}, {"CHILD", "GENERIC_SET"}, {"CHILD", "NOBODY"}};
  for (const auto& [set, parent] : pairs)
    EXPECT_EQ(Check(set, parent, {"LoadSet"}), (Answer{0, kUntouched})) << set << " under " << parent;
}

TEST_F(VOXEAnalysisSetInitTest, ChildrenThatCannotBeReadRefuseAndTheQualityIsWorkedOutAllTheSame)
{
  Faults::FailOperation("VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren", 1, false);
  EXPECT_EQ(Check("CHILD", "HOLDER", {"GroupSet"}), (Answer{0, SAM_Quality{1}}));
}

TEST_F(VOXEAnalysisSetInitTest, ASetThatIsNoFeatureLeavesTheQuality)
{
  Bench bench;
  VOXBaseUnknown* const set = bench.Component<SetInit, ScriptedExplicit>();
  ScriptedExplicit::ScriptOf(set).physicalType = "CHILD";
  SAM_Quality quality = kUntouched;
  EXPECT_EQ(VOXISamAnalysisSetInit_var(set)->CheckAnalysisParent(world->holder, quality), 1);
  EXPECT_EQ(quality, kUntouched);
}

TEST_F(VOXEAnalysisSetInitTest, WithoutVOXISamExplicitOnEitherSideTheAnswerIsNo)
{
  Bench bench;
  SAM_Quality quality = kUntouched;
  VOXBaseUnknown* const noSet = bench.Component<SetInit, ScriptedSpecObject>();
  ScriptedSpecObject::ScriptOf(noSet).type = "LoadSet";
  EXPECT_EQ(VOXISamAnalysisSetInit_var(noSet)->CheckAnalysisParent(world->holder, quality), 0);
  EXPECT_EQ(world->Tested()->CheckAnalysisParent(noSet, quality), 0);
  EXPECT_EQ(quality, kUntouched);
}

TEST_F(VOXEAnalysisSetInitTest, AParentWithoutModelIsAnAssertion)
{
  ScriptedExplicit::ScriptOf(world->holder).model = nullptr;
  EXPECT_EQ(FatalTextOfCheck(), "AssertionFailed:pExplicitModel");
}

TEST_F(VOXEAnalysisSetInitTest, AModelWithoutRulesIsAnAssertion)
{
  voxhost::ExplicitModel withoutRules(nullptr);
  ScriptedExplicit::ScriptOf(world->holder).model = &withoutRules;
  EXPECT_EQ(FatalTextOfCheck(), "AssertionFailed:pRulesData");
}

TEST_F(VOXEAnalysisSetInitTest, TheFeatureIsGivenBackAfterItsTypeIsTested)
{
  world->Spec().type = "GroupSet";
  const auto set = world->Tested();
  SAM_Quality quality = kUntouched;
  const CallLog log(CallLog::References::Recorded);
  set->CheckAnalysisParent(world->holder, quality);
  const Calls calls = log.Only({"VOXISpecObject::IsSubTypeOf(GroupSet)", "Release"});
  EXPECT_EQ(calls, (Calls{"Release VOXISamExplicit", "Release VOXISamExplicit", "VOXISpecObject::IsSubTypeOf(GroupSet)",
                          "Release VOXISpecObject"}));
}

TEST_F(VOXEAnalysisSetInitTest, NoErrorHandlerIsMade)
{
  const auto set = world->Tested();
  SAM_Quality quality = kUntouched;
  EXPECT_EQ(ErrorHandlersDuring([&] { set->CheckAnalysisParent(world->holder, quality); }), 0);
}

TEST_F(VOXEAnalysisSetInitTest, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisSetInit::Initialize), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisSetInit::InitWhenPositioned), 3);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisSetInit::Remove), 4);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisSetInit::ReorderInScan), 5);
  world->Spec().type = "GroupSet";
  SAM_Quality quality = kUntouched;
  const auto set = world->Tested();
  EXPECT_EQ((CallOwn<int, const VOXBaseUnknown*, SAM_Quality&>(set.Get(), 2, world->holder, quality)), 1);
  EXPECT_EQ(quality, SAM_Quality{1});
}

TEST(VOXEAnalysisSetInitTorture, CheckAnalysisParentSurvivesEveryFailure)
{
  for (const char* const member : {"CHILD", "IMPORTED_LOAD", "STRANGER"})
    Torture("CheckAnalysisParent")
        .MayAnswer({0, 1})
        .ReportsNothing()
        .MayEndFatally("AssertionFailed:pExplicitModel")
        .MayEndFatally("AssertionFailed:pRulesData")
        .Run(
            [member](TortureRun& ioRun)
            {
              World world;
              world.Place(member, "LOADS");
              world.Spec().type = "GroupSet";
              const auto set = world.Tested();
              SAM_Quality quality = kUntouched;
              const HRESULT answer = ioRun.Call([&] { return set->CheckAnalysisParent(world.holder, quality); });
              const bool belongs = std::string(member) != "STRANGER";
              EXPECT_TRUE(answer == (belongs ? 1 : 0) || (belongs && ioRun.IsTortured()));
              EXPECT_TRUE(quality == kUntouched || quality == SAM_Quality{1});
            });
}
