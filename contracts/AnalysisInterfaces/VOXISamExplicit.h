// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXRawCollint.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "ExplicitModel/VOXAnalysisExplicitModel.h"

inline constexpr IID IID_VOXISamExplicit = VOXGuidOfName("VOXISamExplicit");

//! What a feature became in the explicit model. Implemented by: the host, for every feature that is translated.
//! - The tags stand in the feature's attribute "ExplicitTag", an integer or a list of them: what somebody writes there is
//!   what operations 3 to 5 answer from then on.
class VOX_HOST_API VOXISamExplicit : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamExplicit)

  //! 1. Name of the physical type that the feature is translated into; empty when it is not.
  virtual VOXString GetPhysicalTypeName() const = 0;

  //! 2. The explicit model that the feature belongs to, borrowed; null when there is none.
  virtual VOXAnalysisExplicitModel* GetExplicitModel() const = 0;

  //! 3. The feature's object in the model. @param oParent emptied when the feature has none; untouched on failure.
  //! @param iMode always 1. @return S_OK, with or without an object; E_FAIL without a model.
  virtual HRESULT GetExplicitParent(VOXAnalysisExplicitParent& oParent, unsigned char iMode) const = 0;

  //! 4. The tags of all objects that the feature produced. @param ioTags they are appended. @return S_OK; E_FAIL.
  virtual HRESULT ListTags(VOXRawCollint& ioTags) const = 0;

  //! 5. The parents that the feature produced. @param ioParents a created list; they are appended. @return S_OK; E_FAIL.
  virtual HRESULT ListParents(VOXAnalysisExplicitListUsr& ioParents) const = 0;

  //! 6. Whether the feature takes part in the analysis. @return 1 or 0.
  virtual unsigned char GetActivity() const = 0;

  //! 7. Tells the feature the state of its translation. @param iState 0: its tags were written by somebody else and
  //! stand as they are. @return S_OK; E_FAIL.
  virtual HRESULT SetExplicitState(int iState) = 0;
};

using VOXISamExplicit_var = VOXHandle<VOXISamExplicit>;
