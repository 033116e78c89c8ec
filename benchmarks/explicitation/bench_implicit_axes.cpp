// SPDX-License-Identifier: MIT
// LogImplicitAxis on a set with 10^4 axes, half of which were made by a feature each, against the host calls alone, made
// one by one in the same order; the removal of the features' tags is in the first only. Once for a new entity, and once
// for an entity that is there already. Measured in the same run, one after the other, best of several.
// Limit: 1.2 times the host calls. Fails when it is not met.
#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisModelFactory.h"
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "ComponentRuntime/VOXRawCollint.h"
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "FeatureModeler/VOXSpecServices.h"
#include "VOXSamToolsForExplicitation.h"
#include "benchmarks/support/Measure.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/FeatureModeler/Document.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <memory>

namespace
{

constexpr int kAxes = 10000;
constexpr int kMade = kAxes / 2;
constexpr int kRounds = 25;

int TagOf(const VOXAnalysisExplicitChild& iObject)
{
  int tag = 0;
  iObject.GetTag(tag);
  return tag;
}

//! An axis set with its axes, in a document and in a model.
class AxisSet
{
public:
  AxisSet() : _Document(Types())
  {
    _Document.SetExplicitModel(&model);
    const VOXAnalysisExplicitEntity object = model.Create(NULL_exp, "AXIS_SET", "axes");
    voxhost::Feature* const analysis = _Document.New("AnalysisModel", "analysis");
    _Set = _Document.New("AxisSet", "axes");
    analysis->Add("SonsList", *_Set);
    _Set->Set("ExplicitTag", std::int32_t{TagOf(object)});
    for (int i = 0; i < kAxes; ++i)
    {
      const VOXAnalysisExplicitEntity axis = model.Create(object, "AXIS", "axis");
      if (i < kMade)
        AddFeature(TagOf(axis));
    }
    given = model.Create(NULL_exp, "AXIS", "given");
    set = VOXISamAnalysisSet_var(static_cast<VOXBaseUnknown*>(_Set));
  }

  //! The entity of implicit axes; null when there is none.
  voxhost::Feature* Entity() const
  {
    voxhost::Feature* const last = _Set->Features("SonsList").back();
    return last->Name() == "AllImplicitAxis" ? last : nullptr;
  }

  void RemoveEntity()
  {
    if (voxhost::Feature* const entity = Entity())
      _Document.Remove(*entity);
  }

  bool Record() const { return SUCCEEDED(VOXSamToolsForExplicitation::LogImplicitAxis(set, given)); }

  voxhost::ExplicitModel model;
  VOXISamAnalysisSet_var set;
  VOXAnalysisExplicitAxis given;

private:
  void AddFeature(int iTag)
  {
    voxhost::Feature* const feature = _Document.New("AnalysisAxis", "axis");
    feature->Set("ExplicitTag", std::int32_t{iTag});
    _Set->Add("SonsList", *feature);
  }

  static std::shared_ptr<const voxhost::TypeCatalogue> Types()
  {
    const auto types = std::make_shared<voxhost::TypeCatalogue>();
    types->Declare(voxhost::AnalysisTypes());
    return types;
  }

