// SPDX-License-Identifier: MIT
#include "VOXEAnalysisSupportFilter.h"

static_assert(sizeof(VOXEAnalysisSupportFilter) == sizeof(VOXBaseUnknown),
              "deriving classes are laid out on this size");

VOXEAnalysisSupportFilter::VOXEAnalysisSupportFilter() = default;

VOXEAnalysisSupportFilter::~VOXEAnalysisSupportFilter() = default;

bool VOXEAnalysisSupportFilter::GetStatus(VOXPathElement* /*iPath*/)
{
  return true;
}

HRESULT VOXEAnalysisSupportFilter::GetSelectableObject(VOXPathElement* /*iPath*/, VOXBaseUnknown*& oFirst,
                                                       VOXBaseUnknown*& oSecond)
{
  oFirst = nullptr;
  oSecond = nullptr;
  return E_NOTIMPL;
}

HRESULT VOXEAnalysisSupportFilter::ValidateSupport(const VOXBaseUnknown* iFirst, const VOXBaseUnknown* iSecond)
{
  return iFirst == nullptr || iSecond == nullptr ? E_FAIL : S_OK;
}

HRESULT VOXEAnalysisSupportFilter::GetNLSid(const VOXBaseUnknown* /*iSupport*/, VOXString& /*oId*/)
{
  return E_FAIL;
}
