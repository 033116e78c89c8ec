// SPDX-License-Identifier: MIT
#include "NeutralModel.h"

#include "Numbers.h"

#include <algorithm>
#include <iterator>

namespace voxbench
{

namespace
{
std::int64_t FindSorted(const Column<std::int32_t>& iIds, std::int32_t iId)
{
  if (iIds.empty() || iId < iIds[0] || iId > iIds.back())
    return -1;
  const std::int64_t distance = std::int64_t{iId} - iIds[0];
  if (std::int64_t{iIds.back()} - iIds[0] + 1 == static_cast<std::int64_t>(iIds.size()))
    return distance;
  const std::int32_t* const found = std::lower_bound(iIds.begin(), iIds.end(), iId);
  return *found == iId ? found - iIds.begin() : -1;
}

Where FindSource(const std::vector<SourceRun>& iRuns, std::size_t iRow)
{
  const auto after = std::upper_bound(iRuns.begin(), iRuns.end(), static_cast<std::int64_t>(iRow),
                                      [](std::int64_t iKey, const SourceRun& iRun) { return iKey < iRun.firstRow; });
  return after == iRuns.begin() ? Where{} : std::prev(after)->where;
}

template <typename T>
const T* FindNamed(const std::vector<T>& iAll, std::string_view iName)
{
  const auto found = std::find_if(iAll.begin(), iAll.end(), [&](const T& iOne) { return iOne.name == iName; });
  return found == iAll.end() ? nullptr : &*found;
}

const std::string& NoText()
{
  static const std::string none;
  return none;
}
} // namespace

std::int64_t NodeTable::Find(std::int32_t iId) const
{
  return FindSorted(ids, iId);
}

Where NodeTable::WhereOf(std::size_t iRow) const
{
  return FindSource(sources, iRow);
}

std::int64_t ElementTable::Find(std::int32_t iId) const
{
  return FindSorted(ids, iId);
}

Where ElementTable::WhereOf(std::size_t iRow) const
{
  return FindSource(sources, iRow);
}

bool CardRecord::Has(std::string_view iKey) const
{
  return std::any_of(parameters.begin(), parameters.end(), [&](const Parameter& iOne) { return iOne.key == iKey; });
}

const std::string& CardRecord::Get(std::string_view iKey) const
{
  for (const Parameter& parameter : parameters)
    if (parameter.key == iKey)
      return parameter.value;
  return NoText();
}

bool ActsOnNodes(const AppliedCard& iCard)
{
  static constexpr const char* kOnElements[] = {"DLOAD", "DSLOAD", "DFLUX", "FILM", "RADIATE", "MASSFLOW", "BOUNDARYF"};
  return std::find(std::begin(kOnElements), std::end(kOnElements), iCard.keyword) == std::end(kOnElements);
}

double CardRecord::Number(std::size_t iLine, std::size_t iField, double iDefault) const
{
  double value = 0.;
  return ParseReal(Text(iLine, iField), value) ? value : iDefault;
}

const std::string& CardRecord::Text(std::size_t iLine, std::size_t iField) const
{
  return iLine < data.size() && iField < data[iLine].fields.size() ? data[iLine].fields[iField] : NoText();
}

const NamedSet* NeutralModel::FindNodeSet(std::string_view iName) const
{
  return FindNamed(nodeSets, iName);
}

const NamedSet* NeutralModel::FindElementSet(std::string_view iName) const
{
  return FindNamed(elementSets, iName);
}

const Surface* NeutralModel::FindSurface(std::string_view iName) const
{
  return FindNamed(surfaces, iName);
}

} // namespace voxbench
