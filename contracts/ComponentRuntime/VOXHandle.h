// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXBaseUnknown.h"

//! Type of `NULL_var`, the empty handle.
struct VOXNullHandle
{
};
inline constexpr VOXNullHandle NULL_var{};

//! Smart handle on an interface; `VOXISpecObject_var` is `VOXHandle<VOXISpecObject>`, and so on.
//!
//! - Made or assigned from any component (a pointer or another handle) it queries its own interface there, and is empty
//!   when the component lacks it or the pointer is null.
//! - A handle on `VOXBaseUnknown` keeps the very pointer it is given; it queries nothing.
//! - It holds one reference, its own, and gives it back when it dies or is assigned.
//! - Copying a handle of the same interface takes a reference and queries nothing.
template <class Interface>
class VOX_HOST_API VOXHandle
{
public:
  VOXHandle() noexcept : _Pointer(nullptr) {}
  //! Empty.
  VOXHandle(VOXNullHandle) noexcept : _Pointer(nullptr) {}
  //! Empty.
  VOXHandle(std::nullptr_t) noexcept : _Pointer(nullptr) {}
  //! Queries the component for the handle's interface.
  VOXHandle(const VOXBaseUnknown* iComponent) : _Pointer(Query(iComponent)) {}
  //! Takes a reference of its own.
  VOXHandle(const VOXHandle& iOther) : _Pointer(iOther._Pointer) { Take(); }
  //! Takes over the other's reference; that one is empty afterwards.
  VOXHandle(VOXHandle&& ioOther) noexcept : _Pointer(ioOther._Pointer) { ioOther._Pointer = nullptr; }
  //! Queries the other's component for this handle's interface.
  template <class Other>
  VOXHandle(const VOXHandle<Other>& iOther) : _Pointer(Query(static_cast<const VOXBaseUnknown*>(iOther.Get())))
  {
  }
  ~VOXHandle() { GiveBack(); }

  //! Gives back the reference so far and takes over that of iOther, which is a copy.
  VOXHandle& operator=(VOXHandle iOther) noexcept
  {
    Interface* const previous = _Pointer;
    _Pointer = iOther._Pointer;
    iOther._Pointer = previous;
    return *this;
  }

  //! The interface, borrowed; null when the handle is empty.
  Interface* Get() const noexcept { return _Pointer; }
  //! The same.
  operator Interface*() const noexcept { return _Pointer; }
  //! The same; the handle must not be empty.
  Interface* operator->() const noexcept { return _Pointer; }
  //! The interface; the handle must not be empty.
  Interface& operator*() const noexcept { return *_Pointer; }
  //! Whether the handle is empty.
  bool operator!() const noexcept { return _Pointer == nullptr; }

  //! Whether the handle is empty.
  friend bool operator==(const VOXHandle& iLeft, VOXNullHandle) noexcept { return iLeft._Pointer == nullptr; }
  //! Whether the handle holds something.
  friend bool operator!=(const VOXHandle& iLeft, VOXNullHandle) noexcept { return iLeft._Pointer != nullptr; }

private:
  static Interface* Query(const VOXBaseUnknown* iComponent)
  {
    void* face = nullptr;
    if (iComponent != nullptr)
      const_cast<VOXBaseUnknown*>(iComponent)->QueryInterface(Interface::ClassId(), &face);
    return static_cast<Interface*>(face);
  }

  void Take() noexcept
  {
    if (_Pointer != nullptr)
      _Pointer->AddRef();
  }

  void GiveBack() noexcept
  {
    if (_Pointer != nullptr)
      _Pointer->Release();
  }

  Interface* _Pointer;
};

template <>
inline VOXBaseUnknown* VOXHandle<VOXBaseUnknown>::Query(const VOXBaseUnknown* iComponent)
{
  VOXBaseUnknown* const component = const_cast<VOXBaseUnknown*>(iComponent);
  if (component != nullptr)
    component->AddRef();
  return component;
}

using VOXBaseUnknown_var = VOXHandle<VOXBaseUnknown>;
