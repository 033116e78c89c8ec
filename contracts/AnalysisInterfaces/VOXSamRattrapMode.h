// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

//! Repair mode of the analysis modeler, process-wide. Implemented by: the host.
class VOX_HOST_API VOXSamRattrapMode
{
public:
  //! @param iMode 1 while a document is repaired, else 0.
  static void SetMode(int iMode);

  //! The mode that was set last; 0 at the start.
  static int GetMode();
};
