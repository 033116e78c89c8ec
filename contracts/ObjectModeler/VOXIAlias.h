// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXUnicodeString.h"

inline constexpr IID IID_VOXIAlias = VOXGuidOfName("VOXIAlias");

//! The name that a person gave to a feature. Implemented by: the host's object modeler.
class VOX_HOST_API VOXIAlias : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIAlias)

  //! 1. The alias; empty when there is none.
  virtual VOXUnicodeString GetAlias() const = 0;

  //! 2. Sets the alias; an empty one takes it away.
  virtual HRESULT SetAlias(const VOXUnicodeString& iAlias) = 0;
};

using VOXIAlias_var = VOXHandle<VOXIAlias>;
