// SPDX-License-Identifier: MIT
#include "VOXEAnalysisSetInit.h"

#include "AssertionFrame.h"
#include "Counted.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "PlacementRules.h"

VOX_SOURCE_OF(VOXEAnalysisSetInit);

static_assert(sizeof(VOXEAnalysisSetInit) == sizeof(VOXBaseUnknown), "deriving classes are laid out on this size");

namespace
{

struct QualityOfSetType
{
  const char* setType;
  SAM_Quality quality;
};

// The first type that the set is of decides.
constexpr QualityOfSetType kQualities[] = {
    {"LoadSet", SAM_QualityInput},  {"RestraintSet", SAM_QualityInput},      {"PropertySet", SAM_QualityInput},
    {"MassSet", SAM_QualityInput},  {"SAMMeshSetPointer", SAM_QualityInput}, {"SensorSet", SAM_QualityGroup},
    {"GroupSet", SAM_QualityGroup},
};

// Leaves oQuality as it is for a set of another type, and for what is no feature.
void WorkOutQuality(const VOXBaseUnknown* iSet, SAM_Quality& oQuality)
{
  const auto piSpec = voxframe::QueryFor<VOXISpecObject>(iSet);
  if (!piSpec)
    return;
  for (const QualityOfSetType& row : kQualities)
  {
    if (!piSpec->IsSubTypeOf(row.setType))
      continue;
    oQuality = row.quality;
    return;
  }
}

} // namespace

VOXEAnalysisSetInit::VOXEAnalysisSetInit() = default;

VOXEAnalysisSetInit::~VOXEAnalysisSetInit() = default;

HRESULT VOXEAnalysisSetInit::Initialize()
{
  return S_OK;
}

int VOXEAnalysisSetInit::CheckAnalysisParent(const VOXBaseUnknown* iParent, SAM_Quality& oQuality)
{
  voxframe::PlacementSides sides;
  if (iParent == nullptr || !voxframe::ReadPlacementSides(this, iParent, sides))
    return 0;
  const VOXAnalysisExplicitModel* const pExplicitModel = sides.pModel;
  VOX_ASSERT(pExplicitModel);
  const VOXAnalysisExplicitRulesData* const pRulesData = pExplicitModel->GetRulesData();
  VOX_ASSERT(pRulesData);

  const voxframe::Placement placement = voxframe::PlacementOf(sides, *pRulesData);
  if (placement == voxframe::Placement::NeverPlaced)
    return 0;
  if (placement == voxframe::Placement::ImportedPair)
    return 1; // Kept: the quality stays what the caller set

  // Kept: the quality is worked out even when the children could not be read.
  WorkOutQuality(this, oQuality);
  return placement == voxframe::Placement::AuthorizedChild ? 1 : 0;
}

HRESULT VOXEAnalysisSetInit::InitWhenPositioned(const VOXBaseUnknown* /*iParent*/)
{
  return S_OK;
}

HRESULT VOXEAnalysisSetInit::Remove(int /*iMode*/)
{
  return S_OK;
}

HRESULT VOXEAnalysisSetInit::ReorderInScan(const VOXISamAnalysisScan* /*iScan*/)
{
  return S_OK;
}
