// SPDX-License-Identifier: MIT
// Groups end to end, on whatever host: the feature's own answers, the explicit model, the collectors handed out.
#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "ExplicitModel/VOXAnalysisExplicitServices.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "VOXEAnalysisGroup.h"
#include "VOXSamGroupTools.h"
#include "Visualization/VOXIMSHVisuGrouper.h"
#include "tests/anyhost/AnyHost.h"

#include <tuple>

namespace anyhost
{
namespace
{

// A group that, without an object in the model, gathers one object that it is told.
class OneObjectGroup final : public VOXEAnalysisGroup
{
public:
  HRESULT GetDefinitionType(VOXUnicodeString& oDefinition) const override
  {
    oDefinition = "One object";
    return S_OK;
  }

  HRESULT GetValueKinds(int& oCount, const VOXSamValue*& oValues) const override
  {
    static const VOXSamValue kinds[] = {VOXSamValueNode, VOXSamValueElement};
    oCount = 2;
    oValues = kinds;
    return kindsResult;
  }

  HRESULT GetKeywords(VOXSamValue iValue, int& oCount, const VOXString*& oKeywords) const override
  {
    static const VOXString keywords[] = {"NODE", "EDGE", "FACE", "ELEMENT"};
    oCount = iValue == VOXSamValueNode ? 1 : 3;
    oKeywords = iValue == VOXSamValueNode ? keywords : keywords + 1;
    return S_OK;
  }

  HRESULT GetSupports(VOXListValVOXBaseUnknown_var& oSupports) const override
  {
    oSupports.RemoveAll();
    return S_OK;
  }

  HRESULT GetExplicitPointers(VOXSamValue, VOXString, int& oCount, VOXSamModelDataRoot**& oPointers,
                              int*&) const override
  {
    if (object == nullptr)
      return S_OK;
    oCount = 1;
    oPointers = new VOXSamModelDataRoot* [1] { object };
    return S_OK;
  }

  static inline HRESULT kindsResult = S_OK;
  static inline VOXSamModelDataRoot* object = nullptr;
};

class VisuGrouper final : public VOXIMSHVisuGrouper
{
public:
  void* GetVisuObject() override { return &shown; }
  static inline int shown = 0;
};

using Handles = std::vector<VOXAnalysisExplicitChild>;

class GroupOnAnyHost : public AnyHost
{
protected:
  GroupOnAnyHost()
  {
    EXPECT_GE((VOXExtendLateType<VOXISamGroup, OneObjectGroup>("GroupUnderTest")), S_OK);
    EXPECT_GE((VOXExtendLateType<VOXIMSHVisuGrouper, VisuGrouper>("MeshUnderTest")), S_OK);
    OneObjectGroup::kindsResult = S_OK;
    OneObjectGroup::object = nullptr;

    top = world->NewObject(NULL_exp, "ANALYSIS_MODEL");
    mesh = world->NewObject(top, "MESH");
    world->FillMesh(mesh, 5, 3);
    object = world->NewObject(top, "GROUP");
    feature = New("GroupUnderTest", "group");
    Link(feature, object);
  }

  void AddChild(const char* iType, VOXSamPosition iPosition, const std::vector<int>& iNumbers,
                const std::vector<int>& iSides = {})
  {
    world->SetApplyTo(world->NewObject(object, iType), iPosition, iNumbers, iSides);
  }

  // The content of one kind, with one reference for the caller.
  const VOXAnalysisEntityCollector* Content(VOXSamValue iValue, const char* iEntityType, HRESULT iExpected = S_OK)
  {
    const VOXAnalysisEntityCollector* collector = reinterpret_cast<const VOXAnalysisEntityCollector*>(this); // nonsense
    const VOXISamGroup_var spGroup(feature);
    EXPECT_EQ(spGroup->GetContent(iValue, iEntityType, collector), iExpected);
    return collector;
  }

