// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXFatalError.h"

#include "host/AnalysisCore/ErrorLog.h"

#include "host/AnalysisCore/ErrorState.h"

#include <cstdio>
#include <cstdlib>

void VOXFatalError(const char* iText, const char*, const char*, const char*, const char* iFile, int iLine)
{
  const voxhost::CheckReport report{iText != nullptr ? iText : "", iFile != nullptr ? iFile : "", iLine};
  if (voxhost::State().fatalHandler)
    voxhost::State().fatalHandler(report);
  std::fprintf(stderr, "fatal error: %s (%s:%d)\n", report.text.c_str(), report.file.c_str(), report.line);
  std::abort();
}

void VOXSysCheckFailure(const char* iText, const char*, const char*, const char*, const char* iFile, int iLine)
{
  voxhost::State().checkFailures.push_back({iText != nullptr ? iText : "", iFile != nullptr ? iFile : "", iLine});
}
