// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/check/Finding.h"
#include "voxbench/report/Output.h"

namespace voxbench
{

//! A paragraph per finding, and a sum at the end.
void PrintCheck(Output& ioOutput, const CheckResult& iResult);

//! {"findings": [...], "rules": {"id": number}, "sets": [...], "entities": {...}}
void WriteCheckJson(Output& ioOutput, const CheckResult& iResult);

//! The rules themselves. JSON: {"rules": [{"id", "sentence", "remedy"}]}
void PrintCheckRules(Output& ioOutput);
void WriteCheckRulesJson(Output& ioOutput);

} // namespace voxbench
