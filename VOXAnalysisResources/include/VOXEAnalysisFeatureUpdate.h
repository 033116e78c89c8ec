// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamAnalysisFeatureUpdate.h"
#include "VOXAnalysisResources.h"

//! Default update of a feature beside that of the document: there is nothing to update, and nothing is known.
class VOX_ANALYSIS_API VOXEAnalysisFeatureUpdate : public VOXISamAnalysisFeatureUpdate
{
public:
  VOXEAnalysisFeatureUpdate();
  ~VOXEAnalysisFeatureUpdate() override;

  //! 1. @return S_OK.
  HRESULT Update(VOXISamAnalysisFeatureUpdate::VOXSamUpdateAction iAction) override;

  //! 2. @param oUpToDate left as the caller set it.
  void IsUpToDate(unsigned char& oUpToDate) const override;

  //! 3. Nothing.
  void SetNoUpToDate() override;
};
