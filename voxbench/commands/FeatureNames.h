// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"

#include <string>

namespace voxbench
{

//! Whether a user who writes iPattern means a feature: by its alias, its name or its path from the analysis model on,
//! whole or with * and ? for any text and any character. Letter case makes no difference.
bool IsNamed(const voxhost::Feature& iFeature, const std::string& iPattern);

} // namespace voxbench
