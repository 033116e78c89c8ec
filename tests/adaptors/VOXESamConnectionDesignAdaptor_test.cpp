// SPDX-License-Identifier: MIT
#include "VOXESamConnectionDesignAdaptor.h"

#include "host/Instruments/Ledger.h"
#include "tests/adaptors/ConnectionWorld.h"
#include "tests/adaptors/Face.h"
#include "tests/adaptors/Reported.h"
#include "tests/support/FatalErrorOf.h"
#include "tests/support/VirtualTable.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Ledger;

static_assert(sizeof(VOXESamConnectionDesignAdaptor) == 32, "nothing behind the base");

namespace
{

class VOXESamConnectionDesign : public testing::Test
{
protected:
  VOXESamConnectionDesign()
  {
    ResetErrors();
    Ledger::TurnOn();
    world.emplace();
    sides.emplace();
  }
  ~VOXESamConnectionDesign() override
  {
    EXPECT_TRUE(AllReported().empty());
    sides.reset();
    world.reset();
    EXPECT_EQ(Ledger::Read().references, 0);
    Ledger::TurnOff();
    ResetErrors();
  }

  // Puts something into both lists of supports.
  void Fill()
  {
    sides->supports1.Append(VOXBaseUnknown_var(world->Named("X")));
    sides->supports2.Append(VOXBaseUnknown_var(world->Named("Y")));
  }

  std::string Supports1() const { return world->Names(sides->supports1); }
  std::string Supports2() const { return world->Names(sides->supports2); }
  std::string Designers1() const { return world->NamesAt(sides->designers1); }
  std::string Designers2() const { return world->NamesAt(sides->designers2); }

  // Puts a designer with other faces on a side.
  template <class... Faces>
  VOXBaseUnknown* Design(const char* iRole)
  {
    VOXBaseUnknown* const other = world->MoreComponents().Component<Faces...>();
    world->Told().roles[iRole] = {other};
    return other;
  }

  // The fatal error that an operation ends with.
  template <class Operation>
  static voxhost::CheckReport Fatal(Operation iOperation)
  {
    const voxhost::CheckReport fatal = FatalErrorOf(iOperation);
    EXPECT_EQ(fatal.file, "VOXAnalysisAdaptors.m/src/VOXESamConnectionDesignAdaptor");
    EXPECT_GT(fatal.line, 0);
    return fatal;
  }
  voxhost::CheckReport FatalDesigners()
  {
    return Fatal([this] { world->GetDesigners(*sides); });
  }

  std::optional<ConnectionWorld> world;
  std::optional<ConnectionSides> sides;
};

using VOXESamConnectionDesignSupports = VOXESamConnectionDesign;
using VOXESamConnectionDesignDesigners = VOXESamConnectionDesign;

} // namespace

TEST(VOXESamConnectionDesignAdaptor, ItsOperationsAreNotVirtual)
{
  EXPECT_FALSE(IsVirtual(&VOXESamConnectionDesignAdaptor::GetConnectedSupports));
  EXPECT_FALSE(IsVirtual(&VOXESamConnectionDesignAdaptor::GetConnectionDesigners));
  EXPECT_TRUE(IsVirtual(&VOXESamConnectionDesignAdaptor::AddRef));
}

TEST_F(VOXESamConnectionDesignSupports, TheSupportsOfBothSidesAreListed)
{
  EXPECT_EQ(world->GetSupports(*sides), S_OK);
  EXPECT_EQ(Supports1(), "A B");
  EXPECT_EQ(Supports2(), "C");
}

TEST_F(VOXESamConnectionDesignSupports, TheyAreListedStraightIntoTheCallersLists)
{
  Fill();
  const VOXListValVOXBaseUnknown_var* given1 = nullptr;
  const VOXListValVOXBaseUnknown_var* given2 = nullptr;
  ConnectionWorld::SupportOf(world->designer1).whenAsked = [&](const auto& iSoFar) { given1 = &iSoFar; };
  ConnectionWorld::SupportOf(world->designer2).whenAsked = [&](const auto& iSoFar) { given2 = &iSoFar; };
  EXPECT_EQ(world->GetSupports(*sides), S_OK);
  EXPECT_EQ(given1, &sides->supports1);
  EXPECT_EQ(given2, &sides->supports2);
  EXPECT_EQ(Supports1(), "X A B") << "this host's listing appends";
  EXPECT_EQ(Supports2(), "Y C");
}

