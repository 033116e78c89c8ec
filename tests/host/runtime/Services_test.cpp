// SPDX-License-Identifier: MIT
#include "Automation/VOXAutomation.h"
#include "ComponentRuntime/VOXFatalError.h"
#include "Visualization/VOXMathAxis.h"
#include "Visualization/VOXRep.h"
#include "host/AnalysisCore/ErrorLog.h"
#include "host/AnalysisCore/TraceLog.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <gtest/gtest.h>

namespace
{

using voxhost::Faults;

TEST(FaultPoints, FailTheCallThatTheyAreToldToFailAndNoOther)
{
  VOXSamPosition position = VOXSamPositionUnknown;
  Faults::FailCall(2, false);
  EXPECT_EQ(VOXSamIdentityEnum("NODE", position), S_OK);
  EXPECT_EQ(VOXSamIdentityEnum("NODE", position), E_FAIL);
  EXPECT_EQ(VOXSamIdentityEnum("NODE", position), S_OK);
  EXPECT_EQ(Faults::Calls(), 3);
  EXPECT_EQ(Faults::LastFailed(), "VOXSamIdentityEnum");
  Faults::Disarm();
}

TEST(FaultPoints, FailAllThatFollowsWhenTold)
{
  VOXSamPosition position = VOXSamPositionUnknown;
  Faults::FailCall(2, true);
  EXPECT_EQ(VOXSamIdentityEnum("NODE", position), S_OK);
  EXPECT_EQ(VOXSamIdentityEnum("NODE", position), E_FAIL);
  EXPECT_EQ(VOXSamIdentityEnum("NODE", position), E_FAIL);
  Faults::Disarm();
  EXPECT_EQ(VOXSamIdentityEnum("NODE", position), S_OK);
}

TEST(FaultPoints, CountOneOperationAloneWhenItIsNamed)
{
  VOXSamPosition position = VOXSamPositionUnknown;
  VARIANT variant{};
  Faults::FailOperation("ConvertAnyToVariant", 1, false);
  EXPECT_EQ(VOXSamIdentityEnum("NODE", position), S_OK);
  EXPECT_EQ(Faults::Calls(), 0);
  EXPECT_EQ(ConvertAnyToVariant(any(std::int16_t{1}), variant), E_FAIL);
  Faults::Disarm();
}

TEST(LedgerOfArrays, SettlesAnArrayWhenItIsFreed)
{
  voxhost::Ledger::TurnOn();
  const auto start = voxhost::Ledger::Read();
  int* const array = voxhost::Ledger::HandOut(new int[3]);
  EXPECT_EQ((voxhost::Ledger::Read() - start).arraysOut, 1);
  delete[] array;
  EXPECT_EQ((voxhost::Ledger::Read() - start).Describe(), "balanced");
  voxhost::Ledger::TurnOff();
}

TEST(LedgerBalance, SaysWhatIsNotBalanced)
{
  voxhost::Ledger::Balance balance;
  balance.collectors = 2;
  balance.references = -1;
  EXPECT_EQ(balance.Describe(), "collectors +2, references -1");
}

TEST(ErrorReports, ArriveAsTheirArgumentsStandAndResetThePendingErrorByDefault)
{
  voxhost::ErrorLog::Clear();
  VOXSamErrorType kind = VOXSamErrorCondition;
  VOXSamInstanciateError(kind, 2, "file", 7, nullptr, 0, "text", -1, 0);
  EXPECT_EQ(kind, VOXSamErrorNone);
  ASSERT_EQ(voxhost::ErrorLog::Reports().size(), 1u);
  EXPECT_EQ(voxhost::ErrorLog::Reports()[0].depth, 2);
  EXPECT_EQ(voxhost::ErrorLog::Reports()[0].text, "text");
  voxhost::ErrorLog::Clear();
}

TEST(ErrorReports, LeaveThePendingErrorInTheOtherMode)
{
  voxhost::ErrorLog::SetResetsPendingError(false);
  VOXSamErrorType kind = VOXSamErrorEnumValue;
  VOXSamInstanciateError(kind, 1, "file", 7, nullptr, 0, nullptr, 28, 0);
  EXPECT_EQ(kind, VOXSamErrorEnumValue);
  EXPECT_FALSE(voxhost::ErrorLog::Reports().back().hasText);
  voxhost::ErrorLog::SetResetsPendingError(true);
  voxhost::ErrorLog::Clear();
}

TEST(ErrorDepth, TellsHowManyHandlersLive)
{
  const int depth = ErrorDepthHandler::_SamDepth_;
  {
    const ErrorDepthHandler outer;
    const ErrorDepthHandler inner;
    EXPECT_EQ(ErrorDepthHandler::_SamDepth_, depth + 2);
  }
  EXPECT_EQ(ErrorDepthHandler::_SamDepth_, depth);
}

TEST(ErrorDisplay, AnswersThePreviousSetting)
{
  const int start = VOXSamDisplayError(1);
  EXPECT_EQ(VOXSamDisplayError(0), 1);
  EXPECT_EQ(VOXSamDisplayError(static_cast<unsigned char>(start)), 0);
}

TEST(FatalErrorDeathTest, WritesItsTextAndEndsTheProcess)
{
  EXPECT_DEATH(VOXFatalError("AssertionFailed:!!spec", nullptr, nullptr, nullptr, "file", 3),
               "AssertionFailed:!!spec \\(file:3\\)");
}

TEST(TraceChannel, TellsItsListenerEveryPutAndLevelWhetherActiveOrNot)
{
  static std::vector<std::string> heard;
  heard.clear();
  VOXTraceAccess::Listen([](const std::string& iCall) { heard.push_back(iCall); });
  VOXTrace trace("test");
  trace.SetOutputLevel(2);
  trace.TraPut("Adding");
  trace.TraPutLN("answer", 1);
  VOXTraceAccess::Listen(nullptr);
  trace.TraPut("unheard");
  EXPECT_EQ(heard,
            (std::vector<std::string>{"test::SetOutputLevel(2)", "test::TraPut(Adding)", "test::TraPutLN(answer)"}));
}

TEST(TraceChannel, KeepsWhatIsPutWhileItIsActive)
{
  VOXTrace trace("test");
  trace.TraPutLN("lost");
  VOXTraceAccess::SetActive(trace, true);
  EXPECT_NE(trace.IsActive(), 0);
  trace.TraPut("Adding ");
  trace.TraPutLN("B");
  trace.TraPutLN("answer", 1);
  trace.SetOutputLevel(2);
  EXPECT_EQ(VOXTraceAccess::Text(trace), "Adding B\nanswer 1\n");
  EXPECT_EQ(VOXTraceAccess::Level(trace), 2);
}

TEST(AutomationValues, AreConvertedAndCopiedIntoArrays)
{
  VARIANT variant{};
  EXPECT_EQ(ConvertAnyToVariant(any(), variant), E_FAIL);
  ASSERT_EQ(ConvertAnyToVariant(any(std::int16_t{5}), variant), S_OK);
  SAFEARRAY* const array = BuildFromVariantArray(&variant, 1);
  ASSERT_NE(array, nullptr);
  EXPECT_EQ(array->count, 1u);
  EXPECT_EQ(array->values[0].vt, VT_I2);
  EXPECT_EQ(array->values[0].iVal, 5);
  DestroySafeArray(array);
  EXPECT_EQ(BuildFromVariantArray(nullptr, 1), nullptr);
}

TEST(BagRepresentation, OwnsWhatIsAddedToIt)
{
  const char* const site = nullptr;
  auto* const bag = new (site, nullptr, 0) VOX3DBagRep;
  bag->AddChild(new (site, nullptr, 0) VOX3DBagRep);
  EXPECT_EQ(bag->GetNumberOfChildren(), 1);
  delete bag;
}

TEST(CanonicalAxis, HasUnitDirections)
{
  EXPECT_EQ(VOXMathOIJK.i.x, 1.);
  EXPECT_EQ(VOXMathOIJK.j.y, 1.);
  EXPECT_EQ(VOXMathOIJK.k.z, 1.);
  EXPECT_EQ(VOXMathOIJK.origin.x, 0.);
}

} // namespace
