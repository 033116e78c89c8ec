// SPDX-License-Identifier: MIT
#include "voxbench/report/TreeReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

void AddRows(TextTable& ioTable, const TreeNode& iNode, std::size_t iLevel)
{
  std::string remark;
  if (iNode.hidden > 0)
    remark = Counted(iNode.hidden, "feature", "features") + " below";
  const std::string entities = iNode.entities ? Grouped(*iNode.entities) : "";
  ioTable.Add({std::string(2 * iLevel, ' ') + iNode.name, iNode.type, entities, remark});
  for (const TreeNode& child : iNode.children)
    AddRows(ioTable, child, iLevel + 1);
}

void WriteNode(Output& ioOutput, const TreeNode& iNode, std::size_t iLevel)
{
  const std::string indent(2 * iLevel, ' ');
  const std::string entities = iNode.entities ? std::to_string(*iNode.entities) : "null";
  ioOutput.Write(fmt::format("{{\"name\": {}, \"type\": {}, \"entities\": {}, ", JsonText(iNode.name),
                             JsonText(iNode.type), entities));
  if (iNode.hidden > 0)
    ioOutput.Write(fmt::format("\"hidden\": {}, ", iNode.hidden));
  ioOutput.Write("\"children\": [");
  const char* separator = "\n";
  for (const TreeNode& child : iNode.children)
  {
    ioOutput.Write(fmt::format("{}{}  ", separator, indent));
    WriteNode(ioOutput, child, iLevel + 1);
    separator = ",\n";
  }
  ioOutput.Write("]}");
}

} // namespace

void PrintTree(Output& ioOutput, const TreeNode& iRoot)
{
  TextTable table({Align::Left, Align::Left, Align::Right, Align::Left});
  AddRows(table, iRoot, 0);
  table.Print(ioOutput);
}

void WriteTreeJson(Output& ioOutput, const TreeNode& iRoot)
{
  ioOutput.Write("{\"tree\": ");
  WriteNode(ioOutput, iRoot, 0);
  ioOutput.Write("}\n");
}

} // namespace voxbench
