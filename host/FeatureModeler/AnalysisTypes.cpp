// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/TypeCatalogue.h"

namespace voxhost
{
namespace
{

AttributeDeclaration Sons()
{
  return {.name = "SonsList", .type = VOXSpecList, .elementType = VOXSpecComponent};
}

AttributeDeclaration References(const char* iName)
{
  return {.name = iName, .type = VOXSpecList, .elementType = VOXSpecReference};
}

TypeDeclaration Set(const char* iName, const char* iPhysicalType)
{
  return {.name = iName, .base = "AnalysisSet", .physicalType = iPhysicalType};
}

TypeDeclaration Entity(const char* iName, const char* iBase = "AnalysisEntity")
{
  return {.name = iName, .base = iBase};
}

} // namespace

// Read from the top: what every feature of an analysis has, what an analysis is made of, what stands in its sets, and
// what its entities are made of.
const std::vector<TypeDeclaration>& AnalysisTypes()
{
  static const std::vector<TypeDeclaration> types = {
      {.name = "AnalysisFeature",
       .faces = kExplicitFace,
       .attributes = {{.name = "ExplicitTag", .type = VOXSpecInteger}, Sons()},
       .isAbstract = true},

      {.name = "AnalysisModel",
       .base = "AnalysisFeature",
       .physicalType = "ANALYSIS_MODEL",
       .faces = kModelFactoryFace},
      {.name = "MSHSetContainer", .base = "AnalysisFeature", .physicalType = "MESH_SET", .faces = kSetFace},
      {.name = "MSHPart", .base = "AnalysisFeature", .physicalType = "MESH", .faces = kVisuGrouperFace},

      {.name = "AnalysisSet", .base = "AnalysisFeature", .faces = kSetFace, .isAbstract = true},
      Set("MaterialSet", "MATERIAL_SET"),
      Set("AxisSet", "AXIS_SET"),
      Set("PropertySet", "PROPERTY_SET"),
      Set("RestraintSet", "RESTRAINT_SET"),
      Set("LoadSet", "LOAD_SET"),
      Set("MassSet", "MASS_SET"),
      Set("GroupSet", "GROUP_SET"),
      Set("SensorSet", "SENSOR_SET"),
      Set("ModulationSet", "MODULATION_SET"),
      Set("ConnectionSet", "CONNECTION_SET"),
      Set("SolutionSet", "SOLUTION_SET"),
      Set("SAMMeshSetPointer", "MESH_SET"),

      {.name = "AnalysisEntity",
       .base = "AnalysisFeature",
       .faces = kEntityFace | kSupportFace,
       .attributes = {References("Supports")},
       .isAbstract = true},
      Entity("AnalysisProperty"),
      {.name = "SAMSpecifiedGroup", .base = "AnalysisEntity", .physicalType = "GROUP"},
      {.name = "SAMFiltredGroup", .base = "AnalysisEntity", .physicalType = "GROUP"},
      {.name = "SAMFreeGroup", .base = "AnalysisEntity", .physicalType = "GROUP"},
      Entity("AnalysisLoad"),
      Entity("AnalysisRestraint"),
      Entity("AnalysisMass"),
      Entity("AnalysisModulation"),
      Entity("AnalysisSensor"),
      Entity("MeasureWithProgram"),
      {.name = "AnalysisAxis", .base = "AnalysisEntity", .physicalType = "AXIS"},
      {.name = "SAMImplicitAxes", .base = "AnalysisEntity", .physicalType = "AXIS"},
      {.name = "AnalysisConnection",
       .base = "AnalysisEntity",
       .physicalType = "CONNECTION",
       .attributes = {References("SAMConnectionDesigner1"), References("SAMConnectionDesigner2")}},
      {.name = "SAMConnectionDesigner",
       .base = "AnalysisEntity",
       .faces = kMeshPartFilterFace,
       .attributes = {References("Designers")}},

      {.name = "SAMBasicComponent",
       .faces = kBasicComponentFace,
       .attributes = {Sons(),
                      {.name = "Values", .type = VOXSpecList, .elementType = VOXSpecComponent},
                      {.name = "ValuesDim", .type = VOXSpecInteger, .value = std::int32_t{1}},
                      {.name = "Rows", .type = VOXSpecInteger, .value = std::int32_t{1}},
                      {.name = "Layers", .type = VOXSpecInteger, .value = std::int32_t{1}}}},
      {.name = "SAMRealComponent",
       .base = "SAMBasicComponent",
       .attributes = {{.name = "Value", .type = VOXSpecReal, .value = 0.}},
       .parameter = ParameterDeclaration{VOXCkeContext::RealType, {}}},
      {.name = "SAMListManager",
       .base = "SAMBasicComponent",
       .attributes = {{.name = "Value", .type = VOXSpecInteger, .value = std::int32_t{0}}},
       .parameter = ParameterDeclaration{VOXCkeContext::EnumType, {}}},
  };
  return types;
}

} // namespace voxhost
