// SPDX-License-Identifier: MIT
#include "voxbench/store/PendingFile.h"
#include "voxbench/store/Database.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace voxbench
{
namespace
{

constexpr int kMostLinks = 40; //!< as many as the system follows

[[noreturn]] void Fail(const std::string& iFile, const char* iWhat)
{
  throw StoreError(fmt::format("{} cannot be {}: {}.", iFile, iWhat, std::strerror(errno)));
}

//! A descriptor, closed with its object.
class Opened
{
public:
  Opened(const std::string& iFile, int iFlags, const char* iWhat, mode_t iMode = 0666)
      : _Handle(open(iFile.c_str(), iFlags | O_CLOEXEC, iMode))
  {
    if (_Handle < 0)
      Fail(iFile, iWhat);
  }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;
  ~Opened() { close(_Handle); }

  int Handle() const { return _Handle; }

private:
  int _Handle;
};

std::string FolderOf(const std::string& iFile)
{
  const std::string folder = std::filesystem::path(iFile).parent_path().string();
  return folder.empty() ? "." : folder;
}

std::string WhereALinkLeads(const std::string& iFile)
{
  std::error_code unknown;
  if (!std::filesystem::is_symlink(iFile, unknown))
    return iFile;
  std::filesystem::path led = std::filesystem::canonical(iFile, unknown);
  if (!unknown)
    return led.string();
  led = iFile; // to no file yet: the place that the last link names
  for (int links = 0; links < kMostLinks && std::filesystem::is_symlink(led, unknown); ++links)
  {
    const std::filesystem::path next = std::filesystem::read_symlink(led, unknown);
    if (unknown)
      return iFile;
    led = led.parent_path() / next;
  }
  return led.string();
}

void WriteAll(int iHandle, const char* iData, std::size_t iSize, const std::string& iFile)
{
  while (iSize > 0)
  {
    const ssize_t written = write(iHandle, iData, iSize);
    if (written < 0 && errno == EINTR)
      continue;
    if (written <= 0)
      Fail(iFile, "written");
    iData += written;
    iSize -= static_cast<std::size_t>(written);
  }
}

} // namespace

PendingFile::PendingFile(const std::string& iTarget)
    : _Target(WhereALinkLeads(iTarget)),
      _Part(fmt::format("{}.part-{}", _Target, getpid()))
{
  std::error_code missing;
  const auto kind = std::filesystem::status(_Target, missing).type();
  if (kind != std::filesystem::file_type::not_found && kind != std::filesystem::file_type::regular)
    throw StoreError(fmt::format("{} is no ordinary file: give another name.", iTarget));
  struct stat old
  {
  };
  const bool replaces = stat(_Target.c_str(), &old) == 0;
  const mode_t permissions = replaces ? (old.st_mode & 0777) | S_IRUSR | S_IWUSR : 0666;
  const Opened made(Path(), O_WRONLY | O_CREAT | O_TRUNC, "made", permissions);
  if (replaces && fchmod(made.Handle(), permissions) != 0)
    Fail(Path(), "given the permissions of the old file");
}

void PendingFile::CopyFrom(const std::string& iFile) const
{
  const Opened source(iFile, O_RDONLY, "read");
  const Opened target(Path(), O_WRONLY | O_TRUNC, "written");
  struct stat known
  {
  };
  if (fstat(source.Handle(), &known) == 0 && fchmod(target.Handle(), known.st_mode & 07777) != 0)
    Fail(Path(), "given the permissions of the old file");
  std::vector<char> block(std::size_t{1} << 20);
  for (;;)
  {
    const ssize_t got = read(source.Handle(), block.data(), block.size());
    if (got < 0 && errno == EINTR)
      continue;
    if (got < 0)
      Fail(iFile, "read");
    if (got == 0)
      return;
    WriteAll(target.Handle(), block.data(), static_cast<std::size_t>(got), Path());
  }
}

void PendingFile::Replace()
{
  Settle();
  if (rename(Path().c_str(), _Target.c_str()) != 0)
    Fail(_Target, "replaced");
  _IsPlaced = true;
  SettleFolder();
}

std::string PendingFile::ReplaceKeepingOld()
{
  if (access(_Target.c_str(), W_OK) != 0)
    Fail(_Target, "written");
  Settle();
  const EndingSignalsWait wait; // the backup comes with the new file or not at all
  const std::string backup = KeepOld();
  try
  {
    Replace();
  }
  catch (...)
  {
    if (!_IsPlaced)
      unlink(backup.c_str());
    throw;
  }
  return backup;
}

//! A second name for the old file: it costs nothing, and a name that is taken is never taken away.
std::string PendingFile::KeepOld() const
{
  for (int number = 1;; ++number)
  {
    std::string backup = fmt::format("{}.backup-{}", _Target, number);
    if (link(_Target.c_str(), backup.c_str()) == 0)
      return backup;
    if (errno != EEXIST)
      Fail(backup, "made");
  }
}

bool PendingFile::TakeFreePlace()
{
  Settle();
  if (link(Path().c_str(), _Target.c_str()) != 0)
  {
    if (errno == EEXIST)
      return false;
    Fail(_Target, "made");
  }
  unlink(Path().c_str());
  _IsPlaced = true;
  SettleFolder();
  return true;
}

void PendingFile::Settle() const
{
  const Opened file(Path(), O_RDWR, "written");
  if (fsync(file.Handle()) != 0)
    Fail(Path(), "written");
}

//! The new name counts once the folder is on the disk. A file system that cannot do it keeps its own order.
void PendingFile::SettleFolder() const
{
  const int folder = open(FolderOf(_Target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0)
    return;
  fsync(folder);
  close(folder);
}

} // namespace voxbench
