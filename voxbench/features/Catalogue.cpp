// SPDX-License-Identifier: MIT
#include "voxbench/features/Catalogue.h"
#include "AnalysisInterfaces/VOXISamConnectionDesign.h"
#include "ComponentRuntime/VOXFatalError.h"
#include "ComponentRuntime/VOXTypeDictionary.h"
#include "VOXESamConnectionDesignAdaptor.h"
#include "voxbench/features/DeckAxis.h"
#include "voxbench/features/DeckExpressions.h"
#include "voxbench/features/EntityFeatures.h"
#include "voxbench/features/GatheredGroup.h"
#include "voxbench/features/GroupFeatures.h"
#include "voxbench/features/SelectionLists.h"
#include "voxbench/features/SolutionResults.h"
#include "voxbench/features/TypeNames.h"

#include <string>

namespace voxbench
{
namespace
{

using voxhost::AttributeDeclaration;
using voxhost::TypeDeclaration;

//! Names of sets and surfaces that a card uses and the file does not define.
AttributeDeclaration Missing()
{
  return {.name = "Missing", .type = VOXSpecList, .elementType = VOXSpecString};
}

AttributeDeclaration Text(const char* iName)
{
  return {.name = iName, .type = VOXSpecString};
}

TypeDeclaration Group(const char* iName)
{
  return {.name = iName,
          .base = "SAMSpecifiedGroup",
          .attributes = {Text("Definition"), {.name = "NamedElsewhere", .type = VOXSpecInteger}}};
}

//! An entity that a card of a deck defines.
TypeDeclaration Entity(const char* iName, const char* iBase)
{
  return {.name = iName,
          .base = iBase,
          .attributes = {Text("Keyword"), {.name = "Step", .type = VOXSpecInteger}, Missing()}};
}

//! A choice that a feature holds.
AttributeDeclaration Choice(const char* iType)
{
  return {.name = "Kind", .type = VOXSpecComponent, .components = {{iType, iType}}};
}

TypeDeclaration ChoiceType(const char* iName, std::span<const SelectionEntry> iEntries)
{
  voxhost::ParameterDeclaration parameter{VOXCkeContext::EnumType, {}};
  for (const SelectionEntry& entry : iEntries)
    parameter.entries.emplace_back(entry.name);
  return {.name = iName, .base = "SAMListManager", .parameter = parameter};
}

//! What elements are made of: refers to its materials.
TypeDeclaration Property(const char* iName)
{
  TypeDeclaration property = Entity(iName, "AnalysisProperty");
  property.attributes.push_back({.name = "Materials", .type = VOXSpecList, .elementType = VOXSpecReference});
  property.attributes.push_back(Choice(kSectionKindType));
  return property;
}

//! What a card applies. A card may take away all earlier ones of its keyword, and let nodes of a fluid drive what it
//! applies.
TypeDeclaration Applied(const char* iName, const char* iBase)
{
  TypeDeclaration applied = Entity(iName, iBase);
  applied.attributes.push_back({.name = "Replaces", .type = VOXSpecInteger});
  applied.attributes.push_back({.name = "FluidNodes", .type = VOXSpecList, .elementType = VOXSpecInteger});
  return applied;
}

//! What holds degrees of freedom.
TypeDeclaration Restraint(const char* iName)
{
  TypeDeclaration restraint = Applied(iName, "AnalysisRestraint");
  restraint.attributes.push_back(Choice(kRestraintKindType));
  return restraint;
}

TypeDeclaration Axis(const char* iName)
{
  TypeDeclaration axis = Entity(iName, "AnalysisAxis");
  axis.attributes.push_back({.name = "Frame", .type = VOXSpecList, .elementType = VOXSpecReal});
  return axis;
}

std::vector<TypeDeclaration> BasicComponents()
{
  std::vector<TypeDeclaration> types{ChoiceType(kSectionKindType, SectionKinds()),
                                     ChoiceType(kRestraintKindType, RestraintKinds())};
  for (const char* const name :
       {kShellThicknessType, kShellOffsetType, kBeamWidthType, kBeamHeightType, kSpringStiffnessType,
        kDashpotCoefficientType, kGapClearanceType, kPrescribedValueType, kModulationFactorType})
    types.push_back({.name = name, .base = "SAMRealComponent"});
  return types;
}

std::vector<TypeDeclaration> OwnTypes()
{
  return {Group(kNodeGroupType),
          Group(kEdgeGroupType),
          Group(kFaceGroupType),
          Group(kElementGroupType),
          Group(kMaterialGroupType),
          Entity(kMaterialType, "AnalysisEntity"),
          Applied(kLoadType, "AnalysisLoad"),
          Restraint(kRestraintType),
          Axis(kAxisType),
          Entity(kConnectionType, "AnalysisConnection"),
          {.name = kConnectionSideType,
           .base = "SAMConnectionDesigner",
           .physicalType = "CONNECTION_SIDE",
           .attributes = {Missing()}},
          Entity(kConstraintType, "AnalysisRestraint"),
          Entity(kMassType, "AnalysisMass"),
          Property(kPropertyType),
          Entity(kModulationType, "AnalysisModulation"),
          Entity(kSensorType, "AnalysisSensor"),
          {.name = kSolutionType, .base = "AnalysisEntity", .physicalType = "SOLUTION", .attributes = {Text("File")}}};
}

void DeclareAdaptors()
{
  VOXExtendLateType<VOXISamAnalysisEntityInit, EntityInit>("AnalysisEntity");
  VOXExtendLateType<VOXISamMeshSubscriber, MeshSubscriber>("AnalysisEntity");
  for (const char* const set : {"AnalysisSet", "MSHSetContainer"})
    VOXExtendLateType<VOXISamAnalysisSetInit, SetInit>(set);
  VOXExtendLateType<VOXISamVisibility, Visibility>("AnalysisFeature");
  VOXExtendLateType<VOXISamGroup, NodeGroup>(kNodeGroupType);
  VOXExtendLateType<VOXISamGroup, EdgeGroup>(kEdgeGroupType);
  VOXExtendLateType<VOXISamGroup, FaceGroup>(kFaceGroupType);
  VOXExtendLateType<VOXISamGroup, ElementGroup>(kElementGroupType);
  VOXExtendLateType<VOXISamGroup, GatheredElementGroup>(kMaterialGroupType);
  VOXExtendLateType<VOXISamAnalysisAxis, DeckAxis>(kAxisType);
  VOXTieLateType<VOXISamConnectionDesign, VOXTieConnectionDesign<VOXESamConnectionDesignAdaptor>>(kConnectionType);
  for (const char* const publisher : {kModulationType, kConstraintType})
    VOXTieLateType<VOXIExpressionCollector, VOXTieExpressionCollector<DeckExpressions>>(publisher);
  VOXExtendLateType<SolutionData, SolutionData>(kSolutionType);
  VOXTieLateType<VOXICharacCollector, SolutionTie>(kSolutionType);
  VOXTieLateType<VOXISamSelectionList, VOXTieSelectionList<SectionKindManager>>(kSectionKindType);
  VOXTieLateType<VOXISamSelectionList, VOXTieSelectionList<RestraintKindManager>>(kRestraintKindType);
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
  Insist(types->Declare(WorkbenchDeclarations()));
  DeclareAdaptors();
  return types;
}

} // namespace

std::vector<TypeDeclaration> WorkbenchDeclarations()
{
  std::vector<TypeDeclaration> declarations = voxhost::AnalysisTypes();
  for (auto&& more : {BasicComponents(), OwnTypes()})
    declarations.insert(declarations.end(), more.begin(), more.end());
  return declarations;
}

std::shared_ptr<const voxhost::TypeCatalogue> WorkbenchTypes()
{
  static const std::shared_ptr<const voxhost::TypeCatalogue> types = MakeTypes();
  return types;
}

} // namespace voxbench
