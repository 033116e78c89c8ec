// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/readers/NeutralModel.h"

#include <string>
#include <unordered_set>

namespace voxbench
{

//! Names of sets and surfaces that are used by what becomes no feature: initial conditions, thicknesses, parameters of
//! cards, cards without a record of their own, and other sets. A word that only looks like a name is in it, too: what is
//! said to be unused must be unused.
std::unordered_set<std::string> NamesInUse(const NeutralModel& iRecords);

} // namespace voxbench
