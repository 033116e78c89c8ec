// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

inline constexpr IID IID_VOXISamAnalysisFeatureUpdate = VOXGuidOfName("VOXISamAnalysisFeatureUpdate");

//! Update of a feature beside that of the document. Implemented by: feature types. Called by: the host.
class VOX_HOST_API VOXISamAnalysisFeatureUpdate : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamAnalysisFeatureUpdate)

  //! What to update.
  enum VOXSamUpdateAction : int
  {
    UpdateAll = 0,
    UpdateMesh = 1,
    UpdateResults = 2
  };

  //! 1. Updates the feature. @return S_OK; a failure.
  virtual HRESULT Update(VOXSamUpdateAction iAction) = 0;

  //! 2. Whether the feature is up to date. @param oUpToDate preset by the caller, which a feature may leave as it is.
  virtual void IsUpToDate(unsigned char& oUpToDate) const = 0;

  //! 3. Marks the feature out of date.
  virtual void SetNoUpToDate() = 0;
};

using VOXISamAnalysisFeatureUpdate_var = VOXHandle<VOXISamAnalysisFeatureUpdate>;
