// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Printable.h"

#include <charconv>
#include <ostream>
#include <string>
#include <string_view>

namespace voxbench
{

//! Buffered text on its way to a stream, for outputs of millions of numbers. What would steer a terminal becomes '?'.
class Output
{
public:
  explicit Output(std::ostream& ioStream) : _Stream(ioStream) { _Buffer.reserve(kBlock + kLongestNumber); }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  ~Output() { Flush(); }

  void Write(std::string_view iText)
  {
    _Buffer.append(iText);
    if (_Buffer.size() >= kBlock)
      Flush();
  }

  void WriteNumber(long long iNumber)
  {
    char digits[kLongestNumber];
    const auto end = std::to_chars(digits, digits + sizeof digits, iNumber).ptr;
    Write({digits, static_cast<std::size_t>(end - digits)});
  }

  void WriteBlanks(std::size_t iCount) { Write(std::string(iCount, ' ')); }

  //! Hands everything over to the stream. @return false if the stream does not take it.
  bool Flush()
  {
    MaskControls(_Buffer);
    _Stream.write(_Buffer.data(), static_cast<std::streamsize>(_Buffer.size()));
    _Buffer.clear();
    _Stream.flush();
    return _Stream.good();
  }

private:
  static constexpr std::size_t kBlock = 1 << 16;
  static constexpr std::size_t kLongestNumber = 24;

  std::ostream& _Stream;
  std::string _Buffer;
};

} // namespace voxbench
