// SPDX-License-Identifier: MIT
// Size, alignment and members of every exported class: feature types are laid out behind them.
#include "AnalysisCore/ErrorDepthHandler.h"
#include "AnalysisCore/VOXTrace.h"
#include "Automation/VOXAutomation.h"
#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "ComponentRuntime/VOXListValVOXString.h"
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"
#include "ComponentRuntime/VOXRawCollint.h"
#include "ExplicitModel/VOXAnalysisCharacCollector.h"
#include "ExplicitModel/VOXAnalysisCollectorArchiver.h"
#include "ExplicitModel/VOXAnalysisEntityCollector.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "ExplicitModel/VOXSamCharacVersion.h"
#include "FeatureModeler/VOXListValVOXISpecObject_var.h"
#include "ObjectModeler/VOXSequence.h"
#include "VOXEAnalysisAxis.h"
#include "VOXEAnalysisCollectorDerivatives.h"
#include "VOXEAnalysisContextCheck.h"
#include "VOXEAnalysisEditionControl.h"
#include "VOXEAnalysisEditionCusto.h"
#include "VOXEAnalysisEntityInit.h"
#include "VOXEAnalysisEntityPreproSubscriber.h"
#include "VOXEAnalysisEntityVisu.h"
#include "VOXEAnalysisFeatureUpdate.h"
#include "VOXEAnalysisGroup.h"
#include "VOXEAnalysisSetInit.h"
#include "VOXEAnalysisSupportFilter.h"
#include "VOXEAnalysisUpgrade.h"
#include "VOXEAnalysisUpgradeContainer.h"
#include "VOXEAnalysisVisibility.h"
#include "VOXECharacCollector.h"
#include "VOXEExpressionCollector.h"
#include "VOXESamConnectionDesignAdaptor.h"
#include "VOXESamEnumManager.h"
#include "VOXESamImportDefineAdaptor.h"
#include "VOXSamBasicComponentManagerAdaptor.h"
#include "VOXSamGroupTools.h"
#include "VOXSamToolsForExplicitation.h"
#include "Visualization/VOXMathAxis.h"
#include "Visualization/VOXRep.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

