// SPDX-License-Identifier: MIT
#include "voxbench/report/InfoReport.h"

namespace voxbench
{
namespace
{

//! One JSON object per row.
template <class Row, class Describe>
Json Rows(const std::vector<Row>& iRows, Describe iDescribe)
{
  Json rows = Json::array();
  for (const Row& row : iRows)
    rows.push_back(iDescribe(row));
  return rows;
}

Json NameOrNull(const std::string& iName)
{
  return iName.empty() ? Json(nullptr) : Json(iName);
}

Json ToJson(const InfoResult::AppliedRow& iRow)
{
  return {{"keyword", iRow.keyword}, {"cards", iRow.cards}, {"rows", iRow.rows}};
}

Json ToJson(const InfoResult::Counted& iRow)
{
  return {{"what", iRow.what}, {"count", iRow.count}};
}

Json ToJson(const InfoResult::SectionRow& iRow)
{
  return {{"kind", iRow.kind},
          {"elementSet", iRow.elementSet},
          {"material", NameOrNull(iRow.material)},
          {"value", iRow.value ? Json(*iRow.value) : Json(nullptr)}};
}

Json ToJson(const InfoResult::StepRow& iRow)
{
  return {{"number", iRow.number},
          {"procedure", NameOrNull(iRow.procedure)},
          {"perturbation", iRow.perturbation},
          {"nonlinearGeometry", iRow.nonlinearGeometry},
          {"loads", iRow.loads},
          {"restraints", iRow.restraints},
          {"outputRequests", iRow.outputRequests}};
}

Json ToJson(const InfoResult::UnknownCard& iRow)
{
  return {{"card", iRow.card}, {"count", iRow.count}, {"file", iRow.first.file}, {"firstLine", iRow.first.line}};
}

Json ToJson(const InfoResult::Finding& iRow)
{
  return {{"severity", iRow.severity},
          {"file", iRow.place.file},
          {"line", iRow.place.line},
          {"card", NameOrNull(iRow.card)},
          {"message", iRow.message}};
}

} // namespace

Json ToJson(const InfoResult& iResult)
{
  const auto describe = [](const auto& iRow) { return ToJson(iRow); };
  Json info;
  info["file"] = iResult.file;
  info["bytes"] = iResult.bytes;
  info["included"] = iResult.included;
  info["title"] = iResult.title;
  info["nodes"] = iResult.nodes;
  info["elements"] = iResult.elements;
  info["elementTypes"] = Rows(iResult.elementTypes,
                              [](const InfoResult::ElementRow& iRow) {
                                return Json{{"type", iRow.type}, {"family", iRow.family}, {"count", iRow.count}};
                              });
  info["boundingBox"] = nullptr;
  if (iResult.box)
    info["boundingBox"] = {{"minimum", iResult.box->minimum}, {"maximum", iResult.box->maximum}};
  info["nodeSets"] = iResult.nodeSets;
  info["elementSets"] = iResult.elementSets;
  info["surfaces"] = iResult.surfaces;
  info["materials"] = Rows(iResult.materials,
                           [](const InfoResult::MaterialRow& iRow) {
                             return Json{{"name", iRow.name}, {"properties", iRow.properties}};
                           });
  info["sections"] = Rows(iResult.sections, describe);
  info["loads"] = Rows(iResult.loads, describe);
  info["restraints"] = Rows(iResult.restraints, describe);
  info["steps"] = Rows(iResult.steps, describe);
  info["others"] = Rows(iResult.others, describe);
  info["withoutFeature"] = Rows(iResult.withoutFeature, describe);
  info["unknownCards"] = Rows(iResult.unknownCards, describe);
  info["errors"] = iResult.errors;
  info["warnings"] = iResult.warnings;
  info["findings"] = Rows(iResult.findings, describe);
  info["unlistedFindings"] = iResult.unlistedFindings;
  return info;
}

} // namespace voxbench
