// SPDX-License-Identifier: MIT
#pragma once

#include "host/FeatureModeler/Feature.h"

#include <optional>
#include <string>

namespace voxhost
{

struct Feature::Rarities
{
  std::optional<std::string> identifyingString;
  std::optional<std::string> physicalType;
  VOXAnalysisExplicitModel* explicitModel = nullptr;
  VOXBaseUnknown_var componentValue;
};

} // namespace voxhost
