// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"

#include <cstdint>
#include <string>
#include <vector>

namespace voxbench
{

//! The nodes that a group stands for: its own, or those of its elements and faces.
struct GroupNodes
{
  std::string name;
  std::string kind;                //!< NODE, EDGE, FACE or ELEMENT
  std::int64_t entities = 0;       //!< that the group hands out
  std::vector<std::int32_t> nodes; //!< ascending, each once
  std::string failure;             //!< why there are none; "" when there are
};

//! Asks the groups whose name matches a pattern (* and ? stand for any text and any character) for their content.
std::vector<GroupNodes> NodesOfGroups(const LoadedModel& iModel, const std::vector<std::string>& iPatterns);

} // namespace voxbench
