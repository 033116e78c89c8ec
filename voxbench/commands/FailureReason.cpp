// SPDX-License-Identifier: MIT
#include "voxbench/commands/FailureReason.h"
#include "host/AnalysisCore/ErrorLog.h"

#include <fmt/format.h>

namespace voxbench
{

std::size_t FailuresReported()
{
  return voxhost::ErrorLog::Reports().size();
}

std::string ReasonSince(std::size_t iBefore, const char* iOperation)
{
  const auto& reports = voxhost::ErrorLog::Reports();
  if (reports.size() <= iBefore)
    return fmt::format("{} failed without a report", iOperation);
  const voxhost::ErrorReport& first = reports[iBefore];
  std::string reason =
      fmt::format("{} failed: error {} at {}:{}", iOperation, static_cast<int>(first.kind), first.file, first.line);
  if (!first.text.empty())
    reason += fmt::format(" ({})", first.text);
  return reason;
}

} // namespace voxbench
