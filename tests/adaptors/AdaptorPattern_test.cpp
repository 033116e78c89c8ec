// SPDX-License-Identifier: MIT
#include "VOXEAnalysisAxis.h"
#include "VOXEAnalysisCollectorDerivatives.h"
#include "VOXEAnalysisContextCheck.h"
#include "VOXEAnalysisEditionControl.h"
#include "VOXEAnalysisEditionCusto.h"
#include "VOXEAnalysisEntityVisu.h"
#include "VOXEAnalysisFeatureUpdate.h"
#include "VOXEAnalysisGroup.h"
#include "VOXEAnalysisSupportFilter.h"
#include "VOXEAnalysisUpgradeContainer.h"
#include "VOXESamImportDefineAdaptor.h"
#include "VOXSamBasicComponentManagerAdaptor.h"
#include "VOXSamGroupTools.h"
#include "host/Instruments/Ledger.h"
#include "tests/adaptors/Face.h"
#include "tests/support/Memory.h"

#include <type_traits>

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

// Whether the class leaves a base operation to VOXBaseUnknown: the member is then still the base's.
#define LEAVES(Operation) std::is_same_v<decltype(&Adaptor::Operation), decltype(&VOXBaseUnknown::Operation)>

// What every interface adaptor without members of its own is like.
template <class Adaptor, class Interface>
constexpr bool KeepsThePattern()
{
  static_assert(std::is_base_of_v<Interface, Adaptor> && std::is_convertible_v<Adaptor*, Interface*>,
                "it derives publicly from its interface");
  static_assert(sizeof(Adaptor) == sizeof(VOXBaseUnknown), "it has no members");
  static_assert(LEAVES(AddRef) && LEAVES(Release) && LEAVES(GetTypeInfoCount) && LEAVES(GetTypeInfo) &&
                    LEAVES(GetIDsOfNames) && LEAVES(Invoke) && LEAVES(GetMetaObject) && LEAVES(IsA) &&
                    LEAVES(IsAKindOf) && LEAVES(GetImpl) && LEAVES(SetImpl) && LEAVES(IsNull) && LEAVES(IsEqual) &&
                    LEAVES(ChangeComponentState),
                "it overrides no base operation but the destructor");
  static_assert(std::has_virtual_destructor_v<Adaptor>);
  return true;
}

static_assert(sizeof(VOXBaseUnknown) == 32);
static_assert(KeepsThePattern<VOXEAnalysisAxis, VOXISamAnalysisAxis>());
static_assert(KeepsThePattern<VOXEAnalysisCollectorDerivatives, VOXICharacCollectorDerivatives>());
static_assert(KeepsThePattern<VOXEAnalysisContextCheck, VOXISamAnalysisContextCheck>());
static_assert(KeepsThePattern<VOXEAnalysisEditionControl, VOXISamEditionControl>());
static_assert(KeepsThePattern<VOXEAnalysisEditionCusto, VOXISamEditionCusto>());
static_assert(KeepsThePattern<VOXEAnalysisEntityVisu, VOXISamEntityVisu>());
static_assert(KeepsThePattern<VOXEAnalysisFeatureUpdate, VOXISamAnalysisFeatureUpdate>());
static_assert(KeepsThePattern<VOXEAnalysisGroup, VOXISamGroup>());
static_assert(KeepsThePattern<VOXEAnalysisSupportFilter, VOXISamSupportFilter>());
static_assert(KeepsThePattern<VOXEAnalysisUpgradeContainer, VOXISamUpgradeContainer>());
static_assert(KeepsThePattern<VOXESamImportDefineAdaptor, VOXISamImportDefine>());
static_assert(KeepsThePattern<VOXSamBasicComponentManagerAdaptor, VOXISamBasicComponentManager>());

// A member added by a deriving type goes behind the 32 bytes, not into them.
class WithMember : public VOXEAnalysisEditionControl
{
public:
  unsigned char member;
};
static_assert(sizeof(WithMember) == 40);

using EditionControl = Face<VOXEAnalysisEditionControl, VOXISamEditionControl>;

} // namespace

TEST(AdaptorPattern, BaseOperationsComeFirstInTheirOrder)
{
  using ByIdentifier = HRESULT (VOXBaseUnknown::*)(const IID&, void**);
  using ByName = VOXBaseUnknown* (VOXBaseUnknown::*)(const char*) const;
  const int first = OwnPlace(static_cast<ByIdentifier>(&VOXBaseUnknown::QueryInterface));
  EXPECT_EQ(first, 1 - (kBaseOperations + 1)); // the first entry of the table
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::AddRef), first + 1);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::Release), first + 2);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::GetTypeInfoCount), first + 3);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::GetTypeInfo), first + 4);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::GetIDsOfNames), first + 5);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::Invoke), first + 6);
  EXPECT_EQ(OwnPlace(static_cast<ByName>(&VOXBaseUnknown::QueryInterface)), first + 7);
  // The destructor takes the two entries between.
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::GetMetaObject), first + 10);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::IsA), first + 11);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::IsAKindOf), first + 12);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::GetImpl), first + 13);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::SetImpl), first + 14);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::IsNull), first + 15);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::IsEqual), first + 16);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::ChangeComponentState), first + 17);
}

TEST(AdaptorPattern, AQueryOfTheComponentReachesTheAdaptorAndTheAdaptorReachesTheComponent)
{
  AdaptorBench<EditionControl> control;
  EXPECT_EQ(control->GetImpl(0), control.Component());
}

TEST(AdaptorPattern, TheAdaptorDiesWithTheLastReferenceOfItsComponent)
{
  voxhost::Ledger::TurnOn();
  const voxhost::Ledger::Balance before = voxhost::Ledger::Read();
  {
    AdaptorBench<EditionControl> control;
    EXPECT_EQ((voxhost::Ledger::Read() - before).extensions, 1);
  }
  EXPECT_EQ((voxhost::Ledger::Read() - before).Describe(), "balanced");
  voxhost::Ledger::TurnOff();
}

TEST(AdaptorPattern, AnAdaptorThatCannotBeAllocatedIsAnInterfaceThatIsMissing)
{
  Bench bench;
  VOXBaseUnknown* const component = bench.Component<EditionControl>();
  Memory::FailSize(sizeof(EditionControl));
  const VOXHandle<VOXISamEditionControl> spControl(component);
  Memory::Disarm();
  EXPECT_TRUE(!spControl);
}

TEST(AdaptorPattern, AssigningToolsCopiesNothingAndGivesTheObjectItself)
{
  VOXSamGroupTools left;
  const VOXSamGroupTools right;
  EXPECT_EQ(&(left = right), &left);
}
