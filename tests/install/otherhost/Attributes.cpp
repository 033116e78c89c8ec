// SPDX-License-Identifier: MIT
// What every feature carries: itself as VOXISpecObject, access to its attributes, its alias, its link.
#include "FeatureModeler/VOXSpecPointing.h"
#include "Features.h"
#include "ObjectModeler/VOXIAlias.h"
#include "ObjectModeler/VOXILinkableObject.h"
#include "Runtime.h"

#include <algorithm>

namespace otherhost
{
namespace
{

// A key is an object of its own: it belongs to no component and answers for its one interface itself.
class Key final : public VOXISpecAttrKey
{
public:
  Key(Feature& iFeature, int iIndex) : _Feature(&iFeature), _Index(iIndex) {}

  HRESULT QueryInterface(const IID& iInterface, void** oFace) override
  {
    if (oFace == nullptr || iInterface != IID_VOXISpecAttrKey)
      return VOXBaseUnknown::QueryInterface(iInterface, oFace);
    AddRef();
    *oFace = static_cast<VOXISpecAttrKey*>(this);
    return S_OK;
  }
  using VOXBaseUnknown::QueryInterface;

  VOXUnicodeString GetName() const override
  {
    return My().type->attributes[static_cast<std::size_t>(_Index)].name.c_str();
  }
  int GetType() const override { return My().TypeOf(_Index); }
  int GetElementType() const override { return My().ElementTypeOf(_Index); }

private:
  Feature& My() const { return *static_cast<Feature*>(_Feature.Get()); }

  VOXBaseUnknown_var _Feature;
  int _Index;
};

class Access final : public FeatureFace<VOXISpecAttrAccess>
{
public:
  VOXISpecAttrKey* GetAttrKey(const VOXUnicodeString& iName) const override
  {
    const int index = My().document == nullptr ? -1 : My().IndexOf(iName);
    return index < 0 ? nullptr : new Key(My(), index);
  }

  VOXListValVOXISpecAttrKey_var* ListAttrKeys() const override
  {
    const int size = My().document == nullptr ? 0 : static_cast<int>(My().type->attributes.size());
    auto* const keys = size == 0 ? nullptr : new VOXListValVOXISpecAttrKey_var;
    for (int i = 0; i < size; ++i)
    {
      auto* const key = new Key(My(), i);
      keys->Append(VOXISpecAttrKey_var(key));
      key->Release();
    }
    return keys;
  }

  VOXListValVOXBaseUnknown_var* ListSpecObjects(const VOXISpecAttrKey* iKey, const char* iInterfaceName) const override
  {
    const int index = My().IndexOf(iKey);
    const Value* const value = index < 0 ? nullptr : My().Find(index);
    const int code = value == nullptr ? 0 : My().ElementTypeOf(index);
    if (code != VOXSpecReference && code != VOXSpecComponent)
      return nullptr;
    auto* const objects = new VOXListValVOXBaseUnknown_var;
    for (const VOXBaseUnknown_var& object : value->objects)
    {
      VOXBaseUnknown* const face =
          iInterfaceName == nullptr ? nullptr
                                    : static_cast<const VOXBaseUnknown*>(object.Get())->QueryInterface(iInterfaceName);
      objects->Append(face == nullptr ? object : VOXBaseUnknown_var(face));
      if (face != nullptr)
        face->Release();
    }
    return objects;
  }

  double GetDouble(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    return ReadElement(iKey, iIndex, VOXSpecReal, &Value::reals);
  }
  unsigned char GetBoolean(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    return ReadElement(iKey, iIndex, VOXSpecBoolean, &Value::integers) != 0 ? 1 : 0;
  }
  VOXUnicodeString GetString(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    return ReadElement(iKey, iIndex, VOXSpecString, &Value::texts);
  }
  std::int32_t GetInteger(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    return ReadElement(iKey, iIndex, VOXSpecInteger, &Value::integers);
  }
  VOXISpecObject* GetSpecObject(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    const VOXBaseUnknown_var reference = ReadElement(iKey, iIndex, VOXSpecReference, &Value::objects);
    return NewReference<VOXISpecObject>(!reference ? ReadElement(iKey, iIndex, VOXSpecComponent, &Value::objects)
                                                   : reference);
  }

  HRESULT SetDouble(const VOXISpecAttrKey* iKey, double iValue, int iIndex) override
  {
    return WriteElement(iKey, iIndex, VOXSpecReal, &Value::reals, iValue);
  }
  HRESULT SetBoolean(const VOXISpecAttrKey* iKey, unsigned char iValue, int iIndex) override
  {
    return WriteElement(iKey, iIndex, VOXSpecBoolean, &Value::integers, iValue != 0 ? 1 : 0);
  }
  HRESULT SetString(const VOXISpecAttrKey* iKey, const VOXUnicodeString& iValue, int iIndex) override
  {
    return WriteElement(iKey, iIndex, VOXSpecString, &Value::texts, iValue);
  }
  HRESULT SetInteger(const VOXISpecAttrKey* iKey, std::int32_t iValue, int iIndex) override
  {
    return WriteElement(iKey, iIndex, VOXSpecInteger, &Value::integers, iValue);
  }

