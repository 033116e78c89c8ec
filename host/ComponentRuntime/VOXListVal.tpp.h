// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXFatalError.h"
#include "ComponentRuntime/VOXListVal.h"

// Definitions of VOXListVal, for the one source that instantiates each list.

namespace voxhost
{

template <class Interface>
bool SameValue(const VOXHandle<Interface>& iLeft, const VOXHandle<Interface>& iRight)
{
  if (!iLeft || !iRight)
    return !iLeft && !iRight;
  return iLeft->IsEqual(iRight.Get()) != 0;
}

template <class Value>
bool SameValue(const Value& iLeft, const Value& iRight)
{
  return iLeft == iRight;
}

} // namespace voxhost

template <class Value>
VOXListVal<Value>::VOXListVal() : _Values(nullptr),
                                  _First(0),
                                  _Size(0),
                                  _Capacity(0)
{
}

template <class Value>
VOXListVal<Value>::VOXListVal(const VOXListVal& iOther) : VOXListVal()
{
  Reserve(iOther._Size);
  for (int i = 0; i < iOther._Size; ++i)
    _Values[_Size++] = iOther._Values[iOther._First + i];
}

template <class Value>
VOXListVal<Value>& VOXListVal<Value>::operator=(const VOXListVal& iOther)
{
  if (this == &iOther)
    return *this;
  RemoveAll();
  Reserve(iOther._Size);
  for (int i = 0; i < iOther._Size; ++i)
    _Values[_Size++] = iOther._Values[iOther._First + i];
  return *this;
}

template <class Value>
VOXListVal<Value>::~VOXListVal()
{
  delete[] _Values;
}

template <class Value>
int VOXListVal<Value>::Size() const
{
  return _Size;
}

template <class Value>
Value& VOXListVal<Value>::operator[](int iPosition)
{
  if (iPosition < 1 || iPosition > _Size)
    VOXFatalError("AssertionFailed:1 <= iPosition && iPosition <= Size()", nullptr, nullptr, nullptr, __FILE__,
                  __LINE__);
  return _Values[_First + iPosition - 1];
}

template <class Value>
const Value& VOXListVal<Value>::operator[](int iPosition) const
{
  return const_cast<VOXListVal&>(*this)[iPosition];
}

template <class Value>
void VOXListVal<Value>::Append(const Value& iValue)
{
  const Value kept(iValue); // the value may be an element of this very list
  if (_First + _Size == _Capacity)
    Reserve(_Size == 0 ? 4 : 2 * _Size);
  _Values[_First + _Size++] = kept;
}

template <class Value>
void VOXListVal<Value>::RemovePosition(int iPosition)
{
  (*this)[iPosition] = Value();
  if (iPosition <= _Size / 2)
  {
    for (int place = _First + iPosition - 1; place > _First; --place)
      _Values[place] = static_cast<Value&&>(_Values[place - 1]);
    _Values[_First++] = Value();
    --_Size;
    return;
  }
  for (int place = _First + iPosition; place < _First + _Size; ++place)
    _Values[place - 1] = static_cast<Value&&>(_Values[place]);
  _Values[_First + --_Size] = Value();
}

template <class Value>
void VOXListVal<Value>::RemoveAll()
{
  while (_Size > 0)
    _Values[_First + --_Size] = Value();
  _First = 0;
}

template <class Value>
int VOXListVal<Value>::Locate(const Value& iValue, int iFrom) const
{
  for (int i = iFrom < 1 ? 1 : iFrom; i <= _Size; ++i)
    if (voxhost::SameValue(_Values[_First + i - 1], iValue))
      return i;
  return 0;
}

template <class Value>
void VOXListVal<Value>::Reserve(int iCapacity)
{
  if (_First + iCapacity <= _Capacity)
    return;
  Value* const values = new Value[static_cast<std::size_t>(iCapacity)];
  for (int i = 0; i < _Size; ++i)
    values[i] = static_cast<Value&&>(_Values[_First + i]);
  delete[] _Values;
  _Values = values;
  _First = 0;
  _Capacity = iCapacity;
}
