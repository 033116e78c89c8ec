// SPDX-License-Identifier: MIT
#include "host/ExplicitModel/ExplicitRules.h"

namespace voxhost
{

// What an analysis model is made of, and what may stand where.
const std::vector<PhysicalTypeRule>& ExplicitRules::DefaultTable()
{
  static const std::vector<PhysicalTypeRule> table = {
      // Known to every model under numbers of their own: what has no kind of its own, and what came from another model.
      // Imported entities stand in sets of their category, whatever the sets list.
      {"GENERIC_ENTITY", VOXSamValueEntity, {}},
      {"GENERIC_SET", VOXSamValueOtherSet, {}},
      {"IMPORTED_MATERIAL", VOXSamValueEntity, {}},
      {"IMPORTED_AXIS", VOXSamValueAxis, {}},
      {"IMPORTED_PROPERTY", VOXSamValueEntity, {}},
      {"IMPORTED_RESTRAINT", VOXSamValueEntity, {}},
      {"IMPORTED_LOAD", VOXSamValueEntity, {}},
      {"IMPORTED_MASS", VOXSamValueEntity, {}},

      // The analysis model, its mesh, its sets, and what stands in each.
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
