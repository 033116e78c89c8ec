// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXISamAnalysisModelFactory.h"
#include "AnalysisInterfaces/VOXISamAnalysisSupport.h"
#include "AnalysisInterfaces/VOXISamMeshPartFilter.h"
#include "AnalysisInterfaces/VOXISamViewManager.h"
#include "Visualization/VOXIMSHVisuGrouper.h"
#include "host/AnalysisInterfaces/AnalysisFaces.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Faults.h"

namespace voxhost
{
namespace
{

class SupportFace final : public VOXISamAnalysisSupport
{
public:
  HRESULT ListSupports(VOXListValVOXBaseUnknown_var& ioSupports, const CLSID&) const override
  {
    if (Faults::Enter("VOXISamAnalysisSupport::ListSupports"))
      return E_FAIL;
    for (Feature* const support : Feature::Of(this)->Features("Supports"))
      ioSupports.Append(VOXBaseUnknown_var(support));
    return S_OK;
  }
};

class MeshPartFilterFace final : public VOXISamMeshPartFilter
{
public:
  HRESULT ListDesigners(VOXListValVOXISpecObject_var*& oDesigners) const override
  {
    if (Faults::Enter("VOXISamMeshPartFilter::ListDesigners"))
      return E_FAIL;
    oDesigners = nullptr;
    for (Feature* const designer : Feature::Of(this)->Features("Designers"))
    {
      if (oDesigners == nullptr)
        oDesigners = new VOXListValVOXISpecObject_var;
      oDesigners->Append(VOXISpecObject_var(static_cast<VOXBaseUnknown*>(designer)));
    }
    return S_OK;
  }
};

class ModelFactoryFace final : public VOXISamAnalysisModelFactory
{
public:
  VOXBaseUnknown* CreateEntity(const VOXUnicodeString& iName, const VOXUnicodeString& iType,
                               VOXBaseUnknown* iFather) override
  {
    Document* const document = Feature::Of(this)->OwningDocument();
    if (Faults::Enter("VOXISamAnalysisModelFactory::CreateEntity") || document == nullptr)
      return nullptr;
    const Feature* const father = Feature::Of(iFather);
    Feature* const made =
        document->New(iType.ConvertToChar(), iName, father == nullptr ? nullptr : father->OwningContainer());
    if (made != nullptr)
      made->AddRef();
    return made;
  }
};

class VisuGrouperFace final : public VOXIMSHVisuGrouper
{
public:
  void* GetVisuObject() override
  {
    return Faults::Enter("VOXIMSHVisuGrouper::GetVisuObject") ? nullptr : Feature::Of(this);
  }
};

class ViewManagerFace final : public VOXISamViewManager
{
public:
  void Show(VOXBaseUnknown* iObject, int iView) override
  {
    Document* const document = Feature::Of(this)->OwningDocument();
    if (!Faults::Enter("VOXISamViewManager::Show") && document != nullptr)
      document->ShownViews().Show(iObject, iView);
  }
  void UpdateShowStatus(int) override
  {
    Document* const document = Feature::Of(this)->OwningDocument();
    if (!Faults::Enter("VOXISamViewManager::UpdateShowStatus") && document != nullptr)
      document->ShownViews().NoteShowStatus();
  }
};

} // namespace

VOXBaseUnknown* NewSupportFace()
{
  return new SupportFace;
}
VOXBaseUnknown* NewMeshPartFilterFace()
{
  return new MeshPartFilterFace;
}
VOXBaseUnknown* NewModelFactoryFace()
{
  return new ModelFactoryFace;
}
VOXBaseUnknown* NewVisuGrouperFace()
{
  return new VisuGrouperFace;
}
VOXBaseUnknown* NewViewManagerFace()
{
  return new ViewManagerFace;
}

} // namespace voxhost
