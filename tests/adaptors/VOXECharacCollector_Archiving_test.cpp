// SPDX-License-Identifier: MIT
// Which collectors get an archiver, and which archiver.
#include "tests/adaptors/CharacWorld.h"
#include "tests/support/Memory.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ArchiverSwitches;
using voxhost::Faults;
using Model = VOXAnalysisExplicitModel;

namespace
{

constexpr char kSetArchiver[] = "VOXAnalysisCharacCollector::SetArchiver";
constexpr char kBorn[] = "VOXAnalysisCollectorArchiver::VOXAnalysisCollectorArchiver";

class VOXECharacCollectorArchiving : public CharacTest
{
protected:
  // 9 when the operation failed; then the preset answer must stand.
  int IsForAll(const VOXAnalysisCharacCollector* iCollector)
  {
    unsigned char forAll = 7;
    const HRESULT result = world->Adaptor().CollectorIsForAllEntities(iCollector, forAll);
    Faults::Disarm();
    EXPECT_TRUE(SUCCEEDED(result) || forAll == 1);
    return SUCCEEDED(result) ? forAll : 9;
  }

  static const VOXAnalysisCollectorArchiver* ArchiverOf(const VOXAnalysisCharacCollector& iCollector)
  {
    return CharacArea::ArchiverOf(iCollector);
  }
};

} // namespace

TEST_F(VOXECharacCollectorArchiving, ACollectorWithAValueForEachEntityIsForAllOfThem)
{
  EXPECT_EQ(IsForAll(&world->NewCollector(11, Version(1), "NODE", {1, 1, 2, 255})), 1);
}

TEST_F(VOXECharacCollectorArchiving, ACollectorThatLacksOneValueIsNot)
{
  EXPECT_EQ(IsForAll(&world->NewCollector(11, Version(1), "NODE", {0, 1, 1})), 0);
  EXPECT_EQ(IsForAll(&world->NewCollector(11, Version(1), "NODE", {1, 1, 0})), 0);
  EXPECT_EQ(IsForAll(&world->NewCollector(11, Version(1), "NODE", {0})), 0);
}

TEST_F(VOXECharacCollectorArchiving, NoCollectorAndOneWithoutValuesCountAsForAllAndAreNotLookedInto)
{
  const VOXAnalysisCharacCollector& empty = world->NewCollector(11, Version(1), "NODE", {});
  const CallLog log;
  EXPECT_EQ(IsForAll(nullptr), 1);
  EXPECT_EQ(IsForAll(&empty), 1);
  EXPECT_TRUE(log.All().empty());
}

TEST_F(VOXECharacCollectorArchiving, ACollectorThatCannotTellIsPropagatedAndCountsAsForAll)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector(11, Version(1), "NODE", {0});
  for (const char* const query :
       {"VOXAnalysisCollectorRoot::GetNbEntities", "VOXAnalysisCharacCollector::GetEntitiesFLags"})
  {
    ResetErrors();
    Faults::FailOperation(query, 1, false);
    EXPECT_EQ(IsForAll(&collector), 9) << query;
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}})) << query;
  }
}

namespace
{

// A collector of another making: it has values, and says of its entities what it is told.
class ToldCollector : public VOXAnalysisCharacCollector
{
public:
  ToldCollector(int iNumber, const unsigned char* iFlags) : _Number(iNumber), _Flags(iFlags)
  {
    const double value = 1.;
    EXPECT_EQ(SetDefinition(11, "values", Version(1), "NODE", 1, 0), S_OK);
    EXPECT_EQ(SetNbEntities(1), S_OK);
    EXPECT_EQ(SetValues(&value, nullptr), S_OK);
  }
  HRESULT GetNbEntities(int& oNumber) const override
  {
    oNumber = _Number;
    return S_OK;
  }
  HRESULT GetEntitiesFLags(const unsigned char*& oFlags) const override
  {
    oFlags = _Flags;
    return S_OK;
  }

private:
  int _Number;
  const unsigned char* _Flags;
};

constexpr unsigned char kLastIsMissing[] = {1, 1, 0};

} // namespace

TEST_F(VOXECharacCollectorArchiving, OnlyTheEntitiesThatACollectorCountsAreLookedAt)
{
  for (const auto& [count, expected] : {std::pair(3, 0), std::pair(2, 1), std::pair(0, 1), std::pair(-1, 1)})
  {
    const ToldCollector collector(count, kLastIsMissing);
    EXPECT_EQ(IsForAll(&collector), expected) << count;
  }
}

