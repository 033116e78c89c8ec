// SPDX-License-Identifier: MIT
#include "VOXAnalysisResources.h"

int ZORVEL_QMX2_INTERNAL_VOXAnalysisResources()
{
  return 1;
}
