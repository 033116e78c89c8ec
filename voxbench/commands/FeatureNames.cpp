// SPDX-License-Identifier: MIT
#include "voxbench/commands/FeatureNames.h"

#include <fnmatch.h>
#include <strings.h>

namespace voxbench
{
namespace
{

//! Names of a deck may have brackets: a name that is the pattern, letter by letter, is meant in any case.
bool Matches(const std::string& iText, const std::string& iPattern)
{
  return strcasecmp(iText.c_str(), iPattern.c_str()) == 0 ||
         fnmatch(iPattern.c_str(), iText.c_str(), FNM_CASEFOLD) == 0;
}

} // namespace

bool IsNamed(const voxhost::Feature& iFeature, const std::string& iPattern)
{
  return Matches(LoadedModel::DisplayName(iFeature), iPattern) || Matches(iFeature.Name().ConvertToChar(), iPattern) ||
         (iPattern.find('/') != std::string::npos && Matches(LoadedModel::PathOf(iFeature), iPattern));
}

} // namespace voxbench
