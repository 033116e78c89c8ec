// SPDX-License-Identifier: MIT
#include "voxbench/build/Coverage.h"
#include "voxbench/readers/inp/InpReader.h"

#include <map>

namespace voxbench
{

std::vector<UncoveredRecords> RecordsWithoutFeature(const NeutralModel& iRecords)
{
  std::vector<UncoveredRecords> uncovered;
  const auto add = [&uncovered](std::string iWhat, std::size_t iCount)
  {
    if (iCount > 0)
      uncovered.push_back({std::move(iWhat), static_cast<std::int64_t>(iCount)});
  };
  add("contact interactions", iRecords.interactions.size());
  add("initial conditions", iRecords.initialConditions.size());
  add("nodal thicknesses", iRecords.nodalThicknesses.size());
  add("steps", iRecords.steps.size());
  std::map<std::string, std::size_t> others;
  for (const CardRecord& card : iRecords.otherCards)
    ++others[card.keyword];
  for (const auto& [keyword, count] : others)
    add("*" + ShownKeyword(keyword) + " cards", count);
  return uncovered;
}

const char* NameOf(SectionKind iKind)
{
  switch (iKind)
  {
  case SectionKind::Solid:
    return "solid";
  case SectionKind::Shell:
    return "shell";
  case SectionKind::Membrane:
    return "membrane";
  case SectionKind::Beam:
    return "beam";
  case SectionKind::Fluid:
    return "fluid";
  case SectionKind::Spring:
    return "spring";
  case SectionKind::Dashpot:
    return "dashpot";
  case SectionKind::Mass:
    return "mass";
  case SectionKind::Gap:
    return "gap";
  case SectionKind::User:
    break;
  }
  return "user";
}

} // namespace voxbench
