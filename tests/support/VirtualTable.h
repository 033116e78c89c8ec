// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXBaseUnknown.h"

#include <cstddef>
#include <cstring>

namespace voxtest
{

//! Base operations of every virtual table, the destructor counted once.
inline constexpr int kBaseOperations = 17;

//! The destructor takes two entries of the tables that our compilers lay out.
inline constexpr int kEntriesOfDestructor = 2;

//! Place of a virtual operation among the own operations of its class, counted from 1; 0 or less for a base operation
//! behind the destructor. Reads the member pointer as our compilers lay it out: 1 plus the offset in the table.
//! @code EXPECT_EQ(OwnPlace(&VOXEAnalysisGroup::GetContent), 5); @endcode
template <class Member>
int OwnPlace(Member iMember)
{
  std::ptrdiff_t offset = 0;
  static_assert(sizeof(iMember) == 2 * sizeof(offset), "a pointer to a member function");
  std::memcpy(&offset, &iMember, sizeof(offset));
  const int entry = static_cast<int>((offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*))); // from 0
  return entry + 1 - (kBaseOperations - 1 + kEntriesOfDestructor);
}

//! Whether an operation is reached through the virtual table at all.
template <class Member>
bool IsVirtual(Member iMember)
{
  std::ptrdiff_t place = 0;
  static_assert(sizeof(iMember) == 2 * sizeof(place), "a pointer to a member function");
  std::memcpy(&place, &iMember, sizeof(place));
  return (place & 1) != 0;
}

//! Calls own operation iOwn (from 1) of an object through its place in the virtual table, as compiled code of the host
//! does: it knows nothing but the place and the arguments.
//! @code CallOwn<HRESULT, unsigned char&>(piControl, 1, allowed); @endcode
//! The types of the arguments are named, as the operation declares them.
template <class Result, class... Arguments, class... Given>
Result CallOwn(const VOXBaseUnknown* iObject, int iOwn, Given&&... iArguments)
{
  using Operation = Result (*)(const VOXBaseUnknown*, Arguments...);
  void* const* table = nullptr;
  std::memcpy(&table, static_cast<const void*>(iObject), sizeof(table));
  Operation operation = nullptr;
  std::memcpy(&operation, &table[kBaseOperations - 1 + kEntriesOfDestructor + iOwn - 1], sizeof(operation));
  return operation(iObject, static_cast<Given&&>(iArguments)...);
}

} // namespace voxtest
