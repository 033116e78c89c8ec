// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamSupportFilter.h"
#include "VOXAnalysisResources.h"

//! Default filter of supports: whatever exists can be selected, as it is.
class VOX_ANALYSIS_API VOXEAnalysisSupportFilter : public VOXISamSupportFilter
{
public:
  VOXEAnalysisSupportFilter();
  ~VOXEAnalysisSupportFilter() override;

  //! 1. @return true.
  bool GetStatus(VOXPathElement* iPath) override;

  //! 2. @param iPath not looked at. @param oFirst, oSecond set to null. @return E_NOTIMPL.
  HRESULT GetSelectableObject(VOXPathElement* iPath, VOXBaseUnknown*& oFirst, VOXBaseUnknown*& oSecond) override;

  //! 3. @return E_FAIL when either pointer is null, else S_OK.
  HRESULT ValidateSupport(const VOXBaseUnknown* iFirst, const VOXBaseUnknown* iSecond) override;

  //! 4. @param iSupport not looked at. @param oId untouched. @return E_FAIL.
  HRESULT GetNLSid(const VOXBaseUnknown* iSupport, VOXString& oId) override;
};
