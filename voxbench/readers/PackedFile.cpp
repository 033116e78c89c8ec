// SPDX-License-Identifier: MIT
#include "PackedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string_view>

namespace voxbench
{

namespace
{
//! zlib names the file by its descriptor, which tells nobody anything: "<fd:3>: unexpected end of file".
std::string WithoutPlace(std::string_view iText)
{
  const std::size_t end = iText.starts_with("<fd:") ? iText.find(">: ") : std::string_view::npos;
  return std::string(end == std::string_view::npos ? iText : iText.substr(end + 3));
}
} // namespace

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
    _Failure = "the compressed data is damaged or cut off (" + WithoutPlace(text) + ")";
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
