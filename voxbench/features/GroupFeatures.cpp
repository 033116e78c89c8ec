// SPDX-License-Identifier: MIT
#include "voxbench/features/GroupFeatures.h"
#include "voxbench/features/FeatureAttribute.h"

#include <memory>

namespace voxbench
{
HRESULT NamedGroup::GetDefinitionType(VOXUnicodeString& oDefinition) const
{
  const FeatureAttribute definition(*this, "Definition");
  if (!definition.spKey)
    return E_FAIL;
  oDefinition = definition.spAccess->GetString(definition.spKey, 0);
  return S_OK;
}

HRESULT NamedGroup::GetValueKinds(int& oCount, const VOXSamValue*& oValues) const
{
  oCount = 1;
  oValues = &_Kind.value;
  return S_OK;
}

HRESULT NamedGroup::GetKeywords(VOXSamValue iValue, int& oCount, const VOXString*& oKeywords) const
{
  const bool served = iValue == _Kind.value;
  oCount = served ? 1 : 0;
  oKeywords = served ? &_Keyword : nullptr;
  return S_OK;
}

HRESULT NamedGroup::GetSupports(VOXListValVOXBaseUnknown_var& oSupports) const
{
  oSupports = VOXListValVOXBaseUnknown_var();
  const FeatureAttribute supports(*this, "Supports");
  if (!supports.spKey)
    return E_FAIL;
  const std::unique_ptr<VOXListValVOXBaseUnknown_var> listed(
      supports.spAccess->ListSpecObjects(supports.spKey, nullptr));
  if (listed)
    oSupports = *listed;
  return S_OK;
}

HRESULT NamedGroup::GetExplicitPointers(VOXSamValue /*iValue*/, VOXString /*iEntityType*/, int& /*oCount*/,
                                        VOXSamModelDataRoot**& /*oPointers*/, int*& /*oIndices*/) const
{
  const VOXISpecObject_var spFeature(GetImpl(0));
  const bool upToDate = !!spFeature && spFeature->IsUpToDate(VOXIDomain_var());
  return upToDate ? S_OK : E_FAIL; // the entities stand in the model alone: out of date, there are none to give
}

} // namespace voxbench
