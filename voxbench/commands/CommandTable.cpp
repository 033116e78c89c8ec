// SPDX-License-Identifier: MIT
#include "voxbench/commands/GroupsCommand.h"
#include "voxbench/commands/InfoCommand.h"
#include "voxbench/commands/TreeCommand.h"

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
  static const std::vector<CommandFactory> table{Make<InfoCommand>, Make<TreeCommand>, Make<GroupsCommand>};
  return table;
}

} // namespace voxbench
