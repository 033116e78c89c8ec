// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/OpenFile.h"

namespace voxbench
{

//! voxbench axes FILE: the axis systems of a model, and who made each.
class AxesCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  FileOptions _File;
};

} // namespace voxbench
