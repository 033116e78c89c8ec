// SPDX-License-Identifier: MIT
#pragma once
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/FeatureModeler/Document.h"
#include "voxbench/build/MeshPlaces.h"
#include "voxbench/features/GroupKind.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace voxbench
{

//! Makes the features of a document and the objects of an explicit model out of records.
//!
//! - Feature tree: an analysis model; in it the mesh set, and a set for each kind of entity that an analysis has; in
//!   those the entities of the file, in its order.
//! - Explicit model: the same tree as objects. Each feature knows its object by the tag in "ExplicitTag".
//! - A group's object has one child, of the physical type of its kind, which applies to the members.
class ModelBuilder
{
public:
  ModelBuilder(NeutralModel& ioRecords, voxhost::Document& ioDocument, voxhost::ExplicitModel& ioModel);

  //! @return the analysis model, borrowed; null when it cannot be made: Failure tells why.
  voxhost::Feature* Build();
  const std::string& Failure() const { return _Failure; }

private:
  //! A feature and its object in the explicit model.
  struct Pair
  {
    voxhost::Feature* feature = nullptr;
    VOXAnalysisExplicitEntity object;
  };
  //! A set or surface by name: its feature, and what it gathers.
  struct NamedGroup
  {
    voxhost::Feature* feature = nullptr;
    voxhost::ApplyTo members;
  };
  using NamedGroups = std::unordered_map<std::string, NamedGroup>;

  //! What a new feature is told.
  struct Plan
  {
    const char* type;
    const char* physicalType;
    std::string name; //!< unique among its like
    std::string alias;
  };

  //! What one side of a connection stands on.
  struct SideTargets
  {
    std::vector<std::string> names; //!< of sets and surfaces
    std::vector<std::int32_t> nodes;
    std::int32_t element = 0; //!< 0 for none
  };

  Pair Make(const Pair& iParent, const Plan& iPlan);
  Pair MakeSet(const char* iType, const char* iPhysicalType, const char* iName);
  Pair MakeEntity(const Pair& iSet, const Plan& iPlan, const std::string& iKeyword, std::int32_t iStep);
  void Finish(const Pair& iEntity, ApplyToUnion& ioTargets, const std::vector<voxhost::Feature*>& iSupports);

  void BuildMesh();
  void BuildGroups();
  void BuildGroup(const char* iType, const GroupKind& iKind, const char* iDefinition, const std::string& iName,
                  voxhost::ApplyTo iMembers, NamedGroups& ioIndex);
  void BuildSurface(Surface& ioSurface);
  void BuildMaterials();
  void BuildAxes();
  void SetFrame(const Pair& iAxis, const LocalAxes& iCard);
  void LogImplicitAxes(const Pair& iAxisSet);
  void BuildProperties();
  void ReferToMaterials(voxhost::Feature& ioProperty, const Section& iSection) const;
  void BuildRestraints();
  void BuildLoads();
  voxhost::Feature& BuildApplied(const Pair& iSet, const char* iType, const char* iPhysicalType,
                                 const AppliedCard& iCard);
  void BuildModulations();
  void BuildSensors();
  void BuildEquations(const Pair& iSet);
  void AddEquation(const Pair& iConstraint, std::size_t iRow, ApplyToUnion& ioTargets);
  void BuildMultiPointConstraints(const Pair& iSet);
  void AddConstraint(const MultiPointConstraint& iConstraint, ApplyToUnion& ioTargets,
                     std::vector<voxhost::Feature*>& ioSupports) const;
  void BuildConnections();
  void BuildFromReferenceNode(const Pair& iMade, const Connection& iConnection);
  void BuildSide(const Pair& iConnection, int iNumber, const SideTargets& iTargets);
  static SideTargets FirstFields(const CardRecord& iCard);
  static std::string NameOfSide(const SideTargets& iTargets);
  using ComponentValues = std::vector<std::pair<std::string, double>>; // by type of the component
  void ChooseSectionKind(voxhost::Feature& ioProperty, const Section& iSection);
  void FillPlies(voxhost::Feature& ioProperty, const Section& iSection);
  void ChooseRestraintKind(voxhost::Feature& ioRestraint, const AppliedCard& iCard);
  void Choose(voxhost::Feature& ioFeature, int iIndex, const ComponentValues& iValues);

  const NamedGroup* Find(const NamedGroups& iIndex, std::string_view iName) const;
  void NoteMissing(voxhost::Feature& ioFeature, const std::vector<std::string>& iNames) const;
  //! The set or surface that a card means by a name: of nodes or of elements first, then any other.
  const NamedGroup* FindTarget(const std::string& iName, bool iOnNodes) const;
  const NamedGroup* FindSurfaceOrSet(const std::string& iName) const;
  std::string NextName(const std::string& iKeyword);

  NeutralModel& _Records;
  voxhost::Document& _Document;
  voxhost::ExplicitModel& _Model;
  std::string _Failure;
  std::unordered_set<std::string> _NamesInUse; // by what becomes no feature
  Pair _Root;
  Pair _Mesh;
  Pair _GroupSet;
  std::unordered_map<std::string, voxhost::Feature*> _Materials;
  NamedGroups _NodeGroups;
  NamedGroups _ElementGroups;
  NamedGroups _Surfaces;
  NamedGroups _NodeSurfaces;
  std::unordered_map<std::string, int> _Numbers; // of features given so far, per keyword
};

} // namespace voxbench
