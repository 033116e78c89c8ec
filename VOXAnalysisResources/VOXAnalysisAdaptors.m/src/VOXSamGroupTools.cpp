// SPDX-License-Identifier: MIT
#include "VOXSamGroupTools.h"

#include "Counted.h"
#include "ErrorFrame.h"
#include "ExplicitModel/VOXAnalysisExplicitServices.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "MeshSetHolder.h"
#include "Visualization/VOXIMSHVisuGrouper.h"

VOX_SOURCE_OF(VOXSamGroupTools);

using voxframe::ReportAndFail;

namespace
{

// Name of the physical type of groups of elements' parts; null for an unknown keyword.
const char* ElementGroupTypeName(const VOXString& iKeyword)
{
  if (iKeyword == "EDGE")
    return "EDGE_GROUP";
  if (iKeyword == "FACE")
    return "FACE_GROUP";
  if (iKeyword == "ELEMENT")
    return "ELEMENT_GROUP";
  return nullptr;
}

// The visualisation object of a feature, borrowed; null when it has none.
void* VisuObjectOf(const VOXISpecObject* iFeature)
{
  const auto piGrouper = voxframe::QueryFor<VOXIMSHVisuGrouper>(iFeature);
  return piGrouper ? piGrouper->GetVisuObject() : nullptr;
}

} // namespace

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): there is nothing to copy
VOXSamGroupTools& VOXSamGroupTools::operator=(const VOXSamGroupTools& /*iOther*/)
{
  return *this;
}

HRESULT VOXSamGroupTools::GetExplicitGroupType(VOXAnalysisExplicitModel* iModel, VOXSamValue iValue,
                                               VOXString iEntityType, int& oPhysicalType)
{
  const ErrorDepthHandler errorDepth;
  oPhysicalType = VOXSamPhysicalTypeNone;

  if (iModel == nullptr)
    return ReportAndFail(VOX_MISSING("iModel"));
  const VOXAnalysisExplicitRulesData* const pRulesData = iModel->GetRulesData();
  if (pRulesData == nullptr)
    return ReportAndFail(VOX_MISSING("RulesData"));

  const char* typeName = nullptr;
  switch (iValue)
  {
  case VOXSamValueNode:
    if (iEntityType != "NODE")
      return S_OK; // Kept: with value 8 an unknown keyword is no error, unlike with value 9
    typeName = "NODE_GROUP";
    break;
  case VOXSamValueElement:
    typeName = ElementGroupTypeName(iEntityType);
    if (typeName == nullptr)
      return ReportAndFail(VOX_KEYWORD(iEntityType));
    break;
  default:
    return ReportAndFail(VOX_ENUM_VALUE(iValue));
  }

  if (FAILED(pRulesData->GetPhysicalTypeNumber(typeName, oPhysicalType)))
    return ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}

void VOXSamGroupTools::MakeReadyForVisu(const VOXISpecObject* iFeature, VOXAnalysisExplicitParent& iSource,
                                        VOXAnalysisExplicitParent& ioTarget)
{
  if (iFeature == nullptr || ioTarget == NULL_exp)
    return;
  const VOXISpecObject_var spFeature(iFeature);
  if (!spFeature)
    return;

  const unsigned int identifier = VOXGetUniqueIdentifier(spFeature);
  const short kind = voxframe::IsHeldByMeshSetContainer(spFeature) ? 1 : 2;
  VOXAnalysisExplicitServices::SetFeatureInfosForSetOrEntity(ioTarget, kind, identifier);

  void* pointer = nullptr;
  if (iSource != NULL_exp)
    VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity(iSource, pointer);
  if (pointer == nullptr)
    pointer = VisuObjectOf(iFeature);
  VOXAnalysisExplicitServices::SetFeaturePointerForSetOrEntity(ioTarget, pointer);
}
