// SPDX-License-Identifier: MIT
#include "voxbench/build/SideNodes.h"

#include <algorithm>
#include <array>

namespace voxbench
{
namespace
{

using Face = std::array<int, 4>; // corners from 1; 0 for none
using Edge = std::array<int, 2>; // corners from 1

//! The faces of a shape in the order of a deck, and the edges in the order of their middle nodes.
struct Solid
{
  std::span<const Face> faces;
  std::span<const Edge> edges;
};

constexpr Face kHexahedronFaces[] = {{1, 2, 3, 4}, {5, 8, 7, 6}, {1, 5, 6, 2},
                                     {2, 6, 7, 3}, {3, 7, 8, 4}, {4, 8, 5, 1}};
constexpr Edge kHexahedronEdges[] = {{1, 2}, {2, 3}, {3, 4}, {4, 1}, {5, 6}, {6, 7},
                                     {7, 8}, {8, 5}, {1, 5}, {2, 6}, {3, 7}, {4, 8}};
constexpr Face kTetrahedronFaces[] = {{1, 2, 3}, {1, 4, 2}, {2, 4, 3}, {3, 4, 1}};
constexpr Edge kTetrahedronEdges[] = {{1, 2}, {2, 3}, {3, 1}, {1, 4}, {2, 4}, {3, 4}};
constexpr Face kWedgeFaces[] = {{1, 2, 3}, {4, 5, 6}, {1, 2, 5, 4}, {2, 3, 6, 5}, {3, 1, 4, 6}};
constexpr Edge kWedgeEdges[] = {{1, 2}, {2, 3}, {3, 1}, {4, 5}, {5, 6}, {6, 4}, {1, 4}, {2, 5}, {3, 6}};

Solid SolidOf(ElementShape iShape)
{
  switch (iShape)
  {
  case ElementShape::Hexahedron:
    return {kHexahedronFaces, kHexahedronEdges};
  case ElementShape::Tetrahedron:
    return {kTetrahedronFaces, kTetrahedronEdges};
  case ElementShape::Wedge:
    return {kWedgeFaces, kWedgeEdges};
  default:
    return {};
  }
}

} // namespace

std::vector<std::int32_t> NodesOfSide(const ElementType& iType, std::span<const std::int32_t> iNodes, int iSide)
{
  const Solid solid = SolidOf(iType.shape);
  const auto corners = static_cast<std::size_t>(std::max<int>(iType.cornerCount, 0));
  if (iSide < 1 || iSide > static_cast<int>(solid.faces.size()) || iNodes.size() < corners)
    return {};
  const Face& face = solid.faces[static_cast<std::size_t>(iSide - 1)];
  const auto isOnFace = [&face](int iCorner) { return std::find(face.begin(), face.end(), iCorner) != face.end(); };
  std::vector<std::int32_t> nodes;
  for (const int corner : face)
    if (corner > 0)
      nodes.push_back(iNodes[static_cast<std::size_t>(corner - 1)]);
  const std::size_t middles = std::min(iNodes.size() - corners, solid.edges.size());
  for (std::size_t edge = 0; edge < middles; ++edge)
    if (isOnFace(solid.edges[edge][0]) && isOnFace(solid.edges[edge][1]))
      nodes.push_back(iNodes[corners + edge]);
  return nodes;
}

} // namespace voxbench
