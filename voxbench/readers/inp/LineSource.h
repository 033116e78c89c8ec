// SPDX-License-Identifier: MIT
#pragma once
#include "PackedFile.h"

#include <string_view>
#include <vector>

namespace voxbench::inp
{

//! The lines of one file, plain or gzip-compressed (told by its first bytes), through a window that moves over it.
//!
//! - The window holds whole lines only, each ended by '\n', the last one of the file too. A carriage return before it
//!   stays; a file that knows only carriage returns has them turned into '\n'. A byte order mark is passed over.
//! - Behind the window stand at least `kPadding` bytes that can be read and end no line, so that scanners need no limits.
//! - Only the window is held in memory, whatever the size of the file.
class LineSource
{
public:
  static constexpr std::size_t kWindow = std::size_t{1} << 19;
  static constexpr std::size_t kPadding = 128;

  //! @return "" when the file is open, else what is wrong with it.
  std::string Open(const std::filesystem::path& iPath) { return _File.Open(iPath); }

  //! Makes sure that a line stands at the cursor. @return false at the end of the file, or when `Failure` is not "".
  bool Ready() { return _Cursor < _Limit || Refill(); }

  //! Reads more behind the cursor; what stands from the cursor on is kept (at another address).
  //! @return false when there is no more.
  bool Refill();

  const char* Cursor() const { return _Cursor; }
  const char* Limit() const { return _Limit; }

  //! Moves the cursor to the start of a line, having passed `iLines` line ends.
  void MoveTo(const char* iCursor, std::int32_t iLines)
  {
    _Cursor = iCursor;
    _Line += iLines;
  }

  //! The line at the cursor without its end; moves behind it. Borrowed until the next refill.
  std::string_view TakeLine();

  std::int32_t Line() const { return _Line; } //!< number of the line at the cursor, from 1
  const std::string& Failure() const { return _TooLong.empty() ? _File.Failure() : _TooLong; }
  std::uint64_t BytesRead() const { return _File.BytesRead(); }
  std::uint64_t BytesInAll() const { return _File.BytesInAll(); }
  bool IsCompressed() const { return _File.IsPacked(); }

  //! A guess, never too small for plain files, of the bytes of text still to come.
  std::uint64_t TextAhead() const;

private:
  std::size_t RoomAtATime() const;
  void Fill(std::size_t iRoom);

  PackedFile _File;
  std::vector<char> _Window;
  std::size_t _Filled = 0; //!< bytes of text in the window, beyond whole lines too
  const char* _Cursor = nullptr;
  const char* _Limit = nullptr;
  std::int32_t _Line = 1;
  std::uint64_t _TextRead = 0;
  bool _AtEnd = false;
  bool _OnlyCarriageReturns = false;
  std::string _TooLong; //!< what is wrong with a line that no window holds
};

} // namespace voxbench::inp