TEST_F(VOXESamConnectionDesignSupports, TheyAreListedByTheseCalls)
{
  const VOXISamConnectionDesign_var spDesign = world->Design();
  const CallLog log;
  EXPECT_EQ(spDesign->GetConnectedSupports(sides->supports1, sides->supports2), S_OK);
  EXPECT_EQ(
      log.Without({"VOXBaseUnknown::"}),
      (Calls{"own implementation(0)", "VOXISamAnalysisEntity::ListByRole(SAMConnectionDesigner1)",
             "VOXISamAnalysisSupport::ListSupports(all)", "VOXISamAnalysisEntity::ListByRole(SAMConnectionDesigner2)",
             "VOXISamAnalysisSupport::ListSupports(all)"}));
}

TEST_F(VOXESamConnectionDesignSupports, ASideWithNoneOrSeveralDesignersIsLeftAsItIs)
{
  Fill();
  world->Told().roles = {{kRole1, {world->designer1, world->designer2}}, {kRole2, {}}};
  EXPECT_EQ(world->GetSupports(*sides), S_OK);
  world->Told().roles.clear();
  EXPECT_EQ(world->GetSupports(*sides), S_OK);
  EXPECT_EQ(Supports1(), "X");
  EXPECT_EQ(Supports2(), "Y");
}

TEST_F(VOXESamConnectionDesignSupports, ADesignerThatIsNoSupportIsSkipped)
{
  Fill();
  Design<ScriptedMeshPartFilter>(kRole1);
  world->Told().roles[kRole2] = {nullptr};
  EXPECT_EQ(world->GetSupports(*sides), S_OK);
  EXPECT_EQ(Supports1(), "X");
  EXPECT_EQ(Supports2(), "Y");
}

TEST_F(VOXESamConnectionDesignSupports, ADesignerNeedsToBeNoMeshPartFilter)
{
  ConnectionWorld::SupportOf(Design<ScriptedAnalysisSupport>(kRole1)).supports = {world->Named("D")};
  EXPECT_EQ(world->GetSupports(*sides), S_OK);
  EXPECT_EQ(Supports1(), "D");
}

TEST_F(VOXESamConnectionDesignSupports, AListThatComesWithAFailureIsUsedOnBothSides)
{
  world->Told().roleResult = E_NOTIMPL;
  EXPECT_EQ(world->GetSupports(*sides), E_NOTIMPL);
  EXPECT_EQ(Supports1(), "A B");
  EXPECT_EQ(Supports2(), "C");
}

TEST_F(VOXESamConnectionDesignSupports, TheAnswerIsThatOfTheQueryForTheSecondSideAsItCame)
{
  for (const HRESULT result : {S_OK, S_FALSE, E_FAIL, E_NOTIMPL})
  {
    world->Told().roleResults = {{kRole1, E_INVALIDARG}, {kRole2, result}};
    EXPECT_EQ(world->GetSupports(*sides), result);
  }
}

TEST_F(VOXESamConnectionDesignSupports, AListingThatFailsIsNoFailure)
{
  ConnectionWorld::SupportOf(world->designer1).result = E_FAIL;
  ConnectionWorld::SupportOf(world->designer2).result = E_FAIL;
  EXPECT_EQ(world->GetSupports(*sides), S_OK);
  EXPECT_EQ(Supports1(), "A B");
}

TEST_F(VOXESamConnectionDesignSupports, TheListOfTheFirstSideIsGivenBackBeforeTheSecondIsAskedFor)
{
  long meanwhile = -1;
  world->Told().whenAskedForRole = [&](const std::string& iRole)
  { meanwhile = iRole == kRole2 ? Bench::References(world->designer1) : -1; };
  EXPECT_EQ(world->GetSupports(*sides), S_OK);
  EXPECT_EQ(meanwhile, 0);
}

