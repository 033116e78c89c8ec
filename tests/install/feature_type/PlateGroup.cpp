// SPDX-License-Identifier: MIT
// A feature type in a shared object: the nodes of a plate. It overrides one operation of the adaptor, supplies those that
// the adaptor leaves to it, and leaves the reading of the model to the adaptor's own body in the other library.
#include "ComponentRuntime/VOXTypeDictionary.h"
#include "VOXEAnalysisGroup.h"

namespace
{

class PlateGroup final : public VOXEAnalysisGroup
{
public:
  //! The one that is overridden: a plate's group answers to "PLATE" as well.
  HRESULT IsGroupOf(VOXSamValue iValue, VOXString iEntityType, unsigned char& oIsGroupOf) const override
  {
    if (iValue == VOXSamValueNode && iEntityType == "PLATE")
    {
      oIsGroupOf = 1;
      return S_OK;
    }
    return VOXEAnalysisGroup::IsGroupOf(iValue, iEntityType, oIsGroupOf); // the adaptor's own body
  }

  HRESULT GetDefinitionType(VOXUnicodeString& oDefinition) const override
  {
    oDefinition = "Plate";
    return S_OK;
  }

  HRESULT GetValueKinds(int& oCount, const VOXSamValue*& oValues) const override
  {
    static const VOXSamValue nodes = VOXSamValueNode;
    oCount = 1;
    oValues = &nodes;
    return S_OK;
  }

  HRESULT GetKeywords(VOXSamValue iValue, int& oCount, const VOXString*& oKeywords) const override
  {
    static const VOXString keyword("NODE");
    oCount = iValue == VOXSamValueNode ? 1 : 0;
    oKeywords = &keyword;
    return S_OK;
  }

  HRESULT GetSupports(VOXListValVOXBaseUnknown_var& oSupports) const override
  {
    oSupports = VOXListValVOXBaseUnknown_var();
    return S_OK;
  }

  HRESULT GetExplicitPointers(VOXSamValue, VOXString, int&, VOXSamModelDataRoot**&, int*&) const override
  {
    return S_OK; // a plate that is not in the model is empty
  }
};

} // namespace

extern "C" __attribute__((visibility("default"))) int AddFeatureTypes()
{
  return VOXExtendLateType<VOXISamGroup, PlateGroup>("PlateGroup") == S_OK ? 1 : 0;
}
