// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/OpenFile.h"

#include <vector>

namespace voxbench
{

//! voxbench owner FILE TAG...: which feature made an object of the explicit model.
class OwnerCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  FileOptions _File;
  std::vector<int> _Tags;
  std::vector<int> _Nodes;
  std::vector<int> _Elements;
};

} // namespace voxbench
