// SPDX-License-Identifier: MIT
// Single sentences of the contracts that adaptors stand on, asked of the host without any adaptor in between.
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "AnalysisInterfaces/VOXISamFeatureUpgrade.h"
#include "ExplicitModel/VOXAnalysisEntityCollector.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "ExplicitModel/VOXAnalysisExplicitModel.h"
#include "FeatureModeler/VOXSpecPointing.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "tests/anyhost/AnyHost.h"

#include <set>

namespace anyhost
{
namespace
{

using Names = std::vector<std::string>;

class RelianceOnAnyHost : public AnyHost
{
protected:
  // The objects of the model that a list holds, as handles.
  std::vector<VOXAnalysisExplicitChild> Items(const VOXAnalysisExplicitList& iList)
  {
    int count = -1;
    VOXSamModelDataRoot** objects = nullptr;
    EXPECT_EQ(iList.GetContents(count, objects), S_OK);
    std::vector<VOXAnalysisExplicitChild> items(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < items.size(); ++i)
      EXPECT_EQ(items[i].LinkWithPointer(objects[i], world->Model()), S_OK);
    delete[] objects;
    return items;
  }
};

// Notes what it was attached to.
class Attached final : public VOXISamFeatureUpgrade
{
public:
  VOXBaseUnknown* SetImpl(VOXBaseUnknown* iImplementation) override
  {
    if (iImplementation != nullptr)
      told = iImplementation;
    return VOXISamFeatureUpgrade::SetImpl(iImplementation);
  }
  bool NeedToUpgrade() override { return false; }
  HRESULT Upgrade() override { return S_FALSE; }
  bool CheckMultiLayer(const VOXISamBasicComponent*) override { return false; }
  HRESULT UpgradeMultiLayer(const VOXISamBasicComponent*) override { return S_OK; }

