// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/OpenFile.h"

namespace voxbench
{

//! voxbench import FILE -o DOCUMENT: keeps what a deck becomes as a document.
class ImportCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  std::string ReasonToRefuse() const;
  int Refuse(const std::string& iReason, Console& ioConsole) const;

  FileOptions _File;
  std::string _Document;
  int _Release = kNewestRelease;
  bool _Force = false;
};

} // namespace voxbench
