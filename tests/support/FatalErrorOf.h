// SPDX-License-Identifier: MIT
#pragma once
#include "tests/support/Torture.h"

#include <functional>

namespace voxtest
{

//! The fatal error that a call ends with; one without text when it returns.
inline voxhost::CheckReport FatalErrorOf(const std::function<void()>& iCall)
{
  const ThrowingFatalErrors fatalErrorsThrow;
  try
  {
    iCall();
  }
  catch (const FatalErrorRaised& fatal)
  {
    return fatal.report;
  }
  return {};
}

} // namespace voxtest
