// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXFatalError.h"
#include "ErrorFrame.h"

namespace voxframe
{

[[noreturn]] inline void FailAssertion(Site iSite, const char* iText)
{
  VOXFatalError(iText, nullptr, nullptr, nullptr, iSite.file, iSite.line);
}

} // namespace voxframe

//! Asserts what cannot fail in a consistent model; the text of the fatal error names the condition as Text gives it.
#define VOX_ASSERT_AS(Condition, Text)                                                                                 \
  ((Condition) ? void() : voxframe::FailAssertion(VOX_SITE, "AssertionFailed:" Text))

//! The same, the condition being its own text.
#define VOX_ASSERT(Condition) VOX_ASSERT_AS(Condition, #Condition)
