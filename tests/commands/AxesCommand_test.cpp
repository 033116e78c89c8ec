// SPDX-License-Identifier: MIT
#include "JsonSchema.h"
#include "RunProgram.h"

#include <cmath>
#include <gmock/gmock.h>

using nlohmann::json;

namespace
{

const std::string kDeck = voxtest::DataFile("joined.inp");

json Axes(const std::string& iFile = kDeck)
{
  const auto run = voxtest::RunInProcess({"axes", iFile, "--json"});
  EXPECT_EQ(run.code, 0) << run.errors;
  const json output = json::parse(run.out);
  EXPECT_EQ(voxtest::Violations(voxtest::SchemaOf("axes"), output), std::vector<std::string>{});
  return output;
}

json AxisNamed(const std::string& iName, const std::string& iStatus = "used")
{
  const json output = Axes();
  for (const json& axis : output["axes"])
    if (axis["name"] == iName && axis["status"] == iStatus)
      return axis;
  return nullptr;
}

void ExpectTriple(const json& iTriple, double iX, double iY, double iZ)
{
  EXPECT_NEAR(iTriple[0].get<double>(), iX, 1e-12);
  EXPECT_NEAR(iTriple[1].get<double>(), iY, 1e-12);
  EXPECT_NEAR(iTriple[2].get<double>(), iZ, 1e-12);
}

TEST(AxesCommand, TextIsThatOfTheGoldenFile)
{
  const auto run = voxtest::RunBuiltProgram({"axes", kDeck});
  EXPECT_EQ(run.code, 0) << run.errors;
  EXPECT_EQ(voxtest::DifferenceToGolden("joined.axes.txt", run.out), "");
}

TEST(AxesCommand, AnAxisThatTheFileNamesWasMadeByItsFeature)
{
  const json axis = AxisNamed("SKEW");
  EXPECT_EQ(axis["madeBy"], "SKEW");
  EXPECT_FALSE(axis["implicit"]);
  EXPECT_FALSE(axis["recorded"]);
}

TEST(AxesCommand, ARectangularFrameIsOrthonormalWithItsFirstAxisThroughTheFirstPoint)
{
  const json axis = AxisNamed("SKEW");
  ExpectTriple(axis["i"], std::sqrt(0.5), std::sqrt(0.5), 0.);
  ExpectTriple(axis["j"], -std::sqrt(0.5), std::sqrt(0.5), 0.);
  ExpectTriple(axis["k"], 0., 0., 1.);
}

TEST(AxesCommand, ASecondLineTurnsTheFrameAboutOneOfItsAxes)
{
  const json axis = AxisNamed("TURNED");
  ExpectTriple(axis["i"], 0., 1., 0.);
  ExpectTriple(axis["j"], -1., 0., 0.);
  ExpectTriple(axis["k"], 0., 0., 1.);
}

TEST(AxesCommand, ACylindricalFrameHasItsOriginAndThirdAxisOnTheLineOfBothPoints)
{
  const json axis = AxisNamed("AROUND");
  EXPECT_EQ(axis["system"], "cylindrical");
  ExpectTriple(axis["origin"], 1., 2., 3.);
  ExpectTriple(axis["k"], 0., 0., 1.);
}

TEST(AxesCommand, PointsOnOneLineGiveNoFrameAndTheAxisIsDropped)
{
  EXPECT_EQ(AxisNamed("NOWHERE", "dropped")["madeBy"], "NOWHERE");
}

TEST(AxesCommand, ATransformIsImplicitAndRecorded)
{
  const json axis = AxisNamed("Transform of TIP");
  EXPECT_TRUE(axis["implicit"]);
  EXPECT_TRUE(axis["recorded"]);
  EXPECT_EQ(axis["system"], "cylindrical");
}

TEST(AxesCommand, ATransformThatALaterOneReplacesIsDroppedAndNotRecorded)
{
  const json axis = AxisNamed("Transform of TIP", "dropped");
  EXPECT_TRUE(axis["implicit"]);
  EXPECT_FALSE(axis["recorded"]);
}

TEST(AxesCommand, TheImplicitAxesAreThoseOfTheSetAndThenTheGlobalFrame)
{
  const json tags = Axes()["allImplicitAxis"]["tags"];
  EXPECT_EQ(tags, json({AxisNamed("Transform of TIP")["tag"], AxisNamed("Global")["tag"]}));
}

TEST(AxesCommand, AModelWithoutLocalAxesHasItsGlobalFrame)
{
  const json output = Axes(voxtest::DataFile("plate_on_block.inp"));
  ASSERT_EQ(output["axes"].size(), 1u);
  EXPECT_EQ(output["axes"][0]["name"], "Global");
  EXPECT_EQ(output["allImplicitAxis"]["tags"], json::array({output["axes"][0]["tag"]}));
}

} // namespace
