// SPDX-License-Identifier: MIT
#include "host/ObjectModeler/Container.h"

#include "ObjectModeler/VOXSequence.h"
#include "host/ComponentRuntime/LateTypes.h"
#include "host/FeatureModeler/Feature.h"
#include "host/Instruments/Faults.h"

#include <cstring>

namespace voxhost
{
namespace
{

constexpr const char* kBaseType = "SpecContainer";

// Declares the late type of a container; false when it stands with another base.
bool DeclareContainerType(const char* iLateType)
{
  static const bool declared =
      SUCCEEDED(VOXDeclareLateType(kBaseType, nullptr)) && SUCCEEDED(DeclareOwnInterface<VOXIContainer>(kBaseType));
  return declared && (std::strcmp(iLateType, kBaseType) == 0 || SUCCEEDED(VOXDeclareLateType(iLateType, kBaseType)));
}

} // namespace

Container::Container(Document& iDocument, std::string iName, bool iHolds)
    : _Document(&iDocument),
      _Name(std::move(iName)),
      _Holds(iHolds)
{
}

Container* Container::Make(Document& iDocument, const std::string& iName, const char* iLateType, bool iHolds)
{
  if (!DeclareContainerType(iLateType))
    return nullptr;
  auto* const container = new Container(iDocument, iName, iHolds);
  if (container != nullptr)
    VOXComponentRuntime::Implement(container, container->_Record, iLateType);
  return container;
}

Container* Container::Of(const VOXBaseUnknown* iFace)
{
  return iFace == nullptr ? nullptr : dynamic_cast<Container*>(iFace->GetImpl());
}

const std::string& Container::LateType() const
{
  return _Record.type->Name();
}

std::vector<Feature*> Container::Members() const
{
  std::vector<Feature*> members;
  members.reserve(_NumberOfMembers);
  for (Feature* const member : _Members)
    if (member != nullptr)
      members.push_back(member);
  return members;
}

int Container::ListMembers(const char* iInterfaceName, _SEQUENCE_VOXBaseUnknown_ptr& oMembers) const
{
  oMembers.Empty();
  if (Faults::Enter("VOXIContainer::ListMembers") || iInterfaceName == nullptr)
    return 0;
  for (const Feature* const member : _Members)
  {
    VOXBaseUnknown* const face =
        member == nullptr ? nullptr : static_cast<const VOXBaseUnknown*>(member)->QueryInterface(iInterfaceName);
    if (face != nullptr)
      oMembers.Append(face);
  }
  return oMembers.Length();
}

void Container::Add(Feature& iFeature)
{
  iFeature._Container = this;
  iFeature._PlaceInContainer = static_cast<std::uint32_t>(_Members.size());
  _Members.push_back(&iFeature);
  ++_NumberOfMembers;
}

void Container::Take(Feature& iFeature)
{
  _Members[iFeature._PlaceInContainer] = nullptr;
  --_NumberOfMembers;
  iFeature._Container = nullptr;
}

} // namespace voxhost
