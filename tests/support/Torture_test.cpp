// SPDX-License-Identifier: MIT
#include "tests/support/Torture.h"

#include "ComponentRuntime/VOXBaseUnknown.h"
#include "ComponentRuntime/VOXFatalError.h"
#include "host/ComponentRuntime/Component.h"
#include "host/Instruments/Faults.h"
#include "tests/support/Bench.h"

#include <memory>
#include <new>

#include <gtest/gtest-spi.h>

using namespace voxtest;
using voxhost::Faults;
using voxhost::Ledger;

namespace
{

// An operation as adaptors have them: two host calls, one site of kind 1 and one of kind 3. What it does wrong is set.
struct Operation
{
  bool reports = true;
  bool forgetsKind = false;
  bool changesRecordSilently = false;
  bool leavesMustJump = false;
  bool leavesDepth = false;
  bool raisesCheck = false;
  bool loosesReference = false;
  bool loosesArray = false;
  bool loosesCollector = false;
  bool ignoresFailures = false;
  HRESULT failure = E_FAIL;

  HRESULT operator()() const;

private:
  HRESULT Fail(VOXSamErrorType iKind, const char* iText, int iLine) const;
};

HRESULT Operation::operator()() const
{
  ErrorDepthHandler handler;
  if (Faults::Enter("Host::First") && !ignoresFailures)
    return Fail(VOXSamErrorPropagated, "", 10);
  if (Faults::Enter("Host::Second") && !ignoresFailures)
    return Fail(VOXSamErrorMissingObject, "Second", 20);
  return S_OK;
}

HRESULT Operation::Fail(VOXSamErrorType iKind, const char* iText, int iLine) const
{
  if (loosesReference)
    voxhost::Ledger::ReferenceGiven();
  if (loosesArray)
    Ledger::HandOut(reinterpret_cast<int*>(this->failure));
  if (loosesCollector)
    Ledger::CollectorBorn();
  if (raisesCheck)
    VOXSysCheckFailure("ExpressionCheck:false", nullptr, nullptr, nullptr, "here", 1);
  ErrorDepthHandler::_MustJump_ = leavesMustJump ? 0 : 1;
  if (reports || changesRecordSilently)
  {
    ErrorDepthHandler::_ier_ = forgetsKind ? VOXSamErrorCondition : iKind;
    ErrorDepthHandler::_c_err_ = iText;
    ErrorDepthHandler::_i_err_ = -1;
    ErrorDepthHandler::_errfile_ = "VOXAnalysisAdaptors.m/src/Probe";
    ErrorDepthHandler::_i_errline_ = iLine;
  }
  if (reports)
    VOXSamInstanciateError(ErrorDepthHandler::_ier_, ErrorDepthHandler::_SamDepth_, ErrorDepthHandler::_errfile_,
                           ErrorDepthHandler::_i_errline_, nullptr, 0, ErrorDepthHandler::_c_err_, -1, 0);
  ErrorDepthHandler::_SamDepth_ += leavesDepth ? 1 : 0;
  return failure;
}

Torture ProbeTorture()
{
  Torture torture("Probe");
  torture.Reports(VOXSamErrorPropagated, "", "Probe").Reports(VOXSamErrorMissingObject, "Second", "Probe");
  return torture;
}

// The first complaint about an operation that does something wrong.
std::string ComplaintAbout(const Operation& iOperation)
{
  const std::vector<std::string> complaints =
      ProbeTorture().Complaints([&](TortureRun& ioRun) { ioRun.Call(iOperation); });
  return complaints.empty() ? "none" : complaints.front();
}

} // namespace

TEST(Torture, HasNothingToSayAboutARightOperation)
{
  Torture torture = ProbeTorture();
  int runs = 0;
  torture.Run(
      [&](TortureRun& ioRun)
      {
        ++runs;
        ioRun.Call(Operation());
      });
  EXPECT_EQ(torture.HostCalls(), 2);
  EXPECT_EQ(runs, 2 * (2 + 2 * 2)); // both hosts: undisturbed twice, and two calls that fail alone and from there on
}

TEST(Torture, NamesTheCallTheOperationAndTheHostInItsComplaint)
{
  Operation wrong;
  wrong.loosesReference = true;
  EXPECT_EQ(ComplaintAbout(wrong),
            "Probe, host call 1 (Host::First) fails, the host resets the pending error: leaves the ledger unbalanced: "
            "references +1");
}

TEST(Torture, ComplainsAboutAnAnswerThatIsNotAllowed)
{
  Operation wrong;
  wrong.failure = E_NOTIMPL;
  EXPECT_NE(ComplaintAbout(wrong).find("answers 0x80004001"), std::string::npos);
}

TEST(Torture, ComplainsAboutAFailureWithoutReport)
{
  Operation wrong;
  wrong.reports = false;
  EXPECT_NE(ComplaintAbout(wrong).find("fails without a report"), std::string::npos);
}

TEST(Torture, ComplainsAboutAReportWithASuccess)
{
  Operation wrong;
  wrong.failure = S_OK;
  EXPECT_NE(ComplaintAbout(wrong).find("answers 0x0 and reports kind 1"), std::string::npos);
}

