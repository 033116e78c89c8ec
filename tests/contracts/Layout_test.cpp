// SPDX-License-Identifier: MIT
// Sizes, identifiers and kinships that compiled code of hosts and feature types relies on.
#include "AnalysisCore/ErrorDepthHandler.h"
#include "AnalysisInterfaces/VOXICharacCollector.h"
#include "AnalysisInterfaces/VOXICharacCollectorDerivatives.h"
#include "AnalysisInterfaces/VOXIExpressionCollector.h"
#include "AnalysisInterfaces/VOXISamAnalysisAxis.h"
#include "AnalysisInterfaces/VOXISamAnalysisContextCheck.h"
#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisEntityInit.h"
#include "AnalysisInterfaces/VOXISamAnalysisFeatureUpdate.h"
#include "AnalysisInterfaces/VOXISamAnalysisModelFactory.h"
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamAnalysisSetInit.h"
#include "AnalysisInterfaces/VOXISamAnalysisSupport.h"
#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "AnalysisInterfaces/VOXISamBasicComponentManager.h"
#include "AnalysisInterfaces/VOXISamConnectionDesign.h"
#include "AnalysisInterfaces/VOXISamEditionControl.h"
#include "AnalysisInterfaces/VOXISamEditionCusto.h"
#include "AnalysisInterfaces/VOXISamEntityVisu.h"
#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "AnalysisInterfaces/VOXISamFeatureUpgrade.h"
#include "AnalysisInterfaces/VOXISamGroup.h"
#include "AnalysisInterfaces/VOXISamImportDefine.h"
#include "AnalysisInterfaces/VOXISamMeshPartFilter.h"
#include "AnalysisInterfaces/VOXISamMeshSubscriber.h"
#include "AnalysisInterfaces/VOXISamSelectionList.h"
#include "AnalysisInterfaces/VOXISamSupportFilter.h"
#include "AnalysisInterfaces/VOXISamUpgradeContainer.h"
#include "AnalysisInterfaces/VOXISamViewManager.h"
#include "AnalysisInterfaces/VOXISamVisibility.h"
#include "ComponentRuntime/VOXBaseUnknown.h"
#include "ExplicitModel/VOXAnalysisCollectorArchiver.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "FeatureModeler/VOXISpecAttrKey.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "KnowledgeParameters/VOXICke.h"
#include "ObjectModeler/VOXIAlias.h"
#include "ObjectModeler/VOXIContainer.h"
#include "ObjectModeler/VOXIDomain.h"
#include "ObjectModeler/VOXILinkableObject.h"
#include "ObjectModeler/VOXIRedrawEvent.h"
#include "Visualization/VOXIMSHVisuGrouper.h"
#include "Visualization/VOXRep.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

// A member of a deriving class stands behind the base's 32 bytes, not in any padding of theirs.
class OneByteMore : public VOXBaseUnknown
{
public:
  char byte = 0;
};
static_assert(sizeof(VOXBaseUnknown) == 32);
static_assert(sizeof(OneByteMore) == 40);
static_assert(alignof(VOXBaseUnknown) == 8);

static_assert(noexcept(VOXBaseUnknown::operator new (std::size_t{1})));
static_assert(noexcept(VOXRep::operator new (std::size_t{1}, nullptr, nullptr, 0)));

static_assert(std::is_base_of_v<VOXAnalysisExplicitData, VOXAnalysisExplicitList>);
static_assert(!std::is_base_of_v<VOXAnalysisExplicitChild, VOXAnalysisExplicitList>);
static_assert(std::is_base_of_v<VOXAnalysisExplicitList, VOXAnalysisExplicitListUsr>);
static_assert(sizeof(VOXAnalysisExplicitEntity) == sizeof(VOXAnalysisExplicitData));

static_assert(sizeof(VOXISpecObject_var) == sizeof(void*));
static_assert(sizeof(VOXUnicodeString) == sizeof(void*));
static_assert(sizeof(VOXString) == sizeof(void*));

