// SPDX-License-Identifier: MIT
// GetParentFeature over a container of 10^5 features, the last of which reports the tag, against the host calls alone:
// the listing, and per member its handle, its query, its tags and the releases. The search among the tags is in the first
// only. Measured in the same run, one after the other, best of several.
// Limit: 1.2 times the host calls. Fails when it is not met.
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "ComponentRuntime/VOXRawCollint.h"
#include "ObjectModeler/VOXSequence.h"
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

constexpr int kFeatures = 100000;
constexpr int kRounds = 25;

//! A document of features with one tag each; only the last reports the object that is looked for.
class Container
{
public:
  explicit Container(int iFeatures) : _Document(Types())
  {
    _Document.SetExplicitModel(&_Model);
    _Document.Reserve(static_cast<std::size_t>(iFeatures));
    object = _Model.Create(NULL_exp, "GROUP", "sought");
    int tag = 0;
    object.GetTag(tag);
    for (int i = 1; i < iFeatures; ++i)
      Add(tag + i);
    last = Add(tag);
    container = VOXIContainer_var(&_Document.MainContainer());
  }

  VOXAnalysisExplicitEntity object;
  VOXIContainer_var container;
  voxhost::Feature* last = nullptr;

private:
  voxhost::Feature* Add(int iTag)
  {
    voxhost::Feature* const feature = _Document.New("SAMFreeGroup", "group");
    feature->Set("ExplicitTag", std::int32_t{iTag});
    return feature;
  }

  static std::shared_ptr<const voxhost::TypeCatalogue> Types()
  {
    const auto types = std::make_shared<voxhost::TypeCatalogue>();
    types->Declare(voxhost::AnalysisTypes());
    return types;
  }

  voxhost::ExplicitModel _Model;
  voxhost::Document _Document;
};

bool LookUp(const Container& iWorld)
{
  VOXISpecObject* const found = VOXSamToolsForExplicitation::GetParentFeature(iWorld.object, iWorld.container);
  const bool isLast = found != nullptr && found->GetImpl() == iWorld.last;
  if (found != nullptr)
    found->Release();
  return isLast;
}

void CallTheHost(const Container& iWorld)
{
  VOXSamValue category = VOXSamValueUnknown;
  int tag = -1;
  benchmark::DoNotOptimize(iWorld.object.GetModel());
  iWorld.object.GetCategory(category);
  iWorld.object.GetTag(tag);
  VOXRawCollint tags;
  _SEQUENCE_VOXBaseUnknown_ptr members;
  const int size = iWorld.container->ListMembers(VOXISamExplicit::ClassName(), members);
  for (int i = 0; i < size; ++i)
  {
    const VOXBaseUnknown_var spMember(members[i]);
    void* face = nullptr;
    spMember->QueryInterface(IID_VOXISamExplicit, &face);
    auto* const piExplicit = static_cast<VOXISamExplicit*>(face);
    piExplicit->ListTags(tags);
    piExplicit->Release();
    members[i]->Release();
    members[i] = nullptr;
  }
  benchmark::DoNotOptimize(tags.Size());
}

} // namespace

int main()
{
  const Container world(kFeatures);
  bool good = LookUp(world); // and makes the faces of the features
  double host = 1e9;
  double whole = 1e9;
  for (int round = 0; round < kRounds; ++round)
  {
    host = std::min(host, voxmeasure::Seconds([&world] { CallTheHost(world); }));
    whole = std::min(whole, voxmeasure::Seconds([&] { good = LookUp(world) && good; }));
  }
  std::printf("10^5 features: host calls %.2f ms, GetParentFeature %.2f ms\n", host * 1e3, whole * 1e3);
  if (!good)
    std::printf("the feature is not found\n");
  return voxmeasure::Check("GetParentFeature / host calls", whole / host, 1.2) && good ? 0 : 1;
}
