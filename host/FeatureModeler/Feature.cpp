// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/Feature.h"

#include "host/FeatureModeler/Document.h"
#include "host/FeatureModeler/Rarities.h"
#include "host/KnowledgeParameters/Parameter.h"

#include <algorithm>
#include <typeinfo>

namespace voxhost
{

Feature::Feature(Document& iDocument, const FeatureType& iType, Feature* iStartUp, const VOXUnicodeString& iName)
    : _Type(&iType),
      _Document(&iDocument),
      _StartUp(iStartUp),
      _Name(iName)
{
  if (iStartUp != nullptr)
    iStartUp->AddRef();
}

Feature::~Feature()
{
  if (_StartUp != nullptr)
    _StartUp->Release();
}

Feature* Feature::Of(const VOXBaseUnknown* iFace)
{
  VOXBaseUnknown* const root = iFace == nullptr ? nullptr : iFace->GetImpl();
  return root != nullptr && typeid(*root) == typeid(Feature) ? static_cast<Feature*>(root) : nullptr;
}

void Feature::SetName(const VOXUnicodeString& iName)
{
  _Name = iName;
  Changed();
}

int Feature::TypeOf(int iAttribute) const
{
  const Attribute* const attribute = Declared(iAttribute);
  if (attribute == nullptr)
    return 0;
  const StoredValue* const value = attribute->type == VOXSpecInteger ? Find(iAttribute) : nullptr;
  const bool wasMadeAList = value != nullptr && std::holds_alternative<StoredList<std::int32_t>>(*value);
  return wasMadeAList ? static_cast<int>(VOXSpecList) : attribute->type;
}

int Feature::ElementTypeOf(int iAttribute) const
{
  const Attribute* const attribute = Declared(iAttribute);
  if (attribute == nullptr || TypeOf(iAttribute) != VOXSpecList)
    return 0;
  return attribute->type == VOXSpecList ? attribute->elementType : attribute->type;
}

const Attribute* Feature::Declared(int iAttribute) const
{
  if (IsRemoved() || iAttribute < 0 || iAttribute >= static_cast<int>(_Type->Attributes().size()))
    return nullptr;
  return &_Type->Attributes()[static_cast<std::size_t>(iAttribute)];
}

std::vector<Referrer> Feature::Referrers() const
{
  std::vector<Referrer> referrers;
  if (_Referrers != nullptr)
    _Referrers->Visit([&](const Referrer& referrer) { referrers.push_back(referrer); });
  std::sort(referrers.begin(), referrers.end(),
            [](const Referrer& left, const Referrer& right)
            { return std::pair(left.identifier, left.attribute) < std::pair(right.identifier, right.attribute); });
  return referrers;
}

void Feature::SetActive(bool iActive)
{
  SetFlag(kInactive, !iActive);
  Changed();
}

Feature::Rarities& Feature::Rare()
{
  if (_Rarities == nullptr)
    _Rarities = std::make_unique<Rarities>();
  return *_Rarities;
}

std::string Feature::PhysicalType() const
{
  return _Rarities != nullptr && _Rarities->physicalType ? *_Rarities->physicalType : _Type->PhysicalType();
}

void Feature::SetPhysicalType(const std::string& iName)
{
  if (iName.empty())
    Rare().physicalType.reset();
  else
    Rare().physicalType = iName;
  Changed();
}

VOXUnicodeString Feature::IdentifyingString() const
{
  if (_Rarities != nullptr && _Rarities->identifyingString)
    return VOXUnicodeString(_Rarities->identifyingString->c_str());
  return _Name;
}

void Feature::SetIdentifyingString(const std::string& iString)
{
  Rare().identifyingString = iString;
  Changed();
}

void Feature::SetExplicitModel(VOXAnalysisExplicitModel* iModel)
{
  Rare().explicitModel = iModel;
}

VOXAnalysisExplicitModel* Feature::ExplicitModel() const
{
  for (const Feature* feature = this; feature != nullptr; feature = feature->_Father)
    if (feature->_Rarities != nullptr && feature->_Rarities->explicitModel != nullptr)
      return feature->_Rarities->explicitModel;
  return _Document == nullptr ? nullptr : _Document->ExplicitModel();
}

VOXBaseUnknown* Feature::ComponentValue()
{
  if (_Rarities != nullptr && !!_Rarities->componentValue)
    return _Rarities->componentValue;
  const int attribute = IndexOf("Value");
  if (IsRemoved() || !_Type->Parameter().has_value() || attribute < 0)
    return nullptr;
  VOXICkeParm* const parameter = NewParameter(*_Type->Parameter(), *this, attribute);
  if (parameter == nullptr)
    return nullptr;
  Rare().componentValue = parameter;
  parameter->Release();
  return Rare().componentValue;
}

void Feature::SetComponentValue(VOXBaseUnknown* iValue)
{
  Rare().componentValue = iValue;
  Changed();
}

Feature* Feature::NearestWith(FeatureFaces iFace) const
{
  for (const Feature* feature = this; feature != nullptr; feature = feature->_Father)
    if (feature->_Type->Has(iFace))
      return const_cast<Feature*>(feature);
  return nullptr;
}

std::vector<std::int32_t> Feature::ExplicitTags() const
{
  const StoredValue* const value = Find(_Type->TagAttribute());
  std::vector<std::int32_t> tags;
  if (value == nullptr)
    return tags;
  if (const auto* const single = std::get_if<std::int32_t>(value))
    tags.push_back(*single);
  else if (const auto* const list = std::get_if<StoredList<std::int32_t>>(value); list != nullptr && *list != nullptr)
    tags = **list;
  std::erase(tags, 0);
  return tags;
}

std::int32_t Feature::FirstExplicitTag() const
{
  const StoredValue* const value = Find(_Type->TagAttribute());
  if (value == nullptr)
    return 0;
  if (const auto* const single = std::get_if<std::int32_t>(value))
    return *single;
  const auto* const list = std::get_if<StoredList<std::int32_t>>(value);
  if (list == nullptr || *list == nullptr)
    return 0;
  const auto first = std::find_if((*list)->begin(), (*list)->end(), [](std::int32_t tag) { return tag != 0; });
  return first == (*list)->end() ? 0 : *first;
}

void Feature::Changed()
{
  if (_Document != nullptr)
    _Document->FeatureChanged(*this);
}

} // namespace voxhost
