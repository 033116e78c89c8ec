// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEntityInit.h"

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

using EntityInit = Face<VOXEAnalysisEntityInit, VOXISamAnalysisEntityInit>;
using World = PlacementWorld<EntityInit>;
using QueriedEntityInit = QueriedFace<VOXEAnalysisEntityInit, VOXISamAnalysisEntityInit>;

//! An implementation that notes what kind it is asked to be, and is of one kind.
class ImplementationOfKind : public VOXBaseUnknown
{
public:
  ImplementationOfKind(std::string iKind, int iYes) : _Kind(std::move(iKind)), _Yes(iYes) {}
  int IsAKindOf(const char* iName) const override
  {
    CallLog::Note(iName);
    return _Kind == iName ? _Yes : 0;
  }

private:
  std::string _Kind;
  int _Yes;
};

//! What an adaptor with an implementation of a kind answers, and what it asked.
std::pair<int, Calls> AggregateInSet(const char* iKind, int iYes = 1)
{
  ImplementationOfKind implementation(iKind, iYes);
  EntityInit entity;
  entity.SetImpl(&implementation);
  const CallLog log;
  const int answer = entity.AggregateInSet();
  entity.SetImpl(nullptr);
  return {answer, log.All()};
}

// No reference, array or report is left behind by any of the tests.
class VOXEAnalysisEntityInitTest : public testing::Test
{
protected:
  VOXEAnalysisEntityInitTest()
  {
    ResetErrors();
    Memory::Disarm();
    Ledger::TurnOn();
    world.emplace();
    before = Ledger::Read();
  }
  ~VOXEAnalysisEntityInitTest() override
  {
    Faults::Disarm();
    EXPECT_EQ((Ledger::Read() - before).references, 0);
    EXPECT_EQ(Ledger::Read().arraysOut, before.arraysOut);
    EXPECT_TRUE(voxhost::ErrorLog::Reports().empty());
    world.reset();
    Ledger::TurnOff();
  }

  int Check(const char* iMemberType, const char* iHolderType)
  {
    world->Place(iMemberType, iHolderType);
    return world->Tested()->CheckAnalysisSet(world->Set());
  }

  //! The text of the fatal error that a check ends with.
  std::string FatalTextOfCheck()
  {
    const voxhost::CheckReport fatal = FatalErrorOf([this] { Check("CHILD", "HOLDER"); });
    EXPECT_EQ(fatal.file, SourceOf("VOXEAnalysisEntityInit"));
    EXPECT_GT(fatal.line, 0);
    return fatal.text;
  }

  //! The set type of a feature of these types; "untouched" when there is none.
  std::string SetTypeOf(std::vector<std::string> iTypes)
  {
    world->Spec().alsoOfTypes = std::move(iTypes);
    VOXUnicodeString setType("untouched");
    const int answer = world->Tested()->GetAnalysisSetType(setType);
    const std::string text = static_cast<const char*>(setType);
    EXPECT_EQ(answer, text == "untouched" ? 0 : 1);
    return text;
  }

  std::optional<World> world;
  Ledger::Balance before;
};

const Calls kCheckCalls{"VOXISamExplicit::GetPhysicalTypeName",
                        "VOXISamExplicit::GetPhysicalTypeName",
                        "VOXISamExplicit::GetExplicitModel",
                        "VOXAnalysisExplicitModel::GetRulesData",
                        "VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber",
                        "VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber",
                        "VOXAnalysisExplicitRulesData::GetPhysicalTypeCategory",
                        "VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren"};

} // namespace

TEST_F(VOXEAnalysisEntityInitTest, TheThreeNotificationsAnswerOkAndCallNothing)
{
  const auto entity = world->Tested();
  CallLog log;
  EXPECT_EQ(entity->Initialize(), S_OK);
  EXPECT_EQ(entity->InitWhenPositioned(), S_OK);
  EXPECT_EQ(entity->Remove(1), S_OK);
  EXPECT_EQ(log.All(), Calls{});
}

TEST_F(VOXEAnalysisEntityInitTest, ANullSetIsRefusedWithoutAnyQuery)
{
  const auto entity = world->Tested();
  CallLog log;
  EXPECT_EQ(entity->CheckAnalysisSet(nullptr), 0);
  EXPECT_EQ(log.All(), Calls{});
}

