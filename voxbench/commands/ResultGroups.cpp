// SPDX-License-Identifier: MIT
#include "voxbench/commands/ResultGroups.h"
#include "voxbench/build/SideNodes.h"
#include "voxbench/commands/FeatureNames.h"
#include "voxbench/commands/GroupContent.h"

#include <algorithm>
#include <span>

namespace voxbench
{
namespace
{

constexpr const char* kNoSides =
    "its sides are no faces of solids in the result file: ask for a group of nodes or elements";

std::span<const std::int32_t> NodesOfElement(const voxhost::MeshData& iMesh, std::size_t iPlace)
{
  return {iMesh.connectivity.data() + iMesh.offsets[iPlace], iMesh.offsets[iPlace + 1] - iMesh.offsets[iPlace]};
}

void SortUnique(std::vector<std::int32_t>& ioIds)
{
  std::sort(ioIds.begin(), ioIds.end());
  ioIds.erase(std::unique(ioIds.begin(), ioIds.end()), ioIds.end());
}

void AddNodesOfElements(const LoadedModel& iModel, const GroupContent& iContent, GroupNodes& ioGroup)
{
  const voxhost::MeshData& mesh = iModel.Explicit().Mesh();
  for (std::size_t row = 0; row < iContent.ids.size() && ioGroup.failure.empty(); ++row)
  {
    const std::int64_t place = PlaceOfId(mesh.elementIds, iContent.ids[row]);
    if (place < 0)
      continue;
    const auto element = static_cast<std::size_t>(place);
    const auto nodes = NodesOfElement(mesh, element);
    if (iContent.sides.empty())
    {
      ioGroup.nodes.insert(ioGroup.nodes.end(), nodes.begin(), nodes.end());
      continue;
    }
    const ElementType& type = iModel.Records().elementTypes[mesh.elementTypes[element]];
    const std::vector<std::int32_t> ofSide = NodesOfSide(type, nodes, iContent.sides[row]);
    ioGroup.nodes.insert(ioGroup.nodes.end(), ofSide.begin(), ofSide.end());
    if (ofSide.empty())
      ioGroup.failure = kNoSides;
  }
}

void AddGroup(const LoadedModel& iModel, voxhost::Feature& iGroup, const GroupKind& iKind,
              std::vector<GroupNodes>& ioGroups)
{
  GroupNodes group{LoadedModel::DisplayName(iGroup), iKind.keyword, 0, {}, {}};
  const Serves serves = AskServes(iGroup, iKind, group.failure);
  if (serves == Serves::No)
    return;
  GroupContent content;
  if (serves == Serves::Yes)
  {
    content = AskContent(iGroup, iKind, true);
    group.failure = content.failure;
    group.entities = content.count;
  }
  if (&iKind == &kNodeKind)
    group.nodes = std::move(content.ids);
  else if (&iKind == &kEdgeKind && content.count > 0)
    group.failure = kNoSides;
  else
    AddNodesOfElements(iModel, content, group);
  SortUnique(group.nodes);
  ioGroups.push_back(std::move(group));
}

bool MatchesAny(const std::string& iName, const std::vector<std::string>& iPatterns)
{
  const auto matches = [&iName](const std::string& iPattern) { return MatchesPattern(iName, iPattern); };
  return std::any_of(iPatterns.begin(), iPatterns.end(), matches);
}

template <class Table>
std::int64_t CountMissing(const Table& iTable, const Column<std::int32_t>& iMembers)
{
  const auto isMissing = [&iTable](std::int32_t iId) { return iTable.Find(iId) < 0; };
  return std::count_if(iMembers.begin(), iMembers.end(), isMissing);
}

} // namespace

std::vector<GroupStrangers> StrangersOf(const NeutralModel& iDeck, const ResultRecords& iResults,
                                        const std::vector<std::string>& iPatterns)
{
  std::vector<GroupStrangers> found;
  const auto look = [&](const std::string& iName, const Column<std::int32_t>& iMembers, bool iOfNodes)
  {
    if (!MatchesAny(iName, iPatterns))
      return;
    const std::int64_t count =
        iOfNodes ? CountMissing(iResults.nodes, iMembers) : CountMissing(iResults.elements, iMembers);
    if (count > 0)
      found.push_back({iName, iOfNodes, count, static_cast<std::int64_t>(iMembers.size())});
  };
  for (const NamedSet& set : iDeck.nodeSets)
    look(set.name, set.members, true);
  for (const NamedSet& set : iDeck.elementSets)
    look(set.name, set.members, false);
  for (const Surface& surface : iDeck.surfaces)
    look(surface.name, surface.members, surface.kind == SurfaceKind::Node);
  return found;
}

std::vector<GroupNodes> NodesOfGroups(const LoadedModel& iModel, const std::vector<std::string>& iPatterns)
{
  std::vector<GroupNodes> groups;
  for (voxhost::Feature* const group : iModel.Groups())
  {
    if (MatchesAny(LoadedModel::DisplayName(*group), iPatterns))
      for (const GroupKind* const kind : kGroupKinds)
        AddGroup(iModel, *group, *kind, groups);
  }
  return groups;
}

} // namespace voxbench
