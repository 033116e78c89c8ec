// SPDX-License-Identifier: MIT
#include "host/ExplicitModel/ExplicitRules.h"

namespace voxhost
{

// What an analysis model is made of, and what may stand where.
const std::vector<PhysicalTypeRule>& ExplicitRules::DefaultTable()
{
  static const std::vector<PhysicalTypeRule> table = {
      {"ANALYSIS_MODEL",
       VOXSamValueAnalysisModel,
       {"MESH_SET", "MATERIAL_SET", "AXIS_SET", "PROPERTY_SET", "RESTRAINT_SET", "LOAD_SET", "MASS_SET", "GROUP_SET",
        "SENSOR_SET", "MODULATION_SET", "CONNECTION_SET", "SOLUTION_SET"}},
      {"MESH_SET", VOXSamValueOtherSet, {"-MESH", "MESH_GROUP_SET"}},
      {"MESH", VOXSamValueMesh, {"NODE", "ELEMENT"}},
      {"NODE", VOXSamValueNode, {}},
      {"ELEMENT", VOXSamValueElement, {}},
      {"MATERIAL_SET", VOXSamValueMaterialSet, {"MATERIAL"}},
      {"MATERIAL", VOXSamValueEntity, {"EXPRESSION"}},
      {"AXIS_SET", VOXSamValueAxisSet, {"AXIS"}},
      {"AXIS", VOXSamValueAxis, {}},
      {"PROPERTY_SET",
       VOXSamValuePropertySet,
       {"SOLID_PROPERTY", "SHELL_PROPERTY", "BEAM_PROPERTY", "SPRING_PROPERTY", "OTHER_PROPERTY"}},
      {"SOLID_PROPERTY", VOXSamValueEntity, {"EXPRESSION"}},
      {"SHELL_PROPERTY", VOXSamValueEntity, {"EXPRESSION"}},
      {"BEAM_PROPERTY", VOXSamValueEntity, {"EXPRESSION"}},
      {"SPRING_PROPERTY", VOXSamValueEntity, {"EXPRESSION"}},
      {"OTHER_PROPERTY", VOXSamValueEntity, {"EXPRESSION"}},
      {"RESTRAINT_SET", VOXSamValueRestraintSet, {"DISPLACEMENT", "LINEAR_CONSTRAINT"}},
      {"DISPLACEMENT", VOXSamValueEntity, {"EXPRESSION"}},
      {"LINEAR_CONSTRAINT", VOXSamValueEntity, {"EXPRESSION"}},
      {"LOAD_SET", VOXSamValueLoadSet, {"CONCENTRATED_LOAD", "DISTRIBUTED_LOAD", "THERMAL_LOAD", "OTHER_LOAD"}},
      {"CONCENTRATED_LOAD", VOXSamValueEntity, {"EXPRESSION"}},
      {"DISTRIBUTED_LOAD", VOXSamValueEntity, {"EXPRESSION"}},
      {"THERMAL_LOAD", VOXSamValueEntity, {"EXPRESSION"}},
      {"OTHER_LOAD", VOXSamValueEntity, {"EXPRESSION"}},
      {"MASS_SET", VOXSamValueMassSet, {"POINT_MASS"}},
      {"POINT_MASS", VOXSamValueEntity, {"EXPRESSION"}},
      {"GROUP_SET", VOXSamValueGroupSet, {"GROUP"}},
      {"MESH_GROUP_SET", VOXSamValueGroupSet, {"GROUP"}},
      {"GROUP", VOXSamValueEntity, {"-NODE_GROUP", "-EDGE_GROUP", "-FACE_GROUP", "-ELEMENT_GROUP"}},
      {"NODE_GROUP", VOXSamValueEntity, {}},
      {"EDGE_GROUP", VOXSamValueEntity, {}},
      {"FACE_GROUP", VOXSamValueEntity, {}},
      {"ELEMENT_GROUP", VOXSamValueEntity, {}},
      {"SENSOR_SET", VOXSamValueSensorSet, {"SENSOR"}},
      {"SENSOR", VOXSamValueEntity, {}},
      {"MODULATION_SET", VOXSamValueModulationSet, {"MODULATION"}},
      {"MODULATION", VOXSamValueEntity, {"EXPRESSION"}},
      {"CONNECTION_SET", VOXSamValueOtherSet, {"CONNECTION"}},
      {"CONNECTION", VOXSamValueEntity, {"EXPRESSION", "CONNECTION_SIDE"}},
      {"CONNECTION_SIDE", VOXSamValueEntity, {}},
      {"SOLUTION_SET", VOXSamValueOtherSet, {"SOLUTION"}},
      {"SOLUTION", VOXSamValueEntity, {}},
      {"EXPRESSION", VOXSamValueExpression, {}},
  };
  return table;
}

std::shared_ptr<const ExplicitRules> ExplicitRules::Default()
{
  static const auto rules = std::make_shared<const ExplicitRules>(DefaultTable());
  return rules;
}

} // namespace voxhost
