// SPDX-License-Identifier: MIT
#include "host/AnalysisCore/ErrorState.h"

VOXSamErrorType ErrorDepthHandler::_ier_ = VOXSamErrorNone;
const char* ErrorDepthHandler::_c_err_ = nullptr;
int ErrorDepthHandler::_i_err_ = -1;
const char* ErrorDepthHandler::_errfile_ = nullptr;
int ErrorDepthHandler::_i_errline_ = 0;
const char* ErrorDepthHandler::_errincfile_ = nullptr;
int ErrorDepthHandler::_i_errincline_ = 0;
int ErrorDepthHandler::_MustJump_ = 1;
int ErrorDepthHandler::_SamDepth_ = 0;

ErrorDepthHandler::ErrorDepthHandler()
{
  ++_SamDepth_;
}

ErrorDepthHandler::~ErrorDepthHandler()
{
  --_SamDepth_;
}

void VOXSamInstanciateError(VOXSamErrorType& ioKind, int iDepth, const char* iFile, int iLine, const char*, int,
                            const char* iText, int iNumber, int iSeverity)
{
  voxhost::ErrorState& state = voxhost::State();
  state.reports.push_back({ioKind, iDepth, iFile != nullptr ? iFile : "", iLine, iText != nullptr,
                           iText != nullptr ? iText : "", iNumber, iSeverity});
  if (state.reportHandler)
    state.reportHandler(state.reports.back());
  if (state.resetsPendingError)
    ioKind = VOXSamErrorNone;
}

int VOXSamDisplayError(unsigned char iDisplay)
{
  voxhost::ErrorState& state = voxhost::State();
  const unsigned char previous = state.displaysErrors;
  state.displaysErrors = iDisplay;
  return previous;
}

namespace voxhost
{

ErrorState& State()
{
  static ErrorState state;
  return state;
}

const std::vector<ErrorReport>& ErrorLog::Reports()
{
  return State().reports;
}

const std::vector<CheckReport>& ErrorLog::CheckFailures()
{
  return State().checkFailures;
}

void ErrorLog::Clear()
{
  State().reports.clear();
  State().checkFailures.clear();
}

void ErrorLog::SetResetsPendingError(bool iResets)
{
  State().resetsPendingError = iResets;
}

bool ErrorLog::ResetsPendingError()
{
  return State().resetsPendingError;
}

void ErrorLog::SetFatalHandler(std::function<void(const CheckReport&)> iHandler)
{
  State().fatalHandler = std::move(iHandler);
}

void ErrorLog::SetReportHandler(std::function<void(const ErrorReport&)> iHandler)
{
  State().reportHandler = std::move(iHandler);
}

void ErrorLog::ResetPendingError()
{
  ErrorDepthHandler::_ier_ = VOXSamErrorNone;
  ErrorDepthHandler::_c_err_ = nullptr;
  ErrorDepthHandler::_i_err_ = -1;
  ErrorDepthHandler::_errfile_ = nullptr;
  ErrorDepthHandler::_i_errline_ = 0;
  ErrorDepthHandler::_errincfile_ = nullptr;
  ErrorDepthHandler::_i_errincline_ = 0;
  ErrorDepthHandler::_MustJump_ = 1;
}

} // namespace voxhost
