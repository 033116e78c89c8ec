// SPDX-License-Identifier: MIT
#pragma once

namespace voxbench
{

//! The workbench's own feature types. Each derives from the type of the host that its set holds.
inline constexpr const char* kNodeGroupType = "DeckNodeGroup";
inline constexpr const char* kEdgeGroupType = "DeckEdgeGroup";
inline constexpr const char* kFaceGroupType = "DeckFaceGroup";
inline constexpr const char* kElementGroupType = "DeckElementGroup";
inline constexpr const char* kMaterialGroupType = "DeckMaterialGroup";
inline constexpr const char* kMaterialType = "DeckMaterial";
inline constexpr const char* kLoadType = "DeckLoad";
inline constexpr const char* kRestraintType = "DeckRestraint";
//! What a restraint was before release 3; its attributes have other names and types.
inline constexpr const char* kFormerRestraintType = "DeckBoundary";
inline constexpr const char* kConstraintType = "DeckConstraint";
inline constexpr const char* kMassType = "DeckMass";
inline constexpr const char* kPropertyType = "DeckProperty";
inline constexpr const char* kLayeredShellType = "DeckLayeredShell";
inline constexpr const char* kModulationType = "DeckModulation";
inline constexpr const char* kSensorType = "DeckSensor";
inline constexpr const char* kAxisType = "DeckAxis";
inline constexpr const char* kConnectionType = "DeckConnection";
inline constexpr const char* kConnectionSideType = "DeckConnectionSide";
inline constexpr const char* kSolutionType = "Solution";

//! Basic components: choices, and the numbers that they need.
inline constexpr const char* kSectionKindType = "SectionKind";
inline constexpr const char* kRestraintKindType = "RestraintKind";
inline constexpr const char* kShellThicknessType = "ShellThickness";
inline constexpr const char* kShellOffsetType = "ShellOffset";
inline constexpr const char* kBeamWidthType = "BeamWidth";
inline constexpr const char* kBeamHeightType = "BeamHeight";
inline constexpr const char* kSpringStiffnessType = "SpringStiffness";
inline constexpr const char* kDashpotCoefficientType = "DashpotCoefficient";
inline constexpr const char* kGapClearanceType = "GapClearance";
inline constexpr const char* kPrescribedValueType = "PrescribedValue";
inline constexpr const char* kModulationFactorType = "ModulationFactor";
inline constexpr const char* kPliesType = "ShellPlies";
inline constexpr const char* kPlyThicknessType = "PlyThickness";

} // namespace voxbench
