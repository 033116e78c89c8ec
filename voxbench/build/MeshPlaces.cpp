// SPDX-License-Identifier: MIT
#include "voxbench/build/MeshPlaces.h"

#include <algorithm>
#include <memory>

namespace voxbench
{
namespace
{

using voxhost::ApplyTo;
using voxhost::SharedArray;

template <class T>
SharedArray<T> Share(Column<T>& ioColumn)
{
  auto owner = std::make_shared<Column<T>>(std::move(ioColumn));
  const T* const data = owner->data();
  const std::size_t size = owner->size();
  return SharedArray<T>(data, size, std::move(owner));
}

bool HasNoHoles(const SharedArray<std::int32_t>& iIds)
{
  return iIds.empty() || static_cast<std::size_t>(iIds[iIds.size() - 1] - iIds[0]) + 1 == iIds.size();
}

//! Overwrites ids with the places of those that exist. @param ioSides moves with the ids; may be null.
void TurnIntoPlaces(const SharedArray<std::int32_t>& iIds, Column<std::int32_t>& ioIds, Column<std::uint8_t>* ioSides)
{
  if (iIds.empty())
    return ioIds.Truncate(0);
  const bool allExist = !ioIds.empty() && *std::min_element(ioIds.begin(), ioIds.end()) >= iIds[0] &&
                        *std::max_element(ioIds.begin(), ioIds.end()) <= iIds[iIds.size() - 1];
  if (HasNoHoles(iIds) && allExist)
  {
    for (std::int32_t& id : ioIds)
      id -= iIds[0];
    return;
  }
  std::size_t kept = 0;
  for (std::size_t row = 0; row < ioIds.size(); ++row)
  {
    const std::int64_t place = PlaceOfId(iIds, ioIds[row]);
    if (place < 0)
      continue;
    ioIds[kept] = static_cast<std::int32_t>(place);
    if (ioSides != nullptr)
      (*ioSides)[kept] = (*ioSides)[row];
    ++kept;
  }
  ioIds.Truncate(kept);
  if (ioSides != nullptr)
    ioSides->Truncate(kept);
}

//! Places are ids that were overwritten: the same memory, read as unsigned numbers.
SharedArray<std::uint32_t> SharePlaces(Column<std::int32_t>& ioPlaces)
{
  ioPlaces.ReleaseSlack();
  const SharedArray<std::int32_t> shared = Share(ioPlaces);
  const auto* const data = reinterpret_cast<const std::uint32_t*>(shared.data());
  const std::size_t size = shared.size();
  return SharedArray<std::uint32_t>(data, size, std::make_shared<SharedArray<std::int32_t>>(shared));
}

VOXSamPosition PositionOf(SurfaceKind iKind)
{
  switch (iKind)
  {
  case SurfaceKind::Face:
    return VOXSamPositionFace;
  case SurfaceKind::Edge:
    return VOXSamPositionEdge;
  case SurfaceKind::Node:
    break;
  }
  return VOXSamPositionNode;
}

} // namespace

voxhost::MeshData TakeMesh(NeutralModel& ioRecords)
{
  voxhost::MeshData mesh;
  mesh.nodeIds = Share(ioRecords.nodes.ids);
  mesh.coordinates = Share(ioRecords.nodes.xyz);
  mesh.elementIds = Share(ioRecords.elements.ids);
  mesh.elementTypes = Share(ioRecords.elements.types);
  mesh.offsets = Share(ioRecords.elements.offsets);
  mesh.connectivity = Share(ioRecords.elements.nodes);
  return mesh;
}

ApplyTo MeshPlaces::OfNodes(Column<std::int32_t> ioIds) const
{
  TurnIntoPlaces(_Mesh.nodeIds, ioIds, nullptr);
  return {VOXSamPositionNode, SharePlaces(ioIds), {}};
}

ApplyTo MeshPlaces::OfElements(Column<std::int32_t> ioIds) const
{
  TurnIntoPlaces(_Mesh.elementIds, ioIds, nullptr);
  return {VOXSamPositionElement, SharePlaces(ioIds), {}};
}

ApplyTo MeshPlaces::OfSurface(Surface& ioSurface) const
{
  if (ioSurface.kind == SurfaceKind::Node)
    return OfNodes(std::move(ioSurface.members));
  TurnIntoPlaces(_Mesh.elementIds, ioSurface.members, &ioSurface.sides);
  return {PositionOf(ioSurface.kind), SharePlaces(ioSurface.members), Share(ioSurface.sides)};
}

void ApplyToUnion::AddNode(std::int32_t iId)
{
  if (const std::int64_t place = PlaceOfId(_Mesh.nodeIds, iId); place >= 0)
    _Nodes.push_back(static_cast<std::uint32_t>(place));
}

void ApplyToUnion::AddElement(std::int32_t iId)
{
  if (const std::int64_t place = PlaceOfId(_Mesh.elementIds, iId); place >= 0)
    _Elements.push_back(static_cast<std::uint32_t>(place));
}

ApplyTo ApplyToUnion::Take()
{
  if (_Parts.size() == 1 && _Nodes.empty() && _Elements.empty())
    return _Parts.front();
  if (!_Nodes.empty())
    Add({VOXSamPositionNode, SharedArray<std::uint32_t>(std::move(_Nodes)), {}});
  if (!_Elements.empty())
    Add({VOXSamPositionElement, SharedArray<std::uint32_t>(std::move(_Elements)), {}});
  return _Parts.empty() ? ApplyTo{} : Merged();
}

ApplyTo ApplyToUnion::Merged() const
{
  const VOXSamPosition first = _Parts.front().position;
  const bool onNodes = first == VOXSamPositionNode;
  const bool alike =
      std::all_of(_Parts.begin(), _Parts.end(), [first](const ApplyTo& iPart) { return iPart.position == first; });
  const bool withSides = alike && (first == VOXSamPositionFace || first == VOXSamPositionEdge);

  std::vector<std::pair<std::uint32_t, std::uint8_t>> all;
  for (const ApplyTo& part : _Parts)
  {
    if ((part.position == VOXSamPositionNode) != onNodes)
      continue;
    for (std::size_t row = 0; row < part.places.size(); ++row)
      all.emplace_back(part.places[row], withSides ? part.sides[row] : std::uint8_t{0});
  }
  std::sort(all.begin(), all.end());
  all.erase(std::unique(all.begin(), all.end()), all.end());

  std::vector<std::uint32_t> places;
  std::vector<std::uint8_t> sides;
  places.reserve(all.size());
  for (const auto& [place, side] : all)
  {
    places.push_back(place);
    if (withSides)
      sides.push_back(side);
  }
  return {alike ? first : VOXSamPositionElement, SharedArray<std::uint32_t>(std::move(places)),
          SharedArray<std::uint8_t>(std::move(sides))};
}

} // namespace voxbench
