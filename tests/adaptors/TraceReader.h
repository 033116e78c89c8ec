// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisCore/ErrorDepthHandler.h"
#include "host/AnalysisCore/TraceLog.h"

#include <string>

namespace voxtest
{

//! Somebody who reads a trace channel while errors are displayed, or not.
class TraceReader
{
public:
  explicit TraceReader(VOXTrace& ioTrace, bool iDisplayed = true, bool iActive = true)
      : _Trace(ioTrace),
        _DisplayedBefore(static_cast<unsigned char>(VOXSamDisplayError(iDisplayed ? 1 : 0)))
  {
    VOXTraceAccess::Clear(_Trace);
    VOXTraceAccess::SetActive(_Trace, iActive);
  }
  ~TraceReader()
  {
    VOXTraceAccess::SetActive(_Trace, false);
    VOXTraceAccess::KeepEverything(_Trace, false);
    VOXTraceAccess::Clear(_Trace);
    VOXSamDisplayError(_DisplayedBefore);
  }
  TraceReader(const TraceReader&) = delete;
  TraceReader& operator=(const TraceReader&) = delete;

  //! Reads what is put while the channel is not active, too.
  void ReadEverything() { VOXTraceAccess::KeepEverything(_Trace, true); }

  std::string Text() const { return VOXTraceAccess::Text(_Trace); }

private:
  VOXTrace& _Trace;
  unsigned char _DisplayedBefore;
};

//! What a guarded exit writes when it is entered again.
inline constexpr char kLoopBanner[] = "**************************************************************\n"
                                      "* WARNING : Programming Error in Error Management            *\n"
                                      "*   Cpu loop. Do not use error macro in VOXSamReturnE_FAIL_  *\n"
                                      "**************************************************************\n";

} // namespace voxtest
