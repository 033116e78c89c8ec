// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisCore/ErrorDepthHandler.h"
#include "ComponentRuntime/VOXResult.h"
#include "host/AnalysisCore/ErrorLog.h"
#include "host/Instruments/Ledger.h"

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace voxtest
{

//! Thrown by the fatal-error handler that the tests install.
struct FatalErrorRaised
{
  voxhost::CheckReport report;
};

//! Installs a fatal-error handler that throws FatalErrorRaised, and puts the default back when it dies.
class ThrowingFatalErrors
{
public:
  ThrowingFatalErrors();
  ~ThrowingFatalErrors();
  ThrowingFatalErrors(const ThrowingFatalErrors&) = delete;
  ThrowingFatalErrors& operator=(const ThrowingFatalErrors&) = delete;
};

//! One run of a scenario, handed to its body.
class TortureRun
{
public:
  //! Calls the operation under torture: what happens in here is counted and can fail, what the body does before and after
  //! is not. Exactly once per run.
  //! @param iOperation returns the HRESULT, or the yes/no answer, of the operation; S_OK for one that answers nothing.
  //! @return the same. A fatal error leaves the body by an exception.
  HRESULT Call(const std::function<HRESULT()>& iOperation);

  //! Whether the operation answered with a failure.
  bool Failed() const { return FAILED(_Result); }
  bool Succeeded() const { return SUCCEEDED(_Result); }

  //! Whether something was made to fail in this run.
  bool IsTortured() const { return _Kind != Kind::Count; }

  //! What this run leaves behind on purpose: the released behaviour, which nobody tidies away.
  void Keeps(const voxhost::Ledger::Balance& iBalance) { _Kept = iBalance; }

private:
  friend class Torture;
  enum class Kind
  {
    Count,
    HostCall,
    Allocation
  };

  TortureRun(Kind iKind, int iCall, bool iAndLater) : _Kind(iKind), _FailAt(iCall), _AndLater(iAndLater) {}
  void Arm() const;
  void Disarm();
  std::string Describe() const;

  Kind _Kind;
  int _FailAt;
  bool _AndLater;
  HRESULT _Result = S_OK;
  int _TimesCalled = 0;
  int _HostCalls = 0;
  int _Allocations = 0;
  std::string _LastFailed;
  std::string _RecordFault; // what is wrong with the error record right after the call
  std::vector<voxhost::ErrorReport> _Reports;
  voxhost::Ledger::Balance _Kept;
  std::optional<testing::ScopedTrace> _Trace;
};

//! Tortures one operation of an adaptor, or of a feature type that derives from one.
//!
//! The scenario runs undisturbed (twice: the first time warms the host up), and the calls that the operation makes into
//! the host are counted. Then it runs once per call with that call failing, and once more per call with that one and all
//! later ones failing; the same for every allocation that may answer "no memory". All of that twice: with a host that
//! sets the pending error back after a report, and with one that does not. After each run it is checked that
//! - the operation gave one of the answers that the scenario allows, and the undisturbed run succeeded;
//! - an answer of E_FAIL came with reports, each of a site that the scenario names, the last from the operation itself;
//!   any other answer came without;
//! - the error record holds the last report, or is untouched without one; no check failure was raised;
//! - `_MustJump_` is 1 and `_SamDepth_` is 0 again;
//! - every component, reference, collector, archiver, list and array is back, apart from what the run declares as kept;
//! - every site that the scenario names was met in one of the runs.
//!
//! A torture test builds its world in the body, anew for each run, calls the operation once, checks what the caller gets
//! whatever happened (preset out-parameters above all), and gives back what it was given:
//! @code
//! TEST(MyGroupTorture, GetContentSurvivesEveryFailingCall)
//! {
//!   Torture torture("GetContent");
//!   torture.Reports(VOXSamErrorPropagated, "", "VOXEAnalysisGroup");
//!   torture.Run([](TortureRun& ioRun) {
//!     MyWorld world;
//!     const VOXAnalysisEntityCollector* pCollector = Poison<const VOXAnalysisEntityCollector>();
//!     ioRun.Call([&] { return world.Group()->GetContent(VOXSamValueNode, "NODE", pCollector); });
//!     EXPECT_TRUE(ioRun.Succeeded() || pCollector == nullptr);
//!     if (pCollector != nullptr)
//!       pCollector->Release();
//!   });
//! }
//! @endcode
//! A scripted interface takes part when each of its operations passes its fault point (CallLog::Enter, see Bench.h).
class Torture
{
public:
  //! @param iOperation its name, for the messages.
  explicit Torture(std::string iOperation) : _Operation(std::move(iOperation)) {}

  //! The answers that are right. S_OK and E_FAIL unless this is called.
  Torture& MayAnswer(std::set<HRESULT> iResults);

  //! A site that some run must meet: its kind, its text, the class whose source it is in, its number.
  Torture& Reports(VOXSamErrorType iKind, const char* iText, const char* iClass, int iNumber = -1);

  //! A site that a run may meet.
  Torture& MayReport(VOXSamErrorType iKind, const char* iText, const char* iClass, int iNumber = -1);

  //! The operation reports nothing, whatever it answers.
  Torture& ReportsNothing();

  //! A failure may come without a report: the operation passes on what a called one answered.
  Torture& MayFailSilently();

  //! A success may come with reports: the operation goes on after a called one failed.
  Torture& MayReportOnSuccess();

  //! A fatal error with this text is an allowed end of a run ("AssertionFailed:pRulesData").
  Torture& MayEndFatally(std::string iText);

  //! Runs the scenario in all ways. Every complaint becomes a failure of the current test.
  void Run(const std::function<void(TortureRun&)>& iBody);

  //! As Run, but gives the complaints back. Failed expectations of the body are failures of the test as ever.
  std::vector<std::string> Complaints(const std::function<void(TortureRun&)>& iBody);

  //! Host calls, and allocations that may fail, of the undisturbed run.
  int HostCalls() const { return _HostCalls; }
  int Allocations() const { return _Allocations; }

private:
  struct Site
  {
    VOXSamErrorType kind;
    bool hasText;
    std::string text;
    std::string file;
    int number;
    bool required;
    bool met;
  };

  Torture& AddSite(VOXSamErrorType iKind, const char* iText, const char* iClass, int iNumber, bool iRequired);
  void RunMode(bool iHostResets, const std::function<void(TortureRun&)>& iBody);
  bool RunOnce(TortureRun& ioRun, const std::function<void(TortureRun&)>& iBody);
  void Check(const TortureRun& iRun, const voxhost::Ledger::Balance& iChange);
  void CheckReports(const TortureRun& iRun);
  void CheckFatal(const TortureRun& iRun, const std::string& iText);
  void Complain(const TortureRun& iRun, const std::string& iWhat);

  std::string _Operation;
  std::set<HRESULT> _Answers{S_OK, E_FAIL};
  std::vector<Site> _Sites;
  std::set<std::string> _FatalTexts;
  bool _ReportsNothing = false;
  bool _MayFailSilently = false;
  bool _MayReportOnSuccess = false;
  bool _HostResets = true;
  int _HostCalls = 0;
  int _Allocations = 0;
  std::vector<std::string> _Complaints;
};

//! A pointer that is neither null nor valid: an out-parameter that an operation must preset.
template <class T>
T* Poison()
{
  return reinterpret_cast<T*>(0x5a5a5a50);
}

//! The file that a class's sites are reported from.
std::string SourceOf(const char* iClass);

//! Nothing pending, nothing logged, the pending error reset after a report: the state that each test of errors begins in.
void ResetErrors();

} // namespace voxtest
