// SPDX-License-Identifier: MIT
// What goes over from an instance to the one that takes its place: values, references, components, alias and tag.
#include "tests/adaptors/RerouteWorld.h"

using namespace voxtest;
using voxhost::Faults;
using voxhost::Feature;
using voxhost::Value;

namespace
{

class RerouteCopy : public InBalance<RerouteWorld>
{
protected:
  RerouteCopy() : old(world->old) {}

  Value Carried(const char* iAttribute, const Value& iValue)
  {
    EXPECT_EQ(old.Set(iAttribute, iValue), S_OK);
    return world->Reroute()->Get(iAttribute);
  }

  Feature& old;
};

} // namespace

TEST_F(RerouteCopy, ARealGoesOver)
{
  EXPECT_EQ(Carried("Real", 3.25), Value(3.25));
}

TEST_F(RerouteCopy, ABooleanGoesOver)
{
  EXPECT_EQ(Carried("Flag", true), Value(true));
}

TEST_F(RerouteCopy, ATextGoesOver)
{
  EXPECT_EQ(Carried("Text", std::string("clamped")), Value(std::string("clamped")));
}

TEST_F(RerouteCopy, AnIntegerGoesOver)
{
  EXPECT_EQ(Carried("Count", std::int32_t{42}), Value(std::int32_t{42}));
}

TEST_F(RerouteCopy, AListOfRealsReplacesTheDefaultListInItsOrder)
{
  EXPECT_EQ(Carried("Reals", std::vector<double>{1., 2.}), Value(std::vector<double>{1., 2.}));
}

TEST_F(RerouteCopy, AListOfBooleansReplacesTheDefaultListInItsOrder)
{
  const std::vector<bool> flags{false, true, false};
  EXPECT_EQ(Carried("Flags", flags), Value(flags));
}

TEST_F(RerouteCopy, AListOfTextsReplacesTheDefaultListInItsOrder)
{
  const std::vector<std::string> texts{"b", "a"};
  EXPECT_EQ(Carried("Texts", texts), Value(texts));
}

TEST_F(RerouteCopy, AListOfIntegersReplacesTheDefaultListInItsOrder)
{
  const std::vector<std::int32_t> counts{3, 1, 2};
  EXPECT_EQ(Carried("Counts", counts), Value(counts));
}

TEST_F(RerouteCopy, AnEmptyListEmptiesTheNewOne)
{
  EXPECT_EQ(Carried("Reals", std::vector<double>{}), Value(std::vector<double>{}));
  EXPECT_EQ(Carried("Flags", std::vector<bool>{}), Value(std::vector<bool>{}));
  EXPECT_EQ(Carried("Texts", std::vector<std::string>{}), Value(std::vector<std::string>{}));
  EXPECT_EQ(Carried("Counts", std::vector<std::int32_t>{}), Value(std::vector<std::int32_t>{}));
}

TEST_F(RerouteCopy, TheOldValuesStay)
{
  Carried("Reals", std::vector<double>{1., 2.});
  EXPECT_EQ(old.Get("Reals"), Value(std::vector<double>{1., 2.}));
}

TEST_F(RerouteCopy, AnInheritedValueIsNotCopied)
{
  ASSERT_EQ(old.Real("Real"), 2.5);
  const Feature* const made = world->Reroute();
  EXPECT_EQ(made->Real("Real"), 9.5);
  EXPECT_FALSE(made->IsLocal(made->IndexOf("Real")));
  EXPECT_EQ(made->Get("Reals"), Value(std::vector<double>{7., 8., 9.}));
}

TEST_F(RerouteCopy, AnAttributeThatTheNewOneLacksIsDroppedAndTheRestGoesOver)
{
  old.Set("Dropped", std::int32_t{1});
  EXPECT_EQ(Carried("Count", std::int32_t{42}), Value(std::int32_t{42}));
}

