// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXRawCollint.h"

#include "ComponentRuntime/VOXFatalError.h"

#include <algorithm>
#include <unordered_set>

VOXRawCollint::VOXRawCollint(int iCapacity)
    : _Values(iCapacity > 0 ? new int[static_cast<std::size_t>(iCapacity)] : nullptr),
      _Size(0),
      _Capacity(std::max(iCapacity, 0))
{
}

VOXRawCollint::VOXRawCollint(const VOXRawCollint& iOther) : VOXRawCollint(iOther._Size)
{
  std::copy_n(iOther._Values, iOther._Size, _Values);
  _Size = iOther._Size;
}

VOXRawCollint& VOXRawCollint::operator=(const VOXRawCollint& iOther)
{
  VOXRawCollint copy(iOther);
  std::swap(_Values, copy._Values);
  std::swap(_Size, copy._Size);
  std::swap(_Capacity, copy._Capacity);
  return *this;
}

VOXRawCollint::~VOXRawCollint()
{
  delete[] _Values;
}

int VOXRawCollint::Size() const
{
  return _Size;
}

int& VOXRawCollint::operator[](int iPosition)
{
  if (iPosition < 1 || iPosition > _Size)
    VOXFatalError("AssertionFailed:1 <= iPosition && iPosition <= Size()", nullptr, nullptr, nullptr, __FILE__,
                  __LINE__);
  return _Values[iPosition - 1];
}

int VOXRawCollint::operator[](int iPosition) const
{
  return const_cast<VOXRawCollint&>(*this)[iPosition];
}

void VOXRawCollint::Append(int iValue)
{
  if (_Size == _Capacity)
  {
    const int capacity = _Capacity == 0 ? 8 : 2 * _Capacity;
    int* const values = new int[static_cast<std::size_t>(capacity)];
    std::copy_n(_Values, _Size, values);
    delete[] _Values;
    _Values = values;
    _Capacity = capacity;
  }
  _Values[_Size++] = iValue;
}

int VOXRawCollint::Locate(int iValue, int iFrom) const
{
  for (int i = std::max(iFrom, 1); i <= _Size; ++i)
    if (_Values[i - 1] == iValue)
      return i;
  return 0;
}

void VOXRawCollint::Remove(const VOXRawCollint& iOther)
{
  constexpr int kFew = 16; // below, looking along the list is quicker than building a set
  const std::unordered_set<int> unwanted(iOther._Values, iOther._Values + (iOther._Size > kFew ? iOther._Size : 0));
  int* const end = std::remove_if(
      _Values, _Values + _Size,
      [&](int value) { return unwanted.empty() ? iOther.Locate(value) != 0 : unwanted.count(value) != 0; });
  _Size = static_cast<int>(end - _Values);
}

void VOXRawCollint::RemoveNulls()
{
  _Size = static_cast<int>(std::remove(_Values, _Values + _Size, 0) - _Values);
}

void VOXRawCollint::RemoveAll(int iMode)
{
  _Size = 0;
  if (iMode == 0)
    return;
  delete[] _Values;
  _Values = nullptr;
  _Capacity = 0;
}
