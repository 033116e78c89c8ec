// SPDX-License-Identifier: MIT
#include "voxbench/store/Header.h"
#include "voxbench/store/Database.h"
#include "voxbench/store/Schema.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>

namespace voxbench
{
namespace
{

// Layout of the first bytes of a database file; numbers are big-endian.
constexpr std::size_t kSize = 100;
constexpr std::string_view kMagic("SQLite format 3\0", 16);
constexpr std::size_t kPageSizeAt = 16;
constexpr std::size_t kWriteModeAt = 18;
constexpr std::size_t kReadModeAt = 19;
constexpr std::size_t kPagesAt = 28;
constexpr std::size_t kVersionAt = 60;
constexpr std::size_t kApplicationAt = 68;

class Header
{
public:
  explicit Header(const std::string& iFile)
  {
    errno = 0;
    std::ifstream file(iFile, std::ios::binary);
    isOpen = file.is_open();
    file.read(_Bytes.data(), kSize);
    _Read = static_cast<std::size_t>(file.gcount());
  }

  bool isOpen = false;

  bool IsWhole() const { return _Read == kSize; }
  bool IsDatabase() const { return _Read >= kMagic.size() && std::string_view(_Bytes.data(), kMagic.size()) == kMagic; }
  std::uint32_t Number(std::size_t iPlace, std::size_t iBytes = 4) const
  {
    std::uint32_t number = 0;
    for (std::size_t byte = 0; byte < iBytes; ++byte)
      number = number << 8 | static_cast<unsigned char>(_Bytes[iPlace + byte]);
    return number;
  }
  std::uint64_t PageSize() const
  {
    const std::uint32_t size = Number(kPageSizeAt, 2);
    return size == 1 ? 65536 : size;
  }

private:
  std::array<char, kSize> _Bytes{};
  std::size_t _Read = 0;
};

void RefuseTruncated(const std::string& iFile, const Header& iHeader)
{
  std::error_code unknown;
  const std::uintmax_t size = std::filesystem::file_size(iFile, unknown);
  const std::uint64_t needed = iHeader.PageSize() * iHeader.Number(kPagesAt);
  if (!unknown && size < needed)
    throw StoreError(
        fmt::format("the document is truncated: it has {} of {} bytes. Restore it from a backup, or import "
                    "the deck again.",
                    size, needed));
}

} // namespace

bool IsMeantAsDocument(const std::string& iFile)
{
  return Header(iFile).IsDatabase() || std::filesystem::path(iFile).extension() == ".voxdoc";
}

void RefuseByHeader(const std::string& iFile)
{
  std::error_code unknown;
  if (std::filesystem::is_directory(iFile, unknown))
    throw StoreError("it is a directory: give a document.");
  const Header header(iFile);
  if (!header.isOpen)
    throw StoreError(fmt::format("it cannot be opened: {}.", std::strerror(errno)));
  if (std::filesystem::file_size(iFile, unknown) == 0)
    throw StoreError("the file is empty: restore it from a backup, or import the deck again.");
  if (!header.IsDatabase())
    throw StoreError("it is no analysis document: its first bytes are other ones. voxbench import makes documents.");
  if (!header.IsWhole())
    throw StoreError("the document is truncated: not even its header is whole. Restore it from a backup, or import the "
                     "deck again.");
  if (header.Number(kApplicationAt) != static_cast<std::uint32_t>(kApplicationId))
    throw StoreError("it is a database of another program, no analysis document. voxbench import makes documents.");
  if (const std::uint32_t version = header.Number(kVersionAt); version > static_cast<std::uint32_t>(kFormatVersion))
    throw StoreError(fmt::format("the document is of format {}, and this program reads up to format {}: use a newer "
                                 "voxbench.",
                                 version, kFormatVersion));
  else if (version == 0)
    throw Damaged("its header names no format");
  RefuseTruncated(iFile, header);
  if (header.Number(kWriteModeAt, 1) != 1 || header.Number(kReadModeAt, 1) != 1)
    throw StoreError("another program has put it into a mode that this one does not write (write-ahead log): let that "
                     "program set journal_mode to DELETE.");
}

} // namespace voxbench
