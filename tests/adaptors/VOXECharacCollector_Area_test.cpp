// SPDX-License-Identifier: MIT
// The storage area of the archivers: its shape, its places, and how it is freed.
#include "tests/adaptors/CharacWorld.h"

#include <gtest/gtest.h>
#include <malloc.h>

using namespace voxtest;
using voxhost::Faults;

namespace
{

constexpr char kTypes[] = "VOXECharacCollector::GetAvailablePhysicalTypes";
constexpr char kOfComponent[] = "of the component: ";

class VOXECharacCollectorArea : public CharacTest
{
protected:
  using Place = CharacArea::Place;

  Place Locate(int iType, const VOXSamCharacVersion& iVersion, const char* iPosition)
  {
    return CharacArea::Locate(world->Adaptor(), iType, iVersion, iPosition);
  }

  HRESULT Build()
  {
    const HRESULT result = CharacArea::Build(world->Adaptor());
    Faults::Disarm();
    return result;
  }

  void Rebuild()
  {
    (*world)->Update(0);
    EXPECT_EQ(Build(), S_OK);
  }

  int Slots(int iType) { return CharacArea::Slots(world->Adaptor(), iType); }
  int Positions(int iType, int iSlot) { return CharacArea::Positions(world->Adaptor(), iType, iSlot); }
  bool IsBlank() { return CharacArea::IsBlank(world->Adaptor()); }
};

constexpr CharacArea::Place kNowhere{S_OK, -1, -1, -1};

} // namespace

TEST_F(VOXECharacCollectorArea, HasTwoSlotsPerVersionAndOneEntryPerPosition)
{
  world->Told().special[{11, 2}] = {"FACE"};
  EXPECT_EQ(Build(), S_OK);
  const ScriptedCharac& adaptor = world->Adaptor();
  EXPECT_EQ(CharacArea::Types(adaptor), 2);
  EXPECT_EQ((std::vector<int>{Slots(0), Slots(1)}), (std::vector<int>{4, 2}));
  EXPECT_EQ((std::vector<int>{Positions(0, 0), Positions(0, 1), Positions(0, 2), Positions(0, 3)}),
            (std::vector<int>{2, 1, 2, 1}));
  EXPECT_EQ((std::vector<int>{Positions(1, 0), Positions(1, 1)}), (std::vector<int>{2, 2}));
  for (int t = 0; t < 2; ++t)
    for (int s = 0; s < Slots(t); ++s)
      for (int p = 0; p < Positions(t, s); ++p)
        EXPECT_EQ(CharacArea::Entry(adaptor, t, s, p), nullptr);
}

TEST_F(VOXECharacCollectorArea, IsBuiltFromTheAnswersOfTheComponentInTheirOrder)
{
  world->Told().versions[11] = {Version(1), Version(2, 1)};
  const CallLog log;
  EXPECT_EQ(Build(), S_OK);
  EXPECT_EQ(log.All(), (Calls{"VOXBaseUnknown::QueryInterface", kOfComponent, kTypes, kOfComponent,
                              "VOXECharacCollector::GetAvailableVersions(11)", kOfComponent,
                              "VOXECharacCollector::GetAvailablePositions(11, 1, 0)", kOfComponent,
                              "VOXECharacCollector::GetAvailablePositions(11, 2, 1)", kOfComponent,
                              "VOXECharacCollector::GetAvailableVersions(22)", kOfComponent,
                              "VOXECharacCollector::GetAvailablePositions(22, 3, 0)"}));
}

TEST_F(VOXECharacCollectorArea, IsBuiltOnceAndNotAskedForAgain)
{
  EXPECT_EQ(Build(), S_OK);
  const CallLog log;
  EXPECT_EQ(Build(), S_OK);
  EXPECT_TRUE(log.All().empty());
}

TEST_F(VOXECharacCollectorArea, IsBuiltByTheFirstRequestForAnArchiver)
{
  EXPECT_EQ(world->Fetch(), nullptr);
  EXPECT_TRUE(CharacArea::IsBuilt(world->Adaptor()));
  (*world)->Update(0);
  EXPECT_EQ(world->Keep(nullptr), S_OK);
  EXPECT_TRUE(CharacArea::IsBuilt(world->Adaptor()));
}

