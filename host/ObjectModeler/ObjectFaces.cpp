// SPDX-License-Identifier: MIT
#include "host/ObjectModeler/ObjectFaces.h"

#include "ObjectModeler/VOXIAlias.h"
#include "ObjectModeler/VOXILinkableObject.h"
#include "ObjectModeler/VOXIRedrawEvent.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Faults.h"

namespace voxhost
{
namespace
{

class Alias final : public VOXIAlias
{
public:
  VOXUnicodeString GetAlias() const override
  {
    return Faults::Enter("VOXIAlias::GetAlias") ? VOXUnicodeString() : Feature::Of(this)->Text("Alias");
  }
  HRESULT SetAlias(const VOXUnicodeString& iAlias) override
  {
    if (Faults::Enter("VOXIAlias::SetAlias"))
      return E_FAIL;
    return Feature::Of(this)->Set("Alias", std::string(iAlias.ConvertToChar()));
  }
};

class LinkableObject final : public VOXILinkableObject
{
public:
  void* GetLinkValue() override
  {
    Feature* const feature = Feature::Of(this);
    return Faults::Enter("VOXILinkableObject::GetLinkValue") || feature->IsRemoved() ? nullptr : feature;
  }
};

class RedrawEvent final : public VOXIRedrawEvent
{
public:
  void ReservedRedrawEvent1() override {}
  void ReservedRedrawEvent2() override {}
  void ReservedRedrawEvent3() override {}
  void ReservedRedrawEvent4() override {}
  void ReservedRedrawEvent5() override {}
  void ReservedRedrawEvent6() override {}
  void ReservedRedrawEvent7() override {}

  void RequestRedraw() override
  {
    Document* const document = Feature::Of(this)->OwningDocument();
    if (!Faults::Enter("VOXIRedrawEvent::RequestRedraw") && document != nullptr)
      document->ShownViews().NoteRedraw();
  }
};

} // namespace

VOXBaseUnknown* NewAlias()
{
  return new Alias;
}
VOXBaseUnknown* NewLinkableObject()
{
  return new LinkableObject;
}
VOXBaseUnknown* NewRedrawEvent()
{
  return new RedrawEvent;
}

} // namespace voxhost
