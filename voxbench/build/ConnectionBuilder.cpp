// SPDX-License-Identifier: MIT
// What joins parts of a model: ties, contact pairs, couplings, rigid bodies, and the like. Each has two sides, and each side
// is designed by one feature.
#include "voxbench/build/ModelBuilder.h"
#include "voxbench/features/TypeNames.h"
#include "voxbench/readers/Numbers.h"

#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

const char* WordFor(ConnectionKind iKind)
{
  switch (iKind)
  {
  case ConnectionKind::Tie:
    return "Tie";
  case ConnectionKind::ContactPair:
    return "Contact pair";
  case ConnectionKind::Coupling:
    return "Coupling";
  case ConnectionKind::DistributingCoupling:
    return "Distributing coupling";
  case ConnectionKind::RigidBody:
    return "Rigid body";
  case ConnectionKind::PreTension:
    return "Pre-tension section";
  case ConnectionKind::CyclicSymmetry:
    return "Cyclic symmetry";
  case ConnectionKind::Clearance:
    return "Clearance";
  }
  return "Connection";
}

bool JoinsTwoSurfaces(ConnectionKind iKind)
{
  return iKind == ConnectionKind::Tie || iKind == ConnectionKind::ContactPair || iKind == ConnectionKind::Clearance ||
         iKind == ConnectionKind::CyclicSymmetry;
}

std::string AliasFor(const Connection& iConnection)
{
  std::string alias = WordFor(iConnection.kind);
  if (!iConnection.name.empty())
    alias += " " + iConnection.name;
  if (iConnection.card.step > 0)
    alias += fmt::format(", step {}", iConnection.card.step);
  return alias;
}

//! A cyclic symmetry joins the surfaces of the tie that it names, or of the first that is made for one.
const Connection& WithSurfaces(const Connection& iConnection, const std::vector<Connection>& iAll)
{
  if (iConnection.kind != ConnectionKind::CyclicSymmetry)
    return iConnection;
  const auto isItsTie = [&iConnection](const Connection& iOther)
  {
    const bool isMeant = iConnection.name.empty() ? iOther.card.Has("CYCLICSYMMETRY") : iOther.name == iConnection.name;
    return iOther.kind == ConnectionKind::Tie && isMeant;
  };
  const auto tie = std::find_if(iAll.begin(), iAll.end(), isItsTie);
  return tie == iAll.end() ? iConnection : *tie;
}

} // namespace

//! The nodes and node sets that the data lines of a card begin with.
ModelBuilder::SideTargets ModelBuilder::FirstFields(const CardRecord& iCard)
{
  SideTargets targets;
  for (std::size_t line = 0; line < iCard.data.size(); ++line)
  {
    const std::string& field = iCard.Text(line, 0);
    std::int32_t node = 0;
    if (ParseInteger(field, node))
      targets.nodes.push_back(node);
    else if (!field.empty())
      targets.names.push_back(field);
  }
  return targets;
}

//! "" for nothing.
std::string ModelBuilder::NameOfSide(const SideTargets& iTargets)
{
  constexpr std::size_t kNamed = 3;
  std::vector<std::string> parts;
  for (const std::string& name : iTargets.names)
    if (!name.empty())
      parts.push_back(name);
  for (const std::int32_t node : iTargets.nodes)
    parts.push_back(fmt::format("node {}", node));
  if (iTargets.element != 0)
    parts.push_back(fmt::format("element {}", iTargets.element));
  if (parts.size() <= kNamed)
    return fmt::format("{}", fmt::join(parts, " and "));
  const std::size_t further = parts.size() - kNamed;
  parts.resize(kNamed);
  return fmt::format("{} and {} more", fmt::join(parts, ", "), further);
}

void ModelBuilder::BuildConnections()
{
  const Pair connections = MakeSet("ConnectionSet", "CONNECTION_SET", "Connections");
  for (const Connection& connection : _Records.connections)
  {
    const std::string& keyword = connection.card.keyword;
    const Plan plan{kConnectionType, "CONNECTION", NextName(keyword), AliasFor(connection)};
    const Pair made = MakeEntity(connections, plan, keyword, connection.card.step);
    const Connection& surfaces = WithSurfaces(connection, _Records.connections);
    if (JoinsTwoSurfaces(connection.kind))
    {
      BuildSide(made, 1, SideTargets{{surfaces.dependent}, {}, 0});
      BuildSide(made, 2, SideTargets{{surfaces.independent}, {}, 0});
    }
    else if (connection.kind == ConnectionKind::DistributingCoupling)
    {
      BuildSide(made, 1, SideTargets{{connection.dependent}, {}, 0});
      BuildSide(made, 2, FirstFields(connection.card));
    }
    else
      BuildFromReferenceNode(made, connection);
  }
}

//! A reference node on one side, and what follows it: a set, a surface, or one element.
void ModelBuilder::BuildFromReferenceNode(const Pair& iMade, const Connection& iConnection)
{
  std::vector<std::int32_t> nodes;
  for (const std::int32_t node : {iConnection.referenceNode, iConnection.rotationNode})
    if (node != 0)
      nodes.push_back(node);
  std::int32_t element = 0;
  const bool isElement = iConnection.card.Has("ELEMENT") && ParseInteger(iConnection.dependent, element);
  BuildSide(iMade, 1, SideTargets{{}, nodes, 0});
  BuildSide(iMade, 2, isElement ? SideTargets{{}, {}, element} : SideTargets{{iConnection.dependent}, {}, 0});
}

//! A side of nothing has no designer.
void ModelBuilder::BuildSide(const Pair& iConnection, int iNumber, const SideTargets& iTargets)
{
  const std::string alias = NameOfSide(iTargets);
  if (alias.empty())
    return;
  const Plan plan{kConnectionSideType, "CONNECTION_SIDE", fmt::format("Side.{}", iNumber), alias};
  const Pair side = Make(iConnection, plan);
  side.feature->Add("Designers", *_Mesh.feature);
  iConnection.feature->Add(fmt::format("SAMConnectionDesigner{}", iNumber), *side.feature);

  ApplyToUnion targets(_Model.Mesh());
  std::vector<voxhost::Feature*> supports;
  std::vector<std::string> missing;
  for (const std::int32_t node : iTargets.nodes)
    targets.AddNode(node);
  if (iTargets.element != 0)
    targets.AddElement(iTargets.element);
  if (!iTargets.nodes.empty() || iTargets.element != 0)
    supports.push_back(_Mesh.feature);
  for (const std::string& name : iTargets.names)
  {
    if (name.empty())
      continue;
    const NamedGroup* const group = FindSurfaceOrSet(name);
    if (group == nullptr)
    {
      missing.push_back(name);
      continue;
    }
    targets.Add(group->members);
    supports.push_back(group->feature);
  }
  NoteMissing(*side.feature, missing);
  Finish(side, targets, supports);
}

//! Connections name surfaces first; a rigid body or a pre-tension section may name a set.
const ModelBuilder::NamedGroup* ModelBuilder::FindSurfaceOrSet(const std::string& iName) const
{
  for (const NamedGroups* const index : {&_Surfaces, &_NodeSurfaces, &_NodeGroups, &_ElementGroups})
    if (const NamedGroup* const group = Find(*index, iName))
      return group;
  return nullptr;
}

} // namespace voxbench
