// SPDX-License-Identifier: MIT
#include "Diagnostics.h"

#include <fmt/format.h>

#include <utility>

namespace voxbench
{

namespace
{
const char* NameOf(Severity iSeverity)
{
  switch (iSeverity)
  {
  case Severity::Error:
    return "error";
  case Severity::Warning:
    return "warning";
  default:
    return "note";
  }
}
} // namespace

void Diagnostics::Add(Severity iSeverity, Where iWhere, const std::string& iCard, std::string iMessage)
{
  errors += iSeverity == Severity::Error;
  warnings += iSeverity == Severity::Warning;
  if (_Listed[iCard] >= kListedPerCard)
  {
    ++unlisted[iCard];
    return;
  }
  ++_Listed[iCard];
  list.push_back({iSeverity, iWhere, iCard, std::move(iMessage)});
}

std::string Describe(const Diagnostic& iDiagnostic, const std::vector<std::string>& iFiles)
{
  std::string place;
  if (iDiagnostic.where.file >= 0 && static_cast<std::size_t>(iDiagnostic.where.file) < iFiles.size())
    place = fmt::format("{}:{}: ", iFiles[static_cast<std::size_t>(iDiagnostic.where.file)], iDiagnostic.where.line);
  const std::string card = iDiagnostic.card.empty() ? std::string() : iDiagnostic.card + ": ";
  return fmt::format("{}{}: {}{}", place, NameOf(iDiagnostic.severity), card, iDiagnostic.message);
}

} // namespace voxbench
