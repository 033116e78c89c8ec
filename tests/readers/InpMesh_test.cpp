// SPDX-License-Identifier: MIT
#include "InpBench.h"

namespace voxbench
{

using testing::ElementsAre;
using testing::IsEmpty;

TEST(InpMesh, NodesKeepTheirCoordinates)
{
  InpBench bench;
  bench.Read("*NODE\n1, 1.5, -2.5E-3, 1.D2\n7, .5\n8, 1.,,3.\n9,\n");

  EXPECT_EQ(Ids(bench.model.nodes.ids), (std::vector<int>{1, 7, 8, 9}));
  EXPECT_EQ(bench.model.nodes.xyz, (Column<double>{1.5, -2.5e-3, 100., .5, 0., 0., 1., 0., 3., 0., 0., 0.}));
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpMesh, NodesOutOfOrderAreSortedWithTheirCoordinates)
{
  InpBench bench;
  bench.Read("*NODE\n30, 3., 0., 0.\n10, 1., 0., 0.\n*NODE\n20, 2., 0., 0.\n");

  EXPECT_EQ(Ids(bench.model.nodes.ids), (std::vector<int>{10, 20, 30}));
  EXPECT_EQ(bench.model.nodes.xyz, (Column<double>{1., 0., 0., 2., 0., 0., 3., 0., 0.}));
  EXPECT_EQ(bench.model.nodes.WhereOf(0).line, 1);
  EXPECT_EQ(bench.model.nodes.WhereOf(1).line, 4);
  EXPECT_EQ(bench.model.nodes.WhereOf(2).line, 1);
}

TEST(InpMesh, ANodeDefinedAgainTakesItsLastDefinition)
{
  InpBench bench;
  bench.Read("*NODE\n1, 1., 0., 0.\n2, 2., 0., 0.\n*NODE\n1, 5., 0., 0.\n2, 6., 0., 0.\n");

  EXPECT_EQ(Ids(bench.model.nodes.ids), (std::vector<int>{1, 2}));
  EXPECT_EQ(bench.model.nodes.xyz, (Column<double>{5., 0., 0., 6., 0., 0.}));
  EXPECT_THAT(bench.Findings(),
              ElementsAre("4 W *NODE 2 nodes were defined before, 1 first; the last definition holds."));
}

TEST(InpMesh, AnElementDefinedAgainTakesItsLastDefinition)
{
  InpBench bench;
  bench.Read(NodesUpTo(4) + "*ELEMENT, TYPE=B31\n2, 1, 2\n*ELEMENT, TYPE=S3, ELSET=S\n1, 1, 2, 3\n2, 2, 3, 4\n");

  const ElementTable& elements = bench.model.elements;
  EXPECT_EQ(Ids(elements.ids), (std::vector<int>{1, 2}));
  EXPECT_THAT(elements.NodesOf(1), ElementsAre(2, 3, 4));
  EXPECT_EQ(bench.model.elementTypes[elements.types[1]].name, "S3");
  EXPECT_THAT(bench.Findings(),
              ElementsAre("8 W *ELEMENT 1 element was defined before, 2 first; the last definition holds."));
}

TEST(InpMesh, BadNodeNumbersAreErrorsWithTheirLine)
{
  InpBench bench;
  bench.Read("*NODE\n0, 0., 0., 0.\n-3, 0., 0., 0.\n2147483648, 0., 0., 0.\n2147483647, 0., 0., 0.\n1.5, 0.\n");

  EXPECT_EQ(Ids(bench.model.nodes.ids), (std::vector<int>{2147483647}));
  EXPECT_THAT(bench.Findings(),
              ElementsAre("2 E *NODE \"0\" is no node number (1 to 2147483647); the line is not used.",
                          "3 E *NODE \"-3\" is no node number (1 to 2147483647); the line is not used.",
                          "4 E *NODE \"2147483648\" is no node number (1 to 2147483647); the line is not used.",
                          "6 E *NODE \"1.5\" is no node number (1 to 2147483647); the line is not used."));
}

TEST(InpMesh, ABadCoordinateCostsItsNode)
{
  InpBench bench;
  bench.Read("*NODE\n1, 0., nan, 0.\n2, 1e999, 0., 0.\n3, 1., 2., 3., 4.\n");

  EXPECT_EQ(Ids(bench.model.nodes.ids), (std::vector<int>{3}));
  EXPECT_THAT(bench.Findings(), ElementsAre("2 E *NODE \"NAN\" is no coordinate; node 1 is not used.",
                                            "3 E *NODE \"1E999\" is no coordinate; node 2 is not used.",
                                            "4 W *NODE more than three coordinates; the others have no effect."));
}

TEST(InpMesh, ElementsGoOnOverLinesUntilTheirNodesAreThere)
{
  InpBench bench;
  bench.Read(NodesUpTo(20) + "*ELEMENT, TYPE=C3D20R\n"
                             "1, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10,\n 11, 12, 13, 14, 15, 16, 17, 18, 19, 20\n"
                             "2, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10\n** a comment\n11, 12, 13, 14, 15\n16, 17, 18, 19, 20,\n"
                             "*ELEMENT, TYPE=C3D10\n3, 1,\n2,3,4,5,6,7,8,9,10\n");

  const ElementTable& elements = bench.model.elements;
  ASSERT_EQ(Ids(elements.ids), (std::vector<int>{1, 2, 3}));
  for (const std::size_t row : {0u, 1u})
    EXPECT_THAT(elements.NodesOf(row),
                ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20));
  EXPECT_EQ(elements.NodesOf(2).size(), 10u);
  EXPECT_EQ(elements.WhereOf(1).line, 22);
  EXPECT_EQ(elements.WhereOf(2).line, 29);
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpMesh, AnElementShortOfNodesCostsNoOther)
{
  InpBench bench;
  bench.Read(NodesUpTo(5) + "*ELEMENT, TYPE=C3D4\n1, 1, 2, 3\n2, 2, 3, 4, 5\n3, 1, 2, 3, 4, 5\n4, 1, 2\n");

  EXPECT_EQ(Ids(bench.model.elements.ids), (std::vector<int>{2, 3}));
  EXPECT_THAT(bench.Findings(),
              ElementsAre("8 E *ELEMENT element 1 has 3 of 4 nodes; it is not used.",
                          "10 W *ELEMENT element 3 has 5 nodes where C3D4 has 4; the others have no effect.",
                          "11 E *ELEMENT element 4 has 2 of 4 nodes; it is not used."));
}

