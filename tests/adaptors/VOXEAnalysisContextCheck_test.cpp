// SPDX-License-Identifier: MIT
#include "VOXEAnalysisContextCheck.h"

#include "tests/adaptors/Face.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using ContextCheck = Face<VOXEAnalysisContextCheck, VOXISamAnalysisContextCheck>;

} // namespace

TEST(VOXEAnalysisContextCheck, AcceptsAnyDocumentsAndEditors)
{
  AdaptorBench<ContextCheck> check;
  EXPECT_EQ(check->Check(nullptr, nullptr), S_OK);
  EXPECT_EQ(check->Check(Poison<VOXDocument>(), Poison<VOXDocument>()), S_OK);
  EXPECT_EQ(check->ClosingEditor(nullptr), S_OK);
  EXPECT_EQ(check->ClosingEditor(Poison<VOXFrmEditor>()), S_OK);
}

TEST(VOXEAnalysisContextCheck, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisContextCheck::Check), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisContextCheck::ClosingEditor), 2);
  AdaptorBench<ContextCheck> check;
  EXPECT_EQ((CallOwn<HRESULT, VOXDocument*, VOXDocument*>(check.Get(), 1, nullptr, nullptr)), S_OK);
  EXPECT_EQ((CallOwn<HRESULT, VOXFrmEditor*>(check.Get(), 2, nullptr)), S_OK);
}
