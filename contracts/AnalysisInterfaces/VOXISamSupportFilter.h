// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXString.h"

class VOXPathElement;

inline constexpr IID IID_VOXISamSupportFilter = VOXGuidOfName("VOXISamSupportFilter");

//! Decides what a person may select as a support of a feature. Implemented by: feature types. Called by: the host.
class VOX_HOST_API VOXISamSupportFilter : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamSupportFilter)

  //! 1. Whether what the path designates can be selected. @param iPath borrowed.
  virtual bool GetStatus(VOXPathElement* iPath) = 0;

  //! 2. What to select in place of the path. @param iPath borrowed. @param oFirst, oSecond preset to null; on S_OK one
  //! reference each for the caller. @return S_OK; a failure.
  virtual HRESULT GetSelectableObject(VOXPathElement* iPath, VOXBaseUnknown*& oFirst, VOXBaseUnknown*& oSecond) = 0;

  //! 3. Whether a selected object may be a support. Both borrowed. @return S_OK; E_FAIL refuses.
  virtual HRESULT ValidateSupport(const VOXBaseUnknown* iFirst, const VOXBaseUnknown* iSecond) = 0;

  //! 4. Key of the message that explains a refusal. @param iSupport borrowed. @param oId untouched on failure.
  //! @return S_OK; E_FAIL without one.
  virtual HRESULT GetNLSid(const VOXBaseUnknown* iSupport, VOXString& oId) = 0;
};

using VOXISamSupportFilter_var = VOXHandle<VOXISamSupportFilter>;
