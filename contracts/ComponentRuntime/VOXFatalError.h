// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

//! Ends the program because of a programming error. Never returns; a handler that a test harness installed may throw, so
//! no caller is `noexcept`.
//! @param iText "AssertionFailed:" and the asserted expression. The three further texts may be null.
//! @param iFile source file of the site. @param iLine its line.
[[noreturn]] VOX_HOST_API void VOXFatalError(const char* iText, const char* iText2, const char* iText3,
                                             const char* iText4, const char* iFile, int iLine);

//! Reports a failed consistency check and returns.
//! @param iText the check's expression. The three further texts may be null.
//! @param iFile source file of the site. @param iLine its line.
VOX_HOST_API void VOXSysCheckFailure(const char* iText, const char* iText2, const char* iText3, const char* iText4,
                                     const char* iFile, int iLine);
