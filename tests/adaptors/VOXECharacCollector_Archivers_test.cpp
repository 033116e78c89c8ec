// SPDX-License-Identifier: MIT
// Archivers that are kept: fetched, replaced, reset when the numbering changes.
#include "tests/adaptors/CharacWorld.h"
#include "tests/adaptors/TraceReader.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ArchiverSwitches;
using voxhost::Faults;

namespace
{

constexpr char kNoPlace[] = "oPhysicalTypeIndex == -1 || oVersionIndex == -1 || oPositionIndex == -1";

class VOXECharacCollectorArchivers : public CharacTest
{
protected:
  HRESULT Get(int iType = 11, const VOXSamCharacVersion& iVersion = Version(1), const char* iPosition = "NODE")
  {
    given = Poison<VOXAnalysisCollectorArchiver>();
    const HRESULT result = world->Adaptor().GetCollectorArchiver(iType, iVersion, iPosition, given);
    Faults::Disarm();
    return result;
  }

  VOXAnalysisCollectorArchiver* given = nullptr;
};

} // namespace

TEST_F(VOXECharacCollectorArchivers, NoneIsKeptAtFirstAndNoTimeStampIsAskedFor)
{
  const CallLog log;
  EXPECT_EQ(Get(), S_OK);
  EXPECT_EQ(given, nullptr);
  EXPECT_EQ(log.Count("VOXISpecObject"), 0);
}

TEST_F(VOXECharacCollectorArchivers, OneThatIsKeptIsLent)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  EXPECT_EQ(world->Keep(&archiver), S_OK);
  EXPECT_EQ(References(archiver), 2);
  EXPECT_EQ(Get(), S_OK);
  EXPECT_EQ(given, &archiver);
  EXPECT_EQ(References(archiver), 2) << "no reference for the borrower";
  EXPECT_EQ(archiver.IsStreamable(), 1);
}

TEST_F(VOXECharacCollectorArchivers, FetchingOneCostsTheThreeQueriesAndTheTimeStamp)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  world->Keep(&archiver);
  Get(); // all interfaces are made by now
  const CallLog log;
  Get();
  EXPECT_EQ(
      log.Without({"of the component"}),
      (Calls{"VOXBaseUnknown::QueryInterface", "VOXECharacCollector::GetAvailablePhysicalTypes",
             "VOXECharacCollector::GetAvailableVersions(11)", "VOXECharacCollector::GetAvailablePositions(11, 1, 0)",
             "VOXBaseUnknown::QueryInterface", "VOXISpecObject::GetTimeStamp"}));
}

TEST_F(VOXECharacCollectorArchivers, AVersionAndItsVariantHaveArchiversOfTheirOwn)
{
  VOXAnalysisCollectorArchiver& plain = world->NewArchiver();
  VOXAnalysisCollectorArchiver& variant = world->NewArchiver();
  world->Keep(&plain, 11, Version(2, 0));
  EXPECT_EQ(world->Fetch(11, Version(2, 1)), nullptr);
  world->Keep(&variant, 11, Version(2, 1));
  EXPECT_EQ(world->Fetch(11, Version(2, 0)), &plain);
  EXPECT_EQ(world->Fetch(11, Version(2, 1)), &variant);
  EXPECT_EQ(CharacArea::Entry(world->Adaptor(), 0, 1, 0), &plain);
  EXPECT_EQ(CharacArea::Entry(world->Adaptor(), 0, 3, 0), &variant);
}

TEST_F(VOXECharacCollectorArchivers, EachDefinitionHasItsOwn)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  world->Keep(&archiver, 11, Version(2), "CENTER");
  EXPECT_EQ(world->Fetch(11, Version(2), "CENTER"), &archiver);
  EXPECT_EQ(world->Fetch(11, Version(2), "NODE"), nullptr);
  EXPECT_EQ(world->Fetch(11, Version(1), "CENTER"), nullptr);
  EXPECT_EQ(world->Fetch(22, Version(3), "CENTER"), nullptr);
}

