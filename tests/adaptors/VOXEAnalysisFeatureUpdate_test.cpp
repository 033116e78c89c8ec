// SPDX-License-Identifier: MIT
#include "VOXEAnalysisFeatureUpdate.h"

#include "tests/adaptors/Face.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using FeatureUpdate = Face<VOXEAnalysisFeatureUpdate, VOXISamAnalysisFeatureUpdate>;
using Action = VOXISamAnalysisFeatureUpdate::VOXSamUpdateAction;

} // namespace

TEST(VOXEAnalysisFeatureUpdate, UpdatesByDoingNothing)
{
  AdaptorBench<FeatureUpdate> update;
  EXPECT_EQ(update->Update(VOXISamAnalysisFeatureUpdate::UpdateAll), S_OK);
  EXPECT_EQ(update->Update(static_cast<Action>(99)), S_OK);
}

TEST(VOXEAnalysisFeatureUpdate, LeavesTheAnswerAsTheCallerSetIt)
{
  AdaptorBench<FeatureUpdate> update;
  for (const unsigned char before : {0, 1, 77})
  {
    unsigned char upToDate = before;
    update->IsUpToDate(upToDate);
    EXPECT_EQ(upToDate, before);
  }
}

TEST(VOXEAnalysisFeatureUpdate, MarkingItOutOfDateChangesNoAnswer)
{
  AdaptorBench<FeatureUpdate> update;
  update->SetNoUpToDate();
  unsigned char upToDate = 1;
  update->IsUpToDate(upToDate);
  EXPECT_EQ(upToDate, 1);
}

TEST(VOXEAnalysisFeatureUpdate, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisFeatureUpdate::Update), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisFeatureUpdate::IsUpToDate), 2);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisFeatureUpdate::SetNoUpToDate), 3);
  AdaptorBench<FeatureUpdate> update;
  unsigned char upToDate = 1;
  EXPECT_EQ((CallOwn<HRESULT, Action>(update.Get(), 1, VOXISamAnalysisFeatureUpdate::UpdateMesh)), S_OK);
  CallOwn<void, unsigned char&>(update.Get(), 2, upToDate);
  CallOwn<void>(update.Get(), 3);
  EXPECT_EQ(upToDate, 1);
}
