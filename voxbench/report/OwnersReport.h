// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <string>
#include <vector>

namespace voxbench
{

//! An object of the explicit model and the feature that made it.
struct OwnerRow
{
  std::string asked; //!< "tag 12", "node 5", "element 7"
  int tag = 0;       //!< 0 when there is no such object
  std::string kind;  //!< physical type
  std::string name;  //!< of the object; "" for nodes and elements
  std::string owner; //!< path of the feature, "/" between names; "" when there is none
  std::string ownerType;
  std::string remark; //!< why there is no owner, and what comes closest; "" when there is one
};

void PrintOwners(Output& ioOutput, const std::vector<OwnerRow>& iRows);

//! {"owners": [...]}
void WriteOwnersJson(Output& ioOutput, const std::vector<OwnerRow>& iRows);

} // namespace voxbench
