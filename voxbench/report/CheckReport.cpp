// SPDX-License-Identifier: MIT
#include "voxbench/report/CheckReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

#include <fmt/format.h>
#include <set>

namespace voxbench
{
namespace
{

const CheckRule& RuleOf(const Finding& iFinding)
{
  return CheckRules()[static_cast<std::size_t>(iFinding.rule)];
}

std::size_t RulesWithFindings(const CheckResult& iResult)
{
  std::set<Rule> rules;
  for (const Finding& finding : iResult.findings)
    rules.insert(finding.rule);
  return rules.size();
}

} // namespace

void PrintCheck(Output& ioOutput, const CheckResult& iResult)
{
  for (const Finding& finding : iResult.findings)
  {
    const CheckRule& rule = RuleOf(finding);
    ioOutput.Write(fmt::format("{}: {}\n  found: {}\n  right: {}\n  do: {}\n", rule.id, finding.feature, finding.found,
                               finding.allowed, rule.remedy));
  }
  if (iResult.findings.empty())
    ioOutput.Write("No findings.\n");
  else
    ioOutput.Write(fmt::format("{} of {}.\n",
                               Counted(static_cast<long long>(iResult.findings.size()), "finding", "findings"),
                               Counted(static_cast<long long>(RulesWithFindings(iResult)), "rule", "rules")));
  ioOutput.Write(fmt::format("Asked: {} and {}; {} subscribe to the mesh, {} are aggregated in their set.\n",
                             Counted(static_cast<long long>(iResult.sets.size()), "set", "sets"),
                             Counted(static_cast<long long>(iResult.entities), "entity", "entities"),
                             iResult.subscribing, iResult.aggregated));
}

void WriteCheckJson(Output& ioOutput, const CheckResult& iResult)
{
  Json result;
  result["findings"] = Json::array();
  result["rules"] = Json::object();
  for (const CheckRule& rule : CheckRules())
    result["rules"][rule.id] = 0;
  for (const Finding& finding : iResult.findings)
  {
    const CheckRule& rule = RuleOf(finding);
    result["findings"].push_back({{"rule", rule.id},
                                  {"feature", finding.feature},
                                  {"found", finding.found},
                                  {"allowed", finding.allowed},
                                  {"remedy", rule.remedy}});
    result["rules"][rule.id] = result["rules"][rule.id].get<int>() + 1;
  }
  result["sets"] = Json::array();
  for (const CheckResult::Set& set : iResult.sets)
    result["sets"].push_back({{"name", set.name},
                              {"mayStand", set.mayStand},
                              {"quality", set.quality.empty() ? Json() : Json(set.quality)}});
  result["entities"] = {
      {"asked", iResult.entities}, {"subscribing", iResult.subscribing}, {"aggregated", iResult.aggregated}};
  WriteJson(ioOutput, result);
}

void PrintCheckRules(Output& ioOutput)
{
  TextTable table({Align::Left, Align::Left});
  for (const CheckRule& rule : CheckRules())
    table.Add({rule.id, rule.sentence});
  table.Print(ioOutput);
}

void WriteCheckRulesJson(Output& ioOutput)
{
  Json result;
  result["rules"] = Json::array();
  for (const CheckRule& rule : CheckRules())
    result["rules"].push_back({{"id", rule.id}, {"sentence", rule.sentence}, {"remedy", rule.remedy}});
  WriteJson(ioOutput, result);
}

} // namespace voxbench
