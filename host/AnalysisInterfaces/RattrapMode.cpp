// SPDX-License-Identifier: MIT
#include "AnalysisInterfaces/VOXSamRattrapMode.h"

namespace
{

int g_mode = 0;

} // namespace

void VOXSamRattrapMode::SetMode(int iMode)
{
  g_mode = iMode;
}

int VOXSamRattrapMode::GetMode()
{
  return g_mode;
}
