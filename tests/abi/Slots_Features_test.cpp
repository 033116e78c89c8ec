// SPDX-License-Identifier: MIT
// Every operation of the adaptors of sets, entities, groups and upgrades, called through its place in a plain interface.
#include "VOXEAnalysisEntityInit.h"
#include "VOXEAnalysisEntityPreproSubscriber.h"
#include "VOXEAnalysisGroup.h"
#include "VOXEAnalysisSetInit.h"
#include "VOXEAnalysisUpgrade.h"
#include "VOXEAnalysisUpgradeContainer.h"
#include "VOXEAnalysisVisibility.h"
#include "tests/abi/Noting.h"

using namespace voxtest;

namespace
{

class EntityInitType : public Noting<VOXEAnalysisEntityInit>
{
public:
  NOTES(HRESULT, Initialize, (), )
  NOTES(HRESULT, InitWhenPositioned, (), )
  NOTES(HRESULT, Remove, (int), )
  NOTES(int, CheckAnalysisSet, (const VOXISamAnalysisSet*), )
  NOTES(int, GetAnalysisSetType, (VOXUnicodeString&), )
  NOTES(unsigned char, AggregateInSet, (), )
};

TEST(AdaptorSlots, OfVOXEAnalysisEntityInitAnswerAtTheirPlacesInAPlainInterface)
{
  EntityInitType feature;
  EXPECT_PLACE_OF(feature, plain::EntityInit, Initialize);
  EXPECT_PLACE_OF(feature, plain::EntityInit, InitWhenPositioned);
  EXPECT_PLACE_OF(feature, plain::EntityInit, Remove);
  EXPECT_PLACE_OF(feature, plain::EntityInit, CheckAnalysisSet);
  EXPECT_PLACE_OF(feature, plain::EntityInit, GetAnalysisSetType);
  EXPECT_PLACE_OF(feature, plain::EntityInit, AggregateInSet);
  ExpectBaseOperationsInPlace<plain::EntityInit, EntityInitType>();
}

class SetInitType : public Noting<VOXEAnalysisSetInit>
{
public:
  NOTES(HRESULT, Initialize, (), )
  NOTES(int, CheckAnalysisParent, (const VOXBaseUnknown*, SAM_Quality&), )
  NOTES(HRESULT, InitWhenPositioned, (const VOXBaseUnknown*), )
  NOTES(HRESULT, Remove, (int), )
  NOTES(HRESULT, ReorderInScan, (const VOXISamAnalysisScan*), )
};

TEST(AdaptorSlots, OfVOXEAnalysisSetInitAnswerAtTheirPlacesInAPlainInterface)
{
  SetInitType feature;
  EXPECT_PLACE_OF(feature, plain::SetInit, Initialize);
  EXPECT_PLACE_OF(feature, plain::SetInit, CheckAnalysisParent);
  EXPECT_PLACE_OF(feature, plain::SetInit, InitWhenPositioned);
  EXPECT_PLACE_OF(feature, plain::SetInit, Remove);
  EXPECT_PLACE_OF(feature, plain::SetInit, ReorderInScan);
  ExpectBaseOperationsInPlace<plain::SetInit, SetInitType>();
}

class MeshSubscriberType : public Noting<VOXEAnalysisEntityPreproSubscriber>
{
public:
  NOTES(HRESULT, Clean, (), )
  NOTES(unsigned char, CheckIfNeedToSubScribe, (), const)
};

TEST(AdaptorSlots, OfVOXEAnalysisEntityPreproSubscriberAnswerAtTheirPlacesInAPlainInterface)
{
  MeshSubscriberType feature;
  EXPECT_PLACE_OF(feature, plain::MeshSubscriber, Clean);
  EXPECT_PLACE_OF(feature, plain::MeshSubscriber, CheckIfNeedToSubScribe);
  ExpectBaseOperationsInPlace<plain::MeshSubscriber, MeshSubscriberType>();
}

class VisibilityType : public Noting<VOXEAnalysisVisibility>
{
public:
  NOTES(void, SetVisibilityProperty, (VOXSamVisibility), )
  NOTES(VOXSamVisibility, GetVisibilityProperty, (), )
  NOTES(unsigned char, IsVisibleInGraph, (), )
  NOTES(unsigned char, IsVisibleIn3D, (), )
  NOTES(unsigned char, IsPersistent, (), const)
  NOTES(void, SetShowStatus, (unsigned char), )
  NOTES(unsigned char, IsNoShow, (), )
  NOTES(VOXListValVOXBaseUnknown_var*, GetFatherForGraphAnd3D, (), )
};

TEST(AdaptorSlots, OfVOXEAnalysisVisibilityAnswerAtTheirPlacesInAPlainInterface)
{
  VisibilityType feature;
  EXPECT_PLACE_OF(feature, plain::Visibility, SetVisibilityProperty);
  EXPECT_PLACE_OF(feature, plain::Visibility, GetVisibilityProperty);
  EXPECT_PLACE_OF(feature, plain::Visibility, IsVisibleInGraph);
  EXPECT_PLACE_OF(feature, plain::Visibility, IsVisibleIn3D);
  EXPECT_PLACE_OF(feature, plain::Visibility, IsPersistent);
  EXPECT_PLACE_OF(feature, plain::Visibility, SetShowStatus);
  EXPECT_PLACE_OF(feature, plain::Visibility, IsNoShow);
  EXPECT_PLACE_OF(feature, plain::Visibility, GetFatherForGraphAnd3D);
  ExpectBaseOperationsInPlace<plain::Visibility, VisibilityType>();
}

class GroupType : public Noting<VOXEAnalysisGroup>
{
public:
  NOTES(HRESULT, GetDefinitionType, (VOXUnicodeString&), const)
  NOTES(HRESULT, GetValueKinds, (int&, const VOXSamValue*&), const)
  NOTES(HRESULT, GetKeywords, (VOXSamValue, int&, const VOXString*&), const)
  NOTES(HRESULT, IsGroupOf, (VOXSamValue, VOXString, unsigned char&), const)
  NOTES(HRESULT, GetContent, (VOXSamValue, VOXString, const VOXAnalysisEntityCollector*&), const)
  NOTES(HRESULT, GetSupports, (VOXListValVOXBaseUnknown_var&), const)
  NOTES(HRESULT, GetExplicitPointers, (VOXSamValue, VOXString, int&, VOXSamModelDataRoot**&, int*&), const)
};

TEST(AdaptorSlots, OfVOXEAnalysisGroupAnswerAtTheirPlacesInAPlainInterface)
{
  GroupType feature;
  EXPECT_PLACE_OF(feature, plain::Group, GetDefinitionType);
  EXPECT_PLACE_OF(feature, plain::Group, GetValueKinds);
  EXPECT_PLACE_OF(feature, plain::Group, GetKeywords);
  EXPECT_PLACE_OF(feature, plain::Group, IsGroupOf);
  EXPECT_PLACE_OF(feature, plain::Group, GetContent);
  EXPECT_PLACE_OF(feature, plain::Group, GetSupports);
  EXPECT_PLACE_OF(feature, plain::Group, GetExplicitPointers);
  ExpectBaseOperationsInPlace<plain::Group, GroupType>();
}

class ContainerUpgradeType : public Noting<VOXEAnalysisUpgradeContainer>
{
public:
  NOTES(HRESULT, UpgradeContainer, (), )
  NOTES(bool, NeedToUpgraded, (int, int), )
  NOTES(HRESULT, UpgradeObject, (const VOXISpecObject*), )
};

TEST(AdaptorSlots, OfVOXEAnalysisUpgradeContainerAnswerAtTheirPlacesInAPlainInterface)
{
  ContainerUpgradeType feature;
  EXPECT_PLACE_OF(feature, plain::ContainerUpgrade, UpgradeContainer);
  EXPECT_PLACE_OF(feature, plain::ContainerUpgrade, NeedToUpgraded);
  EXPECT_PLACE_OF(feature, plain::ContainerUpgrade, UpgradeObject);
  ExpectBaseOperationsInPlace<plain::ContainerUpgrade, ContainerUpgradeType>();
}

class FeatureUpgradeType : public Noting<VOXEAnalysisUpgrade>
{
public:
  NOTES(bool, NeedToUpgrade, (), )
  NOTES(HRESULT, Upgrade, (), )
};

TEST(AdaptorSlots, OfVOXEAnalysisUpgradeAnswerAtTheirPlacesInAPlainInterface)
{
  FeatureUpgradeType feature;
  EXPECT_PLACE_OF(feature, plain::FeatureUpgrade, NeedToUpgrade);
  EXPECT_PLACE_OF(feature, plain::FeatureUpgrade, Upgrade);
  ExpectBaseOperationsInPlace<plain::FeatureUpgrade, FeatureUpgradeType>();
}

} // namespace
