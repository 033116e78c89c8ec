// SPDX-License-Identifier: MIT
// Every host call and every allocation of every operation fails once, and from then on.
#include "tests/adaptors/CharacWorld.h"
#include "tests/support/Memory.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ArchiverSwitches;
using voxhost::Faults;
using voxhost::Ledger;

namespace
{

constexpr char kNoCollector[] = "(aVOXICharacCollector = GetImpl()) == NULL_var";
constexpr char kNoSpecObject[] = "(aSpecObject = GetImpl()) == NULL_var";

Torture CharacTorture(const char* iOperation)
{
  Torture torture(iOperation);
  torture.Reports(VOXSamErrorPropagated, "", "VOXECharacCollector");
  return torture;
}

Torture& WithContext(Torture& ioTorture)
{
  return ioTorture.Reports(VOXSamErrorMissingObject, "Explicit", "VOXECharacCollector")
      .Reports(VOXSamErrorMissingObject, "CurrentModel = Explicit->GetExplicitModel()", "VOXECharacCollector");
}

void GiveBackCreation(const VOXAnalysisCharacCollector& iCollector)
{
  CharacArea::Release(*CharacArea::ArchiverOf(iCollector));
}

} // namespace

TEST(VOXECharacCollectorTorture, IsAnAvailableDefinitionSurvivesEveryFailure)
{
  CharacTorture("IsAnAvailableDefinition")
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            world.Told().versions[11] = {Version(1, 1)};
            unsigned char available = 9;
            ioRun.Call([&] { return world->IsAnAvailableDefinition(11, Version(1, 1), "CENTER", available); });
            EXPECT_EQ(available, ioRun.Succeeded() ? 1 : 0);
          });
}

TEST(VOXECharacCollectorTorture, GetContextSurvivesEveryFailure)
{
  Torture torture = CharacTorture("GetContext");
  WithContext(torture).Run(
      [](TortureRun& ioRun)
      {
        CharacWorld world;
        VOXAnalysisExplicitParent context = world.Model().Create(NULL_exp, "SOLUTION", "other");
        ioRun.Call([&] { return world->GetContext(context); });
        const bool onlyDeletionFailed = Faults::LastFailed() == "VOXAnalysisExplicitListUsr::Delete";
        // A failure of the list's making ends in its deletion as well, when everything fails from there on.
        EXPECT_TRUE(context == world.Entity() || (ioRun.Failed() && context == NULL_exp));
        EXPECT_TRUE(ioRun.Failed() || context == world.Entity());
        EXPECT_TRUE(onlyDeletionFailed || ioRun.Succeeded() || context == NULL_exp);
      });
}

TEST(VOXECharacCollectorTorture, DeleteCharacCollectorSurvivesEveryFailure)
{
  Torture torture = CharacTorture("DeleteCharacCollector");
  WithContext(torture).Run(
      [](TortureRun& ioRun)
      {
        CharacWorld world;
        const VOXAnalysisCharacCollector* const collector = &world.NewCollector();
        const VOXAnalysisCharacCollector* given = collector;
        ioRun.Call([&] { return world->DeleteCharacCollector(given); });
        EXPECT_EQ(given, ioRun.Succeeded() ? nullptr : collector);
      });
}

TEST(VOXECharacCollectorTorture, DeleteAllSurvivesEveryFailure)
{
  Torture torture = CharacTorture("DeleteAll");
  WithContext(torture).Run(
      [](TortureRun& ioRun)
      {
        CharacWorld world;
        world.NewCollector();
        world.NewCollector();
        ioRun.Call([&] { return world->DeleteAll(); });
        EXPECT_EQ(world.Model().RecordOf(world.Entity())->characCollectors.empty(), ioRun.Succeeded());
      });
}

TEST(VOXECharacCollectorTorture, SetContextModelSurvivesEveryFailure)
{
  CharacTorture("SetContextModel")
      .Run(
          [](TortureRun& ioRun)
          {
            const voxhost::ExplicitModel m1;
            const voxhost::ExplicitModel m2;
            const voxhost::ExplicitModel m3;
            CharacWorld world;
            VOXAnalysisCollectorArchiver& archiver = world.NewArchiver();
            world.Keep(&archiver);
            world->SetContextModel(&m1);
            world->SetContextModel(&m2);
            ioRun.Call([&] { return world->SetContextModel(&m3); });
            EXPECT_EQ(CharacArea::ContextModel(world.Adaptor()), ioRun.Succeeded() ? &m3 : &m2);
            EXPECT_EQ(CharacArea::PreviousContextModel(world.Adaptor()), ioRun.Succeeded() ? &m2 : &m1);
            EXPECT_EQ(CharacArea::IsBuilt(world.Adaptor()), ioRun.Failed());
          });
}

