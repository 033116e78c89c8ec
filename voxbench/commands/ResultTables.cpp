// SPDX-License-Identifier: MIT
#include "voxbench/commands/ResultTables.h"
#include "host/ExplicitModel/ModelObject.h"
#include "voxbench/commands/FailureReason.h"
#include "voxbench/features/SolutionResults.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace voxbench
{
namespace
{

//! What a collector holds, borrowed from it.
struct Content
{
  int count = 0;
  VOXSamModelDataRoot* const* objects = nullptr;
  const double* numbers = nullptr;
  const unsigned char* flags = nullptr;
  std::vector<int> rows; //!< ascending by node

  std::int32_t NodeOf(int iRow) const { return objects[iRow]->id; }
};

bool ReadContent(const VOXAnalysisCharacCollector& iCollector, Content& oContent)
{
  const int* indices = nullptr;
  if (FAILED(iCollector.GetEntities(oContent.count, oContent.objects, indices)) ||
      FAILED(iCollector.GetEntitiesFLags(oContent.flags)))
    return false;
  oContent.numbers = iCollector.GetValues();
  oContent.rows.resize(static_cast<std::size_t>(oContent.count));
  std::iota(oContent.rows.begin(), oContent.rows.end(), 0);
  const auto before = [&](int iLeft, int iRight) { return oContent.NodeOf(iLeft) < oContent.NodeOf(iRight); };
  if (!std::is_sorted(oContent.rows.begin(), oContent.rows.end(), before))
    std::stable_sort(oContent.rows.begin(), oContent.rows.end(), before);
  return true;
}

//! The rows of these nodes, of all nodes for null.
std::vector<int> RowsOf(const Content& iContent, const std::vector<std::int32_t>* iNodes)
{
  if (iNodes == nullptr)
    return iContent.rows;
  std::vector<int> rows;
  auto at = iContent.rows.begin();
  for (const std::int32_t node : *iNodes)
  {
    at = std::lower_bound(at, iContent.rows.end(), node,
                          [&](int iRow, std::int32_t iNode) { return iContent.NodeOf(iRow) < iNode; });
    if (at != iContent.rows.end() && iContent.NodeOf(*at) == node)
      rows.push_back(*at);
  }
  return rows;
}

void NoteExtremes(ResultTable::Group& ioGroup, std::size_t iComponents)
{
  ioGroup.minima.resize(iComponents);
  ioGroup.maxima.resize(iComponents);
  for (std::size_t row = 0; row < ioGroup.nodes.size(); ++row)
    for (std::size_t component = 0; component < iComponents; ++component)
    {
      const double number = ioGroup.numbers[row * iComponents + component];
      if (std::isnan(number))
        continue;
      const double* const place = ioGroup.places.data() + 3 * row;
      const ResultTable::Extreme here{number, ioGroup.nodes[row], {place[0], place[1], place[2]}};
      ResultTable::Extreme& minimum = ioGroup.minima[component];
      ResultTable::Extreme& maximum = ioGroup.maxima[component];
      if (minimum.node == 0 || number < minimum.value)
        minimum = here;
      if (maximum.node == 0 || number > maximum.value)
        maximum = here;
    }
}

void FillGroup(const Content& iContent, const std::vector<int>& iRows, std::size_t iComponents,
               const voxhost::MeshData& iMesh, ResultTable::Group& ioGroup)
{
  ioGroup.nodes.reserve(iRows.size());
  ioGroup.numbers.reserve(iRows.size() * iComponents);
  ioGroup.places.reserve(3 * iRows.size());
  for (const int row : iRows)
  {
    const double* const place = iMesh.coordinates.data() + 3 * std::size_t{iContent.objects[row]->place};
    const double* const first = iContent.numbers + static_cast<std::size_t>(row) * iComponents;
    ioGroup.nodes.push_back(iContent.NodeOf(row));
    ioGroup.places.insert(ioGroup.places.end(), place, place + 3);
    ioGroup.numbers.insert(ioGroup.numbers.end(), first, first + iComponents);
  }
  NoteExtremes(ioGroup, iComponents);
}

} // namespace

ResultTables::ResultTables(const LoadedResults& iResults) : _Results(iResults), _Feature(&iResults.Solution()) {}

std::vector<ResultDefinition> ResultTables::Available(std::string& oFailure) const
{
  const std::size_t before = FailuresReported();
  int nbTypes = 0;
  const int* types = nullptr;
  const void* reserved = nullptr;
  if (!_Feature || FAILED(_Feature->GetAvailablePhysicalTypes(nbTypes, types, reserved)))
  {
    oFailure = ReasonSince(before, "GetAvailablePhysicalTypes");
    return {};
  }
  std::vector<ResultDefinition> available;
  const std::vector<int> typesNow(types, types + nbTypes); // the feature's array may change with the next question
  for (const int type : typesNow)
    AddAvailable(type, available, oFailure);
  return available;
}

void ResultTables::AddAvailable(int iPhysicalType, std::vector<ResultDefinition>& ioAvailable,
                                std::string& oFailure) const
{
  const std::size_t before = FailuresReported();
  int nbVersions = 0;
  const VOXSamCharacVersion* versions = nullptr;
  if (FAILED(_Feature->GetAvailableVersions(iPhysicalType, nbVersions, versions)))
    oFailure = ReasonSince(before, "GetAvailableVersions");
  for (int version = 0; version < nbVersions; ++version)
  {
    int nbPositions = 0;
    const VOXString* positions = nullptr;
    if (FAILED(_Feature->GetAvailablePositions(iPhysicalType, versions[version], nbPositions, positions)))
      oFailure = ReasonSince(before, "GetAvailablePositions");
    for (int position = 0; position < nbPositions; ++position)
    {
      unsigned char isAvailable = 0;
      if (FAILED(_Feature->IsAnAvailableDefinition(iPhysicalType, versions[version], positions[position], isAvailable)))
        oFailure = ReasonSince(before, "IsAnAvailableDefinition");
      if (isAvailable != 0)
        ioAvailable.push_back({iPhysicalType, versions[version], positions[position]});
    }
  }
}

std::string ResultTables::NameOf(int iPhysicalType) const
{
  for (const ResultSource::Quantity& quantity : _Results.Source().Quantities())
    if (quantity.physicalType == iPhysicalType)
      return static_cast<const char*>(quantity.name);
  return {};
}

std::string ResultTables::NameOf(const VOXSamCharacVersion& iVersion)
{
  return std::to_string(iVersion._Occurrence) + (iVersion._Variant != 0 ? "i" : "");
}

std::string ResultTables::TitleOf(int iPhysicalType) const
{
  VOXString title;
  return SUCCEEDED(_Feature->GetTitle(iPhysicalType, title)) ? static_cast<const char*>(title) : NameOf(iPhysicalType);
}

ResultVersion ResultTables::VersionOf(const ResultDefinition& iDefinition) const
{
  ResultVersion version;
  version.name = NameOf(iDefinition.version);
  version.isImaginary = iDefinition.version._Variant != 0;
  const ResultBlock* const block = _Results.Source().BlockOf(iDefinition.physicalType, iDefinition.version);
  if (block == nullptr)
    return version;
  const ResultState& state = _Results.Source().StateOf(*block);
  version.kind = voxbench::NameOf(state.kind);
  version.number = state.number;
  version.step = state.step;
  version.increment = state.increment;
  version.mode = state.mode;
  version.nodalDiameter = state.nodalDiameter;
  version.value = state.value;
  return version;
}

ResultsListing ResultTables::Listing(const std::vector<ResultDefinition>& iAvailable) const
{
  ResultsListing listing;
  listing.nodes = static_cast<std::int64_t>(_Results.Model().Explicit().Mesh().nodeIds.size());
  listing.elements = static_cast<std::int64_t>(_Results.Model().Explicit().Mesh().elementIds.size());
  std::vector<std::int32_t> seen;
  for (const ResultDefinition& definition : iAvailable)
  {
    const std::string name = NameOf(definition.physicalType);
    if (listing.types.empty() || listing.types.back().name != name)
    {
      listing.types.push_back({name, TitleOf(definition.physicalType), {}, {}});
      if (const ResultBlock* const block = _Results.Source().BlockOf(definition.physicalType, definition.version))
        for (const ResultComponent& component : block->components)
          listing.types.back().components.push_back(component.name);
    }
    auto& available = listing.types.back().available;
    const std::string version = NameOf(definition.version);
    if (available.empty() || available.back().version != version)
      available.push_back({version, {}});
    available.back().positions.emplace_back(static_cast<const char*>(definition.position));
    if (std::find(seen.begin(), seen.end(), definition.version._Occurrence) != seen.end())
      continue;
    seen.push_back(definition.version._Occurrence);
    ResultVersion shown = VersionOf(definition);
    shown.isImaginary = false;
    shown.name = std::to_string(shown.number);
    listing.versions.push_back(std::move(shown));
  }
  const auto before = [](const ResultVersion& iLeft, const ResultVersion& iRight)
  { return iLeft.number < iRight.number; };
  std::sort(listing.versions.begin(), listing.versions.end(), before);
  return listing;
}

std::string ResultTables::ArchiverOf(const ResultDefinition& iDefinition) const
{
  const auto* const tie = dynamic_cast<const SolutionTie*>(_Feature.Get());
  ArchiverState state;
  if (tie == nullptr ||
      FAILED(tie->AskArchiver(iDefinition.physicalType, iDefinition.version, iDefinition.position, state)) ||
      !state.isKept)
    return "none";
  return state.isStreamable ? "streamable" : "not streamable";
}

ResultTable ResultTables::Table(const ResultDefinition& iDefinition, const std::vector<GroupNodes>* iGroups) const
{
  ResultTable table;
  table.type = NameOf(iDefinition.physicalType);
  table.title = TitleOf(iDefinition.physicalType);
  table.version = VersionOf(iDefinition);
  table.position = static_cast<const char*>(iDefinition.position);
  if (const ResultBlock* const block = _Results.Source().BlockOf(iDefinition.physicalType, iDefinition.version))
    for (const ResultComponent& component : block->components)
      table.components.push_back(component.name);

  const std::size_t before = FailuresReported();
  const VOXAnalysisCharacCollector* collector = nullptr; // borrowed, as long as nobody deletes it
  Content content;
  if (FAILED(_Feature->GetCharacCollector(iDefinition.physicalType, iDefinition.version, iDefinition.position,
                                          collector)) ||
      collector == nullptr || !ReadContent(*collector, content))
  {
    const std::string& failure = _Results.Source().Failure();
    table.failure = failure.empty() ? ReasonSince(before, "GetCharacCollector") : failure;
    return table;
  }
  unsigned char isUpToDate = 0;
  table.isUpToDate = SUCCEEDED(_Feature->IsCharacCollectorUpToDate(collector, isUpToDate)) && isUpToDate != 0;
  table.archiver = ArchiverOf(iDefinition);
  table.entities = content.count;
  table.whole = std::count(content.flags, content.flags + content.count, 1);

  const voxhost::MeshData& mesh = _Results.Model().Explicit().Mesh();
  if (iGroups == nullptr)
  {
    table.groups.push_back({"", "NODE", content.count, {}, {}, {}, {}, {}, ""});
    FillGroup(content, RowsOf(content, nullptr), table.components.size(), mesh, table.groups.back());
    return table;
  }
  for (const GroupNodes& group : *iGroups)
  {
    table.groups.push_back({group.name, group.kind, group.entities, {}, {}, {}, {}, {}, group.failure});
    if (group.failure.empty())
      FillGroup(content, RowsOf(content, &group.nodes), table.components.size(), mesh, table.groups.back());
  }
  return table;
}

int ResultTables::Standing() const
{
  int number = 0;
  const VOXAnalysisCharacCollector* const* collectors = nullptr;
  return SUCCEEDED(_Feature->GetCharacCollectors(number, collectors)) ? number : 0;
}

ResultsDeleted ResultTables::Delete(const std::vector<ResultDefinition>& iDefinitions, std::string& oFailure) const
{
  ResultsDeleted result{"DeleteCharacCollector", 0, 0};
  const std::size_t before = FailuresReported();
  const int standing = Standing();
  for (const ResultDefinition& definition : iDefinitions)
  {
    const VOXAnalysisCharacCollector* collector = nullptr;
    if (FAILED(_Feature->GetCharacCollector(definition.physicalType, definition.version, definition.position,
                                            collector)) ||
        collector == nullptr)
      continue; // told with the values
    if (FAILED(_Feature->DeleteCharacCollector(collector)))
      oFailure = ReasonSince(before, "DeleteCharacCollector");
  }
  result.left = Standing();
  result.deleted = standing - result.left;
  return result;
}

ResultsDeleted ResultTables::DeleteAll(std::string& oFailure) const
{
  ResultsDeleted result{"DeleteAll", Standing(), 0};
  const std::size_t before = FailuresReported();
  if (FAILED(_Feature->DeleteAll()))
    oFailure = ReasonSince(before, "DeleteAll");
  result.left = Standing();
  result.deleted -= result.left;
  return result;
}

} // namespace voxbench
