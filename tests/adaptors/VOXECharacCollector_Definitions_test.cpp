// SPDX-License-Identifier: MIT
// What a feature offers, the fixed answers, and the places of the operations.
#include "tests/adaptors/CharacWorld.h"
#include "tests/support/VirtualTable.h"

#include <type_traits>

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

class VOXECharacCollectorDefinitions : public CharacTest
{
protected:
  // The answer; 7 when the operation failed.
  int Offers(int iType, const VOXSamCharacVersion& iVersion, const char* iPosition)
  {
    unsigned char available = 9;
    const HRESULT result = (*world)->IsAnAvailableDefinition(iType, iVersion, iPosition, available);
    EXPECT_TRUE(SUCCEEDED(result) || available == 0);
    return SUCCEEDED(result) ? available : 7;
  }
};

constexpr char kTypes[] = "VOXECharacCollector::GetAvailablePhysicalTypes";

} // namespace

TEST_F(VOXECharacCollectorDefinitions, AListedDefinitionIsOfferedAfterOneQueryOfEachKindToItself)
{
  const CallLog log;
  EXPECT_EQ(Offers(11, Version(2), "CENTER"), 1);
  EXPECT_EQ(log.All(), (Calls{kTypes, "VOXECharacCollector::GetAvailableVersions(11)",
                              "VOXECharacCollector::GetAvailablePositions(11, 2, 0)"}));
}

TEST_F(VOXECharacCollectorDefinitions, AFeatureWithoutTypesOffersNothingAndIsAskedForNothingElse)
{
  for (const int count : {0, -1})
  {
    world->Told().nbTypes = count;
    const CallLog log;
    EXPECT_EQ(Offers(11, Version(1), "NODE"), 0);
    EXPECT_EQ(log.All(), (Calls{kTypes}));
  }
}

TEST_F(VOXECharacCollectorDefinitions, AnotherTypeIsNotOfferedAndItsVersionsAreNotAskedFor)
{
  const CallLog log;
  EXPECT_EQ(Offers(33, Version(1), "NODE"), 0);
  EXPECT_EQ(log.All(), (Calls{kTypes}));
}

TEST_F(VOXECharacCollectorDefinitions, AnotherVersionIsNotOfferedAndItsPositionsAreNotAskedFor)
{
  const CallLog log;
  EXPECT_EQ(Offers(11, Version(3), "NODE"), 0);
  EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailableVersions"), 1);
  EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailablePositions"), 0);
}

TEST_F(VOXECharacCollectorDefinitions, AnotherPositionIsNotOffered)
{
  EXPECT_EQ(Offers(11, Version(1), "FACE"), 0);
}

TEST_F(VOXECharacCollectorDefinitions, AVersionWithoutPositionsIsNotOffered)
{
  for (const int count : {0, -1})
  {
    world->Told().nbPositions = count;
    EXPECT_EQ(Offers(11, Version(1), "NODE"), 0);
  }
}

TEST_F(VOXECharacCollectorDefinitions, ATypeWithoutVersionsIsNotOffered)
{
  for (const int count : {0, -1})
  {
    world->Told().nbVersions = count;
    const CallLog log;
    EXPECT_EQ(Offers(11, Version(1), "NODE"), 0);
    EXPECT_EQ(Offers(11, Version(1, 1), "NODE"), 0);
    EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailablePositions"), 0);
  }
}

TEST_F(VOXECharacCollectorDefinitions, EveryPlaceOfEveryListIsLookedAt)
{
  EXPECT_EQ(Offers(11, Version(1), "NODE"), 1);
  EXPECT_EQ(Offers(22, Version(3), "CENTER"), 1);
  EXPECT_EQ(Offers(22, Version(1), "CENTER"), 0) << "a version of another type";
}

TEST_F(VOXECharacCollectorDefinitions, EachScanUsesTheCountOfItsOwnQuery)
{
  world->Told().types = {1, 2, 11};
  world->Told().versions[11] = {Version(1)};
  world->Told().positions = {"A", "B", "C", "D"};
  EXPECT_EQ(Offers(11, Version(1), "D"), 1);
}

TEST_F(VOXECharacCollectorDefinitions, ATypeListedTwiceIsFoundAtItsFirstOccurrenceAndNotLookedForAgain)
{
  world->Told().types = {11, 11};
  const CallLog log;
  EXPECT_EQ(Offers(11, Version(1), "NODE"), 1);
  EXPECT_EQ(Offers(11, Version(9), "NODE"), 0);
  EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailableVersions"), 2) << "once per question";
}

TEST_F(VOXECharacCollectorDefinitions, AVersionListedTwiceIsAskedForItsPositionsOnce)
{
  world->Told().versions[11] = {Version(1), Version(1)};
  const CallLog log;
  EXPECT_EQ(Offers(11, Version(1), "FACE"), 0);
  EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailablePositions"), 1);
}

