// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXBaseUnknown.h"

namespace voxframe
{

//! Holds one reference that the host gave to the caller, and gives it back when it dies, or sooner with GiveBack.
//! Unlike a `_var` handle it queries nothing and takes no reference of its own.
template <class Interface>
class Counted
{
public:
  Counted() noexcept : _Given(nullptr) {}
  explicit Counted(Interface* iGiven) noexcept : _Given(iGiven) {}
  Counted(Counted&& ioOther) noexcept : _Given(ioOther.HandOn()) {}
  ~Counted() { GiveBack(); }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  Counted& operator=(Counted&& ioOther) // NOLINT(performance-noexcept-move-constructor): a Release may throw
  {
    GiveBack();
    _Given = ioOther.HandOn();
    return *this;
  }

  void GiveBack()
  {
    Interface* const given = HandOn();
    if (given != nullptr)
      given->Release();
  }

  //! The interface, with its reference, for somebody else to release.
  Interface* HandOn() noexcept
  {
    Interface* const given = _Given;
    _Given = nullptr;
    return given;
  }

  //! The interface, borrowed; null when nothing was given.
  Interface* Get() const noexcept { return _Given; }
  Interface* operator->() const noexcept { return _Given; }
  explicit operator bool() const noexcept { return _Given != nullptr; }

private:
  Interface* _Given;
};

//! Asks this very face for an interface. It succeeded when there is a pointer, whatever the result says.
template <class Interface>
Counted<Interface> QueryFor(const VOXBaseUnknown* iFace)
{
  void* face = nullptr;
  const_cast<VOXBaseUnknown*>(iFace)->QueryInterface(Interface::ClassId(), &face);
  return Counted<Interface>(static_cast<Interface*>(face));
}

} // namespace voxframe
