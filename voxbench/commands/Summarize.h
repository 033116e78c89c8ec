// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/readers/NeutralModel.h"
#include "voxbench/report/InfoReport.h"

namespace voxbench
{

//! What the records of a file amount to.
InfoResult Summarize(const NeutralModel& iRecords);

} // namespace voxbench
