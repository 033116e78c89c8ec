// SPDX-License-Identifier: MIT
#include "VOXSamGroupTools.h"

#include "ExplicitModel/VOXAnalysisExplicitServices.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"
#include "tests/adaptors/RealFeatures.h"
#include "tests/support/Bench.h"
#include "tests/support/ScriptedInterfaces.h"
#include "tests/support/Torture.h"

#include <optional>

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Ledger;

namespace
{

constexpr short kKindBefore = 77;

// What a target keeps of its feature.
struct Stamp
{
  short kind;
  unsigned int identifier;
  void* pointer;
  bool operator==(const Stamp&) const = default;
};

// A feature with a visualisation object, two objects of a model to stamp, and something that can hold the feature.
class World
{
public:
  explicit World(bool iHasGrouper = true)
  {
    feature = iHasGrouper ? bench.Component<ScriptedSpecObject, ScriptedVisuGrouper>()
                          : bench.Component<ScriptedSpecObject>();
    if (iHasGrouper)
      ScriptedVisuGrouper::ScriptOf(feature).visuObject = &visuObject;
    spFeature = VOXISpecObject_var(feature);
    const VOXAnalysisExplicitEntity root = model.Create(NULL_exp, "ANALYSIS_MODEL", "model");
    source = model.Create(root, "GROUP_SET", "source");
    target = model.Create(root, "GROUP_SET", "target");
    voxhost::Record& record = *VOXExplicitAccess::RecordOf(target);
    record.featureKind = kKindBefore;
    record.featurePointer = this;
  }

  void HoldIn(const char* iLateType)
  {
    ScriptedSpecObject::ScriptOf(feature).father = bench.ComponentNamed<>(iLateType);
  }

  void MakeReady() { VOXSamGroupTools::MakeReadyForVisu(spFeature, source, target); }

  Stamp Stamped() const
  {
    const voxhost::Record& record = *model.RecordOf(target);
    return {record.featureKind, record.featureIdentifier, record.featurePointer};
  }

  Stamp Untouched() { return {kKindBefore, 0, this}; }
  unsigned int Identifier() const { return VOXGetUniqueIdentifier(spFeature); }

  voxhost::ExplicitModel model;
  Bench bench;
  VOXBaseUnknown* feature;
  VOXISpecObject_var spFeature;
  VOXAnalysisExplicitParent source;
  VOXAnalysisExplicitParent target;
  int visuObject = 0;
  int otherObject = 0;
};

class VOXSamGroupToolsVisu : public testing::Test
{
protected:
  VOXSamGroupToolsVisu()
  {
    CatalogueWithGroup();
    ResetErrors();
    Ledger::TurnOn();
  }
  ~VOXSamGroupToolsVisu() override
  {
    EXPECT_TRUE(voxhost::ErrorLog::Reports().empty());
    EXPECT_EQ(Ledger::Read().references, 0);
    Ledger::TurnOff();
  }
};

} // namespace

TEST_F(VOXSamGroupToolsVisu, StampsIdentifierKindAndVisualisationObject)
{
  World world;
  world.MakeReady();
  EXPECT_EQ(world.Stamped(), (Stamp{2, world.Identifier(), &world.visuObject}));
}

TEST_F(VOXSamGroupToolsVisu, AFeatureHeldByAMeshSetContainerIsOfKindOne)
{
  World world;
  world.HoldIn("MSHSetContainer");
  world.MakeReady();
  EXPECT_EQ(world.Stamped().kind, 1);
}

TEST_F(VOXSamGroupToolsVisu, AFeatureHeldByAnythingElseIsOfKindTwo)
{
  World world;
  world.HoldIn("MSHSetContainers");
  world.MakeReady();
  EXPECT_EQ(world.Stamped().kind, 2);
}

TEST_F(VOXSamGroupToolsVisu, TheHoldersClassIsComparedNotItsBases)
{
  VOXDeclareLateType("DerivedMeshSetContainer", "MSHSetContainer");
  World world;
  world.HoldIn("DerivedMeshSetContainer");
  world.MakeReady();
  EXPECT_EQ(world.Stamped().kind, 2);
}

TEST_F(VOXSamGroupToolsVisu, TheHoldersImplementationIsAskedNotTheFaceThatWasGiven)
{
  World world;
  VOXBaseUnknown* const holder = world.bench.ComponentNamed<ScriptedSpecObject>("MSHSetContainer");
  const VOXISpecObject_var spHolder(holder);
  ScriptedSpecObject::ScriptOf(world.feature).father = spHolder;
  world.MakeReady();
  EXPECT_EQ(world.Stamped().kind, 1);
}

TEST_F(VOXSamGroupToolsVisu, ASourceThatHasAPointerGivesItAndTheGrouperIsNotQueried)
{
  World world;
  VOXAnalysisExplicitServices::SetFeaturePointerForSetOrEntity(world.source, &world.otherObject);
  CallLog log;
  world.MakeReady();
  EXPECT_EQ(world.Stamped().pointer, &world.otherObject);
  EXPECT_EQ(log.Count("VOXIMSHVisuGrouper"), 0);
}

