// SPDX-License-Identifier: MIT
#include "voxbench/commands/FeatureNames.h"

#include <fnmatch.h>
#include <strings.h>

namespace voxbench
{

bool MatchesPattern(const std::string& iName, const std::string& iPattern)
{
  return strcasecmp(iName.c_str(), iPattern.c_str()) == 0 ||
         fnmatch(iPattern.c_str(), iName.c_str(), FNM_CASEFOLD) == 0;
}

bool IsNamed(const voxhost::Feature& iFeature, const std::string& iPattern)
{
  return MatchesPattern(LoadedModel::DisplayName(iFeature), iPattern) ||
         MatchesPattern(iFeature.Name().ConvertToChar(), iPattern) ||
         (iPattern.find('/') != std::string::npos && MatchesPattern(LoadedModel::PathOf(iFeature), iPattern));
}

} // namespace voxbench
