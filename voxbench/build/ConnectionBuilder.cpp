// SPDX-License-Identifier: MIT
// What joins parts of a model: ties, contact pairs, couplings, rigid bodies, and the like. Each has two sides, and each side
// is designed by one feature.
#include "voxbench/build/ModelBuilder.h"
#include "voxbench/features/TypeNames.h"

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

std::string AliasOf(const Connection& iConnection)
{
  std::string alias = WordFor(iConnection.kind);
  if (!iConnection.name.empty())
    alias += " " + iConnection.name;
  if (iConnection.card.step > 0)
    alias += fmt::format(", step {}", iConnection.card.step);
  return alias;
}

//! A cyclic symmetry joins the surfaces of the tie that it names.
const Connection& WithSurfaces(const Connection& iConnection, const std::vector<Connection>& iAll)
{
  if (iConnection.kind != ConnectionKind::CyclicSymmetry)
    return iConnection;
  const auto isItsTie = [&iConnection](const Connection& iOther)
  { return iOther.kind == ConnectionKind::Tie && iOther.name == iConnection.name; };
  const auto tie = std::find_if(iAll.begin(), iAll.end(), isItsTie);
  return tie == iAll.end() ? iConnection : *tie;
}

} // namespace

void ModelBuilder::BuildConnections()
{
  const Pair connections = MakeSet("ConnectionSet", "CONNECTION_SET", "Connections");
  for (const Connection& connection : _Records.connections)
  {
    const std::string& keyword = connection.card.keyword;
    const Plan plan{kConnectionType, "CONNECTION", NextName(keyword), AliasOf(connection)};
    const Pair made = MakeEntity(connections, plan, keyword, connection.card.step);
    const Connection& surfaces = WithSurfaces(connection, _Records.connections);
    if (JoinsTwoSurfaces(connection.kind))
    {
      BuildSide(made, 1, surfaces.dependent, {});
      BuildSide(made, 2, surfaces.independent, {});
    }
    else
    {
      std::vector<std::int32_t> nodes;
      for (const std::int32_t node : {connection.referenceNode, connection.rotationNode})
        if (node != 0)
          nodes.push_back(node);
      BuildSide(made, 1, "", nodes);
      BuildSide(made, 2, connection.dependent, {});
    }
  }
}

//! @param iTarget a set or surface; "" when the side is nodes. A side of neither has no designer.
void ModelBuilder::BuildSide(const Pair& iConnection, int iNumber, const std::string& iTarget,
                             const std::vector<std::int32_t>& iNodes)
{
  if (iTarget.empty() && iNodes.empty())
    return;
  const std::string alias = iNodes.empty() ? iTarget : fmt::format("node {}", fmt::join(iNodes, " and "));
  const Plan plan{kConnectionSideType, "CONNECTION_SIDE", fmt::format("Side.{}", iNumber), alias};
  const Pair side = Make(iConnection, plan);
  side.feature->Add("Designers", *_Mesh.feature);
  iConnection.feature->Add(fmt::format("SAMConnectionDesigner{}", iNumber), *side.feature);

  ApplyToUnion targets(_Model.Mesh());
  std::vector<voxhost::Feature*> supports;
  for (const std::int32_t node : iNodes)
    targets.AddNode(node);
  if (!iNodes.empty())
    supports.push_back(_Mesh.feature);
  else if (const NamedGroup* const group = FindSurfaceOrSet(iTarget))
  {
    targets.Add(group->members);
    supports.push_back(group->feature);
  }
  else
    NoteMissing(*side.feature, {iTarget});
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
