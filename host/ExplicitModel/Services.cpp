// SPDX-License-Identifier: MIT
#include "ExplicitModel/VOXAnalysisExplicitServices.h"

#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"

#include <cstring>

using voxhost::Faults;
using voxhost::Record;

HRESULT VOXSamIdentityEnum(const char* iKeyword, VOXSamPosition& oPosition)
{
  static const struct
  {
    const char* keyword;
    VOXSamPosition position;
  } kPositions[] = {{"NODE", VOXSamPositionNode},
                    {"EDGE", VOXSamPositionEdge},
                    {"FACE", VOXSamPositionFace},
                    {"ELEMENT", VOXSamPositionElement},
                    {"NODE_OF_ELEMENT", VOXSamPositionNodeOfElement},
                    {"GAUSS_POINT", VOXSamPositionGaussPoint},
                    {"CENTER", VOXSamPositionCenter}};
  if (iKeyword == nullptr || Faults::Enter("VOXSamIdentityEnum"))
    return E_FAIL;
  for (const auto& known : kPositions)
  {
    if (std::strcmp(known.keyword, iKeyword) != 0)
      continue;
    oPosition = known.position;
    return S_OK;
  }
  return E_FAIL;
}

HRESULT VOXAnalysisExplicitServices::SetFeatureInfosForSetOrEntity(VOXAnalysisExplicitParent& ioParent, short iKind,
                                                                   unsigned int iIdentifier)
{
  Record* const record = VOXExplicitAccess::RecordOf(ioParent);
  if (Faults::Enter("VOXAnalysisExplicitServices::SetFeatureInfosForSetOrEntity") || record == nullptr)
    return E_FAIL;
  record->featureKind = iKind;
  record->featureIdentifier = iIdentifier;
  return S_OK;
}

HRESULT VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity(VOXAnalysisExplicitParent& iParent,
                                                                     void*& oPointer)
{
  const Record* const record = VOXExplicitAccess::RecordOf(iParent);
  if (Faults::Enter("VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity") || record == nullptr)
    return E_FAIL;
  oPointer = record->featurePointer;
  return S_OK;
}

HRESULT VOXAnalysisExplicitServices::SetFeaturePointerForSetOrEntity(VOXAnalysisExplicitParent& ioParent,
                                                                     void* iPointer)
{
  Record* const record = VOXExplicitAccess::RecordOf(ioParent);
  if (Faults::Enter("VOXAnalysisExplicitServices::SetFeaturePointerForSetOrEntity") || record == nullptr)
    return E_FAIL;
  record->featurePointer = iPointer;
  return S_OK;
}
