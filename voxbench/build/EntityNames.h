// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/readers/NeutralModel.h"

#include <string>

namespace voxbench
{

//! What people call the entity that a card makes: "CLOAD 3 on TOP and node 13, step 1".
std::string AliasOf(const AppliedCard& iCard, const NeutralModel& iRecords);
std::string AliasOf(const Section& iSection);
std::string AliasOf(const OutputRequest& iRequest);

//! The word for how a surface is defined.
const char* DefinitionOf(SurfaceKind iKind);

} // namespace voxbench
