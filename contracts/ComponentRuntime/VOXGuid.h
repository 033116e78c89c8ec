// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

//! 128-bit identifier of an interface or a class.
struct GUID
{
  std::uint32_t Data1;   //!< first 32 bits
  std::uint16_t Data2;   //!< next 16 bits
  std::uint16_t Data3;   //!< next 16 bits
  std::uint8_t Data4[8]; //!< last 64 bits
};

using IID = GUID;
using CLSID = GUID;

constexpr bool operator==(const GUID& iLeft, const GUID& iRight)
{
  if (iLeft.Data1 != iRight.Data1 || iLeft.Data2 != iRight.Data2 || iLeft.Data3 != iRight.Data3)
    return false;
  for (int i = 0; i < 8; ++i)
    if (iLeft.Data4[i] != iRight.Data4[i])
      return false;
  return true;
}

constexpr bool operator!=(const GUID& iLeft, const GUID& iRight)
{
  return !(iLeft == iRight);
}

//! The identifier of a name: two 64-bit FNV-1a hashes of it, the second with another offset basis. Renaming an interface
//! changes its identifier; nothing else does.
//! Source of the hash: G. Fowler, L. C. Noll, K.-P. Vo, D. Eastlake, "The FNV Non-Cryptographic Hash Algorithm".
constexpr GUID VOXGuidOfName(const char* iName)
{
  constexpr std::uint64_t prime = 1099511628211ull;
  std::uint64_t high = 14695981039346656037ull;
  std::uint64_t low = 0x9ae16a3b2f90404full;
  for (const char* c = iName; *c != '\0'; ++c)
  {
    high = (high ^ static_cast<std::uint8_t>(*c)) * prime;
    low = (low ^ static_cast<std::uint8_t>(*c)) * prime;
  }
  GUID guid{static_cast<std::uint32_t>(high),
            static_cast<std::uint16_t>(high >> 32),
            static_cast<std::uint16_t>(high >> 48),
            {}};
  for (int i = 0; i < 8; ++i)
    guid.Data4[i] = static_cast<std::uint8_t>(low >> (8 * i));
  return guid;
}