TEST(VOXECharacCollectorTorture, GetContextModelSurvivesEveryFailure)
{
  Torture torture = CharacTorture("GetContextModel");
  WithContext(torture).Run(
      [](TortureRun& ioRun)
      {
        CharacWorld world;
        const VOXAnalysisExplicitModel* model = Poison<const VOXAnalysisExplicitModel>();
        ioRun.Call([&] { return world->GetContextModel(model); });
        EXPECT_TRUE(model == nullptr || (ioRun.Succeeded() && model == &world.Model()));
        EXPECT_EQ(CharacArea::ContextModel(world.Adaptor()), model);
      });
}

TEST(VOXECharacCollectorTorture, GetActivitySurvivesEveryFailure)
{
  Torture("GetActivity")
      .MayAnswer({0, 1})
      .ReportsNothing()
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            const HRESULT answer = ioRun.Call([&]() -> HRESULT { return world.Adaptor().GetActivity(); });
            EXPECT_EQ(answer, ioRun.IsTortured() ? 0 : 1);
          });
}

TEST(VOXECharacCollectorTorture, BuildingTheAreaSurvivesEveryFailure)
{
  CharacTorture("InitCollectorArchiversStorageArea")
      .Reports(VOXSamErrorCondition, kNoCollector, "VOXECharacCollector")
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            ioRun.Call([&] { return CharacArea::Build(world.Adaptor()); });
            EXPECT_TRUE(ioRun.Succeeded() ? CharacArea::Types(world.Adaptor()) == 2
                                          : CharacArea::IsBlank(world.Adaptor()));
          });
}

TEST(VOXECharacCollectorTorture, LocatingAPlaceSurvivesEveryFailure)
{
  CharacTorture("LocateCollectorArchiver")
      .Reports(VOXSamErrorCondition, kNoCollector, "VOXECharacCollector")
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            CharacArea::Build(world.Adaptor());
            CharacArea::Place place;
            ioRun.Call(
                [&]
                {
                  place = CharacArea::Locate(world.Adaptor(), 11, Version(2, 1), "CENTER");
                  return place.result;
                });
            EXPECT_EQ(place,
                      ioRun.Succeeded() ? (CharacArea::Place{S_OK, 0, 3, 1}) : (CharacArea::Place{E_FAIL, -1, -1, -1}));
          });
}

TEST(VOXECharacCollectorTorture, FetchingAnArchiverSurvivesEveryFailure)
{
  CharacTorture("GetCollectorArchiver")
      .Reports(VOXSamErrorCondition, kNoCollector, "VOXECharacCollector")
      .Reports(VOXSamErrorCondition, kNoSpecObject, "VOXECharacCollector")
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            VOXAnalysisCollectorArchiver& archiver = world.NewArchiver();
            world.Keep(&archiver);
            auto* given = Poison<VOXAnalysisCollectorArchiver>();
            ioRun.Call([&] { return world.Adaptor().GetCollectorArchiver(11, Version(1), "NODE", given); });
            // A time stamp that could not be read is 0.
            const bool outdated = ioRun.Succeeded() && Faults::LastFailed() == "VOXISpecObject::GetTimeStamp";
            EXPECT_TRUE(given == nullptr || given == &archiver);
            EXPECT_TRUE(ioRun.IsTortured() || given == &archiver);
            EXPECT_EQ(ArchiverSwitches::References(archiver), outdated && ioRun.IsTortured() ? 1 : 2);
          });
}

TEST(VOXECharacCollectorTorture, FetchingAnArchiverOutOfABuildSurvivesEveryFailure)
{
  CharacTorture("GetCollectorArchiver")
      .Reports(VOXSamErrorCondition, kNoCollector, "VOXECharacCollector")
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            auto* given = Poison<VOXAnalysisCollectorArchiver>();
            ioRun.Call([&] { return world.Adaptor().GetCollectorArchiver(11, Version(1), "NODE", given); });
            EXPECT_EQ(given, nullptr);
          });
}

TEST(VOXECharacCollectorTorture, KeepingAnArchiverSurvivesEveryFailure)
{
  CharacTorture("SetCollectorArchiver")
      .Reports(VOXSamErrorCondition, kNoCollector, "VOXECharacCollector")
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            VOXAnalysisCollectorArchiver& first = world.NewArchiver();
            VOXAnalysisCollectorArchiver& second = world.NewArchiver();
            world.Keep(&first);
            ioRun.Call([&] { return world.Keep(&second); });
            EXPECT_EQ(ArchiverSwitches::References(first), ioRun.Succeeded() ? 1 : 2);
            EXPECT_EQ(ArchiverSwitches::References(second), ioRun.Succeeded() ? 2 : 1);
          });
}

