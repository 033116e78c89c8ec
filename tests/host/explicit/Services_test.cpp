// SPDX-License-Identifier: MIT
#include "ExplicitModel/VOXAnalysisExplicitServices.h"
#include "SmallModel.h"

namespace
{

using ExplicitServices = SmallModel;

TEST_F(ExplicitServices, KeepAPointerOnAnEntityNullIncluded)
{
  void* pointer = this;
  EXPECT_EQ(VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity(group, pointer), S_OK);
  EXPECT_EQ(pointer, nullptr);
  EXPECT_EQ(VOXAnalysisExplicitServices::SetFeaturePointerForSetOrEntity(group, this), S_OK);
  EXPECT_EQ(VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity(group, pointer), S_OK);
  EXPECT_EQ(pointer, this);
}

TEST_F(ExplicitServices, RecordWhichFeatureMadeAnEntity)
{
  EXPECT_EQ(VOXAnalysisExplicitServices::SetFeatureInfosForSetOrEntity(group, 1, 4711u), S_OK);
  EXPECT_EQ(model->RecordOf(group)->featureKind, 1);
  EXPECT_EQ(model->RecordOf(group)->featureIdentifier, 4711u);
}

TEST_F(ExplicitServices, FailOnAnEmptyHandle)
{
  VOXAnalysisExplicitParent empty;
  void* pointer = this;
  EXPECT_EQ(VOXAnalysisExplicitServices::SetFeatureInfosForSetOrEntity(empty, 1, 1u), E_FAIL);
  EXPECT_EQ(VOXAnalysisExplicitServices::SetFeaturePointerForSetOrEntity(empty, this), E_FAIL);
  EXPECT_EQ(VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity(empty, pointer), E_FAIL);
  EXPECT_EQ(pointer, this);
}

TEST(ExplicitPositions, AreNamedByTheirKeywords)
{
  VOXSamPosition position = VOXSamPositionUnknown;
  EXPECT_EQ(VOXSamIdentityEnum("FACE", position), S_OK);
  EXPECT_EQ(position, VOXSamPositionFace);
  EXPECT_EQ(VOXSamIdentityEnum("face", position), E_FAIL);
  EXPECT_EQ(VOXSamIdentityEnum(nullptr, position), E_FAIL);
  EXPECT_EQ(position, VOXSamPositionFace);
}

TEST(ExplicitErrorDisplay, AnswersThePreviousSetting)
{
  const unsigned char start = VOXAnalysisExplicitModel::DisplayErrors(0);
  EXPECT_EQ(VOXAnalysisExplicitModel::DisplayErrors(1), 0);
  EXPECT_EQ(VOXAnalysisExplicitModel::DisplayErrors(start), 1);
}

} // namespace
