// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamAnalysisAxis.h"
#include "VOXAnalysisResources.h"

//! Default axis of an analysis feature: the canonical one. A feature type overrides GetMathAxis and must supply
//! GetMKSMathAxis, which may call the body given here.
class VOX_ANALYSIS_API VOXEAnalysisAxis : public VOXISamAnalysisAxis
{
public:
  VOXEAnalysisAxis();
  ~VOXEAnalysisAxis() override;

  //! 1. The canonical axis. @param oAxis overwritten whole. @return S_OK.
  HRESULT GetMathAxis(VOXMathAxis& oAxis) const override;

  //! 2. To be supplied by the feature type. The body given here, reached by its name, answers what this object's
  //! GetMathAxis answers: right for a model in metres. @return S_OK.
  HRESULT GetMKSMathAxis(VOXMathAxis& oAxis) const override = 0;
};
