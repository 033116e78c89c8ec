// SPDX-License-Identifier: MIT
#include "VOXEAnalysisUpgrade.h"

#include "AnalysisCore/VOXTrace.h"
#include "AssertionFrame.h"
#include "Counted.h"
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "FeatureModeler/VOXSpecServices.h"

#include <memory>

VOX_SOURCE_OF(VOXEAnalysisUpgrade);

static_assert(sizeof(VOXEAnalysisUpgrade) == sizeof(VOXBaseUnknown), "deriving classes are laid out on this size");

using voxframe::Counted;
using voxframe::QueryFor;

namespace
{

using ListOfComponents = std::unique_ptr<VOXListValVOXBaseUnknown_var>;

const VOXUnicodeString kSonsList("SonsList"); // on the instance and on the start-up alike

constexpr int kTraceLevel = 2;

// A feature and its start-up, with the components of both.
struct BothSides
{
  Counted<VOXISpecObject> piInstance;
  Counted<VOXISpecObject> piSpecStar;
  Counted<VOXISpecAttrAccess> piAccessThis;
  Counted<VOXISpecAttrAccess> piAccessStar;
  Counted<VOXISpecAttrKey> piKey; // of the instance
  ListOfComponents startUpList;   // null when there is none, both
  ListOfComponents instanceList;

  void ReadSons(const VOXBaseUnknown* iExtended)
  {
    piSpecStar = Counted<VOXISpecObject>(piInstance->GetStartUp());
    VOX_ASSERT(piSpecStar);
    piAccessThis = QueryFor<VOXISpecAttrAccess>(iExtended);
    VOX_ASSERT(piAccessThis);
    piAccessStar = QueryFor<VOXISpecAttrAccess>(piSpecStar.Get());
    VOX_ASSERT(piAccessStar);

    piKey = Counted<VOXISpecAttrKey>(piAccessStar->GetAttrKey(kSonsList));
    VOX_ASSERT(piKey);
    startUpList.reset(piAccessStar->ListSpecObjects(piKey.Get(), VOXISamBasicComponent::ClassName()));
    piKey.GiveBack();

    piKey = Counted<VOXISpecAttrKey>(piAccessThis->GetAttrKey(kSonsList));
    VOX_ASSERT(piKey);
    instanceList.reset(piAccessThis->ListSpecObjects(piKey.Get(), VOXISamBasicComponent::ClassName()));
  }

  int NumberOnStartUp() const { return startUpList == nullptr ? 0 : startUpList->Size(); }

  void GiveBack()
  {
    piKey.GiveBack();
    piInstance.GiveBack();
    piSpecStar.GiveBack();
    piAccessThis.GiveBack();
    piAccessStar.GiveBack();
    startUpList.reset();
    instanceList.reset();
  }
};

// Leaves the level set for the name, which the caller puts next: Kept: it is set once before either put.
void TraceAdding()
{
  Tra_SAMTraceDebug.SetOutputLevel(kTraceLevel);
  Tra_SAMTraceDebug.TraPut("VOXEAnalysisUpgrade::Upgrade Adding");
  Tra_SAMTraceDebug.SetOutputLevel(kTraceLevel);
}

// Makes the start-up's component once more, for the instance.
void AddSon(const BothSides& iSides, const VOXISpecObject_var& iComponent, const VOXUnicodeString& iName,
            const VOXIContainer_var& iContainer)
{
  Counted<VOXISpecObject> piNew(iComponent->Instantiate(iName, iContainer, nullptr));
  const VOXISamBasicComponent_var spNewComponent(piNew.Get());
  if (piNew)
    piNew->Update(VOXIDomain_var());
  piNew.GiveBack();
  if (!spNewComponent)
    return;
  const VOXISpecObject_var spNew(spNewComponent);
  VOXSpecPubServices::UpgradeSpecObjectAttribute(iSides.piAccessThis.Get(), iSides.piKey.Get(), spNew, 0);
  spNewComponent->InitializeAfterCreation();
}

// What a layered component is upgraded with.
struct LayeredComponent
{
  VOXISpecAttrAccess* piAccess; // borrowed
  const VOXISpecAttrKey* piKey; // of its values, borrowed
  const VOXIContainer_var& spContainer;
  int nbLayers;
};

// Makes one value of the start-up once per layer; iRank is its place on the start-up, from 1.
void AddValuePerLayer(const LayeredComponent& iLayered, const VOXISpecObject_var& iValue, const VOXUnicodeString& iName,
                      int iRank)
{
  int position = iRank;
  for (int k = 1; k <= iLayered.nbLayers; ++k)
  {
    const Counted<VOXISpecObject> piNew(iValue->Instantiate(iName, iLayered.spContainer, nullptr));
    if (piNew)
    {
      const VOXBaseUnknown_var spNew(piNew.Get());
      piNew->Update(VOXIDomain_var());
      iLayered.piAccess->AddSpecObject(iLayered.piKey, spNew, nullptr, false, 0);
      iLayered.piAccess->PlaceSpecObject(iLayered.piKey, spNew, position);
    }
    position += iRank; // Kept: the step is the value's own rank, not the number of value kinds
  }
}

struct Dimensions
{
  int nbValues = 0;
  int nbRows = 0;
  int nbLayers = 0;
};

Dimensions DimensionsOf(const VOXISamBasicComponent* iComponent)
{
  Dimensions dimensions;
  iComponent->GetDimensions(dimensions.nbValues, dimensions.nbRows, dimensions.nbLayers, VOXUnicodeString(nullptr));
  return dimensions;
}

} // namespace