namespace
{

struct Layout
{
  const char* name;
  std::size_t size, alignment;
  std::size_t expectedSize, expectedAlignment;
};

#define LAYOUT(Class, Size, Alignment)                                                                                 \
  Layout                                                                                                               \
  {                                                                                                                    \
#Class, sizeof(Class), alignof(Class), Size, Alignment                                                             \
  }

template <std::size_t Count>
void ExpectTheLayouts(const Layout (&iLayouts)[Count])
{
  for (const Layout& layout : iLayouts)
  {
    EXPECT_EQ(layout.size, layout.expectedSize) << "size of " << layout.name;
    EXPECT_EQ(layout.alignment, layout.expectedAlignment) << "alignment of " << layout.name;
  }
}

TEST(ObjectLayout, OfEveryExportedClassHasItsSizeAndAlignment)
{
  const Layout layouts[] = {
      LAYOUT(VOXEAnalysisAxis, 32, 8),
      LAYOUT(VOXEAnalysisCollectorDerivatives, 32, 8),
      LAYOUT(VOXEAnalysisContextCheck, 32, 8),
      LAYOUT(VOXEAnalysisEditionControl, 32, 8),
      LAYOUT(VOXEAnalysisEditionCusto, 32, 8),
      LAYOUT(VOXEAnalysisEntityInit, 32, 8),
      LAYOUT(VOXEAnalysisEntityPreproSubscriber, 32, 8),
      LAYOUT(VOXEAnalysisEntityVisu, 32, 8),
      LAYOUT(VOXEAnalysisFeatureUpdate, 32, 8),
      LAYOUT(VOXEAnalysisGroup, 32, 8),
      LAYOUT(VOXEAnalysisSetInit, 32, 8),
      LAYOUT(VOXEAnalysisSupportFilter, 32, 8),
      LAYOUT(VOXEAnalysisUpgrade, 32, 8),
      LAYOUT(VOXEAnalysisUpgradeContainer, 32, 8),
      LAYOUT(VOXEAnalysisVisibility, 40, 8),
      LAYOUT(VOXECharacCollector, 80, 8),
      LAYOUT(VOXEExpressionCollector, 112, 8),
      LAYOUT(VOXESamConnectionDesignAdaptor, 32, 8),
      LAYOUT(VOXESamEnumManager, 40, 8),
      LAYOUT(VOXESamImportDefineAdaptor, 32, 8),
      LAYOUT(VOXSamBasicComponentManagerAdaptor, 32, 8),
      LAYOUT(VOXSamGroupTools, 1, 1),
      LAYOUT(VOXSamToolsForExplicitation, 1, 1),
  };
  ExpectTheLayouts(layouts);
}

// The library makes objects of these, keeps them or derives from them: their sizes are compiled into it.
TEST(ObjectLayout, OfEveryValueClassOfTheContractsHasItsSizeAndAlignment)
{
  const Layout layouts[] = {
      LAYOUT(ErrorDepthHandler, 1, 1),
      LAYOUT(GUID, 16, 4),
      LAYOUT(SAFEARRAY, 16, 8),
      LAYOUT(VARIANT, 16, 8),
      LAYOUT(VOX3DBagRep, 16, 8),
      LAYOUT(VOXAnalysisCharacCollector, 16, 8),
      LAYOUT(VOXAnalysisCollectorArchiver, 8, 8),
      LAYOUT(VOXAnalysisCollectorRoot, 16, 8),
      LAYOUT(VOXAnalysisEntityCollector, 16, 8),
      LAYOUT(VOXAnalysisExplicitAxis, 16, 8),
      LAYOUT(VOXAnalysisExplicitChild, 16, 8),
      LAYOUT(VOXAnalysisExplicitData, 16, 8),
      LAYOUT(VOXAnalysisExplicitEntity, 16, 8),
      LAYOUT(VOXAnalysisExplicitExpression, 16, 8),
      LAYOUT(VOXAnalysisExplicitList, 40, 8),
      LAYOUT(VOXAnalysisExplicitListUsr, 40, 8),
      LAYOUT(VOXAnalysisExplicitParent, 16, 8),
      LAYOUT(VOXBaseUnknown, 32, 8),
      LAYOUT(VOXBaseUnknown_var, 8, 8),
      LAYOUT(VOXISpecObject_var, 8, 8),
      LAYOUT(VOXListValVOXBaseUnknown_var, 24, 8),
      LAYOUT(VOXListValVOXISpecObject_var, 24, 8),
      LAYOUT(VOXListValVOXString, 24, 8),
      LAYOUT(VOXListValVOXUnicodeString, 24, 8),
      LAYOUT(VOXMathAxis, 96, 8),
      LAYOUT(VOXRawCollint, 8, 8),
      LAYOUT(VOXRep, 8, 8),
      LAYOUT(VOXSamCharacVersion, 16, 4),
      LAYOUT(VOXString, 8, 8),
      LAYOUT(VOXTrace, 8, 8),
      LAYOUT(VOXUnicodeString, 8, 8),
      LAYOUT(_SEQUENCE_VOXBaseUnknown_ptr, 16, 8),
      LAYOUT(any, 16, 8),
  };
  ExpectTheLayouts(layouts);
}

// An explicit instantiation may name a private member: it hands the pointer to a friend that anybody may call.
template <class Name, auto Member>
struct Opened
{
  friend constexpr auto MemberOf(Name) { return Member; }
};

#define OPEN(Class, Member)                                                                                            \
  struct Class##Member                                                                                                 \
  {                                                                                                                    \
    friend constexpr auto MemberOf(Class##Member);                                                                     \
  };                                                                                                                   \
  template struct Opened<Class##Member, &Class::Member>;

OPEN(VOXEAnalysisVisibility, _Visibility)
OPEN(VOXEAnalysisVisibility, _NoShow)
OPEN(VOXECharacCollector, _NbPhysicalTypes)
OPEN(VOXECharacCollector, _NbVersionSlots)
OPEN(VOXECharacCollector, _NbPositions)
OPEN(VOXECharacCollector, _Archivers)
OPEN(VOXECharacCollector, _ContextModel)
OPEN(VOXECharacCollector, _PreviousContextModel)
OPEN(VOXEExpressionCollector, _Number)
OPEN(VOXEExpressionCollector, _Pointers)
OPEN(VOXEExpressionCollector, _List)
OPEN(VOXEExpressionCollector, _Context)
OPEN(VOXEExpressionCollector, _LinkableValue)
OPEN(VOXESamEnumManager, _FirstSelection)

struct Placed
{
  std::ptrdiff_t offset;
  std::size_t size;
  bool operator==(const Placed&) const = default;
};

std::ostream& operator<<(std::ostream& ioStream, const Placed& iPlaced)
{
  return ioStream << iPlaced.size << " bytes at " << iPlaced.offset;
}

// Our compilers keep a pointer to a data member as its offset.
template <class Class, class Type>
Placed PlaceOf(Type Class::*iMember)
{
  Placed placed{0, sizeof(Type)};
  static_assert(sizeof(iMember) == sizeof(placed.offset));
  std::memcpy(&placed.offset, &iMember, sizeof(iMember));
  return placed;
}

#define EXPECT_MEMBER(Class, Member, Offset, Size)                                                                     \
  EXPECT_EQ(PlaceOf(MemberOf(Class##Member{})), (Placed{Offset, Size})) << #Class "::" #Member

TEST(ObjectLayout, OfVOXEAnalysisVisibilityHasItsMembersInPlace)
{
  EXPECT_MEMBER(VOXEAnalysisVisibility, _Visibility, 32, 4);
  EXPECT_MEMBER(VOXEAnalysisVisibility, _NoShow, 36, 1);
}

TEST(ObjectLayout, OfVOXECharacCollectorHasItsMembersInPlace)
{
  EXPECT_MEMBER(VOXECharacCollector, _NbPhysicalTypes, 32, 4);
  EXPECT_MEMBER(VOXECharacCollector, _NbVersionSlots, 40, 8);
  EXPECT_MEMBER(VOXECharacCollector, _NbPositions, 48, 8);
  EXPECT_MEMBER(VOXECharacCollector, _Archivers, 56, 8);
  EXPECT_MEMBER(VOXECharacCollector, _ContextModel, 64, 8);
  EXPECT_MEMBER(VOXECharacCollector, _PreviousContextModel, 72, 8);
}

TEST(ObjectLayout, OfVOXEExpressionCollectorHasItsMembersInPlace)
{
  EXPECT_MEMBER(VOXEExpressionCollector, _Number, 32, 4);
  EXPECT_MEMBER(VOXEExpressionCollector, _Pointers, 40, 8);
  EXPECT_MEMBER(VOXEExpressionCollector, _List, 48, 40);
  EXPECT_MEMBER(VOXEExpressionCollector, _Context, 88, 16);
  EXPECT_MEMBER(VOXEExpressionCollector, _LinkableValue, 104, 8);
}

TEST(ObjectLayout, OfVOXESamEnumManagerHasItsMemberInPlace)
{
  EXPECT_MEMBER(VOXESamEnumManager, _FirstSelection, 32, 1);
}

} // namespace
