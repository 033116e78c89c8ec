// SPDX-License-Identifier: MIT
#include "PlacementRules.h"

#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "Counted.h"

namespace voxframe
{

namespace
{

struct ImportedKind
{
  int type;
  VOXSamValue category; // of the holder that takes it
};

constexpr ImportedKind kImportedKinds[] = {
    {VOXSamPhysicalTypeImportedMaterial, VOXSamValueMaterialSet},
    {VOXSamPhysicalTypeImportedAxis, VOXSamValueAxisSet},
    {VOXSamPhysicalTypeImportedProperty, VOXSamValuePropertySet},
    {VOXSamPhysicalTypeImportedRestraint, VOXSamValueRestraintSet},
    {VOXSamPhysicalTypeImportedLoad, VOXSamValueLoadSet},
    {VOXSamPhysicalTypeImportedMass, VOXSamValueMassSet},
};

bool IsImportedPair(int iMemberType, VOXSamValue iHolderCategory)
{
  for (const ImportedKind& kind : kImportedKinds)
    if (kind.type == iMemberType && kind.category == iHolderCategory)
      return true;
  return false;
}

// Kept: a negative entry counts by its absolute value.
bool IsAmong(const int* iTypes, int iCount, int iType)
{
  for (int i = 0; i < iCount; ++i)
  {
    if (iTypes == nullptr)
      return false;
    const long long entry = iTypes[i];
    if ((entry < 0 ? -entry : entry) == iType)
      return true;
  }
  return false;
}

bool IsAuthorizedChild(int iMemberType, int iHolderType, const VOXAnalysisExplicitRulesData& iRules)
{
  int count = 0;
  int* types = nullptr;
  const HRESULT result = iRules.GetPhysicalTypeAuthorizedChildren(iHolderType, count, types);
  const bool found = SUCCEEDED(result) && IsAmong(types, count, iMemberType);
  delete[] types;
  return found;
}

} // namespace

bool ReadPlacementSides(const VOXBaseUnknown* iMember, const VOXBaseUnknown* iHolder, PlacementSides& oSides)
{
  auto piMember = QueryFor<VOXISamExplicit>(iMember);
  if (!piMember)
    return false;
  oSides.memberType = piMember->GetPhysicalTypeName();
  piMember.GiveBack();

  const auto piHolder = QueryFor<VOXISamExplicit>(iHolder);
  if (!piHolder)
    return false;
  oSides.holderType = piHolder->GetPhysicalTypeName();
  oSides.pModel = piHolder->GetExplicitModel();
  return true;
}

Placement PlacementOf(const PlacementSides& iSides, const VOXAnalysisExplicitRulesData& iRules)
{
  int memberType = VOXSamPhysicalTypeNone;
  int holderType = VOXSamPhysicalTypeNone;
  iRules.GetPhysicalTypeNumber(iSides.memberType, memberType); // a name that the rules do not know stays without a type
  iRules.GetPhysicalTypeNumber(iSides.holderType, holderType);
  if (memberType == VOXSamPhysicalTypeNone || memberType == VOXSamPhysicalTypeGenEntity)
    return Placement::NeverPlaced;
  if (holderType == VOXSamPhysicalTypeNone || holderType == VOXSamPhysicalTypeGenSet)
    return Placement::NeverPlaced;

  VOXSamValue category = VOXSamValueUnknown; // a query that fails leaves it
  iRules.GetPhysicalTypeCategory(holderType, category);
  if (IsImportedPair(memberType, category))
    return Placement::ImportedPair;
  return IsAuthorizedChild(memberType, holderType, iRules) ? Placement::AuthorizedChild : Placement::NoAuthorizedChild;
}

} // namespace voxframe