TEST_F(VOXESamConnectionDesignSupports, WhatIsNoEntityIsFatal)
{
  VOXBaseUnknown* const bare = world->MoreComponents().Component<TiedConnectionDesign>();
  const VOXISamConnectionDesign_var spDesign(bare);
  Fill();
  EXPECT_EQ(Fatal([&] { spDesign->GetConnectedSupports(sides->supports1, sides->supports2); }).text,
            "AssertionFailed:!!spEnt");
  EXPECT_EQ(Supports1(), "X");
}

TEST_F(VOXESamConnectionDesignDesigners, SupportsAndDesignersOfBothSidesAreListed)
{
  EXPECT_EQ(world->GetDesigners(*sides), S_OK);
  EXPECT_EQ(Supports1(), "A B");
  EXPECT_EQ(Designers1(), "P");
  EXPECT_EQ(Supports2(), "C");
  EXPECT_EQ(Designers2(), "Q");
}

TEST_F(VOXESamConnectionDesignDesigners, SupportsReplaceTheCallersAfterTheyWereListedIntoAFreshList)
{
  Fill();
  std::string callers;
  int size = -1;
  ConnectionWorld::SupportOf(world->designer2).whenAsked = [&](const auto& iSoFar)
  {
    size = iSoFar.Size();
    callers = Supports1() + " / " + Supports2();
  };
  EXPECT_EQ(world->GetDesigners(*sides), S_OK);
  EXPECT_EQ(size, 0);
  EXPECT_EQ(callers, "A B / Y");
  EXPECT_EQ(Supports2(), "C");
}

TEST_F(VOXESamConnectionDesignDesigners, TheCallersSupportsAreReplacedBeforeTheDesignersAreAskedFor)
{
  Fill();
  std::string callers;
  ConnectionWorld::FilterOf(world->designer1).whenAsked = [&] { callers = Supports1(); };
  EXPECT_EQ(world->GetDesigners(*sides), S_OK);
  EXPECT_EQ(callers, "A B");
}

TEST_F(VOXESamConnectionDesignDesigners, TheyAreListedByTheseCalls)
{
  const VOXISamConnectionDesign_var spDesign = world->Design();
  const CallLog log;
  spDesign->GetConnectionDesigners(sides->supports1, sides->designers1, sides->supports2, sides->designers2);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"own implementation(0)", "VOXISamAnalysisEntity::ListByRole(SAMConnectionDesigner1)",
                   "VOXISamAnalysisSupport::ListSupports(all)", "VOXISamMeshPartFilter::ListDesigners(null)",
                   "VOXISamAnalysisEntity::ListByRole(SAMConnectionDesigner2)",
                   "VOXISamAnalysisSupport::ListSupports(all)", "VOXISamMeshPartFilter::ListDesigners(null)"}));
}

TEST_F(VOXESamConnectionDesignDesigners, BothListsOfDesignersAreNullBeforeAnythingIsAskedFor)
{
  auto* first = Poison<VOXListValVOXISpecObject_var>();
  auto* second = Poison<VOXListValVOXISpecObject_var>();
  bool bothAreNull = false;
  world->Told().roles.clear();
  world->Told().whenAskedForRole = [&](const std::string& iRole)
  { bothAreNull = iRole == kRole1 ? first == nullptr && second == nullptr : bothAreNull; };
  EXPECT_EQ(world->Design()->GetConnectionDesigners(sides->supports1, first, sides->supports2, second), S_OK);
  EXPECT_TRUE(bothAreNull);
  EXPECT_EQ(first, nullptr);
  EXPECT_EQ(second, nullptr);
}

TEST_F(VOXESamConnectionDesignDesigners, WhatIsNoEntityIsFatalAndLeavesNullLists)
{
  const VOXISamConnectionDesign_var spDesign(world->MoreComponents().Component<TiedConnectionDesign>());
  auto* first = Poison<VOXListValVOXISpecObject_var>();
  auto* second = Poison<VOXListValVOXISpecObject_var>();
  EXPECT_EQ(Fatal([&] { spDesign->GetConnectionDesigners(sides->supports1, first, sides->supports2, second); }).text,
            "AssertionFailed:!!spEnt");
  EXPECT_EQ(first, nullptr);
  EXPECT_EQ(second, nullptr);
}

