// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/OpenFile.h"

namespace voxbench
{

//! voxbench params FILE [FEATURE] [--set VALUE]: the choices that features hold.
class ParamsCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  FileOptions _File;
  std::string _Feature; //!< "" for all
  std::string _Value;   //!< "": nothing is changed
};

} // namespace voxbench
