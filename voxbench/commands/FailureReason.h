// SPDX-License-Identifier: MIT
#pragma once
#include <cstddef>
#include <string>

namespace voxbench
{

//! How many failures the host's error service has been told of so far.
std::size_t FailuresReported();

//! Why an operation failed: what the host's error service was told since that many reports.
std::string ReasonSince(std::size_t iBefore, const char* iOperation);

} // namespace voxbench
