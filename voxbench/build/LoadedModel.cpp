// SPDX-License-Identifier: MIT
#include "voxbench/build/LoadedModel.h"
#include "voxbench/build/ModelBuilder.h"
#include "voxbench/features/Catalogue.h"

#include <algorithm>

namespace voxbench
{
namespace
{

//! @param iBasic the basic components, or all others.
std::vector<voxhost::Feature*> HeldBy(const voxhost::Feature& iFeature, bool iBasic)
{
  std::vector<voxhost::Feature*> held;
  const auto& attributes = iFeature.Type().Attributes();
  for (std::size_t place = 0; place < attributes.size(); ++place)
    if (attributes[place].HoldsComponents())
      for (voxhost::Feature* const feature : iFeature.Features(static_cast<int>(place)))
        if (feature->Type().Has(voxhost::kBasicComponentFace) == iBasic)
          held.push_back(feature);
  return held;
}

} // namespace

LoadedModel::LoadedModel() = default;
LoadedModel::~LoadedModel() = default;

std::string LoadedModel::Build(NeutralModel ioRecords, std::shared_ptr<const voxhost::ExplicitRules> iRules,
                               int iRelease)
{
  _Release = iRelease;
  _Records = std::move(ioRecords);
  _Explicit = std::make_unique<voxhost::ExplicitModel>(std::move(iRules));
  _Document = std::make_unique<voxhost::Document>(WorkbenchTypes(iRelease));
  _Document->SetExplicitModel(_Explicit.get());
  ModelBuilder builder(_Records, *_Document, *_Explicit);
  _Root = builder.Build();
  return builder.Failure();
}

bool LoadedModel::Restore(NeutralModel ioRecords, std::unique_ptr<voxhost::ExplicitModel> iExplicit,
                          std::unique_ptr<voxhost::Document> iDocument, int iRelease)
{
  _Release = iRelease;
  _Records = std::move(ioRecords);
  _Explicit = std::move(iExplicit);
  _Document = std::move(iDocument);
  _Document->SetExplicitModel(_Explicit.get());
  const std::vector<voxhost::Feature*> features = _Document->AllFeatures();
  const auto root = std::find_if(features.begin(), features.end(),
                                 [](const voxhost::Feature* iFeature) {
                                   return iFeature->Father() == nullptr && iFeature->Type().Name() == "AnalysisModel";
                                 });
  _Root = root == features.end() ? nullptr : *root;
  return _Root != nullptr;
}

std::vector<voxhost::Feature*> LoadedModel::MembersOf(const char* iSetType) const
{
  for (const voxhost::Feature* const set : ChildrenOf(*_Root))
    if (set->Type().IsSubTypeOf(iSetType))
      return ChildrenOf(*set);
  return {};
}

std::optional<std::int64_t> LoadedModel::EntitiesOf(const voxhost::Feature& iFeature) const
{
  std::optional<std::int64_t> entities;
  const auto add = [&entities](const voxhost::Record& iRecord)
  {
    if (iRecord.applyTo.position != VOXSamPositionUnknown)
      entities = entities.value_or(0) + static_cast<std::int64_t>(iRecord.applyTo.places.size());
  };
  for (const std::int32_t tag : iFeature.ExplicitTags())
  {
    VOXAnalysisExplicitChild object;
    object.LinkWithTag(tag, _Explicit.get());
    const voxhost::Record* const record = _Explicit->RecordOf(object);
    if (record == nullptr)
      continue;
    if (record->hasMesh)
      return static_cast<std::int64_t>(_Explicit->Mesh().elementIds.size());
    add(*record);
    if (iFeature.Type().IsSubTypeOf("SAMSpecifiedGroup"))
      for (VOXSamModelDataRoot* const child : record->children)
        add(*_Explicit->RecordAt(*child));
  }
  return entities;
}

std::vector<voxhost::Feature*> LoadedModel::ChildrenOf(const voxhost::Feature& iFeature)
{
  return HeldBy(iFeature, false);
}

std::vector<voxhost::Feature*> LoadedModel::ComponentsOf(const voxhost::Feature& iFeature)
{
  return HeldBy(iFeature, true);
}

std::string LoadedModel::PathOf(const voxhost::Feature& iFeature)
{
  const voxhost::Feature* const father = iFeature.Father();
  const std::string name = DisplayName(iFeature);
  return father == nullptr ? name : PathOf(*father) + "/" + name;
}

std::string LoadedModel::DisplayName(const voxhost::Feature& iFeature)
{
  const VOXUnicodeString alias = iFeature.Text("Alias");
  const VOXUnicodeString& shown = alias == "" ? iFeature.Name() : alias;
  return static_cast<const char*>(shown);
}

} // namespace voxbench
