// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisCore/ErrorDepthHandler.h"

#include <functional>
#include <string>
#include <vector>

namespace voxhost
{

//! One report that reached VOXSamInstanciateError, as its arguments stood.
struct ErrorReport
{
  VOXSamErrorType kind;
  int depth;
  std::string file;
  int line;
  bool hasText;
  std::string text;
  int number;
  int severity;
};

//! One failure that reached VOXFatalError or VOXSysCheckFailure.
struct CheckReport
{
  std::string text;
  std::string file;
  int line;
};

//! What the error services of the reference host have seen, and their switches.
class VOX_HOST_API ErrorLog
{
public:
  //! Reports since the last Clear, oldest first.
  static const std::vector<ErrorReport>& Reports();
  static const std::vector<CheckReport>& CheckFailures();
  static void Clear();

  //! Whether a report sets `_ier_` back to 0. True at the start.
  static void SetResetsPendingError(bool iResets);
  static bool ResetsPendingError();

  //! Called for a fatal error instead of ending the process; it must not return: tests install one that throws. An
  //! empty function restores the default, which writes the text on standard error and aborts.
  static void SetFatalHandler(std::function<void(const CheckReport&)> iHandler);

  //! Called for every report; empty for none.
  static void SetReportHandler(std::function<void(const ErrorReport&)> iHandler);

  //! Puts all statics of ErrorDepthHandler back to their start values.
  static void ResetPendingError();
};

} // namespace voxhost