TEST_F(VOXESamConnectionDesignDesigners, AConnectionWithADesignerOnTheFirstSideOnlyGivesThat)
{
  Fill();
  world->Told().roles[kRole2] = {};
  world->Told().roleResults[kRole2] = S_FALSE;
  EXPECT_EQ(world->GetDesigners(*sides), S_FALSE);
  EXPECT_EQ(Supports1(), "A B");
  EXPECT_EQ(Designers1(), "P");
  EXPECT_EQ(Supports2(), "Y");
  EXPECT_EQ(Designers2(), "no list");
}

TEST_F(VOXESamConnectionDesignDesigners, SeveralDesignersOfASideAreIgnoredWhateverTheyAre)
{
  Fill();
  const Objects two{world->Named("neither"), world->Named("nor")};
  world->Told().roles = {{kRole1, two}, {kRole2, two}};
  EXPECT_EQ(world->GetDesigners(*sides), S_OK);
  EXPECT_EQ(Supports1(), "X");
  EXPECT_EQ(Supports2(), "Y");
  EXPECT_EQ(Designers1(), "no list");
  EXPECT_EQ(Designers2(), "no list");
}

TEST_F(VOXESamConnectionDesignDesigners, NoListForASideLeavesItAsItIs)
{
  Fill();
  world->Told().roles.erase(kRole1);
  EXPECT_EQ(world->GetDesigners(*sides), S_OK);
  EXPECT_EQ(Supports1(), "X");
  EXPECT_EQ(Supports2(), "C");
  EXPECT_EQ(Designers1(), "no list");
}

TEST_F(VOXESamConnectionDesignDesigners, NoListForTheSecondSideReturnsItsAnswer)
{
  Fill();
  world->Told().roles.erase(kRole2);
  world->Told().roleResults[kRole2] = S_FALSE;
  EXPECT_EQ(world->GetDesigners(*sides), S_FALSE);
  EXPECT_EQ(Designers1(), "P");
  EXPECT_EQ(Supports2(), "Y");
}

TEST_F(VOXESamConnectionDesignDesigners, AListThatComesWithAFailureIsGivenBackUnused)
{
  Fill();
  for (const char* const role : {kRole1, kRole2})
  {
    world->Told().roleResults = {{role, E_FAIL}};
    EXPECT_EQ(world->GetDesigners(*sides), role == kRole2 ? E_FAIL : S_OK);
    delete sides->designers1;
    delete sides->designers2;
    EXPECT_EQ(sides->designers1 == nullptr, role == kRole1);
    EXPECT_EQ(sides->designers2 == nullptr, role == kRole2);
    sides->designers1 = sides->designers2 = nullptr;
    EXPECT_EQ(Bench::References(world->designer1), 0);
    EXPECT_EQ(Bench::References(world->designer2), 0);
  }
}

TEST_F(VOXESamConnectionDesignDesigners, AnAnswerThatIsNoPlainSuccessIsUsedAndReturned)
{
  world->Told().roleResult = S_FALSE;
  EXPECT_EQ(world->GetDesigners(*sides), S_FALSE);
  EXPECT_EQ(Designers1(), "P");
  EXPECT_EQ(Designers2(), "Q");
}

TEST_F(VOXESamConnectionDesignDesigners, TheAnswerIsThatOfTheQueryForTheSecondSideAsItCame)
{
  world->Told().roles.clear();
  for (const HRESULT result : {S_OK, S_FALSE, E_FAIL, E_NOTIMPL})
  {
    world->Told().roleResults = {{kRole1, E_INVALIDARG}, {kRole2, result}};
    EXPECT_EQ(world->GetDesigners(*sides), result);
  }
}

TEST_F(VOXESamConnectionDesignDesigners, ListingsThatFailAreNoFailureAndWhatTheyGaveIsTaken)
{
  Fill();
  ConnectionWorld::SupportOf(world->designer1) = {{}, E_FAIL, {}};
  ConnectionWorld::FilterOf(world->designer1).result = E_FAIL;
  EXPECT_EQ(world->GetDesigners(*sides), S_OK);
  EXPECT_EQ(Supports1(), "") << "an empty list replaces the caller's";
  EXPECT_EQ(Designers1(), "P");
}