TEST_F(VOXECharacCollectorArchiving, ACollectorThatGivesNoBytesLacksNoValue)
{
  const ToldCollector collector(2, nullptr);
  EXPECT_EQ(IsForAll(&collector), 1);
}

TEST_F(VOXECharacCollectorArchiving, NoCollectorMeansThatNothingIsAsked)
{
  const CallLog log;
  EXPECT_EQ(world->Adaptor().AssignArchiverToCollector(nullptr, CollectorArchiveOnDemand), S_OK);
  EXPECT_TRUE(log.All().empty());
}

TEST_F(VOXECharacCollectorArchiving, AFeatureThatSaysNothingArchivesNothing)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<CharacTie<PlainCharac>, ScriptedExplicit, ScriptedSpecObject>();
  const VOXICharacCollector_var spCollector(feature);
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  const CallLog log;
  EXPECT_EQ(
      CharacTie<PlainCharac>::AdaptorOf(spCollector).AssignArchiverToCollector(&collector, CollectorArchiveOnDemand),
      S_OK);
  EXPECT_TRUE(log.All().empty());
  EXPECT_EQ(ArchiverOf(collector), nullptr);
}

TEST_F(VOXECharacCollectorArchiving, ANewArchiverIsStampedGivenToTheCollectorAndKept)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector(11, Version(2), "CENTER");
  world->Spec().timeStamp = 42;
  EXPECT_EQ(world->Assign(collector), S_OK);
  const VOXAnalysisCollectorArchiver* const archiver = ArchiverOf(collector);
  ASSERT_NE(archiver, nullptr);
  EXPECT_EQ(archiver->IsMatchingTimeStamp(42), 1);
  EXPECT_EQ(world->Fetch(11, Version(2), "CENTER"), archiver);
  // Kept: one reference of the collector, one of the area, and that of its creation, which nobody gives back.
  EXPECT_EQ(References(*archiver), 3);
}

TEST_F(VOXECharacCollectorArchiving, ANewArchiverIsMadeInThisOrder)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector(22, Version(3));
  world->Assign(world->NewCollector()); // builds the area, and all interfaces are made by now
  const CallLog log;
  EXPECT_EQ(world->Assign(collector, CollectorArchiveOnFill), S_OK);
  const Calls search{"VOXBaseUnknown::QueryInterface", "VOXECharacCollector::GetAvailablePhysicalTypes",
                     "VOXECharacCollector::GetAvailableVersions(22)",
                     "VOXECharacCollector::GetAvailablePositions(22, 3, 0)"};
  Calls expected{"VOXECharacCollector::IsAuthorizedToArchiveCollectors", "VOXAnalysisCollectorRoot::GetNbEntities",
                 "VOXAnalysisCharacCollector::GetEntitiesFLags", "VOXAnalysisCharacCollector::GetDefinition",
                 "VOXAnalysisCharacCollector::GetArchiver"};
  expected.insert(expected.end(), search.begin(), search.end());
  for (const char* const call :
       {"VOXBaseUnknown::QueryInterface", "VOXBaseUnknown::QueryInterface", "VOXISamExplicit::GetExplicitModel",
        "VOXAnalysisExplicitListUsr::CreateList", "VOXISamExplicit::ListParents", "VOXAnalysisExplicitListUsr::Append",
        "VOXAnalysisExplicitListUsr::Delete", "VOXAnalysisExplicitData::GetModel", "VOXBaseUnknown::QueryInterface",
        "VOXISpecObject::GetTimeStamp", kBorn, kSetArchiver})
    expected.emplace_back(call);
  expected.insert(expected.end(), search.begin(), search.end());
  expected.emplace_back("VOXAnalysisCharacCollector::GetArchiver"); // the world looks at what came of it
  EXPECT_EQ(log.Without({"of the component"}), expected);
}

TEST_F(VOXECharacCollectorArchiving, AKeptArchiverIsGivenToTheNextCollectorOfItsDefinition)
{
  const VOXAnalysisCharacCollector& first = world->NewCollector();
  EXPECT_EQ(world->Assign(first), S_OK);
  const VOXAnalysisCharacCollector& second = world->NewCollector(11, Version(1), "NODE", {1}, "another name", 5);
  const CallLog log;
  EXPECT_EQ(world->Assign(second), S_OK);
  EXPECT_EQ(ArchiverOf(second), ArchiverOf(first));
  EXPECT_EQ(References(*ArchiverOf(first)), 4);
  EXPECT_EQ(log.Count("VOXISamExplicit"), 0) << "no context is needed";
  EXPECT_EQ(log.Count(kBorn), 0);
}