  HRESULT PutInteger(const VOXISpecAttrKey* iKey, std::int32_t iValue, int) override
  {
    return GetListKey(iKey) ? E_FAIL : SetInteger(iKey, iValue, 0);
  }

  HRESULT AddSpecObject(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject, VOXBaseUnknown*, bool,
                        int) override
  {
    Feature* const object = Feature::Of(iObject);
    return object == nullptr || !GetListKey(iKey) ? E_FAIL : My().Hold(My().IndexOf(iKey), 0, *object);
  }

  HRESULT PlaceSpecObject(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject, int iPosition) override
  {
    const int from = GetPosition(iKey, iObject);
    if (from == 0 || iPosition < 1)
      return E_FAIL;
    std::vector<VOXBaseUnknown_var>& objects = My().Own(My().IndexOf(iKey)).objects;
    const VOXBaseUnknown_var moved = objects[static_cast<std::size_t>(from) - 1];
    objects.erase(objects.begin() + (from - 1));
    objects.insert(objects.begin() + std::min(iPosition - 1, static_cast<int>(objects.size())), moved);
    My().Changed();
    return S_OK;
  }

  HRESULT Reset(const VOXISpecAttrKey* iKey) override
  {
    const int index = My().IndexOf(iKey);
    if (index < 0)
      return E_FAIL;
    const std::vector<VOXBaseUnknown_var> before = My().Own(index).objects;
    if (My().type->attributes[static_cast<std::size_t>(index)].HoldsComponents())
      for (const VOXBaseUnknown_var& component : before)
        My().document->Remove(*Feature::Of(component));
    My().own[index] = Value{};
    My().Changed();
    return S_OK;
  }

  int GetListSize(const VOXISpecAttrKey* iKey) const override
  {
    const Value* const value = GetListKey(iKey) ? My().Find(My().IndexOf(iKey)) : nullptr;
    if (value == nullptr)
      return 0;
    return static_cast<int>(
        std::max({value->reals.size(), value->integers.size(), value->texts.size(), value->objects.size()}));
  }

  int GetPosition(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject) const override
  {
    const Value* const value = GetListKey(iKey) ? My().Find(My().IndexOf(iKey)) : nullptr;
    for (std::size_t i = 0; value != nullptr && i < value->objects.size(); ++i)
      if (value->objects[i]->IsEqual(iObject))
        return static_cast<int>(i) + 1;
    return 0;
  }

  HRESULT SetIntegerList(const VOXISpecAttrKey* iKey, const VOXRawCollint& iValues) override
  {
    const int index = My().IndexOf(iKey);
    if (index < 0 || (My().TypeOf(index) != VOXSpecInteger && My().ElementTypeOf(index) != VOXSpecInteger))
      return E_FAIL;
    Value value;
    value.isIntegerList = true;
    for (int i = 1; i <= iValues.Size(); ++i)
      value.integers.push_back(iValues[i]);
    My().own[index] = value;
    My().Changed();
    return S_OK;
  }

private:
  bool GetListKey(const VOXISpecAttrKey* iKey) const
  {
    const int index = My().IndexOf(iKey);
    return index >= 0 && My().TypeOf(index) == VOXSpecList;
  }

  // Whether the attribute has values of that type, alone (index 0) or in a list (index from 1, and 0 to append).
  bool Takes(int iAttribute, int iIndex, int iCode) const
  {
    if (iAttribute < 0 || iIndex < 0)
      return false;
    const int type = My().TypeOf(iAttribute);
    return type == VOXSpecList ? My().ElementTypeOf(iAttribute) == iCode : type == iCode && iIndex == 0;
  }

  template <class Element>
  Element ReadElement(const VOXISpecAttrKey* iKey, int iIndex, int iCode, std::vector<Element> Value::*iElements) const
  {
    const int attribute = My().IndexOf(iKey);
    const Value* const value = Takes(attribute, iIndex, iCode) ? My().Find(attribute) : nullptr;
    const bool isList = value != nullptr && My().TypeOf(attribute) == VOXSpecList;
    const auto place = static_cast<std::size_t>(isList ? iIndex - 1 : 0);
    return value == nullptr || place >= (value->*iElements).size() ? Element{} : (value->*iElements)[place];
  }

  template <class Element, class Given>
  HRESULT WriteElement(const VOXISpecAttrKey* iKey, int iIndex, int iCode, std::vector<Element> Value::*iElements,
                       const Given& iValue)
  {
    const int attribute = My().IndexOf(iKey);
    if (!Takes(attribute, iIndex, iCode) || (iIndex > 0 && iIndex > GetListSize(iKey)))
      return E_FAIL;
    std::vector<Element>& elements = My().Own(attribute).*iElements;
    if (iIndex > 0)
      elements[static_cast<std::size_t>(iIndex) - 1] = iValue;
    else if (My().TypeOf(attribute) == VOXSpecList)
      elements.push_back(iValue);
    else
      elements.assign(1, iValue);
    My().Changed();
    return S_OK;
  }
};

class SpecObject final : public FeatureFace<VOXISpecObject>
{
public:
  int IsSubTypeOf(const VOXUnicodeString& iType) const override { return My().IsAKindOf(iType.ConvertToChar()); }

