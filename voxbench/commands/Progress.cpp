// SPDX-License-Identifier: MIT
#include "voxbench/commands/Progress.h"

#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

constexpr auto kPatience = std::chrono::seconds(1);
constexpr auto kRedraw = std::chrono::milliseconds(100);
constexpr std::uint64_t kBarWidth = 30;
constexpr const char* kWipeLine = "\r\033[K";

} // namespace

Progress::Progress(std::ostream& ioStream, std::string iTitle, bool iShown)
    : _Stream(ioStream),
      _Title(std::move(iTitle)),
      _Shown(iShown)
{
}

Progress::~Progress()
{
  if (_Drawn)
    _Stream << kWipeLine << std::flush;
}

void Progress::Report(std::uint64_t iDone, std::uint64_t iTotal)
{
  if (!_Shown || iTotal == 0)
    return;
  const auto now = Clock::now();
  if (now - _Start < kPatience || (_Drawn && now - _LastDrawn < kRedraw))
    return;
  const std::uint64_t done = std::min(iDone, iTotal);
  const auto filled = static_cast<std::size_t>(static_cast<double>(done) / static_cast<double>(iTotal) * kBarWidth);
  _Stream << kWipeLine
          << fmt::format("{} [{}{}] {:3.0f}%", _Title, std::string(filled, '='), std::string(kBarWidth - filled, ' '),
                         100.0 * static_cast<double>(done) / static_cast<double>(iTotal))
          << std::flush;
  _Drawn = true;
  _LastDrawn = now;
}

} // namespace voxbench
