// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamFeatureUpgrade.h"
#include "VOXEAnalysisUpgrade.h"

// Does not compile on purpose, and says why: the adaptor does not derive from the interface.
inline bool DeclareWithoutATie()
{
  return VOXExtendLateType<VOXISamFeatureUpgrade, VOXEAnalysisUpgrade>("Any") == S_OK &&
         VOXTieLateType<VOXISamFeatureUpgrade, VOXEAnalysisUpgrade>("Any") == S_OK;
}
