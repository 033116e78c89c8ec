// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/AttrAccess.h"

#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "host/FeatureModeler/AttrKey.h"
#include "host/FeatureModeler/Feature.h"
#include "host/Instruments/Faults.h"

namespace voxhost
{
namespace
{

class AttrAccess final : public VOXISpecAttrAccess
{
public:
  VOXISpecAttrKey* GetAttrKey(const VOXUnicodeString& iName) const override
  {
    const int index = My().IndexOf(iName.ConvertToChar());
    if (Faults::Enter("VOXISpecAttrAccess::GetAttrKey") || My().IsRemoved() || index < 0)
      return nullptr;
    return NewAttrKey(My(), index);
  }

  VOXListValVOXISpecAttrKey_var* ListAttrKeys() const override
  {
    if (Faults::Enter("VOXISpecAttrAccess::ListAttrKeys") || My().IsRemoved())
      return nullptr;
    auto* const keys = new VOXListValVOXISpecAttrKey_var;
    for (std::size_t i = 0; i < My().Type().Attributes().size(); ++i)
    {
      VOXISpecAttrKey* const key = NewAttrKey(My(), static_cast<int>(i));
      keys->Append(VOXISpecAttrKey_var(key));
      if (key != nullptr)
        key->Release();
    }
    return keys;
  }

  VOXListValVOXBaseUnknown_var* ListSpecObjects(const VOXISpecAttrKey* iKey, const char* iInterfaceName) const override
  {
    const int index = IndexOfKey(My(), iKey);
    const int element = My().ElementTypeOf(index);
    if (Faults::Enter("VOXISpecAttrAccess::ListSpecObjects") || My().Find(index) == nullptr ||
        (element != VOXSpecReference && element != VOXSpecComponent))
      return nullptr;
    auto* const objects = new VOXListValVOXBaseUnknown_var;
    for (Feature* const feature : My().Features(index))
      objects->Append(FaceOf(*feature, iInterfaceName));
    return objects;
  }

  double GetDouble(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    return Faults::Enter("VOXISpecAttrAccess::GetDouble") ? 0. : Read<double>(iKey, iIndex);
  }
  unsigned char GetBoolean(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    return Faults::Enter("VOXISpecAttrAccess::GetBoolean") ? 0 : Read<unsigned char>(iKey, iIndex);
  }
  VOXUnicodeString GetString(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    return Faults::Enter("VOXISpecAttrAccess::GetString") ? VOXUnicodeString() : Read<VOXUnicodeString>(iKey, iIndex);
  }
  std::int32_t GetInteger(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    return Faults::Enter("VOXISpecAttrAccess::GetInteger") ? 0 : Read<std::int32_t>(iKey, iIndex);
  }
  VOXISpecObject* GetSpecObject(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    Feature* const object = Faults::Enter("VOXISpecAttrAccess::GetSpecObject") ? nullptr : Read<Feature*>(iKey, iIndex);
    if (object != nullptr)
      object->AddRef();
    return object;
  }

  HRESULT SetDouble(const VOXISpecAttrKey* iKey, double iValue, int iIndex) override
  {
    return Faults::Enter("VOXISpecAttrAccess::SetDouble") ? E_FAIL : My().SetElement(Index(iKey), iIndex, iValue);
  }
  HRESULT SetBoolean(const VOXISpecAttrKey* iKey, unsigned char iValue, int iIndex) override
  {
    return Faults::Enter("VOXISpecAttrAccess::SetBoolean") ? E_FAIL : My().SetElement(Index(iKey), iIndex, iValue);
  }
  HRESULT SetString(const VOXISpecAttrKey* iKey, const VOXUnicodeString& iValue, int iIndex) override
  {
    return Faults::Enter("VOXISpecAttrAccess::SetString") ? E_FAIL : My().SetElement(Index(iKey), iIndex, iValue);
  }
  HRESULT SetInteger(const VOXISpecAttrKey* iKey, std::int32_t iValue, int iIndex) override
  {
    return Faults::Enter("VOXISpecAttrAccess::SetInteger") ? E_FAIL : My().SetElement(Index(iKey), iIndex, iValue);
  }

