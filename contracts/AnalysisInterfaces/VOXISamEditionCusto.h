// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

inline constexpr IID IID_VOXISamEditionCusto = VOXGuidOfName("VOXISamEditionCusto");

//! Customises the edition panel of a feature. Implemented by: feature types. Called by: the host's commands.
class VOX_HOST_API VOXISamEditionCusto : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamEditionCusto)

  //! What happens in the panel.
  enum VOXSamTypeActionPanel : int
  {
    PanelOpened = 0,
    PanelApplied = 1,
    PanelClosed = 2,
    PanelCancelled = 3
  };

  //! 1. Whether the panel has an Apply button.
  virtual bool AllowApply() = 0;

  //! 2. Tells the feature what happens in the panel. @return S_OK.
  virtual HRESULT ActionPanel(VOXSamTypeActionPanel iAction) = 0;
};

using VOXISamEditionCusto_var = VOXHandle<VOXISamEditionCusto>;
