// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/Restoration.h"

#include "host/FeatureModeler/Rarities.h"

#include <algorithm>

namespace voxhost
{
namespace
{

// Type code that stands for a kind of stored value; lists are told by the codes of their elements and 100.
int CodeOf(const StoredValue& iValue)
{
  constexpr int kCodes[] = {VOXSpecReal,         VOXSpecBoolean,        VOXSpecInteger,       VOXSpecString,
                            VOXSpecReference,    VOXSpecReal + 100,     VOXSpecBoolean + 100, VOXSpecInteger + 100,
                            VOXSpecString + 100, VOXSpecReference + 100};
  return kCodes[iValue.index()];
}

int CodeOf(const Attribute& iAttribute)
{
  const int code = iAttribute.type == VOXSpecList ? iAttribute.elementType + 100 : iAttribute.type;
  if (iAttribute.HoldsComponents())
    return iAttribute.type == VOXSpecList ? VOXSpecReference + 100 : VOXSpecReference;
  return code;
}

} // namespace

Restoration::Restoration(Document& ioDocument, std::uint32_t iLastIdentifier) : _Document(ioDocument)
{
  if (_Document._ById.size() < iLastIdentifier)
    _Document._ById.resize(iLastIdentifier, nullptr);
  _Document.MainContainer()._Members.reserve(iLastIdentifier);
}

Feature* Restoration::Make(std::uint32_t iIdentifier, Feature& iStartUp, const VOXUnicodeString& iName,
                           Container& iContainer, const FeatureState& iState)
{
  const bool isFree =
      iIdentifier >= 1 && iIdentifier <= _Document._ById.size() && _Document._ById[iIdentifier - 1] == nullptr;
  Feature* const made = isFree ? _Document.Make(iStartUp.Type(), &iStartUp, iName, iContainer, iIdentifier) : nullptr;
  if (made == nullptr)
    return nullptr;
  ++_Document._NumberOfFeatures;
  made->_TimeStamp = iState.timeStamp;
  made->SetFlag(Feature::kOutOfDate, iState.outOfDate);
  made->SetFlag(Feature::kMarked, iState.marked);
  made->SetFlag(Feature::kUpdateFails, iState.updateFails);
  made->SetFlag(Feature::kInactive, !iState.active);
  made->SetFlag(Feature::kSubscribed, iState.subscribed);
  made->SetExplicitState(iState.explicitState);
  if (iState.identifyingString)
    made->Rare().identifyingString = iState.identifyingString;
  if (iState.physicalType)
    made->Rare().physicalType = iState.physicalType;
  return made;
}

bool Restoration::Fits(const Feature& iFeature, int iAttribute, const StoredValue& iValue) const
{
  const Attribute* const attribute = iFeature.Declared(iAttribute);
  if (attribute == nullptr || iFeature.IsLocal(iAttribute))
    return false;
  const bool madeAList = attribute->type == VOXSpecInteger && CodeOf(iValue) == VOXSpecInteger + 100;
  if (!madeAList && CodeOf(iValue) != CodeOf(*attribute))
    return false;
  const auto isOfHere = [this](const Feature* iOther)
  { return iOther != nullptr && iOther->OwningDocument() == &_Document && !iOther->IsStartUp(); };
  const auto isFree = [&](const Feature* iOther)
  { return isOfHere(iOther) && (!attribute->HoldsComponents() || iOther->_Father == nullptr); };
  if (const auto* const single = std::get_if<Feature*>(&iValue))
    return *single == nullptr || isFree(*single);
  const auto* const list = std::get_if<StoredList<Feature*>>(&iValue);
  return list == nullptr || *list == nullptr || std::all_of((*list)->begin(), (*list)->end(), isFree);
}

bool Restoration::Put(Feature& ioFeature, int iAttribute, StoredValue iValue)
{
  if (!Fits(ioFeature, iAttribute, iValue))
    return false;
  ioFeature.MakeLocal(iAttribute, std::move(iValue));
  const Attribute& attribute = *ioFeature.Declared(iAttribute);
  if (attribute.RefersToFeatures())
    for (Feature* const target : ioFeature.Features(iAttribute))
      ioFeature.NoteReference(iAttribute, *target);
  if (attribute.HoldsComponents())
    for (Feature* const component : ioFeature.Features(iAttribute))
    {
      component->_Father = &ioFeature;
      component->_HoldingAttribute = static_cast<std::uint16_t>(iAttribute);
    }
  return true;
}

std::uint32_t Restoration::NamesGiven(const Feature& iStartUp)
{
  const auto& given = iStartUp.OwningDocument()->_NamesGiven;
  const auto found = given.find(&iStartUp);
  return found == given.end() ? 0 : found->second;
}

FeatureState Restoration::StateOf(const Feature& iFeature)
{
  FeatureState state;
  state.timeStamp = iFeature._TimeStamp;
  state.outOfDate = iFeature.Flag(Feature::kOutOfDate);
  state.marked = iFeature.Flag(Feature::kMarked);
  state.updateFails = iFeature.Flag(Feature::kUpdateFails);
  state.active = iFeature.IsActive();
  state.subscribed = iFeature.IsSubscribed();
  state.explicitState = iFeature.ExplicitState();
  if (iFeature._Rarities != nullptr)
  {
    state.identifyingString = iFeature._Rarities->identifyingString;
    state.physicalType = iFeature._Rarities->physicalType;
  }
  return state;
}

std::uint32_t Restoration::LastIdentifier(const Document& iDocument)
{
  const auto isInstance = [](const Feature* iFeature) { return iFeature != nullptr && !iFeature->IsStartUp(); };
  const auto last = std::find_if(iDocument._ById.rbegin(), iDocument._ById.rend(), isInstance);
  return last == iDocument._ById.rend() ? 0 : (*last)->Identifier();
}

} // namespace voxhost
