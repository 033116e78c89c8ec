// SPDX-License-Identifier: MIT
// Documents and the features in them.
#include "Features.h"

#include "FeatureModeler/VOXSpecServices.h"
#include "ObjectModeler/VOXSequence.h"
#include "Runtime.h"

#include <algorithm>

namespace otherhost
{
namespace
{

constexpr const char* kContainerType = "OtherContainer";

class ContainerObject final : public VOXBaseUnknown
{
public:
  explicit ContainerObject(Document& iDocument) : document(&iDocument) {}
  Document* document; // null once it is gone
};

class ContainerFace final : public VOXIContainer
{
public:
  int ListMembers(const char* iInterfaceName, _SEQUENCE_VOXBaseUnknown_ptr& oMembers) const override
  {
    oMembers.Empty();
    const Document* const document = DocumentOf(this);
    if (document == nullptr)
      return 0;
    for (const Feature* const feature : document->All())
    {
      VOXBaseUnknown* const face = feature->startUp == nullptr
                                       ? nullptr
                                       : static_cast<const VOXBaseUnknown*>(feature)->QueryInterface(iInterfaceName);
      if (face != nullptr)
        oMembers.Append(face);
    }
    return oMembers.Length();
  }
};

void Erase(std::vector<VOXBaseUnknown_var>& ioObjects, const Feature* iFeature)
{
  const auto isTheFeature = [&](const VOXBaseUnknown_var& iObject) { return iObject.Get() == iFeature; };
  ioObjects.erase(std::remove_if(ioObjects.begin(), ioObjects.end(), isTheFeature), ioObjects.end());
}

} // namespace

int FeatureType::IndexOf(const std::string& iAttribute) const
{
  for (std::size_t i = 0; i < attributes.size(); ++i)
    if (attributes[i].name == iAttribute)
      return static_cast<int>(i);
  return -1;
}

Feature::Feature(Document& iDocument, const FeatureType& iType, Feature* iStartUp, const VOXUnicodeString& iName)
    : document(&iDocument),
      type(&iType),
      startUp(iStartUp),
      name(iName),
      identifyingString(iName),
      identifier(iDocument.lastIdentifier += 7)
{
  VOXComponentRuntime::Implement(this, iType.name.c_str());
}

Feature* Feature::Of(const VOXBaseUnknown* iFace)
{
  return iFace == nullptr ? nullptr : dynamic_cast<Feature*>(iFace->GetImpl());
}

int Feature::IndexOf(const VOXUnicodeString& iAttribute) const
{
  return type->IndexOf(iAttribute.ConvertToChar());
}

int Feature::IndexOf(const VOXISpecAttrKey* iKey) const
{
  return iKey == nullptr || document == nullptr ? -1 : IndexOf(iKey->GetName());
}

int Feature::TypeOf(int iIndex) const
{
  const Value* const value = Find(iIndex);
  return value != nullptr && value->isIntegerList ? VOXSpecList
                                                  : type->attributes[static_cast<std::size_t>(iIndex)].type;
}

int Feature::ElementTypeOf(int iIndex) const
{
  const Value* const value = Find(iIndex);
  return value != nullptr && value->isIntegerList ? VOXSpecInteger
                                                  : type->attributes[static_cast<std::size_t>(iIndex)].elementType;
}

// Components are not inherited: an instance was made with its own.
const Value* Feature::Find(int iIndex) const
{
  const auto found = own.find(iIndex);
  if (found != own.end())
    return &found->second;
  const bool inherits = startUp != nullptr && !type->attributes[static_cast<std::size_t>(iIndex)].HoldsComponents();
  return inherits ? startUp->Find(iIndex) : nullptr;
}

Value& Feature::Own(int iIndex)
{
  const Value* const found = Find(iIndex);
  if (!IsOwn(iIndex))
    own[iIndex] = found == nullptr ? Value{} : *found;
  return own[iIndex];
}

std::vector<Feature*> Feature::Features(const char* iAttribute) const
{
  std::vector<Feature*> features;
  const int index = type->IndexOf(iAttribute);
  const Value* const value = document == nullptr || index < 0 ? nullptr : Find(index);
  if (value != nullptr)
    for (const VOXBaseUnknown_var& object : value->objects)
      features.push_back(Of(object));
  return features;
}

std::vector<std::int32_t> Feature::Integers(const char* iAttribute) const
{
  const int index = type->IndexOf(iAttribute);
  const Value* const value = document == nullptr || index < 0 ? nullptr : Find(index);
  return value == nullptr ? std::vector<std::int32_t>() : value->integers;
}

// Puts a feature into an attribute of features: in place of an element (from 1), or (0) as the single one or at the end.
HRESULT Feature::Hold(int iIndex, int iPosition, Feature& iObject)
{
  const int code = TypeOf(iIndex) == VOXSpecList ? ElementTypeOf(iIndex) : TypeOf(iIndex);
  const Value* const before = Find(iIndex);
  const auto size = before == nullptr ? 0 : static_cast<int>(before->objects.size());
  if ((code != VOXSpecReference && code != VOXSpecComponent) || iPosition < 0 || iPosition > size)
    return E_FAIL;
  if (code == VOXSpecComponent)
    iObject.Leave();
  std::vector<VOXBaseUnknown_var>& objects = Own(iIndex).objects;
  const VOXBaseUnknown_var held(&iObject);
  if (iPosition > 0)
    objects[static_cast<std::size_t>(iPosition) - 1] = held;
  else if (TypeOf(iIndex) == VOXSpecList)
    objects.push_back(held);
  else
    objects.assign(1, held);
  if (code == VOXSpecComponent)
    iObject.father = this;
  Changed();
  return S_OK;
}

void Feature::Leave()
{
  if (father == nullptr)
    return;
  for (auto& [index, value] : father->own)
    if (father->type->attributes[static_cast<std::size_t>(index)].HoldsComponents())
      Erase(value.objects, this);
  father->Changed();
  father = nullptr;
}

void Feature::Changed()
{
  if (document != nullptr)
    timeStamp = ++document->clock;
}

Document::Document(Model& iModel) : model(iModel)
{
  DeclareRootType();
  VOXDeclareLateType(kContainerType, nullptr);
  VOXExtendLateType<VOXIContainer, ContainerFace>(kContainerType);
  _Container = new ContainerObject(*this);
  VOXComponentRuntime::Implement(_Container, kContainerType);
}

Document::~Document()
{
  while (!_Features.empty())
    Remove(*_Features.back());
  static_cast<ContainerObject*>(_Container)->document = nullptr;
  _Container->Release();
}

void Document::Declare(FeatureType iType)
{
  if (const FeatureType* const base = iType.base.empty() ? nullptr : _Types.at(iType.base).get())
  {
    iType.attributes.insert(iType.attributes.begin(), base->attributes.begin(), base->attributes.end());
    if (iType.physicalType.empty())
      iType.physicalType = base->physicalType;
  }
  // Late types are the process's: what another document said of one stands.
  if (VOXDeclareLateType(iType.name.c_str(), iType.base.empty() ? kRootType : iType.base.c_str()) == S_OK)
    DeclareRoles(iType);
  if (!iType.base.empty())
    iType.roles |= _Types.at(iType.base)->roles;
  _Types[iType.name] = std::make_unique<FeatureType>(iType);
}

Feature* Document::Keep(Feature* iFeature)
{
  iFeature->Changed();
  return _Features.emplace_back(iFeature);
}

Feature* Document::StartUp(const std::string& iType)
{
  const auto type = _Types.find(iType);
  if (type == _Types.end())
    return nullptr;
  Feature*& startUp = _StartUps[iType];
  if (startUp == nullptr)
    startUp = NewStartUp(*type->second, iType.c_str());
  return startUp;
}

Feature* Document::NewStartUp(const FeatureType& iType, const VOXUnicodeString& iName)
{
  Feature* const made = Keep(new Feature(*this, iType, nullptr, iName));
  for (std::size_t i = 0; i < iType.attributes.size(); ++i)
    for (const Part& part : iType.attributes[i].parts)
      made->Hold(static_cast<int>(i), 0, *NewStartUp(*_Types.at(part.type), part.name.c_str()));
  return made;
}

Feature* Document::New(const std::string& iType, const VOXUnicodeString& iName)
{
  Feature* const startUp = StartUp(iType);
  return startUp == nullptr ? nullptr : New(*startUp, iName);
}

Feature* Document::New(Feature& iStartUp, const VOXUnicodeString& iName)
{
  const VOXUnicodeString chosen((iStartUp.type->name + "." + std::to_string(_Features.size())).c_str());
  Feature* const made = Keep(new Feature(*this, *iStartUp.type, &iStartUp, iName == "" ? chosen : iName));
  for (const auto& [index, value] : iStartUp.own)
    for (const VOXBaseUnknown_var& part : value.objects)
      if (made->type->attributes[static_cast<std::size_t>(index)].HoldsComponents())
        made->Hold(index, 0, *New(*Feature::Of(part), Feature::Of(part)->name));
  return made;
}

void Document::Remove(Feature& iFeature)
{
  const VOXBaseUnknown_var stays(&iFeature);
  for (Feature* const feature : std::vector<Feature*>(_Features))
    if (feature->father == &iFeature)
      Remove(*feature);
  iFeature.Leave();
  _Features.erase(std::remove(_Features.begin(), _Features.end(), &iFeature), _Features.end());
  for (Feature* const feature : _Features)
  {
    for (auto& [index, value] : feature->own)
      Erase(value.objects, &iFeature);
    if (feature->startUp == &iFeature)
      feature->startUp = nullptr;
  }
  iFeature.own.clear();
  iFeature.startUp = nullptr;
  iFeature.document = nullptr;
  iFeature.Release();
}

Document* DocumentOf(const VOXBaseUnknown* iContainer)
{
  const auto* const container = iContainer == nullptr ? nullptr : dynamic_cast<ContainerObject*>(iContainer->GetImpl());
  return container == nullptr ? nullptr : container->document;
}

} // namespace otherhost

