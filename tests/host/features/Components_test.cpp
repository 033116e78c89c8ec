// SPDX-License-Identifier: MIT
#include "ObjectModeler/VOXSequence.h"
#include "SmallDocument.h"

namespace
{

using FeatureComponents = SmallDocument;

TEST_F(FeatureComponents, ComeWithAnInstanceAsItsStartUpHoldsThem)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  ASSERT_EQ(bolt.Features("SonsList").size(), 1u);
  voxhost::Feature& force = *bolt.Features("SonsList")[0];
  EXPECT_TRUE(force.Name() == "Force");
  EXPECT_EQ(force.Father(), &bolt);
  EXPECT_EQ(force.StartUp(), document->StartUp("Bolt")->Features("SonsList")[0]);
  VOXISpecObject* const related = Spec(force)->GetRelatedObject();
  EXPECT_EQ(related, force.StartUp());
  related->Release();
}

TEST_F(FeatureComponents, DoNotComeWhenTheyAreNotWanted)
{
  voxhost::Feature& bolt = *document->New("Bolt", "B", nullptr, voxhost::Components::kNone);
  EXPECT_TRUE(bolt.Features("SonsList").empty());
  EXPECT_EQ(bolt.Find(bolt.IndexOf("SonsList")), nullptr) << "the list has never had a value";
}

TEST_F(FeatureComponents, LeaveTheDocumentWithTheirFeatureAndAnswerAsRemoved)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  const VOXISpecObject_var held = Spec(*bolt.Features("SonsList")[0]);
  document->Remove(bolt);
  EXPECT_EQ(document->NumberOfFeatures(), 0u);
  EXPECT_TRUE(voxhost::Feature::Of(held)->IsRemoved());
  EXPECT_EQ(held->IsUpToDate(VOXIDomain_var()), 0);
  VOXIContainer_var container;
  EXPECT_EQ(held->GetContainer(container), E_FAIL);
  VOXISpecAttrAccess* const access = VOXISpecAttrAccess_var(held);
  EXPECT_EQ(access->GetAttrKey("Value"), nullptr);
}

TEST_F(FeatureComponents, AreRemovedOnlyByTheFeatureThatHoldsThem)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  voxhost::Feature& other = New("Bolt", "C");
  const VOXBaseUnknown_var force(bolt.Features("SonsList")[0]);
  EXPECT_EQ(Spec(other)->RemoveComponent(force, 0), E_FAIL);
  EXPECT_EQ(Spec(bolt)->RemoveComponent(force, 0), S_OK);
  EXPECT_TRUE(bolt.Features("SonsList").empty());
}

TEST_F(FeatureComponents, GoToTheEndOfTheOtherListWhenTheyAreHandedOver)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  voxhost::Feature& other = New("Bolt", "C");
  voxhost::Feature& force = *bolt.Features("SonsList")[0];
  EXPECT_EQ(Spec(force)->HandOver("SonsList", Spec(other), "SonsList"), S_OK);
  EXPECT_TRUE(bolt.Features("SonsList").empty());
  ASSERT_EQ(other.Features("SonsList").size(), 2u);
  EXPECT_EQ(other.Features("SonsList")[1], &force);
  EXPECT_EQ(force.Father(), &other);
}

TEST_F(FeatureComponents, CannotHoldWhatHoldsThem)
{
  voxhost::Feature& outer = New("LoadSet", "Outer");
  voxhost::Feature& inner = New("LoadSet", "Inner");
  EXPECT_EQ(outer.Add("SonsList", inner), S_OK);
  EXPECT_EQ(inner.Add("SonsList", outer), E_FAIL);
  EXPECT_EQ(outer.Add("SonsList", outer), E_FAIL);
}

TEST_F(FeatureComponents, ArePlacedWithinTheirList)
{
  voxhost::Feature& set = New("LoadSet", "Set");
  voxhost::Feature* const bolts[] = {&New("Bolt", "A"), &New("Bolt", "B"), &New("Bolt", "C")};
  for (voxhost::Feature* const bolt : bolts)
    set.Add("SonsList", *bolt);
  const VOXISpecAttrKey_var key = Key(set, "SonsList");
  EXPECT_EQ(Access(set)->PlaceSpecObject(key, VOXBaseUnknown_var(bolts[2]), 1), S_OK);
  EXPECT_EQ(Access(set)->GetPosition(key, VOXBaseUnknown_var(bolts[2])), 1);
  EXPECT_EQ(Access(set)->PlaceSpecObject(key, VOXBaseUnknown_var(bolts[2]), 99), S_OK);
  EXPECT_EQ(Access(set)->GetPosition(key, VOXBaseUnknown_var(bolts[2])), 3);
  EXPECT_EQ(Access(set)->PlaceSpecObject(key, VOXBaseUnknown_var(bolts[2]), 0), E_FAIL);
}

TEST_F(FeatureComponents, AreListedByTheirContainerWithOneReferenceEach)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  const auto references = VOXComponentRuntime::References(&bolt);
  _SEQUENCE_VOXBaseUnknown_ptr members;
  EXPECT_EQ(document->MainContainer().ListMembers("VOXISamExplicit", members), 1);
  EXPECT_EQ(members[0]->GetImpl(), &bolt);
  EXPECT_EQ(VOXComponentRuntime::References(&bolt), references + 1);
  members[0]->Release();
}

TEST_F(FeatureComponents, KnowTheContainerThatHoldsThemAsTheirFather)
{
  voxhost::Container* const meshes = document->NewContainer("Meshes", "MSHSetContainerOfTests", true);
  voxhost::Feature& part = *document->New("MSHPart", "Part", meshes);
  VOXBaseUnknown_var father;
  EXPECT_EQ(Spec(part)->GetFather(father), S_OK);
  EXPECT_STREQ(father->GetImpl(0)->IsA(), "MSHSetContainerOfTests");
  voxhost::Feature& bolt = New("Bolt", "B");
  EXPECT_EQ(Spec(bolt)->GetFather(father), E_FAIL);
  EXPECT_EQ(Spec(bolt)->GetFatherObject(), nullptr);
}

TEST_F(FeatureComponents, OfAHundredThousandFeaturesAreMadeAndFoundAgain)
{
  voxhost::Feature& set = New("LoadSet", "Set");
  document->Reserve(200001);
  for (int i = 0; i < 100000; ++i)
    set.Add("SonsList", *document->New("AnalysisMass", "M"));
  EXPECT_EQ(set.Features("SonsList").size(), 100000u);
  EXPECT_EQ(document->NumberOfFeatures(), 100001u);
}

} // namespace
