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
inline constexpr const char* kMassType = "DeckMass";
inline constexpr const char* kPropertyType = "DeckProperty";
inline constexpr const char* kModulationType = "DeckModulation";
inline constexpr const char* kSensorType = "DeckSensor";

} // namespace voxbench
