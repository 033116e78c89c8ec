// SPDX-License-Identifier: MIT
#include "voxbench/commands/Program.h"
#include "voxbench/store/UnfinishedFile.h"

#include <iostream>
#include <unistd.h>

int main(int iCount, char** iArguments)
{
  voxbench::RemoveUnfinishedFilesWhenEnded();
  std::ios::sync_with_stdio(false);
  voxbench::Console console{std::cout, std::cerr, isatty(STDERR_FILENO) != 0};
  return voxbench::RunProgram({iArguments + 1, iArguments + iCount}, console);
}
