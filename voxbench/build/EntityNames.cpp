// SPDX-License-Identifier: MIT
#include "voxbench/build/EntityNames.h"
#include "voxbench/build/Coverage.h"

#include <algorithm>
#include <fmt/format.h>
#include <vector>

namespace voxbench
{
namespace
{

constexpr std::size_t kNamedTargets = 2;
constexpr std::size_t kNamedVariables = 4;

std::string InStep(std::int32_t iStep)
{
  return iStep > 0 ? fmt::format(", step {}", iStep) : "";
}

std::string TargetOf(const AppliedRow& iRow, const NeutralModel& iRecords, bool iOnNodes)
{
  if (iRow.name >= 0)
    return iRecords.names[static_cast<std::size_t>(iRow.name)];
  return iRow.id > 0 ? fmt::format("{} {}", iOnNodes ? "node" : "element", iRow.id) : "";
}

//! The first targets by name, and how many more there are.
std::string TargetsOf(const AppliedCard& iCard, const NeutralModel& iRecords)
{
  std::vector<std::string> named;
  std::size_t further = 0;
  const bool onNodes = ActsOnNodes(iCard);
  const AppliedRow* previous = nullptr;
  for (const AppliedRow& row : iCard.rows)
  {
    const bool repeats = previous != nullptr && previous->name == row.name && previous->id == row.id;
    previous = &row;
    if (repeats)
      continue;
    if (named.size() == kNamedTargets)
    {
      ++further;
      continue;
    }
    std::string target = TargetOf(row, iRecords, onNodes);
    if (!target.empty() && std::find(named.begin(), named.end(), target) == named.end())
      named.push_back(std::move(target));
  }
  if (named.empty())
    return "";
  if (further > 0)
    return fmt::format(" on {} and {} more", fmt::join(named, ", "), further);
  return fmt::format(" on {}", fmt::join(named, " and "));
}

//! The label or the degrees of freedom, when all rows have the same: " GRAV", " 1-3".
std::string WhatOf(const AppliedCard& iCard, const NeutralModel& iRecords)
{
  if (iCard.rows.empty())
    return "";
  const AppliedRow& first = iCard.rows.front();
  const bool alike = std::all_of(iCard.rows.begin(), iCard.rows.end(),
                                 [&first](const AppliedRow& iRow) {
                                   return iRow.label == first.label && iRow.firstDof == first.firstDof &&
                                          iRow.lastDof == first.lastDof;
                                 });
  if (!alike)
    return "";
  if (first.label >= 0)
    return " " + iRecords.names[static_cast<std::size_t>(first.label)];
  if (first.firstDof <= 0)
    return "";
  return first.lastDof > first.firstDof ? fmt::format(" {}-{}", first.firstDof, first.lastDof)
                                        : fmt::format(" {}", first.firstDof);
}

std::string Capitalised(std::string iText)
{
  iText[0] = static_cast<char>(iText[0] - 'a' + 'A');
  return iText;
}

} // namespace

std::string AliasOf(const AppliedCard& iCard, const NeutralModel& iRecords)
{
  return iCard.keyword + WhatOf(iCard, iRecords) + TargetsOf(iCard, iRecords) + InStep(iCard.step);
}

std::string AliasOf(const Section& iSection)
{
  std::string alias = Capitalised(NameOf(iSection.kind));
  if (iSection.kind != SectionKind::Mass)
    alias += " section";
  if (!iSection.elementSet.empty())
    alias += " on " + iSection.elementSet;
  if (!iSection.material.empty())
    alias += " of " + iSection.material;
  return alias;
}

std::string AliasOf(const OutputRequest& iRequest)
{
  std::string alias = iRequest.keyword;
  const std::size_t shown = std::min(iRequest.variables.size(), kNamedVariables);
  for (std::size_t place = 0; place < shown; ++place)
    alias += (place == 0 ? " " : ",") + iRequest.variables[place];
  if (shown < iRequest.variables.size())
    alias += ",...";
  if (!iRequest.set.empty())
    alias += " on " + iRequest.set;
  return alias + InStep(iRequest.card.step);
}

const char* DefinitionOf(SurfaceKind iKind)
{
  return iKind == SurfaceKind::Node ? "node surface" : "element surface";
}

} // namespace voxbench