TEST_F(VOXEAnalysisEntityInitTest, AnEntityAmongTheAuthorizedChildrenMayGoIn)
{
  EXPECT_EQ(Check("CHILD", "HOLDER"), 1);
}

TEST_F(VOXEAnalysisEntityInitTest, BothSidesAreAskedInOrderAndThenTheRules)
{
  const auto entity = world->Tested();
  const auto set = world->Set();
  CallLog log;
  entity->CheckAnalysisSet(set);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}), kCheckCalls);
  EXPECT_EQ(log.Count("VOXBaseUnknown::QueryInterface"), 2);
}

TEST_F(VOXEAnalysisEntityInitTest, TheEntityIsGivenBackBeforeTheSetIsAsked)
{
  const auto entity = world->Tested();
  const auto set = world->Set();
  CallLog log(CallLog::References::Recorded);
  entity->CheckAnalysisSet(set);
  const Calls calls = log.Only({"VOXISamExplicit::", "Release"});
  EXPECT_EQ(calls, (Calls{"VOXISamExplicit::GetPhysicalTypeName", "Release VOXISamExplicit",
                          "VOXISamExplicit::GetPhysicalTypeName", "VOXISamExplicit::GetExplicitModel",
                          "Release VOXISamExplicit"}));
}

TEST_F(VOXEAnalysisEntityInitTest, TheWholeListOfChildrenIsLookedThrough)
{
  EXPECT_EQ(Check("FIRST", "HOLDER"), 1);
  EXPECT_EQ(Check("LAST", "HOLDER"), 1);
}

TEST_F(VOXEAnalysisEntityInitTest, TheObjectItselfIsAskedAndNotItsImplementation)
{
  const PlacementWorld<QueriedEntityInit> world;
  world.Spec().type = "GroupSet";
  const auto entity = world.Tested();
  const CallLog log;
  EXPECT_EQ(entity->CheckAnalysisSet(world.Set()), 1);
  EXPECT_EQ(log.Count("own query"), 1);
}

TEST_F(VOXEAnalysisEntityInitTest, AnEntityThatIsNotAmongThemMayNot)
{
  EXPECT_EQ(Check("STRANGER", "HOLDER"), 0);
}

TEST_F(VOXEAnalysisEntityInitTest, ANegatedChildCountsByItsAbsoluteValue)
{
  EXPECT_EQ(Check("RARE", "HOLDER"), 1);
}

TEST_F(VOXEAnalysisEntityInitTest, ASetWithoutAuthorizedChildrenTakesNothing)
{
  EXPECT_EQ(Check("CHILD", "EMPTY"), 0);
}

TEST_F(VOXEAnalysisEntityInitTest, GenericAndUnknownTypesAreRefusedBeforeTheChildrenAreLookedAt)
{
  const std::pair<const char*, const char*> pairs[] = {
      {"GENERIC_ENTITY", "HOLDER"}, {"NOBODY", "HOLDER"}, {"CHILD", "GENERIC_SET"}, {"CHILD", "NOBODY"}};
  for (const auto& [entity, set] : pairs)
  {
    CallLog log;
    EXPECT_EQ(Check(entity, set), 0) << entity << " in " << set;
    EXPECT_EQ(log.Count("VOXAnalysisExplicitRulesData::GetPhysicalTypeCategory"), 0);
    EXPECT_EQ(log.Count("VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren"), 0);
  }
}

TEST_F(VOXEAnalysisEntityInitTest, ImportedEntitiesGoIntoSetsOfTheirCategoryWhateverTheChildren)
{
  const std::pair<const char*, const char*> pairs[] = {
      {"IMPORTED_MATERIAL", "MATERIALS"},   {"IMPORTED_AXIS", "AXES"},  {"IMPORTED_PROPERTY", "PROPERTIES"},
      {"IMPORTED_RESTRAINT", "RESTRAINTS"}, {"IMPORTED_LOAD", "LOADS"}, {"IMPORTED_MASS", "MASSES"}};
  for (const auto& [imported, itsSet] : pairs)
    for (const auto& [other, set] : pairs)
    {
      CallLog log;
      EXPECT_EQ(Check(imported, set), imported == other ? 1 : 0) << imported << " in " << set;
      const int asked = log.Count("VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren");
      EXPECT_EQ(asked, imported == other ? 0 : 1) << imported << " in " << set;
    }
}

