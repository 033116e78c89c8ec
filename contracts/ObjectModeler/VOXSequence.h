// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

class VOXBaseUnknown;

//! Sequence of component pointers, counted from 0. It owns its slots, not the references on its members: whoever
//! receives a filled sequence releases every member.
class VOX_HOST_API _SEQUENCE_VOXBaseUnknown_ptr
{
public:
  _SEQUENCE_VOXBaseUnknown_ptr();
  ~_SEQUENCE_VOXBaseUnknown_ptr();
  _SEQUENCE_VOXBaseUnknown_ptr(const _SEQUENCE_VOXBaseUnknown_ptr&) = delete;
  _SEQUENCE_VOXBaseUnknown_ptr& operator=(const _SEQUENCE_VOXBaseUnknown_ptr&) = delete;

  int Length() const; //!< number of slots

  //! An index outside 0..Length()-1 is a fatal error.
  VOXBaseUnknown*& operator[](int iIndex);

  //! Adds a slot; the reference on iMember goes with it.
  void Append(VOXBaseUnknown* iMember);

  //! Drops all slots, releasing nothing.
  void Empty();

private:
  VOXBaseUnknown** _Members;
  int _Length;
  int _Capacity;
};