TEST_F(VOXECharacCollectorArea, OfAFeatureWithoutTypesIsBuiltAndHasNone)
{
  for (const int count : {0, -3})
  {
    world->Told().nbTypes = count;
    Rebuild();
    EXPECT_TRUE(CharacArea::IsBuilt(world->Adaptor()));
    EXPECT_EQ(CharacArea::Types(world->Adaptor()), 0);
    const CallLog log;
    EXPECT_EQ(Build(), S_OK);
    EXPECT_TRUE(log.All().empty()) << "it is not built again";
  }
}

TEST_F(VOXECharacCollectorArea, TakesANegativeCountOfVersionsOrPositionsAsNone)
{
  world->Told().nbVersions = -2;
  EXPECT_EQ(Build(), S_OK);
  EXPECT_EQ(Slots(0), 0);
  world->Told().nbVersions.reset();
  world->Told().nbPositions = -2;
  Rebuild();
  EXPECT_EQ(Slots(0), 4);
  EXPECT_EQ(Positions(0, 0), 0);
  EXPECT_EQ(Positions(0, 2), 0);
  EXPECT_EQ(Locate(11, Version(1), "NODE"), kNowhere);
}

TEST_F(VOXECharacCollectorArea, ThatCannotBeBuiltLeavesNothingBehind)
{
  CharacScript& told = world->Told();
  const auto fails = [this](const char* iWhat)
  {
    ResetErrors();
    EXPECT_EQ(Build(), E_FAIL) << iWhat;
    EXPECT_TRUE(IsBlank()) << iWhat;
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}})) << iWhat;
  };
  told.typesResult = E_NOTIMPL;
  fails("types, their count set");
  told.typesResult = S_OK;
  told.versionsResult = E_NOTIMPL;
  fails("versions of the first type, their count set");
  told.goodVersionsCalls = 1;
  fails("versions of the second type, their count set");
  told.versionsResult = S_OK;
  told.positionsResult = E_NOTIMPL;
  fails("positions of the first version, their count set");
  told.goodPositionsCalls = 2;
  fails("positions of the second type");
  told.positionsResult = S_OK;
  EXPECT_EQ(Build(), S_OK);
}

TEST_F(VOXECharacCollectorArea, OfAComponentWithoutTheInterfaceIsNotBuilt)
{
  Faults::FailOperation("VOXBaseUnknown::QueryInterface", 1, false);
  EXPECT_EQ(Build(), E_FAIL);
  EXPECT_TRUE(IsBlank());
  EXPECT_EQ(AllReported(),
            (std::vector<Reported>{{VOXSamErrorCondition, "(aVOXICharacCollector = GetImpl()) == NULL_var", kCharac}}));
}

TEST_F(VOXECharacCollectorArea, HasNoPlacesBeforeItIsBuiltAndTheFeatureIsNotAsked)
{
  const CallLog log;
  EXPECT_EQ(Locate(11, Version(1), "NODE"), kNowhere);
  EXPECT_TRUE(log.All().empty());
}

TEST_F(VOXECharacCollectorArea, HasThePlacesOfTheFeaturesOwnOrder)
{
  Build();
  EXPECT_EQ(Locate(11, Version(1), "NODE"), (Place{S_OK, 0, 0, 0}));
  EXPECT_EQ(Locate(11, Version(2), "CENTER"), (Place{S_OK, 0, 1, 1}));
  EXPECT_EQ(Locate(22, Version(3), "CENTER"), (Place{S_OK, 1, 0, 1}));
}

TEST_F(VOXECharacCollectorArea, PutsVariantsBehindAllVersions)
{
  Build();
  EXPECT_EQ(Locate(11, Version(1, 1), "NODE"), (Place{S_OK, 0, 2, 0}));
  EXPECT_EQ(Locate(11, Version(2, 1), "CENTER"), (Place{S_OK, 0, 3, 1}));
  EXPECT_EQ(Locate(22, Version(3, 1), "NODE"), (Place{S_OK, 1, 1, 0}));
}

// Kept: any flag that is not 0, whereas a definition is offered to a flag of exactly 1.
TEST_F(VOXECharacCollectorArea, TakesAnyFlagThatIsNotZeroAsAVariant)
{
  Build();
  EXPECT_EQ(Locate(11, Version(1, 2), "NODE"), (Place{S_OK, 0, 2, 0}));
  EXPECT_EQ(Locate(11, Version(1, 255), "NODE"), (Place{S_OK, 0, 2, 0}));
}

TEST_F(VOXECharacCollectorArea, HasNoPlaceForAVersionThatIsListedAsVariantOnly)
{
  world->Told().versions[11] = {Version(1, 1)};
  Build();
  EXPECT_EQ(Locate(11, Version(1, 1), "NODE"), kNowhere);
  EXPECT_EQ(Locate(11, Version(1, 0), "NODE"), kNowhere);
}

