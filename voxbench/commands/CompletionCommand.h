// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"

namespace voxbench
{

//! voxbench completion SHELL: the script that completes command lines of this program.
class CompletionCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  std::string _Shell;
};

} // namespace voxbench
