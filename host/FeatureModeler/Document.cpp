// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/Document.h"

#include "host/FeatureModeler/Rarities.h"

#include <string>

namespace voxhost
{

Document::Document(std::shared_ptr<const TypeCatalogue> iTypes) : _Types(std::move(iTypes))
{
  NewContainer("StartUps");
  NewContainer("Features");
}

Document::~Document()
{
  for (Feature* const feature : _ById)
    if (feature != nullptr)
      feature->Detach();
  for (Feature* const feature : _ById)
    if (feature != nullptr)
      feature->Release();
  for (Container* const container : _Containers)
  {
    container->_Document = nullptr;
    container->_Members.clear();
    container->_NumberOfMembers = 0;
    container->Release();
  }
}

Container* Document::NewContainer(const std::string& iName, const char* iLateType, bool iHolds)
{
  Container* const container = Container::Make(*this, iName, iLateType, iHolds);
  if (container != nullptr)
    _Containers.push_back(container);
  return container;
}

Feature* Document::StartUp(std::string_view iType)
{
  const FeatureType* const type = _Types->Find(iType);
  if (type == nullptr || type->IsAbstract())
    return nullptr;
  const auto known = _StartUps.find(type);
  if (known != _StartUps.end())
    return known->second;
  Feature* const startUp = MakeStartUp(*type, VOXUnicodeString(type->Name().c_str()));
  if (startUp != nullptr)
    _StartUps.emplace(type, startUp);
  return startUp;
}

Feature* Document::New(std::string_view iType, const VOXUnicodeString& iName, Container* iContainer,
                       Components iComponents)
{
  Feature* const startUp = StartUp(iType);
  return startUp == nullptr ? nullptr : New(*startUp, iName, iContainer, iComponents);
}

Feature* Document::New(Feature& iStartUp, const VOXUnicodeString& iName, Container* iContainer, Components iComponents)
{
  Container& container = iContainer == nullptr ? MainContainer() : *iContainer;
  if (!iStartUp.IsStartUp() || iStartUp._Document != this || container._Document != this)
    return nullptr;
  Feature* const made = Make(iStartUp.Type(), &iStartUp, iName == "" ? NameFor(iStartUp) : iName, container);
  if (made == nullptr)
    return nullptr;
  ++_NumberOfFeatures;
  if (iComponents == Components::kAsStartUp)
    made->InstantiateComponents();
  return made;
}

Feature* Document::Make(const FeatureType& iType, Feature* iStartUp, const VOXUnicodeString& iName,
                        Container& iContainer, std::uint32_t iIdentifier)
{
  auto* const made = new Feature(*this, iType, iStartUp, iName);
  if (made == nullptr)
    return nullptr;
  VOXComponentRuntime::Implement(made, made->_Record, iType.Name().c_str());
  if (iIdentifier == 0)
    _ById.push_back(made);
  else
    _ById[iIdentifier - 1] = made;
  made->_Identifier = iIdentifier == 0 ? static_cast<std::uint32_t>(_ById.size()) : iIdentifier;
  made->_TimeStamp = ++_Clock;
  iContainer.Add(*made);
  return made;
}

Feature* Document::MakeStartUp(const FeatureType& iType, const VOXUnicodeString& iName)
{
  Feature* const startUp = Make(iType, nullptr, iName, StartUpContainer());
  if (startUp == nullptr)
    return nullptr;
  startUp->SetFlag(Feature::kIsStartUp, true);
  if (FillStartUp(*startUp))
    return startUp;
  Remove(*startUp);
  return nullptr;
}

bool Document::FillStartUp(Feature& ioStartUp)
{
  const auto& attributes = ioStartUp.Type().Attributes();
  for (std::size_t i = 0; i < attributes.size(); ++i)
  {
    const int index = static_cast<int>(i);
    if (!std::holds_alternative<std::monostate>(attributes[i].value) &&
        FAILED(ioStartUp.Set(index, attributes[i].value)))
      return false;
    if (!FillComponents(ioStartUp, index))
      return false;
  }
  return true;
}

bool Document::FillComponents(Feature& ioStartUp, int iAttribute)
{
  for (const ComponentDeclaration& declared :
       ioStartUp.Type().Attributes()[static_cast<std::size_t>(iAttribute)].components)
  {
    const FeatureType* const type = _Types->Find(declared.type);
    Feature* const component = type == nullptr ? nullptr : MakeStartUp(*type, VOXUnicodeString(declared.name.c_str()));
    if (component == nullptr || FAILED(ioStartUp.SetFeature(iAttribute, 0, *component)))
      return false;
    for (const DefaultValue& value : declared.values)
      if (FAILED(component->Set(value.attribute, value.value)))
        return false;
  }
  return true;
}

VOXUnicodeString Document::NameFor(const Feature& iStartUp)
{
  const std::uint32_t number = ++_NamesGiven[&iStartUp];
  return iStartUp.Name() + "." + std::to_string(number).c_str();
}

Feature* Document::FindFeature(std::uint32_t iIdentifier) const
{
  return iIdentifier == 0 || iIdentifier > _ById.size() ? nullptr : _ById[iIdentifier - 1];
}

std::vector<Feature*> Document::AllFeatures() const
{
  std::vector<Feature*> all;
  all.reserve(_NumberOfFeatures);
  for (Feature* const feature : _ById)
    if (feature != nullptr && !feature->IsStartUp())
      all.push_back(feature);
  return all;
}

std::vector<Feature*> Document::WithComponents(Feature& iFeature) const
{
  std::vector<Feature*> all{&iFeature};
  for (std::size_t i = 0; i < all.size(); ++i)
    for (std::size_t attribute = 0; attribute < all[i]->Type().Attributes().size(); ++attribute)
      if (all[i]->Type().Attributes()[attribute].HoldsComponents())
        for (Feature* const component : all[i]->Features(static_cast<int>(attribute)))
          all.push_back(component);
  return all;
}

void Document::Remove(Feature& iFeature)
{
  if (iFeature._Document != this)
    return;
  FeatureChanged(iFeature);
  iFeature.LeaveFather();
  const std::vector<Feature*> doomed = WithComponents(iFeature);
  for (Feature* const feature : doomed)
    EmptyReferencesTo(*feature);
  for (Feature* const feature : doomed)
    Forget(*feature);
  for (Feature* const feature : doomed)
  {
    feature->Detach();
    if (_UpdateDepth > 0)
      _Removed.push_back(feature); // somebody up the stack may still work with it
    else
      feature->Release();
  }
}

void Document::EmptyReferencesTo(Feature& iFeature)
{
  for (const Referrer& referrer : iFeature.Referrers())
    referrer.feature->TakeOut(referrer.attribute, iFeature);
  iFeature._Referrers.reset();
}

void Document::Forget(Feature& iFeature)
{
  const auto& attributes = iFeature.Type().Attributes();
  for (std::size_t i = 0; i < attributes.size(); ++i)
    if (attributes[i].RefersToFeatures())
      iFeature.ForgetReferencesOf(static_cast<int>(i));
  if (!iFeature.IsStartUp())
    --_NumberOfFeatures;
  iFeature._Container->Take(iFeature);
  _Views.Forget(&iFeature);
  _ById[iFeature._Identifier - 1] = nullptr;
}

void Document::Reserve(std::size_t iFeatures)
{
  _ById.reserve(iFeatures);
  MainContainer()._Members.reserve(iFeatures);
}

} // namespace voxhost