TEST_F(VOXEAnalysisEntityInitTest, AnImportedEntityMayAlsoBeAnAuthorizedChild)
{
  EXPECT_EQ(Check("IMPORTED_LOAD", "HOLDER"), 1);
}

TEST_F(VOXEAnalysisEntityInitTest, ACategoryThatCannotBeReadMatchesNoImportedEntity)
{
  const std::pair<const char*, const char*> pairs[] = {
      {"IMPORTED_MATERIAL", "MATERIALS"},   {"IMPORTED_AXIS", "AXES"},  {"IMPORTED_PROPERTY", "PROPERTIES"},
      {"IMPORTED_RESTRAINT", "RESTRAINTS"}, {"IMPORTED_LOAD", "LOADS"}, {"IMPORTED_MASS", "MASSES"}};
  for (const auto& [imported, set] : pairs)
  {
    Faults::FailOperation("VOXAnalysisExplicitRulesData::GetPhysicalTypeCategory", 1, false);
    EXPECT_EQ(Check(imported, set), 0) << imported;
  }
}

TEST_F(VOXEAnalysisEntityInitTest, ChildrenThatCannotBeReadRefuse)
{
  Faults::FailOperation("VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren", 1, false);
  EXPECT_EQ(Check("CHILD", "HOLDER"), 0);
}

TEST_F(VOXEAnalysisEntityInitTest, ATypeNumberThatCannotBeReadRefuses)
{
  for (const int call : {1, 2})
  {
    Faults::FailOperation("VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber", call, false);
    EXPECT_EQ(Check("CHILD", "HOLDER"), 0);
  }
}

TEST_F(VOXEAnalysisEntityInitTest, WithoutVOXISamExplicitOnEitherSideTheAnswerIsNo)
{
  Bench bench;
  VOXBaseUnknown* const noEntity = bench.Component<EntityInit>();
  EXPECT_EQ(VOXISamAnalysisEntityInit_var(noEntity)->CheckAnalysisSet(world->Set()), 0);
  VOXBaseUnknown* const noSet = bench.Component<ScriptedAnalysisSet>();
  EXPECT_EQ(world->Tested()->CheckAnalysisSet(VOXISamAnalysisSet_var(noSet)), 0);
}

TEST_F(VOXEAnalysisEntityInitTest, ASetWithoutModelIsAnAssertion)
{
  ScriptedExplicit::ScriptOf(world->holder).model = nullptr;
  EXPECT_EQ(FatalTextOfCheck(), "AssertionFailed:pExplicitModel");
}

TEST_F(VOXEAnalysisEntityInitTest, AModelWithoutRulesIsAnAssertion)
{
  voxhost::ExplicitModel withoutRules(nullptr);
  ScriptedExplicit::ScriptOf(world->holder).model = &withoutRules;
  EXPECT_EQ(FatalTextOfCheck(), "AssertionFailed:pRulesData");
}

TEST_F(VOXEAnalysisEntityInitTest, EachFeatureTypeBelongsInItsSet)
{
  const std::pair<const char*, const char*> rows[] = {
      {"AnalysisProperty", "PropertySet"}, {"SAMSpecifiedGroup", "GroupSet"},
      {"SAMFiltredGroup", "GroupSet"},     {"SAMFreeGroup", "GroupSet"},
      {"AnalysisLoad", "LoadSet"},         {"AnalysisRestraint", "RestraintSet"},
      {"AnalysisMass", "MassSet"},         {"AnalysisModulation", "ModulationSet"},
      {"MeasureWithProgram", "SensorSet"}, {"AnalysisSensor", "SensorSet"}};
  for (const auto& [type, set] : rows)
    EXPECT_EQ(SetTypeOf({type}), set) << type;
}

