// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"
#include "voxbench/report/ViewsReport.h"

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
  std::string setType = {};                  //!< the type of set that an entity belongs in; "" for what is no entity
  std::optional<std::int64_t> entities = {}; //!< what the feature applies to or gathers; none for sets and the like
  std::optional<ViewState> view = {};        //!< none for a feature without visibility
  std::int64_t hidden = 0;                   //!< features below that a depth limit leaves out
  std::vector<TreeNode> children = {};
};

//! Two blanks of indentation per level, so that the lines can be searched and cut.
void PrintTree(Output& ioOutput, const TreeNode& iRoot);

//! {"tree": {"name", "type", "set", "entities", "visible", "noShow", "children": [...]}}
void WriteTreeJson(Output& ioOutput, const TreeNode& iRoot);

} // namespace voxbench
