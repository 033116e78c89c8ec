// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

class VOXMathAxis;

inline constexpr IID IID_VOXISamAnalysisAxis = VOXGuidOfName("VOXISamAnalysisAxis");

//! Axis system of an analysis feature.
//!
//! Implemented by: feature types, usually by deriving from VOXEAnalysisAxis. Called by: the host.
//! - The answer is a copy: changing it changes nothing in the feature.
//! - Both operations describe the same axis; they differ in units only.
class VOX_HOST_API VOXISamAnalysisAxis : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamAnalysisAxis)

  //! 1. The axis in the feature's model units. @param oAxis caller's object, overwritten whole on S_OK, untouched
  //! otherwise. @return S_OK; E_FAIL if the feature has no axis.
  virtual HRESULT GetMathAxis(VOXMathAxis& oAxis) const = 0;

  //! 2. The axis in metres: the origin is converted, the directions have no unit. @param oAxis as for GetMathAxis.
  //! @return S_OK; E_FAIL if the feature has no axis.
  virtual HRESULT GetMKSMathAxis(VOXMathAxis& oAxis) const = 0;
};

using VOXISamAnalysisAxis_var = VOXHandle<VOXISamAnalysisAxis>;
