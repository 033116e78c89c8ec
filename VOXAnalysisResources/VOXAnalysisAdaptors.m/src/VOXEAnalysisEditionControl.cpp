// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEditionControl.h"

static_assert(sizeof(VOXEAnalysisEditionControl) == sizeof(VOXBaseUnknown),
              "deriving classes are laid out on this size");

VOXEAnalysisEditionControl::VOXEAnalysisEditionControl() = default;

VOXEAnalysisEditionControl::~VOXEAnalysisEditionControl() = default;

HRESULT VOXEAnalysisEditionControl::AllowEdition(unsigned char& oAllowed)
{
  oAllowed = 1;
  return S_OK;
}
