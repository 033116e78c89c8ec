// SPDX-License-Identifier: MIT
#pragma once
#include "VOXEAnalysisAxis.h"

namespace voxbench
{

//! An axis system that a file names. It stands in the feature's attribute "Frame": origin and three directions, twelve
//! numbers, in model units.
class DeckAxis final : public VOXEAnalysisAxis
{
public:
  //! @return S_OK; E_FAIL when the feature has no such frame: oAxis is untouched.
  HRESULT GetMathAxis(VOXMathAxis& oAxis) const override;

  //! The same: a deck has no units, so its lengths are taken for metres.
  HRESULT GetMKSMathAxis(VOXMathAxis& oAxis) const override;
};

} // namespace voxbench
