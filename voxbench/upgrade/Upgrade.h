// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"
#include "voxbench/upgrade/Decision.h"

#include <cstdint>
#include <functional>

namespace voxbench
{

//! Told how many features of how many are done.
using UpgradeProgress = std::function<void(std::uint64_t iDone, std::uint64_t iTotal)>;

//! Upgrades a document in memory to the newest release: features whose types were replaced become instances of other
//! start-ups, then every feature gets the components that its start-up has gained, then every layered component the
//! values. What it changed is brought up to date.
//! @return what was done and skipped, in that order; empty: nothing was changed.
Decisions UpgradeFeatures(LoadedModel& ioModel, const UpgradeProgress& iProgress);

//! Asks every feature of a document whether it needs an upgrade. @return what does, and why that is so.
Decisions FindStuck(const LoadedModel& iModel, const UpgradeProgress& iProgress);

} // namespace voxbench
