// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

inline constexpr IID IID_VOXISamEditionControl = VOXGuidOfName("VOXISamEditionControl");

//! Decides whether a feature may be edited. Implemented by: feature types. Called by: the host's commands.
class VOX_HOST_API VOXISamEditionControl : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamEditionControl)

  //! 1. Whether edition is allowed. @param oAllowed 1 or 0. @return S_OK.
  virtual HRESULT AllowEdition(unsigned char& oAllowed) = 0;
};

using VOXISamEditionControl_var = VOXHandle<VOXISamEditionControl>;
