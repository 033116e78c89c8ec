// SPDX-License-Identifier: MIT
#pragma once
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

//! Runs some work in a process of its own. @return the bytes that it held at its peak beyond what a process that does
//! nothing holds, mapped files included.
template <typename Work>
double PeakBytesOf(Work iWork)
{
  malloc_trim(0); // free memory of earlier work would be used again without being counted
  const auto peakOf = [](auto iInChild)
  {
    const pid_t child = fork();
    if (child == 0)
    {
      iInChild();
      _exit(0);
    }
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    return 1024. * static_cast<double>(usage.ru_maxrss);
  };
  const double idle = peakOf([] {});
  return peakOf(iWork) - idle;
}
