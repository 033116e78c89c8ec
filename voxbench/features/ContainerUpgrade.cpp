// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/Restoration.h"
#include "voxbench/features/FeatureUpgrade.h"
#include "voxbench/features/Releases.h"

namespace voxbench
{
namespace
{

using voxhost::Feature;

//! Puts a feature where another one stands: into its father's attribute, at the same place.
void TakePlaceOf(Feature& iOld, Feature& iNew)
{
  Feature* const father = iOld.Father();
  if (father == nullptr)
    return;
  const int attribute = iOld.HoldingAttribute();
  father->SetFeature(attribute, father->PositionOf(attribute, iOld), iNew);
}

//! What an attribute does not keep.
void CarryStatesOver(const Feature& iOld, Feature& iNew)
{
  iNew.SetName(iOld.Name());
  iNew.SetActive(iOld.IsActive());
  iNew.SetSubscribed(iOld.IsSubscribed());
  iNew.SetExplicitState(iOld.ExplicitState());
  voxhost::Views& views = iOld.OwningDocument()->ShownViews();
  views.Restore(&iNew, views.ShownIn(&iOld));
  if (const auto identity = voxhost::Restoration::StateOf(iOld).identifyingString)
    iNew.SetIdentifyingString(*identity);
  if (iNew.PhysicalType() != iOld.PhysicalType())
    iNew.SetPhysicalType(iOld.PhysicalType());
}

//! What the start-up gave to the new instance, and the old one's components took the place of: nobody holds it.
void RemoveOrphans(voxhost::Document& ioDocument, const Feature& iMade, std::uint32_t iLast)
{
  for (Feature* const orphan : MadeSince(ioDocument, iLast))
    if (orphan != &iMade && orphan->Father() == nullptr)
      ioDocument.Remove(*orphan);
}

} // namespace

std::string ReplacementOf(const Feature& iFeature)
{
  const auto& replaced = ReleaseOf(kNewestRelease).replaced;
  const auto found = replaced.find(iFeature.Type().Name());
  return found == replaced.end() ? "" : found->second;
}

std::vector<Feature*> MadeSince(const voxhost::Document& iDocument, std::uint32_t iIdentifier)
{
  std::vector<Feature*> made;
  const std::uint32_t last = voxhost::Restoration::LastIdentifier(iDocument);
  for (std::uint32_t identifier = iIdentifier + 1; identifier <= last; ++identifier)
    if (Feature* const feature = iDocument.FindFeature(identifier); feature != nullptr && !feature->IsStartUp())
      made.push_back(feature);
  return made;
}

HRESULT ContainerUpgrade::UpgradeContainer()
{
  const voxhost::Container* const container = voxhost::Container::Of(this);
  if (container == nullptr)
    return E_FAIL;
  bool allDone = true;
  for (Feature* const member : container->Members())
    if (!ReplacementOf(*member).empty())
      allDone = SUCCEEDED(UpgradeObject(member)) && allDone;
  return allDone ? S_OK : E_FAIL;
}

bool ContainerUpgrade::NeedToUpgraded(int iVersion, int /*iRelease*/)
{
  return iVersion < kNewestRelease;
}

HRESULT ContainerUpgrade::UpgradeObject(const VOXISpecObject* iObject)
{
  Feature* const old = Feature::Of(iObject);
  if (old == nullptr || old->IsRemoved())
    return E_FAIL;
  const std::string replacement = ReplacementOf(*old);
  if (replacement.empty())
    return S_FALSE;
  voxhost::Document& document = *old->OwningDocument();
  const std::uint32_t last = voxhost::Restoration::LastIdentifier(document);
  VOXISpecObject* const piNew = RerouteInstance(iObject, replacement.c_str());
  Feature* const made = Feature::Of(piNew);
  if (piNew != nullptr)
    piNew->Release(); // the document keeps it
  if (made == nullptr)
    return E_FAIL;
  RemoveOrphans(document, *made, last);
  TakePlaceOf(*old, *made);
  CarryStatesOver(*old, *made);
  document.Remove(*old);
  return S_OK;
}

} // namespace voxbench
