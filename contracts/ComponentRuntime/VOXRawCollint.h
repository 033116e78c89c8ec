// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

//! List of integers, counted from 1, a value.
class VOX_HOST_API VOXRawCollint
{
public:
  explicit VOXRawCollint(int iCapacity = 0);
  VOXRawCollint(const VOXRawCollint& iOther);
  VOXRawCollint& operator=(const VOXRawCollint& iOther);
  ~VOXRawCollint();

  int Size() const;

  //! An index outside 1..Size() is a fatal error.
  int& operator[](int iPosition);
  int operator[](int iPosition) const;

  void Append(int iValue);

  //! Position of the first iValue at or after iFrom; 0 when there is none.
  int Locate(int iValue, int iFrom = 1) const;

  //! Removes every integer of iOther wherever it occurs here. The others keep their order.
  void Remove(const VOXRawCollint& iOther);

  //! Removes every 0. The others keep their order.
  void RemoveNulls();

  //! Empties the list. @param iMode 0 keeps the memory for reuse, 1 gives it back.
  void RemoveAll(int iMode);

private:
  int* _Values;
  int _Size;
  int _Capacity;
};
