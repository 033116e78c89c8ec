// SPDX-License-Identifier: MIT
#include "ByteWindow.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace voxbench::frd
{

ByteWindow::~ByteWindow()
{
  if (_Compression != nullptr)
    gzclose(_Compression); // closes the descriptor too
  else if (_Descriptor >= 0)
    close(_Descriptor);
}

std::string ByteWindow::Open(const std::filesystem::path& iPath)
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
  if (pread(_Descriptor, magic, 2, 0) == 2 && magic[0] == 0x1f && magic[1] == 0x8b)
  {
    _Compression = gzdopen(_Descriptor, "rb");
    if (_Compression == nullptr)
      return "No memory to unpack it";
    gzbuffer(_Compression, 1u << 17);
  }
  else
    posix_fadvise(_Descriptor, 0, 0, POSIX_FADV_SEQUENTIAL);
  _Bytes.resize(kWindow + kPadding);
  return {};
}

std::uint64_t ByteWindow::BytesRead() const
{
  if (_Compression == nullptr)
    return _Passed + _End;
  const z_off_t offset = gzoffset(_Compression);
  return offset < 0 ? 0 : static_cast<std::uint64_t>(offset);
}

std::int64_t ByteWindow::ReadInto(char* iTarget, std::size_t iRoom)
{
  if (_Compression == nullptr)
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

bool ByteWindow::Refill(std::size_t iCount)
{
  if (_AtEnd)
    return false;
  const std::size_t kept = Left();
  std::memmove(_Bytes.data(), _Bytes.data() + _Start, kept);
  _Passed += _Start;
  _Start = 0;
  _End = kept;
  const std::size_t wanted = std::max(kWindow, iCount);
  if (_Bytes.size() < wanted + kPadding)
    _Bytes.resize(wanted + kPadding);
  while (_End < wanted && !_AtEnd)
  {
    const std::int64_t got = ReadInto(_Bytes.data() + _End, wanted - _End);
    _AtEnd = got <= 0;
    _End += got > 0 ? static_cast<std::size_t>(got) : 0;
  }
  std::memset(_Bytes.data() + _End, 0, kPadding);
  return _End >= iCount && _Failure.empty();
}

} // namespace voxbench::frd
