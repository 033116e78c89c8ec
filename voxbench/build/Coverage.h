// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/readers/NeutralModel.h"

#include <cstdint>
#include <string>
#include <vector>

namespace voxbench
{

//! Records of one kind that the feature tree has no place for yet.
struct UncoveredRecords
{
  std::string what;
  std::int64_t count = 0;
};

//! What stands in the records and becomes no feature; kinds of which there is none are left out.
std::vector<UncoveredRecords> RecordsWithoutFeature(const NeutralModel& iRecords);

//! "solid", "shell", "mass"...
const char* NameOf(SectionKind iKind);

} // namespace voxbench
