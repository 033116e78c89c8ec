// SPDX-License-Identifier: MIT
// What all operations that report have in common, seen through one that reports at many sites.
#include "VOXSamGroupTools.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"
#include "tests/adaptors/Reported.h"

#include <gtest/gtest.h>

using namespace voxtest;
using voxhost::ErrorLog;
using voxhost::ErrorReport;
using voxhost::Faults;

namespace
{

const std::string kTools = SourceOf("VOXSamGroupTools");

// Fails with a propagated error: the rules know no number.
void Propagate(voxhost::ExplicitModel& ioModel)
{
  int type = 0;
  Faults::FailOperation("VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber", 1, false);
  VOXSamGroupTools::GetExplicitGroupType(&ioModel, VOXSamValueNode, "NODE", type);
  Faults::Disarm();
}

// Fails with a missing object.
void Miss()
{
  int type = 0;
  VOXSamGroupTools::GetExplicitGroupType(nullptr, VOXSamValueNode, "NODE", type);
}

class ErrorRecord : public testing::Test
{
protected:
  ErrorRecord()
  {
    ResetErrors();
    ErrorLog::SetResetsPendingError(false);
  }
  ~ErrorRecord() override { ResetErrors(); }

  voxhost::ExplicitModel model;
};

} // namespace

TEST_F(ErrorRecord, APropagatedErrorIsRecordedWhenNothingIsPending)
{
  Propagate(model);
  EXPECT_EQ(ErrorDepthHandler::_ier_, VOXSamErrorPropagated);
  ASSERT_NE(ErrorDepthHandler::_c_err_, nullptr) << "the empty text, not a null one";
  EXPECT_STREQ(ErrorDepthHandler::_c_err_, "");
  EXPECT_EQ(ErrorDepthHandler::_i_err_, -1);
  EXPECT_EQ(ErrorDepthHandler::_errfile_, kTools);
  EXPECT_GT(ErrorDepthHandler::_i_errline_, 0);
}

TEST_F(ErrorRecord, APropagatedErrorAfterAnotherOneReportsTheEarlierSite)
{
  Miss();
  const ErrorReport first = ErrorLog::Reports().back();
  Propagate(model);
  const ErrorReport second = ErrorLog::Reports().back();
  EXPECT_EQ(second.kind, VOXSamErrorMissingObject);
  EXPECT_EQ(second.text, "iModel");
  EXPECT_EQ(second.file, first.file);
  EXPECT_EQ(second.line, first.line);
  EXPECT_EQ(ErrorDepthHandler::_i_errline_, first.line);
}

TEST_F(ErrorRecord, AMissingObjectReplacesAnEarlierError)
{
  Propagate(model);
  const int line = ErrorDepthHandler::_i_errline_;
  Miss();
  EXPECT_EQ(ErrorDepthHandler::_ier_, VOXSamErrorMissingObject);
  EXPECT_STREQ(ErrorDepthHandler::_c_err_, "iModel");
  EXPECT_NE(ErrorDepthHandler::_i_errline_, line);
}

TEST_F(ErrorRecord, TheNumberOfARejectedValueDoesNotStickToTheNextError)
{
  int type = 0;
  VOXSamGroupTools::GetExplicitGroupType(&model, static_cast<VOXSamValue>(7), "NODE", type);
  EXPECT_EQ(ErrorDepthHandler::_i_err_, 7);
  Miss();
  EXPECT_EQ(ErrorDepthHandler::_i_err_, -1);
}

TEST_F(ErrorRecord, TheKindIsHandedOverByReferenceSoThatTheHostCanResetIt)
{
  ErrorLog::SetResetsPendingError(true);
  Miss();
  EXPECT_EQ(ErrorDepthHandler::_ier_, VOXSamErrorNone);
  EXPECT_STREQ(ErrorDepthHandler::_c_err_, "iModel") << "the rest stands as it was recorded";
}

TEST_F(ErrorRecord, TheLibraryNeverResetsTheKindItself)
{
  int type = 0;
  Miss();
  VOXSamGroupTools::GetExplicitGroupType(&model, VOXSamValueNode, "NODE", type);
  EXPECT_EQ(ErrorDepthHandler::_ier_, VOXSamErrorMissingObject) << "a success leaves it as well";
}

TEST_F(ErrorRecord, IncludedFileAndItsLineAreNeverWritten)
{
  ErrorDepthHandler::_errincfile_ = "included";
  ErrorDepthHandler::_i_errincline_ = 12;
  Miss();
  Propagate(model);
  EXPECT_STREQ(ErrorDepthHandler::_errincfile_, "included");
  EXPECT_EQ(ErrorDepthHandler::_i_errincline_, 12);
}

TEST_F(ErrorRecord, TheDepthOfAReportCountsTheHandlersAbove)
{
  {
    const ErrorDepthHandler outer;
    Miss();
  }
  EXPECT_EQ(ErrorLog::Reports().back().depth, 2);
  Miss();
  EXPECT_EQ(ErrorLog::Reports().back().depth, 1);
  EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
}

TEST_F(ErrorRecord, APlainExitLeavesJumpsAlone)
{
  ErrorDepthHandler::_MustJump_ = 5;
  Miss();
  EXPECT_EQ(ErrorDepthHandler::_MustJump_, 5);
}

TEST_F(ErrorRecord, ASuccessRecordsAndReportsNothing)
{
  int type = 0;
  EXPECT_EQ(VOXSamGroupTools::GetExplicitGroupType(&model, VOXSamValueNode, "NODE", type), S_OK);
  EXPECT_TRUE(ErrorLog::Reports().empty());
  EXPECT_EQ(ErrorDepthHandler::_ier_, VOXSamErrorNone);
  EXPECT_EQ(ErrorDepthHandler::_errfile_, nullptr);
  EXPECT_EQ(ErrorDepthHandler::_i_errline_, 0);
  EXPECT_EQ(ErrorDepthHandler::_SamDepth_, 0);
}
