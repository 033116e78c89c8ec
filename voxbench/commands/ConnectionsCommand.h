// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/OpenFile.h"

namespace voxbench
{

//! voxbench connections FILE: what joins the parts of a model.
class ConnectionsCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  FileOptions _File;
};

} // namespace voxbench
