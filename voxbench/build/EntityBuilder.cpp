// SPDX-License-Identifier: MIT
// The entities that the cards of a file define: materials, properties, masses, restraints, loads, modulations and sensors.
#include "voxbench/build/EntityNames.h"
#include "voxbench/build/ModelBuilder.h"
#include "voxbench/features/TypeNames.h"

#include <algorithm>

namespace voxbench
{
namespace
{

const char* PhysicalTypeOf(SectionKind iKind)
{
  switch (iKind)
  {
  case SectionKind::Solid:
    return "SOLID_PROPERTY";
  case SectionKind::Shell:
  case SectionKind::Membrane:
    return "SHELL_PROPERTY";
  case SectionKind::Beam:
    return "BEAM_PROPERTY";
  case SectionKind::Spring:
  case SectionKind::Dashpot:
    return "SPRING_PROPERTY";
  case SectionKind::Mass:
    return "POINT_MASS";
  case SectionKind::Fluid:
  case SectionKind::Gap:
  case SectionKind::User:
    break;
  }
  return "OTHER_PROPERTY";
}

const char* PhysicalTypeOf(const AppliedCard& iLoad)
{
  if (iLoad.keyword == "CLOAD")
    return "CONCENTRATED_LOAD";
  if (iLoad.keyword == "DLOAD" || iLoad.keyword == "DSLOAD")
    return "DISTRIBUTED_LOAD";
  if (iLoad.keyword == "MASSFLOW")
    return "OTHER_LOAD";
  return "THERMAL_LOAD";
}

//! Nodes whose temperature or pressure drives a film (F2FC) or a pressure (P2NP): they stand where a value might.
std::vector<std::int32_t> FluidNodesOf(const AppliedCard& iCard, const NeutralModel& iRecords)
{
  std::vector<std::int32_t> nodes;
  for (const AppliedRow& row : iCard.rows)
  {
    const std::string label = row.label < 0 ? std::string() : iRecords.names[static_cast<std::size_t>(row.label)];
    const bool isDriven = label.find("FC") != std::string::npos || label.find("NP") != std::string::npos;
    const auto values = iCard.ValuesOf(row);
    if (!isDriven || values.empty() || !(values[0] >= 1. && values[0] < 2147483648.))
      continue;
    const auto node = static_cast<std::int32_t>(values[0]);
    if (nodes.empty() || nodes.back() != node)
      nodes.push_back(node);
  }
  return nodes;
}

} // namespace

ModelBuilder::Pair ModelBuilder::MakeEntity(const Pair& iSet, const Plan& iPlan, const std::string& iKeyword,
                                            std::int32_t iStep)
{
  const Pair entity = Make(iSet, iPlan);
  // Restraints of former releases had another name for the one, and another type for the other.
  if (FAILED(entity.feature->Set("Keyword", iKeyword)))
    entity.feature->Set("Card", iKeyword);
  if (FAILED(entity.feature->Set("Step", iStep)))
    entity.feature->Set("Step", static_cast<double>(iStep));
  return entity;
}

void ModelBuilder::Finish(const Pair& iEntity, ApplyToUnion& ioTargets, const std::vector<voxhost::Feature*>& iSupports)
{
  for (voxhost::Feature* const support : iSupports)
    iEntity.feature->Add("Supports", *support);
  _Model.SetApplyTo(iEntity.object, ioTargets.Take());
}

void ModelBuilder::BuildMaterials()
{
  const Pair materials = MakeSet("MaterialSet", "MATERIAL_SET", "Materials");
  for (const Material& material : _Records.materials)
  {
    const Plan plan{kMaterialType, "MATERIAL", NextName("MATERIAL"), material.name};
    _Materials.try_emplace(material.name, MakeEntity(materials, plan, "MATERIAL", 0).feature);
  }
}

//! A composite shell has a material per layer; one that several layers share is referred to once.
void ModelBuilder::ReferToMaterials(voxhost::Feature& ioProperty, const Section& iSection) const
{
  std::vector<std::string> names{iSection.material};
  for (const Section::Layer& layer : iSection.layers)
    names.push_back(layer.material);
  std::vector<const voxhost::Feature*> referred;
  for (const std::string& name : names)
  {
    const auto found = _Materials.find(name);
    if (found == _Materials.end() || std::find(referred.begin(), referred.end(), found->second) != referred.end())
      continue;
    ioProperty.Add("Materials", *found->second);
    referred.push_back(found->second);
  }
}

void ModelBuilder::BuildProperties()
{
  const Pair properties = MakeSet("PropertySet", "PROPERTY_SET", "Properties");
  const Pair masses = MakeSet("MassSet", "MASS_SET", "Masses");
  for (const Section& section : _Records.sections)
  {
    const bool isMass = section.kind == SectionKind::Mass;
    const Plan plan{isMass                   ? kMassType
                    : section.layers.empty() ? kPropertyType
                                             : kLayeredShellType,
                    PhysicalTypeOf(section.kind), NextName(section.card.keyword), AliasOf(section)};
    const Pair entity = MakeEntity(isMass ? masses : properties, plan, section.card.keyword, section.card.step);
    ApplyToUnion targets(_Model.Mesh());
    std::vector<voxhost::Feature*> supports;
    if (const NamedGroup* const group = Find(_ElementGroups, section.elementSet))
    {
      targets.Add(group->members);
      supports.push_back(group->feature);
    }
    else if (!section.elementSet.empty())
      NoteMissing(*entity.feature, {section.elementSet});
    if (!isMass)
    {
      ReferToMaterials(*entity.feature, section);
      ChooseSectionKind(*entity.feature, section);
      FillPlies(*entity.feature, section);
    }
    Finish(entity, targets, supports);
  }
}

void ModelBuilder::BuildRestraints()
{
  const Pair restraints = MakeSet("RestraintSet", "RESTRAINT_SET", "Restraints");
  const char* const type = _Document.Types().Find(kRestraintType) != nullptr ? kRestraintType : kFormerRestraintType;
  for (const AppliedCard& card : _Records.restraints)
    ChooseRestraintKind(BuildApplied(restraints, type, "DISPLACEMENT", card), card);
  BuildEquations(restraints);
  BuildMultiPointConstraints(restraints);
}

void ModelBuilder::BuildLoads()
{
  const Pair loads = MakeSet("LoadSet", "LOAD_SET", "Loads");
  for (const AppliedCard& card : _Records.loads)
    BuildApplied(loads, kLoadType, PhysicalTypeOf(card), card);
}

voxhost::Feature& ModelBuilder::BuildApplied(const Pair& iSet, const char* iType, const char* iPhysicalType,
                                             const AppliedCard& iCard)
{
  const bool onNodes = ActsOnNodes(iCard);
  const Plan plan{iType, iPhysicalType, NextName(iCard.keyword), AliasOf(iCard, _Records)};
  const Pair entity = MakeEntity(iSet, plan, iCard.keyword, iCard.step);

  ApplyToUnion targets(_Model.Mesh());
  std::vector<voxhost::Feature*> supports;
  std::vector<std::string> missing;
  for (const AppliedRow& row : iCard.rows)
  {
    if (row.name < 0 && onNodes)
      targets.AddNode(row.id);
    else if (row.name < 0)
      targets.AddElement(row.id);
    else if (const NamedGroup* const group = FindTarget(_Records.names[static_cast<std::size_t>(row.name)], onNodes);
             group == nullptr)
      missing.push_back(_Records.names[static_cast<std::size_t>(row.name)]);
    else
    {
      if (std::find(supports.begin(), supports.end(), group->feature) != supports.end())
        continue;
      targets.Add(group->members);
      supports.push_back(group->feature);
    }
  }
  if (iCard.replaces)
    entity.feature->Set("Replaces", std::int32_t{1});
  if (std::vector<std::int32_t> nodes = FluidNodesOf(iCard, _Records); !nodes.empty())
    entity.feature->Set("FluidNodes", std::move(nodes));
  NoteMissing(*entity.feature, missing);
  Finish(entity, targets, supports);
  return *entity.feature;
}

void ModelBuilder::BuildModulations()
{
  const Pair modulations = MakeSet("ModulationSet", "MODULATION_SET", "Modulations");
  for (const Amplitude& amplitude : _Records.amplitudes)
  {
    const Pair made = MakeEntity(modulations, {kModulationType, "MODULATION", NextName("AMPLITUDE"), amplitude.name},
                                 "AMPLITUDE", amplitude.card.step);
    voxhost::ExpressionData table;
    for (std::size_t point = 0; point < amplitude.times.size(); ++point)
      table.table.emplace_back(amplitude.times[point], amplitude.values[point]);
    _Model.SetExpression(_Model.Create(made.object, "EXPRESSION", amplitude.name), std::move(table));
  }
}

void ModelBuilder::BuildSensors()
{
  const Pair sensors = MakeSet("SensorSet", "SENSOR_SET", "Sensors");
  for (const OutputRequest& request : _Records.outputRequests)
  {
    const Plan plan{kSensorType, "SENSOR", NextName(request.keyword), AliasOf(request)};
    const Pair entity = MakeEntity(sensors, plan, request.keyword, request.card.step);
    if (request.set.empty())
      continue; // of the whole model
    ApplyToUnion targets(_Model.Mesh());
    std::vector<voxhost::Feature*> supports;
    if (const NamedGroup* const group = FindTarget(request.set, request.keyword.starts_with("NODE")))
    {
      targets.Add(group->members);
      supports.push_back(group->feature);
    }
    else
      NoteMissing(*entity.feature, {request.set});
    Finish(entity, targets, supports);
  }
}

//! Names that a card uses and the file does not define, each once.
void ModelBuilder::NoteMissing(voxhost::Feature& ioFeature, const std::vector<std::string>& iNames) const
{
  std::vector<std::string> noted;
  for (const std::string& name : iNames)
    if (std::find(noted.begin(), noted.end(), name) == noted.end())
      noted.push_back(name);
  if (!noted.empty())
    ioFeature.Set("Missing", std::move(noted));
}

const ModelBuilder::NamedGroup* ModelBuilder::Find(const NamedGroups& iIndex, std::string_view iName) const
{
  const auto found = iIndex.find(std::string(iName));
  return found == iIndex.end() ? nullptr : &found->second;
}

const ModelBuilder::NamedGroup* ModelBuilder::FindTarget(const std::string& iName, bool iOnNodes) const
{
  const NamedGroups* const order[] = {iOnNodes ? &_NodeGroups : &_ElementGroups, &_Surfaces, &_NodeSurfaces,
                                      iOnNodes ? &_ElementGroups : &_NodeGroups};
  for (const NamedGroups* const index : order)
    if (const NamedGroup* const group = Find(*index, iName))
      return group;
  return nullptr;
}

} // namespace voxbench