  HRESULT PutInteger(const VOXISpecAttrKey* iKey, std::int32_t iValue, int) override
  {
    if (Faults::Enter("VOXISpecAttrAccess::PutInteger") || My().TypeOf(Index(iKey)) != VOXSpecInteger)
      return E_FAIL;
    return My().SetElement(Index(iKey), 0, iValue);
  }

  HRESULT AddSpecObject(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject, VOXBaseUnknown*, bool,
                        int) override
  {
    Feature* const object = Feature::Of(iObject);
    if (Faults::Enter("VOXISpecAttrAccess::AddSpecObject") || object == nullptr ||
        My().TypeOf(Index(iKey)) != VOXSpecList)
      return E_FAIL;
    return My().SetFeature(Index(iKey), 0, *object);
  }

  HRESULT PlaceSpecObject(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject, int iPosition) override
  {
    Feature* const object = Feature::Of(iObject);
    if (Faults::Enter("VOXISpecAttrAccess::PlaceSpecObject") || object == nullptr)
      return E_FAIL;
    return My().Place(Index(iKey), *object, iPosition);
  }

  HRESULT Reset(const VOXISpecAttrKey* iKey) override
  {
    return Faults::Enter("VOXISpecAttrAccess::Reset") ? E_FAIL : My().Reset(Index(iKey));
  }

  int GetListSize(const VOXISpecAttrKey* iKey) const override
  {
    if (Faults::Enter("VOXISpecAttrAccess::GetListSize") || My().TypeOf(Index(iKey)) != VOXSpecList)
      return 0;
    const StoredValue* const value = My().Find(Index(iKey));
    return value == nullptr ? 0 : std::visit([](const auto& list) { return SizeOf(list); }, *value);
  }

  int GetPosition(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject) const override
  {
    const Feature* const object = Feature::Of(iObject);
    if (Faults::Enter("VOXISpecAttrAccess::GetPosition") || object == nullptr)
      return 0;
    return My().PositionOf(Index(iKey), *object);
  }

  HRESULT SetIntegerList(const VOXISpecAttrKey* iKey, const VOXRawCollint& iValues) override
  {
    if (Faults::Enter("VOXISpecAttrAccess::SetIntegerList"))
      return E_FAIL;
    std::vector<std::int32_t> values;
    for (int i = 1; i <= iValues.Size(); ++i)
      values.push_back(iValues[i]);
    return My().SetIntegerList(Index(iKey), std::move(values));
  }

private:
  Feature& My() const { return *Feature::Of(this); }
  int Index(const VOXISpecAttrKey* iKey) const { return IndexOfKey(My(), iKey); }

  static VOXBaseUnknown_var FaceOf(Feature& iFeature, const char* iInterfaceName)
  {
    VOXBaseUnknown* const face = iInterfaceName == nullptr
                                     ? nullptr
                                     : static_cast<const VOXBaseUnknown&>(iFeature).QueryInterface(iInterfaceName);
    if (face == nullptr)
      return VOXBaseUnknown_var(&iFeature);
    const VOXBaseUnknown_var handle(face);
    face->Release();
    return handle;
  }

  // One element, or the single value; the type's zero when there is none of that type.
  template <class Element>
  Element Read(const VOXISpecAttrKey* iKey, int iIndex) const
  {
    const StoredValue* const value = My().Find(Index(iKey));
    if (value == nullptr || iIndex < 0)
      return Element();
    if (const auto* const single = std::get_if<Element>(value))
      return iIndex == 0 ? *single : Element();
    const auto* const list = std::get_if<StoredList<Element>>(value);
    if (list == nullptr || *list == nullptr || iIndex == 0 || iIndex > static_cast<int>((*list)->size()))
      return Element();
    return (**list)[static_cast<std::size_t>(iIndex - 1)];
  }

  template <class Element>
  static int SizeOf(const StoredList<Element>& iList)
  {
    return iList == nullptr ? 0 : static_cast<int>(iList->size());
  }
  template <class Single>
  static int SizeOf(const Single&)
  {
    return 0;
  }
};

} // namespace

VOXBaseUnknown* NewAttrAccess()
{
  return new AttrAccess;
}

} // namespace voxhost
