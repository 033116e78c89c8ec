// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamEditionCusto.h"
#include "VOXAnalysisResources.h"

//! Default edition panel of a feature: without an Apply button, and nothing happens in it.
class VOX_ANALYSIS_API VOXEAnalysisEditionCusto : public VOXISamEditionCusto
{
public:
  VOXEAnalysisEditionCusto();
  ~VOXEAnalysisEditionCusto() override;

  //! 1. @return false.
  bool AllowApply() override;

  //! 2. @return S_OK.
  HRESULT ActionPanel(VOXISamEditionCusto::VOXSamTypeActionPanel iAction) override;
};
