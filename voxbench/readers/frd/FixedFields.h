// SPDX-License-Identifier: MIT
#pragma once
#include "../Numbers.h"

//! Numbers in columns of fixed width. The functions read whole words: behind a field must stand readable bytes (see
//! ByteWindow). They take the common form and give up on anything else.
namespace voxbench::frd
{

constexpr int kRealWidth = 12;

//! The 12 characters of " 1.23456E+00" or "-1.23456E+00", correctly rounded. @return false for any other form.
inline bool FixedReal(const char* iText, double& oValue)
{
  std::uint64_t word;
  std::uint32_t tail;
  std::memcpy(&word, iText, sizeof word);
  std::memcpy(&tail, iText + sizeof word, sizeof tail);
  word ^= 0x30303030302E3020u; // " 0.00000": digits become their values, the other characters 0, a minus sign 0x0D
  tail ^= 0x30302B45u;         // "E+00": the same; a minus sign becomes 0x06
  const bool negative = (word & 0xFFu) == 0x0Du;
  const bool negativePower = (tail & 0xFF00u) == 0x0600u;
  const bool signsFit = (negative || (word & 0xFFu) == 0) && (negativePower || (tail & 0xFF00u) == 0);
  word &= ~std::uint64_t{0xFF};
  tail &= ~std::uint32_t{0xFF00};
  constexpr std::uint64_t kHigh = 0x8080808080808080u;
  const bool digitsFit = (((word + 0x7676767676767676u) | word) & kHigh) == 0 && (word & 0xFF0000u) == 0 &&
                         (((tail + 0x76767676u) | tail) & 0x80808080u) == 0 && (tail & 0xFFu) == 0;
  if (!signsFit || !digitsFit)
    return false;

  word = (word & 0xFFFFFFFFFF000000u) | ((word & 0xFF00u) << 8); // the first digit next to the others
  word = (word * 10 + (word >> 8)) & 0x00FF00FF00FF00FFu;
  word = (word * 100 + (word >> 16)) & 0x0000FFFF0000FFFFu;
  const double mantissa = static_cast<double>((word * 10000 + (word >> 32)) & 0xFFFFFFFFu);
  const int power = static_cast<int>((tail >> 16 & 0xFFu) * 10 + (tail >> 24));
  const int exponent = (negativePower ? -power : power) - 5;
  if (exponent < -22 || exponent > 22)
    return false;
  // Both operands are exact, so that the one rounding of the operation is the correct one.
  const double value =
      exponent < 0 ? mantissa / scan::kPowersOfTen[-exponent] : mantissa * scan::kPowersOfTen[exponent];
  oValue = negative ? -value : value;
  return true;
}

//! A positive number, right-aligned in iWidth (up to 16) characters. @return false for anything else.
inline bool FixedId(const char* iText, int iWidth, std::int32_t& oValue)
{
  const char* const end = iText + iWidth;
  while (iText < end && *iText == ' ')
    ++iText;
  std::int64_t value = 0;
  const char* const first = iText;
  for (; iText < end && scan::IsDigit(*iText); ++iText)
    value = value * 10 + (*iText - '0');
  oValue = static_cast<std::int32_t>(value);
  return iText == end && iText - first <= 10 && value > 0 && value <= 0x7FFFFFFF;
}

} // namespace voxbench::frd
