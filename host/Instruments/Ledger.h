// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace voxhost
{

//! What the reference host has given away and not got back.
//!
//! - Turned off it costs one test of a flag; it is off at the start.
//! - Live objects are counted always, references and arrays only while the ledger is on.
//! - An array that was handed out is settled by `ArrayFreed`, which a test's operator delete[] calls.
class VOX_HOST_API Ledger
{
public:
  struct Balance
  {
    std::int64_t components = 0; //!< implementation objects alive
    std::int64_t extensions = 0; //!< extension objects alive
    std::int64_t collectors = 0; //!< entity and charac collectors alive
    std::int64_t archivers = 0;  //!< collector archivers alive
    std::int64_t userLists = 0;  //!< lists that were created in explicit models and not deleted
    std::int64_t references = 0; //!< references given minus references returned, on components
    std::int64_t arraysOut = 0;  //!< arrays handed out and not freed

    bool operator==(const Balance&) const = default;
    Balance operator-(const Balance& iOther) const;
    //! "components +1, references +2"; "balanced" when all are 0.
    std::string Describe() const;
  };

  static void TurnOn();
  static void TurnOff();
  static bool IsOn() { return _On; }
  static Balance Read();

  static void ComponentBorn() { ++_Balance.components; }
  static void ComponentDied() { --_Balance.components; }
  static void ExtensionBorn() { ++_Balance.extensions; }
  static void ExtensionDied() { --_Balance.extensions; }
  static void CollectorBorn() { ++_Balance.collectors; }
  static void CollectorDied() { --_Balance.collectors; }
  static void ArchiverBorn() { ++_Balance.archivers; }
  static void ArchiverDied() { --_Balance.archivers; }
  static void UserListBorn() { ++_Balance.userLists; }
  static void UserListDied() { --_Balance.userLists; }
  static void ReferenceGiven()
  {
    if (_On)
      ++_Balance.references;
  }
  static void ReferenceReturned()
  {
    if (_On)
      --_Balance.references;
  }

  //! Notes an array that the receiver frees with array delete. @return iArray.
  template <class T>
  static T* HandOut(T* iArray)
  {
    if (_On && iArray != nullptr)
      NoteArray(iArray);
    return iArray;
  }

  //! Tells the ledger that an array was freed; arrays that it does not know are ignored.
  static void ArrayFreed(const void* iArray) noexcept;

private:
  static void NoteArray(const void* iArray);
  static bool _On;
  static Balance _Balance;
};

} // namespace voxhost
