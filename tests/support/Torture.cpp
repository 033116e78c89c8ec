// SPDX-License-Identifier: MIT
#include "tests/support/Torture.h"

#include "host/Instruments/Faults.h"
#include "tests/support/Memory.h"

#include <cstring>
#include <exception>
#include <sstream>

using voxhost::ErrorLog;
using voxhost::Faults;
using voxhost::Ledger;

namespace voxtest
{
namespace
{

constexpr int kMostCalls = 2000; // beyond that a scenario is too large to be run twice per call

// The error record as it stands. Texts by address: what nobody writes stays the same pointer.
struct Record
{
  VOXSamErrorType kind = ErrorDepthHandler::_ier_;
  const char* text = ErrorDepthHandler::_c_err_;
  int number = ErrorDepthHandler::_i_err_;
  const char* file = ErrorDepthHandler::_errfile_;
  int line = ErrorDepthHandler::_i_errline_;
  const char* includedFile = ErrorDepthHandler::_errincfile_;
  int includedLine = ErrorDepthHandler::_i_errincline_;

  bool operator==(const Record&) const = default;
};

std::string Quote(bool iHasText, const std::string& iText)
{
  return iHasText ? "\"" + iText + "\"" : "no text";
}

std::string Describe(const voxhost::ErrorReport& iReport)
{
  std::ostringstream text;
  text << "kind " << iReport.kind << ", " << Quote(iReport.hasText, iReport.text) << ", number " << iReport.number
       << ", at " << iReport.file << ":" << iReport.line;
  return text.str();
}

std::string Hex(HRESULT iResult)
{
  std::ostringstream text;
  text << "0x" << std::hex << static_cast<unsigned int>(iResult);
  return text.str();
}

bool Holds(const voxhost::ErrorReport& iReport, const Record& iRecord, bool iHostResets)
{
  const bool sameText = iRecord.text == nullptr ? !iReport.hasText : iReport.hasText && iReport.text == iRecord.text;
  return iRecord.kind == (iHostResets ? VOXSamErrorNone : iReport.kind) && sameText &&
         iRecord.number == iReport.number && iRecord.file != nullptr && iReport.file == iRecord.file &&
         iRecord.line == iReport.line && iRecord.includedFile == nullptr && iRecord.includedLine == 0;
}

// What is wrong with the error record after a call; empty when nothing is.
std::string FaultOfRecord(const Record& iBefore)
{
  const Record after;
  if (ErrorDepthHandler::_MustJump_ != 1)
    return "_MustJump_ is left at " + std::to_string(ErrorDepthHandler::_MustJump_);
  if (ErrorDepthHandler::_SamDepth_ != 0)
    return "_SamDepth_ is left at " + std::to_string(ErrorDepthHandler::_SamDepth_);
  if (ErrorLog::Reports().empty())
    return after == iBefore ? "" : "the error record changed although nothing was reported";
  if (!Holds(ErrorLog::Reports().back(), after, ErrorLog::ResetsPendingError()))
    return "the error record does not hold the last report (" + Describe(ErrorLog::Reports().back()) + ")";
  return "";
}

} // namespace

ThrowingFatalErrors::ThrowingFatalErrors()
{
  ErrorLog::SetFatalHandler([](const voxhost::CheckReport& iReport) { throw FatalErrorRaised{iReport}; });
}

ThrowingFatalErrors::~ThrowingFatalErrors()
{
  ErrorLog::SetFatalHandler({});
}

std::string SourceOf(const char* iClass)
{
  return std::string("VOXAnalysisAdaptors.m/src/") + iClass;
}

void ResetErrors()
{
  ErrorLog::Clear();
  ErrorLog::ResetPendingError();
  ErrorLog::SetResetsPendingError(true);
  ErrorDepthHandler::_SamDepth_ = 0;
}

HRESULT TortureRun::Call(const std::function<HRESULT()>& iOperation)
{
  ++_TimesCalled;
  const Record before;
  Arm();
  try
  {
    _Result = iOperation();
  }
  catch (...)
  {
    Disarm();
    throw;
  }
  Disarm();
  _RecordFault = FaultOfRecord(before);
  _Reports = ErrorLog::Reports();
  _Trace.emplace(__FILE__, __LINE__, Describe());
  return _Result;
}

void TortureRun::Arm() const
{
  switch (_Kind)
  {
  case Kind::HostCall:
    Faults::FailCall(_FailAt, _AndLater);
    return;
  case Kind::Allocation:
    Memory::FailCall(_FailAt, _AndLater);
    return;
  case Kind::Count:
    Faults::Count();
    Memory::Count();
  }
}

void TortureRun::Disarm()
{
  Faults::Disarm();
  Memory::Disarm();
  _HostCalls = Faults::Calls();
  _Allocations = Memory::Calls();
  _LastFailed = _Kind == Kind::HostCall ? Faults::LastFailed() : "";
}

std::string TortureRun::Describe() const
{
  if (_Kind == Kind::Count)
    return "undisturbed";
  std::string text = (_Kind == Kind::HostCall ? "host call " : "allocation ") + std::to_string(_FailAt);
  if (!_LastFailed.empty())
    text += (_AndLater ? " (the last that failed: " : " (") + _LastFailed + ")";
  return text + (_AndLater ? " and all later ones fail" : " fails");
}

Torture& Torture::MayAnswer(std::set<HRESULT> iResults)
{
  _Answers = std::move(iResults);
  return *this;
}

Torture& Torture::Reports(VOXSamErrorType iKind, const char* iText, const char* iClass, int iNumber)
{
  return AddSite(iKind, iText, iClass, iNumber, true);
}

Torture& Torture::MayReport(VOXSamErrorType iKind, const char* iText, const char* iClass, int iNumber)
{
  return AddSite(iKind, iText, iClass, iNumber, false);
}

Torture& Torture::AddSite(VOXSamErrorType iKind, const char* iText, const char* iClass, int iNumber, bool iRequired)
{
  _Sites.push_back(
      {iKind, iText != nullptr, iText != nullptr ? iText : "", SourceOf(iClass), iNumber, iRequired, false});
  return *this;
}

Torture& Torture::ReportsNothing()
{
  _ReportsNothing = true;
  return *this;
}

Torture& Torture::MayFailSilently()
{
  _MayFailSilently = true;
  return *this;
}

Torture& Torture::MayReportOnSuccess()
{
  _MayReportOnSuccess = true;
  return *this;
}

Torture& Torture::MayEndFatally(std::string iText)
{
  _FatalTexts.insert(std::move(iText));
  return *this;
}

void Torture::Run(const std::function<void(TortureRun&)>& iBody)
{
  for (const std::string& complaint : Complaints(iBody))
    ADD_FAILURE() << complaint;
}

std::vector<std::string> Torture::Complaints(const std::function<void(TortureRun&)>& iBody)
{
  _Complaints.clear();
  const ThrowingFatalErrors fatalErrorsThrow;
  RunMode(true, iBody);
  if (_Complaints.empty())
    RunMode(false, iBody);
  ResetErrors();
  if (!_Complaints.empty())
    return _Complaints;
  for (const Site& site : _Sites)
    if (site.required && !site.met)
      _Complaints.push_back(_Operation + ": no run met the site of kind " + std::to_string(site.kind) + ", " +
                            Quote(site.hasText, site.text) + ", in " + site.file);
  return _Complaints;
}

void Torture::RunMode(bool iHostResets, const std::function<void(TortureRun&)>& iBody)
{
  using Kind = TortureRun::Kind;
  _HostResets = iHostResets;
  TortureRun warmingUp(Kind::Count, 0, false); // what the host makes once per process is made here
  TortureRun counting(Kind::Count, 0, false);
  if (!RunOnce(warmingUp, iBody) || !RunOnce(counting, iBody))
    return;
  _HostCalls = counting._HostCalls;
  _Allocations = counting._Allocations;
  if (counting.Failed())
    return Complain(counting, "answers " + Hex(counting._Result) + ": the undisturbed run must succeed");
  if (_HostCalls + _Allocations == 0 || _HostCalls + _Allocations > kMostCalls)
    return Complain(counting, "makes " + std::to_string(_HostCalls) + " host calls; give the torture 1 to " +
                                  std::to_string(kMostCalls));
  for (const Kind kind : {Kind::HostCall, Kind::Allocation})
    for (int call = 1; call <= (kind == Kind::HostCall ? _HostCalls : _Allocations); ++call)
      for (const bool andLater : {false, true})
        if (TortureRun run(kind, call, andLater); !RunOnce(run, iBody))
          return; // one complaint is told; the runs after it would tell the same again and again
}

bool Torture::RunOnce(TortureRun& ioRun, const std::function<void(TortureRun&)>& iBody)
{
  ResetErrors();
  ErrorLog::SetResetsPendingError(_HostResets);
  const bool failedBefore = testing::Test::HasFailure();
  Ledger::TurnOn();
  const Ledger::Balance before = Ledger::Read();
  try
  {
    std::optional<LeaksAllowed> leaksAllowed;
    if (!_FatalTexts.empty())
      leaksAllowed.emplace();
    iBody(ioRun);
    Check(ioRun, Ledger::Read() - before);
  }
  catch (const FatalErrorRaised& fatal)
  {
    CheckFatal(ioRun, fatal.report.text);
  }
  catch (const std::exception& exception)
  {
    Complain(ioRun, std::string("lets an exception out: ") + exception.what());
  }
  Ledger::TurnOff();
  ioRun._Trace.reset();
  if (!failedBefore && testing::Test::HasFailure())
    Complain(ioRun, "breaks an expectation of the scenario, told above");
  return _Complaints.empty();
}

void Torture::Check(const TortureRun& iRun, const Ledger::Balance& iChange)
{
  if (iRun._TimesCalled != 1)
    return Complain(iRun, "was called " + std::to_string(iRun._TimesCalled) + " times: the body calls it once");
  if (_Answers.count(iRun._Result) == 0)
    Complain(iRun, "answers " + Hex(iRun._Result));
  CheckReports(iRun);
  if (!iRun._RecordFault.empty())
    Complain(iRun, iRun._RecordFault);
  if (!ErrorLog::CheckFailures().empty())
    Complain(iRun, "raises the check failure \"" + ErrorLog::CheckFailures().front().text + "\"");
  const Ledger::Balance off = iChange - iRun._Kept;
  if (!(off == Ledger::Balance{}))
    Complain(iRun, "leaves the ledger unbalanced: " + off.Describe());
}

void Torture::CheckReports(const TortureRun& iRun)
{
  if (_ReportsNothing && !iRun._Reports.empty())
    return Complain(iRun, "reports " + Describe(iRun._Reports.front()));
  if (iRun._Result == E_FAIL && iRun._Reports.empty() && !_MayFailSilently && !_ReportsNothing)
    return Complain(iRun, "fails without a report");
  if (iRun._Result != E_FAIL && !iRun._Reports.empty() && !_MayReportOnSuccess)
    return Complain(iRun, "answers " + Hex(iRun._Result) + " and reports " + Describe(iRun._Reports.front()));
  for (const voxhost::ErrorReport& report : iRun._Reports)
  {
    bool known = false;
    for (Site& site : _Sites)
      if (site.kind == report.kind && site.hasText == report.hasText && site.text == report.text &&
          site.file == report.file && site.number == report.number)
        known = site.met = true;
    if (!known || report.line <= 0 || report.severity != 0 || report.depth < 1)
      Complain(iRun, "reports what no site of the scenario reports: " + Describe(report));
  }
  if (iRun._Result == E_FAIL && !iRun._Reports.empty() && iRun._Reports.back().depth != 1 && !_MayFailSilently)
    Complain(iRun, "leaves the last report to an operation that it called: " + Describe(iRun._Reports.back()));
}

void Torture::CheckFatal(const TortureRun& iRun, const std::string& iText)
{
  if (_FatalTexts.count(iText) == 0)
    Complain(iRun, "ends with the fatal error \"" + iText + "\"");
}

void Torture::Complain(const TortureRun& iRun, const std::string& iWhat)
{
  _Complaints.push_back(_Operation + ", " + iRun.Describe() + ", " +
                        (_HostResets ? "the host resets the pending error" : "the host keeps the pending error") +
                        ": " + iWhat);
}

} // namespace voxtest
