// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXHostExport.h"
#include "ComponentRuntime/VOXUnicodeString.h"

//! List of values, counted from 1. The host defines the operations and instantiates the lists that are named below.
//!
//! A list of handles holds one reference per element that is not empty. An index outside 1..Size() is a fatal error.
template <class Value>
class VOX_HOST_API VOXListVal
{
public:
  VOXListVal();
  VOXListVal(const VOXListVal& iOther);            //!< copies the elements
  VOXListVal& operator=(const VOXListVal& iOther); //!< takes copies in place of its own elements
  ~VOXListVal();

  int Size() const;                             //!< number of elements
  Value& operator[](int iPosition);             //!< an element
  const Value& operator[](int iPosition) const; //!< the same, to be read

  //! Adds a copy of a value at the end.
  void Append(const Value& iValue);

  //! Takes one element out; those behind it move up. At either end this costs the same for any number of elements.
  void RemovePosition(int iPosition);

  //! Takes all elements out.
  void RemoveAll();

  //! Position of the first element equal to iValue at or after iFrom; 0 when there is none. Handles are equal when they
  //! designate one component, or are both empty.
  int Locate(const Value& iValue, int iFrom = 1) const;

private:
  void Reserve(int iCapacity);

  Value* _Values;
  int _First; // place of the first element among the values, from 0
  int _Size;
  int _Capacity;
};
