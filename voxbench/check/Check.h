// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"
#include "voxbench/check/Finding.h"

namespace voxbench
{

//! Looks a whole document through: asks every set and every entity where it may stand, and looks for what a solver would
//! trip over.
CheckResult Check(LoadedModel& ioModel);

//! The two halves. Findings are appended.
void CheckPlaces(LoadedModel& ioModel, CheckResult& ioResult);
void CheckUses(const LoadedModel& iModel, CheckResult& ioResult);

} // namespace voxbench
