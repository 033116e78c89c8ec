// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/Expressions.h"
#include "voxbench/commands/OpenFile.h"

namespace voxbench
{

//! voxbench expressions FILE: amplitudes and linear constraints as the expressions that their features publish.
class ExpressionsCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  void DoDelete(Expressions& ioExpressions, Console& ioConsole, ExpressionsResult& ioResult);
  void Complain(Console& ioConsole, const std::string& iSentence);

  FileOptions _File;
  std::string _Feature; //!< "" for all
  std::vector<int> _Read;
  std::vector<std::string> _Delete; //!< numbers, or "all"
  bool _SomeFailed = false;
};

} // namespace voxbench
