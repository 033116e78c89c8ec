// SPDX-License-Identifier: MIT
#pragma once

#include "host/FeatureModeler/Feature.h"
#include "host/ObjectModeler/Container.h"
#include "host/ObjectModeler/Views.h"

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace voxhost
{

//! Whether a new feature gets the components that its start-up holds.
enum class Components
{
  kAsStartUp, //!< instances of the start-up's components, at once
  kNone       //!< none: a store or an upgrade brings its own
};

//! How VOXISamExplicit::ListTags fills the list that it is given. The contract says that it appends; a host whose
//! listing replaces exists, and what must live with both is tested with both.
enum class TagListing
{
  kAppends,
  kReplaces
};

//! An analysis document: containers, start-ups, features, their states and their views.
//!
//! - It owns everything in it; features, containers and start-ups that it hands out are borrowed.
//! - The start-up of a type is made when it is first needed, in a container of its own.
//! - A change of a feature stamps it and puts it, what holds it and what refers to it out of date. Bringing a feature up
//!   to date first brings up to date what it holds and refers to.
//! - Destroying the document turns features that somebody still holds into removed ones.
class VOX_HOST_API Document
{
public:
  //! What an update of a feature does, given what the feature depends on is up to date. It may change the document and
  //! remove features. @return a failure leaves the feature out of date.
  using UpdateCallback = std::function<HRESULT(Feature&)>;

  explicit Document(std::shared_ptr<const TypeCatalogue> iTypes);
  ~Document();
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  const TypeCatalogue& Types() const { return *_Types; }

  //! The container that new features go to unless another one is named.
  Container& MainContainer() const { return *_Containers[1]; }
  Container& StartUpContainer() const { return *_Containers[0]; }

  //! Makes a container. @param iLateType late type of its component, derived from "SpecContainer"; it is declared when
  //! it is new. @param iHolds true: the container is the father of its features that no feature holds.
  //! @return borrowed; null when the late type stands with another base.
  Container* NewContainer(const std::string& iName, const char* iLateType = "SpecContainer", bool iHolds = false);
  const std::vector<Container*>& Containers() const { return _Containers; }

  //! The start-up of a type; null for an unknown or abstract type.
  Feature* StartUp(std::string_view iType);

  //! Makes an instance. @param iName empty for a name of the document's choice: the start-up's name, a point, a number.
  //! @return borrowed; null for an unknown or abstract type, a start-up of another document, or no memory.
  Feature* New(std::string_view iType, const VOXUnicodeString& iName, Container* iContainer = nullptr,
               Components iComponents = Components::kAsStartUp);
  Feature* New(Feature& iStartUp, const VOXUnicodeString& iName, Container* iContainer = nullptr,
               Components iComponents = Components::kAsStartUp);

  //! Removes a feature and its components; references to them are emptied.
  void Remove(Feature& iFeature);

  //! A feature or start-up by identifier; null when there is none any more.
  Feature* FindFeature(std::uint32_t iIdentifier) const;

  //! All features, components included, start-ups not, by identifier; borrowed.
  std::vector<Feature*> AllFeatures() const;

  //! Number of features, components included, start-ups not.
  std::size_t NumberOfFeatures() const { return _NumberOfFeatures; }

  //! The last time stamp given. Stamps grow by one with every change of any feature.
  std::int32_t Clock() const { return _Clock; }

  //! What updates of features of a type (and of those that derive from it, unless they have their own) do.
  void OnUpdate(std::string_view iType, UpdateCallback iCallback);

  //! Brings a feature up to date, and before it what it holds and refers to. @return S_OK; E_FAIL when its own update or
  //! that of something that it depends on failed: it then stays out of date.
  HRESULT Update(Feature& iFeature);

  //! Brings all features up to date. @return S_OK; E_FAIL when some stayed out of date.
  HRESULT UpdateAll();

  //! Explicit model of the features that have none of their own, borrowed.
  void SetExplicitModel(VOXAnalysisExplicitModel* iModel) { _ExplicitModel = iModel; }
  VOXAnalysisExplicitModel* ExplicitModel() const { return _ExplicitModel; }

  void SetTagListing(TagListing iListing) { _TagListing = iListing; }
  TagListing HowTagsAreListed() const { return _TagListing; }

  //! What is shown where, and what was asked of the view manager.
  Views& ShownViews() { return _Views; }
  const Views& ShownViews() const { return _Views; }

  //! Makes room for that many features.
  void Reserve(std::size_t iFeatures);

private:
  friend class Feature;
  friend class Restoration;

  //! @param iIdentifier of a place that is free; 0 for a new one.
  Feature* Make(const FeatureType& iType, Feature* iStartUp, const VOXUnicodeString& iName, Container& iContainer,
                std::uint32_t iIdentifier = 0);
  Feature* MakeStartUp(const FeatureType& iType, const VOXUnicodeString& iName);
  bool FillStartUp(Feature& ioStartUp);
  bool FillComponents(Feature& ioStartUp, int iAttribute);
  VOXUnicodeString NameFor(const Feature& iStartUp);
  void FeatureChanged(Feature& iFeature);
  void PutOutOfDate(Feature& iFeature);
  std::vector<Feature*> WithComponents(Feature& iFeature) const;
  void EmptyReferencesTo(Feature& iFeature);
  void Forget(Feature& iFeature);
  HRESULT RunUpdate(Feature& iFeature);
  void PushDependencies(Feature& iFeature, std::vector<Feature*>& ioStack) const;
  const UpdateCallback* CallbackFor(const FeatureType& iType) const;
  void BuryTheRemoved();

  std::shared_ptr<const TypeCatalogue> _Types;
  std::vector<Container*> _Containers; // the start-ups' first, then the main one; one reference each
  std::vector<Feature*> _ById;         // by identifier minus 1, one reference each; null once removed
  std::unordered_map<const FeatureType*, Feature*> _StartUps;
  std::unordered_map<const Feature*, std::uint32_t> _NamesGiven; // per start-up, for names of the document's choice
  std::unordered_map<const FeatureType*, UpdateCallback> _Callbacks;
  std::vector<Feature*> _Removed; // removed while an update runs, one reference each
  std::size_t _NumberOfFeatures = 0;
  std::int32_t _Clock = 0;
  int _UpdateDepth = 0;
  VOXAnalysisExplicitModel* _ExplicitModel = nullptr;
  TagListing _TagListing = TagListing::kAppends;
  Views _Views;
};

} // namespace voxhost
