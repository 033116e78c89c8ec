// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/OpenFile.h"
#include "voxbench/report/UpgradeReport.h"

namespace voxbench
{

//! voxbench upgrade FILE: brings a document to the newest release of the start-ups.
class UpgradeCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  int Open(Console& ioConsole, LoadedModel& oModel) const;
  Decisions Upgrade(LoadedModel& ioModel, Console& ioConsole) const;
  Decisions LookAgain(const LoadedModel& iModel, Console& ioConsole) const;
  int Write(const LoadedModel& iModel, Console& ioConsole, UpgradeResult& ioResult) const;
  int Show(const UpgradeResult& iResult, Console& ioConsole) const;

  FileOptions _File;
  bool _Write = false;
};

} // namespace voxbench
