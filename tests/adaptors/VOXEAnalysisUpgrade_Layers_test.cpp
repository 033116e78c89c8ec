// SPDX-License-Identifier: MIT
// Components whose values repeat once per layer: CheckMultiLayer, UpgradeMultiLayer.
#include "VOXEAnalysisUpgrade.h"

#include "tests/adaptors/UpgradeWorld.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Feature;

namespace
{

constexpr char kAdding[] = "VOXEAnalysisUpgrade::Upgrade Adding";

class LayeredUpgrade : public InBalance<UpgradeWorld>
{
protected:
  LayeredUpgrade() : component(world->Old("LayersOfABE")), upgrade(UpgradeWorld::Upgrade(component)) {}

  // Value kinds on both sides, layers, and values of the instance.
  void Make(int iKinds, int iLayers, const Names& iValues)
  {
    component.StartUp()->Set("ValuesDim", iKinds);
    component.Set("ValuesDim", iKinds);
    component.Set("Layers", iLayers);
    for (const std::string& name : iValues)
      world->Put(component, name.c_str(), "Values");
  }

  bool NeedsUpgrade() const { return upgrade->CheckMultiLayer(UpgradeWorld::Basic(component)); }
  HRESULT Upgrade() { return upgrade->UpgradeMultiLayer(UpgradeWorld::Basic(component)); }
  Names Values() const { return UpgradeWorld::Names(component, "Values"); }

  Feature& component;
  VOXISamFeatureUpgrade* upgrade;
};

} // namespace

TEST_F(LayeredUpgrade, AsManyValuesAsLayersTimesKindsFit)
{
  Make(2, 3, {"A", "B", "A", "B", "A", "B"});
  EXPECT_FALSE(NeedsUpgrade());
}

TEST_F(LayeredUpgrade, OneValueLessOrMoreDoesNotFit)
{
  Make(2, 3, {"A", "B", "A", "B", "A"});
  EXPECT_TRUE(NeedsUpgrade());
  Make(2, 3, {"B", "A"});
  EXPECT_TRUE(NeedsUpgrade());
}

TEST_F(LayeredUpgrade, OtherValueKindsOnTheStartUpDoNotFitWhateverTheSize)
{
  Make(2, 1, {"A", "B"});
  component.StartUp()->Set("ValuesDim", 3);
  EXPECT_TRUE(NeedsUpgrade());
}

TEST_F(LayeredUpgrade, TheLayersOfTheStartUpDoNotMatter)
{
  Make(2, 1, {"A", "B"});
  component.StartUp()->Set("Layers", 7);
  component.StartUp()->Set("Rows", 7);
  EXPECT_FALSE(NeedsUpgrade());
}

TEST_F(LayeredUpgrade, RowsDoNotMatter)
{
  Make(2, 1, {"A", "B"});
  component.Set("Rows", 5);
  EXPECT_FALSE(NeedsUpgrade());
}

TEST_F(LayeredUpgrade, ValuesThatWereNeverThereFit)
{
  Make(2, 3, {});
  EXPECT_FALSE(NeedsUpgrade());
}

TEST_F(LayeredUpgrade, AnEmptyListFitsNoLayerOnly)
{
  Make(2, 0, {});
  component.Reset(component.IndexOf("Values"));
  EXPECT_FALSE(NeedsUpgrade());
  component.Set("Layers", 1);
  EXPECT_TRUE(NeedsUpgrade());
}

TEST_F(LayeredUpgrade, NothingNeedsNoUpgrade)
{
  EXPECT_FALSE(upgrade->CheckMultiLayer(nullptr));
}

TEST_F(LayeredUpgrade, WithoutStartUpTheSizeAloneCounts)
{
  Feature& startUp = *component.StartUp();
  startUp.Set("ValuesDim", 3);
  EXPECT_FALSE(upgrade->CheckMultiLayer(UpgradeWorld::Basic(startUp)));
  startUp.Set("ValuesDim", 2);
  EXPECT_TRUE(upgrade->CheckMultiLayer(UpgradeWorld::Basic(startUp)));
}

TEST_F(LayeredUpgrade, DimensionsThatCannotBeReadCountAsNone)
{
  Make(2, 3, {"A"});
  Faults::FailOperation("VOXISamBasicComponent::GetDimensions", 1, true);
  EXPECT_TRUE(NeedsUpgrade()) << "one value, where none fits";
  Faults::FailOperation("VOXISamBasicComponent::GetDimensions", 1, false);
  EXPECT_TRUE(NeedsUpgrade()) << "the start-up has two kinds";
  Faults::Disarm();
  component.Reset(component.IndexOf("Values"));
  Faults::FailOperation("VOXISamBasicComponent::GetDimensions", 1, true);
  EXPECT_FALSE(NeedsUpgrade());
}

TEST_F(LayeredUpgrade, AComponentWithoutTheAttributeOfValuesIsAsserted)
{
  Bench bench;
  VOXBaseUnknown* const bare = bench.Component<ScriptedBasicComponent, ScriptedSpecObject, ScriptedFeatureAccess>();
  const VOXISamBasicComponent* const basic = FaceOf<VOXISamBasicComponent>(bare);
  EXPECT_EQ(FatalErrorOf([&] { upgrade->CheckMultiLayer(basic); }).text, "AssertionFailed:piKey");
}

