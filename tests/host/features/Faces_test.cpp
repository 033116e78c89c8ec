// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisModelFactory.h"
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "AnalysisInterfaces/VOXISamViewManager.h"
#include "ObjectModeler/VOXIAlias.h"
#include "ObjectModeler/VOXIRedrawEvent.h"
#include "SmallDocument.h"
#include "host/ExplicitModel/ExplicitModel.h"

namespace
{

class FeatureFacesOf : public SmallDocument
{
protected:
  template <class Interface>
  static VOXHandle<Interface> As(voxhost::Feature& iFeature)
  {
    return VOXHandle<Interface>(static_cast<VOXBaseUnknown*>(&iFeature));
  }
};

TEST_F(FeatureFacesOf, AreTheSameObjectTwiceAndLeadBackToTheFeature)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  EXPECT_EQ(As<VOXIAlias>(bolt).Get(), As<VOXIAlias>(bolt).Get());
  EXPECT_EQ(VOXISpecObject_var(As<VOXIAlias>(bolt)).Get(), &bolt);
  EXPECT_TRUE(!As<VOXISamAnalysisSet>(bolt));
}

TEST_F(FeatureFacesOf, KeepTheAlias)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  EXPECT_EQ(As<VOXIAlias>(bolt)->SetAlias("Main bolt"), S_OK);
  EXPECT_TRUE(As<VOXIAlias>(bolt)->GetAlias() == "Main bolt");
}

TEST_F(FeatureFacesOf, LinkAFeatureWithItsObjectInTheModel)
{
  voxhost::ExplicitModel model;
  const VOXAnalysisExplicitEntity object = model.Create(NULL_exp, "CONCENTRATED_LOAD", "L");
  int tag = 0;
  ASSERT_EQ(object.GetTag(tag), S_OK);
  voxhost::Feature& bolt = New("Bolt", "B");
  document->SetExplicitModel(&model);
  VOXAnalysisExplicitParent parent;
  EXPECT_EQ(As<VOXISamExplicit>(bolt)->GetExplicitParent(parent, 1), S_OK);
  EXPECT_TRUE(parent == NULL_exp);
  bolt.Set("ExplicitTag", std::int32_t{tag});
  EXPECT_EQ(As<VOXISamExplicit>(bolt)->GetExplicitParent(parent, 1), S_OK);
  EXPECT_TRUE(parent == object);
  document->SetExplicitModel(nullptr);
  EXPECT_EQ(As<VOXISamExplicit>(bolt)->GetExplicitParent(parent, 1), E_FAIL);
}

TEST_F(FeatureFacesOf, AppendTheirTagsOrReplaceWhatStandsInTheList)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  bolt.Set("ExplicitTag", std::int32_t{5});
  VOXRawCollint tags;
  tags.Append(1);
  EXPECT_EQ(As<VOXISamExplicit>(bolt)->ListTags(tags), S_OK);
  EXPECT_EQ(tags.Size(), 2);
  document->SetTagListing(voxhost::TagListing::kReplaces);
  EXPECT_EQ(As<VOXISamExplicit>(bolt)->ListTags(tags), S_OK);
  EXPECT_EQ(tags.Size(), 1);
}

TEST_F(FeatureFacesOf, TellSetsAndMembersOfEachOther)
{
  voxhost::Feature& set = New("LoadSet", "Set");
  voxhost::Feature& bolt = New("Bolt", "B");
  set.Add("SonsList", bolt);
  VOXBaseUnknown_var holder;
  EXPECT_EQ(As<VOXISamAnalysisEntity>(bolt)->GetAnalysisSet(holder), S_OK);
  EXPECT_EQ(holder->GetImpl(), &set);
  EXPECT_EQ(As<VOXISamAnalysisEntity>(bolt)->IsShownUnderItsSet(), 1);
  VOXISpecObject_var member;
  EXPECT_EQ(As<VOXISamAnalysisSet>(set)->GetMemberByName("B", member, 0), S_OK);
  EXPECT_EQ(member.Get(), &bolt);
  EXPECT_EQ(As<VOXISamAnalysisSet>(set)->GetMemberByName("X", member, 0), S_OK);
  EXPECT_TRUE(!member);
  VOXListValVOXISpecObject_var members;
  EXPECT_EQ(As<VOXISamAnalysisSet>(set)->ListMembers("VOXISamAnalysisEntity", members, 0), S_OK);
  EXPECT_EQ(members.Size(), 1);
}

TEST_F(FeatureFacesOf, ListWhatPlaysARole)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  VOXListValVOXBaseUnknown_var* objects = nullptr;
  EXPECT_EQ(As<VOXISamAnalysisEntity>(bolt)->ListByRole(objects, "NoSuchRole"), E_FAIL);
  EXPECT_EQ(objects, nullptr);
  EXPECT_EQ(As<VOXISamAnalysisEntity>(bolt)->ListByRole(objects, "Supports"), S_FALSE);
  delete objects;
  bolt.Add("Supports", New("Bolt", "C"));
  objects = nullptr;
  EXPECT_EQ(As<VOXISamAnalysisEntity>(bolt)->ListByRole(objects, "Supports"), S_OK);
  EXPECT_EQ(objects->Size(), 1);
  delete objects;
}

TEST_F(FeatureFacesOf, CountWhatTheViewsAreAsked)
{
  voxhost::Feature& bolt = New("Bolt", "B");
  As<VOXISamViewManager>(bolt)->Show(&bolt, voxhost::Views::kInGraph);
  As<VOXISamViewManager>(bolt)->UpdateShowStatus(0);
  As<VOXIRedrawEvent>(bolt)->RequestRedraw();
  EXPECT_TRUE(document->ShownViews().IsShown(&bolt, voxhost::Views::kInGraph));
  EXPECT_FALSE(document->ShownViews().IsShown(&bolt, voxhost::Views::kIn3D));
  EXPECT_EQ(document->ShownViews().ShowStatusCalls(), 1);
  EXPECT_EQ(document->ShownViews().RedrawRequests(), 1);
}

TEST_F(FeatureFacesOf, MakeEntitiesThroughTheFactoryOfTheirModel)
{
  voxhost::Feature& root = New("AnalysisModel", "Model");
  voxhost::Feature& set = New("LoadSet", "Set");
  root.Add("SonsList", set);
  const VOXISamAnalysisModelFactory_var factory(Spec(set)->GetModelFactory());
  ASSERT_FALSE(!factory);
  VOXBaseUnknown* const made = factory->CreateEntity("M", "AnalysisMass", nullptr);
  ASSERT_NE(made, nullptr);
  EXPECT_TRUE(voxhost::Feature::Of(made)->Name() == "M");
  made->Release();
  EXPECT_EQ(factory->CreateEntity("M", "NoSuchType", nullptr), nullptr);
}

TEST_F(FeatureFacesOf, AreFoundByTheStartUpSearchThatTheContainerGives)
{
  VOXIContainer_var container(static_cast<VOXBaseUnknown*>(&document->MainContainer()));
  VOXBaseUnknown* const found = FindStartUp("VOXISpecObject", "NoSuchType", "Bolt", container);
  EXPECT_EQ(found, document->StartUp("Bolt"));
  found->Release();
  EXPECT_EQ(FindStartUp("VOXISpecObject", "NoSuchType", "NoSuchType", container), nullptr);
}

} // namespace
