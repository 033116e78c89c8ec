// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/Document.h"
#include "host/FeatureModeler/Rarities.h"

#include <algorithm>

namespace voxhost
{

std::vector<Feature*>& Feature::MutableList(int iAttribute)
{
  auto& list = std::get<StoredList<Feature*>>(LocalCopy(iAttribute));
  if (list == nullptr)
    list = std::make_unique<std::vector<Feature*>>();
  return *list;
}

void Feature::NoteReference(int iAttribute, Feature& iTarget)
{
  if (iTarget._Referrers == nullptr)
    iTarget._Referrers = std::make_unique<ReferrerSet>();
  iTarget._Referrers->Add(*this, iAttribute);
}

void Feature::ForgetReference(int iAttribute, Feature& iTarget)
{
  if (iTarget._Referrers == nullptr)
    return;
  iTarget._Referrers->Remove(*this, iAttribute);
  if (iTarget._Referrers->Empty())
    iTarget._Referrers.reset();
}

void Feature::ForgetReferencesOf(int iAttribute)
{
  if (IsLocal(iAttribute))
    for (Feature* const target : Features(iAttribute))
      ForgetReference(iAttribute, *target);
}

HRESULT Feature::SetFeature(int iAttribute, int iIndex, Feature& iFeature)
{
  const Attribute* const attribute = Declared(iAttribute);
  if (attribute == nullptr || iFeature.IsRemoved() || iFeature._Document != _Document || iIndex < 0)
    return E_FAIL;
  const bool isList = attribute->type == VOXSpecList;
  const int size = static_cast<int>(Features(iAttribute).size());
  if (iIndex > (isList ? size : 0))
    return E_FAIL;
  if (attribute->RefersToFeatures())
    return SetReference(iAttribute, iIndex, iFeature);
  return attribute->HoldsComponents() ? SetComponent(iAttribute, iIndex, iFeature) : E_FAIL;
}

HRESULT Feature::SetReference(int iAttribute, int iIndex, Feature& iFeature)
{
  if (Declared(iAttribute)->type != VOXSpecList)
  {
    ForgetReferencesOf(iAttribute);
    MakeLocal(iAttribute, &iFeature);
  }
  else if (iIndex == 0)
    MutableList(iAttribute).push_back(&iFeature);
  else
  {
    Feature*& element = MutableList(iAttribute)[static_cast<std::size_t>(iIndex - 1)];
    ForgetReference(iAttribute, *element);
    element = &iFeature;
  }
  NoteReference(iAttribute, iFeature);
  Changed();
  return S_OK;
}

HRESULT Feature::SetComponent(int iAttribute, int iIndex, Feature& iFeature)
{
  const auto held = Features(iAttribute);
  if (&iFeature == this || IsBelow(iFeature))
    return E_FAIL;
  const bool isList = Declared(iAttribute)->type == VOXSpecList;
  Feature* const replaced = isList ? (iIndex == 0 ? nullptr : held[static_cast<std::size_t>(iIndex - 1)])
                                   : (held.empty() ? nullptr : held[0]);
  if (replaced == &iFeature)
    return S_OK;
  if (replaced != nullptr)
    replaced->_Father = nullptr;
  if (!isList)
  {
    iFeature.LeaveFather();
    MakeLocal(iAttribute, &iFeature);
  }
  else if (replaced == nullptr)
  {
    iFeature.LeaveFather();
    MutableList(iAttribute).push_back(&iFeature);
  }
  else
  {
    iFeature.LeaveFather(); // may shorten this very list
    auto& list = MutableList(iAttribute);
    *std::find(list.begin(), list.end(), replaced) = &iFeature;
  }
  iFeature._Father = this;
  iFeature._HoldingAttribute = static_cast<std::uint16_t>(iAttribute);
  Changed();
  return S_OK;
}

bool Feature::IsBelow(const Feature& iOther) const
{
  for (const Feature* feature = _Father; feature != nullptr; feature = feature->_Father)
    if (feature == &iOther)
      return true;
  return false;
}

void Feature::LeaveFather()
{
  if (_Father == nullptr)
    return;
  Feature& father = *_Father;
  _Father = nullptr;
  father.TakeOut(_HoldingAttribute, *this);
}

void Feature::TakeOut(int iAttribute, const Feature& iFeature)
{
  StoredValue* const value = MutableLocal(iAttribute);
  if (value == nullptr)
    return;
  if (auto* const single = std::get_if<Feature*>(value))
    *single = *single == &iFeature ? nullptr : *single;
  else if (auto* const list = std::get_if<StoredList<Feature*>>(value); list != nullptr && *list != nullptr)
  {
    if (!Declared(iAttribute)->HoldsComponents())
      std::erase(**list, &iFeature);
    else if (const auto held = std::find((*list)->begin(), (*list)->end(), &iFeature); held != (*list)->end())
      (*list)->erase(held); // once at most
  }
  Changed();
}

HRESULT Feature::Place(int iAttribute, Feature& iFeature, int iPosition)
{
  const int present = PositionOf(iAttribute, iFeature);
  if (iPosition < 1 || present == 0)
    return E_FAIL;
  auto& list = MutableList(iAttribute);
  list.erase(list.begin() + (present - 1));
  const auto place = std::min(static_cast<std::size_t>(iPosition - 1), list.size());
  list.insert(list.begin() + static_cast<std::ptrdiff_t>(place), &iFeature);
  Changed();
  return S_OK;
}

int Feature::PositionOf(int iAttribute, const Feature& iFeature) const
{
  if (TypeOf(iAttribute) != VOXSpecList)
    return 0;
  const auto list = Features(iAttribute);
  const auto found = std::find(list.begin(), list.end(), &iFeature);
  return found == list.end() ? 0 : static_cast<int>(found - list.begin()) + 1;
}

void Feature::InstantiateComponents()
{
  const auto& attributes = _Type->Attributes();
  for (std::size_t i = 0; i < attributes.size(); ++i)
  {
    const int index = static_cast<int>(i);
    if (!attributes[i].HoldsComponents() || _StartUp == nullptr)
      continue;
    const auto held = _StartUp->Features(index);
    const std::vector<Feature*> prototypes(held.begin(), held.end());
    for (Feature* const prototype : prototypes)
      if (Feature* const made = _Document->New(*prototype, prototype->Name(), _Container))
        SetComponent(index, 0, *made);
  }
}

void Feature::Detach()
{
  _Document = nullptr;
  _Father = nullptr;
  _Container = nullptr;
  _Locals.reset();
  _Referrers.reset();
  _Rarities.reset();
}

} // namespace voxhost