TEST_F(VOXECharacCollectorDefinitions, AVariantOfAVersionThatIsListedWithoutFlagIsOfferedAndAskedForWithoutFlag)
{
  const CallLog log;
  EXPECT_EQ(Offers(11, Version(1, 1), "NODE"), 1);
  EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailablePositions(11, 1, 0)"), 1);
}

TEST_F(VOXECharacCollectorDefinitions, AVariantThatIsListedAsOneIsOfferedAndAskedForWithTheFlag)
{
  world->Told().versions[11] = {Version(2), Version(1, 1)};
  const CallLog log;
  EXPECT_EQ(Offers(11, Version(1, 1), "NODE"), 1);
  EXPECT_EQ(log.Only({"VOXECharacCollector::GetAvailablePositions"}),
            (Calls{"VOXECharacCollector::GetAvailablePositions(11, 1, 1)"}));
}

TEST_F(VOXECharacCollectorDefinitions, AVersionListedInBothWaysIsTakenWithoutFlag)
{
  world->Told().versions[11] = {Version(1, 1), Version(1, 0)};
  const CallLog log;
  EXPECT_EQ(Offers(11, Version(1, 1), "NODE"), 1);
  EXPECT_EQ(log.Only({"VOXECharacCollector::GetAvailablePositions"}),
            (Calls{"VOXECharacCollector::GetAvailablePositions(11, 1, 0)"}));
}

// Kept: the flag selects the second look only when it is exactly 1.
TEST_F(VOXECharacCollectorDefinitions, AVersionListedAsVariantOnlyIsOfferedToAFlagOfExactlyOne)
{
  world->Told().versions[11] = {Version(1, 1)};
  const CallLog log;
  EXPECT_EQ(Offers(11, Version(1, 0), "NODE"), 0);
  EXPECT_EQ(Offers(11, Version(1, 2), "NODE"), 0);
  EXPECT_EQ(Offers(11, Version(1, 255), "NODE"), 0);
  EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailablePositions"), 0);
}

TEST_F(VOXECharacCollectorDefinitions, AnyFlagIsClearedBeforeTheFirstLook)
{
  EXPECT_EQ(Offers(11, Version(1, 2), "NODE"), 1);
  world->Told().versions[11] = {Version(1, 2)};
  EXPECT_EQ(Offers(11, Version(1, 2), "NODE"), 0);
}

TEST_F(VOXECharacCollectorDefinitions, AVariantAtAPositionThatIsNotListedIsNotOffered)
{
  world->Told().versions[11] = {Version(1, 1)};
  EXPECT_EQ(Offers(11, Version(1, 1), "FACE"), 0);
}

TEST_F(VOXECharacCollectorDefinitions, AFailedQueryIsPropagatedAndNothingIsOffered)
{
  for (const char* const query :
       {kTypes, "VOXECharacCollector::GetAvailableVersions", "VOXECharacCollector::GetAvailablePositions"})
  {
    ResetErrors();
    voxhost::Faults::FailOperation(query, 1, false);
    EXPECT_EQ(Offers(11, Version(1), "NODE"), 7) << query;
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}})) << query;
  }
}

TEST_F(VOXECharacCollectorDefinitions, AnAnswerThatSaysNothingOffersNothing)
{
  Bench bench;
  const VOXICharacCollector_var spCollector(bench.Component<CharacTie<Reticent>>());
  for (const char* const about : {"types", "versions", "positions"})
  {
    Reticent::silentAbout = about;
    unsigned char available = 7;
    EXPECT_EQ(spCollector->IsAnAvailableDefinition(11, Version(1), "NODE", available), S_OK) << about;
    EXPECT_EQ(available, 0) << about;
  }
  Reticent::silentAbout = "";
}

TEST_F(VOXECharacCollectorDefinitions, EntityTypesAndOccurrencesAreAlwaysEmpty)
{
  int number = 5;
  const int* types = Poison<const int>();
  EXPECT_EQ((*world)->GetAvailableEntityPhysicalTypes(11, number, types), S_OK);
  EXPECT_EQ(number, 0);
  EXPECT_EQ(types, nullptr);
  for (const unsigned char flag : {0, 1})
  {
    number = 5;
    auto collectors = Poison<const VOXAnalysisCharacCollector* const>();
    EXPECT_EQ((*world)->GetCharacCollectorsForOccurrences(number, collectors, flag), S_OK);
    EXPECT_EQ(number, 0);
    EXPECT_EQ(collectors, nullptr);
  }
}

