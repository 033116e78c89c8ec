// SPDX-License-Identifier: MIT
#pragma once

#include "host/AnalysisCore/ErrorLog.h"

namespace voxhost
{

//! State of the error services, private to the host.
struct ErrorState
{
  std::vector<ErrorReport> reports;
  std::vector<CheckReport> checkFailures;
  std::function<void(const CheckReport&)> fatalHandler;
  std::function<void(const ErrorReport&)> reportHandler;
  bool resetsPendingError = true;
  unsigned char displaysErrors = 0;
};

ErrorState& State();

} // namespace voxhost
