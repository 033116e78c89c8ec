// SPDX-License-Identifier: MIT
#pragma once
#include <random>
#include <string>
#include <string_view>

namespace voxbench
{

//! A text with some bytes changed: half of them to any byte, half to one of those that tell a reader something.
inline std::string Flipped(std::string iText, std::string_view iTelling, std::mt19937& ioRandom, int iFlips)
{
  for (int flip = 0; flip < iFlips; ++flip)
  {
    const std::uint32_t choice = ioRandom();
    iText[ioRandom() % iText.size()] =
        choice % 2 == 0 ? static_cast<char>(choice >> 8) : iTelling[(choice >> 8) % iTelling.size()];
  }
  return iText;
}

} // namespace voxbench
