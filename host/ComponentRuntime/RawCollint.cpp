// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXRawCollint.h"

#include "ComponentRuntime/VOXFatalError.h"

#include <algorithm>
#include <cstdint>
#include <unordered_set>
#include <utility>

// Lists of tags are filled by one feature after the other and searched in between, and tags are removed from them feature
// by feature. So that neither costs the square of the features,
// - a search that found nothing leaves behind how far it came, and the next one for the same integer begins there;
// - removals are gathered, and done together when the list is next looked at.

namespace
{

// Tells fast whether an integer is one of several.
class IntegerSet
{
public:
  explicit IntegerSet(const std::vector<int>& iValues)
  {
    constexpr std::int64_t kSpread = 64; // bits per integer up to which a row of bits is the smaller set
    const auto [least, most] = std::minmax_element(iValues.begin(), iValues.end());
    _Least = *least;
    const std::int64_t range = std::int64_t{*most} - _Least + 1;
    if (range > kSpread * static_cast<std::int64_t>(iValues.size()))
    {
      _Sparse.insert(iValues.begin(), iValues.end());
      return;
    }
    _Bits.resize(static_cast<std::size_t>(range));
    for (const int value : iValues)
      _Bits[static_cast<std::size_t>(value - _Least)] = true;
  }

  bool Contains(int iValue) const
  {
    if (_Bits.empty())
      return _Sparse.count(iValue) != 0;
    const std::int64_t place = std::int64_t{iValue} - _Least;
    return place >= 0 && place < static_cast<std::int64_t>(_Bits.size()) && _Bits[static_cast<std::size_t>(place)];
  }

private:
  std::int64_t _Least = 0;
  std::vector<bool> _Bits; // from the least integer on; empty when they lie too far apart
  std::unordered_set<int> _Sparse;
};

} // namespace

VOXRawCollint::VOXRawCollint(int iCapacity)
    : _Values(iCapacity > 0 ? new int[static_cast<std::size_t>(iCapacity)] : nullptr),
      _Size(0),
      _Capacity(std::max(iCapacity, 0)),
      _Absent(0),
      _AbsentUpTo(0),
      _IsLent(false),
      _Unwanted(nullptr)
{
}

VOXRawCollint::VOXRawCollint(const VOXRawCollint& iOther) : VOXRawCollint(iOther.Size())
{
  std::copy_n(iOther._Values, iOther._Size, _Values);
  _Size = iOther._Size;
}

VOXRawCollint& VOXRawCollint::operator=(const VOXRawCollint& iOther)
{
  VOXRawCollint copy(iOther);
  std::swap(_Values, copy._Values);
  std::swap(_Capacity, copy._Capacity);
  std::swap(_Unwanted, copy._Unwanted);
  _Size = copy._Size;
  _AbsentUpTo = 0;
  _IsLent = false;
  return *this;
}

VOXRawCollint::~VOXRawCollint()
{
  delete _Unwanted;
  delete[] _Values;
}

int VOXRawCollint::Size() const
{
  Settle();
  return _Size;
}

int& VOXRawCollint::operator[](int iPosition)
{
  if (iPosition < 1 || iPosition > Size())
    VOXFatalError("AssertionFailed:1 <= iPosition && iPosition <= Size()", nullptr, nullptr, nullptr, __FILE__,
                  __LINE__);
  _IsLent = true;
  _AbsentUpTo = 0;
  return _Values[iPosition - 1];
}

int VOXRawCollint::operator[](int iPosition) const
{
  if (iPosition < 1 || iPosition > Size())
    VOXFatalError("AssertionFailed:1 <= iPosition && iPosition <= Size()", nullptr, nullptr, nullptr, __FILE__,
                  __LINE__);
  return _Values[iPosition - 1];
}

void VOXRawCollint::Append(int iValue)
{
  Settle();
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
  Settle();
  const bool wasSought = iFrom <= 1 && iValue == _Absent;
  const int* const from = _Values + std::min(wasSought ? _AbsentUpTo : std::max(iFrom, 1) - 1, _Size);
  const int* const end = _Values + _Size;
  const int* const found = std::find(from, end, iValue);
  if (found != end)
    return static_cast<int>(found - _Values) + 1;
  if (iFrom <= 1 && !_IsLent)
  {
    _Absent = iValue;
    _AbsentUpTo = _Size;
  }
  return 0;
}

void VOXRawCollint::Remove(const VOXRawCollint& iOther)
{
  if (iOther.Size() == 0 || _Size == 0)
    return;
  if (_Unwanted == nullptr)
    _Unwanted = new std::vector<int>;
  _Unwanted->insert(_Unwanted->end(), iOther._Values, iOther._Values + iOther._Size);
}

void VOXRawCollint::RemoveNulls()
{
  Settle();
  _Size = static_cast<int>(std::remove(_Values, _Values + _Size, 0) - _Values);
  _AbsentUpTo = 0;
}

void VOXRawCollint::RemoveAll(int iMode)
{
  delete std::exchange(_Unwanted, nullptr);
  _Size = 0;
  _AbsentUpTo = 0;
  _IsLent = false;
  if (iMode == 0)
    return;
  delete[] _Values;
  _Values = nullptr;
  _Capacity = 0;
}

// Takes out what was removed since the list was last looked at.
void VOXRawCollint::Settle() const
{
  if (_Unwanted == nullptr)
    return;
  const IntegerSet unwanted(*_Unwanted);
  int* const end = std::remove_if(_Values, _Values + _Size, [&](int value) { return unwanted.Contains(value); });
  _Size = static_cast<int>(end - _Values);
  _AbsentUpTo = 0;
  delete std::exchange(_Unwanted, nullptr);
}
