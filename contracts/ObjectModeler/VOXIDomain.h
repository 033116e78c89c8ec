// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

inline constexpr IID IID_VOXIDomain = VOXGuidOfName("VOXIDomain");

//! Part of a document that is brought up to date by itself. Implemented by: the host's object modeler.
//! The adaptors only pass empty handles on it: the whole document.
class VOX_HOST_API VOXIDomain : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIDomain)
};

using VOXIDomain_var = VOXHandle<VOXIDomain>;
