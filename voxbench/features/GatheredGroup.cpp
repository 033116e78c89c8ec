// SPDX-License-Identifier: MIT
#include "voxbench/features/GatheredGroup.h"
#include "AnalysisInterfaces/VOXISamGroup.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace voxbench
{
namespace
{

//! Adds what a group hands out for a kind. @return what failed, else S_OK.
HRESULT Gather(const VOXISamGroup& iGroup, VOXSamValue iValue, const VOXString& iEntityType,
               std::vector<VOXSamModelDataRoot*>& ioGathered)
{
  const VOXAnalysisEntityCollector* pCollector = nullptr;
  const HRESULT asked = iGroup.GetContent(iValue, iEntityType, pCollector);
  if (FAILED(asked) || pCollector == nullptr)
    return asked; // without a collector the group is empty
  int count = 0;
  VOXSamModelDataRoot* const* pObjects = nullptr; // borrowed, as long as the collector lives
  const int* pIndices = nullptr;
  const HRESULT read = pCollector->GetEntities(count, pObjects, pIndices);
  if (SUCCEEDED(read))
    ioGathered.insert(ioGathered.end(), pObjects, pObjects + count);
  pCollector->Release();
  return read;
}

} // namespace

HRESULT GatheredElementGroup::GetExplicitPointers(VOXSamValue iValue, VOXString iEntityType, int& oCount,
                                                  VOXSamModelDataRoot**& oPointers, int*& /*oIndices*/) const
{
  VOXListValVOXBaseUnknown_var supports;
  if (FAILED(GetSupports(supports)))
    return E_FAIL;
  std::vector<VOXSamModelDataRoot*> gathered;
  for (int i = 1; i <= supports.Size(); ++i)
  {
    const VOXISamGroup_var spGroup(supports[i]);
    if (!spGroup || FAILED(Gather(*spGroup, iValue, iEntityType, gathered)))
      return E_FAIL;
  }
  // Elements stand in one block, ascending by id.
  std::sort(gathered.begin(), gathered.end(), std::less<>());
  gathered.erase(std::unique(gathered.begin(), gathered.end()), gathered.end());
  if (gathered.empty())
    return S_OK;
  oPointers = new VOXSamModelDataRoot*[gathered.size()]; // the caller frees with array delete
  std::copy(gathered.begin(), gathered.end(), oPointers);
  oCount = static_cast<int>(gathered.size());
  return S_OK;
}

} // namespace voxbench
