// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "host/AnalysisInterfaces/AnalysisFaces.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Faults.h"

namespace voxhost
{
namespace
{

class BasicComponentFace final : public VOXISamBasicComponent
{
public:
  HRESULT InitializeAfterCreation() override
  {
    return Faults::Enter("VOXISamBasicComponent::InitializeAfterCreation") ? E_FAIL : S_OK;
  }

  VOXUnicodeString GetName() const override
  {
    return Faults::Enter("VOXISamBasicComponent::GetName") ? VOXUnicodeString() : My().Name();
  }

  HRESULT GetDimensions(int& oValues, int& oRows, int& oLayers, const VOXUnicodeString&) const override
  {
    if (Faults::Enter("VOXISamBasicComponent::GetDimensions") || My().IsRemoved())
      return E_FAIL;
    oValues = My().Integer("ValuesDim", 1);
    oRows = My().Integer("Rows", 1);
    oLayers = My().Integer("Layers", 1);
    return S_OK;
  }

  HRESULT GetValue(VOXBaseUnknown_var& oValue, const VOXUnicodeString&, int, int, int) const override
  {
    if (Faults::Enter("VOXISamBasicComponent::GetValue") || My().IsRemoved())
      return E_FAIL;
    oValue = My().ComponentValue();
    return S_OK;
  }

  HRESULT CreateSubComponent(const VOXUnicodeString& iType, const VOXUnicodeString&, const VOXBaseUnknown_var&) override
  {
    if (Faults::Enter("VOXISamBasicComponent::CreateSubComponent") || My().IsRemoved())
      return E_FAIL;
    Feature* const made = My().OwningDocument()->New(iType.ConvertToChar(), iType, My().OwningContainer());
    return made == nullptr ? E_FAIL : My().Add("SonsList", *made);
  }

  HRESULT ListSubComponents(VOXListValVOXBaseUnknown_var*& oComponents, const VOXUnicodeString&) const override
  {
    if (Faults::Enter("VOXISamBasicComponent::ListSubComponents") || My().IsRemoved())
      return E_FAIL;
    oComponents = nullptr;
    for (Feature* const component : My().Features("SonsList"))
    {
      if (oComponents == nullptr)
        oComponents = new VOXListValVOXBaseUnknown_var;
      oComponents->Append(VOXBaseUnknown_var(component));
    }
    return S_OK;
  }

  HRESULT RemoveSubComponent(const VOXBaseUnknown_var& iComponent) override
  {
    Feature* const component = Feature::Of(iComponent);
    if (Faults::Enter("VOXISamBasicComponent::RemoveSubComponent") || component == nullptr ||
        component->Father() != &My())
      return E_FAIL;
    My().OwningDocument()->Remove(*component);
    return S_OK;
  }

private:
  Feature& My() const { return *Feature::Of(this); }
};

} // namespace

VOXBaseUnknown* NewBasicComponentFace()
{
  return new BasicComponentFace;
}

} // namespace voxhost
