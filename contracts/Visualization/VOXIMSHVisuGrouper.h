// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

inline constexpr IID IID_VOXIMSHVisuGrouper = VOXGuidOfName("VOXIMSHVisuGrouper");

//! Gathers the visualisation of a mesh feature. Implemented by: the host's visualisation layer.
class VOX_HOST_API VOXIMSHVisuGrouper : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIMSHVisuGrouper)

  //! 1. The visualisation object of the feature, borrowed, opaque; null when there is none.
  virtual void* GetVisuObject() = 0;
};

using VOXIMSHVisuGrouper_var = VOXHandle<VOXIMSHVisuGrouper>;
