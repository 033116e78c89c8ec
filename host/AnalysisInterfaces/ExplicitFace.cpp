// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "host/AnalysisInterfaces/AnalysisFaces.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Faults.h"

namespace voxhost
{
namespace
{

class ExplicitFace final : public VOXISamExplicit
{
public:
  VOXString GetPhysicalTypeName() const override
  {
    return Faults::Enter("VOXISamExplicit::GetPhysicalTypeName") ? VOXString() : VOXString(My().PhysicalType().c_str());
  }

  VOXAnalysisExplicitModel* GetExplicitModel() const override
  {
    return Faults::Enter("VOXISamExplicit::GetExplicitModel") ? nullptr : My().ExplicitModel();
  }

  HRESULT GetExplicitParent(VOXAnalysisExplicitParent& oParent, unsigned char) const override
  {
    const VOXAnalysisExplicitModel* const model = My().ExplicitModel();
    if (Faults::Enter("VOXISamExplicit::GetExplicitParent") || model == nullptr)
      return E_FAIL;
    const std::int32_t tag = My().FirstExplicitTag();
    if (tag == 0)
      oParent = NULL_exp;
    else
      oParent.LinkWithTag(tag, model);
    return S_OK;
  }

  HRESULT ListTags(VOXRawCollint& ioTags) const override
  {
    if (Faults::Enter("VOXISamExplicit::ListTags") || My().IsRemoved())
      return E_FAIL;
    if (My().OwningDocument()->HowTagsAreListed() == TagListing::kReplaces)
      ioTags.RemoveAll(0);
    for (const std::int32_t tag : My().ExplicitTags())
      ioTags.Append(tag);
    return S_OK;
  }

  HRESULT ListParents(VOXAnalysisExplicitListUsr& ioParents) const override
  {
    const VOXAnalysisExplicitModel* const model = My().ExplicitModel();
    if (Faults::Enter("VOXISamExplicit::ListParents") || model == nullptr || ioParents == NULL_exp)
      return E_FAIL;
    for (const std::int32_t tag : My().ExplicitTags())
    {
      VOXAnalysisExplicitParent parent;
      if (SUCCEEDED(parent.LinkWithTag(tag, model)) && parent != NULL_exp)
        ioParents.Append(parent);
    }
    return S_OK;
  }

  unsigned char GetActivity() const override
  {
    return !Faults::Enter("VOXISamExplicit::GetActivity") && !My().IsRemoved() && My().IsActive() ? 1 : 0;
  }

  HRESULT SetExplicitState(int iState) override
  {
    if (Faults::Enter("VOXISamExplicit::SetExplicitState") || My().IsRemoved())
      return E_FAIL;
    My().SetExplicitState(iState);
    return S_OK;
  }

private:
  Feature& My() const { return *Feature::Of(this); }
};

} // namespace

VOXBaseUnknown* NewExplicitFace()
{
  return new ExplicitFace;
}

} // namespace voxhost
