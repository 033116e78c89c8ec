// SPDX-License-Identifier: MIT
#pragma once

//! Marks the adaptor classes: each is exported whole, so that deriving code in other libraries can call an adaptor's own
//! body by name.
#define VOX_ANALYSIS_API __attribute__((visibility("default")))

//! Marks the library: a host that loads it by name finds this function. @return 1.
extern "C" VOX_ANALYSIS_API int ZORVEL_QMX2_INTERNAL_VOXAnalysisResources();
