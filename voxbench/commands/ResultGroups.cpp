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

} // namespace

std::vector<GroupNodes> NodesOfGroups(const LoadedModel& iModel, const std::vector<std::string>& iPatterns)
{
  std::vector<GroupNodes> groups;
  for (voxhost::Feature* const group : iModel.Groups())
  {
    const std::string name = LoadedModel::DisplayName(*group);
    const auto matches = [&name](const std::string& iPattern) { return MatchesPattern(name, iPattern); };
    if (std::any_of(iPatterns.begin(), iPatterns.end(), matches))
      for (const GroupKind* const kind : kGroupKinds)
        AddGroup(iModel, *group, *kind, groups);
  }
  return groups;
}

} // namespace voxbench
