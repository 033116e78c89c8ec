// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"

#include <string>

namespace voxbench
{

//! Whether a name fits a pattern, in which * and ? stand for any text and any character. Names of a deck may have brackets:
//! a name that is the pattern, letter by letter, is meant in any case. Letter case makes no difference.
bool MatchesPattern(const std::string& iName, const std::string& iPattern);

//! Whether a user who writes iPattern means a feature: by its alias, its name or its path from the analysis model on,
//! whole or with * and ? for any text and any character. Letter case makes no difference.
bool IsNamed(const voxhost::Feature& iFeature, const std::string& iPattern);

} // namespace voxbench
