// SPDX-License-Identifier: MIT
#pragma once
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

//! A file that a yardstick reads from memory, front to back. The file must be there and have a byte.
class MappedFile
{
public:
  explicit MappedFile(const std::string& iPath)
  {
    const int descriptor = open(iPath.c_str(), O_RDONLY);
    struct stat facts = {};
    fstat(descriptor, &facts);
    _Size = static_cast<std::size_t>(facts.st_size);
    _Text = static_cast<char*>(mmap(nullptr, _Size, PROT_READ, MAP_PRIVATE, descriptor, 0));
    madvise(_Text, _Size, MADV_SEQUENTIAL);
    close(descriptor);
  }
  ~MappedFile() { munmap(_Text, _Size); }
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  const char* begin() const { return _Text; }
  const char* end() const { return _Text + _Size; }

private:
  char* _Text;
  std::size_t _Size;
};
