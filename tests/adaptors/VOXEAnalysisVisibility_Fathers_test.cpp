// SPDX-License-Identifier: MIT
// What a feature is shown under: GetFatherForGraphAnd3D.
#include "VOXEAnalysisVisibility.h"

#include "host/Instruments/Ledger.h"
#include "tests/adaptors/Face.h"
#include "tests/support/ScriptedAnalysis.h"
#include "tests/support/ScriptedInterfaces.h"

#include <gtest/gtest.h>
#include <memory>

using namespace voxtest;

namespace
{

using Visibility = Face<VOXEAnalysisVisibility, VOXISamVisibility>;

//! What an adaptor is shown under; none without a list.
std::optional<Objects> FathersOf(VOXBaseUnknown* iComponent)
{
  const VOXISamVisibility_var spVisibility(iComponent);
  const std::unique_ptr<VOXListValVOXBaseUnknown_var> list(spVisibility->GetFatherForGraphAnd3D());
  if (list == nullptr)
    return std::nullopt;
  Objects objects;
  for (int i = 1; i <= list->Size(); ++i)
    objects.push_back((*list)[i].Get());
  return objects;
}

class VOXEAnalysisVisibilityFathers : public testing::Test
{
protected:
  VOXEAnalysisVisibilityFathers() : father(bench.Component<ScriptedSpecObject>())
  {
    entity = bench.Component<Visibility, ScriptedAnalysisEntity, ScriptedAnalysisSet, ScriptedSpecObject>();
    set = bench.Component<Visibility, ScriptedAnalysisSet, ScriptedSpecObject>();
    feature = bench.Component<Visibility, ScriptedSpecObject>();
  }

  //! Another face of the father: never what a list holds.
  VOXBaseUnknown* FaceOfFather()
  {
    void* face = nullptr;
    father->QueryInterface(VOXISpecObject::ClassId(), &face);
    static_cast<VOXBaseUnknown*>(face)->Release();
    return static_cast<VOXBaseUnknown*>(face);
  }

  Bench bench;
  VOXBaseUnknown* father;
  VOXBaseUnknown* entity = nullptr;
  VOXBaseUnknown* set = nullptr;
  VOXBaseUnknown* feature = nullptr;
};

} // namespace

TEST_F(VOXEAnalysisVisibilityFathers, AnEntityThatIsShownUnderItsSetHasTheSetsImplementation)
{
  ASSERT_NE(FaceOfFather(), father);
  ScriptedAnalysisEntity::ScriptOf(entity).set = FaceOfFather();
  EXPECT_EQ(FathersOf(entity), Objects{father});
}

TEST_F(VOXEAnalysisVisibilityFathers, AnEntityThatIsShownUnderItsSetAndHasNoneHasNoList)
{
  ScriptedAnalysisSet::ScriptOf(entity).shownUnder = Objects{father};
  ScriptedSpecObject::ScriptOf(entity).father = father;
  EXPECT_EQ(FathersOf(entity), std::nullopt) << "the set and the feature are not asked for an entity";
}

TEST_F(VOXEAnalysisVisibilityFathers, AnyOtherEntityHasWhatItLists)
{
  AnalysisEntityScript& told = ScriptedAnalysisEntity::ScriptOf(entity);
  told.set = father;
  told.shownUnderItsSet = 0;
  told.shownUnder = Objects{set, nullptr, feature};
  EXPECT_EQ(FathersOf(entity), (Objects{set, nullptr, feature}));
  told.shownUnder.reset();
  ScriptedSpecObject::ScriptOf(entity).father = father;
  EXPECT_EQ(FathersOf(entity), std::nullopt);
}

TEST_F(VOXEAnalysisVisibilityFathers, ASetHasWhatItLists)
{
  ScriptedAnalysisSet::ScriptOf(set).shownUnder = Objects{};
  ScriptedSpecObject::ScriptOf(set).father = father;
  EXPECT_EQ(FathersOf(set), Objects{}) << "an empty list is a list";
}

TEST_F(VOXEAnalysisVisibilityFathers, ASetThatListsNothingHasItsFather)
{
  ScriptedSpecObject::ScriptOf(set).father = FaceOfFather();
  EXPECT_EQ(FathersOf(set), Objects{father});
}

TEST_F(VOXEAnalysisVisibilityFathers, AnyOtherFeatureHasItsFather)
{
  ScriptedSpecObject::ScriptOf(feature).father = FaceOfFather();
  EXPECT_EQ(FathersOf(feature), Objects{father});
}

TEST_F(VOXEAnalysisVisibilityFathers, AFeatureThatNothingHoldsHasNoList)
{
  EXPECT_EQ(FathersOf(feature), std::nullopt);
}

TEST_F(VOXEAnalysisVisibilityFathers, WhatIsNoFeatureHasNoList)
{
  EXPECT_EQ(FathersOf(bench.Component<Visibility>()), std::nullopt);
}

