// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXICharacCollectorDerivatives.h"
#include "VOXAnalysisResources.h"

//! Default answers about derivatives: there are none. A feature type that has some overrides AllowDerivativeComputation
//! first, which IsDerivativeAvailable answers too.
class VOX_ANALYSIS_API VOXEAnalysisCollectorDerivatives : public VOXICharacCollectorDerivatives
{
public:
  VOXEAnalysisCollectorDerivatives();
  ~VOXEAnalysisCollectorDerivatives() override;

  //! 1. @return false.
  bool AllowDerivativeComputation() override;

  //! 2. @return what this object's AllowDerivativeComputation answers, whatever the collector.
  bool IsDerivativeAvailable(const VOXAnalysisCharacCollector* iCollector) override;

  //! 3. @return E_NOTIMPL.
  HRESULT ComputeParameterVariation(const VOXAnalysisCharacCollector* iCollector,
                                    VOXListValVOXBaseUnknown_var* iParameters) override;
  //! 4. @return E_NOTIMPL.
  HRESULT SetParameterVariation(const VOXBaseUnknown_var& iParameter, double iVariation) override;

  //! 5. @param iCollector not looked at. @param oFirst, oSecond set to null. @return E_NOTIMPL.
  HRESULT GetCharacCollectorDerivatives(const VOXAnalysisCharacCollector* iCollector,
                                        const VOXAnalysisCharacCollector*& oFirst,
                                        const VOXAnalysisCharacCollector*& oSecond) override;
};
