// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <time.h>

namespace voxmeasure
{

//! Processor time that some work of this program takes: other programs of a busy machine are not counted.
template <class Work>
double Seconds(Work iWork)
{
  const auto now = []
  {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
  };
  const double start = now();
  iWork();
  return now() - start;
}

//! Prints a ratio beside its limit. @return whether the limit is met.
inline bool Check(const char* iWhat, double iRatio, double iLimit)
{
  std::printf("%-52s %6.2f  (limit %.2f)%s\n", iWhat, iRatio, iLimit, iRatio <= iLimit ? "" : "  NOT MET");
  return iRatio <= iLimit;
}

} // namespace voxmeasure
