// SPDX-License-Identifier: MIT
#pragma once
#include "ExplicitModel/VOXSamTypes.h"

#include <array>

namespace voxbench
{

//! A kind of entities that a group can gather: the keyword and the value kind that it is asked with.
struct GroupKind
{
  const char* keyword;
  VOXSamValue value;
  const char* physicalType; //!< of the object under the group that applies to the entities
  bool hasSides;            //!< an entity is a side of an element
};

inline constexpr GroupKind kNodeKind{"NODE", VOXSamValueNode, "NODE_GROUP", false};
inline constexpr GroupKind kEdgeKind{"EDGE", VOXSamValueElement, "EDGE_GROUP", true};
inline constexpr GroupKind kFaceKind{"FACE", VOXSamValueElement, "FACE_GROUP", true};
inline constexpr GroupKind kElementKind{"ELEMENT", VOXSamValueElement, "ELEMENT_GROUP", false};

inline constexpr std::array kGroupKinds{&kNodeKind, &kEdgeKind, &kFaceKind, &kElementKind};

} // namespace voxbench
