// SPDX-License-Identifier: MIT
// Value lists, integers, pointings and sequences.
#include "ComponentRuntime/VOXFatalError.h"
#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "ComponentRuntime/VOXListValVOXString.h"
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"
#include "ComponentRuntime/VOXRawCollint.h"
#include "FeatureModeler/VOXListValVOXISpecObject_var.h"
#include "FeatureModeler/VOXSpecPointing.h"
#include "ObjectModeler/VOXSequence.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace
{

void CheckPosition(bool iIsInside, const char* iList)
{
  if (!iIsInside)
    VOXFatalError("Position outside of a list", iList, nullptr, nullptr, __FILE__, __LINE__);
}

template <class Value>
bool AreEqual(const Value& iLeft, const Value& iRight)
{
  return iLeft == iRight;
}

template <class Interface>
bool AreEqual(const VOXHandle<Interface>& iLeft, const VOXHandle<Interface>& iRight)
{
  return !iLeft ? !iRight : iLeft->IsEqual(iRight.Get()) != 0;
}

// Doubles the room behind a plain array that is full.
template <class Value>
void MakeRoom(Value*& ioValues, int iSize, int& ioCapacity)
{
  if (iSize < ioCapacity)
    return;
  ioCapacity = 2 * iSize + 4;
  auto* const values = new Value[static_cast<std::size_t>(ioCapacity)]();
  std::move(ioValues, ioValues + iSize, values);
  delete[] ioValues;
  ioValues = values;
}

} // namespace

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
  for (int i = 1; i <= iOther._Size; ++i)
    Append(iOther[i]);
}

template <class Value>
VOXListVal<Value>& VOXListVal<Value>::operator=(const VOXListVal& iOther)
{
  VOXListVal copy(iOther);
  std::swap(_Values, copy._Values);
  std::swap(_First, copy._First);
  std::swap(_Size, copy._Size);
  std::swap(_Capacity, copy._Capacity);
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
  CheckPosition(iPosition >= 1 && iPosition <= _Size, "VOXListVal");
  return _Values[_First + iPosition - 1];
}

template <class Value>
const Value& VOXListVal<Value>::operator[](int iPosition) const
{
  return const_cast<VOXListVal&>(*this)[iPosition];
}

// Moves the elements to the start of their memory, or of new one when there must be more.
template <class Value>
void VOXListVal<Value>::Reserve(int iCapacity)
{
  Value* const target = iCapacity > _Capacity ? new Value[static_cast<std::size_t>(iCapacity)] : _Values;
  std::move(_Values + _First, _Values + _First + _Size, target);
  _First = 0;
  if (target == _Values)
    return;
  delete[] _Values;
  _Values = target;
  _Capacity = iCapacity;
}

template <class Value>
void VOXListVal<Value>::Append(const Value& iValue)
{
  const Value kept(iValue); // it may be an element of this list
  if (_First + _Size == _Capacity)
    Reserve(2 * _Size + 4);
  _Values[_First + _Size] = kept;
  ++_Size;
}

template <class Value>
void VOXListVal<Value>::RemovePosition(int iPosition)
{
  CheckPosition(iPosition >= 1 && iPosition <= _Size, "VOXListVal");
  Value* const removed = _Values + _First + iPosition - 1;
  if (iPosition == 1)
  {
    *removed = Value();
    ++_First;
  }
  else
  {
    std::move(removed + 1, _Values + _First + _Size, removed);
    _Values[_First + _Size - 1] = Value();
  }
  --_Size;
}

template <class Value>
void VOXListVal<Value>::RemoveAll()
{
  *this = VOXListVal();
}

template <class Value>
int VOXListVal<Value>::Locate(const Value& iValue, int iFrom) const
{
  for (int i = std::max(iFrom, 1); i <= _Size; ++i)
    if (AreEqual((*this)[i], iValue))
      return i;
  return 0;
}

template class VOXListVal<VOXBaseUnknown_var>;
template class VOXListVal<VOXUnicodeString>;
template class VOXListVal<VOXString>;
template class VOXListVal<VOXISpecObject_var>;
template class VOXListVal<VOXISpecAttrKey_var>;

struct VOXIntegersRep
{
  std::vector<int> values;
};

VOXRawCollint::VOXRawCollint(int) : _Rep(new VOXIntegersRep) {}