VOXEAnalysisUpgrade::VOXEAnalysisUpgrade() = default;

VOXEAnalysisUpgrade::~VOXEAnalysisUpgrade() = default;

bool VOXEAnalysisUpgrade::NeedToUpgrade()
{
  BothSides sides;
  sides.piInstance = QueryFor<VOXISpecObject>(this);
  if (!sides.piInstance)
    return false;
  sides.ReadSons(this);

  bool needed = false;
  for (int i = 1; i <= sides.NumberOnStartUp() && !needed; ++i)
  {
    const VOXISamBasicComponent_var spComponent((*sides.startUpList)[i]);
    if (!spComponent)
      continue;
    const VOXUnicodeString name = spComponent->GetName();
    needed = sides.instanceList == nullptr || !FindInList(name, *sides.instanceList);
  }
  sides.GiveBack();
  Tra_SAMTraceDebug.SetOutputLevel(kTraceLevel);
  Tra_SAMTraceDebug.TraPutLN("VOXEAnalysisUpgrade::NeedToUpgrade", needed ? 1 : 0);
  return needed;
}

HRESULT VOXEAnalysisUpgrade::Upgrade()
{
  VOXIContainer_var spCont;
  BothSides sides;
  sides.piInstance = QueryFor<VOXISpecObject>(this);
  if (!sides.piInstance)
    return S_FALSE;
  sides.piInstance->GetContainer(spCont);
  VOX_ASSERT(!!spCont);
  sides.ReadSons(this);

  // Kept: the instance's list is that from before the pass, so two components of one name are both added.
  for (int i = 1; i <= sides.NumberOnStartUp(); ++i)
  {
    const VOXISamBasicComponent_var spComponent((*sides.startUpList)[i]);
    if (!spComponent)
      continue;
    const VOXUnicodeString name = spComponent->GetName();
    if (sides.instanceList != nullptr && FindInList(name, *sides.instanceList))
      continue;
    const VOXISpecObject_var spMissing((*sides.startUpList)[i]);
    if (!spMissing)
      continue;
    TraceAdding();
    Tra_SAMTraceDebug.TraPutLN(name.ConvertToChar());
    AddSon(sides, spMissing, name, spCont);
  }
  sides.GiveBack();
  return S_OK;
}

bool VOXEAnalysisUpgrade::FindInList(const VOXUnicodeString& iName, const VOXListValVOXBaseUnknown_var& iList)
{
  const VOXUnicodeString prefix = iName + ".";
  bool found = false;
  for (int i = 1; i <= iList.Size() && !found; ++i)
  {
    const VOXISamBasicComponent_var spComponent(iList[i]);
    if (!spComponent)
      continue;
    const VOXUnicodeString name = spComponent->GetName();
    found = name == iName || name.SearchSubString(prefix, 0, 1) == 0; // Name.1 is a numbered copy of Name
    if (found)
      continue;
    const VOXISpecObject_var spFeature(iList[i]);
    if (!spFeature)
      continue;
    const Counted<VOXISpecObject> piRelated(spFeature->GetRelatedObject());
    found = piRelated && piRelated->GetName() == iName;
  }
  return found;
}

VOXListValVOXBaseUnknown_var* VOXEAnalysisUpgrade::GetValuesOnInstanceOrStartup(bool iOnStartup,
                                                                                const VOXISpecObject* iSpec)
{
  if (iSpec == nullptr)
    return nullptr;
  Counted<VOXISpecObject> piTarget =
      iOnStartup ? Counted<VOXISpecObject>(iSpec->GetStartUp()) : QueryFor<VOXISpecObject>(iSpec);
  if (!piTarget)
    return nullptr;
  const Counted<VOXISpecAttrAccess> piAccessThis = QueryFor<VOXISpecAttrAccess>(piTarget.Get());
  piTarget.GiveBack();
  VOX_ASSERT(piAccessThis);
  const Counted<VOXISpecAttrKey> piKey(piAccessThis->GetAttrKey("Values"));
  VOX_ASSERT(piKey);
  return piAccessThis->ListSpecObjects(piKey.Get(), VOXISamBasicComponent::ClassName());
}

