// SPDX-License-Identifier: MIT
#include "voxbench/features/Catalogue.h"
#include "AnalysisInterfaces/VOXISamConnectionDesign.h"
#include "ComponentRuntime/VOXFatalError.h"
#include "ComponentRuntime/VOXTypeDictionary.h"
#include "VOXESamConnectionDesignAdaptor.h"
#include "voxbench/features/DeckAxis.h"
#include "voxbench/features/DeckExpressions.h"
#include "voxbench/features/EntityFeatures.h"
#include "voxbench/features/FeatureUpgrade.h"
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

void DeclareAdaptors()
{
  VOXExtendLateType<VOXISamAnalysisEntityInit, EntityInit>("AnalysisEntity");
  VOXExtendLateType<VOXISamMeshSubscriber, MeshSubscriber>("AnalysisEntity");
  for (const char* const set : {"AnalysisSet", "MSHSetContainer"})
    VOXExtendLateType<VOXISamAnalysisSetInit, SetInit>(set);
  VOXExtendLateType<VOXISamVisibility, Visibility>("AnalysisFeature");
  for (const char* const type : {"AnalysisFeature", "SAMBasicComponent"})
    VOXTieLateType<VOXISamFeatureUpgrade, FeatureUpgrade>(type);
  VOXDeclareLateType("SpecContainer", nullptr); // there may have been no container yet
  VOXExtendLateType<VOXISamUpgradeContainer, ContainerUpgrade>("SpecContainer");
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

std::shared_ptr<const voxhost::TypeCatalogue> MakeTypes(int iRelease)
{
  const auto types = std::make_shared<voxhost::TypeCatalogue>();
  Insist(types->Declare(WorkbenchDeclarations(iRelease)));
  if (iRelease == kNewestRelease)
    DeclareAdaptors(); // they are the process's: the types of older releases find them by their names
  return types;
}

} // namespace

std::vector<voxhost::TypeDeclaration> WorkbenchDeclarations(int iRelease)
{
  std::vector<voxhost::TypeDeclaration> declarations = voxhost::AnalysisTypes();
  const auto& own = ReleaseOf(iRelease).types;
  declarations.insert(declarations.end(), own.begin(), own.end());
  return declarations;
}

std::shared_ptr<const voxhost::TypeCatalogue> WorkbenchTypes(int iRelease)
{
  static const std::shared_ptr<const voxhost::TypeCatalogue> newest = MakeTypes(kNewestRelease);
  return iRelease == kNewestRelease ? newest : MakeTypes(iRelease);
}

} // namespace voxbench