TEST_F(VOXSamGroupToolsVisu, ASourceWithoutPointerLetsTheGrouperBeAsked)
{
  World world;
  CallLog log(CallLog::References::Recorded);
  world.MakeReady();
  EXPECT_EQ(world.Stamped().pointer, &world.visuObject);
  EXPECT_EQ(log.Only({"VOXIMSHVisuGrouper", "Release VOXIMSHVisuGrouper"}),
            (Calls{"VOXIMSHVisuGrouper::GetVisuObject", "Release VOXIMSHVisuGrouper"}));
}

TEST_F(VOXSamGroupToolsVisu, WithoutASourceTheGrouperIsAsked)
{
  World world;
  world.source = NULL_exp;
  CallLog log;
  world.MakeReady();
  EXPECT_EQ(world.Stamped().pointer, &world.visuObject);
  EXPECT_EQ(log.Count("VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity"), 0);
}

TEST_F(VOXSamGroupToolsVisu, WithoutSourceAndGrouperTheNullPointerIsWritten)
{
  World world(false);
  world.source = NULL_exp;
  world.HoldIn("MSHSetContainer");
  world.MakeReady();
  EXPECT_EQ(world.Stamped(), (Stamp{1, world.Identifier(), nullptr}));
}

TEST_F(VOXSamGroupToolsVisu, AsksTheHostInThisOrder)
{
  World world;
  world.HoldIn("MSHSetContainer");
  const VOXHandle<VOXIMSHVisuGrouper> spGrouper(world.feature); // made already
  ScriptedSpecObject::ScriptOf(world.feature).father->IsA();    // described already
  CallLog log;
  world.MakeReady();
  EXPECT_EQ(log.All(), (Calls{"VOXBaseUnknown::QueryInterface", "VOXGetUniqueIdentifier", "VOXISpecObject::GetFather",
                              "VOXAnalysisExplicitServices::SetFeatureInfosForSetOrEntity",
                              "VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity",
                              "VOXBaseUnknown::QueryInterface", "VOXIMSHVisuGrouper::GetVisuObject",
                              "VOXAnalysisExplicitServices::SetFeaturePointerForSetOrEntity"}));
}

TEST_F(VOXSamGroupToolsVisu, DoesNothingWithoutAFeature)
{
  World world;
  CallLog log;
  VOXSamGroupTools::MakeReadyForVisu(nullptr, world.source, world.target);
  EXPECT_TRUE(log.All().empty());
  EXPECT_EQ(world.Stamped(), world.Untouched());
}

TEST_F(VOXSamGroupToolsVisu, DoesNothingWithoutATarget)
{
  World world;
  VOXAnalysisExplicitParent nothing;
  CallLog log;
  VOXSamGroupTools::MakeReadyForVisu(world.spFeature, world.source, nothing);
  EXPECT_TRUE(log.All().empty());
  EXPECT_TRUE(nothing == NULL_exp);
}

TEST_F(VOXSamGroupToolsVisu, DoesNothingWhenTheFeatureAnswersNoHandle)
{
  World world;
  Faults::FailOperation("VOXBaseUnknown::QueryInterface", 1, false);
  world.MakeReady();
  Faults::Disarm();
  EXPECT_EQ(world.Stamped(), world.Untouched());
}

TEST_F(VOXSamGroupToolsVisu, GoesOnWhenAServiceFails)
{
  for (const char* const service : {"VOXAnalysisExplicitServices::SetFeatureInfosForSetOrEntity",
                                    "VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity"})
  {
    World world;
    Faults::FailOperation(service, 1, false);
    world.MakeReady();
    Faults::Disarm();
    EXPECT_EQ(world.Stamped().pointer, &world.visuObject) << service;
  }
}

TEST_F(VOXSamGroupToolsVisu, LeavesTheReferencesOfFeatureAndHolderAsTheyWere)
{
  World world;
  world.HoldIn("MSHSetContainer");
  VOXBaseUnknown* const holder = ScriptedSpecObject::ScriptOf(world.feature).father;
  world.MakeReady();
  EXPECT_EQ(Bench::References(world.feature), 1) << "the world's own handle";
  EXPECT_EQ(Bench::References(holder), 0);
}

TEST(VOXSamGroupToolsVisuTorture, SurvivesEveryFailureAndReportsNothing)
{
  CatalogueWithGroup();
  Torture("MakeReadyForVisu")
      .MayAnswer({S_OK})
      .ReportsNothing()
      .Run(
          [](TortureRun& ioRun)
          {
            World world;
            world.HoldIn("MSHSetContainer");
            ioRun.Call(
                [&]
                {
                  world.MakeReady();
                  return S_OK;
                });
          });
}
