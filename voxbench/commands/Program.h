// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Console.h"

#include <string>
#include <vector>

namespace voxbench
{

//! Runs the program as from a shell. @param iArguments without the program's name. @return its exit code.
int RunProgram(const std::vector<std::string>& iArguments, Console& ioConsole);

} // namespace voxbench
