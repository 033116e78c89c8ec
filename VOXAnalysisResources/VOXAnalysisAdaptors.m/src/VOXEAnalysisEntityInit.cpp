// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEntityInit.h"

#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AssertionFrame.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "PlacementRules.h"

VOX_SOURCE_OF(VOXEAnalysisEntityInit);

static_assert(sizeof(VOXEAnalysisEntityInit) == sizeof(VOXBaseUnknown), "deriving classes are laid out on this size");

namespace
{

struct SetTypeOfFeatureType
{
  const char* featureType;
  const char* setType;
};

// The first type that the feature is of decides. Kept: "SAMFiltredGroup" is spelled so in the documents.
constexpr SetTypeOfFeatureType kSetTypes[] = {
    {"AnalysisProperty", "PropertySet"}, {"SAMSpecifiedGroup", "GroupSet"},
    {"SAMFiltredGroup", "GroupSet"},     {"SAMFreeGroup", "GroupSet"},
    {"AnalysisLoad", "LoadSet"},         {"AnalysisRestraint", "RestraintSet"},
    {"AnalysisMass", "MassSet"},         {"AnalysisModulation", "ModulationSet"},
    {"MeasureWithProgram", "SensorSet"}, {"AnalysisSensor", "SensorSet"},
};

} // namespace

VOXEAnalysisEntityInit::VOXEAnalysisEntityInit() = default;

VOXEAnalysisEntityInit::~VOXEAnalysisEntityInit() = default;

HRESULT VOXEAnalysisEntityInit::Initialize()
{
  return S_OK;
}

HRESULT VOXEAnalysisEntityInit::InitWhenPositioned()
{
  return S_OK;
}

HRESULT VOXEAnalysisEntityInit::Remove(int /*iMode*/)
{
  return S_OK;
}

int VOXEAnalysisEntityInit::CheckAnalysisSet(const VOXISamAnalysisSet* iSet)
{
  voxframe::PlacementSides sides;
  if (iSet == nullptr || !voxframe::ReadPlacementSides(this, iSet, sides))
    return 0;
  const VOXAnalysisExplicitModel* const pExplicitModel = sides.pModel;
  VOX_ASSERT(pExplicitModel);
  const VOXAnalysisExplicitRulesData* const pRulesData = pExplicitModel->GetRulesData();
  VOX_ASSERT(pRulesData);

  const voxframe::Placement placement = voxframe::PlacementOf(sides, *pRulesData);
  return placement == voxframe::Placement::ImportedPair || placement == voxframe::Placement::AuthorizedChild ? 1 : 0;
}

int VOXEAnalysisEntityInit::GetAnalysisSetType(VOXUnicodeString& oSetType)
{
  const VOXISpecObject_var spec(GetImpl(0));
  VOX_ASSERT(!!spec);
  for (const SetTypeOfFeatureType& row : kSetTypes)
  {
    if (!spec->IsSubTypeOf(row.featureType))
      continue;
    oSetType = row.setType;
    return 1;
  }
  return 0;
}

unsigned char VOXEAnalysisEntityInit::AggregateInSet()
{
  // Kept: the late type of the implementation is asked, not the feature's type, and in the other order than above.
  return GetImpl(0)->IsAKindOf("AnalysisSensor") || GetImpl(0)->IsAKindOf("MeasureWithProgram") ? 1 : 0;
}
