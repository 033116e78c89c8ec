// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

inline constexpr IID IID_VOXILinkableObject = VOXGuidOfName("VOXILinkableObject");

//! A feature that other documents can link to. Implemented by: the host's object modeler.
class VOX_HOST_API VOXILinkableObject : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXILinkableObject)

  //! 1. What stands for the feature in a link; borrowed, opaque; null when the feature is in no document.
  virtual void* GetLinkValue() = 0;
};

using VOXILinkableObject_var = VOXHandle<VOXILinkableObject>;
