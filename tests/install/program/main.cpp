// SPDX-License-Identifier: MIT
// A program of somebody else: a feature type of its own on the adaptors and the reference host, asked as a host asks.
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "VOXEAnalysisGroup.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/FeatureModeler/Document.h"

#include <cstdio>

namespace
{

//! A group that gathers the first node of the mesh; its entities follow from the feature alone.
class FirstNode final : public VOXEAnalysisGroup
{
public:
  HRESULT GetDefinitionType(VOXUnicodeString& oDefinition) const override
  {
    oDefinition = "First node";
    return S_OK;
  }

  HRESULT GetValueKinds(int& oCount, const VOXSamValue*& oValues) const override
  {
    static const VOXSamValue nodes = VOXSamValueNode;
    oCount = 1;
    oValues = &nodes;
    return S_OK;
  }

  HRESULT GetKeywords(VOXSamValue iValue, int& oCount, const VOXString*& oKeywords) const override
  {
    static const VOXString keyword("NODE");
    oCount = iValue == VOXSamValueNode ? 1 : 0;
    oKeywords = &keyword;
    return S_OK;
  }

  HRESULT GetSupports(VOXListValVOXBaseUnknown_var& oSupports) const override
  {
    oSupports = VOXListValVOXBaseUnknown_var();
    return S_OK;
  }

  HRESULT GetExplicitPointers(VOXSamValue, VOXString, int& oCount, VOXSamModelDataRoot**& oPointers,
                              int*& oIndices) const override
  {
    oCount = 1;
    oPointers = new VOXSamModelDataRoot* [1] { VOXExplicitAccess::Object(model->FindNode(7)) };
    oIndices = nullptr;
    return S_OK;
  }

  static inline const voxhost::ExplicitModel* model = nullptr;
};

int NumberOfEntities(const VOXISamGroup& iGroup)
{
  const VOXAnalysisEntityCollector* pCollector = nullptr;
  if (FAILED(iGroup.GetContent(VOXSamValueNode, "NODE", pCollector)) || pCollector == nullptr)
    return -1;
  int count = -1;
  pCollector->GetNbEntities(count);
  pCollector->Release();
  return count;
}

} // namespace

int main()
{
  voxhost::ExplicitModel model;
  FirstNode::model = &model;
  voxhost::MeshData mesh;
  mesh.nodeIds = voxhost::SharedArray<std::int32_t>({7, 8});
  mesh.coordinates = voxhost::SharedArray<double>(std::vector<double>(6, 0.));
  mesh.offsets = voxhost::SharedArray<std::uint32_t>(std::vector<std::uint32_t>{0});
  const VOXAnalysisExplicitEntity root = model.Create(NULL_exp, "ANALYSIS_MODEL", "model");
  model.SetMesh(model.Create(root, "MESH", "mesh"), mesh);
  int tag = 0;
  model.Create(root, "GROUP", "group").GetTag(tag);

  const auto types = std::make_shared<voxhost::TypeCatalogue>();
  types->Declare(voxhost::AnalysisTypes());
  types->Declare({.name = "FirstNodeGroup", .base = "AnalysisEntity", .physicalType = "GROUP"});
  VOXExtendLateType<VOXISamGroup, FirstNode>("FirstNodeGroup");
  voxhost::Document document(types);
  document.SetExplicitModel(&model);
  voxhost::Feature* const feature = document.New("FirstNodeGroup", "group");
  feature->Set("ExplicitTag", tag);

  const VOXISamGroup_var spGroup(static_cast<VOXBaseUnknown*>(feature));
  const int count = !spGroup ? -1 : NumberOfEntities(*spGroup);
  std::printf("the group has %d node\n", count);
  return count == 1 ? 0 : 1;
}
