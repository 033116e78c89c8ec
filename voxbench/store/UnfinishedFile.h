// SPDX-License-Identifier: MIT
#pragma once
#include <csignal>
#include <string>

namespace voxbench
{

//! Lets the signals that end a program (SIGINT, SIGTERM, a limit of the system...) take away the unfinished files first;
//! they then end it as ever, so that its caller sees which one it was. A signal that is ignored stays ignored.
//! To be called once, by the program itself.
void RemoveUnfinishedFilesWhenEnded();

//! A name of a file that goes with its object, or with the program. To be used on one thread.
class UnfinishedFile
{
public:
  //! @param iPath need not be there yet, nor any more in the end.
  explicit UnfinishedFile(std::string iPath);
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;
  ~UnfinishedFile();

  const std::string& Path() const { return _Path; }

private:
  friend struct EndingSignal;

  const std::string _Path;
  UnfinishedFile* const _Older;
};

//! While it lives, signals that end a program wait.
class EndingSignalsWait
{
public:
  EndingSignalsWait();
  EndingSignalsWait(const EndingSignalsWait&) = delete;
  EndingSignalsWait& operator=(const EndingSignalsWait&) = delete;
  ~EndingSignalsWait();

private:
  sigset_t _Before{};
};

} // namespace voxbench
