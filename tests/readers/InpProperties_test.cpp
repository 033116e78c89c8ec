// SPDX-License-Identifier: MIT
// Materials, sections, amplitudes, axes, loads, restraints.
#include "InpBench.h"

#include <cmath>

namespace voxbench
{

using testing::ElementsAre;
using testing::IsEmpty;

TEST(InpProperties, AMaterialOwnsItsPropertyCards)
{
  InpBench bench;
  bench.Read("*MATERIAL, NAME=Steel\n*ELASTIC, TYPE=ISO\n210000.d0, .3, 20.\n*DENSITY\n7.8E-9\n*MATERIAL, "
             "NAME=AIR\n*CONDUCTIVITY\n.02\n");

  ASSERT_EQ(bench.model.materials.size(), 2u);
  const Material& steel = bench.model.materials[0];
  EXPECT_EQ(steel.name, "STEEL");
  ASSERT_EQ(steel.properties.size(), 2u);
  EXPECT_EQ(steel.properties[0].keyword, "ELASTIC");
  EXPECT_EQ(steel.properties[0].Get("TYPE"), "ISO");
  EXPECT_EQ(steel.properties[0].Number(0, 0), 210000.);
  EXPECT_EQ(steel.properties[0].Number(0, 1), .3);
  EXPECT_TRUE(std::isnan(steel.properties[0].Number(0, 7)));
  EXPECT_EQ(steel.properties[1].where.line, 4);
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpProperties, AMaterialChangedInAStepIsTakenUpAgain)
{
  InpBench bench;
  bench.Read("*MATERIAL, NAME=A\n*ELASTIC\n1., 0.\n*MATERIAL, NAME=B\n*STEP\n*CHANGE MATERIAL, NAME=A\n*CHANGE "
             "PLASTIC\n0., 1.\n*END STEP\n");

  ASSERT_EQ(bench.model.materials.size(), 2u);
  EXPECT_EQ(bench.model.materials[0].properties.back().keyword, "CHANGEPLASTIC");
  EXPECT_EQ(bench.model.materials[0].properties.back().step, 1);
}

TEST(InpProperties, AnInteractionOwnsItsPropertyCards)
{
  InpBench bench;
  bench.Read("*SURFACE INTERACTION, NAME=I\n*SURFACE BEHAVIOR, PRESSURE-OVERCLOSURE=HARD\n*FRICTION\n.1, 1000.\n");

  ASSERT_EQ(bench.model.interactions.size(), 1u);
  EXPECT_EQ(bench.model.interactions[0].properties.size(), 2u);
  EXPECT_EQ(bench.model.interactions[0].properties[1].Number(0, 0), .1);
}

TEST(InpProperties, APropertyCardWithoutAnOwnerIsKeptAndReported)
{
  InpBench bench;
  bench.Read("*ELASTIC\n1., 0.\n");

  EXPECT_EQ(bench.model.otherCards.size(), 1u);
  EXPECT_THAT(bench.Findings(), ElementsAre("1 W *ELASTIC the card follows no material and no interaction."));
}

TEST(InpProperties, SectionsTellSetMaterialAndValue)
{
  InpBench bench;
  bench.Read("*SOLID SECTION, ELSET=A, MATERIAL=M, ORIENTATION=O\n"
             "*SHELL SECTION, ELSET=B, MATERIAL=M\n.25\n"
             "*BEAM SECTION, ELSET=C, MATERIAL=M, SECTION=RECT\n2., 3.\n1., 0., 0.\n"
             "*SPRING, ELSET=D\n\n10.\n*SPRING, ELSET=E\n1, 2\n11.\n*MASS, ELSET=F\n5.\n"
             "*FLUID SECTIONS, ELSET=G, TYPE=ORIFICE\n.1\n*MEMBRANE, ELSET=H, MATERIAL=M\n.5\n");

  const std::vector<Section>& sections = bench.model.sections;
  ASSERT_EQ(sections.size(), 8u);
  EXPECT_EQ(sections[0].kind, SectionKind::Solid);
  EXPECT_EQ(sections[0].elementSet, "A");
  EXPECT_EQ(sections[0].material, "M");
  EXPECT_EQ(sections[0].orientation, "O");
  EXPECT_TRUE(std::isnan(sections[0].value));
  EXPECT_EQ(sections[1].value, .25);
  EXPECT_EQ(sections[2].profile, "RECT");
  EXPECT_EQ(sections[2].card.Number(1, 0), 1.);
  EXPECT_EQ(sections[3].value, 10.);
  EXPECT_EQ(sections[4].value, 11.);
  EXPECT_EQ(sections[4].card.Text(0, 1), "2");
  EXPECT_EQ(sections[5].kind, SectionKind::Mass);
  EXPECT_EQ(sections[5].value, 5.);
  EXPECT_EQ(sections[6].kind, SectionKind::Fluid);
  EXPECT_EQ(sections[6].profile, "ORIFICE");
  EXPECT_EQ(sections[7].kind, SectionKind::Membrane);
  EXPECT_THAT(bench.Findings(), IsEmpty());
}

TEST(InpProperties, ACompositeShellHasItsLayers)
{
  InpBench bench;
  bench.Read("*SHELL SECTION, ELSET=A, COMPOSITE\n.1, , M1, O1\n.2, , M2\n");

  ASSERT_EQ(bench.model.sections[0].layers.size(), 2u);
  EXPECT_EQ(bench.model.sections[0].layers[0].material, "M1");
  EXPECT_EQ(bench.model.sections[0].layers[0].orientation, "O1");
  EXPECT_EQ(bench.model.sections[0].layers[1].thickness, .2);
}

TEST(InpProperties, AmplitudesAreTables)
{
  InpBench bench;
  bench.Read(
      "*AMPLITUDE, NAME=A, TIME=TOTAL TIME\n0., 0., 1., 2., 3., 4., 5., 6.\n7., 8.\n*AMPLITUDE, NAME=B\n1., 2., 3.\n");

  EXPECT_EQ(bench.model.amplitudes[0].times, (Column<double>{0., 1., 3., 5., 7.}));
  EXPECT_EQ(bench.model.amplitudes[0].values, (Column<double>{0., 2., 4., 6., 8.}));
  EXPECT_EQ(bench.model.amplitudes[0].card.Get("TIME"), "TOTALTIME");
  EXPECT_THAT(bench.Findings(), ElementsAre("4 E *AMPLITUDE the table ends with a time that has no value."));
}

TEST(InpProperties, OrientationsAndTransformsAreLocalAxes)
{
  InpBench bench;
  bench.Read("*ORIENTATION, NAME=O, SYSTEM=CYLINDRICAL\n0., 0., 0., 0., 0., 1.\n*TRANSFORM, NSET=N, TYPE=R\n1., 2., "
             "3., 4., 5., 6.\n");

  EXPECT_TRUE(bench.model.orientations[0].cylindrical);
  EXPECT_EQ(bench.model.orientations[0].second[2], 1.);
  EXPECT_FALSE(bench.model.transforms[0].cylindrical);
  EXPECT_EQ(bench.model.transforms[0].nodeSet, "N");
  EXPECT_EQ(bench.model.transforms[0].first[1], 2.);
}

TEST(InpProperties, LoadsTellTargetLabelAndValues)
{
  InpBench bench;
  bench.Read("*STEP\n*STATIC\n*CLOAD, AMPLITUDE=A, OP=NEW\n7, 3, 2.5\nTIP, 1, -1.\n"
             "*DLOAD\nEALL, GRAV, 9810., 0., 0., -1.\n5, P3, 4.\n*FILM\n1, F1FC, 12, 10.\n*TEMPERATURE\nNALL, "
             "300.\n*END STEP\n");

  const std::vector<AppliedCard>& loads = bench.model.loads;
  ASSERT_EQ(loads.size(), 4u);
  EXPECT_EQ(loads[0].amplitude, "A");
  EXPECT_TRUE(loads[0].replaces);
  EXPECT_EQ(loads[0].step, 1);
  ASSERT_EQ(loads[0].rows.size(), 2u);
  EXPECT_EQ(loads[0].rows[0].id, 7);
  EXPECT_EQ(loads[0].rows[0].firstDof, 3);
  EXPECT_THAT(loads[0].ValuesOf(loads[0].rows[0]), ElementsAre(2.5));
  EXPECT_EQ(bench.model.names[static_cast<std::size_t>(loads[0].rows[1].name)], "TIP");
  EXPECT_EQ(loads[0].rows[1].line, 5);
  EXPECT_EQ(bench.model.names[static_cast<std::size_t>(loads[1].rows[0].label)], "GRAV");
  EXPECT_THAT(loads[1].ValuesOf(loads[1].rows[0]), ElementsAre(9810., 0., 0., -1.));
  EXPECT_EQ(bench.model.names[static_cast<std::size_t>(loads[2].rows[0].label)], "F1FC");
  EXPECT_THAT(loads[3].ValuesOf(loads[3].rows[0]), ElementsAre(300.));
}

TEST(InpProperties, RestraintsTellTheirFreedomsAndValues)
{
  InpBench bench;
  bench.Read("*BOUNDARY\nFIX, 1, 3\n4, 2\n5, 1, , .5\n*BOUNDARYF\n1, S2, 1, 3, 7.\n");

  const AppliedCard& card = bench.model.restraints[0];
  ASSERT_EQ(card.rows.size(), 3u);
  EXPECT_EQ(card.rows[0].lastDof, 3);
  EXPECT_EQ(card.rows[0].valueCount, 0u);
  EXPECT_EQ(card.rows[1].firstDof, 2);
  EXPECT_EQ(card.rows[1].lastDof, 2);
  EXPECT_EQ(card.rows[2].lastDof, 1);
  EXPECT_THAT(card.ValuesOf(card.rows[2]), ElementsAre(.5));
  const AppliedCard& fluid = bench.model.restraints[1];
  EXPECT_EQ(bench.model.names[static_cast<std::size_t>(fluid.rows[0].label)], "S2");
  EXPECT_THAT(fluid.ValuesOf(fluid.rows[0]), ElementsAre(7.));
}

TEST(InpProperties, ALoadOrRestraintLineThatIsNoneIsReported)
{
  InpBench bench;
  bench.Read("*BOUNDARY\nFIX, ENCASTRE\n-1, 2\n*CLOAD\n1, 1, x\n*DLOAD\nE\n");

  EXPECT_TRUE(bench.model.restraints[0].rows.empty());
  EXPECT_THAT(bench.Findings(), ElementsAre("2 E *BOUNDARY \"ENCASTRE\" is no degree of freedom; the line is not used.",
                                            "3 E *BOUNDARY \"-1\" is no node or element number; the line is not used.",
                                            "5 E *CLOAD \"X\" is no number; the line is not used.",
                                            "7 E *DLOAD \"\" is no label; the line is not used."));
}

TEST(InpProperties, InitialConditionsTellTheirType)
{
  InpBench bench;
  bench.Read("*INITIAL CONDITIONS, TYPE=TEMPERATURE\nNALL, 20.\n*INITIAL CONDITIONS, TYPE=VELOCITY\n3, 2, 1.5\n"
             "*NODAL THICKNESS\nN, .2\n");

  EXPECT_EQ(bench.model.initialConditions[0].type, "TEMPERATURE");
  EXPECT_EQ(bench.model.initialConditions[1].rows[0].firstDof, 2);
  EXPECT_THAT(bench.model.initialConditions[1].values, ElementsAre(1.5));
  EXPECT_EQ(bench.model.nodalThicknesses[0].values[0], .2);
}

TEST(InpProperties, TextAmongTheNumbersOfAMaterialIsReported)
{
  InpBench bench;
  bench.Read("*MATERIAL, NAME=STEEL\n*ELASTIC\n2.1D5, O.3\n*DENSITY\n7.8-9\n");

  EXPECT_EQ(bench.Findings(), (std::vector<std::string>{"3 E *ELASTIC \"O.3\" is no number."}));
  EXPECT_EQ(bench.model.materials[0].properties[0].Text(0, 1), "O.3");
}

TEST(InpProperties, TextAmongThePointsOfAnOrientationIsReported)
{
  InpBench bench;
  bench.Read("*ORIENTATION, NAME=O\n1, 0, zero, 0, 1, 0\n*TRANSFORM, NSET=N\n1, 0, 0, NaN, 1, 0\n");

  EXPECT_EQ(bench.Findings(), (std::vector<std::string>{"2 E *ORIENTATION \"ZERO\" is no number.",
                                                        "4 E *TRANSFORM \"NAN\" is no number."}));
}

} // namespace voxbench
