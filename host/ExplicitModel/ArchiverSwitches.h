// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"

class VOXAnalysisCollectorArchiver;

namespace voxhost
{

//! How archivers of the reference host are made from now on.
struct VOX_HOST_API ArchiverSwitches
{
  static void SetNewAreStreamable(bool iAre);         //!< true at the start
  static void SetNewAreNumberingDependant(bool iAre); //!< false at the start
  static void Restore();

  //! References on an archiver, for inspection.
  static int References(const VOXAnalysisCollectorArchiver& iArchiver);
  //! How often the storage of an archiver was reset.
  static int Resets(const VOXAnalysisCollectorArchiver& iArchiver);
};

} // namespace voxhost
