// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/OpenFile.h"

namespace voxbench
{

//! voxbench check FILE: what is wrong with a document.
class CheckCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  int ListRules(Console& ioConsole) const;

  FileOptions _File;
  bool _List = false;
};

} // namespace voxbench
