// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace voxbench
{

//! One feature of the tree and what stands below it.
struct TreeNode
{
  std::string name; //!< the alias, or the name of a feature without one
  std::string type;
  std::optional<std::int64_t> entities; //!< what the feature applies to or gathers; none for sets and the like
  std::int64_t hidden = 0;              //!< features below that a depth limit leaves out
  std::vector<TreeNode> children;
};

//! Two blanks of indentation per level, so that the lines can be searched and cut.
void PrintTree(Output& ioOutput, const TreeNode& iRoot);

//! {"tree": {"name", "type", "entities", "children": [...]}}
void WriteTreeJson(Output& ioOutput, const TreeNode& iRoot);

} // namespace voxbench