TEST(Torture, ComplainsAboutAReportOfAnUnknownSite)
{
  Operation wrong;
  wrong.forgetsKind = true;
  EXPECT_NE(ComplaintAbout(wrong).find("no site of the scenario reports: kind 6, \"\""), std::string::npos);
}

TEST(Torture, ComplainsAboutARecordThatChangedSilently)
{
  Operation wrong;
  wrong.reports = false;
  wrong.changesRecordSilently = true;
  wrong.failure = S_OK;
  EXPECT_NE(ComplaintAbout(wrong).find("the error record changed"), std::string::npos);
}

TEST(Torture, ComplainsAboutMustJump)
{
  Operation wrong;
  wrong.leavesMustJump = true;
  EXPECT_NE(ComplaintAbout(wrong).find("_MustJump_ is left at 0"), std::string::npos);
}

TEST(Torture, ComplainsAboutTheDepth)
{
  Operation wrong;
  wrong.leavesDepth = true;
  EXPECT_NE(ComplaintAbout(wrong).find("_SamDepth_ is left at 1"), std::string::npos);
}

TEST(Torture, ComplainsAboutACheckFailure)
{
  Operation wrong;
  wrong.raisesCheck = true;
  EXPECT_NE(ComplaintAbout(wrong).find("raises the check failure \"ExpressionCheck:false\""), std::string::npos);
}

TEST(Torture, ComplainsAboutAnArrayThatWasNotFreed)
{
  Operation wrong;
  wrong.loosesArray = true;
  EXPECT_NE(ComplaintAbout(wrong).find("arrays out +1"), std::string::npos);
}

TEST(Torture, ComplainsAboutASiteThatNoRunMet)
{
  Operation wrong;
  wrong.ignoresFailures = true;
  EXPECT_EQ(ComplaintAbout(wrong), "Probe: no run met the site of kind 1, \"\", in VOXAnalysisAdaptors.m/src/Probe");
}

TEST(Torture, LetsARunKeepWhatItDeclares)
{
  Operation keeper;
  keeper.loosesCollector = true;
  ProbeTorture().Run(
      [&](TortureRun& ioRun)
      {
        ioRun.Call(keeper);
        if (ioRun.Failed())
          ioRun.Keeps({.collectors = 1});
      });
}

TEST(Torture, WantsTheUndisturbedRunToSucceed)
{
  const std::vector<std::string> complaints =
      Torture("Probe").MayFailSilently().Complaints([](TortureRun& ioRun) { ioRun.Call([] { return E_FAIL; }); });
  ASSERT_EQ(complaints.size(), 1u);
  EXPECT_NE(complaints[0].find("the undisturbed run must succeed"), std::string::npos);
}

TEST(Torture, WantsSomethingToTorture)
{
  const std::vector<std::string> complaints =
      Torture("Probe").Complaints([](TortureRun& ioRun) { ioRun.Call([] { return S_OK; }); });
  ASSERT_EQ(complaints.size(), 1u);
  EXPECT_NE(complaints[0].find("makes 0 host calls"), std::string::npos);
}

TEST(Torture, TakesAFatalErrorOnlyWhenItIsNamed)
{
  const auto body = [](TortureRun& ioRun)
  {
    ioRun.Call(
        []
        {
          if (Faults::Enter("Host::First"))
            VOXFatalError("AssertionFailed:first", nullptr, nullptr, nullptr, "here", 1);
          return S_OK;
        });
  };
  Torture("Probe").MayEndFatally("AssertionFailed:first").Run(body);
  const std::vector<std::string> complaints = Torture("Probe").MayEndFatally("AssertionFailed:second").Complaints(body);
  ASSERT_EQ(complaints.size(), 1u);
  EXPECT_NE(complaints[0].find("ends with the fatal error \"AssertionFailed:first\""), std::string::npos);
}

TEST(Torture, FailsAllocationsThatMayAnswerNull)
{
  Torture torture("Probe");
  torture.ReportsNothing().MayAnswer({S_OK, E_OUTOFMEMORY});
  int failures = 0;
  torture.Run(
      [&](TortureRun& ioRun)
      {
        ioRun.Call(
            []
            {
              const std::unique_ptr<int> number(new (std::nothrow) int);
              return number ? S_OK : E_OUTOFMEMORY;
            });
        failures += ioRun.Failed() ? 1 : 0;
      });
  EXPECT_EQ(torture.Allocations(), 1);
  EXPECT_EQ(failures, 4); // alone and with all later ones, under both hosts
}

TEST(Torture, TellsTheRunOfABrokenExpectation)
{
  static int broken = 0;
  EXPECT_NONFATAL_FAILURE(ProbeTorture().Complaints(
                              [](TortureRun& ioRun)
                              {
                                ioRun.Call(Operation());
                                const bool asExpected = ioRun.Succeeded() || broken++ > 0;
                                EXPECT_TRUE(asExpected);
                              }),
                          "host call 1 (Host::First) fails");
}