TEST_F(VOXECharacCollectorArea, HasNoPlaceForWhatIsNotListed)
{
  Build();
  EXPECT_EQ(Locate(33, Version(1), "NODE"), kNowhere);
  EXPECT_EQ(Locate(11, Version(3), "NODE"), kNowhere);
  EXPECT_EQ(Locate(11, Version(1), "FACE"), kNowhere);
  EXPECT_EQ(Locate(11, Version(1, 1), "FACE"), kNowhere);
}

TEST_F(VOXECharacCollectorArea, IsSearchedByOneQueryOfEachKindToTheComponent)
{
  Build();
  world->Told().versions[11] = {Version(1), Version(2, 0)};
  const CallLog log;
  Locate(11, Version(2, 1), "CENTER");
  EXPECT_EQ(log.All(), (Calls{"VOXBaseUnknown::QueryInterface", kOfComponent, kTypes, kOfComponent,
                              "VOXECharacCollector::GetAvailableVersions(11)", kOfComponent,
                              "VOXECharacCollector::GetAvailablePositions(11, 2, 0)"}));
}

TEST_F(VOXECharacCollectorArea, IsSearchedUpToTheFirstMatch)
{
  world->Told().types = {11, 11};
  world->Told().versions[11] = {Version(1), Version(1)};
  world->Told().positions = {"NODE", "NODE"};
  Build();
  const CallLog log;
  EXPECT_EQ(Locate(11, Version(1), "NODE"), (Place{S_OK, 0, 0, 0}));
  EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailableVersions"), 1);
  EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailablePositions"), 1);
}

// Kept: whether a definition is offered is decided at the first equal type; its place is looked for at all of them.
TEST_F(VOXECharacCollectorArea, IsSearchedAtTheSecondOccurrenceOfATypeToo)
{
  world->Told().types = {11, 11};
  Build();
  int calls = 0;
  world->Told().whenAskedForVersions = [&] { world->Told().versions[11] = {Version(++calls), Version(9)}; };
  EXPECT_EQ(Locate(11, Version(2), "CENTER"), (Place{S_OK, 1, 0, 1}));
  EXPECT_EQ(calls, 2);
  unsigned char available = 1;
  calls = 0;
  EXPECT_EQ((*world)->IsAnAvailableDefinition(11, Version(2), "CENTER", available), S_OK);
  EXPECT_EQ(available, 0);
}

TEST_F(VOXECharacCollectorArea, IsSearchedAtTheSecondOccurrenceOfAVersionToo)
{
  world->Told().versions[11] = {Version(1), Version(1)};
  Build();
  int calls = 0;
  world->Told().whenAskedForPositions = [&]
  {
    ++calls;
    world->Told().positions =
        calls == 1 ? std::vector<VOXString>{"FACE", "EDGE"} : std::vector<VOXString>{"FACE", "NODE"};
  };
  EXPECT_EQ(Locate(11, Version(1), "NODE"), (Place{S_OK, 0, 1, 1}));
  calls = 0;
  EXPECT_EQ(Locate(11, Version(1, 1), "NODE"), (Place{S_OK, 0, 3, 1}));
}

TEST_F(VOXECharacCollectorArea, IsSearchedNoFurtherForAFeatureThatOffersNoTypesAnyMore)
{
  Build();
  for (const int count : {0, -1})
  {
    world->Told().nbTypes = count;
    const CallLog log;
    EXPECT_EQ(Locate(11, Version(1), "NODE"), kNowhere);
    EXPECT_EQ(log.Count("VOXECharacCollector::GetAvailableVersions"), 0);
  }
}

TEST_F(VOXECharacCollectorArea, IsSearchedWithinTheCountsOfEachQuery)
{
  Build();
  world->Told().nbVersions = 1;
  EXPECT_EQ(Locate(11, Version(2), "NODE"), kNowhere);
  world->Told().nbVersions.reset();
  world->Told().nbPositions = 1;
  EXPECT_EQ(Locate(11, Version(1), "CENTER"), kNowhere);
  world->Told().nbPositions.reset();
  world->Told().nbTypes = 1;
  EXPECT_EQ(Locate(22, Version(3), "NODE"), kNowhere);
}

