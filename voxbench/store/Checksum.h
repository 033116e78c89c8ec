// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

namespace voxbench
{

//! Sums up values in their order, so that a byte that changed on a disk is noticed. No defence against forgery.
class Checksum
{
public:
  void Add(std::uint64_t iWord)
  {
    _Sum = (_Sum ^ iWord) * kPrime;
    _Sum ^= _Sum >> 29;
  }

  void Add(std::span<const std::byte> iBytes)
  {
    Add(iBytes.size());
    const std::byte* place = iBytes.data();
    std::size_t left = iBytes.size();
    for (; left >= sizeof(std::uint64_t); left -= sizeof(std::uint64_t), place += sizeof(std::uint64_t))
      Add(WordAt(place, sizeof(std::uint64_t)));
    if (left > 0)
      Add(WordAt(place, left));
  }

  //! 16 digits.
  std::string Text() const;

private:
  static std::uint64_t WordAt(const std::byte* iPlace, std::size_t iBytes)
  {
    std::uint64_t word = 0;
    std::memcpy(&word, iPlace, iBytes);
    return word;
  }

  static constexpr std::uint64_t kPrime = 0x9e3779b97f4a7c15;

  std::uint64_t _Sum = 0x2545f4914f6cdd1d;
};

} // namespace voxbench
