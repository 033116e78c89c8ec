// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "ExplicitModel/VOXAnalysisCharacCollector.h"

inline constexpr IID IID_VOXICharacCollectorDerivatives = VOXGuidOfName("VOXICharacCollectorDerivatives");

//! Derivatives of characteristics by parameters. Implemented by: feature types. Called by: the host's optimisation.
class VOX_HOST_API VOXICharacCollectorDerivatives : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXICharacCollectorDerivatives)

  //! 1. Whether the feature can compute derivatives at all.
  virtual bool AllowDerivativeComputation() = 0;

  //! 2. Whether there are derivatives of one collector. @param iCollector borrowed.
  virtual bool IsDerivativeAvailable(const VOXAnalysisCharacCollector* iCollector) = 0;

  //! 3. Computes the variation of the given parameters. @param iCollector, iParameters borrowed. @return S_OK; a
  //! failure.
  virtual HRESULT ComputeParameterVariation(const VOXAnalysisCharacCollector* iCollector,
                                            VOXListValVOXBaseUnknown_var* iParameters) = 0;

  //! 4. Sets the variation of one parameter. @return S_OK; a failure.
  virtual HRESULT SetParameterVariation(const VOXBaseUnknown_var& iParameter, double iVariation) = 0;

  //! 5. The collectors of the first and the second derivative. @param iCollector borrowed.
  //! @param oFirst, oSecond preset to null; on S_OK borrowed.
  //! @return S_OK; a failure.
  virtual HRESULT GetCharacCollectorDerivatives(const VOXAnalysisCharacCollector* iCollector,
                                                const VOXAnalysisCharacCollector*& oFirst,
                                                const VOXAnalysisCharacCollector*& oSecond) = 0;
};

using VOXICharacCollectorDerivatives_var = VOXHandle<VOXICharacCollectorDerivatives>;
