// SPDX-License-Identifier: MIT
// Where each operation stands in its interface's own part of the virtual table, counted from 1.
#include "AnalysisInterfaces/VOXICharacCollector.h"
#include "AnalysisInterfaces/VOXICharacCollectorDerivatives.h"
#include "AnalysisInterfaces/VOXIExpressionCollector.h"
#include "AnalysisInterfaces/VOXISamAnalysisAxis.h"
#include "AnalysisInterfaces/VOXISamAnalysisContextCheck.h"
#include "AnalysisInterfaces/VOXISamAnalysisEntity.h"
#include "AnalysisInterfaces/VOXISamAnalysisEntityInit.h"
#include "AnalysisInterfaces/VOXISamAnalysisFeatureUpdate.h"
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamAnalysisSetInit.h"
#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "AnalysisInterfaces/VOXISamBasicComponentManager.h"
#include "AnalysisInterfaces/VOXISamEditionControl.h"
#include "AnalysisInterfaces/VOXISamEditionCusto.h"
#include "AnalysisInterfaces/VOXISamEntityVisu.h"
#include "AnalysisInterfaces/VOXISamFeatureUpgrade.h"
#include "AnalysisInterfaces/VOXISamGroup.h"
#include "AnalysisInterfaces/VOXISamImportDefine.h"
#include "AnalysisInterfaces/VOXISamMeshSubscriber.h"
#include "AnalysisInterfaces/VOXISamSelectionList.h"
#include "AnalysisInterfaces/VOXISamSupportFilter.h"
#include "AnalysisInterfaces/VOXISamUpgradeContainer.h"
#include "AnalysisInterfaces/VOXISamViewManager.h"
#include "AnalysisInterfaces/VOXISamVisibility.h"
#include "ObjectModeler/VOXIRedrawEvent.h"
#include "Visualization/VOXIMSHVisuGrouper.h"
#include "tests/support/VirtualTable.h"

#include <gtest/gtest.h>

namespace
{

using voxtest::OwnPlace;

TEST(Slots, OfVOXICharacCollectorAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetAvailablePhysicalTypes), 1);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetAvailableEntityPhysicalTypes), 2);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetAvailableVersions), 3);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetAvailablePositions), 4);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetCharacCollector), 5);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetCharacCollectors), 6);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::IsCharacCollectorUpToDate), 7);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::IsAnAvailableDefinition), 8);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetTitle), 9);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetCharacCollectorsForOccurrences), 10);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::DeleteCharacCollector), 11);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::DeleteAll), 12);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::Update), 13);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::SetContextModel), 14);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetContextModel), 15);
  EXPECT_EQ(OwnPlace(&VOXICharacCollector::GetContext), 16);
}

TEST(Slots, OfVOXICharacCollectorDerivativesAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXICharacCollectorDerivatives::AllowDerivativeComputation), 1);
  EXPECT_EQ(OwnPlace(&VOXICharacCollectorDerivatives::IsDerivativeAvailable), 2);
  EXPECT_EQ(OwnPlace(&VOXICharacCollectorDerivatives::ComputeParameterVariation), 3);
  EXPECT_EQ(OwnPlace(&VOXICharacCollectorDerivatives::SetParameterVariation), 4);
  EXPECT_EQ(OwnPlace(&VOXICharacCollectorDerivatives::GetCharacCollectorDerivatives), 5);
}

TEST(Slots, OfVOXIExpressionCollectorAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXIExpressionCollector::GetAvailableExpressions), 1);
  EXPECT_EQ(OwnPlace(&VOXIExpressionCollector::GetExpressionTitle), 2);
  EXPECT_EQ(OwnPlace(&VOXIExpressionCollector::GetNumberOfExpressions), 3);
  EXPECT_EQ(OwnPlace(&VOXIExpressionCollector::GetExpression), 4);
  EXPECT_EQ(OwnPlace(&VOXIExpressionCollector::DeleteExpression), 5);
  EXPECT_EQ(OwnPlace(&VOXIExpressionCollector::DeleteAll), 6);
  EXPECT_EQ(OwnPlace(&VOXIExpressionCollector::Update), 7);
}