TEST_F(VOXECharacCollectorArea, HasEveryPlaceOfALongListOfTypes)
{
  std::vector<int>& types = world->Told().types;
  types.clear();
  for (int t = 0; t < 29; ++t)
  {
    types.push_back(100 + t);
    world->Told().versions[types.back()] = {Version(1)};
  }
  Build();
  for (int t = 0; t < 29; ++t)
    EXPECT_EQ(Locate(100 + t, Version(1), "NODE"), (Place{S_OK, t, 0, 0}));
  EXPECT_EQ(Locate(99, Version(1), "NODE"), kNowhere);
  for (const int count : {28, 24, 16, 8, 7})
  {
    world->Told().nbTypes = count;
    EXPECT_EQ(Locate(99 + count, Version(1), "NODE"), (Place{S_OK, count - 1, 0, 0})) << "the last one";
    EXPECT_EQ(Locate(100 + count, Version(1), "NODE"), kNowhere) << "the first behind the count";
  }
}

// The arrays are as long as told: a sanitizer sees whoever reads behind them.
TEST_F(VOXECharacCollectorArea, IsSearchedToTheEndOfListsOfEveryLengthAndNoFurther)
{
  for (int length = 1; length <= 17; ++length)
  {
    std::vector<int> types(static_cast<std::size_t>(length), 33);
    types.back() = 11;
    world->Told().types = std::move(types);
    Rebuild();
    EXPECT_EQ(Locate(11, Version(1), "NODE"), (Place{S_OK, length - 1, 0, 0}));
    EXPECT_EQ(Locate(99, Version(1), "NODE"), kNowhere);
  }
}

TEST_F(VOXECharacCollectorArea, IsLeftUnsearchedWhenAQueryFails)
{
  Build();
  for (const char* const query :
       {kTypes, "VOXECharacCollector::GetAvailableVersions", "VOXECharacCollector::GetAvailablePositions"})
  {
    ResetErrors();
    Faults::FailOperation(query, 1, false);
    EXPECT_EQ(Locate(11, Version(1), "NODE"), (Place{E_FAIL, -1, -1, -1})) << query;
    Faults::Disarm();
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}})) << query;
  }
  ResetErrors();
  Faults::FailOperation("VOXBaseUnknown::QueryInterface", 1, false);
  EXPECT_EQ(Locate(11, Version(1), "NODE"), (Place{E_FAIL, -1, -1, -1}));
  EXPECT_EQ(AllReported(),
            (std::vector<Reported>{{VOXSamErrorCondition, "(aVOXICharacCollector = GetImpl()) == NULL_var", kCharac}}));
}

TEST_F(VOXECharacCollectorArea, KeepsItsShapeWhenTheFeatureOffersMore)
{
  Build();
  world->Told().types = {11, 22, 33};
  world->Told().versions[33] = {Version(1)};
  world->Told().versions[22] = {Version(3), Version(4)};
  world->Told().positions = {"NODE", "CENTER", "FACE"};
  EXPECT_EQ(Locate(33, Version(1), "NODE"), kNowhere) << "a type that came later";
  EXPECT_EQ(Locate(22, Version(4), "NODE"), kNowhere) << "a version that came later: no place of a variant for it";
  EXPECT_EQ(Locate(22, Version(4, 1), "NODE"), kNowhere);
  EXPECT_EQ(Locate(11, Version(1), "FACE"), kNowhere) << "a position that came later";
  EXPECT_EQ(Locate(11, Version(1, 1), "FACE"), kNowhere);
  EXPECT_EQ(Locate(11, Version(2, 1), "CENTER"), (Place{S_OK, 0, 3, 1})) << "what was there stays";
  Rebuild();
  EXPECT_EQ(Locate(33, Version(1), "NODE"), (Place{S_OK, 2, 0, 0}));
  EXPECT_EQ(Locate(22, Version(4), "NODE"), (Place{S_OK, 1, 1, 0}));
  EXPECT_EQ(Locate(22, Version(4, 1), "FACE"), (Place{S_OK, 1, 3, 2}));
}

// Kept: the variants begin behind the versions that the feature offers now, wherever that is in the area; whoever changes
// what is offered without an update gets the archiver of another definition.
TEST_F(VOXECharacCollectorArea, CountsTheVariantsFromTheVersionsThatTheFeatureOffersNow)
{
  Build();
  world->Told().versions[11] = {Version(1)};
  EXPECT_EQ(Locate(11, Version(1), "NODE"), (Place{S_OK, 0, 0, 0}));
  EXPECT_EQ(Locate(11, Version(1, 1), "NODE"), (Place{S_OK, 0, 1, 0})) << "one version less";
  world->Told().versions[11] = {Version(1), Version(2), Version(4)};
  EXPECT_EQ(Locate(11, Version(1, 1), "NODE"), (Place{S_OK, 0, 3, 0})) << "one version more";
  EXPECT_EQ(Locate(11, Version(2, 1), "NODE"), kNowhere);
}

