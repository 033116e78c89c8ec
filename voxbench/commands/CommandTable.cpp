// SPDX-License-Identifier: MIT
#include "voxbench/commands/AxesCommand.h"
#include "voxbench/commands/CheckCommand.h"
#include "voxbench/commands/CompletionCommand.h"
#include "voxbench/commands/ConnectionsCommand.h"
#include "voxbench/commands/ExpressionsCommand.h"
#include "voxbench/commands/GroupsCommand.h"
#include "voxbench/commands/ImportCommand.h"
#include "voxbench/commands/InfoCommand.h"
#include "voxbench/commands/OwnerCommand.h"
#include "voxbench/commands/ParamsCommand.h"
#include "voxbench/commands/ResultsCommand.h"
#include "voxbench/commands/TreeCommand.h"
#include "voxbench/commands/UpgradeCommand.h"
#include "voxbench/commands/ViewCommands.h"

namespace voxbench
{
namespace
{

template <class T>
std::unique_ptr<Command> Make()
{
  return std::make_unique<T>();
}

} // namespace

const std::vector<CommandFactory>& CommandTable()
{
  static const std::vector<CommandFactory> table{
      Make<InfoCommand>,        Make<TreeCommand>,    Make<GroupsCommand>,    Make<CheckCommand>,
      Make<AxesCommand>,        Make<OwnerCommand>,   Make<ParamsCommand>,    Make<ConnectionsCommand>,
      Make<ShowCommand>,        Make<HideCommand>,    Make<ImportCommand>,    Make<ResultsCommand>,
      Make<ExpressionsCommand>, Make<UpgradeCommand>, Make<CompletionCommand>};
  return table;
}

} // namespace voxbench
