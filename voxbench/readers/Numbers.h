// SPDX-License-Identifier: MIT
#pragma once
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

//! Numbers in text. The Scan functions are for the millions: they take a pointer into a buffer that can be read at least
//! 16 bytes beyond the number (see LineSource) and give up on whatever is unusual. The Parse functions take a whole field
//! and know every way of writing a number.
namespace voxbench
{

//! A whole field as an integer that fits 32 bits. @return false if it is none; oValue is then untouched.
bool ParseInteger(std::string_view iText, std::int32_t& oValue);

//! A whole field as a finite number: 1, 1., .5, 1.5E3, 1.5D3, 1.5+3. Too small a number is 0.
//! @return false if it is none or too large; oValue is then untouched.
bool ParseReal(std::string_view iText, double& oValue);

namespace scan
{
constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::uint64_t kWholePowersOfTen[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};

//! Up to eight digits at once. @return how many digits stand at iText (0 to 8); their value in oValue.
inline int EightDigits(const char* iText, std::uint64_t& oValue)
{
  static_assert(std::endian::native == std::endian::little, "the first character must be the lowest byte");
  std::uint64_t word;
  std::memcpy(&word, iText, sizeof word);
  word ^= 0x3030303030303030u; // a digit becomes its value, anything else a byte above 9
  const std::uint64_t others = ((word + 0x7676767676767676u) | word) & 0x8080808080808080u;
  const int count = others == 0 ? 8 : std::countr_zero(others) / 8;
  if (count == 0)
    return 0;
  word <<= 64 - 8 * count; // right-aligned, zeros in front
  word = (word * 10 + (word >> 8)) & 0x00FF00FF00FF00FFu;
  word = (word * 100 + (word >> 16)) & 0x0000FFFF0000FFFFu;
  oValue = (word * 10000 + (word >> 32)) & 0xFFFFFFFFu;
  return count;
}

inline bool IsDigit(char iCharacter)
{
  return static_cast<unsigned char>(iCharacter - '0') < 10;
}

inline const char* SkipBlanks(const char* iText)
{
  while (*iText == ' ' || *iText == '\t')
    ++iText;
  return iText;
}

//! A positive id of at most eight digits. @return behind it, null if there is none.
inline const char* Id(const char* iText, std::int32_t& oValue)
{
  std::uint64_t value = 0;
  const int count = EightDigits(iText, value);
  oValue = static_cast<std::int32_t>(value);
  return count == 0 || value == 0 || (count == 8 && IsDigit(iText[8])) ? nullptr : iText + count;
}

//! A number, correctly rounded. @return behind it, null if it is none or written in an unusual way.
const char* Real(const char* iText, double& oValue);
} // namespace scan

} // namespace voxbench
