// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "host/AnalysisInterfaces/AnalysisFaces.h"
#include "host/FeatureModeler/Feature.h"
#include "host/Instruments/Faults.h"

namespace voxhost
{
namespace
{

class EntityFace final : public VOXISamAnalysisEntity
{
public:
  HRESULT ReservedEntity1() override { return E_NOTIMPL; }
  HRESULT ReservedEntity2() override { return E_NOTIMPL; }
  HRESULT ReservedEntity3() override { return E_NOTIMPL; }
  HRESULT ReservedEntity4() override { return E_NOTIMPL; }
  HRESULT ReservedEntity5() override { return E_NOTIMPL; }
  HRESULT ReservedEntity6() override { return E_NOTIMPL; }
  HRESULT ReservedEntity7() override { return E_NOTIMPL; }
  HRESULT ReservedEntity8() override { return E_NOTIMPL; }
  HRESULT ReservedEntity10() override { return E_NOTIMPL; }
  HRESULT ReservedEntity11() override { return E_NOTIMPL; }
  HRESULT ReservedEntity12() override { return E_NOTIMPL; }
  HRESULT ReservedEntity14() override { return E_NOTIMPL; }
  HRESULT ReservedEntity15() override { return E_NOTIMPL; }
  HRESULT ReservedEntity16() override { return E_NOTIMPL; }

  HRESULT GetAnalysisSet(VOXBaseUnknown_var& oSet) const override
  {
    Feature* const set = Set();
    if (Faults::Enter("VOXISamAnalysisEntity::GetAnalysisSet") || set == nullptr)
      return E_FAIL;
    oSet = static_cast<VOXBaseUnknown*>(set);
    return S_OK;
  }

  unsigned char IsShownUnderItsSet() const override
  {
    return !Faults::Enter("VOXISamAnalysisEntity::IsShownUnderItsSet") && Set() != nullptr ? 1 : 0;
  }

  HRESULT ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const override
  {
    oFathers = nullptr;
    if (Faults::Enter("VOXISamAnalysisEntity::ListShownUnder"))
      return E_FAIL;
    if (Feature* const father = My().Father())
    {
      oFathers = new VOXListValVOXBaseUnknown_var;
      oFathers->Append(VOXBaseUnknown_var(father));
    }
    return S_OK;
  }

  HRESULT ListByRole(VOXListValVOXBaseUnknown_var*& oObjects, const VOXUnicodeString& iRole) const override
  {
    const int role = My().IndexOf(iRole.ConvertToChar());
    if (Faults::Enter("VOXISamAnalysisEntity::ListByRole") || My().IsRemoved() || role < 0)
      return E_FAIL;
    oObjects = new VOXListValVOXBaseUnknown_var;
    for (Feature* const feature : My().Features(role))
      oObjects->Append(VOXBaseUnknown_var(feature));
    return oObjects->Size() == 0 ? S_FALSE : S_OK;
  }

private:
  Feature& My() const { return *Feature::Of(this); }
  Feature* Set() const
  {
    Feature* const father = My().Father();
    return father != nullptr && father->Type().Has(kSetFace) ? father : nullptr;
  }
};

} // namespace

VOXBaseUnknown* NewEntityFace()
{
  return new EntityFace;
}

} // namespace voxhost
