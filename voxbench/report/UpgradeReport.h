// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"
#include "voxbench/upgrade/Decision.h"

#include <string>

namespace voxbench
{

//! What an upgrade did or would do.
struct UpgradeResult
{
  std::string file;
  int from = 0; //!< release of the document
  int to = 0;
  Decisions decisions;
  std::string backup; //!< the old document; "" when nothing was written

  void Add(const Decisions& iMore) { decisions.insert(decisions.end(), iMore.begin(), iMore.end()); }

  //! Nothing is left to do, and nothing was left out.
  bool IsAllDone() const;
};

void PrintUpgrade(Output& ioOutput, const UpgradeResult& iResult);
void WriteUpgradeJson(Output& ioOutput, const UpgradeResult& iResult);

} // namespace voxbench
