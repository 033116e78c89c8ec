// SPDX-License-Identifier: MIT
#include "voxbench/build/SideNodes.h"

#include <gmock/gmock.h>
#include <numeric>

using testing::IsEmpty;
using testing::UnorderedElementsAre;
using voxbench::ElementFamily;
using voxbench::ElementShape;

namespace
{

//! Nodes of a side of an element whose nodes are numbered as they come.
std::vector<std::int32_t> Side(ElementShape iShape, std::int8_t iCorners, int iNodes, int iSide)
{
  std::vector<std::int32_t> nodes(static_cast<std::size_t>(iNodes));
  std::iota(nodes.begin(), nodes.end(), 1);
  return voxbench::NodesOfSide({"", iNodes, 3, 1, iCorners, ElementFamily::Solid, iShape}, nodes, iSide);
}

} // namespace

TEST(SideNodes, AFaceOfALinearSolidHasItsCorners)
{
  EXPECT_THAT(Side(ElementShape::Hexahedron, 8, 8, 4), UnorderedElementsAre(2, 6, 7, 3));
  EXPECT_THAT(Side(ElementShape::Tetrahedron, 4, 4, 4), UnorderedElementsAre(3, 4, 1));
  EXPECT_THAT(Side(ElementShape::Wedge, 6, 6, 2), UnorderedElementsAre(4, 5, 6));
  EXPECT_THAT(Side(ElementShape::Wedge, 6, 6, 5), UnorderedElementsAre(3, 1, 4, 6));
}

TEST(SideNodes, AFaceOfAQuadraticSolidHasTheMiddleNodesOfItsEdgesToo)
{
  EXPECT_THAT(Side(ElementShape::Hexahedron, 8, 20, 4), UnorderedElementsAre(2, 6, 7, 3, 10, 14, 18, 19));
  EXPECT_THAT(Side(ElementShape::Tetrahedron, 4, 10, 3), UnorderedElementsAre(2, 4, 3, 6, 9, 10));
  EXPECT_THAT(Side(ElementShape::Wedge, 6, 15, 3), UnorderedElementsAre(1, 2, 5, 4, 7, 10, 13, 14));
}

TEST(SideNodes, ASideThatIsNoFaceOfASolidHasNone)
{
  EXPECT_THAT(Side(ElementShape::Tetrahedron, 4, 4, 5), IsEmpty());
  EXPECT_THAT(Side(ElementShape::Hexahedron, 8, 8, 0), IsEmpty());
  EXPECT_THAT(Side(ElementShape::Quadrangle, 4, 4, 1), IsEmpty());
  EXPECT_THAT(Side(ElementShape::Hexahedron, 8, 5, 1), IsEmpty());
}
