// SPDX-License-Identifier: MIT
#include "voxbench/commands/Summarize.h"
#include "voxbench/build/Coverage.h"
#include "voxbench/readers/inp/InpReader.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <tuple>

namespace voxbench
{
namespace
{

void SumUpFiles(const NeutralModel& iRecords, InfoResult& oResult)
{
  for (const std::string& file : iRecords.files)
  {
    std::error_code missing;
    const std::uintmax_t bytes = std::filesystem::file_size(file, missing);
    oResult.bytes += missing ? 0 : bytes;
  }
  if (!iRecords.files.empty())
  {
    oResult.file = iRecords.files.front();
    oResult.included.assign(iRecords.files.begin() + 1, iRecords.files.end());
  }
  oResult.title = iRecords.title;
}

std::optional<InfoResult::Box> BoxOf(const NodeTable& iNodes)
{
  InfoResult::Box box;
  box.minimum.fill(HUGE_VAL);
  box.maximum.fill(-HUGE_VAL);
  for (std::size_t place = 0; place < iNodes.xyz.size(); ++place)
  {
    box.minimum[place % 3] = std::min(box.minimum[place % 3], iNodes.xyz[place]);
    box.maximum[place % 3] = std::max(box.maximum[place % 3], iNodes.xyz[place]);
  }
  return iNodes.size() > 0 ? std::optional(box) : std::nullopt;
}

void SumUpMesh(const NeutralModel& iRecords, InfoResult& oResult)
{
  oResult.nodes = static_cast<std::int64_t>(iRecords.nodes.size());
  oResult.elements = static_cast<std::int64_t>(iRecords.elements.size());
  oResult.box = BoxOf(iRecords.nodes);

  std::vector<std::int64_t> counts(iRecords.elementTypes.size(), 0);
  for (const std::uint16_t type : iRecords.elements.types)
    ++counts[type];
  for (std::size_t type = 0; type < counts.size(); ++type)
    if (counts[type] > 0)
      oResult.elementTypes.push_back(
          {iRecords.elementTypes[type].name, NameOf(iRecords.elementTypes[type].family), counts[type]});

  oResult.nodeSets = static_cast<std::int64_t>(iRecords.nodeSets.size());
  oResult.elementSets = static_cast<std::int64_t>(iRecords.elementSets.size());
  oResult.surfaces = static_cast<std::int64_t>(iRecords.surfaces.size());
}

void SumUpProperties(const NeutralModel& iRecords, InfoResult& oResult)
{
  for (const Material& material : iRecords.materials)
  {
    InfoResult::MaterialRow row{material.name, {}};
    for (const CardRecord& property : material.properties)
      row.properties.push_back(ShownKeyword(property.keyword));
    oResult.materials.push_back(std::move(row));
  }
  for (const Section& section : iRecords.sections)
  {
    const bool valued = std::isfinite(section.value);
    oResult.sections.push_back({NameOf(section.kind), section.elementSet, section.material,
                                valued ? std::optional(section.value) : std::nullopt});
  }
}

//! One row per keyword, in the order of first appearance.
std::vector<InfoResult::AppliedRow> ByKeyword(const std::vector<AppliedCard>& iCards)
{
  std::vector<InfoResult::AppliedRow> rows;
  std::map<std::string, std::size_t> places;
  for (const AppliedCard& card : iCards)
  {
    const auto [found, isNew] = places.try_emplace(card.keyword, rows.size());
    if (isNew)
      rows.push_back({ShownKeyword(card.keyword), 0, 0});
    ++rows[found->second].cards;
    rows[found->second].rows += static_cast<std::int64_t>(card.rows.size());
  }
  return rows;
}

void SumUpSteps(const NeutralModel& iRecords, InfoResult& oResult)
{
  for (const Step& step : iRecords.steps)
    oResult.steps.push_back({static_cast<int>(oResult.steps.size()) + 1, ShownKeyword(step.procedure.keyword),
                             step.perturbation, step.nonlinearGeometry, 0, 0, 0});
  const auto inStep = [&oResult](std::int32_t iStep) -> InfoResult::StepRow*
  {
    const bool exists = iStep >= 1 && static_cast<std::size_t>(iStep) <= oResult.steps.size();
    return exists ? &oResult.steps[static_cast<std::size_t>(iStep) - 1] : nullptr;
  };
  for (const AppliedCard& load : iRecords.loads)
    if (InfoResult::StepRow* const step = inStep(load.step))
      ++step->loads;
  for (const AppliedCard& restraint : iRecords.restraints)
    if (InfoResult::StepRow* const step = inStep(restraint.step))
      ++step->restraints;
  for (const OutputRequest& request : iRecords.outputRequests)
    if (InfoResult::StepRow* const step = inStep(request.card.step))
      ++step->outputRequests;
}

void SumUpOthers(const NeutralModel& iRecords, InfoResult& oResult)
{
  const auto add = [&oResult](const char* iWhat, std::size_t iCount)
  {
    if (iCount > 0)
      oResult.others.push_back({iWhat, static_cast<std::int64_t>(iCount)});
  };
  add("Amplitudes", iRecords.amplitudes.size());
  add("Output requests", iRecords.outputRequests.size());
  for (const UncoveredRecords& records : RecordsWithoutFeature(iRecords))
    oResult.withoutFeature.push_back({records.what, records.count});
}

Place PlaceOf(const NeutralModel& iRecords, Where iWhere)
{
  const bool known = iWhere.file >= 0 && static_cast<std::size_t>(iWhere.file) < iRecords.files.size();
  return {known ? iRecords.files[static_cast<std::size_t>(iWhere.file)] : "", iWhere.line};
}

const char* NameOf(Severity iSeverity)
{
  switch (iSeverity)
  {
  case Severity::Error:
    return "error";
  case Severity::Warning:
    return "warning";
  case Severity::Note:
    break;
  }
  return "note";
}

void SumUpFindings(const NeutralModel& iRecords, InfoResult& oResult)
{
  const Diagnostics& diagnostics = iRecords.diagnostics;
  oResult.errors = diagnostics.errors;
  oResult.warnings = diagnostics.warnings;
  for (const Diagnostic& finding : diagnostics.list)
    oResult.findings.push_back(
        {NameOf(finding.severity), PlaceOf(iRecords, finding.where), finding.card, finding.message});
  std::stable_sort(
      oResult.findings.begin(), oResult.findings.end(),
      [](const auto& iLeft, const auto& iRight)
      { return std::tie(iLeft.place.file, iLeft.place.line) < std::tie(iRight.place.file, iRight.place.line); });
  for (const auto& [card, count] : diagnostics.unlisted)
    oResult.unlistedFindings += count;

  std::map<std::string_view, Where> first; // of each card
  for (const Diagnostic& finding : diagnostics.list)
    first.try_emplace(finding.card, finding.where);
  for (const auto& [card, count] : diagnostics.unknownCards)
  {
    const auto found = first.find(card);
    oResult.unknownCards.push_back({card, count, found != first.end() ? PlaceOf(iRecords, found->second) : Place{}});
  }
}

} // namespace

InfoResult Summarize(const NeutralModel& iRecords)
{
  InfoResult result;
  SumUpFiles(iRecords, result);
  SumUpMesh(iRecords, result);
  SumUpProperties(iRecords, result);
  result.loads = ByKeyword(iRecords.loads);
  result.restraints = ByKeyword(iRecords.restraints);
  SumUpSteps(iRecords, result);
  SumUpOthers(iRecords, result);
  SumUpFindings(iRecords, result);
  return result;
}

} // namespace voxbench