using otherhost::Document;
using otherhost::Feature;

VOXBaseUnknown* FindStartUp(const char* iInterfaceName, const VOXUnicodeString& iName,
                            const VOXUnicodeString& iAlternateName, const VOXIContainer_var& iContainer)
{
  Document* const document = otherhost::DocumentOf(iContainer);
  if (document == nullptr)
    return nullptr;
  Feature* found = document->StartUp(iName.ConvertToChar());
  if (found == nullptr)
    found = document->StartUp(iAlternateName.ConvertToChar());
  return found == nullptr ? nullptr : static_cast<const VOXBaseUnknown*>(found)->QueryInterface(iInterfaceName);
}

HRESULT VOXSpecIsLocalValue(VOXISpecObject* iInstance, VOXISpecAttrKey* iKey)
{
  const Feature* const feature = Feature::Of(iInstance);
  const int index = feature == nullptr ? -1 : feature->IndexOf(iKey);
  if (index < 0)
    return E_INVALIDARG;
  return feature->IsOwn(index) ? 0 : 1;
}

unsigned int VOXGetUniqueIdentifier(const VOXISpecObject_var& iFeature)
{
  const Feature* const feature = Feature::Of(iFeature);
  return feature == nullptr ? 0 : feature->identifier;
}

HRESULT VOXSpecPubServices::UpgradeSpecObjectAttribute(VOXISpecAttrAccess* iAccess, const VOXISpecAttrKey* iKey,
                                                       const VOXISpecObject_var& iObject, int iPosition)
{
  Feature* const feature = Feature::Of(iAccess);
  Feature* const object = Feature::Of(iObject);
  const int index = feature == nullptr || object == nullptr ? -1 : feature->IndexOf(iKey);
  return index < 0 ? E_FAIL : feature->Hold(index, iPosition, *object);
}

HRESULT VOXSpecObjServices::MarkForRebuild(VOXISpecObject_var& ioFeature, int iMark)
{
  Feature* const feature = Feature::Of(ioFeature);
  if (feature == nullptr)
    return E_FAIL;
  feature->isUpToDate = iMark == 0;
  return S_OK;
}
