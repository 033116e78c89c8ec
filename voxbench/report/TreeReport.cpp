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
  const std::string view = iNode.view ? WordsFor(*iNode.view) : "";
  ioTable.Add({std::string(2 * iLevel, ' ') + iNode.name, iNode.type, iNode.setType, entities, view, remark});
  for (const TreeNode& child : iNode.children)
    AddRows(ioTable, child, iLevel + 1);
}

void WriteNode(Output& ioOutput, const TreeNode& iNode, std::size_t iLevel)
{
  const std::string indent(2 * iLevel, ' ');
  const std::string entities = iNode.entities ? std::to_string(*iNode.entities) : "null";
  ioOutput.Write(fmt::format("{{\"name\": {}, \"type\": {}, \"set\": {}, \"entities\": {}, ", JsonText(iNode.name),
                             JsonText(iNode.type), JsonText(iNode.setType.empty() ? Json() : Json(iNode.setType)),
                             entities));
  if (iNode.view)
    ioOutput.Write(fmt::format("\"visible\": {{\"graph\": {}, \"3d\": {}}}, \"noShow\": {}, ", iNode.view->inGraph,
                               iNode.view->in3D, iNode.view->noShow));
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
  TextTable table({Align::Left, Align::Left, Align::Left, Align::Right, Align::Left, Align::Left});
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