TEST_F(VOXEAnalysisEntityInitTest, TheFeatureTypesAreTestedInOrderUntilTheFirstYes)
{
  VOXUnicodeString setType;
  world->Spec().type = "MeasureWithProgram";
  const auto entity = world->Tested();
  CallLog log;
  entity->GetAnalysisSetType(setType);
  EXPECT_EQ(log.Only({"VOXISpecObject::"}),
            (Calls{"VOXISpecObject::IsSubTypeOf(AnalysisProperty)", "VOXISpecObject::IsSubTypeOf(SAMSpecifiedGroup)",
                   "VOXISpecObject::IsSubTypeOf(SAMFiltredGroup)", "VOXISpecObject::IsSubTypeOf(SAMFreeGroup)",
                   "VOXISpecObject::IsSubTypeOf(AnalysisLoad)", "VOXISpecObject::IsSubTypeOf(AnalysisRestraint)",
                   "VOXISpecObject::IsSubTypeOf(AnalysisMass)", "VOXISpecObject::IsSubTypeOf(AnalysisModulation)",
                   "VOXISpecObject::IsSubTypeOf(MeasureWithProgram)"}));
}

TEST_F(VOXEAnalysisEntityInitTest, APropertyThatIsAlsoAGroupIsAProperty)
{
  EXPECT_EQ(SetTypeOf({"SAMSpecifiedGroup", "AnalysisProperty"}), "PropertySet");
}

TEST_F(VOXEAnalysisEntityInitTest, AnotherTypeBelongsNowhereAndLeavesTheString)
{
  EXPECT_EQ(SetTypeOf({"AnalysisConnection", "SAMFilteredGroup"}), "untouched");
}

TEST_F(VOXEAnalysisEntityInitTest, TheSetTypeOfWhatIsNoFeatureIsAnAssertion)
{
  Bench bench;
  const VOXISamAnalysisEntityInit_var spEntity(bench.Component<EntityInit>());
  VOXUnicodeString setType("untouched");
  const voxhost::CheckReport fatal = FatalErrorOf([&] { spEntity->GetAnalysisSetType(setType); });
  EXPECT_EQ(fatal.text, "AssertionFailed:!!spec");
  EXPECT_EQ(fatal.file, SourceOf("VOXEAnalysisEntityInit"));
}

TEST_F(VOXEAnalysisEntityInitTest, SensorsAreAggregatedByTheirLateTypeWhateverTheirFeatureType)
{
  Bench bench;
  const auto aggregates = [&bench](const char* iLateType)
  {
    VOXBaseUnknown* const component = bench.ComponentNamed<EntityInit, ScriptedSpecObject>(iLateType);
    ScriptedSpecObject::ScriptOf(component).type = "AnalysisSensor";
    return VOXISamAnalysisEntityInit_var(component)->AggregateInSet();
  };
  EXPECT_EQ(aggregates("SensorlessUnderTest"), 0);
  VOXDeclareLateType("AnalysisSensor", nullptr);
  VOXDeclareLateType("SensorUnderTest", "AnalysisSensor");
  VOXDeclareLateType("MeasureWithProgram", nullptr);
  VOXDeclareLateType("MeasureUnderTest", "MeasureWithProgram");
  VOXExtendLateType<VOXISamAnalysisEntityInit, EntityInit>("SensorUnderTest");
  VOXExtendLateType<VOXISamAnalysisEntityInit, EntityInit>("MeasureUnderTest");
  for (const char* const lateType : {"SensorUnderTest", "MeasureUnderTest"})
  {
    VOXBaseUnknown* const component = voxhost::NewComponent(lateType);
    EXPECT_EQ(VOXISamAnalysisEntityInit_var(component)->AggregateInSet(), 1) << lateType;
    component->Release();
  }
}

TEST_F(VOXEAnalysisEntityInitTest, AggregationAsksForASensorFirstAndForAMeasureOnlyThen)
{
  using Asked = std::pair<int, Calls>;
  EXPECT_EQ(AggregateInSet("AnalysisSensor"), (Asked{1, {"AnalysisSensor"}}));
  EXPECT_EQ(AggregateInSet("MeasureWithProgram"), (Asked{1, {"AnalysisSensor", "MeasureWithProgram"}}));
  EXPECT_EQ(AggregateInSet("AnalysisLoad"), (Asked{0, {"AnalysisSensor", "MeasureWithProgram"}}));
}