TEST_F(VOXECharacCollectorArchiving, DefinitionsAndVariantsDoNotShareArchivers)
{
  std::vector<const VOXAnalysisCharacCollector*> collectors{
      &world->NewCollector(11, Version(1)), &world->NewCollector(11, Version(1, 1)),
      &world->NewCollector(11, Version(1), "CENTER"), &world->NewCollector(11, Version(2)),
      &world->NewCollector(22, Version(3))};
  std::vector<const VOXAnalysisCollectorArchiver*> archivers;
  for (const auto* const collector : collectors)
  {
    EXPECT_EQ(world->Assign(*collector), S_OK);
    archivers.push_back(ArchiverOf(*collector));
    EXPECT_EQ(std::count(archivers.begin(), archivers.end(), archivers.back()), 1);
  }
}

TEST_F(VOXECharacCollectorArchiving, AnArchiverThatIsOutOfDateIsReplacedByANewOne)
{
  const VOXAnalysisCharacCollector& first = world->NewCollector();
  world->Assign(first);
  world->Spec().timeStamp = 2;
  const VOXAnalysisCharacCollector& second = world->NewCollector();
  EXPECT_EQ(world->Assign(second), S_OK);
  EXPECT_NE(ArchiverOf(second), ArchiverOf(first));
  EXPECT_EQ(ArchiverOf(first)->IsStreamable(), 0);
  EXPECT_EQ(ArchiverOf(second)->IsMatchingTimeStamp(2), 1);
}

// Kept: any answer that is not 0, whereas a third model drops the archivers for an answer of exactly 1.
TEST_F(VOXECharacCollectorArchiving, AnyAuthorizationThatIsNotZeroCounts)
{
  world->Told().authorized = 2;
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  EXPECT_EQ(world->Assign(collector), S_OK);
  EXPECT_NE(ArchiverOf(collector), nullptr);
}

namespace
{

// A feature type that answers with success and says nothing.
class Silent : public ScriptedCharac
{
public:
  HRESULT IsAuthorizedToArchiveCollectors(unsigned char&) const override { return S_OK; }
};

} // namespace

TEST_F(VOXECharacCollectorArchiving, AnAuthorizationThatSaysNothingIsNone)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<CharacTie<Silent>, ScriptedExplicit, ScriptedSpecObject>();
  const VOXICharacCollector_var spCollector(feature);
  Silent& adaptor = CharacTie<Silent>::AdaptorOf(spCollector);
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  EXPECT_EQ(adaptor.AssignArchiverToCollector(&collector, CollectorArchiveOnDemand), S_OK);
  EXPECT_EQ(ArchiverOf(collector), nullptr);
  EXPECT_EQ(CharacArea::Build(adaptor), S_OK);
  const voxhost::ExplicitModel models[3];
  for (const voxhost::ExplicitModel& model : models)
    EXPECT_EQ(spCollector->SetContextModel(&model), S_OK);
  EXPECT_TRUE(CharacArea::IsBuilt(adaptor)) << "a third model drops nothing";
}

TEST_F(VOXECharacCollectorArchiving, AFeatureThatIsNotAuthorizedArchivesNothingAndTheCollectorIsNotLookedAt)
{
  world->Told().authorized = 0;
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  const CallLog log;
  EXPECT_EQ(world->Adaptor().AssignArchiverToCollector(&collector, CollectorArchiveOnDemand), S_OK);
  EXPECT_EQ(log.All(), (Calls{"VOXECharacCollector::IsAuthorizedToArchiveCollectors"}));
  EXPECT_FALSE(CharacArea::IsBuilt(world->Adaptor()));
}

TEST_F(VOXECharacCollectorArchiving, ACollectorThatLacksAValueIsNotArchived)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector(11, Version(1), "NODE", {1, 0});
  const CallLog log;
  EXPECT_EQ(world->Adaptor().AssignArchiverToCollector(&collector, CollectorArchiveOnDemand), S_OK);
  EXPECT_EQ(log.All().back(), "VOXAnalysisCharacCollector::GetDefinition");
  EXPECT_EQ(ArchiverOf(collector), nullptr);
}

