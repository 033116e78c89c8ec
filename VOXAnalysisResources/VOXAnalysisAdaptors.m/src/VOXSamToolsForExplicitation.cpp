// SPDX-License-Identifier: MIT
#include "VOXSamToolsForExplicitation.h"

#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisModelFactory.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "Counted.h"
#include "ErrorFrame.h"
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "ObjectModeler/VOXSequence.h"

VOX_SOURCE_OF(VOXSamToolsForExplicitation);

using voxframe::Counted;
using voxframe::QueryFor;

namespace
{

// The mesh that a node or an element hangs under; empty when its first parent is no mesh.
VOXAnalysisExplicitParent MeshAbove(const VOXAnalysisExplicitParent& iObject,
                                    const VOXAnalysisExplicitRulesData& iRules)
{
  int meshType = 0;
  int physType = 0;
  iRules.GetPhysicalTypeNumber("MESH", meshType);
  VOXAnalysisExplicitList parents;
  iObject.GetParentList(parents);
  const VOXAnalysisExplicitParent firstParent(*parents.First());
  if (firstParent != NULL_exp)
    firstParent.GetPhysicalType(physType);
  if (physType == meshType)
    return firstParent;

  // Kept: the next parent is fetched, and then the first one's type is tested again: only a direct parent can be the mesh.
  firstParent.GetParentList(parents);
  const VOXAnalysisExplicitParent secondParent(*parents.First());
  return physType == meshType ? secondParent : VOXAnalysisExplicitParent();
}

// The feature behind a member of a container if it reports the tag; one reference for the caller.
// Kept: the tags of the members before it are in the list as well.
VOXISpecObject* FeatureWithTag(const VOXBaseUnknown_var& iMember, int iTag, VOXRawCollint& ioTags)
{
  const auto piExplicit = QueryFor<VOXISamExplicit>(iMember);
  if (!piExplicit)
    return nullptr;
  piExplicit->ListTags(ioTags);
  return ioTags.Locate(iTag, 1) != 0 ? QueryFor<VOXISpecObject>(piExplicit.Get()).HandOn() : nullptr;
}

// What is logged on the entity of implicit axes, and the way there. The steps that can fail leave the error recorded.
class ImplicitAxisLog
{
public:
  explicit ImplicitAxisLog(const VOXISamAnalysisSet* iAxisSet) : _AxisSet(iAxisSet) {}

  HRESULT OpenSet();
  HRESULT OpenEntity();
  void Prune();
  HRESULT Add(const VOXAnalysisExplicitAxis& iAxis);
  void Write();

private:
  HRESULT ReadChildrenOfSet();
  void DropTagsOfEntities();
  HRESULT MakeEntity();
  void AddToSons();
  void AddGlobalFrame();
  void AppendOnce(int iTag);
  bool IsGone(int iTag);

