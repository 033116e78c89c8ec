// SPDX-License-Identifier: MIT
#include "LineSource.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace voxbench::inp
{

namespace
{
constexpr std::size_t kLongestLine = std::size_t{1} << 26;
}

LineSource::~LineSource()
{
  if (_Compression != nullptr)
    gzclose(_Compression); // closes the descriptor too
  else if (_Descriptor >= 0)
    close(_Descriptor);
}

std::string LineSource::Open(const std::filesystem::path& iPath)
{
  _Descriptor = open(iPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (_Descriptor < 0)
    return std::strerror(errno);
  struct stat facts = {};
  if (fstat(_Descriptor, &facts) != 0)
    return std::strerror(errno);
  if (S_ISDIR(facts.st_mode))
    return "Is a directory";
  if (!S_ISREG(facts.st_mode))
    return "Not a regular file";
  _FileSize = static_cast<std::uint64_t>(facts.st_size);

  unsigned char magic[2] = {};
  _Compressed = pread(_Descriptor, magic, 2, 0) == 2 && magic[0] == 0x1f && magic[1] == 0x8b;
  if (_Compressed)
  {
    _Compression = gzdopen(_Descriptor, "rb");
    if (_Compression == nullptr)
      return "No memory to unpack it";
    gzbuffer(_Compression, 1u << 17);
  }
  else
    posix_fadvise(_Descriptor, 0, 0, POSIX_FADV_SEQUENTIAL);
  return {};
}

std::uint64_t LineSource::BytesRead() const
{
  if (!_Compressed)
    return _TextRead;
  const z_off_t offset = gzoffset(_Compression);
  return offset < 0 ? 0 : static_cast<std::uint64_t>(offset);
}

std::uint64_t LineSource::TextAhead() const
{
  const auto inWindow = static_cast<std::uint64_t>(_Window.data() + _Filled - _Cursor);
  const std::uint64_t onDisk = _FileSize - std::min(_FileSize, BytesRead());
  return inWindow + onDisk * (_Compressed ? 5 : 1);
}

std::int64_t LineSource::ReadInto(char* iTarget, std::size_t iRoom)
{
  if (!_Compressed)
  {
    const ssize_t got = read(_Descriptor, iTarget, iRoom);
    if (got < 0)
      _Failure = std::string("reading stopped: ") + std::strerror(errno);
    return got;
  }
  const int got = gzread(_Compression, iTarget, static_cast<unsigned>(std::min(iRoom, std::size_t{1} << 30)));
  int code = Z_OK;
  const char* const text = gzerror(_Compression, &code);
  if (got < 0 || code == Z_BUF_ERROR)
    _Failure = std::string("the compressed data is damaged or cut off (") + text + ")";
  return _Failure.empty() ? got : -1;
}

void LineSource::Fill(std::size_t iRoom)
{
  std::size_t wanted = iRoom;
  while (wanted > 0 && !_AtEnd)
  {
    const std::int64_t got = ReadInto(_Window.data() + _Filled, wanted);
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
  do
  {
    const std::size_t room = std::max(kWindow, _Filled); // a line longer than the window doubles it
    if (_Filled > kLongestLine)
    {
      _Failure = "a line of more than 64 MiB";
      _AtEnd = true;
      return false;
    }
    if (_Window.size() < _Filled + room + kPadding)
      _Window.resize(_Filled + room + room / 8 + kPadding);
    const std::size_t from = _Filled;
    const bool first = _TextRead == 0;
    Fill(room);
    char* const text = _Window.data();
    if (first && memchr(text, '\n', _Filled) == nullptr && memchr(text, '\r', _Filled) != nullptr)
      _OnlyCarriageReturns = true;
    if (_OnlyCarriageReturns)
      std::replace(text + from, text + _Filled, '\r', '\n');
    if (_AtEnd && _Filled > 0 && text[_Filled - 1] != '\n')
      text[_Filled++] = '\n';
    lastEnd = static_cast<const char*>(memrchr(text, '\n', _Filled));
  } while (!_AtEnd && (lastEnd == nullptr || static_cast<std::size_t>(lastEnd - _Window.data()) < hadLines));
  std::memset(_Window.data() + _Filled, 0, kPadding - 1);
  _Cursor = _Window.data();
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
