// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"
#include "voxbench/readers/ResultRecords.h"

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

//! A group of a deck, of which a result file lacks some.
struct GroupStrangers
{
  std::string name;
  bool ofNodes = true; //!< else of elements, or of their sides
  std::int64_t count = 0;
  std::int64_t members = 0;
};

//! The sets and surfaces whose name matches a pattern and whose members are not all in the mesh of the results.
std::vector<GroupStrangers> StrangersOf(const NeutralModel& iDeck, const ResultRecords& iResults,
                                        const std::vector<std::string>& iPatterns);

} // namespace voxbench