  static inline VOXBaseUnknown* told = nullptr;
};

TEST_F(RelianceOnAnyHost, AnExtensionObjectIsAttachedThroughItsOwnOperation)
{
  VOXExtendLateType<VOXISamFeatureUpgrade, Attached>("Mass");
  VOXBaseUnknown* const feature = New("Mass", "mass");
  EXPECT_FALSE(!VOXISamFeatureUpgrade_var(feature));
  EXPECT_EQ(Attached::told, feature->GetImpl());
}

TEST_F(RelianceOnAnyHost, AKeyAnswersForItsOwnInterface)
{
  VOXBaseUnknown* const feature = New("UpgradedUnderTest", "feature");
  const AttributeOf rank(feature, "Rank");
  const VOXBaseUnknown_var spSame(rank.key);
  EXPECT_EQ(VOXISpecAttrKey_var(spSame).Get(), rank.key.Get());
  EXPECT_EQ(rank.key->GetType(), VOXSpecInteger);
  EXPECT_TRUE(rank.key->GetName() == "Rank");
  EXPECT_EQ(AttributeOf(feature, "Others").key->GetElementType(), VOXSpecReference);
  EXPECT_EQ(rank.access->GetAttrKey("Never"), nullptr);
}

TEST_F(RelianceOnAnyHost, AllKeysAreListedInTheOrderOfTheDeclaration)
{
  const VOXISpecAttrAccess_var spAccess(New("LayersUnderTest", "layers"));
  const std::unique_ptr<VOXListValVOXISpecAttrKey_var> keys(spAccess->ListAttrKeys());
  ASSERT_NE(keys, nullptr);
  Names names;
  for (int i = 1; i <= keys->Size(); ++i)
    if ((*keys)[i]->GetName() != "Alias") // an attribute of every feature, on hosts that keep the alias so
      names.push_back((*keys)[i]->GetName().ConvertToChar());
  EXPECT_EQ(names, (Names{"Values", "ValuesDim", "Layers"}));
}

TEST_F(RelianceOnAnyHost, WhatAStartUpHoldsCanBeInstantiatedItself)
{
  VOXISpecObject* const startUp = VOXISpecObject_var(New("UpgradedUnderTest", "feature"))->GetStartUp();
  ASSERT_NE(startUp, nullptr);
  const AttributeOf sons(startUp, "SonsList");
  VOXISpecObject* const component = sons.access->GetSpecObject(sons.key, 2);
  VOXISpecObject* const made = component->Instantiate("again", VOXIContainer_var(world->Container()), nullptr);
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(NameOf(made), "again");
  EXPECT_EQ(made->GetFatherObject(), nullptr);
  EXPECT_EQ(startUp->GetStartUp(), nullptr);
  for (VOXISpecObject* const given : {startUp, component, made})
    given->Release();
}

TEST_F(RelianceOnAnyHost, AValueIsInheritedUntilItIsWrittenOrReset)
{
  VOXBaseUnknown* const feature = New("UpgradedUnderTest", "feature");
  const AttributeOf rank(feature, "Rank");
  const VOXISpecObject_var spFeature(feature);
  EXPECT_EQ(VOXSpecIsLocalValue(spFeature, rank.key), 1);
  WriteInteger(feature, "Rank", 3);
  EXPECT_EQ(VOXSpecIsLocalValue(spFeature, rank.key), 0);
  EXPECT_EQ(rank.access->GetInteger(rank.key, 0), 3);
  EXPECT_EQ(rank.access->Reset(rank.key), S_OK);
  EXPECT_EQ(VOXSpecIsLocalValue(spFeature, rank.key), 0);
  EXPECT_EQ(rank.access->GetInteger(rank.key, 0), 0);
  EXPECT_EQ(VOXSpecIsLocalValue(spFeature, nullptr), E_INVALIDARG);
}

TEST_F(RelianceOnAnyHost, AWriteOfAnotherTypeIsRefusedAndChangesNothing)
{
  VOXBaseUnknown* const feature = New("UpgradedUnderTest", "feature");
  const AttributeOf title(feature, "Title");
  EXPECT_EQ(title.access->SetInteger(title.key, 1, 0), E_FAIL);
  EXPECT_EQ(title.access->SetString(title.key, "x", 1), E_FAIL);
  EXPECT_TRUE(title.access->GetString(title.key, 0) == "");
}

TEST_F(RelianceOnAnyHost, TheTimeStampGrowsWithEveryChange)
{
  VOXBaseUnknown* const feature = New("UpgradedUnderTest", "feature");
  const VOXISpecObject_var spFeature(feature);
  const std::int32_t before = spFeature->GetTimeStamp();
  WriteInteger(feature, "Rank", 3);
  const std::int32_t written = spFeature->GetTimeStamp();
  EXPECT_GT(written, before);
  Refer(feature, "Others", New("Mass", "mass"));
  EXPECT_GT(spFeature->GetTimeStamp(), written);
}

TEST_F(RelianceOnAnyHost, PointingsTellWhoRefersOnceForEachTime)
{
  VOXBaseUnknown* const feature = New("UpgradedUnderTest", "feature");
  VOXBaseUnknown* const mass = New("Mass", "mass");
  Refer(feature, "Others", mass);
  Refer(feature, "Others", mass);
  Refer(feature, "Other", mass);
  VOXListPtrVOXSpecPointing pointings;
  EXPECT_EQ(VOXISpecObject_var(mass)->GetPointings(pointings), S_OK);
  std::multiset<std::string> found;
  for (int i = 1; i <= pointings.Size(); ++i)
  {
    const std::unique_ptr<VOXSpecPointing> pointing(pointings[i]);
    EXPECT_TRUE(pointing->GetAccess()->IsEqual(feature));
    found.insert(pointing->GetKey()->GetName().ConvertToChar());
  }
  EXPECT_EQ(found, (std::multiset<std::string>{"Other", "Others", "Others"}));
}

TEST_F(RelianceOnAnyHost, AFeatureOfAListIsReplacedAndMoved)
{
  VOXBaseUnknown* const feature = New("UpgradedUnderTest", "feature");
  const AttributeOf others(feature, "Others");
  for (const char* const name : {"a", "b", "c"})
    Refer(feature, "Others", New("Mass", name));
  const VOXBaseUnknown_var spSecond(New("Mass", "second"));
  EXPECT_EQ(VOXSpecPubServices::UpgradeSpecObjectAttribute(others.access, others.key, VOXISpecObject_var(spSecond), 2),
            S_OK);
  EXPECT_EQ(NamesIn(feature, "Others"), (Names{"a", "second", "c"}));
  EXPECT_EQ(others.access->GetPosition(others.key, spSecond), 2);
  EXPECT_EQ(others.access->PlaceSpecObject(others.key, spSecond, 9), S_OK);
  EXPECT_EQ(NamesIn(feature, "Others"), (Names{"a", "c", "second"}));
  EXPECT_EQ(VOXSpecPubServices::UpgradeSpecObjectAttribute(others.access, others.key, VOXISpecObject_var(spSecond), 4),
            E_FAIL);
  EXPECT_EQ(others.access->GetListSize(others.key), 3);
}

TEST_F(RelianceOnAnyHost, ASubComponentIsIdentifiedByItsStartUpsName)
{
  VOXBaseUnknown* const choice = New("SAMListManager", "choice");
  const VOXISamBasicComponent_var spComponent(choice);
  EXPECT_EQ(spComponent->CreateSubComponent("Spring", VOXUnicodeString(), VOXBaseUnknown_var()), S_OK);
  VOXListValVOXBaseUnknown_var* listed = nullptr;
  EXPECT_EQ(spComponent->ListSubComponents(listed, VOXUnicodeString()), S_OK);
  const std::unique_ptr<VOXListValVOXBaseUnknown_var> components(listed);
  ASSERT_NE(components, nullptr);
  const std::string identified = VOXISpecObject_var((*components)[1])->GetIdentifyingString().ConvertToChar();
  EXPECT_TRUE(identified == "Spring" || identified.rfind("Spring.", 0) == 0) << identified;
  EXPECT_EQ(spComponent->RemoveSubComponent((*components)[1]), S_OK);
  EXPECT_EQ(spComponent->RemoveSubComponent(VOXBaseUnknown_var(choice)), E_FAIL);
}

TEST_F(RelianceOnAnyHost, TheTagsOfAFeatureAreTheIntegersThatStandInItsAttribute)
{
  VOXBaseUnknown* const feature = New("SAMImplicitAxes", "axes");
  const AttributeOf tags(feature, "ExplicitTag");
  VOXRawCollint written;
  written.Append(12);
  written.Append(7);
  EXPECT_EQ(tags.access->SetIntegerList(tags.key, written), S_OK);
  VOXRawCollint listed;
  listed.Append(1);
  EXPECT_EQ(VOXISamExplicit_var(feature)->ListTags(listed), S_OK);
  ASSERT_EQ(listed.Size(), 3); // appended
  EXPECT_EQ(listed[2], 12);
  EXPECT_EQ(listed[3], 7);
  EXPECT_EQ(tags.key->GetType(), VOXSpecList);
}

TEST_F(RelianceOnAnyHost, TheMembersOfASetAreTheFeaturesInItsList)
{
  VOXBaseUnknown* const set = New("AxisSet", "axes");
  const AttributeOf sons(set, "SonsList");
  const VOXISpecObject_var spAxes(New("SAMImplicitAxes", "inside"));
  EXPECT_EQ(VOXSpecPubServices::UpgradeSpecObjectAttribute(sons.access, sons.key, spAxes, 0), S_OK);
  const VOXISamAnalysisSet_var spSet(set);
  VOXISpecObject_var spFound;
  EXPECT_EQ(spSet->GetMemberByName("inside", spFound, 0), S_OK);
  EXPECT_FALSE(!spFound);
  EXPECT_EQ(spSet->GetMemberByName("outside", spFound, 0), S_OK);
  EXPECT_TRUE(!spFound);
}

TEST_F(RelianceOnAnyHost, APointerToADeletedObjectLeadsToNothing)
{
  const VOXAnalysisExplicitEntity object = world->NewObject(NULL_exp, "DISPLACEMENT");
  VOXAnalysisExplicitChild child(world->NewObject(object, "EXPRESSION"));
  VOXSamModelDataRoot** objects = nullptr;
  int count = 0;
  EXPECT_EQ(VOXAnalysisExplicitList(object).GetContents(count, objects), S_OK);
  ASSERT_EQ(count, 1);
  int tag = 0;
  child.GetTag(tag);
  EXPECT_EQ(child.Delete(), S_OK);
  VOXAnalysisExplicitChild again(object);
  again.LinkWithPointer(objects[0], world->Model());
  EXPECT_TRUE(again == NULL_exp);
  EXPECT_EQ(again.LinkWithTag(tag, world->Model()), S_OK);
  EXPECT_TRUE(again == NULL_exp);
  EXPECT_EQ(again.LinkWithTag(tag, nullptr), E_FAIL);
  delete[] objects;
}

TEST_F(RelianceOnAnyHost, ACreatedListKeepsItsPlaceWhenTheItemsBehindTheCursorAreDeleted)
{
  const VOXAnalysisExplicitEntity object = world->NewObject(NULL_exp, "DISPLACEMENT");
  const VOXAnalysisExplicitChild expressions[] = {world->NewObject(object, "EXPRESSION"),
                                                  world->NewObject(object, "EXPRESSION"),
                                                  world->NewObject(object, "EXPRESSION")};
  VOXAnalysisExplicitListUsr list;
  EXPECT_EQ(list.CreateList(nullptr), E_FAIL);
  ASSERT_EQ(list.CreateList(world->Model()), S_OK);
  int category = VOXSamValueExpression;
  EXPECT_EQ(object.GetChildrenList(list, VOXSamCompareCategory, &category, 0, 0), S_OK);
  VOXAnalysisExplicitChild previous(*list.First(1));
  EXPECT_TRUE(previous == expressions[0]);
  EXPECT_TRUE(*list.Next(1) == expressions[1]);
  EXPECT_EQ(previous.Delete(), S_OK);
  EXPECT_TRUE(*list.Next(1) == expressions[2]);
  EXPECT_TRUE(*list.First(1) == expressions[1]);
  EXPECT_EQ(list.Delete(), S_OK);
  EXPECT_TRUE(list == NULL_exp);
  EXPECT_EQ(list.Delete(), E_FAIL);
}

TEST_F(RelianceOnAnyHost, AnObjectWithoutChildrenHasAListOfNone)
{
  const VOXAnalysisExplicitEntity object = world->NewObject(NULL_exp, "DISPLACEMENT");
  VOXAnalysisExplicitList children;
  EXPECT_TRUE(children == NULL_exp);
  EXPECT_EQ(object.GetChildrenList(children), S_OK);
  EXPECT_FALSE(children == NULL_exp);
  EXPECT_TRUE(*children.First() == NULL_exp);
  EXPECT_TRUE(Items(children).empty());
  EXPECT_EQ(VOXAnalysisExplicitEntity().GetChildrenList(children), E_FAIL);
}

TEST_F(RelianceOnAnyHost, TheRulesKnowTheTypesThatAdaptorsAskFor)
{
  const VOXAnalysisExplicitRulesData& rules = *world->Model()->GetRulesData();
  for (const char* const name : {"MESH", "NODE_GROUP", "EDGE_GROUP", "FACE_GROUP", "ELEMENT_GROUP"})
  {
    int number = 0;
    EXPECT_EQ(rules.GetPhysicalTypeNumber(name, number), S_OK) << name;
    EXPECT_NE(number, 0) << name;
  }
  int untouched = -1;
  EXPECT_EQ(rules.GetPhysicalTypeNumber("NEVER_HEARD_OF", untouched), E_FAIL);
  EXPECT_EQ(untouched, -1);
  VOXSamValue category = VOXSamValueNone;
  EXPECT_EQ(rules.GetPhysicalTypeCategory(VOXSamPhysicalTypeImportedLoad, category), S_OK);
}

TEST_F(RelianceOnAnyHost, RetiringAnUnattachedCollectorLeavesItToItsReferences)
{
  auto* const collector = new VOXAnalysisEntityCollector;
  EXPECT_EQ(collector->AddRef(), 1);
  EXPECT_EQ(collector->SetAttachedToModel(1, nullptr, 0), E_FAIL); // without a context
  collector->RequestDelayedDestruction(1);
  EXPECT_EQ(collector->Release(), 0); // what lives is counted at the end
}

} // namespace
} // namespace anyhost
