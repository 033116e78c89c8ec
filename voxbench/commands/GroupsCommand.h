// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/commands/Command.h"
#include "voxbench/commands/OpenFile.h"
#include "voxbench/features/GroupKind.h"
#include "voxbench/report/GroupsReport.h"

namespace voxbench
{

//! voxbench groups FILE: the groups of a model and the entities that each hands out.
class GroupsCommand final : public Command
{
public:
  CommandDescription Describe() const override;
  void DeclareOptions(CLI::App& ioParser) override;
  int Run(Console& ioConsole) override;

private:
  bool IsWanted(const std::string& iName) const;
  void Report(voxhost::Feature& iGroup, const std::string& iName, GroupsReport& ioReport);
  void ReportKind(voxhost::Feature& iGroup, const GroupKind& iKind, GroupRow iRow, GroupsReport& ioReport);

  FileOptions _File;
  std::string _Kind; //!< "" for all
  std::string _Name; //!< "" for all
  bool _ByMaterial = false;
  bool _ListEntities = false;
  bool _SomeFailed = false;
};

} // namespace voxbench
