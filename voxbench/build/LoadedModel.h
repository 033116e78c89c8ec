// SPDX-License-Identifier: MIT
#pragma once
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/FeatureModeler/Document.h"
#include "voxbench/features/Releases.h"
#include "voxbench/readers/NeutralModel.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace voxbench
{

//! A file, opened: the document with its feature tree, the explicit model, and the records that both were made from.
//!
//! - Owns all three. Features that it hands out are borrowed.
//! - The mesh and the members of sets stand in the explicit model alone: they were moved there out of the records.
class LoadedModel
{
public:
  LoadedModel();
  ~LoadedModel();
  LoadedModel(const LoadedModel&) = delete;
  LoadedModel& operator=(const LoadedModel&) = delete;

  //! Makes document and explicit model; once. @return what is wrong, a sentence: the model is then of no use; else "".
  //! @param iRules what the explicit model may be made of. @param iRelease whose start-ups features are made from.
  std::string Build(NeutralModel ioRecords,
                    std::shared_ptr<const voxhost::ExplicitRules> iRules = voxhost::ExplicitRules::Default(),
                    int iRelease = kNewestRelease);

  //! Takes over what a store kept; once. @return false when the document has no analysis model.
  bool Restore(NeutralModel ioRecords, std::unique_ptr<voxhost::ExplicitModel> iExplicit,
               std::unique_ptr<voxhost::Document> iDocument, int iRelease = kNewestRelease);

  //! The release whose start-ups the features were made from, or upgraded to.
  int Release() const { return _Release; }

  //! What a store tells the content of the opened file by; "" for a deck.
  const std::string& Seal() const { return _Seal; }
  void SetSeal(std::string iSeal) { _Seal = std::move(iSeal); }

  const NeutralModel& Records() const { return _Records; }
  voxhost::Document& Document() const { return *_Document; }
  voxhost::ExplicitModel& Explicit() const { return *_Explicit; }

  //! The analysis model: the root of the feature tree.
  voxhost::Feature& Root() const { return *_Root; }

  //! The features of a set of the analysis model, by the set's type, in their order; none when there is no such set.
  std::vector<voxhost::Feature*> MembersOf(const char* iSetType) const;
  std::vector<voxhost::Feature*> Groups() const { return MembersOf("GroupSet"); }

  //! Number of nodes, elements or sides that a feature's objects in the explicit model apply to; of a mesh its elements.
  //! None for features that apply to nothing by their nature, such as sets.
  std::optional<std::int64_t> EntitiesOf(const voxhost::Feature& iFeature) const;

  //! The features that a feature holds, in the order of its attributes, basic components left out: those are parts of
  //! its values.
  static std::vector<voxhost::Feature*> ChildrenOf(const voxhost::Feature& iFeature);

  //! The basic components that a feature holds, in the order of its attributes.
  static std::vector<voxhost::Feature*> ComponentsOf(const voxhost::Feature& iFeature);

  //! What an element is, by its place in the mesh.
  ElementFamily FamilyOf(std::size_t iElement) const
  {
    return _Records.elementTypes[_Explicit->Mesh().elementTypes[iElement]].family;
  }

  //! Names from the analysis model down to a feature, "/" between them.
  static std::string PathOf(const voxhost::Feature& iFeature);

  //! The alias; of a feature without one, its name.
  static std::string DisplayName(const voxhost::Feature& iFeature);

private:
  NeutralModel _Records;
  std::unique_ptr<voxhost::ExplicitModel> _Explicit; // outlives the document, whose features have handles on it
  std::unique_ptr<voxhost::Document> _Document;
  voxhost::Feature* _Root = nullptr;
  int _Release = kNewestRelease;
  std::string _Seal;
};

} // namespace voxbench
