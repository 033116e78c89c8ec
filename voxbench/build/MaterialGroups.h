// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"

#include <vector>

namespace voxbench
{

//! Makes a group of elements for each material that a property refers to, named like the material, which gathers the
//! groups that those properties apply to. The groups belong to the document and stand in no set.
//! @return the groups in the order of the materials, borrowed.
std::vector<voxhost::Feature*> MakeMaterialGroups(LoadedModel& ioModel);

} // namespace voxbench
