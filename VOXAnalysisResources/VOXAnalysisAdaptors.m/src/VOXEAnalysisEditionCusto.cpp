// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEditionCusto.h"

static_assert(sizeof(VOXEAnalysisEditionCusto) == sizeof(VOXBaseUnknown), "deriving classes are laid out on this size");

VOXEAnalysisEditionCusto::VOXEAnalysisEditionCusto() = default;

VOXEAnalysisEditionCusto::~VOXEAnalysisEditionCusto() = default;

bool VOXEAnalysisEditionCusto::AllowApply()
{
  return false;
}

HRESULT VOXEAnalysisEditionCusto::ActionPanel(VOXISamEditionCusto::VOXSamTypeActionPanel /*iAction*/)
{
  return S_OK;
}
