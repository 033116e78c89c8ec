// SPDX-License-Identifier: MIT
#include "VOXEAnalysisCollectorDerivatives.h"

static_assert(sizeof(VOXEAnalysisCollectorDerivatives) == sizeof(VOXBaseUnknown),
              "deriving classes are laid out on this size");

VOXEAnalysisCollectorDerivatives::VOXEAnalysisCollectorDerivatives() = default;

VOXEAnalysisCollectorDerivatives::~VOXEAnalysisCollectorDerivatives() = default;

bool VOXEAnalysisCollectorDerivatives::AllowDerivativeComputation()
{
  return false;
}

bool VOXEAnalysisCollectorDerivatives::IsDerivativeAvailable(const VOXAnalysisCharacCollector* /*iCollector*/)
{
  return AllowDerivativeComputation(); // virtual on purpose: an override changes this answer as well
}

HRESULT VOXEAnalysisCollectorDerivatives::ComputeParameterVariation(const VOXAnalysisCharacCollector* /*iCollector*/,
                                                                    VOXListValVOXBaseUnknown_var* /*iParameters*/)
{
  return E_NOTIMPL;
}

HRESULT VOXEAnalysisCollectorDerivatives::SetParameterVariation(const VOXBaseUnknown_var& /*iParameter*/,
                                                                double /*iVariation*/)
{
  return E_NOTIMPL;
}

HRESULT
VOXEAnalysisCollectorDerivatives::GetCharacCollectorDerivatives(const VOXAnalysisCharacCollector* /*iCollector*/,
                                                                const VOXAnalysisCharacCollector*& oFirst,
                                                                const VOXAnalysisCharacCollector*& oSecond)
{
  oFirst = nullptr;
  oSecond = nullptr;
  return E_NOTIMPL;
}
