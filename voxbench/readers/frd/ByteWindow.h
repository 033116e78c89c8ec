// SPDX-License-Identifier: MIT
#pragma once
#include "PackedFile.h"

#include <vector>

namespace voxbench::frd
{

//! The bytes of one file, plain or gzip-compressed (told by its first bytes), through a window that moves over it.
//!
//! - Behind the window stand `kPadding` readable bytes that are no part of the file, so that scanners need no limits.
//! - Only the window is held in memory, whatever the size of the file.
class ByteWindow
{
public:
  static constexpr std::size_t kWindow = std::size_t{1} << 20;
  static constexpr std::size_t kPadding = 64;

  //! @return "" when the file is open, else what is wrong with it.
  std::string Open(const std::filesystem::path& iPath);

  //! Makes sure that iCount bytes stand at the cursor. What stands there may move. @return false when the file has fewer
  //! left, or when `Failure` is not "".
  bool Have(std::size_t iCount) { return Left() >= iCount || Refill(iCount); }

  const char* Cursor() const { return _Bytes.data() + _Start; }
  std::size_t Left() const { return _End - _Start; } //!< bytes in the window from the cursor on
  void Skip(std::size_t iCount) { _Start += iCount; }

  //! Place of the cursor in the file; of a compressed one in its text.
  std::uint64_t Offset() const { return _Passed + _Start; }

  const std::string& Failure() const { return _File.Failure(); }
  std::uint64_t BytesRead() const { return _File.BytesRead(); }
  std::uint64_t BytesInAll() const { return _File.BytesInAll(); }

private:
  bool Refill(std::size_t iCount);

  PackedFile _File;
  std::vector<char> _Bytes;
  std::size_t _Start = 0;
  std::size_t _End = 0;
  std::uint64_t _Passed = 0; //!< bytes of the file before the window
  bool _AtEnd = false;
};

} // namespace voxbench::frd
