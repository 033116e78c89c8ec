// SPDX-License-Identifier: MIT
#include "SmallDocument.h"

namespace
{

using voxhost::TypeCatalogue;

TEST(TypeCatalogueDeclaration, RefusesATypeThatStandsAlready)
{
  TypeCatalogue types;
  EXPECT_EQ(types.Declare(voxhost::TypeDeclaration{.name = "Washer"}), "");
  EXPECT_EQ(types.Declare(voxhost::TypeDeclaration{.name = "Washer"}), "type 'Washer' is declared twice");
}

TEST(TypeCatalogueDeclaration, RefusesAnUnknownBase)
{
  TypeCatalogue types;
  EXPECT_EQ(types.Declare(voxhost::TypeDeclaration{.name = "Washer", .base = "NoSuchType"}),
            "type 'Washer' derives from the unknown type 'NoSuchType'");
  EXPECT_EQ(types.Find("Washer"), nullptr);
}

TEST(TypeCatalogueDeclaration, RefusesAnUnknownTypeCode)
{
  TypeCatalogue types;
  EXPECT_EQ(types.Declare(voxhost::TypeDeclaration{.name = "Washer", .attributes = {{.name = "Bore", .type = 99}}}),
            "attribute 'Bore' of type 'Washer' has the unknown type code 99");
}

TEST(TypeCatalogueDeclaration, RefusesAnotherTypeCodeForAnAttributeOfTheBase)
{
  TypeCatalogue types;
  ASSERT_EQ(
      types.Declare(voxhost::TypeDeclaration{.name = "Ring", .attributes = {{.name = "Bore", .type = VOXSpecReal}}}),
      "");
  EXPECT_NE(
      types.Declare(voxhost::TypeDeclaration{.name = "SplitRing", .base = "Ring", .attributes = {{.name = "Bore"}}}),
      "");
}

TEST(TypeCatalogueDeclaration, KeepsThePlaceOfAnAttributeThatGetsAnotherDefault)
{
  TypeCatalogue types;
  ASSERT_EQ(
      types.Declare(voxhost::TypeDeclaration{.name = "Ring2", .attributes = {{.name = "Bore", .type = VOXSpecReal}}}),
      "");
  ASSERT_EQ(
      types.Declare(
          {.name = "SplitRing2", .base = "Ring2", .attributes = {{.name = "Bore", .type = VOXSpecReal, .value = 7.}}}),
      "");
  EXPECT_EQ(types.Find("SplitRing2")->IndexOf("Bore"), types.Find("Ring2")->IndexOf("Bore"));
}

TEST(TypeCatalogueDeclaration, AnswersTheTypeTestAlongTheBasesAndTheFurtherKinds)
{
  TypeCatalogue types;
  ASSERT_EQ(types.Declare(voxhost::AnalysisTypes()), "");
  ASSERT_EQ(types.Declare(
                voxhost::TypeDeclaration{.name = "OddLoad", .base = "AnalysisLoad", .alsoKindOf = {"SAMFreeGroup"}}),
            "");
  const voxhost::FeatureType& type = *types.Find("OddLoad");
  EXPECT_TRUE(type.IsSubTypeOf("AnalysisLoad"));
  EXPECT_TRUE(type.IsSubTypeOf("SAMFreeGroup"));
  EXPECT_FALSE(type.IsSubTypeOf("AnalysisMass"));
}

TEST(AnalysisTypesTable, HoldsTheTypesThatTheAdaptorsAskFor)
{
  TypeCatalogue types;
  ASSERT_EQ(types.Declare(voxhost::AnalysisTypes()), "");
  for (const char* const name : {"AnalysisProperty", "SAMSpecifiedGroup",  "SAMFiltredGroup",
                                 "SAMFreeGroup",     "AnalysisLoad",       "AnalysisRestraint",
                                 "AnalysisMass",     "AnalysisModulation", "MeasureWithProgram",
                                 "AnalysisSensor",   "PropertySet",        "GroupSet",
                                 "LoadSet",          "RestraintSet",       "MassSet",
                                 "ModulationSet",    "SensorSet",          "SAMMeshSetPointer",
                                 "MSHSetContainer",  "SAMImplicitAxes",    "SAMListManager"})
    EXPECT_NE(types.Find(name), nullptr) << name;
}

} // namespace
