// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

struct VOXIntegersRep;

//! List of integers, counted from 1, a value.
class VOX_HOST_API VOXRawCollint
{
public:
  //! An empty list. @param iCapacity number of integers that room is made for.
  explicit VOXRawCollint(int iCapacity = 0);
  VOXRawCollint(const VOXRawCollint& iOther);            //!< copies the integers
  VOXRawCollint& operator=(const VOXRawCollint& iOther); //!< takes copies in place of its own integers
  ~VOXRawCollint();

  int Size() const; //!< number of integers

  //! An index outside 1..Size() is a fatal error.
  int& operator[](int iPosition);
  //! The same, to be read.
  int operator[](int iPosition) const;

  //! Adds an integer at the end.
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
  VOXIntegersRep* _Rep; // what the host keeps of the integers
};
