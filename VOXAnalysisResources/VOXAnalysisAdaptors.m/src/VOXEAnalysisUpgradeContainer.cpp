// SPDX-License-Identifier: MIT
#include "VOXEAnalysisUpgradeContainer.h"

#include "AnalysisInterfaces/VOXSamRattrapMode.h"
#include "AssertionFrame.h"
#include "Counted.h"
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "FeatureModeler/VOXSpecPointing.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "ObjectModeler/VOXIAlias.h"

#include <memory>

VOX_SOURCE_OF(VOXEAnalysisUpgradeContainer);

static_assert(sizeof(VOXEAnalysisUpgradeContainer) == sizeof(VOXBaseUnknown),
              "deriving classes are laid out on this size");

using voxframe::Counted;

namespace
{

// Both instances of a rerouting, borrowed, with access to their attributes.
struct Rerouting
{
  VOXISpecObject* pOld;
  VOXISpecObject* pNew;
  VOXISpecAttrAccess_var spOldAcc;
  VOXISpecAttrAccess_var spNewAcc;
};

// One attribute that both instances have, of the same type.
struct Attribute
{
  const VOXISpecAttrKey* pOldKey; // borrowed
  const VOXISpecAttrKey* pNewKey; // borrowed
  bool isList;
  int type; // of the elements of a list
  int first;
  int last;
  int newSize; // of a list
};

Attribute RangeOf(const Rerouting& iRerouting, const VOXISpecAttrKey* iOldKey, const VOXISpecAttrKey* iNewKey)
{
  Attribute attribute{iOldKey, iNewKey, false, iOldKey->GetType(), 0, 0, 0};
  if (attribute.type != VOXSpecList)
    return attribute;
  attribute.isList = true;
  attribute.first = 1;
  attribute.last = iRerouting.spOldAcc->GetListSize(iOldKey);
  attribute.newSize = iRerouting.spNewAcc->GetListSize(iNewKey);
  attribute.type = iOldKey->GetElementType();
  return attribute;
}

// Takes out the components that the start-up gave to the new instance, the last one first.
void RemoveDefaultComponents(const Rerouting& iRerouting, const Attribute& iAttribute)
{
  for (int i = iAttribute.newSize; i >= 1; --i)
  {
    const Counted<VOXISpecObject> piDefault(iRerouting.spNewAcc->GetSpecObject(iAttribute.pNewKey, i));
    if (piDefault)
      iRerouting.pNew->RemoveComponent(VOXBaseUnknown_var(piDefault.Get()), 0);
  }
}

// The reset comes first, so that an empty list empties the list of the new instance.
template <class CopyOne>
void CopyValues(const Rerouting& iRerouting, const Attribute& iAttribute, CopyOne iCopyOne)
{
  iRerouting.spNewAcc->Reset(iAttribute.pNewKey);
  for (int i = iAttribute.first; i <= iAttribute.last; ++i)
    iCopyOne(i);
}

void CopyReferences(const Rerouting& iRerouting, const Attribute& iAttribute)
{
  for (int i = iAttribute.first; i <= iAttribute.last; ++i)
  {
    const Counted<VOXISpecObject> piReferred(iRerouting.spOldAcc->GetSpecObject(iAttribute.pOldKey, i));
    if (piReferred)
      VOXSpecPubServices::UpgradeSpecObjectAttribute(iRerouting.spNewAcc, iAttribute.pNewKey,
                                                     VOXISpecObject_var(piReferred.Get()), 0);
  }
}

void HandOver(VOXISpecObject* iComponent, const Rerouting& iRerouting, const Attribute& iAttribute)
{
  iComponent->HandOver(iAttribute.pOldKey->GetName(), VOXISpecObject_var(iRerouting.pNew),
                       iAttribute.pNewKey->GetName());
}

void HandOverComponents(const Rerouting& iRerouting, const Attribute& iAttribute)
{
  if (!iAttribute.isList)
  {
    const Counted<VOXISpecObject> piComponent(iRerouting.spOldAcc->GetSpecObject(iAttribute.pOldKey, 0));
    if (piComponent)
      HandOver(piComponent.Get(), iRerouting, iAttribute);
    return;
  }
  const std::unique_ptr<VOXListValVOXBaseUnknown_var> components(
      iRerouting.spOldAcc->ListSpecObjects(iAttribute.pOldKey, nullptr));
  for (int i = iAttribute.first; components != nullptr && i <= components->Size(); ++i)
  {
    const VOXISpecObject_var spComponent((*components)[i]);
    if (!!spComponent)
      HandOver(spComponent, iRerouting, iAttribute);
  }
}

void CopyByType(const Rerouting& iRerouting, const Attribute& iAttribute, bool iIsExplicitTag)
{
  VOXISpecAttrAccess* const pOld = iRerouting.spOldAcc;
  VOXISpecAttrAccess* const pNew = iRerouting.spNewAcc;
  const VOXISpecAttrKey* const from = iAttribute.pOldKey;
  const VOXISpecAttrKey* const to = iAttribute.pNewKey;
  switch (iAttribute.type)
  {
  case VOXSpecReal:
    CopyValues(iRerouting, iAttribute, [&](int i) { pNew->SetDouble(to, pOld->GetDouble(from, i), 0); });
    break;
  case VOXSpecBoolean:
    CopyValues(iRerouting, iAttribute, [&](int i) { pNew->SetBoolean(to, pOld->GetBoolean(from, i), 0); });
    break;
  case VOXSpecString:
    CopyValues(iRerouting, iAttribute, [&](int i) { pNew->SetString(to, pOld->GetString(from, i), 0); });
    break;
  case VOXSpecInteger:
    CopyValues(iRerouting, iAttribute, [&](int i) { pNew->SetInteger(to, pOld->GetInteger(from, i), 0); });
    if (iIsExplicitTag)
      pOld->Reset(from); // the tag belongs to the new instance alone
    break;
  case VOXSpecReference:
    CopyReferences(iRerouting, iAttribute); // Kept: without a reset
    break;
  case VOXSpecComponent:
    HandOverComponents(iRerouting, iAttribute);
    break;
  default: // dropped
    break;
  }
}

// Drops what is inherited, and what the new instance does not have or has with another type.
void CopyAttribute(const Rerouting& iRerouting, VOXISpecAttrKey* iOldKey)
{
  const VOXUnicodeString name = iOldKey->GetName();
  if (name == "Alias" || VOXSpecIsLocalValue(iRerouting.pOld, iOldKey) != 0)
    return;
  const bool isExplicitTag = name == "ExplicitTag";
  const Counted<VOXISpecAttrKey> piNewKey(iRerouting.spNewAcc->GetAttrKey(name));
  if (!piNewKey || piNewKey->GetType() != iOldKey->GetType())
    return;

  const Attribute attribute = RangeOf(iRerouting, iOldKey, piNewKey.Get());
  if (attribute.isList && attribute.type == VOXSpecComponent)
    RemoveDefaultComponents(iRerouting, attribute); // Kept: a single component removes nothing first
  CopyByType(iRerouting, attribute, isExplicitTag);
}

void CarryAliasOver(const VOXISpecObject* iOldInstance, const VOXISpecObject* iNewInstance)
{
  VOXUnicodeString alias;
  const VOXIAlias_var spOldAlias(iOldInstance);
  if (!!spOldAlias)
    alias = spOldAlias->GetAlias();
  const VOXIAlias_var spNewAlias(iNewInstance);
  if (!!spNewAlias)
    spNewAlias->SetAlias(alias);
}

void CopyAttributes(const Rerouting& iRerouting)
{
  const std::unique_ptr<VOXListValVOXISpecAttrKey_var> keys(iRerouting.spOldAcc->ListAttrKeys());
  for (int i = 1; keys != nullptr && i <= keys->Size(); ++i)
  {
    const VOXISpecAttrKey_var spOldKey((*keys)[i]);
    if (!!spOldKey)
      CopyAttribute(iRerouting, spOldKey);
  }
}

// Every attribute that refers to the old instance refers to the new one from here on, at the same place of a list.
void RedirectPointings(const VOXISpecObject* iOldInstance, const VOXISpecObject_var& iOld,
                       const VOXISpecObject_var& iNew)
{
  VOXListPtrVOXSpecPointing pointings;
  iOldInstance->GetPointings(pointings);
  for (int p = 1; p <= pointings.Size(); ++p)
  {
    const std::unique_ptr<VOXSpecPointing> pPointing(pointings[p]);
    if (pPointing == nullptr)
      continue;
    const VOXISpecAttrAccess_var spAccess = pPointing->GetAccess();
    const VOXISpecAttrKey_var spKey = pPointing->GetKey();
    if (!spAccess || !spKey)
      continue;
    const int position = spKey->GetType() == VOXSpecList ? spAccess->GetPosition(spKey, iOld) : 0;
    VOXSpecPubServices::UpgradeSpecObjectAttribute(spAccess, spKey, iNew, position);
  }
  pointings.RemoveAll();
}

} // namespace

