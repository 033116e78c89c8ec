// SPDX-License-Identifier: MIT
#pragma once

namespace voxbench
{

//! What the program tells its caller when it ends. Every subcommand's --help says what they mean there.
enum ExitCode : int
{
  kExitDone = 0,       //!< all went well
  kExitSomeFailed = 1, //!< done, but something asked for failed: the output tells what
  kExitWrongUsage = 2, //!< the command line makes no sense
  kExitUnreadable = 3, //!< the file cannot be read
  kExitNotWritten = 4  //!< the file cannot or must not be written: it is as it was
};

} // namespace voxbench
