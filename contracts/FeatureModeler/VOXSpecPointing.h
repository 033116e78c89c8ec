// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXISpecAttrAccess.h"

//! One attribute of some feature that refers to a feature. A value; whoever asks for a list of them deletes it.
class VOX_HOST_API VOXSpecPointing
{
public:
  //! An attribute. @param iAccess, iKey access to the feature that has it, and its key.
  VOXSpecPointing(const VOXISpecAttrAccess_var& iAccess, const VOXISpecAttrKey_var& iKey);
  ~VOXSpecPointing();

  //! Access to the feature that has the attribute.
  VOXISpecAttrAccess_var GetAccess() const;

  //! Key of the attribute.
  VOXISpecAttrKey_var GetKey() const;

private:
  VOXISpecAttrAccess_var _Access;
  VOXISpecAttrKey_var _Key;
};

//! List of pointings, counted from 1. It does not own its entries: caller deletes every one.
class VOX_HOST_API VOXListPtrVOXSpecPointing
{
public:
  VOXListPtrVOXSpecPointing();
  ~VOXListPtrVOXSpecPointing();
  VOXListPtrVOXSpecPointing(const VOXListPtrVOXSpecPointing&) = delete;
  VOXListPtrVOXSpecPointing& operator=(const VOXListPtrVOXSpecPointing&) = delete;

  int Size() const; //!< number of entries

  //! An index outside 1..Size() is a fatal error.
  VOXSpecPointing*& operator[](int iPosition);

  //! Adds an entry at the end.
  void Append(VOXSpecPointing* iPointing);

  //! Empties the list; the entries stay alive.
  void RemoveAll();

private:
  VOXSpecPointing** _Pointings;
  int _Size;
  int _Capacity;
};