TEST_F(VOXECharacCollectorArchiving, DerivedVersionsAreNotArchived)
{
  for (const int kind : {8, 9, 1000})
  {
    const VOXAnalysisCharacCollector& collector = world->NewCollector(11, Version(1, 0, kind));
    const CallLog log;
    EXPECT_EQ(world->Adaptor().AssignArchiverToCollector(&collector, CollectorArchiveOnDemand), S_OK);
    EXPECT_EQ(log.All().back(), "VOXAnalysisCharacCollector::GetDefinition");
    EXPECT_EQ(ArchiverOf(collector), nullptr);
  }
}

TEST_F(VOXECharacCollectorArchiving, EveryVersionBelowTheDerivedOnesIsArchivedNegativeKindsToo)
{
  for (const int kind : {7, 0, -1})
  {
    world->Told().versions[11] = {Version(1, 0, kind)};
    (*world)->Update(0);
    const VOXAnalysisCharacCollector& collector = world->NewCollector(11, Version(1, 0, kind));
    EXPECT_EQ(world->Assign(collector), S_OK);
    EXPECT_NE(ArchiverOf(collector), nullptr) << kind;
  }
}

TEST_F(VOXECharacCollectorArchiving, ACollectorKeepsTheArchiverThatItHas)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  const VOXAnalysisCollectorArchiver& archiver = world->NewArchiver(77);
  CharacArea::SetArchiverOf(collector, &archiver);
  const CallLog log;
  EXPECT_EQ(world->Assign(collector), S_OK);
  EXPECT_EQ(ArchiverOf(collector), &archiver);
  EXPECT_EQ(log.Count(kSetArchiver), 0);
  EXPECT_FALSE(CharacArea::IsBuilt(world->Adaptor()));
}

TEST_F(VOXECharacCollectorArchiving, ACollectorWithoutValuesIsArchived)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector(11, Version(1), "NODE", {});
  EXPECT_EQ(world->Assign(collector), S_OK);
  EXPECT_NE(ArchiverOf(collector), nullptr);
}

TEST_F(VOXECharacCollectorArchiving, AnArchiverThatCannotBeStreamedIsDestroyedAtOnce)
{
  ArchiverSwitches::SetNewAreStreamable(false);
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  const auto archivers = Archivers();
  const CallLog log;
  EXPECT_EQ(world->Adaptor().AssignArchiverToCollector(&collector, CollectorArchiveOnDemand), S_OK);
  EXPECT_EQ(log.Count(kBorn), 1);
  EXPECT_EQ(Archivers(), archivers);
  EXPECT_EQ(ArchiverOf(collector), nullptr);
  EXPECT_EQ(world->Fetch(), nullptr);
  EXPECT_TRUE(AllReported().empty());
}

TEST_F(VOXECharacCollectorArchiving, WithoutMemoryForAnArchiverNothingIsAssignedAndThatIsNoFailure)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  Model::DisplayErrors(1);
  Memory::FailSize(sizeof(VOXAnalysisCollectorArchiver));
  EXPECT_EQ(world->Adaptor().AssignArchiverToCollector(&collector, CollectorArchiveOnDemand), S_OK);
  Memory::Disarm();
  EXPECT_EQ(Model::DisplayErrors(0), 1);
  EXPECT_EQ(ArchiverOf(collector), nullptr);
  EXPECT_EQ(world->Fetch(), nullptr);
}

TEST_F(VOXECharacCollectorArchiving, TheModelsErrorsAreNotDisplayedWhileAnArchiverIsMade)
{
  static int seen;
  seen = -1;
  for (const unsigned char displayed : {0, 1})
  {
    const VOXAnalysisCharacCollector& collector = world->NewCollector(11, Version(displayed + 1));
    Model::DisplayErrors(displayed);
    Faults::Listen(
        [](const char* iOperation)
        {
          if (std::string_view(iOperation) != kBorn)
            return;
          seen = Model::DisplayErrors(0);
          Model::DisplayErrors(static_cast<unsigned char>(seen));
        });
    EXPECT_EQ(world->Assign(collector), S_OK);
    Faults::Listen(nullptr);
    EXPECT_EQ(seen, 0);
    EXPECT_EQ(Model::DisplayErrors(0), displayed) << "as it was before";
  }
}

// Kept: a new archiver that the collector refuses is neither kept nor destroyed.
TEST_F(VOXECharacCollectorArchiving, ANewArchiverThatIsRefusedIsLost)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  const auto archivers = Archivers();
  Faults::FailOperation(kSetArchiver, 1, false);
  EXPECT_EQ(world->Assign(collector), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}}));
  EXPECT_EQ(Archivers(), archivers + 1);
  EXPECT_EQ(ArchiverOf(collector), nullptr);
  EXPECT_EQ(world->Fetch(), nullptr);
  kept.archivers = 1;
}

