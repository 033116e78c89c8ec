// SPDX-License-Identifier: MIT
#include "VOXAnalysisResources.h"

int main()
{
  return ZORVEL_QMX2_INTERNAL_VOXAnalysisResources() == 1 ? 0 : 1;
}
