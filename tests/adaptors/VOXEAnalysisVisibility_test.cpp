// SPDX-License-Identifier: MIT
#include "VOXEAnalysisVisibility.h"

#include "host/Instruments/Ledger.h"
#include "tests/adaptors/Face.h"
#include "tests/support/Memory.h"
#include "tests/support/ScriptedAnalysis.h"
#include "tests/support/ScriptedInterfaces.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

struct FathersScript
{
  std::optional<Objects> fathers = Objects{}; //!< none: no list is given
  VOXListValVOXBaseUnknown_var* given = nullptr;
};

//! A feature type that says itself what it is shown under.
class ShownFeature : public Scripted<VOXEAnalysisVisibility, FathersScript>
{
public:
  using Carries = VOXISamVisibility;
  VOXListValVOXBaseUnknown_var* GetFatherForGraphAnd3D() override
  {
    if (CallLog::Enter("VOXISamVisibility::GetFatherForGraphAnd3D") || !Told().fathers)
      return nullptr;
    Told().given = NewList(*Told().fathers);
    return Told().given;
  }
};

//! A shown feature with two fathers A and B, a view manager and a redraw event.
class VisibilityWorld
{
public:
  VisibilityWorld()
      : feature(_Bench.Component<ShownFeature, ScriptedViewManager, ScriptedRedrawEvent>()),
        fatherA(_Bench.Component<ScriptedSpecObject>()),
        fatherB(_Bench.Component<ScriptedSpecObject>()),
        tested(feature)
  {
    Told().fathers = Objects{fatherA, fatherB};
    Manager().names = {{fatherA, "A"}, {fatherB, "B"}};
  }

  FathersScript& Told() const { return ShownFeature::ScriptOf(feature); }
  ViewManagerScript& Manager() const { return ScriptedViewManager::ScriptOf(feature); }

  //! The calls of the view manager and the redraw event while the visibility goes from one value to another.
  Calls GoFromTo(int iFrom, int iTo) const
  {
    tested->SetVisibilityProperty(static_cast<VOXSamVisibility>(iFrom));
    const CallLog log;
    tested->SetVisibilityProperty(static_cast<VOXSamVisibility>(iTo));
    return log.Only({"VOXISamViewManager::", "VOXIRedrawEvent::"});
  }

private:
  Bench _Bench;

public:
  VOXBaseUnknown* const feature;
  VOXBaseUnknown* const fatherA;
  VOXBaseUnknown* const fatherB;
  const VOXISamVisibility_var tested;
};

using Plain = Face<VOXEAnalysisVisibility, VOXISamVisibility>;

} // namespace

TEST(VOXEAnalysisVisibility, AFreshOneIsVisibleInBothViewsAndShown)
{
  AdaptorBench<Plain> fresh;
  EXPECT_EQ(fresh->GetVisibilityProperty(), VOXSamVisibleInBoth);
  EXPECT_EQ(fresh->IsVisibleInGraph(), 1);
  EXPECT_EQ(fresh->IsVisibleIn3D(), 1);
  EXPECT_EQ(fresh->IsNoShow(), 0);
  EXPECT_EQ(fresh->IsPersistent(), 0);
}

TEST(VOXEAnalysisVisibility, EachBitIsAnsweredAsOneOrZero)
{
  const VisibilityWorld world;
  for (const int visibility : {0, 1, 2, 3})
  {
    world.tested->SetVisibilityProperty(static_cast<VOXSamVisibility>(visibility));
    EXPECT_EQ(world.tested->IsVisibleInGraph(), visibility & 1);
    EXPECT_EQ(world.tested->IsVisibleIn3D(), visibility >> 1) << "never 2";
  }
}

TEST(VOXEAnalysisVisibility, TheSameVisibilityAgainCallsNothing)
{
  const VisibilityWorld world;
  const CallLog log;
  world.tested->SetVisibilityProperty(VOXSamVisibleInBoth);
  EXPECT_EQ(log.All(), Calls{});
}

TEST(VOXEAnalysisVisibility, SwitchingBothOnShowsEachFatherInTheGraphAndThenIn3D)
{
  EXPECT_EQ(VisibilityWorld().GoFromTo(0, 3),
            (Calls{"VOXISamViewManager::Show(A, 2)", "VOXISamViewManager::Show(A, 1)", "VOXISamViewManager::Show(B, 2)",
                   "VOXISamViewManager::Show(B, 1)", "VOXIRedrawEvent::RequestRedraw"}));
}