  voxhost::Document _Document;
  voxhost::Feature* _Set = nullptr;
};

VOXISpecObject_var MakeEntity(const VOXISpecObject_var& iSet)
{
  const VOXISamAnalysisModelFactory_var spFactory(iSet->GetModelFactory());
  VOXBaseUnknown* const piFather = iSet->GetFatherObject();
  const VOXISpecObject_var spEntity(spFactory->CreateEntity("AllImplicitAxis", "SAMImplicitAxes", piFather));
  if (piFather != nullptr)
    piFather->Release();
  spEntity->Update(VOXIDomain_var());
  void* face = nullptr;
  iSet->QueryInterface(IID_VOXISpecAttrAccess, &face);
  auto* const piAccess = static_cast<VOXISpecAttrAccess*>(face);
  VOXISpecAttrKey* const piKey = piAccess->GetAttrKey("SonsList");
  VOXSpecPubServices::UpgradeSpecObjectAttribute(piAccess, piKey, spEntity, 0);
  piKey->Release();
  piAccess->Release();
  spEntity->Release();
  return spEntity;
}

void ReadAxes(const AxisSet& iWorld, const VOXISamExplicit_var& iSet, VOXRawCollint& oTags)
{
  VOXAnalysisExplicitParent parent;
  VOXAnalysisExplicitList children;
  iSet->GetExplicitParent(parent, 1);
  parent.GetChildrenList(children);
  int place = 0;
  for (VOXAnalysisExplicitParent child(*children.First()); child != NULL_exp; child = *children.Next())
    if (const int tag = TagOf(child); place++ >= kMade)
      oTags.Append(tag);
  VOXListValVOXISpecObject_var entities;
  iWorld.set->ListMembers(VOXISamAnalysisEntity::ClassName(), entities, 0);
  VOXRawCollint tagsOfEntity;
  for (int i = 1; i <= entities.Size(); ++i)
  {
    const VOXISamExplicit_var spExplicit(entities[i]);
    spExplicit->ListTags(tagsOfEntity);
    tagsOfEntity.RemoveAll(1);
  }
}

void WriteTags(const VOXISpecObject_var& iEntity, const VOXRawCollint& iTags)
{
  void* face = nullptr;
  iEntity->QueryInterface(IID_VOXISpecAttrAccess, &face);
  auto* const piAccess = static_cast<VOXISpecAttrAccess*>(face);
  VOXISpecAttrKey* const piKey = piAccess->GetAttrKey("ExplicitTag");
  piAccess->Reset(piKey);
  piAccess->SetIntegerList(piKey, iTags);
  piKey->Release();
  piAccess->Release();
}

void CallTheHost(AxisSet& ioWorld)
{
  const VOXISpecObject_var spSet(ioWorld.set);
  const VOXISamExplicit_var spSetExplicit(ioWorld.set);
  VOXAnalysisExplicitModel* const pModel = spSetExplicit->GetExplicitModel();
  VOXRawCollint tags;
  VOXISpecObject_var spEntity;
  ioWorld.set->GetMemberByName("AllImplicitAxis", spEntity, 0);
  const bool isNew = !spEntity;
  if (isNew)
  {
    ReadAxes(ioWorld, spSetExplicit, tags);
    spEntity = MakeEntity(spSet);
  }
  const VOXISamExplicit_var spExplicit(spEntity);
  if (isNew)
  {
    VOXAnalysisExplicitAxis frame;
    pModel->GetGlobalRefFrame(frame);
    tags.Append(TagOf(frame));
  }
  else
    spExplicit->ListTags(tags);
  VOXAnalysisExplicitParent cursor;
  for (int i = 1; i <= tags.Size(); ++i)
  {
    int status = 0;
    cursor.LinkWithTag(tags[i], pModel);
    if (cursor == NULL_exp)
      continue;
    cursor.GetStatus(status);
    benchmark::DoNotOptimize(status);
  }
  if (isNew)
    tags.Append(TagOf(ioWorld.given));
  WriteTags(spEntity, tags);
  spExplicit->SetExplicitState(0);
}

} // namespace

int main()
{
  AxisSet world;
  double host[2] = {1e9, 1e9}; // of a new entity, of one that is there
  double whole[2] = {1e9, 1e9};
  bool good = true;
  for (int round = 0; round < kRounds; ++round)
  {
    world.RemoveEntity();
    for (double& best : host)
      best = std::min(best, voxmeasure::Seconds([&world] { CallTheHost(world); }));
    const std::size_t recorded = world.Entity() == nullptr ? 0 : world.Entity()->ExplicitTags().size();
    world.RemoveEntity();
    for (double& best : whole)
      best = std::min(best, voxmeasure::Seconds([&] { good = world.Record() && good; }));
    good = good && world.Entity() != nullptr && world.Entity()->ExplicitTags().size() == recorded &&
           recorded == static_cast<std::size_t>(kAxes - kMade + 2);
  }
  std::printf("new entity: host calls %.2f ms, LogImplicitAxis %.2f ms; existing one: %.2f ms, %.2f ms\n",
              host[0] * 1e3, whole[0] * 1e3, host[1] * 1e3, whole[1] * 1e3);
  if (!good)
    std::printf("the axes are not recorded\n");
  bool met = voxmeasure::Check("LogImplicitAxis / host calls, new entity", whole[0] / host[0], 1.2);
  met = voxmeasure::Check("LogImplicitAxis / host calls, existing entity", whole[1] / host[1], 1.2) && met;
  return met && good ? 0 : 1;
}
