// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamAnalysisContextCheck.h"
#include "VOXAnalysisResources.h"

//! Default say of a feature when documents are combined: everything is fine.
class VOX_ANALYSIS_API VOXEAnalysisContextCheck : public VOXISamAnalysisContextCheck
{
public:
  VOXEAnalysisContextCheck();
  ~VOXEAnalysisContextCheck() override;

  //! 1. @return S_OK.
  HRESULT Check(VOXDocument* iAnalysis, VOXDocument* iOther) override;

  //! 2. @return S_OK.
  HRESULT ClosingEditor(VOXFrmEditor* iEditor) override;
};
