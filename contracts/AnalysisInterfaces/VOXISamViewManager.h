// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

inline constexpr IID IID_VOXISamViewManager = VOXGuidOfName("VOXISamViewManager");

//! Shows features in the tree and in 3D. Implemented by: the host.
class VOX_HOST_API VOXISamViewManager : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamViewManager)

  //! 1. Shows an object. @param iObject borrowed. @param iView 2: in the graph; 1: in 3D.
  virtual void Show(VOXBaseUnknown* iObject, int iView) = 0;

  //! 2. The no-show status of the feature changed. @param iMode always 0.
  virtual void UpdateShowStatus(int iMode) = 0;
};

using VOXISamViewManager_var = VOXHandle<VOXISamViewManager>;
