// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "host/AnalysisInterfaces/AnalysisFaces.h"
#include "host/FeatureModeler/Feature.h"
#include "host/Instruments/Faults.h"

namespace voxhost
{
namespace
{

class SetFace final : public VOXISamAnalysisSet
{
public:
  HRESULT ReservedSet1() override { return E_NOTIMPL; }
  HRESULT ReservedSet2() override { return E_NOTIMPL; }
  HRESULT ReservedSet3() override { return E_NOTIMPL; }
  HRESULT ReservedSet4() override { return E_NOTIMPL; }
  HRESULT ReservedSet5() override { return E_NOTIMPL; }
  HRESULT ReservedSet6() override { return E_NOTIMPL; }
  HRESULT ReservedSet7() override { return E_NOTIMPL; }
  HRESULT ReservedSet8() override { return E_NOTIMPL; }
  HRESULT ReservedSet9() override { return E_NOTIMPL; }
  HRESULT ReservedSet10() override { return E_NOTIMPL; }
  HRESULT ReservedSet11() override { return E_NOTIMPL; }
  HRESULT ReservedSet12() override { return E_NOTIMPL; }
  HRESULT ReservedSet13() override { return E_NOTIMPL; }
  HRESULT ReservedSet14() override { return E_NOTIMPL; }
  HRESULT ReservedSet15() override { return E_NOTIMPL; }
  HRESULT ReservedSet16() override { return E_NOTIMPL; }
  HRESULT ReservedSet17() override { return E_NOTIMPL; }
  HRESULT ReservedSet18() override { return E_NOTIMPL; }
  HRESULT ReservedSet19() override { return E_NOTIMPL; }
  HRESULT ReservedSet20() override { return E_NOTIMPL; }
  HRESULT ReservedSet21() override { return E_NOTIMPL; }
  HRESULT ReservedSet22() override { return E_NOTIMPL; }
  HRESULT ReservedSet23() override { return E_NOTIMPL; }
  HRESULT ReservedSet24() override { return E_NOTIMPL; }
  HRESULT ReservedSet25() override { return E_NOTIMPL; }

  HRESULT ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const override
  {
    oFathers = nullptr;
    if (Faults::Enter("VOXISamAnalysisSet::ListShownUnder"))
      return E_FAIL;
    if (Feature* const father = My().Father())
    {
      oFathers = new VOXListValVOXBaseUnknown_var;
      oFathers->Append(VOXBaseUnknown_var(father));
    }
    return S_OK;
  }

  HRESULT GetMemberByName(const VOXUnicodeString& iName, VOXISpecObject_var& oMember, int) const override
  {
    if (Faults::Enter("VOXISamAnalysisSet::GetMemberByName"))
      return E_FAIL;
    oMember = NULL_var;
    for (Feature* const member : My().Features("SonsList"))
    {
      if (member->Name() != iName)
        continue;
      oMember = static_cast<VOXBaseUnknown*>(member);
      break;
    }
    return S_OK;
  }

  HRESULT ListMembers(const char* iInterfaceName, VOXListValVOXISpecObject_var& oMembers, int) const override
  {
    if (Faults::Enter("VOXISamAnalysisSet::ListMembers") || iInterfaceName == nullptr)
      return E_FAIL;
    oMembers.RemoveAll();
    for (Feature* const member : My().Features("SonsList"))
    {
      VOXBaseUnknown* const face = static_cast<const VOXBaseUnknown*>(member)->QueryInterface(iInterfaceName);
      if (face == nullptr)
        continue;
      oMembers.Append(VOXISpecObject_var(static_cast<VOXBaseUnknown*>(member)));
      face->Release();
    }
    return S_OK;
  }

private:
  Feature& My() const { return *Feature::Of(this); }
};

} // namespace

VOXBaseUnknown* NewSetFace()
{
  return new SetFace;
}

} // namespace voxhost