TEST_F(VOXECharacCollectorArchivers, OneOfAnotherTimeStampIsDroppedAndMadeUnstreamable)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver(1);
  world->Keep(&archiver);
  world->Spec().timeStamp = 2;
  EXPECT_EQ(Get(), S_OK);
  EXPECT_EQ(given, nullptr);
  EXPECT_EQ(archiver.IsStreamable(), 0);
  EXPECT_EQ(References(archiver), 1) << "given back once";
  EXPECT_EQ(CharacArea::Entry(world->Adaptor(), 0, 0, 0), nullptr);
  world->Spec().timeStamp = 1;
  EXPECT_EQ(Get(), S_OK);
  EXPECT_EQ(given, nullptr) << "it is gone for good";
}

TEST_F(VOXECharacCollectorArchivers, OneThatOnlyTheAreaKnewDiesWhenItIsOutOfDate)
{
  VOXAnalysisCharacCollector& collector = world->NewCollector();
  const auto archivers = Archivers();
  EXPECT_EQ(world->Adaptor().AssignArchiverToCollector(&collector, CollectorArchiveOnFill), S_OK);
  const auto* const archiver = CharacArea::ArchiverOf(collector);
  CharacArea::SetArchiverOf(collector, nullptr);
  CharacArea::Release(*archiver); // the creation reference
  EXPECT_EQ(Archivers(), archivers + 1);
  world->Spec().timeStamp = 2;
  EXPECT_EQ(Get(), S_OK);
  EXPECT_EQ(Archivers(), archivers);
}

// Kept: the archiver stays handed out.
TEST_F(VOXECharacCollectorArchivers, OneOfAFeatureWithoutSpecObjectIsAFailureAndStaysHandedOut)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  world->Keep(&archiver);
  Faults::FailOperation("VOXBaseUnknown::QueryInterface", 2, false);
  EXPECT_EQ(Get(), E_FAIL);
  EXPECT_EQ(given, &archiver);
  EXPECT_EQ(References(archiver), 2);
  EXPECT_EQ(AllReported(),
            (std::vector<Reported>{{VOXSamErrorCondition, "(aSpecObject = GetImpl()) == NULL_var", kCharac}}));
}

TEST_F(VOXECharacCollectorArchivers, OneOfAnUnknownDefinitionCannotBeFetchedOrKept)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  const std::vector<Reported> expected{{VOXSamErrorCondition, kNoPlace, kCharac}};
  const TraceReader reader(Tra_SAMTraceExpli);
  for (const int unknown : {0, 1, 2})
  {
    const int type = unknown == 0 ? 33 : 11;
    const VOXSamCharacVersion version = Version(unknown == 1 ? 7 : 1);
    const char* const position = unknown == 2 ? "FACE" : "NODE";
    ResetErrors();
    EXPECT_EQ(Get(type, version, position), E_FAIL);
    EXPECT_EQ(given, nullptr);
    EXPECT_EQ(AllReported(), expected);
    ResetErrors();
    EXPECT_EQ(world->Keep(&archiver, type, version, position), E_FAIL);
    EXPECT_EQ(AllReported(), expected);
    EXPECT_EQ(References(archiver), 1);
  }
  std::string explained;
  for (int i = 0; i < 6; ++i)
    explained += "Can't Locate Archiver ...\n";
  EXPECT_EQ(reader.Text(), explained);
}

TEST_F(VOXECharacCollectorArchivers, OneOfAFeatureWithoutTypesCannotBeFetched)
{
  world->Told().types.clear();
  for (int again = 0; again < 2; ++again)
  {
    ResetErrors();
    EXPECT_EQ(Get(), E_FAIL);
    EXPECT_EQ(given, nullptr);
    EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, kNoPlace, kCharac}}));
    EXPECT_TRUE(CharacArea::IsBuilt(world->Adaptor()));
  }
}

TEST_F(VOXECharacCollectorArchivers, OneOfADefinitionThatCameLaterWaitsForTheNextReset)
{
  world->Fetch();
  world->Told().versions[11].push_back(Version(3));
  EXPECT_EQ(Get(11, Version(3)), E_FAIL);
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorCondition, kNoPlace, kCharac}}));
  (*world)->Update(1);
  EXPECT_EQ(Get(11, Version(3)), S_OK);
}