  unsigned char IsUpToDate(const VOXIDomain_var&) const override { return My().isUpToDate ? 1 : 0; }

  HRESULT Update(const VOXIDomain_var&) override
  {
    if (My().document == nullptr)
      return E_FAIL;
    for (Feature* const feature : My().document->All())
      if (feature->father == &My())
        VOXISpecObject_var(feature)->Update(VOXIDomain_var());
    My().isUpToDate = true;
    return S_OK;
  }

  VOXISpecObject* GetStartUp() const override { return NewReference<VOXISpecObject>(My().startUp); }

  HRESULT GetContainer(VOXIContainer_var& oContainer) const override
  {
    if (My().document == nullptr)
      return E_FAIL;
    oContainer = My().document->Container();
    return S_OK;
  }

  HRESULT GetFather(VOXBaseUnknown_var& oFather) const override
  {
    if (My().father == nullptr)
      return E_FAIL;
    oFather = static_cast<VOXBaseUnknown*>(My().father);
    return S_OK;
  }

  VOXBaseUnknown* GetFatherObject() const override
  {
    if (My().father != nullptr)
      My().father->AddRef();
    return My().father;
  }

  VOXISpecObject* Instantiate(const VOXUnicodeString& iName, const VOXIContainer_var& iContainer,
                              VOXBaseUnknown*) override
  {
    const bool canBeMade =
        My().startUp == nullptr && My().document != nullptr && DocumentOf(iContainer) == My().document;
    return canBeMade ? NewReference<VOXISpecObject>(My().document->New(My(), iName)) : nullptr;
  }

  VOXUnicodeString GetName() const override { return My().name; }
  VOXUnicodeString GetIdentifyingString() const override { return My().identifyingString; }
  void SetIdentifyingString(const VOXUnicodeString& iString) override { My().identifyingString = iString; }
  std::int32_t GetTimeStamp() const override { return My().timeStamp; }

  HRESULT GetPointings(VOXListPtrVOXSpecPointing& ioPointings) const override
  {
    if (My().document == nullptr)
      return E_FAIL;
    for (Feature* const feature : My().document->All())
      for (const auto& [index, value] : feature->own)
        for (const VOXBaseUnknown_var& object : value.objects)
        {
          if (object.Get() != &My())
            continue;
          auto* const key = new Key(*feature, index);
          ioPointings.Append(new VOXSpecPointing(VOXISpecAttrAccess_var(feature), VOXISpecAttrKey_var(key)));
          key->Release();
        }
    return S_OK;
  }

  HRESULT RemoveComponent(const VOXBaseUnknown_var& iComponent, int) override
  {
    Feature* const component = Feature::Of(iComponent);
    if (component == nullptr || component->father != &My())
      return E_FAIL;
    My().document->Remove(*component);
    return S_OK;
  }

  HRESULT HandOver(const VOXUnicodeString& iFromAttribute, const VOXISpecObject_var& iNewFather,
                   const VOXUnicodeString& iToAttribute) override
  {
    Feature* const newFather = Feature::Of(iNewFather);
    const int to = newFather == nullptr ? -1 : newFather->IndexOf(iToAttribute);
    if (My().father == nullptr || to < 0)
      return E_FAIL;
    const std::vector<Feature*> held = My().father->Features(iFromAttribute.ConvertToChar());
    return std::find(held.begin(), held.end(), &My()) == held.end() ? E_FAIL : newFather->Hold(to, 0, My());
  }

  VOXISpecObject* GetRelatedObject() const override { return GetStartUp(); }

  VOXBaseUnknown* GetModelFactory() const override
  {
    Feature* feature = &My();
    while (feature != nullptr && (feature->type->roles & kModelFactory) == 0)
      feature = feature->father;
    return feature;
  }

  HRESULT Unsubscribe(int) override
  {
    My().isSubscribed = false;
    return S_OK;
  }
};

class Alias final : public FeatureFace<VOXIAlias>
{
public:
  VOXUnicodeString GetAlias() const override { return My().alias; }
  HRESULT SetAlias(const VOXUnicodeString& iAlias) override
  {
    My().alias = iAlias;
    return S_OK;
  }
};

class Link final : public FeatureFace<VOXILinkableObject>
{
public:
  void* GetLinkValue() override { return My().document == nullptr ? nullptr : &My().identifier; }
};

} // namespace

void DeclareRootType()
{
  if (VOXDeclareLateType(kRootType, nullptr) != S_OK)
    return;
  VOXExtendLateType<VOXISpecObject, SpecObject>(kRootType);
  VOXExtendLateType<VOXISpecAttrAccess, Access>(kRootType);
  VOXExtendLateType<VOXIAlias, Alias>(kRootType);
  VOXExtendLateType<VOXILinkableObject, Link>(kRootType);
}

} // namespace otherhost
