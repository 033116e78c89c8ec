// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXRawCollint.h"

#include "ComponentRuntime/VOXFatalError.h"

#include <algorithm>
#include <cstdint>
#include <unordered_set>
#include <utility>
#include <vector>

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

void TakeOut(std::vector<int>& ioValues, const std::vector<int>& iUnwanted)
{
  const IntegerSet unwanted(iUnwanted);
  const auto isUnwanted = [&unwanted](int iValue) { return unwanted.Contains(iValue); };
  ioValues.erase(std::remove_if(ioValues.begin(), ioValues.end(), isUnwanted), ioValues.end());
}

} // namespace

// Looking changes how the answer is kept, never the answer.
struct VOXIntegersRep
{
  std::vector<int> values;
  std::vector<int> unwanted; // removed, though still among the values
  int absent = 0;            // an integer that was looked for in vain
  int absentUpTo = 0;        // among the elements up to this position
  bool isLent = false;       // somebody may write an element behind the list's back

  int Size() const { return static_cast<int>(values.size()); }

  // Takes out what was removed since the list was last looked at.
  void Settle()
  {
    if (unwanted.empty())
      return;
    TakeOut(values, std::exchange(unwanted, {}));
    absentUpTo = 0;
  }
};

namespace
{

VOXIntegersRep& Made(VOXIntegersRep*& ioRep)
{
  if (ioRep == nullptr)
    ioRep = new VOXIntegersRep;
  return *ioRep;
}

int& ValueAt(VOXIntegersRep* iRep, int iPosition, int iSize)
{
  if (iPosition < 1 || iPosition > iSize)
    VOXFatalError("AssertionFailed:1 <= iPosition && iPosition <= Size()", nullptr, nullptr, nullptr, __FILE__,
                  __LINE__);
  return iRep->values[static_cast<std::size_t>(iPosition - 1)];
}

} // namespace

VOXRawCollint::VOXRawCollint(int iCapacity) : _Rep(nullptr)
{
  if (iCapacity > 0)
    Made(_Rep).values.reserve(static_cast<std::size_t>(iCapacity));
}

VOXRawCollint::VOXRawCollint(const VOXRawCollint& iOther) : _Rep(nullptr)
{
  if (iOther.Size() > 0)
    Made(_Rep).values = iOther._Rep->values;
}

VOXRawCollint& VOXRawCollint::operator=(const VOXRawCollint& iOther)
{
  VOXRawCollint copy(iOther);
  std::swap(_Rep, copy._Rep);
  return *this;
}

VOXRawCollint::~VOXRawCollint()
{
  delete _Rep;
}

int VOXRawCollint::Size() const
{
  if (_Rep == nullptr)
    return 0;
  _Rep->Settle();
  return _Rep->Size();
}

int& VOXRawCollint::operator[](int iPosition)
{
  int& value = ValueAt(_Rep, iPosition, Size());
  _Rep->isLent = true;
  _Rep->absentUpTo = 0;
  return value;
}

int VOXRawCollint::operator[](int iPosition) const
{
  return ValueAt(_Rep, iPosition, Size());
}

void VOXRawCollint::Append(int iValue)
{
  VOXIntegersRep& rep = Made(_Rep);
  rep.Settle();
  rep.values.push_back(iValue);
}

int VOXRawCollint::Locate(int iValue, int iFrom) const
{
  const int size = Size();
  if (size == 0)
    return 0;
  const bool wasSought = iFrom <= 1 && iValue == _Rep->absent;
  const auto begin = _Rep->values.cbegin();
  const auto end = _Rep->values.cend();
  const auto found =
      std::find(begin + std::min(wasSought ? _Rep->absentUpTo : std::max(iFrom, 1) - 1, size), end, iValue);
  if (found != end)
    return static_cast<int>(found - begin) + 1;
  if (iFrom <= 1 && !_Rep->isLent)
  {
    _Rep->absent = iValue;
    _Rep->absentUpTo = size;
  }
  return 0;
}

void VOXRawCollint::Remove(const VOXRawCollint& iOther)
{
  if (iOther.Size() == 0 || _Rep == nullptr || _Rep->values.empty())
    return;
  const std::vector<int>& values = iOther._Rep->values;
  _Rep->unwanted.insert(_Rep->unwanted.end(), values.begin(), values.end());
}

void VOXRawCollint::RemoveNulls()
{
  if (Size() == 0)
    return;
  std::vector<int>& values = _Rep->values;
  values.erase(std::remove(values.begin(), values.end(), 0), values.end());
  _Rep->absentUpTo = 0;
}

void VOXRawCollint::RemoveAll(int iMode)
{
  if (_Rep == nullptr)
    return;
  if (iMode != 0)
  {
    delete std::exchange(_Rep, nullptr);
    return;
  }
  _Rep->values.clear();
  _Rep->unwanted.clear();
  _Rep->absentUpTo = 0;
  _Rep->isLent = false;
}
