// SPDX-License-Identifier: MIT
#include "voxbench/report/UpgradeReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

using Kind = Decision::Kind;

std::size_t CountOf(const UpgradeResult& iResult, Kind iKind)
{
  return CountByKind(iResult.decisions)[static_cast<std::size_t>(iKind)];
}

const char* NameOf(const Decision& iDecision)
{
  return kDecisionNames[static_cast<std::size_t>(iDecision.kind)];
}

std::string Details(const Decision& iDecision)
{
  switch (iDecision.kind)
  {
  case Kind::kAdd:
  case Kind::kLayers:
    return iDecision.count > 1 ? fmt::format("{} x {}", iDecision.count, iDecision.what) : iDecision.what;
  case Kind::kReroute:
    return fmt::format("{} -> {}", iDecision.type, iDecision.what);
  case Kind::kSkip:
    return fmt::format("{}: {}", iDecision.what, iDecision.reason);
  case Kind::kStuck:
    break;
  }
  return iDecision.reason;
}

//! "2 to add, 1 to reroute": what there is of the kinds that change something, as work to do or done.
std::string Work(const UpgradeResult& iResult, const char* iAdded, const char* iLayered, const char* iRerouted)
{
  std::string work;
  const auto add = [&](Kind iKind, const char* iWords)
  {
    if (const std::size_t count = CountOf(iResult, iKind); count > 0)
      work += fmt::format("{}{} {}", work.empty() ? "" : ", ", Grouped(static_cast<long long>(count)), iWords);
  };
  add(Kind::kAdd, iAdded);
  add(Kind::kLayers, iLayered);
  add(Kind::kReroute, iRerouted);
  add(Kind::kSkip, "skipped");
  add(Kind::kStuck, "stuck");
  return work;
}

std::string Verdict(const UpgradeResult& iResult)
{
  if (iResult.decisions.empty())
    return "Nothing to do.";
  if (!iResult.backup.empty())
    return fmt::format("Done: {}. The old document is {}.", Work(iResult, "added", "layered", "rerouted"),
                       iResult.backup);
  if (CountOf(iResult, Kind::kStuck) == iResult.decisions.size())
    return fmt::format("Nothing can be done: {}.", Work(iResult, "", "", ""));
  return fmt::format("Plan: {}. Nothing was changed: --write does it.",
                     Work(iResult, "to add", "to layer", "to reroute"));
}

} // namespace

bool UpgradeResult::IsAllDone() const
{
  const auto counts = CountByKind(decisions);
  const bool isLeft =
      counts[static_cast<std::size_t>(Kind::kSkip)] + counts[static_cast<std::size_t>(Kind::kStuck)] > 0;
  return decisions.empty() || (!backup.empty() && !isLeft);
}

void PrintUpgrade(Output& ioOutput, const UpgradeResult& iResult)
{
  for (const Decision& decision : iResult.decisions)
    ioOutput.Write(fmt::format("{:<7}  {}: {}\n", NameOf(decision), decision.feature, Details(decision)));
  ioOutput.Write(
      fmt::format("{}: release {}, newest {}. {}\n", iResult.file, iResult.from, iResult.to, Verdict(iResult)));
}

void WriteUpgradeJson(Output& ioOutput, const UpgradeResult& iResult)
{
  Json result;
  result["file"] = iResult.file;
  result["from"] = iResult.from;
  result["to"] = iResult.to;
  result["decisions"] = Json::array();
  for (const Decision& decision : iResult.decisions)
    result["decisions"].push_back({{"decision", NameOf(decision)},
                                   {"feature", decision.feature},
                                   {"type", decision.type},
                                   {"what", decision.what},
                                   {"count", decision.count},
                                   {"reason", decision.reason}});
  const auto counts = CountByKind(iResult.decisions);
  for (std::size_t kind = 0; kind < counts.size(); ++kind)
    result["counts"][kDecisionNames[kind]] = counts[kind];
  result["backup"] = iResult.backup.empty() ? Json() : Json(iResult.backup);
  result["verdict"] = Verdict(iResult);
  WriteJson(ioOutput, result);
}

} // namespace voxbench
