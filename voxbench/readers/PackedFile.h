// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

struct gzFile_s;

namespace voxbench
{

//! The bytes of one file from front to back, plain or gzip-compressed (told by its first bytes).
class PackedFile
{
public:
  PackedFile() = default;
  ~PackedFile();
  PackedFile(const PackedFile&) = delete;
  PackedFile& operator=(const PackedFile&) = delete;

  //! @return the reason when the file cannot be read, else empty.
  std::string Open(const std::filesystem::path& iPath);

  //! The next bytes, unpacked. @return their number; 0 at the end; -1 on a failure, which Failure then tells.
  std::int64_t Read(char* iTarget, std::size_t iRoom);

  bool IsPacked() const { return _Compression != nullptr; }
  const std::string& Failure() const { return _Failure; } //!< empty as long as nothing failed

  //! How far reading is, in bytes on the disk.
  std::uint64_t BytesRead() const;
  std::uint64_t BytesInAll() const { return _FileSize; }

private:
  int _Descriptor = -1;
  gzFile_s* _Compression = nullptr;
  std::uint64_t _FileSize = 0;
  std::uint64_t _Read = 0; // of a plain file
  std::string _Failure;
};

} // namespace voxbench