TEST_F(VOXECharacCollectorDefinitions, NoFeatureIsAuthorizedToArchiveUnlessItSaysSo)
{
  unsigned char authorized = 9;
  EXPECT_EQ(world->Adaptor().PlainCharac::IsAuthorizedToArchiveCollectors(authorized), S_OK);
  EXPECT_EQ(authorized, 0);
}

TEST_F(VOXECharacCollectorDefinitions, ActivityIsThatOfTheExplicitFeature)
{
  world->Explicit().activity = 1;
  EXPECT_EQ(world->Adaptor().GetActivity(), 1);
  world->Explicit().activity = 0;
  EXPECT_EQ(world->Adaptor().GetActivity(), 0);
}

TEST_F(VOXECharacCollectorDefinitions, ActivityOfAFeatureThatIsNotExplicitIsNone)
{
  voxhost::Faults::FailOperation("VOXBaseUnknown::QueryInterface", 1, false);
  EXPECT_EQ(world->Adaptor().GetActivity(), 0);
  EXPECT_TRUE(AllReported().empty());
}

TEST_F(VOXECharacCollectorDefinitions, ActivityIsAskedOfTheFeatureItself)
{
  Bench bench;
  const VOXICharacCollector_var spCollector(bench.Component<CharacTie<Questioned>, ScriptedExplicit>());
  const CallLog log;
  CharacTie<Questioned>::AdaptorOf(spCollector).GetActivity();
  EXPECT_EQ(log.Count("own query"), 1);
}

TEST_F(VOXECharacCollectorDefinitions, ActivityIsAskedOnceAndTheInterfaceGivenBack)
{
  VOXISamExplicit_var spExplicit(world->Feature()); // so that the face exists
  const CallLog log(CallLog::References::Recorded);
  world->Adaptor().GetActivity();
  EXPECT_EQ(log.All(),
            (Calls{"VOXBaseUnknown::QueryInterface", "VOXISamExplicit::GetActivity", "Release VOXISamExplicit"}));
}

TEST(VOXECharacCollectorPattern, OperationsAreInTheInterfacesOrderAndTheHooksFollow)
{
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetAvailablePhysicalTypes), 1);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetAvailableEntityPhysicalTypes), 2);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetAvailableVersions), 3);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetAvailablePositions), 4);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetCharacCollector), 5);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetCharacCollectors), 6);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::IsCharacCollectorUpToDate), 7);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::IsAnAvailableDefinition), 8);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetTitle), 9);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetCharacCollectorsForOccurrences), 10);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::DeleteCharacCollector), 11);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::DeleteAll), 12);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::Update), 13);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::SetContextModel), 14);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetContextModel), 15);
  EXPECT_EQ(OwnPlace(&VOXECharacCollector::GetContext), 16);
  EXPECT_EQ(OwnPlace(&PlainCharac::GetActivity), 17);
  EXPECT_EQ(OwnPlace(&PlainCharac::IsAuthorizedToArchiveCollectors), 18);
}

TEST_F(VOXECharacCollectorDefinitions, OperationsAreReachedThroughTheirPlaces)
{
  ScriptedCharac& adaptor = world->Adaptor();
  unsigned char available = 9;
  const VOXSamCharacVersion version = Version(1);
  const VOXString position("NODE");
  EXPECT_EQ((CallOwn<HRESULT, int, const VOXSamCharacVersion&, const VOXString&, unsigned char&>(
                &adaptor, 8, 11, version, position, available)),
            S_OK);
  EXPECT_EQ(available, 1);
  EXPECT_EQ((CallOwn<HRESULT, unsigned char>(&adaptor, 13, static_cast<unsigned char>(0))), S_OK);
  EXPECT_EQ(CallOwn<unsigned char>(&adaptor, 17), 1);
}

TEST_F(VOXECharacCollectorDefinitions, MembersComeInTheirOrderBehindTheBase)
{
  EXPECT_EQ(CharacArea::Offsets(world->Adaptor()), (std::vector<std::ptrdiff_t>{32, 40, 48, 56, 64, 72}));
  EXPECT_EQ(sizeof(VOXECharacCollector), 80u);
}

TEST_F(VOXECharacCollectorDefinitions, ANewAdaptorHasNoAreaAndNoModels)
{
  EXPECT_TRUE(CharacArea::IsBlank(world->Adaptor()));
  EXPECT_EQ(CharacArea::ContextModel(world->Adaptor()), nullptr);
  EXPECT_EQ(CharacArea::PreviousContextModel(world->Adaptor()), nullptr);
}

TEST(VOXECharacCollectorPattern, TheArchiveFlagIsKnownInsideAndOutsideOfTheClass)
{
  EXPECT_TRUE((std::is_same_v<VOXECharacCollector::CollectorArchiveFlag, ::CollectorArchiveFlag>));
  EXPECT_TRUE((std::is_same_v<decltype(CollectorArchiveOnDemand), ::CollectorArchiveFlag>));
}
