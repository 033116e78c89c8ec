// SPDX-License-Identifier: MIT
#include "FeatureModeler/VOXSpecPointing.h"
#include "host/FeatureModeler/AttrKey.h"
#include "host/FeatureModeler/Document.h"
#include "host/FeatureModeler/Rarities.h"
#include "host/Instruments/Faults.h"

namespace voxhost
{
namespace
{

template <class Object>
Object* WithReference(Object* iObject)
{
  if (iObject != nullptr)
    iObject->AddRef();
  return iObject;
}

} // namespace

int Feature::IsSubTypeOf(const VOXUnicodeString& iType) const
{
  return !Faults::Enter("VOXISpecObject::IsSubTypeOf") && _Type->IsSubTypeOf(iType.ConvertToChar()) ? 1 : 0;
}

unsigned char Feature::IsUpToDate(const VOXIDomain_var&) const
{
  return !Faults::Enter("VOXISpecObject::IsUpToDate") && !IsRemoved() && !IsOutOfDate() ? 1 : 0;
}

HRESULT Feature::Update(const VOXIDomain_var&)
{
  return Faults::Enter("VOXISpecObject::Update") || IsRemoved() ? E_FAIL : _Document->Update(*this);
}

VOXISpecObject* Feature::GetStartUp() const
{
  return Faults::Enter("VOXISpecObject::GetStartUp") || IsRemoved() ? nullptr : WithReference(_StartUp);
}

HRESULT Feature::GetContainer(VOXIContainer_var& oContainer) const
{
  if (Faults::Enter("VOXISpecObject::GetContainer") || _Container == nullptr)
    return E_FAIL;
  oContainer = _Container;
  return S_OK;
}

HRESULT Feature::GetFather(VOXBaseUnknown_var& oFather) const
{
  if (Faults::Enter("VOXISpecObject::GetFather"))
    return E_FAIL;
  if (_Father != nullptr)
    oFather = static_cast<VOXBaseUnknown*>(_Father);
  else if (_Container != nullptr && _Container->Holds())
    oFather = static_cast<VOXBaseUnknown*>(_Container);
  else
    return E_FAIL;
  return S_OK;
}

VOXBaseUnknown* Feature::GetFatherObject() const
{
  if (Faults::Enter("VOXISpecObject::GetFatherObject"))
    return nullptr;
  if (_Father != nullptr)
    return WithReference<VOXBaseUnknown>(_Father);
  return _Container != nullptr && _Container->Holds() ? WithReference<VOXBaseUnknown>(_Container) : nullptr;
}

VOXISpecObject* Feature::Instantiate(const VOXUnicodeString& iName, const VOXIContainer_var& iContainer,
                                     VOXBaseUnknown*)
{
  if (Faults::Enter("VOXISpecObject::Instantiate") || IsRemoved())
    return nullptr;
  return WithReference(_Document->New(*this, iName, Container::Of(iContainer)));
}

VOXUnicodeString Feature::GetName() const
{
  return Faults::Enter("VOXISpecObject::GetName") ? VOXUnicodeString() : _Name;
}

VOXUnicodeString Feature::GetIdentifyingString() const
{
  return Faults::Enter("VOXISpecObject::GetIdentifyingString") ? VOXUnicodeString() : IdentifyingString();
}

void Feature::SetIdentifyingString(const VOXUnicodeString& iString)
{
  if (!Faults::Enter("VOXISpecObject::SetIdentifyingString") && !IsRemoved())
    SetIdentifyingString(std::string(iString.ConvertToChar()));
}

std::int32_t Feature::GetTimeStamp() const
{
  return Faults::Enter("VOXISpecObject::GetTimeStamp") ? 0 : _TimeStamp;
}

HRESULT Feature::GetPointings(VOXListPtrVOXSpecPointing& ioPointings) const
{
  if (Faults::Enter("VOXISpecObject::GetPointings") || IsRemoved())
    return E_FAIL;
  const auto append = [&ioPointings](Feature& feature, int attribute)
  {
    VOXISpecAttrKey* const key = NewAttrKey(feature, attribute);
    ioPointings.Append(
        new VOXSpecPointing(VOXISpecAttrAccess_var(static_cast<VOXBaseUnknown*>(&feature)), VOXISpecAttrKey_var(key)));
    if (key != nullptr)
      key->Release();
  };
  if (_Father != nullptr)
    append(*_Father, _HoldingAttribute);
  for (const Referrer& referrer : Referrers())
    for (int i = 0; i < referrer.count; ++i)
      append(*referrer.feature, referrer.attribute);
  return S_OK;
}

HRESULT Feature::RemoveComponent(const VOXBaseUnknown_var& iComponent, int)
{
  Feature* const component = Of(iComponent);
  if (Faults::Enter("VOXISpecObject::RemoveComponent") || component == nullptr || component->_Father != this)
    return E_FAIL;
  _Document->Remove(*component);
  return S_OK;
}

HRESULT Feature::HandOver(const VOXUnicodeString& iFromAttribute, const VOXISpecObject_var& iNewFather,
                          const VOXUnicodeString& iToAttribute)
{
  Feature* const newFather = Of(iNewFather);
  if (Faults::Enter("VOXISpecObject::HandOver") || newFather == nullptr || _Father == nullptr ||
      _Father->IndexOf(iFromAttribute.ConvertToChar()) != _HoldingAttribute)
    return E_FAIL;
  return newFather->SetFeature(newFather->IndexOf(iToAttribute.ConvertToChar()), 0, *this);
}

VOXISpecObject* Feature::GetRelatedObject() const
{
  return Faults::Enter("VOXISpecObject::GetRelatedObject") || IsRemoved() ? nullptr : WithReference(_StartUp);
}

VOXBaseUnknown* Feature::GetModelFactory() const
{
  return Faults::Enter("VOXISpecObject::GetModelFactory") || IsRemoved() ? nullptr : NearestWith(kModelFactoryFace);
}

HRESULT Feature::Unsubscribe(int)
{
  if (Faults::Enter("VOXISpecObject::Unsubscribe") || IsRemoved())
    return E_FAIL;
  SetSubscribed(false);
  return S_OK;
}

} // namespace voxhost