TEST(VOXEAnalysisVisibility, OnlyWhatIsSwitchedOnIsShown)
{
  EXPECT_EQ(VisibilityWorld().GoFromTo(1, 3), (Calls{"VOXISamViewManager::Show(A, 1)", "VOXISamViewManager::Show(B, 1)",
                                                     "VOXIRedrawEvent::RequestRedraw"}));
  EXPECT_EQ(VisibilityWorld().GoFromTo(2, 3), (Calls{"VOXISamViewManager::Show(A, 2)", "VOXISamViewManager::Show(B, 2)",
                                                     "VOXIRedrawEvent::RequestRedraw"}));
  EXPECT_EQ(VisibilityWorld().GoFromTo(1, 2), (Calls{"VOXISamViewManager::Show(A, 1)", "VOXISamViewManager::Show(B, 1)",
                                                     "VOXIRedrawEvent::RequestRedraw"}));
}

TEST(VOXEAnalysisVisibility, SwitchingOffShowsNobodyAndAsksForARedrawAllTheSame)
{
  for (const int to : {0, 1, 2})
    EXPECT_EQ(VisibilityWorld().GoFromTo(3, to), Calls{"VOXIRedrawEvent::RequestRedraw"}) << to;
}

TEST(VOXEAnalysisVisibility, TheFatherListIsDeletedBeforeTheRedrawIsRequested)
{
  for (const VOXSamVisibility visibility : {VOXSamVisibleNowhere, VOXSamVisibleInGraph})
  {
    const VisibilityWorld world;
    const long before = Bench::References(world.fatherA);
    long atRedraw = -1;
    ScriptedRedrawEvent::ScriptOf(world.feature).whenAsked = [&]
    { atRedraw = Bench::References(world.fatherA) - before; };
    world.tested->SetVisibilityProperty(visibility);
    EXPECT_EQ(atRedraw, 0);
    EXPECT_EQ(Bench::References(world.fatherA), before);
  }
}

TEST(VOXEAnalysisVisibility, TheNewValueStandsBeforeTheViewManagerIsCalled)
{
  const VisibilityWorld world;
  world.tested->SetVisibilityProperty(VOXSamVisibleNowhere);
  VOXSamVisibility seen = VOXSamVisibleNowhere;
  world.Manager().whenShown = [&](VOXBaseUnknown*, int) { seen = world.tested->GetVisibilityProperty(); };
  world.tested->SetVisibilityProperty(VOXSamVisibleInGraph);
  EXPECT_EQ(seen, VOXSamVisibleInGraph);
}

TEST(VOXEAnalysisVisibility, ANullElementOfTheFatherListIsSkipped)
{
  const VisibilityWorld world;
  world.Told().fathers = Objects{nullptr, world.fatherB};
  EXPECT_EQ(world.GoFromTo(0, 1), (Calls{"VOXISamViewManager::Show(B, 2)", "VOXIRedrawEvent::RequestRedraw"}));
}

TEST(VOXEAnalysisVisibility, AListThatShrinksMeanwhileIsReadNoFurther)
{
  const VisibilityWorld world;
  world.Manager().whenShown = [&](VOXBaseUnknown*, int) { world.Told().given->RemoveAll(); };
  EXPECT_EQ(world.GoFromTo(0, 1), (Calls{"VOXISamViewManager::Show(A, 2)", "VOXIRedrawEvent::RequestRedraw"}));
}

TEST(VOXEAnalysisVisibility, AListThatGrowsMeanwhileIsReadToItsNewEnd)
{
  const VisibilityWorld world;
  int grown = 0;
  world.Manager().whenShown = [&](VOXBaseUnknown*, int)
  {
    if (grown++ == 0)
      world.Told().given->Append(VOXBaseUnknown_var(world.fatherA));
  };
  EXPECT_EQ(world.GoFromTo(0, 1), (Calls{"VOXISamViewManager::Show(A, 2)", "VOXISamViewManager::Show(B, 2)",
                                         "VOXISamViewManager::Show(A, 2)", "VOXIRedrawEvent::RequestRedraw"}));
}

TEST(VOXEAnalysisVisibility, WithoutAFatherListTheValueStays)
{
  const VisibilityWorld world;
  world.Told().fathers.reset();
  const CallLog log;
  world.tested->SetVisibilityProperty(VOXSamVisibleNowhere);
  EXPECT_EQ(world.tested->GetVisibilityProperty(), VOXSamVisibleInBoth);
  EXPECT_EQ(log.All(), Calls{"VOXISamVisibility::GetFatherForGraphAnd3D"});
}