TEST_F(VOXECharacCollectorArchivers, AFailedBuildOrSearchIsReportedOnBothLevels)
{
  const std::vector<Reported> both{{VOXSamErrorPropagated, "", kCharac, 2}, {VOXSamErrorPropagated, "", kCharac, 1}};
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  for (const int call : {1, 2}) // the area asks for the types once to be built, once to be searched
    for (const bool keeps : {false, true})
    {
      ResetErrors();
      (*world)->Update(0);
      Faults::FailOperation("VOXECharacCollector::GetAvailablePhysicalTypes", call, false);
      EXPECT_EQ(keeps ? world->Keep(&archiver) : Get(), E_FAIL);
      Faults::Disarm();
      EXPECT_TRUE(keeps || given == nullptr);
      EXPECT_EQ(AllReported(), both);
      EXPECT_EQ(CharacArea::IsBuilt(world->Adaptor()), call == 2);
    }
  EXPECT_EQ(References(archiver), 1);
}

TEST_F(VOXECharacCollectorArchivers, ANewOneReplacesTheOneSoFar)
{
  VOXAnalysisCollectorArchiver& first = world->NewArchiver();
  VOXAnalysisCollectorArchiver& second = world->NewArchiver();
  EXPECT_EQ(world->Keep(&first), S_OK);
  EXPECT_EQ(world->Keep(&second), S_OK);
  EXPECT_EQ(References(first), 1);
  EXPECT_EQ(References(second), 2);
  EXPECT_EQ(world->Fetch(), &second);
  EXPECT_EQ(first.IsStreamable(), 1);
}

TEST_F(VOXECharacCollectorArchivers, NullEmptiesAnEntry)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  world->Keep(&archiver);
  EXPECT_EQ(world->Keep(nullptr), S_OK);
  EXPECT_EQ(References(archiver), 1);
  EXPECT_EQ(world->Fetch(), nullptr);
  EXPECT_EQ(world->Keep(nullptr), S_OK) << "an empty entry stays empty";
}

// Kept: it is given back before it is taken again; somebody else must hold it meanwhile.
TEST_F(VOXECharacCollectorArchivers, TheOneThatIsKeptAlreadyKeepsItsOneReference)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  world->Keep(&archiver);
  EXPECT_EQ(world->Keep(&archiver), S_OK);
  EXPECT_EQ(References(archiver), 2);
  EXPECT_EQ(world->Fetch(), &archiver);
}

TEST_F(VOXECharacCollectorArchivers, KeepingOneAsksForNoTimeStamp)
{
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  const CallLog log;
  world->Keep(&archiver);
  EXPECT_EQ(log.Count("VOXISpecObject"), 0);
}

TEST_F(VOXECharacCollectorArchivers, WhatTheFeatureOffersAndItsTimeStampAreAskedOfTheImplementation)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<CharacTie<Questioned>, ScriptedSpecObject>();
  const VOXICharacCollector_var spCollector(feature);
  Questioned& adaptor = CharacTie<Questioned>::AdaptorOf(spCollector);
  VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
  const CallLog log;
  EXPECT_EQ(adaptor.SetCollectorArchiver(11, Version(1), "NODE", &archiver), S_OK);
  EXPECT_EQ(adaptor.GetCollectorArchiver(11, Version(1), "NODE", given), S_OK);
  EXPECT_EQ(log.Count("VOXISpecObject::GetTimeStamp"), 1);
  EXPECT_EQ(log.Count("own query"), 0);
}

TEST_F(VOXECharacCollectorArchivers, OneIsStampedByTheImplementation)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<CharacTie<Questioned>, ScriptedExplicit, ScriptedSpecObject>();
  ScriptedExplicit::ScriptOf(feature).model = &world->Model();
  ScriptedExplicit::ScriptOf(feature).parents = {world->Entity()};
  const VOXICharacCollector_var spCollector(feature);
  Questioned& adaptor = CharacTie<Questioned>::AdaptorOf(spCollector);
  const VOXAnalysisCharacCollector& collector = world->NewCollector();
  ArchiverSwitches::SetNewAreStreamable(false); // made, and not kept
  const CallLog log;
  EXPECT_EQ(adaptor.AssignArchiverToCollector(&collector, CollectorArchiveOnDemand), S_OK);
  EXPECT_EQ(log.Count("VOXISpecObject::GetTimeStamp"), 1);
  EXPECT_EQ(log.Count("own query"), 2) << "the alias and the explicit face, for the context";
}

