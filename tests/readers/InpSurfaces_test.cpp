// SPDX-License-Identifier: MIT
#include "InpBench.h"

namespace voxbench
{

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{
// Elements 1, 2: C3D8; 11: S4; 12: M3D3; 21: CPS4; 22: CPE3; 23: CAX4; 31: B31; 41: C3D4. Sets of the same first digit.
std::string Mixed()
{
  return NodesUpTo(8) +
         "*ELEMENT, TYPE=C3D8, ELSET=BRICKS\n1,1,2,3,4,5,6,7,8\n2,1,2,3,4,5,6,7,8\n"
         "*ELEMENT, TYPE=S4, ELSET=SHELLS\n11,1,2,3,4\n*ELEMENT, TYPE=M3D3, ELSET=SHELLS\n12,1,2,3\n"
         "*ELEMENT, TYPE=CPS4, ELSET=PLANES\n21,1,2,3,4\n*ELEMENT, TYPE=CPE3, ELSET=PLANES\n22,1,2,3\n"
         "*ELEMENT, TYPE=CAX4, ELSET=PLANES\n23,1,2,3,4\n*ELEMENT, TYPE=B31\n31,1,2\n*ELEMENT, TYPE=C3D4\n41,1,2,3,4\n";
}
} // namespace

TEST(InpSurfaces, FacesAreGivenByElementOrSet)
{
  InpBench bench;
  bench.Read(Mixed() + "*SURFACE, NAME=A\nBRICKS, S3\n1, s1\n2, S6\n2, S6\n");

  EXPECT_THAT(Sides(bench.model.FindSurface("A")), ElementsAre("1.1", "1.3", "2.3", "2.6"));
  EXPECT_EQ(bench.model.FindSurface("A")->kind, SurfaceKind::Face);
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpSurfaces, NodeSurfacesTakeNodesAndNodeSets)
{
  InpBench bench;
  bench.Read(Mixed() + "*SURFACE, TYPE=NODE, NAME=A\n5,\nLATE\n2\n*NSET, NSET=LATE\n7, 2\n");

  EXPECT_THAT(Sides(bench.model.FindSurface("A")), ElementsAre("2.0", "5.0", "7.0"));
  EXPECT_EQ(bench.model.FindSurface("A")->kind, SurfaceKind::Node);
}

TEST(InpSurfaces, SidesOfPlaneElementsAreEdges)
{
  InpBench bench;
  bench.Read(Mixed() + "*SURFACE, NAME=A, TYPE=ELEMENT\nPLANES, S2\n21, S4\n");

  EXPECT_THAT(Sides(bench.model.FindSurface("A")), ElementsAre("21.2", "21.4", "22.2", "23.2"));
  EXPECT_EQ(bench.model.FindSurface("A")->kind, SurfaceKind::Edge);
}

TEST(InpSurfaces, TheAreaOfAPlaneElementIsFace5Or6)
{
  InpBench bench;
  bench.Read(Mixed() + "*SURFACE, NAME=A\n21, N\n22, P\n");

  EXPECT_THAT(Sides(bench.model.FindSurface("A")), ElementsAre("21.5", "22.6"));
  EXPECT_EQ(bench.model.FindSurface("A")->kind, SurfaceKind::Face);
}

TEST(InpSurfaces, BothSidesOfAShellAreFaces1And2)
{
  InpBench bench;
  bench.Read(Mixed() + "*SURFACE, NAME=A\nSHELLS, SPOS\n11, SNEG\n*SURFACE, NAME=B\n11, S1\n11, S2\n");

  EXPECT_THAT(Sides(bench.model.FindSurface("A")), ElementsAre("11.1", "11.2", "12.2"));
  EXPECT_EQ(bench.model.FindSurface("A")->kind, SurfaceKind::Face);
  EXPECT_THAT(Sides(bench.model.FindSurface("B")), ElementsAre("11.1", "11.2"));
}

TEST(InpSurfaces, ShellSidesFrom3OnAreEdges)
{
  InpBench bench;
  bench.Read(Mixed() + "*SURFACE, NAME=A\n11, S3\n11, S6\n12, S5\n");

  EXPECT_THAT(Sides(bench.model.FindSurface("A")), ElementsAre("11.3", "11.6", "12.5"));
  EXPECT_EQ(bench.model.FindSurface("A")->kind, SurfaceKind::Edge);
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpSurfaces, OneFaceMakesASurfaceOfFaces)
{
  InpBench bench;
  bench.Read(Mixed() + "*SURFACE, NAME=A\n11, S3\n21, S1\n1, S1\n");

  EXPECT_EQ(bench.model.FindSurface("A")->kind, SurfaceKind::Face);
}

TEST(InpSurfaces, ASurfaceInPiecesIsOneAndMayShareItsNameWithASet)
{
  InpBench bench;
  bench.Read(Mixed() + "*SURFACE, NAME=BRICKS\n2, S1\n*NSET, NSET=N\n1\n*SURFACE, NAME=BRICKS\n1, S2\n");

  EXPECT_EQ(bench.model.surfaces.size(), 1u);
  EXPECT_THAT(Sides(bench.model.FindSurface("BRICKS")), ElementsAre("1.2", "2.1"));
  EXPECT_EQ(Members(bench.model.FindElementSet("BRICKS")), (std::vector<int>{1, 2}));
}

TEST(InpSurfaces, ANodeSurfaceAndAnElementSurfaceOfOneNameAreTwo)
{
  InpBench bench;
  bench.Read(Mixed() + "*SURFACE, NAME=A\n1, S1\n*SURFACE, NAME=A, TYPE=NODE\n3\n");

  ASSERT_EQ(bench.model.surfaces.size(), 2u);
  EXPECT_EQ(bench.model.surfaces[0].kind, SurfaceKind::Face);
  EXPECT_EQ(bench.model.surfaces[1].kind, SurfaceKind::Node);
}

TEST(InpSurfaces, ElementsMayBeDefinedAfterTheSurface)
{
  InpBench bench;
  bench.Read("*SURFACE, NAME=A\nE, S1\n5, S2\n" + NodesUpTo(4) + "*ELEMENT, TYPE=C3D4, ELSET=E\n5, 1, 2, 3, 4\n");

  EXPECT_THAT(Sides(bench.model.FindSurface("A")), ElementsAre("5.1", "5.2"));
}

TEST(InpSurfaces, WhatCannotBeUsedIsReported)
{
  InpBench bench;
  const std::string start = Mixed();
  const auto line = std::to_string(std::count(start.begin(), start.end(), '\n') + 1) + " ";
  bench.Read(start + "*SURFACE, NAME=A\n1\n1, X9\n99, S1\nNOWHERE, S1\n1, SPOS\n0, S1\n41, S6\n");

  EXPECT_THAT(Sides(bench.model.FindSurface("A")), ElementsAre("41.6"));
  ASSERT_EQ(bench.Findings().size(), 7u);
  EXPECT_THAT(bench.Findings()[0], testing::HasSubstr("\"\" names no side (S1 to S6, SNEG, SPOS, N, P)"));
  EXPECT_THAT(bench.Findings()[1], testing::HasSubstr("\"X9\" names no side"));
  EXPECT_THAT(bench.Findings()[2], testing::HasSubstr("\"0\" is no element number"));
  EXPECT_THAT(bench.Findings()[3], testing::HasSubstr("A names NOWHERE, which is neither a number nor an element set"));
  EXPECT_EQ(bench.Findings()[4],
            line + "E *SURFACE 1 side of A of no element of the deck; left out (element 99 first).");
  EXPECT_EQ(bench.Findings()[5],
            line + "E *SURFACE 1 side of A with a label that the element has not; left out (element 1 first).");
  EXPECT_EQ(bench.Findings()[6],
            line + "W *SURFACE 1 side of A with a number beyond the element's sides; kept (element 41 first).");
}

TEST(InpSurfaces, ASurfaceOfAnotherTypeIsReported)
{
  InpBench bench;
  bench.Read(NodesUpTo(1) + "*SURFACE, NAME=A, TYPE=CUTTING\n1, S1\n");

  EXPECT_TRUE(bench.model.surfaces.empty());
  EXPECT_EQ(bench.Findings()[0], "3 E *SURFACE TYPE=CUTTING is neither NODE nor ELEMENT; the surface A is not kept.");
}

TEST(InpSurfaces, ASideWithoutAnElementIsReported)
{
  InpBench bench;
  bench.Read("*SURFACE, NAME=A\n, S2\n");

  EXPECT_EQ(bench.Findings(), (std::vector<std::string>{"2 E *SURFACE \"\" is no element number; it is no member."}));
}

} // namespace voxbench
