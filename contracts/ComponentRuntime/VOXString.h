// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

struct VOXTextRep;

//! Narrow text, a value: copies are cheap, and changing one changes no other. A null pointer gives the empty text.
class VOX_HOST_API VOXString
{
public:
  VOXString(const char* iText = nullptr);        //!< a copy of the text
  VOXString(const VOXString& iOther);            //!< the same text
  VOXString& operator=(const VOXString& iOther); //!< takes over the text
  ~VOXString();

  bool operator==(const VOXString& iOther) const; //!< byte by byte
  bool operator==(const char* iOther) const;      //!< byte by byte; a null pointer is the empty text
  //! The opposite.
  bool operator!=(const VOXString& iOther) const { return !(*this == iOther); }
  //! The opposite.
  bool operator!=(const char* iOther) const { return !(*this == iOther); }

  //! Number of bytes.
  int GetLength() const;

  //! The text, zero-terminated, never null. Borrowed: valid until this object changes or dies.
  operator const char*() const;
  const char* CastToCharPtr() const; //!< the same

private:
  VOXTextRep* _Rep; // null for the empty text
};
