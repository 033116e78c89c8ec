// SPDX-License-Identifier: MIT
#pragma once
#include <algorithm>
#include <string>
#include <string_view>

namespace voxbench
{

//! Names and titles come from files that anybody may have written: what would steer a terminal (escape sequences, bells)
//! becomes '?'. Line ends and tabs stay.
inline void MaskControls(std::string& ioText)
{
  const auto steers = [](char iByte)
  {
    const auto byte = static_cast<unsigned char>(iByte);
    return (byte < 0x20 && byte != '\n' && byte != '\t') || byte == 0x7F;
  };
  std::replace_if(ioText.begin(), ioText.end(), steers, '?');
  // The controls of eight bits, in UTF-8.
  constexpr auto none = std::string::npos;
  for (std::size_t at = ioText.find('\xC2'); at != none; at = ioText.find('\xC2', at + 1))
    if (at + 1 < ioText.size() && (static_cast<unsigned char>(ioText[at + 1]) & 0xE0) == 0x80)
      ioText.replace(at, 2, "??");
}

//! The same of a text by itself.
inline std::string Printable(std::string iText)
{
  MaskControls(iText);
  return iText;
}

} // namespace voxbench
