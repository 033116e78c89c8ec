// SPDX-License-Identifier: MIT
#include "PackedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace voxbench
{

PackedFile::~PackedFile()
{
  if (_Compression != nullptr)
    gzclose(_Compression); // closes the descriptor too
  else if (_Descriptor >= 0)
    close(_Descriptor);
}

std::string PackedFile::Open(const std::filesystem::path& iPath)
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
  if (pread(_Descriptor, magic, 2, 0) != 2 || magic[0] != 0x1f || magic[1] != 0x8b)
  {
    posix_fadvise(_Descriptor, 0, 0, POSIX_FADV_SEQUENTIAL);
    return {};
  }
  _Compression = gzdopen(_Descriptor, "rb");
  if (_Compression == nullptr)
    return "No memory to unpack it";
  gzbuffer(_Compression, 1u << 17);
  return {};
}

std::int64_t PackedFile::Read(char* iTarget, std::size_t iRoom)
{
  if (_Compression == nullptr)
  {
    const ssize_t got = read(_Descriptor, iTarget, iRoom);
    if (got < 0)
      _Failure = std::string("reading stopped: ") + std::strerror(errno);
    else
      _Read += static_cast<std::uint64_t>(got);
    return got;
  }
  const int got = gzread(_Compression, iTarget, static_cast<unsigned>(std::min(iRoom, std::size_t{1} << 30)));
  int code = Z_OK;
  const char* const text = gzerror(_Compression, &code);
  if (got < 0 || code == Z_BUF_ERROR)
    _Failure = std::string("the compressed data is damaged or cut off (") + text + ")";
  return _Failure.empty() ? got : -1;
}

std::uint64_t PackedFile::BytesRead() const
{
  if (_Compression == nullptr)
    return _Read;
  const z_off_t offset = gzoffset(_Compression);
  return offset < 0 ? 0 : static_cast<std::uint64_t>(offset);
}

} // namespace voxbench
