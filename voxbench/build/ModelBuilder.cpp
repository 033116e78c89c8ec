// SPDX-License-Identifier: MIT
#include "voxbench/build/ModelBuilder.h"
#include "VOXSamGroupTools.h"
#include "voxbench/build/EntityNames.h"
#include "voxbench/build/NamesInUse.h"
#include "voxbench/features/TypeNames.h"

#include <new>

namespace voxbench
{

ModelBuilder::ModelBuilder(NeutralModel& ioRecords, voxhost::Document& ioDocument, voxhost::ExplicitModel& ioModel)
    : _Records(ioRecords),
      _Document(ioDocument),
      _Model(ioModel)
{
}

voxhost::Feature* ModelBuilder::Build()
{
  _NamesInUse = NamesInUse(_Records);
  const std::string title = _Records.title.empty() ? "" : _Records.title.front();
  _Root = Make({}, {"AnalysisModel", "ANALYSIS_MODEL", "Analysis model", title});
  BuildMesh();
  BuildGroups();
  BuildMaterials();
  BuildAxes();
  BuildProperties();
  BuildRestraints();
  BuildLoads();
  BuildModulations();
  BuildSensors();
  BuildConnections();
  if (_Failure.empty() && FAILED(_Document.UpdateAll()))
    _Failure = "the document cannot be brought up to date";
  return _Root.feature;
}

ModelBuilder::Pair ModelBuilder::Make(const Pair& iParent, const Plan& iPlan)
{
  Pair made{_Document.New(iPlan.type, iPlan.name.c_str()), {}};
  if (made.feature == nullptr)
    throw std::bad_alloc();
  if (!iPlan.alias.empty())
    made.feature->Set("Alias", iPlan.alias);
  if (iParent.feature != nullptr)
    iParent.feature->Add("SonsList", *made.feature);
  made.object = _Model.Create(iParent.object, iPlan.physicalType, iPlan.alias.empty() ? iPlan.name : iPlan.alias);
  if (made.feature->PhysicalType() != iPlan.physicalType)
    made.feature->SetPhysicalType(iPlan.physicalType);
  int tag = 0;
  if (SUCCEEDED(made.object.GetTag(tag)))
    made.feature->Set("ExplicitTag", tag);
  return made;
}

ModelBuilder::Pair ModelBuilder::MakeSet(const char* iType, const char* iPhysicalType, const char* iName)
{
  return Make(_Root, {iType, iPhysicalType, iName, ""});
}

void ModelBuilder::BuildMesh()
{
  const Pair meshSet = Make(_Root, {"MSHSetContainer", "MESH_SET", "Mesh set", ""});
  _Mesh = Make(meshSet, {"MSHPart", "MESH", "Mesh", ""});
  if (!_Model.SetMesh(_Mesh.object, TakeMesh(_Records)))
    _Failure = "the mesh has more nodes or elements than a model can hold: split the file";
}

void ModelBuilder::BuildGroups()
{
  _GroupSet = MakeSet("GroupSet", "GROUP_SET", "Groups");
  const MeshPlaces places(_Model.Mesh());
  for (NamedSet& set : _Records.nodeSets)
    BuildGroup(kNodeGroupType, kNodeKind, "node set", set.name, places.OfNodes(std::move(set.members)), _NodeGroups);
  for (NamedSet& set : _Records.elementSets)
    BuildGroup(kElementGroupType, kElementKind, "element set", set.name, places.OfElements(std::move(set.members)),
               _ElementGroups);
  for (Surface& surface : _Records.surfaces)
    BuildSurface(surface);
}

void ModelBuilder::BuildSurface(Surface& ioSurface)
{
  const char* const definition = DefinitionOf(ioSurface.kind);
  voxhost::ApplyTo members = MeshPlaces(_Model.Mesh()).OfSurface(ioSurface);
  switch (ioSurface.kind)
  {
  case SurfaceKind::Face:
    return BuildGroup(kFaceGroupType, kFaceKind, definition, ioSurface.name, std::move(members), _Surfaces);
  case SurfaceKind::Edge:
    return BuildGroup(kEdgeGroupType, kEdgeKind, definition, ioSurface.name, std::move(members), _Surfaces);
  case SurfaceKind::Node:
    return BuildGroup(kNodeGroupType, kNodeKind, definition, ioSurface.name, std::move(members), _NodeSurfaces);
  }
}

void ModelBuilder::BuildGroup(const char* iType, const GroupKind& iKind, const char* iDefinition,
                              const std::string& iName, voxhost::ApplyTo iMembers, NamedGroups& ioIndex)
{
  Pair group = Make(_GroupSet, {iType, "GROUP", NextName("GROUP"), iName});
  group.feature->Set("Definition", std::string(iDefinition));
  if (_NamesInUse.contains(iName))
    group.feature->Set("NamedElsewhere", std::int32_t{1});
  group.feature->Add("Supports", *_Mesh.feature);
  VOXAnalysisExplicitParent noSource;
  VOXSamGroupTools::MakeReadyForVisu(group.feature, noSource, group.object);

  const VOXAnalysisExplicitEntity members = _Model.Create(group.object, iKind.physicalType, iName);
  ioIndex.try_emplace(iName, NamedGroup{group.feature, iMembers});
  _Model.SetApplyTo(members, std::move(iMembers));
}

std::string ModelBuilder::NextName(const std::string& iKeyword)
{
  return iKeyword + "." + std::to_string(++_Numbers[iKeyword]);
}

} // namespace voxbench