TEST_F(VOXECharacCollectorArchivers, AnAnswerThatSaysNothingOffersNothing)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<CharacTie<Reticent>>();
  const VOXICharacCollector_var spCollector(feature);
  Reticent& adaptor = CharacTie<Reticent>::AdaptorOf(spCollector);
  EXPECT_EQ(CharacArea::Build(adaptor), S_OK);
  for (const char* const about : {"types", "versions", "positions"})
  {
    Reticent::silentAbout = about;
    EXPECT_EQ(CharacArea::Locate(adaptor, 11, Version(1), "NODE"), (CharacArea::Place{S_OK, -1, -1, -1})) << about;
  }
  Reticent::silentAbout = "";
}

namespace
{

class VOXECharacCollectorNumbering : public CharacTest
{
protected:
  VOXAnalysisCollectorArchiver& Keep(bool iDependant, const VOXSamCharacVersion& iVersion, const char* iPosition)
  {
    ArchiverSwitches::SetNewAreNumberingDependant(iDependant);
    VOXAnalysisCollectorArchiver& archiver = world->NewArchiver();
    EXPECT_EQ(world->Keep(&archiver, 11, iVersion, iPosition), S_OK);
    return archiver;
  }

  HRESULT ResetDependant()
  {
    const HRESULT result = CharacArea::ResetNumberingDependant(world->Adaptor());
    Faults::Disarm();
    return result;
  }

  static int Resets(const VOXAnalysisCollectorArchiver& iArchiver) { return ArchiverSwitches::Resets(iArchiver); }
};

} // namespace

TEST_F(VOXECharacCollectorNumbering, AChangeBuildsNoArea)
{
  const CallLog log;
  EXPECT_EQ(ResetDependant(), S_OK);
  EXPECT_TRUE(CharacArea::IsBlank(world->Adaptor()));
  EXPECT_TRUE(log.All().empty());
}

TEST_F(VOXECharacCollectorNumbering, AChangeEmptiesTheArchiversThatDependOnItInPlace)
{
  const VOXAnalysisCollectorArchiver& first = Keep(true, Version(1), "NODE");
  const VOXAnalysisCollectorArchiver& independent = Keep(false, Version(1), "CENTER");
  const VOXAnalysisCollectorArchiver& variant = Keep(true, Version(2, 1), "CENTER");
  EXPECT_EQ(ResetDependant(), S_OK);
  EXPECT_EQ(Resets(first), 1);
  EXPECT_EQ(Resets(independent), 0);
  EXPECT_EQ(Resets(variant), 1);
  EXPECT_EQ(References(first), 2);
  EXPECT_EQ(world->Fetch(), &first);
  EXPECT_EQ(world->Fetch(11, Version(2, 1), "CENTER"), &variant);
}

TEST_F(VOXECharacCollectorNumbering, AChangeStopsAtTheFirstArchiverThatFails)
{
  const VOXAnalysisCollectorArchiver& first = Keep(true, Version(1), "NODE");
  const VOXAnalysisCollectorArchiver& second = Keep(true, Version(1), "CENTER");
  const VOXAnalysisCollectorArchiver& sameLeaf = Keep(true, Version(2), "NODE");
  const VOXAnalysisCollectorArchiver& last = Keep(true, Version(2, 1), "NODE");
  Faults::FailOperation("VOXAnalysisCollectorArchiver::ResetStorage", 2, false);
  EXPECT_EQ(ResetDependant(), E_FAIL);
  EXPECT_EQ((std::vector<int>{Resets(first), Resets(second), Resets(sameLeaf), Resets(last)}),
            (std::vector<int>{1, 0, 0, 0}));
  EXPECT_EQ(AllReported(), (std::vector<Reported>{{VOXSamErrorPropagated, "", kCharac}}));
  EXPECT_EQ(world->Fetch(), &first) << "the area stays";
}

TEST_F(VOXECharacCollectorNumbering, AChangeStopsWithinTheLeafAsWell)
{
  Keep(true, Version(1), "NODE");
  const VOXAnalysisCollectorArchiver& second = Keep(true, Version(1), "CENTER");
  Faults::FailOperation("VOXAnalysisCollectorArchiver::ResetStorage", 1, false);
  EXPECT_EQ(ResetDependant(), E_FAIL);
  EXPECT_EQ(Resets(second), 0);
}

TEST_F(VOXECharacCollectorNumbering, AChangeOfAnAreaWithoutTypesDoesNothing)
{
  world->Told().types.clear();
  CharacArea::Build(world->Adaptor());
  EXPECT_EQ(ResetDependant(), S_OK);
}
