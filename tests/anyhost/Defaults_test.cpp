// SPDX-License-Identifier: MIT
// The adaptors that answer with fixed defaults, and where a feature and an entity may stand.
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "VOXEAnalysisAxis.h"
#include "VOXEAnalysisCollectorDerivatives.h"
#include "VOXEAnalysisContextCheck.h"
#include "VOXEAnalysisEditionControl.h"
#include "VOXEAnalysisEditionCusto.h"
#include "VOXEAnalysisEntityInit.h"
#include "VOXEAnalysisEntityPreproSubscriber.h"
#include "VOXEAnalysisEntityVisu.h"
#include "VOXEAnalysisFeatureUpdate.h"
#include "VOXEAnalysisSetInit.h"
#include "VOXEAnalysisSupportFilter.h"
#include "VOXESamImportDefineAdaptor.h"
#include "VOXSamBasicComponentManagerAdaptor.h"
#include "Visualization/VOXMathAxis.h"
#include "tests/anyhost/AnyHost.h"

namespace anyhost
{
namespace
{

class Axis final : public VOXEAnalysisAxis
{
public:
  HRESULT GetMKSMathAxis(VOXMathAxis& oAxis) const override { return VOXEAnalysisAxis::GetMKSMathAxis(oAxis); }
};

class DefaultsOnAnyHost : public AnyHost
{
protected:
  // A load that carries the interface with the adaptor's answers.
  template <class Interface, class Adaptor>
  VOXHandle<Interface> Load()
  {
    EXPECT_GE((VOXExtendLateType<Interface, Adaptor>("AnalysisLoad")), S_OK);
    const VOXHandle<Interface> carried(New("AnalysisLoad", "load"));
    EXPECT_FALSE(!carried);
    return carried;
  }
};

TEST_F(DefaultsOnAnyHost, TheAxisIsTheCanonicalOneOfTheHost)
{
  VOXMathAxis axis{};
  const auto spAxis = Load<VOXISamAnalysisAxis, Axis>();
  EXPECT_EQ(spAxis->GetMKSMathAxis(axis), S_OK);
  EXPECT_EQ(axis.i.x, 1.);
  EXPECT_EQ(axis.j.y, 1.);
  EXPECT_EQ(axis.k.z, 1.);
  EXPECT_EQ(axis.i.y + axis.i.z + axis.j.x + axis.j.z + axis.k.x + axis.k.y, 0.);
  EXPECT_EQ(axis.origin.x + axis.origin.y + axis.origin.z, 0.);
}

TEST_F(DefaultsOnAnyHost, TheRepresentationIsAnEmptyBagOfTheHost)
{
  const auto spVisu = Load<VOXISamEntityVisu, VOXEAnalysisEntityVisu>();
  const std::unique_ptr<VOXRep> bag(spVisu->BuildEntityRep(0));
  ASSERT_NE(bag, nullptr);
  EXPECT_EQ(bag->GetNumberOfChildren(), 0);
  auto* const inside = new (nullptr, nullptr, 0) VOX3DBagRep;
  dynamic_cast<VOX3DBagRep&>(*bag).AddChild(inside);
  EXPECT_EQ(bag->GetNumberOfChildren(), 1);
}

TEST_F(DefaultsOnAnyHost, TheOptionsOfAnImportAreOneShortZero)
{
  const auto spImport = Load<VOXISamImportDefine, VOXESamImportDefineAdaptor>();
  SAFEARRAY* values = nullptr;
  EXPECT_EQ(spImport->GetValues(values), S_OK);
  ASSERT_NE(values, nullptr);
  ASSERT_EQ(values->count, 1u);
  EXPECT_EQ(values->values[0].vt, VT_I2);
  EXPECT_EQ(values->values[0].iVal, 0);
  DestroySafeArray(values);
}

TEST_F(DefaultsOnAnyHost, EverythingElseAnswersTheSameOnEveryHost)
{
  unsigned char answer = 7;
  EXPECT_EQ((Load<VOXISamEditionControl, VOXEAnalysisEditionControl>()->AllowEdition(answer)), S_OK);
  EXPECT_EQ(answer, 1);
  EXPECT_FALSE((Load<VOXISamEditionCusto, VOXEAnalysisEditionCusto>()->AllowApply()));
  EXPECT_EQ((Load<VOXISamAnalysisContextCheck, VOXEAnalysisContextCheck>()->Check(nullptr, nullptr)), S_OK);
  Load<VOXISamAnalysisFeatureUpdate, VOXEAnalysisFeatureUpdate>()->IsUpToDate(answer);
  EXPECT_EQ(answer, 1);
  const auto spFilter = Load<VOXISamSupportFilter, VOXEAnalysisSupportFilter>();
  EXPECT_EQ(spFilter->ValidateSupport(spFilter, nullptr), E_FAIL);
  EXPECT_EQ(spFilter->ValidateSupport(spFilter, spFilter), S_OK);
  const VOXAnalysisCharacCollector* first = nullptr;
  const VOXAnalysisCharacCollector* second = nullptr;
  const auto spDerivatives = Load<VOXICharacCollectorDerivatives, VOXEAnalysisCollectorDerivatives>();
  EXPECT_EQ(spDerivatives->GetCharacCollectorDerivatives(nullptr, first, second), E_NOTIMPL);
  const auto spManager = Load<VOXISamBasicComponentManager, VOXSamBasicComponentManagerAdaptor>();
  EXPECT_EQ(spManager->IsBasicComponentHidden(nullptr), SAMHiddenUndefined);
}

TEST_F(DefaultsOnAnyHost, AFeatureInAMeshSetContainerNeedNotSubscribe)
{
  const auto spSubscriber = Load<VOXISamMeshSubscriber, VOXEAnalysisEntityPreproSubscriber>();
  EXPECT_EQ(spSubscriber->CheckIfNeedToSubScribe(), 1);
  EXPECT_EQ(spSubscriber->Clean(), S_OK);
  Hold(New("MSHSetContainer", "meshes"), spSubscriber->GetImpl());
  EXPECT_EQ(spSubscriber->CheckIfNeedToSubScribe(), 0);
}

TEST_F(DefaultsOnAnyHost, AnEntityGoesIntoTheSetThatTheRulesAllow)
{
  const auto spInit = Load<VOXISamAnalysisEntityInit, VOXEAnalysisEntityInit>();
  const VOXISamAnalysisSet_var spLoads(New("LoadSet", "loads"));
  const VOXISamAnalysisSet_var spGroups(New("GroupSet", "groups"));
  EXPECT_EQ(spInit->CheckAnalysisSet(spLoads), 1);
  EXPECT_EQ(spInit->CheckAnalysisSet(spGroups), 0);
  EXPECT_EQ(spInit->CheckAnalysisSet(nullptr), 0);
  VOXUnicodeString type;
  EXPECT_EQ(spInit->GetAnalysisSetType(type), 1);
  EXPECT_STREQ(type.ConvertToChar(), "LoadSet");
  EXPECT_EQ(spInit->AggregateInSet(), 0);
}

TEST_F(DefaultsOnAnyHost, AnImportedEntityGoesIntoTheSetOfItsCategory)
{
  VOXExtendLateType<VOXISamAnalysisEntityInit, VOXEAnalysisEntityInit>("AnalysisSensor");
  const VOXISamAnalysisEntityInit_var spInit(New("AnalysisSensor", "imported"));
  EXPECT_EQ(spInit->CheckAnalysisSet(VOXISamAnalysisSet_var(New("LoadSet"))), 1);
  EXPECT_EQ(spInit->CheckAnalysisSet(VOXISamAnalysisSet_var(New("GroupSet"))), 0);
  EXPECT_EQ(spInit->AggregateInSet(), 1);
}

TEST_F(DefaultsOnAnyHost, ASetGoesUnderTheParentThatTheRulesAllowAndKnowsItsQuality)
{
  VOXExtendLateType<VOXISamAnalysisSetInit, VOXEAnalysisSetInit>("GroupSet");
  const VOXISamAnalysisSetInit_var spInit(New("GroupSet", "groups"));
  SAM_Quality quality = SAM_QualityInput;
  EXPECT_EQ(spInit->CheckAnalysisParent(New("ModelUnderTest"), quality), 1);
  EXPECT_EQ(quality, SAM_QualityGroup);
  EXPECT_EQ(spInit->CheckAnalysisParent(New("LoadSet"), quality), 0);
}

TEST_F(DefaultsOnAnyHost, AnAssertionThatFailsIsTheHostsFatalErrorWithItsExpression)
{
  EXPECT_EQ(FatalTextOf(
                []
                {
                  VOXEAnalysisEntityInit alone; // extends nothing, so there is no feature
                  VOXUnicodeString type;
                  alone.GetAnalysisSetType(type);
                }),
            "AssertionFailed:!!spec");
}

} // namespace
} // namespace anyhost
