// SPDX-License-Identifier: MIT
#include "voxbench/features/Catalogue.h"
#include "ComponentRuntime/VOXFatalError.h"
#include "ComponentRuntime/VOXTypeDictionary.h"
#include "voxbench/features/GatheredGroup.h"
#include "voxbench/features/GroupFeatures.h"
#include "voxbench/features/TypeNames.h"

#include <string>

namespace voxbench
{
namespace
{

using voxhost::AttributeDeclaration;
using voxhost::TypeDeclaration;

AttributeDeclaration Text(const char* iName)
{
  return {.name = iName, .type = VOXSpecString};
}

TypeDeclaration Group(const char* iName)
{
  return {.name = iName, .base = "SAMSpecifiedGroup", .attributes = {Text("Definition")}};
}

//! An entity that a card of a deck defines.
TypeDeclaration Entity(const char* iName, const char* iBase)
{
  return {.name = iName, .base = iBase, .attributes = {Text("Keyword"), {.name = "Step", .type = VOXSpecInteger}}};
}

//! What elements are made of: refers to its materials.
TypeDeclaration Property(const char* iName)
{
  TypeDeclaration property = Entity(iName, "AnalysisProperty");
  property.attributes.push_back({.name = "Materials", .type = VOXSpecList, .elementType = VOXSpecReference});
  return property;
}

std::vector<TypeDeclaration> OwnTypes()
{
  return {Group(kNodeGroupType),
          Group(kEdgeGroupType),
          Group(kFaceGroupType),
          Group(kElementGroupType),
          Group(kMaterialGroupType),
          Entity(kMaterialType, "AnalysisEntity"),
          Entity(kLoadType, "AnalysisLoad"),
          Entity(kRestraintType, "AnalysisRestraint"),
          Entity(kMassType, "AnalysisMass"),
          Property(kPropertyType),
          Entity(kModulationType, "AnalysisModulation"),
          Entity(kSensorType, "AnalysisSensor")};
}

void DeclareAdaptors()
{
  VOXExtendLateType<VOXISamGroup, NodeGroup>(kNodeGroupType);
  VOXExtendLateType<VOXISamGroup, EdgeGroup>(kEdgeGroupType);
  VOXExtendLateType<VOXISamGroup, FaceGroup>(kFaceGroupType);
  VOXExtendLateType<VOXISamGroup, ElementGroup>(kElementGroupType);
  VOXExtendLateType<VOXISamGroup, GatheredElementGroup>(kMaterialGroupType);
}

//! A declaration that does not fit the host's types is a mistake in this program.
void Insist(const std::string& iReason)
{
  if (!iReason.empty())
    VOXFatalError(iReason.c_str(), nullptr, nullptr, nullptr, __FILE__, __LINE__);
}

std::shared_ptr<const voxhost::TypeCatalogue> MakeTypes()
{
  const auto types = std::make_shared<voxhost::TypeCatalogue>();
  Insist(types->Declare(voxhost::AnalysisTypes()));
  Insist(types->Declare(OwnTypes()));
  DeclareAdaptors();
  return types;
}

} // namespace

std::shared_ptr<const voxhost::TypeCatalogue> WorkbenchTypes()
{
  static const std::shared_ptr<const voxhost::TypeCatalogue> types = MakeTypes();
  return types;
}

} // namespace voxbench