  VOXAnalysisExplicitEntity top;
  VOXAnalysisExplicitEntity mesh;
  VOXAnalysisExplicitEntity object;
  VOXBaseUnknown* feature = nullptr;
};

TEST_F(GroupOnAnyHost, NodesComeFromTheChildOfTheKindAskedFor)
{
  AddChild("ELEMENT_GROUP", VOXSamPositionElement, {2});
  AddChild("NODE_GROUP", VOXSamPositionNode, {1, 4, 5});
  const VOXAnalysisEntityCollector* const content = Content(VOXSamValueNode, "NODE");
  ASSERT_NE(content, nullptr);
  EXPECT_EQ(EntitiesOf(*content), (Handles{world->Node(1), world->Node(4), world->Node(5)}));
  content->Release();
}

TEST_F(GroupOnAnyHost, FacesComeWithTheirSides)
{
  AddChild("FACE_GROUP", VOXSamPositionFace, {3, 1}, {2, 6});
  const VOXAnalysisEntityCollector* const content = Content(VOXSamValueElement, "FACE");
  ASSERT_NE(content, nullptr);
  EXPECT_EQ(EntitiesOf(*content), (Handles{world->Element(3), world->Element(1)}));
  int count = 0;
  VOXSamModelDataRoot* const* objects = nullptr;
  const int* sides = nullptr;
  content->GetEntities(count, objects, sides);
  ASSERT_NE(sides, nullptr);
  EXPECT_EQ(std::vector<int>(sides, sides + count), (std::vector<int>{2, 6}));
  content->Release();
}

TEST_F(GroupOnAnyHost, TheCollectorIsDefinedAttachedAndUnderTheGroupsObject)
{
  AddChild("NODE_GROUP", VOXSamPositionNode, {2});
  const VOXAnalysisEntityCollector* const content = Content(VOXSamValueNode, "NODE");
  ASSERT_NE(content, nullptr);
  VOXSamValue value = VOXSamValueNone;
  VOXString name;
  VOXAnalysisExplicitParent context;
  content->GetDefinition(value, name);
  content->GetContext(context);
  EXPECT_EQ(value, VOXSamValueNode);
  EXPECT_STREQ(name, "NODE");
  EXPECT_TRUE(context == object);
  EXPECT_TRUE(content->IsAttachedToModel());
  EXPECT_TRUE(content->IsUpToDate());
  content->Release();
}

TEST_F(GroupOnAnyHost, AnAttachedCollectorIsHandedOutAgainUntilTheModelChanges)
{
  AddChild("NODE_GROUP", VOXSamPositionNode, {2});
  const VOXAnalysisEntityCollector* const first = Content(VOXSamValueNode, "NODE");
  const VOXAnalysisEntityCollector* const second = Content(VOXSamValueNode, "NODE");
  EXPECT_EQ(first, second);
  world->Touch(object);
  EXPECT_FALSE(first->IsUpToDate());
  const VOXAnalysisEntityCollector* const third = Content(VOXSamValueNode, "NODE");
  EXPECT_NE(first, third);
  EXPECT_FALSE(first->IsAttachedToModel());
  EXPECT_EQ(EntitiesOf(*first), (Handles{world->Node(2)})); // the old one lives on for whoever has it
  first->Release();
  EXPECT_EQ(second->Release(), 0);
  third->Release();
}

TEST_F(GroupOnAnyHost, AGroupThatIsOutOfDateIsAskedItself)
{
  AddChild("NODE_GROUP", VOXSamPositionNode, {2});
  VOXSamModelDataRoot* pointers[1] = {};
  const VOXAnalysisEntityCollector* const known = Content(VOXSamValueNode, "NODE");
  int count = 0;
  VOXSamModelDataRoot* const* objects = nullptr;
  const int* sides = nullptr;
  known->GetEntities(count, objects, sides);
  pointers[0] = objects[0];
  known->Release();
  world->Touch(object);

  OneObjectGroup::object = pointers[0];
  SetUpToDate(feature, false);
  const VOXAnalysisEntityCollector* const content = Content(VOXSamValueNode, "NODE");
  ASSERT_NE(content, nullptr);
  EXPECT_EQ(EntitiesOf(*content), (Handles{world->Node(2)}));
  EXPECT_FALSE(content->IsAttachedToModel());
  EXPECT_EQ(content->Release(), 0);
}

TEST_F(GroupOnAnyHost, AGroupOfNothingHasNoCollector)
{
  EXPECT_EQ(Content(VOXSamValueNode, "NODE"), nullptr);
  EXPECT_TRUE(TakeReports().empty());
}

TEST_F(GroupOnAnyHost, AFailureOfTheFeatureIsReportedAndNothingIsHandedOut)
{
  OneObjectGroup::kindsResult = E_FAIL;
  EXPECT_EQ(Content(VOXSamValueNode, "NODE", E_FAIL), nullptr);
  ExpectFirstReport(VOXSamErrorPropagated, "", "VOXEAnalysisGroup");
  EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
  EXPECT_EQ(ErrorDepthHandler::_MustJump_, 1);
}

TEST_F(GroupOnAnyHost, AnUnknownKeywordIsReportedWithTheKeyword)
{
  int type = -1;
  EXPECT_EQ(VOXSamGroupTools::GetExplicitGroupType(world->Model(), VOXSamValueElement, "VOLUME", type), E_FAIL);
  EXPECT_EQ(type, VOXSamPhysicalTypeNone);
  ExpectFirstReport(VOXSamErrorKeyword, "VOLUME", "VOXSamGroupTools");
}

TEST_F(GroupOnAnyHost, EachFailureIsReportedAfresh)
{
  int type = -1;
  VOXSamGroupTools::GetExplicitGroupType(nullptr, VOXSamValueNode, "NODE", type);
  ExpectFirstReport(VOXSamErrorMissingObject, "iModel", "VOXSamGroupTools");
  OneObjectGroup::kindsResult = E_FAIL;
  Content(VOXSamValueNode, "NODE", E_FAIL);
  ExpectFirstReport(VOXSamErrorPropagated, "", "VOXEAnalysisGroup");
}

TEST_F(GroupOnAnyHost, GroupTypesAreThoseOfTheRules)
{
  for (const auto& [value, keyword, name] :
       {std::tuple{VOXSamValueNode, "NODE", "NODE_GROUP"}, std::tuple{VOXSamValueElement, "EDGE", "EDGE_GROUP"},
        std::tuple{VOXSamValueElement, "FACE", "FACE_GROUP"},
        std::tuple{VOXSamValueElement, "ELEMENT", "ELEMENT_GROUP"}})
  {
    int expected = -1;
    int found = -2;
    EXPECT_EQ(world->Model()->GetRulesData()->GetPhysicalTypeNumber(name, expected), S_OK);
    EXPECT_EQ(VOXSamGroupTools::GetExplicitGroupType(world->Model(), value, keyword, found), S_OK);
    EXPECT_EQ(found, expected) << name;
  }
}

TEST_F(GroupOnAnyHost, AMeshOfAMeshSetIsStampedWithItsIdentifierAndVisualisation)
{
  VOXBaseUnknown* const part = New("MeshUnderTest", "part");
  Hold(New("MSHSetContainer", "meshes"), part);
  const VOXISpecObject_var spPart(part);
  VOXAnalysisExplicitParent nothing;
  VOXSamGroupTools::MakeReadyForVisu(spPart, nothing, object);
  EXPECT_EQ(world->MakerOf(object).kind, 1);
  EXPECT_EQ(world->MakerOf(object).identifier, VOXGetUniqueIdentifier(spPart));
  void* pointer = nullptr;
  EXPECT_EQ(VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity(object, pointer), S_OK);
  EXPECT_EQ(pointer, &VisuGrouper::shown);
}

TEST_F(GroupOnAnyHost, AFeatureElsewhereIsStampedAsAnyOtherWithTheSourcesPointer)
{
  VOXAnalysisExplicitEntity source = world->NewObject(object, "NODE_GROUP");
  VOXAnalysisExplicitServices::SetFeaturePointerForSetOrEntity(source, this);
  VOXSamGroupTools::MakeReadyForVisu(VOXISpecObject_var(feature), source, object);
  EXPECT_EQ(world->MakerOf(object).kind, 2);
  void* pointer = nullptr;
  VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity(object, pointer);
  EXPECT_EQ(pointer, this);
}

} // namespace
} // namespace anyhost
