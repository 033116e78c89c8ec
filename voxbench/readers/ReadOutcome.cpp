// SPDX-License-Identifier: MIT
#include "ReadOutcome.h"

#include <fmt/format.h>

namespace voxbench
{

std::string ReadOutcome::Describe() const
{
  if (ok)
    return "read";
  const std::string place = line > 0 ? fmt::format("{}:{}", file, line) : file;
  return fmt::format("{}: {}{}{} {}", place, card, card.empty() ? "" : ": ", reason, advice);
}

} // namespace voxbench
