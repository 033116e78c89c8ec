// SPDX-License-Identifier: MIT
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <new>
#include <type_traits>
#include <utility>

namespace voxbench
{

//! One column of a table: a growing array of plain values, for millions of rows.
//!
//! - Reserved room is not touched, so it costs no memory until rows are written.
//! - Growing and shrinking go through `realloc`: big blocks are moved by the system without being copied.
//! - Rows made by `GrowBy` are not initialised: the caller writes them.
template <typename T>
class Column
{
  static_assert(std::is_trivially_copyable_v<T>, "a column is moved with realloc");

public:
  using value_type = T;

  Column() = default;
  Column(std::initializer_list<T> iValues) { Append(iValues.begin(), iValues.size()); }
  Column(const Column& iOther) { Append(iOther._Data, iOther._Size); }
  Column(Column&& ioOther) noexcept { Swap(ioOther); }
  ~Column() { std::free(_Data); }

  Column& operator=(const Column& iOther)
  {
    Column copy(iOther);
    Swap(copy);
    return *this;
  }
  Column& operator=(Column&& ioOther) noexcept
  {
    Column taken(std::move(ioOther));
    Swap(taken);
    return *this;
  }

  std::size_t size() const { return _Size; }
  bool empty() const { return _Size == 0; }
  std::size_t capacity() const { return _Capacity; }
  T* data() { return _Data; }
  const T* data() const { return _Data; }
  T* begin() { return _Data; }
  T* end() { return _Data + _Size; }
  const T* begin() const { return _Data; }
  const T* end() const { return _Data + _Size; }
  T& operator[](std::size_t iRow) { return _Data[iRow]; }
  const T& operator[](std::size_t iRow) const { return _Data[iRow]; }
  T& back() { return _Data[_Size - 1]; }
  const T& back() const { return _Data[_Size - 1]; }

  void push_back(T iValue)
  {
    if (_Size == _Capacity)
      MakeRoom(1);
    _Data[_Size++] = iValue;
  }

  //! Adds `iCount` rows that the caller writes. @return the first of them.
  T* GrowBy(std::size_t iCount)
  {
    if (_Capacity - _Size < iCount)
      MakeRoom(iCount);
    T* const first = _Data + _Size;
    _Size += iCount;
    return first;
  }

  void Append(const T* iValues, std::size_t iCount)
  {
    if (iCount != 0)
      std::memcpy(GrowBy(iCount), iValues, iCount * sizeof(T));
  }

  //! Makes room for `iCount` rows in all, without touching it.
  void Reserve(std::size_t iCount)
  {
    if (iCount > _Capacity)
      Reallocate(iCount);
  }

  //! Drops the rows from `iCount` on.
  void Truncate(std::size_t iCount) { _Size = std::min(_Size, iCount); }

  //! Gives back the room that no row uses.
  void ReleaseSlack()
  {
    if (_Size < _Capacity)
      Reallocate(_Size);
  }

  void Swap(Column& ioOther) noexcept
  {
    std::swap(_Data, ioOther._Data);
    std::swap(_Size, ioOther._Size);
    std::swap(_Capacity, ioOther._Capacity);
  }

  friend bool operator==(const Column& iLeft, const Column& iRight)
  {
    return iLeft._Size == iRight._Size && std::equal(iLeft.begin(), iLeft.end(), iRight.begin());
  }

private:
  void MakeRoom(std::size_t iCount)
  {
    Reallocate(std::max({_Size + iCount, _Capacity + _Capacity / 2, std::size_t{16}}));
  }

  void Reallocate(std::size_t iCapacity)
  {
    if (iCapacity == 0)
    {
      std::free(_Data);
      _Data = nullptr;
      _Capacity = 0;
      return;
    }
    void* const moved = std::realloc(static_cast<void*>(_Data), iCapacity * sizeof(T));
    if (moved == nullptr)
      throw std::bad_alloc();
    _Data = static_cast<T*>(moved);
    _Capacity = iCapacity;
  }

  T* _Data = nullptr;
  std::size_t _Size = 0;
  std::size_t _Capacity = 0;
};

} // namespace voxbench
