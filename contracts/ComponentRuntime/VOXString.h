// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

struct VOXTextRep;

//! Narrow text, a value: copies are cheap, and changing one changes no other. A null pointer gives the empty text.
class VOX_HOST_API VOXString
{
public:
  VOXString(const char* iText = nullptr);
  VOXString(const VOXString& iOther);
  VOXString& operator=(const VOXString& iOther);
  ~VOXString();

  bool operator==(const VOXString& iOther) const;
  bool operator==(const char* iOther) const;
  bool operator!=(const VOXString& iOther) const { return !(*this == iOther); }
  bool operator!=(const char* iOther) const { return !(*this == iOther); }

  //! Number of bytes.
  int GetLength() const;

  //! The text, zero-terminated, never null. Borrowed: valid until this object changes or dies.
  operator const char*() const;
  const char* CastToCharPtr() const;

private:
  VOXTextRep* _Rep; // null for the empty text
};