TEST_F(VOXEAnalysisEntityInitTest, AYesOfAnyValueAggregates)
{
  EXPECT_EQ(AggregateInSet("AnalysisSensor", 256).first, 1);
  EXPECT_EQ(AggregateInSet("MeasureWithProgram", 256).first, 1);
}

TEST_F(VOXEAnalysisEntityInitTest, SetTypeAndAggregationAskTheImplementationAndNotTheObjectItself)
{
  const PlacementWorld<QueriedEntityInit> world;
  const auto entity = world.Tested();
  VOXUnicodeString setType;
  CallLog log;
  entity->GetAnalysisSetType(setType);
  EXPECT_EQ(log.Only({"own "}), Calls{"own implementation(0)"});
  log.Clear();
  entity->AggregateInSet();
  EXPECT_EQ(log.Only({"own "}), (Calls{"own implementation(0)", "own implementation(0)"}));
}

TEST_F(VOXEAnalysisEntityInitTest, NoOperationMakesAnErrorHandler)
{
  const auto entity = world->Tested();
  const auto set = world->Set();
  VOXUnicodeString setType;
  EXPECT_EQ(ErrorHandlersDuring([&] { entity->CheckAnalysisSet(set); }), 0);
  EXPECT_EQ(ErrorHandlersDuring([&] { entity->GetAnalysisSetType(setType); }), 0);
  EXPECT_EQ(ErrorHandlersDuring([&] { entity->AggregateInSet(); }), 0);
}

TEST_F(VOXEAnalysisEntityInitTest, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEntityInit::Initialize), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEntityInit::InitWhenPositioned), 2);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEntityInit::Remove), 3);
  const auto entity = world->Tested();
  const auto set = world->Set();
  VOXUnicodeString setType;
  world->Spec().type = "AnalysisLoad";
  EXPECT_EQ((CallOwn<int, const VOXISamAnalysisSet*>(entity.Get(), 4, set.Get())), 1);
  EXPECT_EQ((CallOwn<int, VOXUnicodeString&>(entity.Get(), 5, setType)), 1);
  EXPECT_TRUE(setType == "LoadSet");
  EXPECT_EQ((CallOwn<unsigned char>(entity.Get(), 6)), 0);
}

TEST(VOXEAnalysisEntityInitTorture, CheckAnalysisSetSurvivesEveryFailure)
{
  for (const char* const member : {"CHILD", "IMPORTED_LOAD", "STRANGER"})
    Torture("CheckAnalysisSet")
        .MayAnswer({0, 1})
        .ReportsNothing()
        .MayEndFatally("AssertionFailed:pExplicitModel")
        .MayEndFatally("AssertionFailed:pRulesData")
        .Run(
            [member](TortureRun& ioRun)
            {
              World world;
              world.Place(member, "LOADS");
              const auto entity = world.Tested();
              const auto set = world.Set();
              const HRESULT answer = ioRun.Call([&] { return entity->CheckAnalysisSet(set); });
              const bool belongs = std::string(member) != "STRANGER";
              EXPECT_TRUE(answer == (belongs ? 1 : 0) || (belongs && ioRun.IsTortured()));
            });
}

TEST(VOXEAnalysisEntityInitTorture, GetAnalysisSetTypeSurvivesEveryFailure)
{
  Torture("GetAnalysisSetType")
      .MayAnswer({0, 1})
      .ReportsNothing()
      .MayEndFatally("AssertionFailed:!!spec")
      .Run(
          [](TortureRun& ioRun)
          {
            World world;
            world.Spec().type = "AnalysisMass";
            const auto entity = world.Tested();
            VOXUnicodeString setType("untouched");
            const HRESULT answer = ioRun.Call([&] { return entity->GetAnalysisSetType(setType); });
            EXPECT_TRUE(setType == (answer == 1 ? "MassSet" : "untouched"));
          });
}

TEST(VOXEAnalysisEntityInitTorture, AggregateInSetSurvivesEveryFailure)
{
  Torture("AggregateInSet")
      .MayAnswer({0, 1})
      .ReportsNothing()
      .Run(
          [](TortureRun& ioRun)
          {
            World world;
            const auto entity = world.Tested();
            ioRun.Call([&] { return HRESULT{entity->AggregateInSet()}; });
          });
}
