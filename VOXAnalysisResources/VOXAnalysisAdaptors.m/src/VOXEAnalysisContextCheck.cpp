// SPDX-License-Identifier: MIT
#include "VOXEAnalysisContextCheck.h"

static_assert(sizeof(VOXEAnalysisContextCheck) == sizeof(VOXBaseUnknown), "deriving classes are laid out on this size");

VOXEAnalysisContextCheck::VOXEAnalysisContextCheck() = default;

VOXEAnalysisContextCheck::~VOXEAnalysisContextCheck() = default;

HRESULT VOXEAnalysisContextCheck::Check(VOXDocument* /*iAnalysis*/, VOXDocument* /*iOther*/)
{
  return S_OK;
}

HRESULT VOXEAnalysisContextCheck::ClosingEditor(VOXFrmEditor* /*iEditor*/)
{
  return S_OK;
}
