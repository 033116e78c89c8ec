// SPDX-License-Identifier: MIT
#pragma once
#include "AnalysisInterfaces/VOXIExpressionCollector.h"
#include "VOXEExpressionCollector.h"

namespace voxbench
{

//! The expressions of a deck's amplitudes and linear constraints: they stand below the feature's object in the model.
class DeckExpressions final : public VOXEExpressionCollector
{
public:
  //! The name of the expression. @return S_OK; E_FAIL for a handle that designates none.
  HRESULT GetExpressionTitle(const VOXAnalysisExplicitExpression& iExpression, VOXString& oTitle) override;
};

} // namespace voxbench
