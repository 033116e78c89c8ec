// SPDX-License-Identifier: MIT
#include "tests/adaptors/GroupWorld.h"

#include "tests/support/Torture.h"

namespace voxtest
{
namespace
{

voxhost::MeshData SmallMesh()
{
  voxhost::MeshData mesh;
  mesh.nodeIds = voxhost::SharedArray<std::int32_t>({1, 2, 3, 4});
  mesh.coordinates = voxhost::SharedArray<double>(std::vector<double>(12, 0.));
  mesh.elementIds = voxhost::SharedArray<std::int32_t>({10, 20});
  mesh.elementTypes = voxhost::SharedArray<std::uint16_t>({0, 0});
  mesh.offsets = voxhost::SharedArray<std::uint32_t>({0, 3, 6});
  mesh.connectivity = voxhost::SharedArray<std::int32_t>({1, 2, 3, 2, 3, 4});
  return mesh;
}

} // namespace

GroupWorld::GroupWorld() : _Feature(_Bench.Component<ScriptedGroup, ScriptedExplicit, ScriptedSpecObject>())
{
  const VOXAnalysisExplicitEntity root = _Model.Create(NULL_exp, "ANALYSIS_MODEL", "model");
  const VOXAnalysisExplicitEntity mesh = _Model.Create(root, "MESH", "mesh");
  _Model.SetMesh(mesh, SmallMesh());
  _Entity = _Model.Create(root, "GROUP", "group");
  _Child = AddChild("NODE_GROUP", VOXSamPositionNode, {1, 3});
  Explicit().model = &_Model;
  Explicit().parent = _Entity;
  _Group = VOXISamGroup_var(_Feature);
}

VOXAnalysisExplicitEntity GroupWorld::AddChild(const char* iPhysicalType, VOXSamPosition iPosition,
                                               std::vector<std::uint32_t> iPlaces, std::vector<std::uint8_t> iSides)
{
  const VOXAnalysisExplicitEntity child = _Model.Create(_Entity, iPhysicalType, iPhysicalType);
  voxhost::ApplyTo applyTo;
  applyTo.position = iPosition;
  applyTo.places = voxhost::SharedArray<std::uint32_t>(std::move(iPlaces));
  if (!iSides.empty())
    applyTo.sides = voxhost::SharedArray<std::uint8_t>(std::move(iSides));
  _Model.SetApplyTo(child, std::move(applyTo));
  return child;
}

VOXAnalysisEntityCollector* GroupWorld::Attach(VOXSamValue iValue, const char* iEntityType,
                                               const std::vector<VOXSamModelDataRoot*>& iObjects)
{
  VOXAnalysisEntityCollector* const collector = new VOXAnalysisEntityCollector;
  collector->SetContext(_Entity, 1);
  collector->SetDefinition(iValue, iEntityType);
  collector->SetExplicitPointers(static_cast<int>(iObjects.size()), iObjects.data(), nullptr);
  collector->SetAttachedToModel(1, nullptr, 0);
  return collector;
}

VOXAnalysisEntityCollector* GroupWorld::Attached(VOXSamValue iValue, const char* iEntityType) const
{
  VOXAnalysisEntityCollector* collector = nullptr;
  _Entity.FindEntityCollector(iValue, iEntityType, collector);
  return collector;
}

Content::Content(const GroupWorld& iWorld, VOXSamValue iValue, const char* iEntityType)
    : _Collector(Poison<const VOXAnalysisEntityCollector>())
{
  _Result = iWorld.Group()->GetContent(iValue, iEntityType, _Collector);
}

void Content::GiveBack()
{
  if (_Collector != nullptr)
    _Collector->Release();
  _Collector = nullptr;
}

std::vector<VOXSamModelDataRoot*> ObjectsOf(const VOXAnalysisEntityCollector& iCollector)
{
  int count = 0;
  VOXSamModelDataRoot* const* objects = nullptr;
  const int* indices = nullptr;
  iCollector.GetEntities(count, objects, indices);
  return {objects, objects + count};
}

std::vector<VOXSamModelDataRoot*> Content::Objects() const
{
  return _Collector == nullptr ? std::vector<VOXSamModelDataRoot*>() : ObjectsOf(*_Collector);
}

std::vector<int> Content::Indices() const
{
  int count = 0;
  VOXSamModelDataRoot* const* objects = nullptr;
  const int* indices = nullptr;
  _Collector->GetEntities(count, objects, indices);
  return indices == nullptr ? std::vector<int>() : std::vector<int>(indices, indices + count);
}

int Content::References() const
{
  _Collector->AddRef();
  return _Collector->Release();
}

} // namespace voxtest
