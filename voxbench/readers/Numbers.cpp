// SPDX-License-Identifier: MIT
#include "Numbers.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace voxbench
{

bool ParseInteger(std::string_view iText, std::int32_t& oValue)
{
  if (iText.size() > 1 && iText.front() == '+' && scan::IsDigit(iText[1]))
    iText.remove_prefix(1);
  std::int32_t value = 0;
  const char* const last = iText.data() + iText.size();
  const auto [end, error] = std::from_chars(iText.data(), last, value);
  if (error != std::errc() || end != last)
    return false;
  oValue = value;
  return true;
}

namespace
{
// The field with an E before its exponent, whatever the file wrote there: D, or nothing at all before the sign.
std::string WithPlainExponent(std::string_view iText)
{
  std::string plain;
  for (const char character : iText)
  {
    if (character == 'd' || character == 'D')
      plain += 'e';
    else if ((character == '+' || character == '-') && !plain.empty() &&
             (scan::IsDigit(plain.back()) || plain.back() == '.'))
      (plain += 'e') += character;
    else
      plain += character;
  }
  return plain;
}

bool LooksLikeNumber(std::string_view iText)
{
  bool digit = false;
  for (const char character : iText)
  {
    digit = digit || scan::IsDigit(character);
    if (!scan::IsDigit(character) && std::string_view("+-.eEdD").find(character) == std::string_view::npos)
      return false;
  }
  return digit;
}
} // namespace

bool ParseReal(std::string_view iText, double& oValue)
{
  if (!LooksLikeNumber(iText)) // keeps out "inf", "nan" and hexadecimal forms
    return false;
  std::string plain = WithPlainExponent(iText);
  if (plain.front() == '+')
    plain.erase(0, 1);
  const char* const last = plain.data() + plain.size();
  double value = 0.;
  const auto [end, error] = std::from_chars(plain.data(), last, value);
  if (end != last || error == std::errc::invalid_argument)
    return false;
  if (error == std::errc::result_out_of_range)
    value = std::strtod(plain.c_str(), nullptr); // tells too small from too large
  if (!std::isfinite(value))
    return false;
  oValue = value;
  return true;
}

namespace scan
{
namespace
{
// Adds the digits at iText to the mantissa. @return behind them; null when the mantissa cannot hold them.
inline const char* Digits(const char* iText, std::uint64_t& ioMantissa, int& ioCount)
{
  int count = 8;
  while (count == 8)
  {
    std::uint64_t value = 0;
    count = EightDigits(iText, value);
    if (ioMantissa > 99999999999u)
    {
      if (count != 0)
        return nullptr; // more than 19 digits might follow
      break;
    }
    ioMantissa = ioMantissa * kWholePowersOfTen[count] + (count == 0 ? 0 : value);
    ioCount += count;
    iText += count;
  }
  return iText;
}

// The exponent after its letter. @return behind it, null if it is none.
inline const char* Exponent(const char* iText, int& ioExponent)
{
  const bool negative = *iText == '-';
  iText += negative || *iText == '+';
  std::uint64_t value = 0;
  const int count = EightDigits(iText, value);
  if (count == 0 || count > 4)
    return nullptr;
  ioExponent += negative ? -static_cast<int>(value) : static_cast<int>(value);
  return iText + count;
}

const char* LibraryReal(const char* iText, double& oValue)
{
  const auto [end, error] = std::from_chars(iText, iText + 64, oValue);
  return error == std::errc() && end < iText + 64 ? end : nullptr;
}
} // namespace

const char* Real(const char* iText, double& oValue)
{
  const bool negative = *iText == '-';
  const char* const start = iText + (negative ? 1 : (*iText == '+' ? 1 : 0));
  const char* const number = *iText == '+' ? start : iText;
  std::uint64_t mantissa = 0;
  int whole = 0;
  int fraction = 0;
  const char* text = Digits(start, mantissa, whole);
  if (text != nullptr && *text == '.')
    text = Digits(text + 1, mantissa, fraction);
  if (text == nullptr)
    return IsDigit(*start) || *start == '.' ? LibraryReal(number, oValue) : nullptr;
  if (whole + fraction == 0)
    return nullptr;
  int exponent = -fraction;
  if (*text == 'e' || *text == 'E')
    text = Exponent(text + 1, exponent);
  if (text == nullptr)
    return nullptr;
  if (mantissa > (std::uint64_t{1} << 53) || exponent < -22 || exponent > 22)
    return LibraryReal(number, oValue);
  // Both operands are exact here, so that the one rounding of the operation is the correct one.
  const double exact = static_cast<double>(mantissa);
  const double value = exponent < 0 ? exact / kPowersOfTen[-exponent] : exact * kPowersOfTen[exponent];
  oValue = negative ? -value : value;
  return text;
}
} // namespace scan

} // namespace voxbench