VOXEAnalysisUpgradeContainer::VOXEAnalysisUpgradeContainer() = default;

VOXEAnalysisUpgradeContainer::~VOXEAnalysisUpgradeContainer() = default;

bool VOXEAnalysisUpgradeContainer::NeedToUpgraded(int /*iVersion*/, int /*iRelease*/)
{
  return false;
}

HRESULT VOXEAnalysisUpgradeContainer::UpgradeObject(const VOXISpecObject* /*iObject*/)
{
  return S_OK;
}

VOXISpecObject* VOXEAnalysisUpgradeContainer::RerouteInstance(const VOXISpecObject* iOldInstance,
                                                              const VOXUnicodeString& iStartUpName)
{
  if (iOldInstance == nullptr)
    return nullptr;
  const VOXISpecObject_var spOld(iOldInstance->GetImpl(0));
  VOXIContainer_var spContainer;
  iOldInstance->GetContainer(spContainer);
  if (!spContainer)
    return nullptr;

  Counted<VOXBaseUnknown> piFound(FindStartUp(VOXISpecObject::ClassName(), iStartUpName, iStartUpName, spContainer));
  const VOXISpecObject_var spStartUp(piFound.Get());
  if (!spStartUp)
    return nullptr;
  Counted<VOXISpecObject> piNew(spStartUp->Instantiate("", spContainer, nullptr));
  piFound.GiveBack(); // the search's reference; the handle keeps its own
  if (!piNew)
    return nullptr;

  CarryAliasOver(iOldInstance, piNew.Get());
  const bool wasUpToDate = iOldInstance->IsUpToDate(VOXIDomain_var());
  const VOXISpecAttrAccess_var spOldAcc(iOldInstance);
  VOX_ASSERT(!!spOldAcc);
  const VOXISpecAttrAccess_var spNewAcc(piNew.Get());
  VOX_ASSERT(!!spNewAcc);
  CopyAttributes({const_cast<VOXISpecObject*>(iOldInstance), piNew.Get(), spOldAcc, spNewAcc});
  if (wasUpToDate)
  {
    VOXSamRattrapMode::SetMode(1);
    piNew->Update(VOXIDomain_var());
    VOXSamRattrapMode::SetMode(0);
  }
  RedirectPointings(iOldInstance, spOld, VOXISpecObject_var(piNew.Get()));
  return piNew.HandOn();
}
