// SPDX-License-Identifier: MIT
#pragma once
#include "host/ExplicitModel/MeshData.h"
#include "host/ExplicitModel/ModelObject.h"
#include "voxbench/readers/NeutralModel.h"

namespace voxbench
{

//! Hands the mesh of the records over as arrays of the explicit model. Nothing is copied: the tables of ioRecords are
//! empty afterwards.
voxhost::MeshData TakeMesh(NeutralModel& ioRecords);

//! Turns members by id into what an entity of the model applies to. Members that are not in the mesh are left out.
class MeshPlaces
{
public:
  explicit MeshPlaces(const voxhost::MeshData& iMesh) : _Mesh(iMesh) {}

  //! Whole nodes or elements. @param ioIds ascending; taken over and turned into places where it stands.
  voxhost::ApplyTo OfNodes(Column<std::int32_t> ioIds) const;
  voxhost::ApplyTo OfElements(Column<std::int32_t> ioIds) const;

  //! The sides of elements, or the nodes of a node surface. @param ioSurface its members are taken.
  voxhost::ApplyTo OfSurface(Surface& ioSurface) const;

private:
  const voxhost::MeshData& _Mesh;
};

//! Gathers what an entity applies to when it names several sets, or ids.
class ApplyToUnion
{
public:
  explicit ApplyToUnion(const voxhost::MeshData& iMesh) : _Mesh(iMesh) {}

  void Add(const voxhost::ApplyTo& iPart) { _Parts.push_back(iPart); }
  void AddNode(std::int32_t iId);
  void AddElement(std::int32_t iId);

  //! The union: each entity once, ascending. A single part is shared, not copied. Where sides and whole elements meet,
  //! whole elements are meant; nodes and elements do not mix: the first part tells.
  voxhost::ApplyTo Take();

private:
  voxhost::ApplyTo Merged() const;

  const voxhost::MeshData& _Mesh;
  std::vector<voxhost::ApplyTo> _Parts;
  std::vector<std::uint32_t> _Nodes;
  std::vector<std::uint32_t> _Elements;
};

} // namespace voxbench
