// SPDX-License-Identifier: MIT
#include "LineSource.h"

#include <algorithm>
#include <cstring>

namespace voxbench::inp
{

namespace
{
constexpr std::size_t kLongestLine = std::size_t{1} << 26;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
} // namespace

// A small file needs no more than its size, and a byte more to see its end: a deck may include a great many of them.
std::size_t LineSource::RoomAtATime() const
{
  return IsCompressed() ? kWindow : static_cast<std::size_t>(std::min<std::uint64_t>(kWindow, BytesInAll() + 1));
}

std::uint64_t LineSource::TextAhead() const
{
  const auto inWindow = static_cast<std::uint64_t>(_Window.data() + _Filled - _Cursor);
  const std::uint64_t onDisk = BytesInAll() - std::min(BytesInAll(), BytesRead());
  return inWindow + onDisk * (IsCompressed() ? 5 : 1);
}

void LineSource::Fill(std::size_t iRoom)
{
  std::size_t wanted = iRoom;
  while (wanted > 0 && !_AtEnd)
  {
    const std::int64_t got = _File.Read(_Window.data() + _Filled, wanted);
    if (got <= 0)
    {
      _AtEnd = true;
      return;
    }
    _Filled += static_cast<std::size_t>(got);
    _TextRead += static_cast<std::uint64_t>(got);
    wanted -= static_cast<std::size_t>(got);
  }
}

bool LineSource::Refill()
{
  const auto kept = _Window.empty() ? 0 : static_cast<std::size_t>(_Window.data() + _Filled - _Cursor);
  if (_AtEnd)
    return false;
  if (kept != 0)
    std::memmove(_Window.data(), _Cursor, kept);
  const std::size_t hadLines = _Window.empty() ? 0 : static_cast<std::size_t>(_Limit - _Cursor);
  _Filled = kept;
  const char* lastEnd = nullptr;
  std::size_t skipped = 0;
  do
  {
    const std::size_t room = std::max(RoomAtATime(), _Filled); // a line longer than the window doubles it
    if (_Filled > kLongestLine)
    {
      _TooLong = "a line of more than 64 MiB";
      _AtEnd = true;
      return false;
    }
    if (_Window.size() < _Filled + room + kPadding)
      _Window.resize(_Filled + room + room / 8 + kPadding);
    const std::size_t from = _Filled;
    const bool first = _TextRead == 0;
    Fill(room);
    char* const text = _Window.data();
    if (first && std::string_view(text, _Filled).starts_with(kByteOrderMark))
      skipped = kByteOrderMark.size();
    if (first && memchr(text, '\n', _Filled) == nullptr && memchr(text, '\r', _Filled) != nullptr)
      _OnlyCarriageReturns = true;
    if (_OnlyCarriageReturns)
      std::replace(text + from, text + _Filled, '\r', '\n');
    if (_AtEnd && _Filled > 0 && text[_Filled - 1] != '\n')
      text[_Filled++] = '\n';
    lastEnd = static_cast<const char*>(memrchr(text, '\n', _Filled));
  } while (!_AtEnd && (lastEnd == nullptr || static_cast<std::size_t>(lastEnd - _Window.data()) < hadLines));
  std::memset(_Window.data() + _Filled, 0, kPadding - 1);
  _Cursor = _Window.data() + skipped;
  _Limit = lastEnd == nullptr ? _Cursor : lastEnd + 1;
  return static_cast<std::size_t>(_Limit - _Cursor) > hadLines;
}

std::string_view LineSource::TakeLine()
{
  const char* const start = _Cursor;
  const char* end = static_cast<const char*>(memchr(start, '\n', static_cast<std::size_t>(_Limit - start)));
  if (end == nullptr)
    end = _Limit;
  MoveTo(end < _Limit ? end + 1 : _Limit, 1);
  return {start, static_cast<std::size_t>(end - start)};
}

} // namespace voxbench::inp
