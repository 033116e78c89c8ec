// SPDX-License-Identifier: MIT
#include "tests/anyhost/AnyHost.h"

#include "FeatureModeler/VOXSpecServices.h"

namespace anyhost
{

namespace
{

Attribute Tag()
{
  return {"ExplicitTag", VOXSpecInteger};
}

Attribute Sons(std::vector<Component> iComponents = {})
{
  return {"SonsList", VOXSpecList, VOXSpecComponent, std::move(iComponents)};
}

Attribute ReferenceList(const char* iName)
{
  return {iName, VOXSpecList, VOXSpecReference};
}

} // namespace

const std::vector<Type>& TestTypes()
{
  static const std::vector<Type> types = {
      {"ModelUnderTest", kExplicit | kModelFactory, "ANALYSIS_MODEL", {Tag(), Sons()}},
      {"MSHSetContainer", kExplicit, "", {Tag(), Sons()}},
      {"MeshUnderTest", kExplicit, "MESH", {Tag()}},
      {"GroupSet", kExplicit | kSet, "GROUP_SET", {Tag(), Sons()}},
      {"LoadSet", kExplicit | kSet, "LOAD_SET", {Tag(), Sons()}},
      {"AxisSet", kExplicit | kSet, "AXIS_SET", {Tag(), Sons()}},
      {"AnalysisLoad", kExplicit | kEntity, "DISTRIBUTED_LOAD", {Tag()}},
      {"AnalysisSensor", kExplicit | kEntity, "IMPORTED_LOAD", {Tag()}},
      {"GroupUnderTest", kExplicit | kEntity, "GROUP", {Tag()}},
      {"ResultUnderTest", kExplicit, "GROUP", {Tag(), {"Step", VOXSpecInteger}}},
      {"SAMImplicitAxes", kExplicit | kEntity, "AXIS", {Tag()}},
      {"DesignerUnderTest", kSupport | kMeshPartFilter, "", {ReferenceList("Supports"), ReferenceList("Designers")}},
      {"ConnectionUnderTest",
       kEntity,
       "",
       {ReferenceList("SAMConnectionDesigner1"), ReferenceList("SAMConnectionDesigner2")}},

      {"InputUnderTest", kBasicComponent, "", {Sons()}},
      {"LayersUnderTest",
       kBasicComponent,
       "",
       {{"Values", VOXSpecList, VOXSpecComponent, {{"Angle", "InputUnderTest"}, {"Height", "InputUnderTest"}}},
        {"ValuesDim", VOXSpecInteger},
        {"Layers", VOXSpecInteger}}},
      {"Mass", kBasicComponent, "", {Sons()}},
      {"Spring", kBasicComponent, "", {Sons()}},
      {"SAMListManager", kBasicComponent, "", {Sons()}, {"None", "Mass", "Both"}},
      {"UpgradedUnderTest",
       0,
       "",
       {Sons({{"Pressure", "InputUnderTest"}, {"Height", "InputUnderTest"}}),
        {"Rank", VOXSpecInteger},
        {"Share", VOXSpecReal},
        {"Title", VOXSpecString},
        {"Closed", VOXSpecBoolean},
        {"Other", VOXSpecReference},
        ReferenceList("Others")}},
      {"SuccessorUnderTest",
       0,
       "",
       {{"Rank", VOXSpecInteger},
        {"Share", VOXSpecReal},
        {"Title", VOXSpecString},
        {"Closed", VOXSpecBoolean},
        ReferenceList("Others"),
        Sons()}},
  };
  return types;
}

AnyHost::AnyHost() : _LiveBefore(LiveObjects())
{
  world = World::Make(TestTypes());
  TakeReports();
}

AnyHost::~AnyHost()
{
  world.reset();
  EXPECT_EQ(LiveObjects(), _LiveBefore + leftOver);
}

VOXBaseUnknown* AnyHost::New(const char* iType, const char* iName)
{
  VOXBaseUnknown* const made = world->NewFeature(iType, iName);
  EXPECT_NE(made, nullptr) << iType;
  return made;
}

void AnyHost::Hold(VOXBaseUnknown* iFather, VOXBaseUnknown* iSon)
{
  const AttributeOf sons(iFather, "SonsList");
  EXPECT_EQ(sons.access->AddSpecObject(sons.key, iSon, nullptr, false, 0), S_OK);
}

void AnyHost::Link(VOXBaseUnknown* iFeature, const VOXAnalysisExplicitChild& iObject)
{
  int tag = 0;
  EXPECT_EQ(iObject.GetTag(tag), S_OK);
  WriteInteger(iFeature, "ExplicitTag", tag);
  SetUpToDate(iFeature, true);
}

std::vector<VOXAnalysisExplicitChild> AnyHost::EntitiesOf(const VOXAnalysisCollectorRoot& iCollector)
{
  int count = -1;
  VOXSamModelDataRoot* const* objects = nullptr;
  const int* sides = nullptr;
  EXPECT_EQ(iCollector.GetEntities(count, objects, sides), S_OK);
  std::vector<VOXAnalysisExplicitChild> entities(static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < entities.size(); ++i)
    EXPECT_EQ(entities[i].LinkWithPointer(objects[i], world->Model()), S_OK);
  return entities;
}

void AnyHost::ExpectFirstReport(VOXSamErrorType iKind, const char* iText, const char* iClass)
{
  const std::vector<Report> reports = TakeReports();
  ASSERT_FALSE(reports.empty());
  EXPECT_EQ(reports.front().kind, iKind);
  EXPECT_EQ(reports.front().text, iText);
  EXPECT_EQ(reports.front().file, std::string("VOXAnalysisAdaptors.m/src/") + iClass);
}

unsigned long References(VOXBaseUnknown* iObject)
{
  iObject->AddRef();
  return iObject->Release();
}

void SetUpToDate(VOXBaseUnknown* iFeature, bool iUpToDate)
{
  VOXISpecObject_var spFeature(iFeature);
  if (iUpToDate)
    EXPECT_EQ(spFeature->Update(VOXIDomain_var()), S_OK);
  else
    EXPECT_EQ(VOXSpecObjServices::MarkForRebuild(spFeature, 1), S_OK);
}

void WriteInteger(VOXBaseUnknown* iFeature, const char* iAttribute, int iValue)
{
  const AttributeOf attribute(iFeature, iAttribute);
  EXPECT_EQ(attribute.access->PutInteger(attribute.key, iValue, 1), S_OK);
}

void Refer(VOXBaseUnknown* iFeature, const char* iAttribute, VOXBaseUnknown* iReferred)
{
  const AttributeOf attribute(iFeature, iAttribute);
  EXPECT_EQ(
      VOXSpecPubServices::UpgradeSpecObjectAttribute(attribute.access, attribute.key, VOXISpecObject_var(iReferred), 0),
      S_OK);
}

std::vector<std::string> NamesIn(VOXBaseUnknown* iFeature, const char* iAttribute)
{
  const AttributeOf attribute(iFeature, iAttribute);
  const std::unique_ptr<VOXListValVOXBaseUnknown_var> objects(
      attribute.access->ListSpecObjects(attribute.key, nullptr));
  std::vector<std::string> names;
  for (int i = 1; objects != nullptr && i <= objects->Size(); ++i)
    names.push_back(NameOf((*objects)[i]));
  return names;
}

std::string NameOf(const VOXBaseUnknown* iFeature)
{
  const VOXISpecObject_var spFeature(iFeature);
  return !spFeature ? "" : spFeature->GetName().ConvertToChar();
}

} // namespace anyhost
