// SPDX-License-Identifier: MIT
// Both kinds of text: one shared, counted representation, never changed while it is shared.
#include "ComponentRuntime/VOXString.h"
#include "ComponentRuntime/VOXUnicodeString.h"

#include <string>
#include <utility>

struct VOXTextRep
{
  std::string text;
  int references = 1;
};

namespace
{

VOXTextRep* NewRep(std::string iText)
{
  return iText.empty() ? nullptr : new VOXTextRep{std::move(iText)};
}

VOXTextRep* Share(VOXTextRep* iRep)
{
  if (iRep != nullptr)
    ++iRep->references;
  return iRep;
}

void Drop(VOXTextRep* iRep)
{
  if (iRep != nullptr && --iRep->references == 0)
    delete iRep;
}

void Assign(VOXTextRep*& ioRep, VOXTextRep* iTaken)
{
  Drop(ioRep);
  ioRep = iTaken;
}

const std::string& TextOf(const VOXTextRep* iRep)
{
  static const std::string empty;
  return iRep == nullptr ? empty : iRep->text;
}

std::string TextOf(const char* iText)
{
  return iText == nullptr ? std::string() : std::string(iText);
}

} // namespace

VOXString::VOXString(const char* iText) : _Rep(NewRep(TextOf(iText))) {}
VOXString::VOXString(const VOXString& iOther) : _Rep(Share(iOther._Rep)) {}

VOXString& VOXString::operator=(const VOXString& iOther)
{
  Assign(_Rep, Share(iOther._Rep));
  return *this;
}

VOXString::~VOXString()
{
  Drop(_Rep);
}

bool VOXString::operator==(const VOXString& iOther) const
{
  return TextOf(_Rep) == TextOf(iOther._Rep);
}

bool VOXString::operator==(const char* iOther) const
{
  return TextOf(_Rep) == TextOf(iOther);
}

int VOXString::GetLength() const
{
  return static_cast<int>(TextOf(_Rep).size());
}

VOXString::operator const char*() const
{
  return TextOf(_Rep).c_str();
}

const char* VOXString::CastToCharPtr() const
{
  return TextOf(_Rep).c_str();
}

VOXUnicodeString::VOXUnicodeString(const char* iText) : _Rep(NewRep(TextOf(iText))) {}
VOXUnicodeString::VOXUnicodeString(const VOXUnicodeString& iOther) : _Rep(Share(iOther._Rep)) {}

VOXUnicodeString& VOXUnicodeString::operator=(const VOXUnicodeString& iOther)
{
  Assign(_Rep, Share(iOther._Rep));
  return *this;
}

VOXUnicodeString& VOXUnicodeString::operator=(const char* iText)
{
  Assign(_Rep, NewRep(TextOf(iText)));
  return *this;
}

VOXUnicodeString::~VOXUnicodeString()
{
  Drop(_Rep);
}

bool VOXUnicodeString::operator==(const VOXUnicodeString& iOther) const
{
  return TextOf(_Rep) == TextOf(iOther._Rep);
}

bool VOXUnicodeString::operator==(const char* iOther) const
{
  return TextOf(_Rep) == TextOf(iOther);
}

VOXUnicodeString VOXUnicodeString::operator+(const VOXUnicodeString& iOther) const
{
  return *this + iOther.ConvertToChar();
}

VOXUnicodeString VOXUnicodeString::operator+(const char* iOther) const
{
  return VOXUnicodeString((TextOf(_Rep) + TextOf(iOther)).c_str());
}

int VOXUnicodeString::GetLength() const
{
  return static_cast<int>(TextOf(_Rep).size());
}

int VOXUnicodeString::SearchSubString(const VOXUnicodeString& iSub, int iFrom, int iMode) const
{
  const std::string& text = TextOf(_Rep);
  const std::string& sub = TextOf(iSub._Rep);
  if (sub.empty() || iFrom < 0)
    return -1;
  const auto from = static_cast<std::size_t>(iFrom);
  const std::size_t found = iMode == 1 ? text.find(sub, from) : text.rfind(sub, from);
  return found == std::string::npos ? -1 : static_cast<int>(found);
}

void VOXUnicodeString::Resize(int iLength)
{
  std::string text = TextOf(_Rep);
  text.resize(iLength < 0 ? 0 : static_cast<std::size_t>(iLength), ' ');
  Assign(_Rep, NewRep(std::move(text)));
}

const char* VOXUnicodeString::ConvertToChar() const
{
  return TextOf(_Rep).c_str();
}

const char* VOXUnicodeString::CastToCharPtr() const
{
  return TextOf(_Rep).c_str();
}

VOXUnicodeString::operator const char*() const
{
  return TextOf(_Rep).c_str();
}
