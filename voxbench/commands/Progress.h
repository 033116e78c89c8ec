// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <cstdint>
#include <ostream>
#include <string>

namespace voxbench
{

//! A progress bar on one line of a terminal, for work of over a second; nothing for quicker work. It wipes itself out.
class Progress
{
public:
  //! @param iShown false: nothing is ever drawn, as when the output is no terminal.
  Progress(std::ostream& ioStream, std::string iTitle, bool iShown);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  void Report(std::uint64_t iDone, std::uint64_t iTotal);

private:
  using Clock = std::chrono::steady_clock;

  std::ostream& _Stream;
  std::string _Title;
  bool _Shown;
  bool _Drawn = false;
  Clock::time_point _Start = Clock::now();
  Clock::time_point _LastDrawn;
};

} // namespace voxbench
