// SPDX-License-Identifier: MIT
#include "voxbench/check/MeshUse.h"
#include "voxbench/features/TypeNames.h"

#include <algorithm>

namespace voxbench
{
namespace
{

//! Elements of the other families are what their own cards say, or are not understood.
bool NeedsProperty(ElementFamily iFamily)
{
  switch (iFamily)
  {
  case ElementFamily::Contact:
  case ElementFamily::DistributingCoupling:
  case ElementFamily::Connector:
  case ElementFamily::FluidNetwork:
  case ElementFamily::User:
  case ElementFamily::Unknown:
    return false;
  default:
    return true;
  }
}

//! What a feature's object applies to; null when it has none.
const voxhost::ApplyTo* ApplyToOf(const LoadedModel& iModel, const voxhost::Feature& iFeature)
{
  VOXAnalysisExplicitChild object;
  object.LinkWithTag(iFeature.FirstExplicitTag(), &iModel.Explicit());
  const voxhost::Record* const record = iModel.Explicit().RecordOf(object);
  return record == nullptr ? nullptr : &record->applyTo;
}

//! Marks the nodes that constraints and connections hold, and those of a fluid that drive loads.
void MarkHeldNodes(const LoadedModel& iModel, const voxhost::Feature& iFeature, std::vector<bool>& ioUsed)
{
  if (iFeature.Type().IsSubTypeOf(kConstraintType) || iFeature.Type().IsSubTypeOf("SAMConnectionDesigner"))
  {
    const voxhost::ApplyTo* const applyTo = ApplyToOf(iModel, iFeature);
    if (applyTo != nullptr && applyTo->position == VOXSamPositionNode)
      for (const std::uint32_t place : applyTo->places)
        ioUsed[place] = true;
  }
  const voxhost::Value fluidNodes = iFeature.Get("FluidNodes");
  if (const auto* const ids = std::get_if<std::vector<std::int32_t>>(&fluidNodes))
    for (const std::int32_t id : *ids)
      if (const std::int64_t place = voxhost::PlaceOfId(iModel.Explicit().Mesh().nodeIds, id); place >= 0)
        ioUsed[static_cast<std::size_t>(place)] = true;
  for (const voxhost::Feature* const child : LoadedModel::ChildrenOf(iFeature))
    MarkHeldNodes(iModel, *child, ioUsed);
}

//! Properties per element: 0, 1, or 2 for more than one.
std::vector<std::uint8_t> CountProperties(const LoadedModel& iModel)
{
  std::vector<std::uint8_t> counts(iModel.Explicit().Mesh().elementIds.size(), 0);
  for (const char* const set : {"PropertySet", "MassSet"})
    for (const voxhost::Feature* const property : iModel.MembersOf(set))
      if (const voxhost::ApplyTo* const applyTo = ApplyToOf(iModel, *property); applyTo != nullptr)
        for (const std::uint32_t place : applyTo->places)
          counts[place] = static_cast<std::uint8_t>(std::min(counts[place] + 1, 2));
  return counts;
}

} // namespace

MeshUse UseOfMesh(const LoadedModel& iModel)
{
  MeshUse use;
  const std::vector<std::uint8_t> properties = CountProperties(iModel);
  for (std::size_t place = 0; place < properties.size(); ++place)
    if (properties[place] == 0 && NeedsProperty(iModel.FamilyOf(place)))
      use.elementsWithoutProperty.push_back(place);
    else if (properties[place] > 1)
      use.elementsWithTwoProperties.push_back(place);

  const voxhost::MeshData& mesh = iModel.Explicit().Mesh();
  std::vector<bool> used(mesh.nodeIds.size(), false);
  for (const std::int32_t id : mesh.connectivity)
    if (const std::int64_t place = voxhost::PlaceOfId(mesh.nodeIds, id); place >= 0)
      used[static_cast<std::size_t>(place)] = true;
  MarkHeldNodes(iModel, iModel.Root(), used);
  for (std::size_t place = 0; place < used.size(); ++place)
    if (!used[place])
      use.unusedNodes.push_back(place);
  return use;
}

} // namespace voxbench