TEST(VOXECharacCollectorTorture, LookingForMissingValuesSurvivesEveryFailure)
{
  CharacTorture("CollectorIsForAllEntities")
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            const VOXAnalysisCharacCollector& collector = world.NewCollector(11, Version(1), "NODE", {1, 0});
            unsigned char forAll = 9;
            ioRun.Call([&] { return world.Adaptor().CollectorIsForAllEntities(&collector, forAll); });
            EXPECT_EQ(forAll, ioRun.Succeeded() ? 0 : 1);
          });
}

TEST(VOXECharacCollectorTorture, ResettingWhatDependsOnTheNumberingSurvivesEveryFailure)
{
  CharacTorture("ResetNumberingDependantCollectorArchiversStorageArea")
      .Run(
          [](TortureRun& ioRun)
          {
            ArchiverSwitches::SetNewAreNumberingDependant(true);
            CharacWorld world;
            VOXAnalysisCollectorArchiver& first = world.NewArchiver();
            VOXAnalysisCollectorArchiver& second = world.NewArchiver();
            ArchiverSwitches::Restore();
            world.Keep(&first);
            world.Keep(&second, 22, Version(3));
            ioRun.Call([&] { return CharacArea::ResetNumberingDependant(world.Adaptor()); });
            EXPECT_EQ(ArchiverSwitches::Resets(second), ioRun.Succeeded() ? 1 : 0);
            EXPECT_EQ(ArchiverSwitches::References(second), 2);
          });
}

TEST(VOXECharacCollectorTorture, AssigningANewArchiverSurvivesEveryFailure)
{
  Torture torture = CharacTorture("AssignArchiverToCollector");
  WithContext(torture)
      .Reports(VOXSamErrorMissingObject, "CurrentModel = Context.GetModel()", "VOXECharacCollector")
      .Reports(VOXSamErrorCondition, kNoCollector, "VOXECharacCollector")
      .Reports(VOXSamErrorCondition, kNoSpecObject, "VOXECharacCollector")
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            const VOXAnalysisCharacCollector& collector = world.NewCollector();
            const auto before = Ledger::Read().archivers;
            VOXAnalysisExplicitModel::DisplayErrors(1);
            ioRun.Call([&] { return world.Adaptor().AssignArchiverToCollector(&collector, CollectorArchiveOnDemand); });
            EXPECT_EQ(VOXAnalysisExplicitModel::DisplayErrors(0), 1);
            const bool isRefused = ioRun.Failed() && Faults::LastFailed() == "VOXAnalysisCharacCollector::SetArchiver";
            const bool isAssigned = CharacArea::ArchiverOf(collector) != nullptr;
            EXPECT_TRUE(ioRun.IsTortured() || isAssigned);
            EXPECT_EQ(Ledger::Read().archivers - before, isAssigned || isRefused ? 1 : 0);
            Ledger::Balance lost;
            lost.archivers = isRefused ? 1 : 0;
            ioRun.Keeps(lost);
            if (isAssigned)
              GiveBackCreation(collector);
          });
}

TEST(VOXECharacCollectorTorture, AssigningAKeptArchiverSurvivesEveryFailure)
{
  Torture torture = CharacTorture("AssignArchiverToCollector");
  torture.Reports(VOXSamErrorCondition, kNoCollector, "VOXECharacCollector")
      .Reports(VOXSamErrorCondition, kNoSpecObject, "VOXECharacCollector")
      .MayReport(VOXSamErrorMissingObject, "Explicit", "VOXECharacCollector")
      .MayReport(VOXSamErrorMissingObject, "CurrentModel = Explicit->GetExplicitModel()", "VOXECharacCollector")
      .Run(
          [](TortureRun& ioRun)
          {
            CharacWorld world;
            VOXAnalysisCollectorArchiver& archiver = world.NewArchiver();
            world.Keep(&archiver);
            const VOXAnalysisCharacCollector& collector = world.NewCollector();
            ioRun.Call([&] { return world.Adaptor().AssignArchiverToCollector(&collector, CollectorArchiveOnDemand); });
            const auto* const given = CharacArea::ArchiverOf(collector);
            EXPECT_TRUE(ioRun.IsTortured() || given == &archiver);
            EXPECT_TRUE(ioRun.Succeeded() || given == nullptr);
            if (given != nullptr && given != &archiver) // out of date, since its time stamp could not be read
              GiveBackCreation(collector);
          });
}