static_assert(S_OK == 0 && S_FALSE == 1);
static_assert(static_cast<std::uint32_t>(E_FAIL) == 0x80004005u);
static_assert(static_cast<std::uint32_t>(E_NOTIMPL) == 0x80004001u);
static_assert(static_cast<std::uint32_t>(E_INVALIDARG) == 0x80070057u);
static_assert(FAILED(E_FAIL) && SUCCEEDED(S_FALSE));

static_assert(VOXSamErrorPropagated == 1 && VOXSamErrorMissingObject == 3 && VOXSamErrorCondition == 6);
static_assert(VOXSamErrorEnumValue == 28 && VOXSamErrorNullExplicit == 34 && VOXSamErrorKeyword == 55);
static_assert(VOXSamValueNode == 8 && VOXSamValueElement == 9 && VOXSamValueUnknown == 22);
static_assert(SAMHiddenUndefined == 2 && SAMReadOnlyUndefined == 2);

TEST(InterfaceIdentifiers, AreDistinct)
{
  const IID identifiers[] = {IID_VOXBaseUnknown,
                             IID_VOXIAlias,
                             IID_VOXICharacCollector,
                             IID_VOXICharacCollectorDerivatives,
                             IID_VOXICkeInst,
                             IID_VOXICkeParm,
                             IID_VOXICkeType,
                             IID_VOXIContainer,
                             IID_VOXIDomain,
                             IID_VOXIEnumere,
                             IID_VOXIExpressionCollector,
                             IID_VOXILinkableObject,
                             IID_VOXIMSHVisuGrouper,
                             IID_VOXIRedrawEvent,
                             IID_VOXISamAnalysisAxis,
                             IID_VOXISamAnalysisContextCheck,
                             IID_VOXISamAnalysisEntity,
                             IID_VOXISamAnalysisEntityInit,
                             IID_VOXISamAnalysisFeatureUpdate,
                             IID_VOXISamAnalysisModelFactory,
                             IID_VOXISamAnalysisSet,
                             IID_VOXISamAnalysisSetInit,
                             IID_VOXISamAnalysisSupport,
                             IID_VOXISamBasicComponent,
                             IID_VOXISamBasicComponentManager,
                             IID_VOXISamConnectionDesign,
                             IID_VOXISamEditionControl,
                             IID_VOXISamEditionCusto,
                             IID_VOXISamEntityVisu,
                             IID_VOXISamExplicit,
                             IID_VOXISamFeatureUpgrade,
                             IID_VOXISamGroup,
                             IID_VOXISamImportDefine,
                             IID_VOXISamMeshPartFilter,
                             IID_VOXISamMeshSubscriber,
                             IID_VOXISamSelectionList,
                             IID_VOXISamSupportFilter,
                             IID_VOXISamUpgradeContainer,
                             IID_VOXISamViewManager,
                             IID_VOXISamVisibility,
                             IID_VOXISpecAttrAccess,
                             IID_VOXISpecAttrKey,
                             IID_VOXISpecObject};
  constexpr std::size_t count = std::size(identifiers);
  for (std::size_t i = 0; i < count; ++i)
    for (std::size_t j = i + 1; j < count; ++j)
      EXPECT_FALSE(identifiers[i] == identifiers[j]) << i << " and " << j;
}

TEST(InterfaceIdentifiers, FollowFromTheNamesForEver)
{
  EXPECT_EQ(IID_VOXISamGroup.Data1, VOXISamGroup::ClassId().Data1);
  EXPECT_TRUE(IID_VOXISamGroup == VOXGuidOfName("VOXISamGroup"));
  EXPECT_STREQ(VOXISamGroup::ClassName(), "VOXISamGroup");
  EXPECT_TRUE(CLSID_VOXBaseUnknown == IID_VOXBaseUnknown);
}

} // namespace
