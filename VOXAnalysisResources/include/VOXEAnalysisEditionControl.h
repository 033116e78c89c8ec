// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamEditionControl.h"
#include "VOXAnalysisResources.h"

//! Default decision about the edition of a feature: it is always allowed.
class VOX_ANALYSIS_API VOXEAnalysisEditionControl : public VOXISamEditionControl
{
public:
  VOXEAnalysisEditionControl();
  ~VOXEAnalysisEditionControl() override;

  //! 1. @param oAllowed set to 1. @return S_OK.
  HRESULT AllowEdition(unsigned char& oAllowed) override;
};
