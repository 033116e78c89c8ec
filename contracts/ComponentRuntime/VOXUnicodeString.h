// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

struct VOXTextRep;

//! Text in UTF-8, a value: copies are cheap, and changing one changes no other. Positions count bytes from 0.
class VOX_HOST_API VOXUnicodeString
{
public:
  //! A null pointer gives the empty text.
  VOXUnicodeString(const char* iText = nullptr);
  VOXUnicodeString(const VOXUnicodeString& iOther);            //!< the same text
  VOXUnicodeString& operator=(const VOXUnicodeString& iOther); //!< takes over the text
  VOXUnicodeString& operator=(const char* iText);              //!< takes over the text; a null pointer is the empty one
  ~VOXUnicodeString();

  bool operator==(const VOXUnicodeString& iOther) const; //!< byte by byte
  bool operator==(const char* iOther) const;             //!< byte by byte; a null pointer is the empty text
  //! The opposite.
  bool operator!=(const VOXUnicodeString& iOther) const { return !(*this == iOther); }
  //! The opposite.
  bool operator!=(const char* iOther) const { return !(*this == iOther); }
  VOXUnicodeString operator+(const VOXUnicodeString& iOther) const; //!< this text, then the other
  VOXUnicodeString operator+(const char* iOther) const;             //!< this text, then the other

  //! Number of bytes.
  int GetLength() const;

  //! Finds a text in this one.
  //! @param iSub what to find. @param iFrom position where the search begins.
  //! @param iMode 1: forward, the first occurrence at or after iFrom; 0: backward, the last one at or before iFrom.
  //! @return position of the occurrence; -1 when there is none, or when iSub is empty or iFrom negative.
  int SearchSubString(const VOXUnicodeString& iSub, int iFrom = 0, int iMode = 1) const;

  //! Shortens the text to its first iLength bytes, or fills it up with blanks; a negative length is 0.
  void Resize(int iLength);

  //! The text in 8-bit form, zero-terminated, never null. Borrowed: valid until this object changes or dies.
  const char* ConvertToChar() const;
  const char* CastToCharPtr() const; //!< the same
  operator const char*() const;      //!< the same

private:
  VOXTextRep* _Rep; // null for the empty text
};
