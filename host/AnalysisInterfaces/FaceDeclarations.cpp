// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/FaceDeclarations.h"

#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisModelFactory.h"
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamAnalysisSupport.h"
#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "AnalysisInterfaces/VOXISamMeshPartFilter.h"
#include "AnalysisInterfaces/VOXISamViewManager.h"
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "ObjectModeler/VOXIAlias.h"
#include "ObjectModeler/VOXILinkableObject.h"
#include "ObjectModeler/VOXIRedrawEvent.h"
#include "Visualization/VOXIMSHVisuGrouper.h"
#include "host/AnalysisInterfaces/AnalysisFaces.h"
#include "host/ComponentRuntime/Component.h"
#include "host/FeatureModeler/AttrAccess.h"
#include "host/FeatureModeler/TypeCatalogue.h"
#include "host/ObjectModeler/ObjectFaces.h"

#include <map>
#include <string>

namespace voxhost
{
namespace
{

template <class Interface>
void Declare(const char* iLateType, VOXExtensionFactory iFactory)
{
  VOXDeclareExtension(iLateType, Interface::ClassId(), Interface::ClassName(), iFactory);
}

void DeclareFacesOfEveryFeature(const char* iLateType)
{
  DeclareOwnInterface<VOXISpecObject>(iLateType);
  Declare<VOXISpecAttrAccess>(iLateType, NewAttrAccess);
  Declare<VOXIAlias>(iLateType, NewAlias);
  Declare<VOXILinkableObject>(iLateType, NewLinkableObject);
  Declare<VOXIRedrawEvent>(iLateType, NewRedrawEvent);
  Declare<VOXISamViewManager>(iLateType, NewViewManagerFace);
}

void DeclareFace(const char* iLateType, std::uint32_t iFace)
{
  switch (iFace)
  {
  case kExplicitFace:
    return Declare<VOXISamExplicit>(iLateType, NewExplicitFace);
  case kEntityFace:
    return Declare<VOXISamAnalysisEntity>(iLateType, NewEntityFace);
  case kSetFace:
    return Declare<VOXISamAnalysisSet>(iLateType, NewSetFace);
  case kBasicComponentFace:
    return Declare<VOXISamBasicComponent>(iLateType, NewBasicComponentFace);
  case kSupportFace:
    return Declare<VOXISamAnalysisSupport>(iLateType, NewSupportFace);
  case kMeshPartFilterFace:
    return Declare<VOXISamMeshPartFilter>(iLateType, NewMeshPartFilterFace);
  case kModelFactoryFace:
    return Declare<VOXISamAnalysisModelFactory>(iLateType, NewModelFactoryFace);
  case kVisuGrouperFace:
    return Declare<VOXIMSHVisuGrouper>(iLateType, NewVisuGrouperFace);
  default:
    return;
  }
}

} // namespace

bool DeclareFeatureFaces(const char* iLateType, const char* iBase, std::uint32_t iFaces)
{
  static std::map<std::string, std::uint32_t> declared; // late types are process-wide: faces that each has already
  const HRESULT result = VOXDeclareLateType(iLateType, iBase);
  if (FAILED(result))
    return false;
  if (iBase == nullptr && result == S_OK)
    DeclareFacesOfEveryFeature(iLateType);
  std::uint32_t& known = declared[iLateType];
  for (std::uint32_t face = 1; face <= kVisuGrouperFace; face <<= 1)
    if ((iFaces & face) != 0 && (known & face) == 0)
      DeclareFace(iLateType, face);
  known |= iFaces;
  return true;
}

} // namespace voxhost