TEST_F(LayeredUpgrade, TheMissingKindIsAddedOncePerLayerAtMultiplesOfItsRank)
{
  Make(2, 3, {"A", "E", "A.2", "E.2", "A.3", "E.3"});
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Values(), (Names{"A", "B", "E", "B", "A.2", "B", "E.2", "A.3", "E.3"}));
  EXPECT_EQ(component.Integer("ValuesDim"), 3);
}

TEST_F(LayeredUpgrade, APositionPastTheEndIsTheEnd)
{
  Make(1, 3, {"A", "B"});
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Values(), (Names{"A", "B", "E", "E", "E"})) << "at 3, 6 and 9";
}

TEST_F(LayeredUpgrade, WhatIsAddedIsAnUpToDateInstanceOfTheStartUpsValueInTheComponentsContainer)
{
  voxhost::Container* const container = world->document.NewContainer("Elsewhere");
  Feature& elsewhere = *world->document.New("LayersOfABE", "layers", container, voxhost::Components::kNone);
  elsewhere.Reset(elsewhere.IndexOf("Values"));
  EXPECT_EQ(upgrade->UpgradeMultiLayer(UpgradeWorld::Basic(elsewhere)), S_OK);
  ASSERT_EQ(UpgradeWorld::Names(elsewhere, "Values"), (Names{"A", "B", "E"}));
  for (const std::size_t i : {0u, 1u, 2u})
  {
    const Feature& made = *elsewhere.Features("Values")[i];
    EXPECT_EQ(made.StartUp(), elsewhere.StartUp()->Features("Values")[i]);
    EXPECT_EQ(made.OwningContainer(), container);
    EXPECT_FALSE(made.IsOutOfDate());
    EXPECT_EQ(Bench::References(UpgradeWorld::Face(made)), 0);
  }
}

TEST_F(LayeredUpgrade, TheMissingNamesAreTracedWithoutEndOfLine)
{
  Make(1, 1, {"A"});
  const UpgradeMessages messages;
  Upgrade();
  upgrade->NeedToUpgrade();
  EXPECT_EQ(UpgradeMessages::Text(),
            std::string(kAdding) + "B" + kAdding + "E" + "VOXEAnalysisUpgrade::NeedToUpgrade 0\n")
      << "what is traced next continues the line";
}

TEST_F(LayeredUpgrade, NoLayerAddsNothingButIsTracedAndCounted)
{
  Make(1, 0, {"A", "E"});
  const UpgradeMessages messages;
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Values(), (Names{"A", "E"}));
  EXPECT_EQ(UpgradeMessages::Text(), std::string(kAdding) + "B");
  EXPECT_EQ(component.Integer("ValuesDim"), 3);
}

TEST_F(LayeredUpgrade, AStartUpWithoutValuesChangesNothing)
{
  Make(2, 2, {"A"});
  component.StartUp()->Reset(component.IndexOf("Values"));
  const UpgradeMessages messages;
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Values(), Names{"A"});
  EXPECT_EQ(UpgradeMessages::Text(), "");
  EXPECT_EQ(component.Integer("ValuesDim"), 2);
}

TEST_F(LayeredUpgrade, AComponentThatLacksNothingIsCountedAgain)
{
  Make(1, 2, {"A", "B.1", "E"});
  const UpgradeMessages messages;
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(Values(), (Names{"A", "B.1", "E"}));
  EXPECT_EQ(UpgradeMessages::Text(), "");
  EXPECT_EQ(component.Integer("ValuesDim"), 3);
}

TEST_F(LayeredUpgrade, ValuesThatWereNeverThereAreNotAddedToButCounted)
{
  Make(1, 2, {});
  const UpgradeMessages messages;
  EXPECT_EQ(Upgrade(), S_OK);
  EXPECT_EQ(component.Find(component.IndexOf("Values")), nullptr);
  EXPECT_EQ(UpgradeMessages::Text(), "");
  EXPECT_EQ(component.Integer("ValuesDim"), 3);
}

TEST_F(LayeredUpgrade, WithoutTheKeyOfValuesNothingIsAddedButTheKindsAreCounted)
{
  Make(1, 2, {"A"});
  const UpgradeMessages messages;
  Faults::FailOperation("VOXISpecAttrAccess::GetAttrKey", 2, false); // the first is the start-up's
  EXPECT_EQ(Upgrade(), S_OK);
  Faults::Disarm();
  EXPECT_EQ(Values(), Names{"A"});
  EXPECT_EQ(UpgradeMessages::Text(), "");
  EXPECT_EQ(component.Integer("ValuesDim"), 3);
}

TEST_F(LayeredUpgrade, WithoutDimensionsNoCopyIsMadeButTheKindsAreCounted)
{
  Make(1, 2, {"A"});
  Faults::FailOperation("VOXISamBasicComponent::GetDimensions", 1, true);
  EXPECT_EQ(Upgrade(), S_OK);
  Faults::Disarm();
  EXPECT_EQ(Values(), Names{"A"});
  EXPECT_EQ(component.Integer("ValuesDim"), 3);
}
