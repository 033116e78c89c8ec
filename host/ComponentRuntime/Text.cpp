// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXString.h"
#include "ComponentRuntime/VOXUnicodeString.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <string>
#include <string_view>

// Shared, never changed once made; the characters stand right behind it, zero-terminated.
struct VOXTextRep
{
  std::size_t count;
  std::size_t length;

  char* Characters() { return reinterpret_cast<char*>(this + 1); }

  std::string_view View() { return {Characters(), length}; }

  static VOXTextRep* Make(std::string_view iFirst, std::string_view iSecond = {})
  {
    const std::size_t length = iFirst.size() + iSecond.size();
    if (length == 0)
      return nullptr;
    void* const memory = std::malloc(sizeof(VOXTextRep) + length + 1);
    if (memory == nullptr)
      throw std::bad_alloc();
    VOXTextRep* const rep = new (memory) VOXTextRep{1, length};
    char* const end = std::copy(iFirst.begin(), iFirst.end(), rep->Characters()); // either may be empty, without memory
    *std::copy(iSecond.begin(), iSecond.end(), end) = '\0';
    return rep;
  }

  static VOXTextRep* Share(VOXTextRep* iRep)
  {
    if (iRep != nullptr)
      ++iRep->count;
    return iRep;
  }

  static void Drop(VOXTextRep* iRep)
  {
    if (iRep != nullptr && --iRep->count == 0)
      std::free(iRep);
  }
};

namespace
{

std::string_view ViewOf(VOXTextRep* iRep)
{
  return iRep == nullptr ? std::string_view() : iRep->View();
}

std::string_view ViewOf(const char* iText)
{
  return iText == nullptr ? std::string_view() : std::string_view(iText);
}

const char* CharactersOf(VOXTextRep* iRep)
{
  return iRep == nullptr ? "" : iRep->Characters();
}

void Assign(VOXTextRep*& ioRep, VOXTextRep* iNew)
{
  VOXTextRep* const previous = ioRep;
  ioRep = iNew;
  VOXTextRep::Drop(previous);
}

} // namespace

VOXString::VOXString(const char* iText) : _Rep(VOXTextRep::Make(ViewOf(iText))) {}
VOXString::VOXString(const VOXString& iOther) : _Rep(VOXTextRep::Share(iOther._Rep)) {}
VOXString::~VOXString()
{
  VOXTextRep::Drop(_Rep);
}

VOXString& VOXString::operator=(const VOXString& iOther)
{
  Assign(_Rep, VOXTextRep::Share(iOther._Rep));
  return *this;
}

bool VOXString::operator==(const VOXString& iOther) const
{
  return _Rep == iOther._Rep || ViewOf(_Rep) == ViewOf(iOther._Rep);
}

bool VOXString::operator==(const char* iOther) const
{
  return ViewOf(_Rep) == ViewOf(iOther);
}
int VOXString::GetLength() const
{
  return static_cast<int>(ViewOf(_Rep).size());
}
VOXString::operator const char*() const
{
  return CharactersOf(_Rep);
}
const char* VOXString::CastToCharPtr() const
{
  return CharactersOf(_Rep);
}

VOXUnicodeString::VOXUnicodeString(const char* iText) : _Rep(VOXTextRep::Make(ViewOf(iText))) {}
VOXUnicodeString::VOXUnicodeString(const VOXUnicodeString& iOther) : _Rep(VOXTextRep::Share(iOther._Rep)) {}
VOXUnicodeString::~VOXUnicodeString()
{
  VOXTextRep::Drop(_Rep);
}

VOXUnicodeString& VOXUnicodeString::operator=(const VOXUnicodeString& iOther)
{
  Assign(_Rep, VOXTextRep::Share(iOther._Rep));
  return *this;
}

VOXUnicodeString& VOXUnicodeString::operator=(const char* iText)
{
  Assign(_Rep, VOXTextRep::Make(ViewOf(iText)));
  return *this;
}

bool VOXUnicodeString::operator==(const VOXUnicodeString& iOther) const
{
  return _Rep == iOther._Rep || ViewOf(_Rep) == ViewOf(iOther._Rep);
}

bool VOXUnicodeString::operator==(const char* iOther) const
{
  return ViewOf(_Rep) == ViewOf(iOther);
}

VOXUnicodeString VOXUnicodeString::operator+(const VOXUnicodeString& iOther) const
{
  VOXUnicodeString sum;
  sum._Rep = VOXTextRep::Make(ViewOf(_Rep), ViewOf(iOther._Rep));
  return sum;
}

VOXUnicodeString VOXUnicodeString::operator+(const char* iOther) const
{
  VOXUnicodeString sum;
  sum._Rep = VOXTextRep::Make(ViewOf(_Rep), ViewOf(iOther));
  return sum;
}

int VOXUnicodeString::GetLength() const
{
  return static_cast<int>(ViewOf(_Rep).size());
}

int VOXUnicodeString::SearchSubString(const VOXUnicodeString& iSub, int iFrom, int iMode) const
{
  const std::string_view sub = ViewOf(iSub._Rep);
  if (sub.empty() || iFrom < 0)
    return -1;
  const std::size_t from = static_cast<std::size_t>(iFrom);
  const std::string_view text = ViewOf(_Rep);
  const std::size_t place = iMode == 0 ? text.rfind(sub, from) : text.find(sub, from);
  return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

void VOXUnicodeString::Resize(int iLength)
{
  const std::string_view text = ViewOf(_Rep);
  const std::size_t length = iLength < 0 ? 0 : static_cast<std::size_t>(iLength);
  if (length <= text.size())
  {
    Assign(_Rep, VOXTextRep::Make(text.substr(0, length)));
    return;
  }
  VOXTextRep* const filled = VOXTextRep::Make(text, std::string(length - text.size(), ' '));
  Assign(_Rep, filled);
}

const char* VOXUnicodeString::ConvertToChar() const
{
  return CharactersOf(_Rep);
}
const char* VOXUnicodeString::CastToCharPtr() const
{
  return CharactersOf(_Rep);
}
VOXUnicodeString::operator const char*() const
{
  return CharactersOf(_Rep);
}
