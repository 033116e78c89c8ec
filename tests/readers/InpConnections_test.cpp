// SPDX-License-Identifier: MIT
#include "InpBench.h"

namespace voxbench
{

using testing::ElementsAre;

TEST(InpConnections, EquationsKeepTheirTerms)
{
  InpBench bench;
  bench.Read("*EQUATION\n3\n3, 2, 2.3, 28, 1, 4.05,\n17, 1, -8.22\n2\n1, 1, 1., 2, 1, -1.\n");

  const EquationTable& equations = bench.model.equations;
  ASSERT_EQ(equations.size(), 2u);
  EXPECT_EQ(equations.offsets, (Column<std::uint32_t>{0, 3, 5}));
  EXPECT_EQ(equations.nodes, (Column<std::int32_t>{3, 28, 17, 1, 2}));
  EXPECT_EQ(equations.dofs, (Column<std::int32_t>{2, 1, 1, 1, 1}));
  EXPECT_EQ(equations.coefficients, (Column<double>{2.3, 4.05, -8.22, 1., -1.}));
  EXPECT_EQ(equations.wheres[1].line, 5);
}

TEST(InpConnections, AnEquationCutOffCostsNoOther)
{
  InpBench bench;
  bench.Read("*EQUATION\n2\n1, 1, 1., 2, 1, -1.\n3\n1, 1, 1.\n");

  EXPECT_EQ(bench.model.equations.size(), 1u);
  EXPECT_EQ(bench.model.equations.nodes.size(), 2u);
  EXPECT_EQ(bench.model.diagnostics.list[0].where.line, 4);
}

TEST(InpConnections, MultiPointConstraintsTellTypeAndNodes)
{
  InpBench bench;
  bench.Read("*MPC\nMEANROT, 5, 5, 5, 6,\n0, 7, 262\nPLANE, NPLANE\n");

  ASSERT_EQ(bench.model.multiPointConstraints.size(), 2u);
  EXPECT_EQ(bench.model.multiPointConstraints[0].type, "MEANROT");
  EXPECT_EQ(Ids(bench.model.multiPointConstraints[0].nodes), (std::vector<int>{5, 5, 5, 6, 7, 262}));
  EXPECT_THAT(bench.model.multiPointConstraints[1].nodeSets, ElementsAre("NPLANE"));
}

TEST(InpConnections, TiesAndContactPairsTellTheirSurfaces)
{
  InpBench bench;
  bench.Read("*TIE, NAME=T1, POSITION TOLERANCE=.1\nslave, master\n*CONTACT PAIR, INTERACTION=I, TYPE=NODE TO "
             "SURFACE\na, b\nc, d\n");

  const std::vector<Connection>& connections = bench.model.connections;
  ASSERT_EQ(connections.size(), 3u);
  EXPECT_EQ(connections[0].kind, ConnectionKind::Tie);
  EXPECT_EQ(connections[0].name, "T1");
  EXPECT_EQ(connections[0].dependent, "SLAVE");
  EXPECT_EQ(connections[0].independent, "MASTER");
  EXPECT_EQ(connections[2].interaction, "I");
  EXPECT_EQ(connections[2].dependent, "C");
  EXPECT_EQ(connections[2].card.Get("TYPE"), "NODETOSURFACE");
}

TEST(InpConnections, CouplingsTellTheirReferenceAndBehavior)
{
  InpBench bench;
  bench.Read("*COUPLING, CONSTRAINT NAME=C1, REF NODE=5, SURFACE=S, ORIENTATION=O\n*KINEMATIC\n1, 3\n"
             "*RIGID BODY, NSET=N, REF NODE=9, ROT NODE=10\n*PRE-TENSION SECTION, SURFACE=P, NODE=14\n0., -1., 0.\n");

  const std::vector<Connection>& connections = bench.model.connections;
  ASSERT_EQ(connections.size(), 3u);
  EXPECT_EQ(connections[0].name, "C1");
  EXPECT_EQ(connections[0].referenceNode, 5);
  EXPECT_EQ(connections[0].dependent, "S");
  EXPECT_EQ(connections[0].orientation, "O");
  ASSERT_EQ(connections[0].behavior.size(), 1u);
  EXPECT_EQ(connections[0].behavior[0].keyword, "KINEMATIC");
  EXPECT_EQ(connections[1].dependent, "N");
  EXPECT_EQ(connections[1].referenceNode, 9);
  EXPECT_EQ(connections[1].rotationNode, 10);
  EXPECT_EQ(connections[2].kind, ConnectionKind::PreTension);
  EXPECT_EQ(connections[2].referenceNode, 14);
  EXPECT_EQ(connections[2].card.Number(0, 1), -1.);
}

} // namespace voxbench
