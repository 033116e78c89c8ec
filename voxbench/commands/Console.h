// SPDX-License-Identifier: MIT
#pragma once
#include <ostream>

namespace voxbench
{

//! Where a run of the program writes.
struct Console
{
  std::ostream& out;
  std::ostream& errors;
  bool errorsAreTerminal = false; //!< a progress bar has somebody to look at it
};

} // namespace voxbench