TEST(Slots, OfVOXISamAnalysisAxisAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisAxis::GetMathAxis), 1);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisAxis::GetMKSMathAxis), 2);
}

TEST(Slots, OfVOXISamAnalysisContextCheckAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisContextCheck::Check), 1);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisContextCheck::ClosingEditor), 2);
}

TEST(Slots, OfVOXISamAnalysisEntityInitAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisEntityInit::Initialize), 1);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisEntityInit::InitWhenPositioned), 2);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisEntityInit::Remove), 3);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisEntityInit::CheckAnalysisSet), 4);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisEntityInit::GetAnalysisSetType), 5);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisEntityInit::AggregateInSet), 6);
}

TEST(Slots, OfVOXISamAnalysisFeatureUpdateAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisFeatureUpdate::Update), 1);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisFeatureUpdate::IsUpToDate), 2);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisFeatureUpdate::SetNoUpToDate), 3);
}

TEST(Slots, OfVOXISamAnalysisSetInitAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisSetInit::Initialize), 1);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisSetInit::CheckAnalysisParent), 2);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisSetInit::InitWhenPositioned), 3);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisSetInit::Remove), 4);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisSetInit::ReorderInScan), 5);
}

TEST(Slots, OfVOXISamBasicComponentManagerAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamBasicComponentManager::GetNbOptionalBC), 1);
  EXPECT_EQ(OwnPlace(&VOXISamBasicComponentManager::GetOptionalBCList), 2);
  EXPECT_EQ(OwnPlace(&VOXISamBasicComponentManager::IsBasicComponentHidden), 3);
  EXPECT_EQ(OwnPlace(&VOXISamBasicComponentManager::IsBasicComponentReadOnly), 4);
  EXPECT_EQ(OwnPlace(&VOXISamBasicComponentManager::IsBasicComponentRecordable), 5);
}

TEST(Slots, OfVOXISamEditionControlAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamEditionControl::AllowEdition), 1);
}

TEST(Slots, OfVOXISamEditionCustoAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamEditionCusto::AllowApply), 1);
  EXPECT_EQ(OwnPlace(&VOXISamEditionCusto::ActionPanel), 2);
}

TEST(Slots, OfVOXISamEntityVisuAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamEntityVisu::BuildEntityRep), 1);
  EXPECT_EQ(OwnPlace(&VOXISamEntityVisu::DecodeGraphic), 2);
  EXPECT_EQ(OwnPlace(&VOXISamEntityVisu::BuildHighlightLook), 3);
}

TEST(Slots, OfVOXISamFeatureUpgradeAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamFeatureUpgrade::NeedToUpgrade), 1);
  EXPECT_EQ(OwnPlace(&VOXISamFeatureUpgrade::Upgrade), 2);
  EXPECT_EQ(OwnPlace(&VOXISamFeatureUpgrade::CheckMultiLayer), 3);
  EXPECT_EQ(OwnPlace(&VOXISamFeatureUpgrade::UpgradeMultiLayer), 4);
}

TEST(Slots, OfVOXISamGroupAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamGroup::GetDefinitionType), 1);
  EXPECT_EQ(OwnPlace(&VOXISamGroup::GetValueKinds), 2);
  EXPECT_EQ(OwnPlace(&VOXISamGroup::GetKeywords), 3);
  EXPECT_EQ(OwnPlace(&VOXISamGroup::IsGroupOf), 4);
  EXPECT_EQ(OwnPlace(&VOXISamGroup::GetContent), 5);
  EXPECT_EQ(OwnPlace(&VOXISamGroup::GetSupports), 6);
  EXPECT_EQ(OwnPlace(&VOXISamGroup::GetExplicitPointers), 7);
}

TEST(Slots, OfVOXISamImportDefineAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamImportDefine::Accept), 1);
  EXPECT_EQ(OwnPlace(&VOXISamImportDefine::GetCommentForType), 2);
  EXPECT_EQ(OwnPlace(&VOXISamImportDefine::GetFileTypes), 3);
  EXPECT_EQ(OwnPlace(&VOXISamImportDefine::GetUserFrame), 4);
  EXPECT_EQ(OwnPlace(&VOXISamImportDefine::GetValues), 5);
  EXPECT_EQ(OwnPlace(&VOXISamImportDefine::Import), 6);
  EXPECT_EQ(OwnPlace(&VOXISamImportDefine::SetValues), 7);
}

TEST(Slots, OfVOXISamMeshSubscriberAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamMeshSubscriber::Clean), 1);
  EXPECT_EQ(OwnPlace(&VOXISamMeshSubscriber::CheckIfNeedToSubScribe), 2);
}

TEST(Slots, OfVOXISamSelectionListAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamSelectionList::GetMode), 1);
  EXPECT_EQ(OwnPlace(&VOXISamSelectionList::GetList), 2);
  EXPECT_EQ(OwnPlace(&VOXISamSelectionList::GetSelected), 3);
  EXPECT_EQ(OwnPlace(&VOXISamSelectionList::SetSelected), 4);
  EXPECT_EQ(OwnPlace(&VOXISamSelectionList::GetResult), 5);
}

TEST(Slots, OfVOXISamSupportFilterAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamSupportFilter::GetStatus), 1);
  EXPECT_EQ(OwnPlace(&VOXISamSupportFilter::GetSelectableObject), 2);
  EXPECT_EQ(OwnPlace(&VOXISamSupportFilter::ValidateSupport), 3);
  EXPECT_EQ(OwnPlace(&VOXISamSupportFilter::GetNLSid), 4);
}

TEST(Slots, OfVOXISamUpgradeContainerAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamUpgradeContainer::UpgradeContainer), 1);
  EXPECT_EQ(OwnPlace(&VOXISamUpgradeContainer::NeedToUpgraded), 2);
  EXPECT_EQ(OwnPlace(&VOXISamUpgradeContainer::UpgradeObject), 3);
}

TEST(Slots, OfVOXISamVisibilityAreInTheHostsOrder)
{
  EXPECT_EQ(OwnPlace(&VOXISamVisibility::SetVisibilityProperty), 1);
  EXPECT_EQ(OwnPlace(&VOXISamVisibility::GetVisibilityProperty), 2);
  EXPECT_EQ(OwnPlace(&VOXISamVisibility::IsVisibleInGraph), 3);
  EXPECT_EQ(OwnPlace(&VOXISamVisibility::IsVisibleIn3D), 4);
  EXPECT_EQ(OwnPlace(&VOXISamVisibility::IsPersistent), 5);
  EXPECT_EQ(OwnPlace(&VOXISamVisibility::SetShowStatus), 6);
  EXPECT_EQ(OwnPlace(&VOXISamVisibility::IsNoShow), 7);
  EXPECT_EQ(OwnPlace(&VOXISamVisibility::GetFatherForGraphAnd3D), 8);
}

TEST(Slots, ThatTheAdaptorsReachByTheirPlaceAreTrueInTheTable)
{
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisEntity::GetAnalysisSet), 9);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisEntity::IsShownUnderItsSet), 13);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisEntity::ListShownUnder), 17);
  EXPECT_EQ(OwnPlace(&VOXISamAnalysisSet::ListShownUnder), 26);
  EXPECT_EQ(OwnPlace(&VOXISamViewManager::Show), 1);
  EXPECT_EQ(OwnPlace(&VOXISamViewManager::UpdateShowStatus), 2);
  EXPECT_EQ(OwnPlace(&VOXIRedrawEvent::RequestRedraw), 8);
  EXPECT_EQ(OwnPlace(&VOXIMSHVisuGrouper::GetVisuObject), 1);
  EXPECT_EQ(OwnPlace(&VOXISamBasicComponent::InitializeAfterCreation), 1);
}

TEST(Slots, OfTheBaseComeFirst)
{
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::AddRef), -16);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::Release), -15);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::GetMetaObject), -7);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::GetImpl), -4);
  EXPECT_EQ(OwnPlace(&VOXBaseUnknown::ChangeComponentState), 0);
}

} // namespace