TEST_F(VOXECharacCollectorArea, AResetGivesBackEveryArchiverOfBothHalvesOnce)
{
  std::vector<VOXAnalysisCollectorArchiver*> archivers;
  for (const unsigned char variant : {0, 1})
    for (const char* const position : {"NODE", "CENTER"})
      for (const auto& [type, occurrence] : {std::pair(11, 1), std::pair(11, 2), std::pair(22, 3)})
      {
        archivers.push_back(&world->NewArchiver());
        EXPECT_EQ(world->Keep(archivers.back(), type, Version(occurrence, variant), position), S_OK);
      }
  for (const auto* const archiver : archivers)
    EXPECT_EQ(References(*archiver), 2);
  EXPECT_EQ(CharacArea::Reset(world->Adaptor()), S_OK);
  EXPECT_TRUE(IsBlank());
  for (const auto* const archiver : archivers)
    EXPECT_EQ(References(*archiver), 1);
}

TEST_F(VOXECharacCollectorArea, ResettingTwiceIsHarmless)
{
  Build();
  EXPECT_EQ(CharacArea::Reset(world->Adaptor()), S_OK);
  EXPECT_EQ(CharacArea::Reset(world->Adaptor()), S_OK);
  EXPECT_TRUE(IsBlank());
  EXPECT_TRUE(AllReported().empty());
}

TEST_F(VOXECharacCollectorArea, WithoutAnArrayOfAnyLevelIsWalkedAndResetAllTheSame)
{
  using Array = CharacArea::Array;
  for (const Array lost :
       {Array::VersionSlots, Array::Positions, Array::PositionsOfTheFirstType, Array::ArchiversOfTheFirstType})
  {
    Build();
    CharacArea::Lose(world->Adaptor(), lost);
    EXPECT_EQ(CharacArea::ResetNumberingDependant(world->Adaptor()), S_OK);
    EXPECT_EQ(CharacArea::Reset(world->Adaptor()), S_OK);
    EXPECT_TRUE(IsBlank());
  }
}

namespace
{

// Bytes that malloc has given out. A leak checker's allocator tells nothing here, and finds the leaks itself.
std::size_t BytesInUse()
{
  return mallinfo2().uordblks;
}

} // namespace

TEST_F(VOXECharacCollectorArea, AResetFreesTheArraysOfEveryLevel)
{
  const std::vector<VOXString> many(300, "NODE");
  const auto growth = [this]
  {
    std::size_t start = 0;
    for (int round = 0; round < 22; ++round)
    {
      if (round == 2) // what the allocator keeps aside is there by now
        start = BytesInUse();
      Rebuild();
      (*world)->Update(0);
    }
    return static_cast<std::int64_t>(BytesInUse()) - static_cast<std::int64_t>(start);
  };
  CharacScript& told = world->Told();
  told.positions = {"NODE"};
  told.types = std::vector<int>(300, 33);
  EXPECT_LT(growth(), 20 * 1000) << "types";
  told.types = {33};
  told.versions[33] = std::vector<VOXSamCharacVersion>(300);
  EXPECT_LT(growth(), 20 * 1000) << "versions";
  told.versions[33] = {Version(1)};
  told.positions = std::vector<VOXString>(300, "NODE");
  EXPECT_LT(growth(), 20 * 1000) << "positions";
}

TEST_F(VOXECharacCollectorArea, ABuildThatFailsFreesTheArraysOfEveryLevel)
{
  CharacScript& told = world->Told();
  told.types = std::vector<int>(300, 33);
  told.versions[33] = std::vector<VOXSamCharacVersion>(300);
  told.positions = std::vector<VOXString>(300, "NODE");
  told.positionsResult = E_NOTIMPL;
  std::size_t start = 0;
  for (int round = 0; round < 22; ++round)
  {
    if (round == 2)
      start = BytesInUse();
    told.goodPositionsCalls = 3;
    EXPECT_EQ(Build(), E_FAIL);
    ResetErrors();
  }
  EXPECT_LT(static_cast<std::int64_t>(BytesInUse()) - static_cast<std::int64_t>(start), 20 * 1000);
}
