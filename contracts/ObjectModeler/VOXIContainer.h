// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

class _SEQUENCE_VOXBaseUnknown_ptr;

inline constexpr IID IID_VOXIContainer = VOXGuidOfName("VOXIContainer");

//! A container of features. Implemented by: the host's object modeler.
class VOX_HOST_API VOXIContainer : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIContainer)

  //! 1. The members that have an interface, in the container's order.
  //! @param iInterfaceName name of the interface. @param oMembers emptied, then filled: one reference for the caller on
  //! every member. @return number of members put into oMembers.
  virtual int ListMembers(const char* iInterfaceName, _SEQUENCE_VOXBaseUnknown_ptr& oMembers) const = 0;
};

using VOXIContainer_var = VOXHandle<VOXIContainer>;