  const VOXISamAnalysisSet* _AxisSet; // borrowed
  VOXISpecObject_var _Set;
  VOXISamExplicit_var _SetExplicit;
  VOXAnalysisExplicitModel* _Model = nullptr; // borrowed
  VOXISpecObject_var _Entity;
  VOXISamExplicit_var _EntityExplicit;
  VOXISamAnalysisModelFactory_var _Factory;
  VOXListValVOXISpecObject_var _Entities;
  VOXRawCollint _Tags;
  VOXRawCollint _EntityTags;
  VOXAnalysisExplicitList _Children;
  VOXAnalysisExplicitParent _ParentSet;
  VOXAnalysisExplicitParent _Cursor;
};

HRESULT ImplicitAxisLog::OpenSet()
{
  if (_AxisSet == nullptr)
    return VOX_MISSING("piAxisSet");
  _Set = _AxisSet;
  if (!_Set)
    return VOX_MISSING("!!spSet");
  _SetExplicit = _AxisSet;
  if (!_SetExplicit)
    return VOX_MISSING("!!spSetExplicit");
  _Model = _SetExplicit->GetExplicitModel();
  if (_Model == nullptr)
    return VOX_MISSING("pModel");
  return S_OK;
}

// Takes the tags that the entity has, or makes it for the children of the set that no entity produced.
HRESULT ImplicitAxisLog::OpenEntity()
{
  _AxisSet->GetMemberByName("AllImplicitAxis", _Entity, 0);
  if (!!_Entity)
  {
    _EntityExplicit = _Entity;
    if (!_EntityExplicit)
      return VOX_MISSING("!!spEntiExplicit");
    _EntityExplicit->ListTags(_Tags);
    return S_OK;
  }

  HRESULT result = ReadChildrenOfSet();
  if (SUCCEEDED(result))
  {
    DropTagsOfEntities();
    result = MakeEntity();
  }
  if (SUCCEEDED(result))
    AddGlobalFrame();
  return result;
}

HRESULT ImplicitAxisLog::ReadChildrenOfSet()
{
  _SetExplicit->GetExplicitParent(_ParentSet, 1); // Kept: only what came is looked at, not the result
  if (_ParentSet == NULL_exp)
    return VOX_NULL_EXPLICIT("ParentSet");
  if (FAILED(_ParentSet.GetChildrenList(_Children)))
    return VOX_FAILED_CALL;
  for (_Cursor = *_Children.First(); _Cursor != NULL_exp; _Cursor = *_Children.Next())
  {
    int tag = 0;
    if (FAILED(_Cursor.GetTag(tag)))
      return VOX_FAILED_CALL;
    _Tags.Append(tag);
  }
  return S_OK;
}

void ImplicitAxisLog::DropTagsOfEntities()
{
  _AxisSet->ListMembers(VOXISamAnalysisEntity::ClassName(), _Entities, 0);
  for (int i = 1; i <= _Entities.Size(); ++i)
  {
    const VOXISamExplicit_var spExplicit(_Entities[i]);
    if (!spExplicit)
      continue;
    spExplicit->ListTags(_EntityTags);
    _Tags.Remove(_EntityTags);
    _EntityTags.RemoveAll(1);
  }
}

HRESULT ImplicitAxisLog::MakeEntity()
{
  _Factory = _Set->GetModelFactory();
  if (!_Factory)
    return VOX_MISSING("!!spFacto");
  Counted<VOXBaseUnknown> piFather(_Set->GetFatherObject());
  _Entity = _Factory->CreateEntity("AllImplicitAxis", "SAMImplicitAxes", piFather.Get());
  piFather.GiveBack();
  if (!_Entity) // Kept: what was made is not released when it is no feature
    return VOX_MISSING("!!spEntity");
  _Entity->Update(VOXIDomain_var());
  AddToSons();
  _Entity->Release(); // the creation's reference; the handle keeps its own
  _EntityExplicit = _Entity;
  if (!_EntityExplicit)
    return VOX_MISSING("!!spEntiExplicit");
  return S_OK;
}

void ImplicitAxisLog::AddToSons()
{
  const auto piAccess = QueryFor<VOXISpecAttrAccess>(_Set);
  if (!piAccess)
    return;
  const Counted<VOXISpecAttrKey> piKey(piAccess->GetAttrKey("SonsList"));
  if (piKey)
    VOXSpecPubServices::UpgradeSpecObjectAttribute(piAccess.Get(), piKey.Get(), _Entity, 0);
}

void ImplicitAxisLog::AddGlobalFrame()
{
  VOXAnalysisExplicitAxis axis;
  _Model->GetGlobalRefFrame(axis);
  int frameTag = 0;
  axis.GetTag(frameTag);
  AppendOnce(frameTag);
}

void ImplicitAxisLog::AppendOnce(int iTag)
{
  if (_Tags.Locate(iTag, 1) == 0)
    _Tags.Append(iTag);
}

bool ImplicitAxisLog::IsGone(int iTag)
{
  _Cursor.LinkWithTag(iTag, _Model);
  if (_Cursor == NULL_exp)
    return true;
  int status = 0;
  _Cursor.GetStatus(status);
  return (status & VOXSamStatusDropped) != 0;
}

void ImplicitAxisLog::Prune()
{
  for (int i = 1; i <= _Tags.Size(); ++i)
    if (IsGone(_Tags[i]))
      _Tags[i] = 0;
  _Tags.RemoveNulls();
}

HRESULT ImplicitAxisLog::Add(const VOXAnalysisExplicitAxis& iAxis)
{
  int tag = 0;
  if (FAILED(iAxis.GetTag(tag)))
    return VOX_FAILED_CALL;
  AppendOnce(tag);
  return S_OK;
}

void ImplicitAxisLog::Write()
{
  auto piAccess = QueryFor<VOXISpecAttrAccess>(_Entity);
  if (piAccess)
  {
    const Counted<VOXISpecAttrKey> piKey(piAccess->GetAttrKey("ExplicitTag"));
    if (piKey)
    {
      piAccess->Reset(piKey.Get());
      piAccess->SetIntegerList(piKey.Get(), _Tags);
    }
  }
  piAccess.GiveBack();
  _EntityExplicit->SetExplicitState(0);
}

} // namespace

