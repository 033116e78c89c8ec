// SPDX-License-Identifier: MIT
#include "voxbench/report/Json.h"
#include "voxbench/report/ResultsReport.h"

#include <cmath>

namespace voxbench
{
namespace
{

Json OrNull(std::int32_t iNumber, std::int32_t iNone)
{
  return iNumber == iNone ? Json() : Json(iNumber);
}

Json NumberOrNull(double iNumber)
{
  return std::isnan(iNumber) ? Json() : Json(iNumber);
}

Json JsonOf(const ResultVersion& iVersion)
{
  return {{"version", iVersion.name},
          {"kind", iVersion.kind},
          {"imaginary", iVersion.isImaginary},
          {"step", OrNull(iVersion.step, 0)},
          {"increment", OrNull(iVersion.increment, 0)},
          {"mode", OrNull(iVersion.mode, 0)},
          {"nodalDiameter", OrNull(iVersion.nodalDiameter, -1)},
          {"value", NumberOrNull(iVersion.value)}};
}

Json JsonOf(const ResultTable::Extreme& iExtreme)
{
  if (iExtreme.node == 0)
    return {};
  return {{"value", iExtreme.value}, {"node", iExtreme.node}, {"place", iExtreme.place}};
}

Json JsonOf(const ResultsListing& iListing)
{
  Json listing;
  listing["file"] = iListing.file;
  listing["deck"] = iListing.deck.empty() ? Json() : Json(iListing.deck);
  listing["groups"] = iListing.groups;
  listing["nodes"] = iListing.nodes;
  listing["elements"] = iListing.elements;
  listing["versions"] = Json::array();
  for (const ResultVersion& version : iListing.versions)
    listing["versions"].push_back(JsonOf(version));
  listing["types"] = Json::array();
  for (const ResultsListing::Type& type : iListing.types)
  {
    Json available = Json::array();
    for (const auto& one : type.available)
      available.push_back({{"version", one.version}, {"positions", one.positions}});
    listing["types"].push_back({{"type", type.name},
                                {"title", type.title},
                                {"components", type.components},
                                {"available", std::move(available)}});
  }
  return listing;
}

//! A listing is written whole; tables one by one.
class JsonResults final : public ResultsReport
{
public:
  JsonResults(Output& ioOutput, bool iWithValues) : _Output(ioOutput), _WithValues(iWithValues) {}

  void List(const ResultsListing& iListing) override { _Listing = JsonOf(iListing); }

  void Add(const ResultTable& iTable) override
  {
    _Output.Write(_Tables++ > 0 ? ",\n" : "{\"tables\": [\n");
    voxbench::Json head{{"type", iTable.type},
                        {"title", iTable.title},
                        {"version", JsonOf(iTable.version)},
                        {"position", iTable.position},
                        {"components", iTable.components}};
    if (iTable.failure.empty())
      head["collector"] = {{"entities", iTable.entities},
                           {"withValues", iTable.whole},
                           {"upToDate", iTable.isUpToDate},
                           {"archiver", iTable.archiver}};
    else
      head["failure"] = iTable.failure;
    std::string text = JsonText(head);
    text.pop_back(); // stays open
    _Output.Write(text + ",\"groups\": [");
    for (std::size_t group = 0; group < iTable.groups.size(); ++group)
      WriteGroup(iTable.groups[group], iTable.components, group > 0);
    _Output.Write("]}");
  }

  void Tell(const ResultsDeleted& iDeleted) override
  {
    _Deleted = {{"operation", iDeleted.operation}, {"deleted", iDeleted.deleted}, {"left", iDeleted.left}};
  }

  void Close() override
  {
    if (!_Listing.is_null())
    {
      if (!_Deleted.is_null())
        _Listing["deleted"] = _Deleted;
      return WriteJson(_Output, _Listing);
    }
    _Output.Write(_Tables > 0 ? "\n]" : "{\"tables\": []");
    if (!_Deleted.is_null())
      _Output.Write(",\n\"deleted\": " + JsonText(_Deleted));
    _Output.Write("}\n");
  }

private:
  void WriteGroup(const ResultTable::Group& iGroup, const std::vector<std::string>& iComponents, bool iIsLater)
  {
    voxbench::Json head{{"name", iGroup.name.empty() ? voxbench::Json() : voxbench::Json(iGroup.name)},
                        {"kind", iGroup.kind},
                        {"entities", iGroup.entities},
                        {"nodes", iGroup.nodes.size()}};
    if (!iGroup.failure.empty())
      head["failure"] = iGroup.failure;
    head["extremes"] = voxbench::Json::array();
    for (std::size_t component = 0; component < iGroup.minima.size(); ++component)
      head["extremes"].push_back({{"component", iComponents[component]},
                                  {"minimum", JsonOf(iGroup.minima[component])},
                                  {"maximum", JsonOf(iGroup.maxima[component])}});
    std::string text = JsonText(head);
    if (_WithValues)
      text.pop_back(); // stays open
    _Output.Write((iIsLater ? ",\n  " : "\n  ") + text);
    if (_WithValues)
      WriteValues(iGroup, iComponents.size());
  }

  //! Rows [node, value, ...].
  void WriteValues(const ResultTable::Group& iGroup, std::size_t iComponents)
  {
    _Output.Write(",\"values\": [");
    for (std::size_t row = 0; row < iGroup.nodes.size(); ++row)
    {
      std::string line = (row > 0 ? ",\n    [" : "\n    [") + std::to_string(iGroup.nodes[row]);
      for (std::size_t component = 0; component < iComponents; ++component)
      {
        const double number = iGroup.numbers[row * iComponents + component];
        line += ", " + (std::isnan(number) ? std::string("null") : NumberText(number));
      }
      _Output.Write(line + "]");
    }
    _Output.Write("]}");
  }

  Output& _Output;
  bool _WithValues;
  int _Tables = 0;
  voxbench::Json _Listing;
  voxbench::Json _Deleted;
};

} // namespace

std::unique_ptr<ResultsReport> ResultsReport::Json(Output& ioOutput, bool iWithValues)
{
  return std::make_unique<JsonResults>(ioOutput, iWithValues);
}

} // namespace voxbench
