// SPDX-License-Identifier: MIT
#pragma once

//! A door to a private member of an adaptor, for tests of what no operation shows: a member that an explicit instantiation
//! names may be private. Stands in the unnamed namespace of a source file.
//! @code
//!   VOX_DOOR(NumberDoor, std::int32_t Adaptor::*, &Adaptor::_Number);
//!   adaptor.*Open(NumberDoor()) = 3;
//! @endcode
#define VOX_DOOR(Name, MemberType, Member)                                                                             \
  struct Name                                                                                                          \
  {                                                                                                                    \
    using Type = MemberType;                                                                                           \
    friend Type Open(Name);                                                                                            \
  };                                                                                                                   \
  template <Name::Type Pointer>                                                                                        \
  struct Name##Opens                                                                                                   \
  {                                                                                                                    \
    friend Name::Type Open(Name) { return Pointer; }                                                                   \
  };                                                                                                                   \
  template struct Name##Opens<Member>