VOXRawCollint::VOXRawCollint(const VOXRawCollint& iOther) : _Rep(new VOXIntegersRep(*iOther._Rep)) {}

VOXRawCollint& VOXRawCollint::operator=(const VOXRawCollint& iOther)
{
  *_Rep = *iOther._Rep;
  return *this;
}

VOXRawCollint::~VOXRawCollint()
{
  delete _Rep;
}

int VOXRawCollint::Size() const
{
  return static_cast<int>(_Rep->values.size());
}

int& VOXRawCollint::operator[](int iPosition)
{
  CheckPosition(iPosition >= 1 && iPosition <= Size(), "VOXRawCollint");
  return _Rep->values[static_cast<std::size_t>(iPosition - 1)];
}

int VOXRawCollint::operator[](int iPosition) const
{
  return const_cast<VOXRawCollint&>(*this)[iPosition];
}

void VOXRawCollint::Append(int iValue)
{
  _Rep->values.push_back(iValue);
}

int VOXRawCollint::Locate(int iValue, int iFrom) const
{
  for (int i = std::max(iFrom, 1); i <= Size(); ++i)
    if ((*this)[i] == iValue)
      return i;
  return 0;
}

void VOXRawCollint::Remove(const VOXRawCollint& iOther)
{
  const VOXRawCollint unwanted(iOther); // which may be this list
  std::vector<int>& values = _Rep->values;
  values.erase(std::remove_if(values.begin(), values.end(), [&](int iValue) { return unwanted.Locate(iValue) != 0; }),
               values.end());
}

void VOXRawCollint::RemoveNulls()
{
  std::vector<int>& values = _Rep->values;
  values.erase(std::remove(values.begin(), values.end(), 0), values.end());
}

void VOXRawCollint::RemoveAll(int iMode)
{
  _Rep->values.clear();
  if (iMode == 1)
    _Rep->values.shrink_to_fit();
}

VOXSpecPointing::VOXSpecPointing(const VOXISpecAttrAccess_var& iAccess, const VOXISpecAttrKey_var& iKey)
    : _Access(iAccess),
      _Key(iKey)
{
}

VOXSpecPointing::~VOXSpecPointing() = default;

VOXISpecAttrAccess_var VOXSpecPointing::GetAccess() const
{
  return _Access;
}

VOXISpecAttrKey_var VOXSpecPointing::GetKey() const
{
  return _Key;
}

VOXListPtrVOXSpecPointing::VOXListPtrVOXSpecPointing() : _Pointings(nullptr), _Size(0), _Capacity(0) {}

VOXListPtrVOXSpecPointing::~VOXListPtrVOXSpecPointing()
{
  delete[] _Pointings;
}

int VOXListPtrVOXSpecPointing::Size() const
{
  return _Size;
}

VOXSpecPointing*& VOXListPtrVOXSpecPointing::operator[](int iPosition)
{
  CheckPosition(iPosition >= 1 && iPosition <= _Size, "VOXListPtrVOXSpecPointing");
  return _Pointings[iPosition - 1];
}

void VOXListPtrVOXSpecPointing::Append(VOXSpecPointing* iPointing)
{
  MakeRoom(_Pointings, _Size, _Capacity);
  _Pointings[_Size++] = iPointing;
}

void VOXListPtrVOXSpecPointing::RemoveAll()
{
  _Size = 0;
}

_SEQUENCE_VOXBaseUnknown_ptr::_SEQUENCE_VOXBaseUnknown_ptr() : _Members(nullptr), _Length(0), _Capacity(0) {}

_SEQUENCE_VOXBaseUnknown_ptr::~_SEQUENCE_VOXBaseUnknown_ptr()
{
  delete[] _Members;
}

int _SEQUENCE_VOXBaseUnknown_ptr::Length() const
{
  return _Length;
}

VOXBaseUnknown*& _SEQUENCE_VOXBaseUnknown_ptr::operator[](int iIndex)
{
  CheckPosition(iIndex >= 0 && iIndex < _Length, "_SEQUENCE_VOXBaseUnknown_ptr");
  return _Members[iIndex];
}

void _SEQUENCE_VOXBaseUnknown_ptr::Append(VOXBaseUnknown* iMember)
{
  MakeRoom(_Members, _Length, _Capacity);
  _Members[_Length++] = iMember;
}

void _SEQUENCE_VOXBaseUnknown_ptr::Empty()
{
  _Length = 0;
}
