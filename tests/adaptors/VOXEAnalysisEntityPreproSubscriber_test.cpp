// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEntityPreproSubscriber.h"

#include "AnalysisInterfaces/VOXISamMeshSubscriber.h"
#include "tests/adaptors/Face.h"
#include "tests/support/ScriptedInterfaces.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using Subscriber = Face<VOXEAnalysisEntityPreproSubscriber, VOXISamMeshSubscriber>;

//! An entity whose feature is held by a component of a late type.
template <class EntityFace>
class EntityHeldBy
{
public:
  explicit EntityHeldBy(const char* iFatherType) : _Entity(_Bench.Component<EntityFace, ScriptedSpecObject>())
  {
    if (iFatherType != nullptr)
      ScriptedSpecObject::ScriptOf(_Entity).father = _Bench.ComponentNamed<ScriptedSpecObject>(iFatherType);
  }
  VOXISamMeshSubscriber_var Tested() const { return VOXISamMeshSubscriber_var(_Entity); }
  SpecObjectScript& Spec() const { return ScriptedSpecObject::ScriptOf(_Entity); }

private:
  Bench _Bench;
  VOXBaseUnknown* _Entity;
};
using HeldEntity = EntityHeldBy<Subscriber>;
using Queried = QueriedFace<VOXEAnalysisEntityPreproSubscriber, VOXISamMeshSubscriber>;

} // namespace

TEST(VOXEAnalysisEntityPreproSubscriber, AnEntityInAMeshSetContainerDoesNotSubscribe)
{
  EXPECT_EQ(HeldEntity("MSHSetContainer").Tested()->CheckIfNeedToSubScribe(), 0);
}

TEST(VOXEAnalysisEntityPreproSubscriber, AnEntityInAnythingElseSubscribes)
{
  for (const char* const father : {"MSHSetContainerOfTests", "MSHSetContaine", "LoadSetOfTests"})
    EXPECT_EQ(HeldEntity(father).Tested()->CheckIfNeedToSubScribe(), 1) << father;
}

TEST(VOXEAnalysisEntityPreproSubscriber, AnEntityThatNothingHoldsSubscribes)
{
  EXPECT_EQ(HeldEntity(nullptr).Tested()->CheckIfNeedToSubScribe(), 1);
}

TEST(VOXEAnalysisEntityPreproSubscriber, WhatIsNoFeatureSubscribes)
{
  AdaptorBench<Subscriber> subscriber;
  EXPECT_EQ(subscriber->CheckIfNeedToSubScribe(), 1);
}

TEST(VOXEAnalysisEntityPreproSubscriber, TheImplementationIsAskedAndNotTheObjectItself)
{
  const EntityHeldBy<Queried> entity("MSHSetContainer");
  const auto tested = entity.Tested();
  CallLog log;
  EXPECT_EQ(tested->CheckIfNeedToSubScribe(), 0);
  EXPECT_EQ(log.Only({"own "}), Calls{"own implementation(0)"});
  log.Clear();
  tested->Clean();
  EXPECT_EQ(log.Only({"own "}), Calls{"own implementation(0)"});
}

TEST(VOXEAnalysisEntityPreproSubscriber, TheFathersImplementationIsAskedForItsClass)
{
  Bench bench;
  VOXBaseUnknown* const father = bench.ComponentNamed<ScriptedSpecObject, Queried>("MSHSetContainer");
  const VOXISamMeshSubscriber_var spFaceOfFather(father);
  const HeldEntity entity("LoadSetOfTests");
  entity.Spec().father = spFaceOfFather;
  const auto tested = entity.Tested();
  const CallLog log;
  EXPECT_EQ(tested->CheckIfNeedToSubScribe(), 0);
  EXPECT_EQ(log.Only({"own "}), Calls{"own implementation(0)"});
}

TEST(VOXEAnalysisEntityPreproSubscriber, NoOperationMakesAnErrorHandler)
{
  const HeldEntity entity("MSHSetContainer");
  const auto tested = entity.Tested();
  EXPECT_EQ(ErrorHandlersDuring([&] { tested->CheckIfNeedToSubScribe(); }), 0);
  EXPECT_EQ(ErrorHandlersDuring([&] { tested->Clean(); }), 0);
}

TEST(VOXEAnalysisEntityPreproSubscriber, OnlyTheFatherIsAskedFor)
{
  const HeldEntity entity("MSHSetContainer");
  const auto tested = entity.Tested();
  CallLog log;
  tested->CheckIfNeedToSubScribe();
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}), Calls{"VOXISpecObject::GetFather"});
}

TEST(VOXEAnalysisEntityPreproSubscriber, CleaningUnsubscribesTheFeatureWithZero)
{
  const HeldEntity entity("LoadSetOfTests");
  const auto tested = entity.Tested();
  CallLog log;
  EXPECT_EQ(tested->Clean(), S_OK);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}), Calls{"VOXISpecObject::Unsubscribe(0)"});
}

TEST(VOXEAnalysisEntityPreproSubscriber, CleaningWhatIsNoFeatureCallsNothing)
{
  AdaptorBench<Subscriber> subscriber;
  CallLog log;
  EXPECT_EQ(subscriber->Clean(), S_OK);
  EXPECT_EQ(log.All(), Calls{"VOXBaseUnknown::QueryInterface"});
}

TEST(VOXEAnalysisEntityPreproSubscriber, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEntityPreproSubscriber::Clean), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEntityPreproSubscriber::CheckIfNeedToSubScribe), 2);
  const HeldEntity entity("MSHSetContainer");
  EXPECT_EQ((CallOwn<HRESULT>(entity.Tested().Get(), 1)), S_OK);
  EXPECT_EQ((CallOwn<unsigned char>(entity.Tested().Get(), 2)), 0);
}

TEST(VOXEAnalysisEntityPreproSubscriberTorture, BothOperationsSurviveEveryFailure)
{
  Torture("CheckIfNeedToSubScribe")
      .MayAnswer({0, 1})
      .ReportsNothing()
      .Run(
          [](TortureRun& ioRun)
          {
            const HeldEntity entity("MSHSetContainer");
            const auto tested = entity.Tested();
            const HRESULT answer = ioRun.Call([&] { return HRESULT{tested->CheckIfNeedToSubScribe()}; });
            EXPECT_EQ(answer, ioRun.IsTortured() ? 1 : 0);
          });
  Torture("Clean").MayAnswer({S_OK}).ReportsNothing().Run(
      [](TortureRun& ioRun)
      {
        const HeldEntity entity("MSHSetContainer");
        const auto tested = entity.Tested();
        ioRun.Call([&] { return tested->Clean(); });
      });
}