TEST_F(RerouteCopy, AnAttributeOfAnotherTypeIsDroppedAndTheRestGoesOver)
{
  old.Set("Retyped", std::int32_t{1});
  old.Set("Singled", std::vector<std::int32_t>{1, 2});
  old.Set("Count", std::int32_t{42});
  const Feature* const made = world->Reroute();
  EXPECT_EQ(made->Real("Retyped"), 0.5);
  EXPECT_EQ(made->Integer("Singled"), 6);
  EXPECT_FALSE(made->IsLocal(made->IndexOf("Retyped")));
  EXPECT_EQ(made->Integer("Count"), 42);
}

TEST_F(RerouteCopy, AListOfOtherElementsIsEmptiedAndNotFilled)
{
  old.Set("ElementRetyped", std::vector<std::int32_t>{1, 2});
  EXPECT_EQ(world->Reroute()->Get("ElementRetyped"), Value(std::vector<double>{}))
      << "both are lists; the elements of the old one do not fit";
}

TEST_F(RerouteCopy, AReferenceGoesOver)
{
  Feature& target = world->Part("target");
  old.Add("Target", target);
  const Feature* const made = world->Reroute();
  ASSERT_EQ(made->Features("Target").size(), 1u);
  EXPECT_EQ(made->Features("Target")[0], &target);
}

TEST_F(RerouteCopy, ReferencesAreAddedBehindThoseOfTheStartUp)
{
  world->document.StartUp("NewRestraint")->Add("Targets", world->Part("X"));
  old.Add("Targets", world->Part("Y"));
  old.Add("Targets", world->Part("Z"));
  EXPECT_EQ(UpgradeWorld::Names(*world->Reroute(), "Targets"), (Names{"X", "Y", "Z"})) << "there is no reset";
}

TEST_F(RerouteCopy, AReferenceToNothingLeavesTheNewOnes)
{
  Feature& target = world->Part("X");
  world->document.StartUp("NewRestraint")->Add("Target", target);
  old.Reset(old.IndexOf("Target"));
  EXPECT_EQ(world->Reroute()->Features("Target")[0], &target);
}

TEST_F(RerouteCopy, ComponentsOfAListTakeThePlaceOfTheStartUpsInTheirOrder)
{
  Feature& first = world->Part("P1");
  old.Add("Parts", first);
  old.Add("Parts", world->Part("P2"));
  old.Add("Parts", world->Part("P3"));
  Feature* const made = world->Reroute("RestraintWithParts");
  EXPECT_EQ(UpgradeWorld::Names(*made, "Parts"), (Names{"P1", "P2", "P3"}));
  EXPECT_EQ(first.Father(), made);
  EXPECT_TRUE(old.Features("Parts").empty());
}

TEST_F(RerouteCopy, TheStartUpsComponentsAreRemovedFromTheDocument)
{
  old.Add("Parts", world->Part("P1"));
  const std::size_t before = world->document.NumberOfFeatures();
  const Feature* const made = world->Reroute("RestraintWithParts");
  EXPECT_EQ(UpgradeWorld::Names(*made, "Part"), Names{"D"});
  EXPECT_EQ(world->document.NumberOfFeatures(), before + 2) << "the new restraint and its single component";
}

TEST_F(RerouteCopy, AnEmptyListOfComponentsEmptiesTheNewOne)
{
  old.Reset(old.IndexOf("Parts"));
  EXPECT_TRUE(world->Reroute("RestraintWithParts")->Features("Parts").empty());
}

TEST_F(RerouteCopy, ComponentsThatTheOldOneNeverHadLeaveTheStartUps)
{
  EXPECT_EQ(UpgradeWorld::Names(*world->Reroute("RestraintWithParts"), "Parts"), (Names{"D1", "D2"}));
}

TEST_F(RerouteCopy, ASingleComponentIsHandedOverAndRemovesNothing)
{
  Feature& part = world->Part("P");
  old.Add("Part", part);
  const std::size_t before = world->document.NumberOfFeatures();
  Feature* const made = world->Reroute();
  EXPECT_EQ(UpgradeWorld::Names(*made, "Part"), Names{"P"});
  EXPECT_EQ(part.Father(), made);
  EXPECT_TRUE(old.Features("Part").empty());
  EXPECT_EQ(world->document.NumberOfFeatures(), before + 2) << "what the start-up gave is held by nobody now";
}