VOXSamToolsForExplicitation::VOXSamToolsForExplicitation() = default;

VOXSamToolsForExplicitation& VOXSamToolsForExplicitation::operator=(const VOXSamToolsForExplicitation& /*iOther*/)
{
  return *this;
}

VOXISpecObject* VOXSamToolsForExplicitation::GetParentFeature(const VOXAnalysisExplicitParent& iParent,
                                                              const VOXIContainer* iContainer)
{
  if (iParent == NULL_exp || iContainer == nullptr)
    return nullptr;
  const VOXAnalysisExplicitModel* const pModel = iParent.GetModel();
  if (pModel == nullptr)
    return nullptr;

  VOXSamValue category = VOXSamValueUnknown; // a read that fails leaves it
  iParent.GetCategory(category);
  VOXAnalysisExplicitParent target(iParent);
  if (category == VOXSamValueNode || category == VOXSamValueElement)
  {
    const VOXAnalysisExplicitRulesData* const pRules = pModel->GetRulesData();
    if (pRules == nullptr)
      return nullptr;
    target = MeshAbove(iParent, *pRules);
  }
  if (target == NULL_exp)
    return nullptr;
  int tag = -1;
  target.GetTag(tag);

  VOXISpecObject* pFeature = nullptr;
  VOXRawCollint tags(0);
  _SEQUENCE_VOXBaseUnknown_ptr members;
  const int nbMembers = iContainer->ListMembers(VOXISamExplicit::ClassName(), members);
  for (int i = 0; i < nbMembers; ++i)
  {
    VOXBaseUnknown*& piMember = members[i];
    const VOXBaseUnknown_var spMember(piMember);
    if (!!spMember && pFeature == nullptr)
      pFeature = FeatureWithTag(spMember, tag, tags);
    if (piMember != nullptr)
      piMember->Release(); // the listing's reference, beside the handle's
    piMember = nullptr;
  }
  return pFeature;
}

HRESULT VOXSamToolsForExplicitation::LogImplicitAxis(const VOXISamAnalysisSet* piAxisSet,
                                                     const VOXAnalysisExplicitAxis& iAxis)
{
  const ErrorDepthHandler errorDepth;
  ImplicitAxisLog log(piAxisSet);
  const auto cleanUp = [] { return S_OK; }; // Kept: the exit is guarded although there is nothing to clean up
  static voxframe::LoopGuard loopGuard{VOX_SITE};
  const voxframe::GuardedExit exit(loopGuard, cleanUp);

  HRESULT result = log.OpenSet();
  if (SUCCEEDED(result))
    result = log.OpenEntity();
  if (SUCCEEDED(result))
  {
    log.Prune();
    result = log.Add(iAxis);
  }
  if (FAILED(result))
    return exit.ReportAndFail(voxframe::Recorded{}); // at its site, by the step that failed
  log.Write();
  return S_OK;
}