TEST(VOXEAnalysisVisibility, WithoutAViewManagerTheValueStaysAndTheListIsLeft)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<ShownFeature>();
  const VOXISamVisibility_var spFeature(feature);
  MemoryWatch watch;
  spFeature->SetVisibilityProperty(VOXSamVisibleNowhere);
  const std::vector<MemoryWatch::Block> live = watch.StillLive();
  EXPECT_EQ(spFeature->GetVisibilityProperty(), VOXSamVisibleInBoth);
  VOXListValVOXBaseUnknown_var* const left = ShownFeature::ScriptOf(feature).given;
  EXPECT_EQ(std::count_if(live.begin(), live.end(), [left](const auto& iBlock) { return iBlock.address == left; }), 1);
  delete left;
}

TEST(VOXEAnalysisVisibility, WithoutARedrawEventTheFathersAreShownAllTheSame)
{
  Bench bench;
  VOXBaseUnknown* const feature = bench.Component<ShownFeature, ScriptedViewManager>();
  const VOXISamVisibility_var spFeature(feature);
  VOXBaseUnknown* const father = bench.Component<ScriptedSpecObject>();
  ShownFeature::ScriptOf(feature).fathers = Objects{father};
  spFeature->SetVisibilityProperty(VOXSamVisibleNowhere);
  const CallLog log;
  spFeature->SetVisibilityProperty(VOXSamVisibleIn3D);
  EXPECT_EQ(log.Count("VOXISamViewManager::Show"), 1);
}

TEST(VOXEAnalysisVisibility, ANewShowStatusIsStoredAndToldToTheViewManagerWithZero)
{
  const VisibilityWorld world;
  const CallLog log;
  world.tested->SetShowStatus(1);
  EXPECT_EQ(world.tested->IsNoShow(), 1);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::operator new"}),
            (Calls{"VOXBaseUnknown::QueryInterface", "VOXISamViewManager::UpdateShowStatus(0)"}));
}

TEST(VOXEAnalysisVisibility, TheSameShowStatusAgainDoesNotEvenQueryTheViewManager)
{
  const VisibilityWorld world;
  const CallLog log;
  world.tested->SetShowStatus(0);
  EXPECT_EQ(log.All(), Calls{});
}

TEST(VOXEAnalysisVisibility, TheShowStatusAsksTheObjectItselfAndTheVisibilityItsImplementation)
{
  using Queried = QueriedFace<VOXEAnalysisVisibility, VOXISamVisibility>;
  Bench bench;
  VOXBaseUnknown* const feature =
      bench.Component<Queried, ScriptedViewManager, ScriptedRedrawEvent, ScriptedAnalysisEntity>();
  ScriptedAnalysisEntity::ScriptOf(feature).set = bench.Component<ScriptedSpecObject>();
  const VOXISamVisibility_var spFeature(feature);
  CallLog log;
  spFeature->SetVisibilityProperty(VOXSamVisibleNowhere);
  EXPECT_EQ(log.Count("VOXIRedrawEvent::RequestRedraw"), 1);
  EXPECT_EQ(log.Only({"own "}), (Calls{"own implementation(0)", "own implementation(0)", "own implementation(0)"}));
  log.Clear();
  spFeature->SetShowStatus(1);
  EXPECT_EQ(log.Only({"own "}), Calls{"own query"});
}

TEST(VOXEAnalysisVisibility, TheShowStatusStandsBeforeTheViewManagerIsTold)
{
  const VisibilityWorld world;
  unsigned char seen = 0;
  world.Manager().whenTold = [&] { seen = world.tested->IsNoShow(); };
  world.tested->SetShowStatus(1);
  EXPECT_EQ(seen, 1);
}

TEST(VOXEAnalysisVisibility, TheBorrowedViewManagerAndRedrawEventAreGivenBack)
{
  const VisibilityWorld world;
  const long before = Bench::References(world.feature);
  world.tested->SetVisibilityProperty(VOXSamVisibleNowhere);
  world.tested->SetVisibilityProperty(VOXSamVisibleInBoth);
  world.tested->SetShowStatus(1);
  EXPECT_EQ(Bench::References(world.feature), before);
}

TEST(VOXEAnalysisVisibility, NoOperationMakesAnErrorHandler)
{
  const VisibilityWorld world;
  EXPECT_EQ(ErrorHandlersDuring([&] { world.tested->SetVisibilityProperty(VOXSamVisibleNowhere); }), 0);
  EXPECT_EQ(ErrorHandlersDuring([&] { world.tested->SetVisibilityProperty(VOXSamVisibleInBoth); }), 0);
  EXPECT_EQ(ErrorHandlersDuring([&] { world.tested->SetShowStatus(1); }), 0);
}