HRESULT VOXEAnalysisUpgrade::RemoveBasicComp(const VOXISamBasicComponent* ipiBasicComp)
{
  VOXISpecObject_var spFeature(GetImpl(0));
  if (ipiBasicComp == nullptr)
    return E_INVALIDARG;
  if (!spFeature)
    return S_OK;

  const bool wasUpToDate = spFeature->IsUpToDate(VOXIDomain_var());
  if (wasUpToDate)
    VOXSpecObjServices::MarkForRebuild(spFeature, 1);
  const VOXBaseUnknown_var spComponent(ipiBasicComp);
  if (!!spComponent)
    spFeature->RemoveComponent(spComponent, 0);
  if (wasUpToDate)
  {
    VOXSpecObjServices::MarkForRebuild(spFeature, 0);
    spFeature->IsUpToDate(VOXIDomain_var()); // Kept: asked once more, the answer does not matter
  }
  return S_OK;
}

bool VOXEAnalysisUpgrade::CheckMultiLayer(const VOXISamBasicComponent* ipiBasicComp)
{
  if (ipiBasicComp == nullptr)
    return false;
  const Dimensions own = DimensionsOf(ipiBasicComp);
  const Counted<VOXISpecObject> piSpec = QueryFor<VOXISpecObject>(ipiBasicComp);
  if (!piSpec)
    return false;

  Counted<VOXISpecObject> piStartUp(piSpec->GetStartUp());
  if (piStartUp)
  {
    const VOXISamBasicComponent_var spStartUp(piStartUp.Get());
    piStartUp.GiveBack();
    const Dimensions dimensions = !spStartUp ? Dimensions{} : DimensionsOf(spStartUp);
    if (dimensions.nbValues != own.nbValues)
      return true;
  }
  const ListOfComponents values(GetValuesOnInstanceOrStartup(false, piSpec.Get()));
  return values != nullptr && values->Size() != static_cast<long long>(own.nbLayers) * own.nbValues;
}

HRESULT VOXEAnalysisUpgrade::UpgradeMultiLayer(const VOXISamBasicComponent* ipiBasicComp)
{
  VOX_ASSERT(ipiBasicComp);
  const VOXISpecObject_var spSpec(ipiBasicComp);
  if (!spSpec)
    return S_OK;
  VOXIContainer_var spCont;
  spSpec->GetContainer(spCont);
  VOX_ASSERT(!!spCont);
  const Dimensions dimensions = DimensionsOf(ipiBasicComp);
  const ListOfComponents startUpValues(GetValuesOnInstanceOrStartup(true, spSpec));
  const int nbStartup = startUpValues == nullptr ? 0 : startUpValues->Size();
  const Counted<VOXISpecAttrAccess> piAttrAccess = QueryFor<VOXISpecAttrAccess>(ipiBasicComp);
  VOX_ASSERT(piAttrAccess);

  Counted<VOXISpecAttrKey> piKey(piAttrAccess->GetAttrKey("Values"));
  ListOfComponents ownValues(piKey ? piAttrAccess->ListSpecObjects(piKey.Get(), nullptr) : nullptr);
  const LayeredComponent layered{piAttrAccess.Get(), piKey.Get(), spCont, dimensions.nbLayers};
  for (int i = 1; i <= nbStartup && ownValues != nullptr; ++i)
  {
    const VOXISamBasicComponent_var spComponent((*startUpValues)[i]);
    if (!spComponent)
      continue;
    const VOXUnicodeString name = spComponent->GetName();
    if (FindInList(name, *ownValues))
      continue;
    const VOXISpecObject_var spValue((*startUpValues)[i]);
    TraceAdding();
    Tra_SAMTraceDebug.TraPut(name.ConvertToChar()); // Kept: without an end of the line
    if (!!spValue)
      AddValuePerLayer(layered, spValue, name, i);
  }
  ownValues.reset();
  piKey.GiveBack();

  if (nbStartup != 0)
  {
    const Counted<VOXISpecAttrKey> piDimKey(piAttrAccess->GetAttrKey("ValuesDim"));
    if (piDimKey)
      piAttrAccess->PutInteger(piDimKey.Get(), nbStartup, 1);
  }
  return S_OK;
}
