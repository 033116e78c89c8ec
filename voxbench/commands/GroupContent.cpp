// SPDX-License-Identifier: MIT
#include "voxbench/commands/GroupContent.h"
#include "AnalysisInterfaces/VOXISamGroup.h"
#include "host/ExplicitModel/ModelObject.h"
#include "voxbench/commands/FailureReason.h"

#include <algorithm>
#include <tuple>

namespace voxbench
{
namespace
{

void CopyEntities(int iCount, VOXSamModelDataRoot* const* iObjects, const int* iIndices, GroupContent& ioContent)
{
  const auto count = static_cast<std::size_t>(iCount);
  ioContent.ids.resize(count);
  for (std::size_t place = 0; place < count; ++place)
    ioContent.ids[place] = iObjects[place]->id;
  if (iIndices != nullptr)
    ioContent.sides.assign(iIndices, iIndices + count);
}

//! Ascending by id, then by side; a group of another feature type may come in any order.
void Sort(GroupContent& ioContent)
{
  auto& ids = ioContent.ids;
  auto& sides = ioContent.sides;
  if (sides.empty())
  {
    if (!std::is_sorted(ids.begin(), ids.end()))
      std::sort(ids.begin(), ids.end());
    return;
  }
  std::vector<std::pair<std::int32_t, std::int32_t>> pairs(ids.size());
  for (std::size_t place = 0; place < ids.size(); ++place)
    pairs[place] = {ids[place], sides[place]};
  std::sort(pairs.begin(), pairs.end());
  for (std::size_t place = 0; place < ids.size(); ++place)
    std::tie(ids[place], sides[place]) = pairs[place];
}

void ReadCollector(const VOXAnalysisEntityCollector& iCollector, bool iWithIds, GroupContent& ioContent)
{
  int count = 0;
  VOXSamModelDataRoot* const* pObjects = nullptr; // borrowed, as long as the collector lives
  const int* pIndices = nullptr;
  if (FAILED(iCollector.GetEntities(count, pObjects, pIndices)))
  {
    ioContent.failure = "GetEntities of its collector failed";
    return;
  }
  ioContent.count = count;
  if (!iWithIds)
    return;
  CopyEntities(count, pObjects, pIndices, ioContent);
  Sort(ioContent);
}

} // namespace

Serves AskServes(voxhost::Feature& iGroup, const GroupKind& iKind, std::string& oFailure)
{
  const VOXISamGroup_var spGroup(&iGroup);
  if (!spGroup)
  {
    oFailure = "the feature has no VOXISamGroup";
    return Serves::Failed;
  }
  unsigned char isGroupOf = 0;
  if (FAILED(spGroup->IsGroupOf(iKind.value, iKind.keyword, isGroupOf)))
  {
    oFailure = "IsGroupOf failed";
    return Serves::Failed;
  }
  return isGroupOf != 0 ? Serves::Yes : Serves::No;
}

GroupContent AskContent(voxhost::Feature& iGroup, const GroupKind& iKind, bool iWithIds)
{
  GroupContent content;
  const VOXISamGroup_var spGroup(&iGroup);
  const std::size_t reportsBefore = FailuresReported();
  const VOXAnalysisEntityCollector* pCollector = nullptr;
  if (!spGroup || FAILED(spGroup->GetContent(iKind.value, iKind.keyword, pCollector)))
  {
    content.failure = ReasonSince(reportsBefore, "GetContent");
    return content;
  }
  if (pCollector == nullptr)
    return content; // an empty group
  ReadCollector(*pCollector, iWithIds, content);
  pCollector->Release();
  return content;
}

} // namespace voxbench