TEST(VOXEAnalysisVisibility, AnyByteIsKeptAsTheShowStatus)
{
  const VisibilityWorld world;
  const CallLog log;
  world.tested->SetShowStatus(200);
  EXPECT_EQ(world.tested->IsNoShow(), 200);
  world.tested->SetShowStatus(1);
  EXPECT_EQ(world.tested->IsNoShow(), 1);
  EXPECT_EQ(log.Count("VOXISamViewManager::UpdateShowStatus(0)"), 2);
}

TEST(VOXEAnalysisVisibility, WithoutAViewManagerTheShowStatusIsStoredAllTheSame)
{
  AdaptorBench<Plain> fresh;
  fresh->SetShowStatus(1);
  EXPECT_EQ(fresh->IsNoShow(), 1);
}

TEST(VOXEAnalysisVisibility, ACopyHasBothMembersAndReferencesOfItsOwn)
{
  VOXEAnalysisVisibility original;
  original.SetShowStatus(1);
  original.AddRef();
  VOXEAnalysisVisibility copy(original);
  EXPECT_EQ(copy.IsNoShow(), 1);
  EXPECT_EQ(copy.GetVisibilityProperty(), VOXSamVisibleInBoth);
  EXPECT_EQ(copy.AddRef(), 2u);

  VOXEAnalysisVisibility assigned;
  EXPECT_EQ(&(assigned = original), &assigned);
  EXPECT_EQ(assigned.IsNoShow(), 1);
  EXPECT_EQ(assigned.AddRef(), 2u);
}

TEST(VOXEAnalysisVisibility, ACopyHasTheVisibilityOfItsOriginal)
{
  class Holder : public VOXEAnalysisVisibility
  {
  public:
    VOXListValVOXBaseUnknown_var* GetFatherForGraphAnd3D() override { return NewList({}); }
  };
  const VisibilityWorld world;
  Holder original;
  original.SetImpl(world.feature);
  original.SetVisibilityProperty(VOXSamVisibleIn3D);
  const Holder copy(original);
  EXPECT_EQ(const_cast<Holder&>(copy).GetVisibilityProperty(), VOXSamVisibleIn3D);
  Holder assigned;
  assigned = original;
  EXPECT_EQ(assigned.GetVisibilityProperty(), VOXSamVisibleIn3D);
}

TEST(VOXEAnalysisVisibility, OperationsStandAtTheirPlaces)
{
  const VisibilityWorld world;
  const VOXBaseUnknown* const object = world.tested.Get();
  CallOwn<void, VOXSamVisibility>(object, 1, VOXSamVisibleIn3D);
  EXPECT_EQ((CallOwn<VOXSamVisibility>(object, 2)), VOXSamVisibleIn3D);
  EXPECT_EQ((CallOwn<unsigned char>(object, 3)), 0);
  EXPECT_EQ((CallOwn<unsigned char>(object, 4)), 1);
  EXPECT_EQ((CallOwn<unsigned char>(object, 5)), 0);
  CallOwn<void, unsigned char>(object, 6, static_cast<unsigned char>(1));
  EXPECT_EQ((CallOwn<unsigned char>(object, 7)), 1);
  delete CallOwn<VOXListValVOXBaseUnknown_var*>(object, 8);
}

TEST(VOXEAnalysisVisibilityTorture, SetVisibilityPropertySurvivesEveryFailure)
{
  Torture("SetVisibilityProperty")
      .MayAnswer({S_OK})
      .ReportsNothing()
      .Run(
          [](TortureRun& ioRun)
          {
            const VisibilityWorld world;
            world.tested->SetVisibilityProperty(VOXSamVisibleNowhere);
            world.Told().given = nullptr;
            ioRun.Call(
                [&]
                {
                  world.tested->SetVisibilityProperty(VOXSamVisibleInBoth);
                  return S_OK;
                });
            const VOXSamVisibility now = world.tested->GetVisibilityProperty();
            EXPECT_TRUE(now == VOXSamVisibleInBoth || (ioRun.IsTortured() && now == VOXSamVisibleNowhere));
            if (now == VOXSamVisibleNowhere)
              delete world.Told().given; // left without a view manager; null when there was no list
          });
}

TEST(VOXEAnalysisVisibilityTorture, SetShowStatusSurvivesEveryFailure)
{
  Torture("SetShowStatus")
      .MayAnswer({S_OK})
      .ReportsNothing()
      .Run(
          [](TortureRun& ioRun)
          {
            const VisibilityWorld world;
            ioRun.Call(
                [&]
                {
                  world.tested->SetShowStatus(1);
                  return S_OK;
                });
            EXPECT_EQ(world.tested->IsNoShow(), 1);
          });
}