TEST_F(VOXEAnalysisVisibilityFathers, TheImplementationIsAskedForEachFaceAndNotTheObjectItself)
{
  using Queried = QueriedFace<VOXEAnalysisVisibility, VOXISamVisibility>;
  VOXBaseUnknown* const queriedFeature = bench.Component<Queried, ScriptedSpecObject>();
  VOXBaseUnknown* const queriedSet = bench.Component<Queried, ScriptedAnalysisSet>();
  ScriptedSpecObject::ScriptOf(queriedFeature).father = father;
  ScriptedAnalysisSet::ScriptOf(queriedSet).shownUnder = Objects{father};
  CallLog log;
  EXPECT_EQ(FathersOf(queriedFeature), Objects{father});
  EXPECT_EQ(log.Only({"own "}), (Calls{"own implementation(0)", "own implementation(0)", "own implementation(0)"}));
  log.Clear();
  EXPECT_EQ(FathersOf(queriedSet), Objects{father});
  EXPECT_EQ(log.Only({"own "}), (Calls{"own implementation(0)", "own implementation(0)"}));
}

TEST_F(VOXEAnalysisVisibilityFathers, TheFatherIsAskedForItsImplementationOnce)
{
  using Queried = QueriedFace<VOXEAnalysisVisibility, VOXISamVisibility>;
  VOXBaseUnknown* const queriedFather = bench.Component<Queried>();
  const VOXISamVisibility_var spFaceOfFather(queriedFather);
  ScriptedSpecObject::ScriptOf(feature).father = spFaceOfFather;
  ScriptedAnalysisEntity::ScriptOf(entity).set = spFaceOfFather;
  for (VOXBaseUnknown* const shown : {feature, entity})
  {
    const CallLog log;
    EXPECT_EQ(FathersOf(shown), Objects{queriedFather});
    EXPECT_EQ(log.Only({"own "}), Calls{"own implementation(0)"});
  }
}

TEST_F(VOXEAnalysisVisibilityFathers, NoErrorHandlerIsMade)
{
  ScriptedSpecObject::ScriptOf(feature).father = father;
  for (VOXBaseUnknown* const shown : {entity, set, feature})
    EXPECT_EQ(ErrorHandlersDuring([&] { FathersOf(shown); }), 0);
}

TEST_F(VOXEAnalysisVisibilityFathers, TheFathersReferencesAreGivenBack)
{
  const long before = Bench::References(father);
  ScriptedSpecObject::ScriptOf(feature).father = father;
  FathersOf(feature);
  ScriptedAnalysisEntity::ScriptOf(entity).set = father;
  FathersOf(entity);
  EXPECT_EQ(Bench::References(father), before);
}

TEST_F(VOXEAnalysisVisibilityFathers, TheEntityIsAskedWhetherAndThenForItsSet)
{
  ScriptedAnalysisEntity::ScriptOf(entity).set = father;
  const CallLog log;
  FathersOf(entity);
  EXPECT_EQ(log.Without({"VOXBaseUnknown::"}),
            (Calls{"VOXISamAnalysisEntity::IsShownUnderItsSet", "VOXISamAnalysisEntity::GetAnalysisSet"}));
}

TEST(VOXEAnalysisVisibilityTorture, GetFatherForGraphAnd3DSurvivesEveryFailure)
{
  for (const int kind : {0, 1, 2, 3})
    Torture("GetFatherForGraphAnd3D")
        .MayAnswer({S_OK})
        .ReportsNothing()
        .Run(
            [kind](TortureRun& ioRun)
            {
              Bench bench;
              VOXBaseUnknown* const father = bench.Component<ScriptedSpecObject>();
              VOXBaseUnknown* const feature =
                  kind < 2    ? bench.Component<Visibility, ScriptedAnalysisEntity, ScriptedSpecObject>()
                  : kind == 2 ? bench.Component<Visibility, ScriptedAnalysisSet, ScriptedSpecObject>()
                              : bench.Component<Visibility, ScriptedSpecObject>();
              ScriptedSpecObject::ScriptOf(feature).father = father;
              ScriptedAnalysisEntity::ScriptOf(feature).set = father;
              ScriptedAnalysisEntity::ScriptOf(feature).shownUnder = Objects{father};
              ScriptedAnalysisEntity::ScriptOf(feature).shownUnderItsSet = kind == 0 ? 1 : 0;
              ScriptedAnalysisSet::ScriptOf(feature).shownUnder = Objects{father};
              const VOXISamVisibility_var spVisibility(feature);
              ioRun.Call(
                  [&]
                  {
                    delete spVisibility->GetFatherForGraphAnd3D();
                    return S_OK;
                  });
              ScriptedAnalysisEntity::ForgetScripts(feature);
              ScriptedAnalysisSet::ForgetScripts(feature);
            });
}