TEST_F(RerouteCopy, NoSingleComponentLeavesTheStartUps)
{
  old.Reset(old.IndexOf("Part"));
  EXPECT_EQ(UpgradeWorld::Names(*world->Reroute(), "Part"), Names{"D"});
}

TEST_F(RerouteCopy, TheAliasGoesOverThroughItsInterface)
{
  FaceOf<VOXIAlias>(UpgradeWorld::Face(old))->SetAlias("left edge");
  const CallLog log;
  const Feature* const made = world->Reroute();
  EXPECT_EQ(made->Text("Alias"), VOXUnicodeString("left edge"));
  EXPECT_EQ(old.Text("Alias"), VOXUnicodeString("left edge"));
  EXPECT_EQ(log.Count("VOXISpecAttrAccess::Reset"), 0);
  EXPECT_EQ(log.Count("VOXISpecAttrAccess::SetString"), 0);
}

TEST_F(RerouteCopy, NoAliasTakesAwayThatOfTheStartUp)
{
  world->document.StartUp("NewRestraint")->Set("Alias", std::string("default"));
  EXPECT_EQ(world->Reroute()->Text("Alias"), VOXUnicodeString(""));
}

TEST_F(RerouteCopy, AnInstanceWithoutAliasesGetsNone)
{
  FaceOf<VOXIAlias>(UpgradeWorld::Face(old))->SetAlias("left edge");
  const CallLog log;
  const Feature* const made = world->Reroute("SpeechlessRestraint");
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->Text("Alias"), VOXUnicodeString("")) << "nor is it copied as an attribute";
  EXPECT_EQ(log.Count("VOXIAlias::SetAlias"), 0);
}

TEST_F(RerouteCopy, AnOldOneWithoutAliasesGivesAnEmptyAlias)
{
  Feature& speechless = world->Made("SpeechlessRestraint", "speechless");
  speechless.Set("Alias", std::string("unheard"));
  world->document.StartUp("NewRestraint")->Set("Alias", std::string("default"));
  EXPECT_EQ(world->Reroute(speechless, "NewRestraint")->Text("Alias"), VOXUnicodeString(""));
}

TEST_F(RerouteCopy, TheExplicitTagMoves)
{
  old.Set("ExplicitTag", std::int32_t{77});
  const Feature* const made = world->Reroute();
  EXPECT_EQ(made->Integer("ExplicitTag"), 77);
  EXPECT_EQ(old.Integer("ExplicitTag", -1), 0);
  EXPECT_TRUE(old.IsLocal(old.IndexOf("ExplicitTag"))) << "it was reset";
}

TEST_F(RerouteCopy, AListOfExplicitTagsMoves)
{
  Feature& tagged = world->Made("OldTagged", "tagged");
  tagged.Set("ExplicitTag", std::vector<std::int32_t>{5, 6});
  const Feature* const made = world->Reroute(tagged, "NewTagged");
  EXPECT_EQ(made->ExplicitTags(), (std::vector<std::int32_t>{5, 6}));
  EXPECT_TRUE(tagged.ExplicitTags().empty());
}

TEST_F(RerouteCopy, AnInheritedTagStays)
{
  old.StartUp()->Set("ExplicitTag", std::int32_t{77});
  EXPECT_EQ(world->Reroute()->Integer("ExplicitTag"), 0);
  EXPECT_EQ(old.Integer("ExplicitTag"), 77);
}

TEST_F(RerouteCopy, OtherIntegersAreNotReset)
{
  Carried("Count", std::int32_t{42});
  EXPECT_EQ(old.Integer("Count"), 42);
}

TEST_F(RerouteCopy, WithoutKeysNothingGoesOver)
{
  old.Set("Count", std::int32_t{42});
  Faults::FailOperation("VOXISpecAttrAccess::ListAttrKeys", 1, false);
  const Feature* const made = world->Reroute();
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->Integer("Count"), 0);
}

TEST_F(RerouteCopy, AValueOfWhichItIsNotKnownWhetherItIsLocalStays)
{
  old.Set("Count", std::int32_t{42});
  Faults::FailOperation("VOXSpecIsLocalValue", 1, true);
  EXPECT_EQ(world->Reroute()->Integer("Count"), 0);
}