TEST(InpMesh, ADamagedFirstLineOfAnElementTakesItsContinuationsAlong)
{
  InpBench bench;
  bench.Read(NodesUpTo(10) +
             "*ELEMENT, TYPE=C3D10\n1, x, 2, 3, 4,\n5, 6, 7, 8, 9, 10\n2, 1, 2, 3, 4,\n5, 6, 7, 8, 9, 10\n");

  EXPECT_EQ(Ids(bench.model.elements.ids), (std::vector<int>{2}));
  EXPECT_THAT(bench.Findings(),
              ElementsAre("13 E *ELEMENT \"X\" is no node number (1 to 2147483647); the line is not used."));
}

TEST(InpMesh, ElementsWithoutTheirNodesStayAndAreReportedPerCard)
{
  InpBench bench;
  bench.Read(NodesUpTo(2) + "*ELEMENT, TYPE=B31\n1, 1, 2\n2, 2, 99\n3, 98, 1\n");

  EXPECT_EQ(bench.model.elements.size(), 3u);
  EXPECT_THAT(
      bench.Findings(),
      ElementsAre("4 E *ELEMENT 2 elements name nodes that the deck does not define, element 2 node 99 first."));
}

TEST(InpMesh, TheOpenEndOfAFluidNetworkIsNode0)
{
  InpBench bench;
  bench.Read(NodesUpTo(2) + "*ELEMENT, TYPE=D\n1, 0, 1, 2\n");

  EXPECT_THAT(bench.model.elements.NodesOf(0), ElementsAre(0, 1, 2));
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpMesh, AnUnknownTypeKeepsIdsAndNodes)
{
  InpBench bench;
  bench.Read(NodesUpTo(4) + "*ELEMENT, TYPE=C3D4X, ELSET=A\n1, 1, 2,\n3, 4\n*ELEMENT, TYPE=BRICK\n2, 1, 2,\n3\n3, 4\n");

  EXPECT_EQ(Ids(bench.model.elements.ids), (std::vector<int>{1, 2, 3}));
  EXPECT_THAT(bench.model.elements.NodesOf(0), ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(bench.model.elements.NodesOf(1), ElementsAre(1, 2, 3));
  EXPECT_THAT(bench.model.elements.NodesOf(2), ElementsAre(4));
  EXPECT_EQ(bench.model.elementTypes[0].family, ElementFamily::Unknown);
  EXPECT_THAT(bench.Findings(),
              ElementsAre("6 E *ELEMENT the element type C3D4X is not known; its elements keep their nodes only.",
                          "9 E *ELEMENT the element type BRICK is not known; its elements keep their nodes only."));
}

TEST(InpMesh, AUserElementBringsItsNodeCount)
{
  InpBench bench;
  bench.Read(NodesUpTo(3) + "*USER ELEMENT, TYPE=U7, NODES=3, INTEGRATION POINTS=1, MAXDOF=3\n"
                            "*ELEMENT, TYPE=U7\n1, 1,\n2, 3\n");

  EXPECT_THAT(bench.model.elements.NodesOf(0), ElementsAre(1, 2, 3));
  EXPECT_EQ(bench.model.elementTypes[0].family, ElementFamily::User);
  EXPECT_EQ(bench.model.elementTypes[0].nodeCount, 3);
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpMesh, TheElementTypesOfTheDialectAreKnown)
{
  const std::pair<const char*, int> kTypes[] = {
      {"C3D4", 4},   {"C3D6", 6},    {"C3D8", 8},    {"C3D8I", 8},   {"C3D8R", 8},   {"C3D10", 10}, {"C3D10T", 10},
      {"C3D15", 15}, {"C3D20", 20},  {"C3D20R", 20}, {"S3", 3},      {"S4", 4},      {"S4R", 4},    {"S6", 6},
      {"S8", 8},     {"S8R", 8},     {"M3D3", 3},    {"M3D4", 4},    {"M3D4R", 4},   {"M3D6", 6},   {"M3D8", 8},
      {"M3D8R", 8},  {"CPS3", 3},    {"CPS4", 4},    {"CPS4R", 4},   {"CPS6", 6},    {"CPS8", 8},   {"CPS8R", 8},
      {"CPE3", 3},   {"CPE4", 4},    {"CPE6", 6},    {"CPE8R", 8},   {"CAX3", 3},    {"CAX4R", 4},  {"CAX6", 6},
      {"CAX8", 8},   {"B21", 2},     {"B31", 2},     {"B31R", 2},    {"B32", 3},     {"B32R", 3},   {"T2D2", 2},
      {"T3D2", 2},   {"T3D3", 3},    {"SPRINGA", 2}, {"SPRING1", 1}, {"SPRING2", 2}, {"MASS", 1},   {"DASHPOTA", 2},
      {"GAPUNI", 2}, {"DCOUP3D", 1}, {"D", 3},       {"F3D4", 4},    {"F3D6", 6},    {"F3D8", 8},   {"CONN3D2", 2},
      {"U1", 2},     {"US3", 3},     {"US45", 4}};
  for (const auto& [name, nodes] : kTypes)
  {
    InpBench bench;
    std::string line = "1";
    for (int node = 1; node <= nodes; ++node)
      line += "," + std::to_string(node);
    bench.Read(NodesUpTo(20) + "*ELEMENT, TYPE=" + name + "\n" + line + "\n");
    ASSERT_EQ(bench.model.elements.size(), 1u) << name;
    EXPECT_EQ(bench.model.elements.NodesOf(0).size(), static_cast<std::size_t>(nodes)) << name;
    EXPECT_NE(bench.model.elementTypes[0].family, ElementFamily::Unknown) << name;
    EXPECT_THAT(bench.Findings(), IsEmpty()) << name;
  }
}

TEST(InpMesh, FindingARowWorksWithAndWithoutHoles)
{
  InpBench bench;
  bench.Read("*NODE\n5, 0.\n6, 0.\n7, 0.\n");
  EXPECT_EQ(bench.model.nodes.Find(6), 1);
  EXPECT_EQ(bench.model.nodes.Find(8), -1);

  bench.Read("*NODE\n5, 0.\n600, 0.\n7000, 0.\n");
  EXPECT_EQ(bench.model.nodes.Find(600), 1);
  EXPECT_EQ(bench.model.nodes.Find(6), -1);
  EXPECT_EQ(bench.model.nodes.Find(1), -1);
}

} // namespace voxbench
