// SPDX-License-Identifier: MIT
// What a solver would trip over and the document knows.
#include "voxbench/check/Check.h"
#include "voxbench/check/MeshUse.h"

#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

using voxhost::Feature;

constexpr std::size_t kNamed = 5;

//! "3 elements: 4, 5, 9"; of many the first.
std::string Listed(const char* iWhat, const voxhost::SharedArray<std::int32_t>& iIds,
                   const std::vector<std::size_t>& iPlaces)
{
  std::string ids;
  for (std::size_t at = 0; at < std::min(iPlaces.size(), kNamed); ++at)
    ids += (at == 0 ? "" : ", ") + std::to_string(iIds[iPlaces[at]]);
  if (iPlaces.size() > kNamed)
    ids += ", ...";
  return fmt::format("{} {}{}: {}", iPlaces.size(), iWhat, iPlaces.size() == 1 ? "" : "s", ids);
}

bool AppliesToSomething(const Feature& iFeature)
{
  for (const char* const type :
       {"AnalysisLoad", "AnalysisRestraint", "AnalysisMass", "AnalysisProperty", "SAMConnectionDesigner"})
    if (iFeature.Type().IsSubTypeOf(type))
      return true;
  return false;
}

class UseChecker
{
public:
  UseChecker(const LoadedModel& iModel, CheckResult& ioResult) : _Model(iModel), _Result(ioResult) {}

  void Walk(const Feature& iFeature)
  {
    CheckNames(iFeature);
    if (AppliesToSomething(iFeature))
      CheckTargets(iFeature);
    if (iFeature.Type().IsSubTypeOf("AnalysisConnection"))
      CheckSides(iFeature);
    for (const Feature* const child : LoadedModel::ChildrenOf(iFeature))
      Walk(*child);
  }

  void CheckGroups()
  {
    for (const Feature* const group : _Model.Groups())
      if (group->Referrers().empty() && group->Integer("NamedElsewhere") == 0)
        Add(Rule::GroupUnused, *group, "nothing uses it", "a use by a card, a set or a surface");
  }

  void CheckMaterials()
  {
    for (const Feature* const material : _Model.MembersOf("MaterialSet"))
      if (material->Referrers().empty())
        Add(Rule::MaterialUnused, *material, "no property uses it", "a use by a property");
    for (const Feature* const property : _Model.MembersOf("PropertySet"))
    {
      const std::string kind = property->PhysicalType();
      const bool needsOne = kind == "SOLID_PROPERTY" || kind == "SHELL_PROPERTY" || kind == "BEAM_PROPERTY";
      if (needsOne && property->Features("Materials").empty())
        Add(Rule::MaterialMissing, *property, "it has no material", "a material of the file");
    }
  }

  void CheckMesh()
  {
    const voxhost::MeshData& mesh = _Model.Explicit().Mesh();
    const MeshUse use = UseOfMesh(_Model);
    if (!use.elementsWithoutProperty.empty())
      Add(Rule::ElementWithoutProperty, MeshFeature(), Listed("element", mesh.elementIds, use.elementsWithoutProperty),
          "a property for each");
    if (!use.elementsWithTwoProperties.empty())
      Add(Rule::ElementWithTwoProperties, MeshFeature(),
          Listed("element", mesh.elementIds, use.elementsWithTwoProperties), "one property for each");
    if (!use.unusedNodes.empty())
      Add(Rule::NodeUnused, MeshFeature(), Listed("node", mesh.nodeIds, use.unusedNodes), "a use for each");
  }

private:
  void Add(Rule iRule, const Feature& iFeature, std::string iFound, std::string iAllowed)
  {
    _Result.findings.push_back({iRule, LoadedModel::PathOf(iFeature), std::move(iFound), std::move(iAllowed)});
  }

  void CheckNames(const Feature& iFeature)
  {
    const voxhost::Value value = iFeature.Get("Missing");
    if (const auto* const names = std::get_if<std::vector<std::string>>(&value))
      for (const std::string& name : *names)
        Add(Rule::NameMissing, iFeature, fmt::format("{} is not defined", name), "a set or surface of the file");
  }

  void CheckTargets(const Feature& iFeature)
  {
    const auto supports = iFeature.Features("Supports");
    for (const Feature* const group : supports)
      if (group->Type().IsSubTypeOf("SAMSpecifiedGroup") && _Model.EntitiesOf(*group).value_or(0) == 0)
        Add(Rule::GroupEmpty, iFeature, fmt::format("{} has no members", LoadedModel::DisplayName(*group)),
            "a group with members");
    const bool isPart = iFeature.Type().IsSubTypeOf("SAMConnectionDesigner"); // told with its connection
    const bool isTold = isPart || iFeature.IsLocal(iFeature.IndexOf("Missing"));
    const bool takesAway = iFeature.Integer("Replaces") != 0;
    const bool meshIsElsewhere = _Model.Explicit().Mesh().nodeIds.empty(); // of an earlier run, say
    if (takesAway || meshIsElsewhere)
      return;
    if (supports.empty() && !isTold && _Model.EntitiesOf(iFeature).value_or(0) == 0)
      Add(Rule::TargetNone, iFeature, "it applies to nothing", "nodes, elements, sets or surfaces");
  }

  void CheckSides(const Feature& iConnection)
  {
    for (const int side : {1, 2})
    {
      const auto designers = iConnection.Features(fmt::format("SAMConnectionDesigner{}", side));
      if (designers.size() != 1)
        Add(Rule::ConnectionIncomplete, iConnection, fmt::format("side {} has no designer", side), "one designer");
      else if (designers.front()->Features("Supports").empty())
        Add(Rule::ConnectionIncomplete, iConnection, fmt::format("side {} stands on nothing", side),
            "a set, a surface or a node");
    }
  }

  const Feature& MeshFeature() const
  {
    const std::vector<Feature*> meshes = _Model.MembersOf("MSHSetContainer");
    return meshes.empty() ? _Model.Root() : *meshes.front();
  }

  const LoadedModel& _Model;
  CheckResult& _Result;
};

} // namespace

void CheckUses(const LoadedModel& iModel, CheckResult& ioResult)
{
  UseChecker checker(iModel, ioResult);
  checker.Walk(iModel.Root());
  checker.CheckGroups();
  checker.CheckMaterials();
  checker.CheckMesh();
}

} // namespace voxbench
