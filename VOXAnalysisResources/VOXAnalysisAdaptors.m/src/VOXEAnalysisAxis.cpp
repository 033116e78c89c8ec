// SPDX-License-Identifier: MIT
#include "VOXEAnalysisAxis.h"

#include "Visualization/VOXMathAxis.h"

static_assert(sizeof(VOXEAnalysisAxis) == sizeof(VOXBaseUnknown), "deriving classes are laid out on this size");

VOXEAnalysisAxis::VOXEAnalysisAxis() = default;

VOXEAnalysisAxis::~VOXEAnalysisAxis() = default;

HRESULT VOXEAnalysisAxis::GetMathAxis(VOXMathAxis& oAxis) const
{
  oAxis = VOXMathOIJK;
  return S_OK;
}

HRESULT VOXEAnalysisAxis::GetMKSMathAxis(VOXMathAxis& oAxis) const
{
  GetMathAxis(oAxis); // virtual on purpose: the feature type's axis; Kept: its result is not looked at
  return S_OK;
}