TEST_F(VOXECharacCollectorArchiving, AKeptArchiverThatIsRefusedStaysKept)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  world->Keep(&archiver);
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  Faults::FailOperation(kSetArchiver, 1, false);
  EXPECT_EQ(world->Assign(collector), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}}));
  EXPECT_EQ(world->Fetch(), &archiver);
  EXPECT_EQ(References(archiver), 2);
}

TEST_F(VOXECharacCollectorArchiving, ANewArchiverThatCannotBeKeptStaysWithTheCollector)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  Faults::FailOperation("VOXECharacCollector::GetAvailablePhysicalTypes", 3, false); // built, searched, searched again
  EXPECT_EQ(world->Assign(collector), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac, 3},
                                                  {VOXSamErrorPropagated, "", kCharac, 2},
                                                  {VOXSamErrorPropagated, "", kCharac, 1}}));
  ASSERT_NE(ArchiverOf(collector), nullptr);
  EXPECT_EQ(References(*ArchiverOf(collector)), 2);
  EXPECT_EQ(world->Fetch(), nullptr);
}

TEST_F(VOXECharacCollectorArchiving, TheContextIsThatOfTheFeatureTypeAndMustHaveAModel)
{
  class WithoutContext : public ScriptedCharac
  {
  public:
    HRESULT GetContext(VOXAnalysisExplicitParent& oContext) override
    {
      oContext = NULL_exp;
      return S_OK;
    }
  };
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<CharacTie<WithoutContext>, ScriptedSpecObject>();
  const VOXICharacCollector_var spCollector(feature);
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  EXPECT_EQ(
      CharacTie<WithoutContext>::AdaptorOf(spCollector).AssignArchiverToCollector(&collector, CollectorArchiveOnDemand),
      E_FAIL);
  EXPECT_EQ(AllReported(),
            (std::vector<Reported>{{VOXSamErrorMissingObject, "CurrentModel = Context.GetModel()", kCharac}}));
  EXPECT_EQ(ArchiverOf(collector), nullptr);
}

TEST_F(VOXECharacCollectorArchiving, ANewArchiverNeedsTheFeaturesTimeStamp)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  world->Fetch();
  Faults::FailOperation("VOXBaseUnknown::QueryInterface", 4, false); // searched, alias, explicit, spec object
  EXPECT_EQ(world->Assign(collector), E_FAIL);
  EXPECT_EQ(AllReported(),
            (std::vector<Reported>{{VOXSamErrorCondition, "(aSpecObject = GetImpl()) == NULL_var", kCharac}}));
  EXPECT_EQ(ArchiverOf(collector), nullptr);
}

TEST_F(VOXECharacCollectorArchiving, EveryStepThatFailsIsPropagatedAndNothingIsAssigned)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  const Reported plain{VOXSamErrorPropagated, "", kCharac};
  const Reported inner{VOXSamErrorPropagated, "", kCharac, 2};
  const std::vector<std::pair<const char*, std::vector<Reported>>> steps{
      {"VOXECharacCollector::IsAuthorizedToArchiveCollectors", {plain}},
      {"VOXAnalysisCollectorRoot::GetNbEntities", {inner, plain}},
      {"VOXAnalysisCharacCollector::GetDefinition", {plain}},
      {"VOXAnalysisCharacCollector::GetArchiver", {plain}},
      {"VOXISamExplicit::ListParents", {inner, plain}}};
  for (const auto& [step, expected] : steps)
  {
    ResetErrors();
    Faults::FailOperation(step, 1, false);
    EXPECT_EQ(world->Assign(collector), E_FAIL) << step;
    EXPECT_EQ(AllReported(), expected) << step;
    EXPECT_EQ(ArchiverOf(collector), nullptr) << step;
  }
}

TEST_F(VOXECharacCollectorArchiving, ADefinitionThatTheFeatureDoesNotOfferCannotBeArchived)
{
  const VOXAnalysisCharacCollector& collector = world->NewCollector(33);
  EXPECT_EQ(world->Assign(collector), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{
                               {VOXSamErrorCondition,
                                "oPhysicalTypeIndex == -1 || oVersionIndex == -1 || oPositionIndex == -1", kCharac, 2},
                               {VOXSamErrorPropagated, "", kCharac, 1}}));
}