TEST_F(VOXESamConnectionDesignDesigners, TheListOfTheFirstSideIsGivenBackBeforeTheSecondIsAskedFor)
{
  long meanwhile = -1;
  world->Told().whenAskedForRole = [&](const std::string& iRole)
  { meanwhile = iRole == kRole2 ? Bench::References(world->designer1) : -1; };
  EXPECT_EQ(world->GetDesigners(*sides), S_OK);
  EXPECT_EQ(meanwhile, 0);
}

TEST_F(VOXESamConnectionDesignDesigners, ASingleDesignerThatIsNoSupportIsFatalOnEitherSide)
{
  Design<ScriptedMeshPartFilter>(kRole1);
  const voxhost::CheckReport first = FatalDesigners();
  EXPECT_EQ(first.text, "AssertionFailed:!!spSupport");
  world->Told().roles.erase(kRole1);
  Design<ScriptedMeshPartFilter>(kRole2);
  const voxhost::CheckReport second = FatalDesigners();
  EXPECT_EQ(second.text, "AssertionFailed:!!spSupport");
  EXPECT_NE(first.line, second.line);
}

TEST_F(VOXESamConnectionDesignDesigners, ASingleDesignerThatIsNoMeshPartFilterIsFatalBeforeAnythingIsListed)
{
  const CallLog log;
  Design<ScriptedAnalysisSupport>(kRole1);
  EXPECT_EQ(FatalDesigners().text, "AssertionFailed:!!spMeshPartFilter");
  world->Told().roles.erase(kRole1);
  Design<ScriptedAnalysisSupport>(kRole2);
  EXPECT_EQ(FatalDesigners().text, "AssertionFailed:!!spMeshPartFilter2");
  EXPECT_EQ(log.Count("VOXISamAnalysisSupport::"), 0);
}

TEST_F(VOXESamConnectionDesignDesigners, ASingleDesignerThatIsNeitherIsMissedAsASupport)
{
  world->Told().roles[kRole1] = {world->Named("neither")};
  EXPECT_EQ(FatalDesigners().text, "AssertionFailed:!!spSupport");
  world->Told().roles = {{kRole2, {nullptr}}};
  EXPECT_EQ(FatalDesigners().text, "AssertionFailed:!!spSupport");
}

TEST_F(VOXESamConnectionDesign, NoErrorHandlerIsMadeAndAPendingErrorStays)
{
  const PendingError pending;
  EXPECT_EQ(ErrorHandlersDuring(
                [this]
                {
                  ConnectionSides others;
                  world->GetSupports(others);
                  world->GetDesigners(others);
                }),
            0);
  EXPECT_TRUE(PendingError::Stands());
}

TEST(VOXESamConnectionDesignTorture, SupportsSurviveEveryFailure)
{
  Torture("GetConnectedSupports")
      .ReportsNothing()
      .MayEndFatally("AssertionFailed:!!spEnt")
      .Run(
          [](TortureRun& ioRun)
          {
            ConnectionWorld world;
            const VOXISamConnectionDesign_var spDesign = world.Design();
            ConnectionSides sides;
            ioRun.Call([&] { return spDesign->GetConnectedSupports(sides.supports1, sides.supports2); });
            EXPECT_TRUE(ioRun.IsTortured() || sides.supports1.Size() + sides.supports2.Size() == 3);
          });
}

TEST(VOXESamConnectionDesignTorture, DesignersSurviveEveryFailure)
{
  Torture torture("GetConnectionDesigners");
  for (const char* const condition : {"!!spEnt", "!!spSupport", "!!spMeshPartFilter", "!!spMeshPartFilter2"})
    torture.MayEndFatally(std::string("AssertionFailed:") + condition);
  torture.ReportsNothing().Run(
      [](TortureRun& ioRun)
      {
        ConnectionWorld world;
        const VOXISamConnectionDesign_var spDesign = world.Design();
        ConnectionSides sides;
        ioRun.Call(
            [&] {
              return spDesign->GetConnectionDesigners(sides.supports1, sides.designers1, sides.supports2,
                                                      sides.designers2);
            });
        EXPECT_TRUE(ioRun.IsTortured() || (sides.designers1 != nullptr && sides.designers2 != nullptr));
      });
}
