// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXISpecObject.h"

inline constexpr IID IID_VOXISamUpgradeContainer = VOXGuidOfName("VOXISamUpgradeContainer");

//! Upgrade of the features of one container. Implemented by: feature types, usually by deriving from
//! VOXEAnalysisUpgradeContainer. Called by: the host's upgrade machinery.
class VOX_HOST_API VOXISamUpgradeContainer : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamUpgradeContainer)

  //! 1. Upgrades the whole container. @return S_OK; a failure.
  virtual HRESULT UpgradeContainer() = 0;

  //! 2. Whether documents of a release need an upgrade. @param iVersion, iRelease the release that wrote the document.
  virtual bool NeedToUpgraded(int iVersion, int iRelease) = 0;

  //! 3. Upgrades one feature of the container. @param iObject borrowed. @return S_OK; a failure.
  virtual HRESULT UpgradeObject(const VOXISpecObject* iObject) = 0;
};

using VOXISamUpgradeContainer_var = VOXHandle<VOXISamUpgradeContainer>;
