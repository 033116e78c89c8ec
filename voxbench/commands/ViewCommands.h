// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/OpenFile.h"

#include <string>
#include <vector>

namespace voxbench
{

//! What voxbench show and voxbench hide have in common.
class ViewCommand : public Command
{
public:
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

protected:
  explicit ViewCommand(bool iShows) : _Shows(iShows) {}

private:
  const bool _Shows;
  FileOptions _File;
  std::vector<std::string> _Features;
  bool _Graph = false;
  bool _Space = false;
};

//! voxbench show
class ShowCommand final : public ViewCommand
{
public:
  ShowCommand() : ViewCommand(true) {}
  CommandDescription Describe() const override;
};

//! voxbench hide
class HideCommand final : public ViewCommand
{
public:
  HideCommand() : ViewCommand(false) {}
  CommandDescription Describe() const override;
};

} // namespace voxbench
