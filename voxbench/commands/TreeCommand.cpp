// SPDX-License-Identifier: MIT
#include "voxbench/commands/TreeCommand.h"
#include "AnalysisInterfaces/VOXISamAnalysisEntityInit.h"
#include "voxbench/commands/FeatureViews.h"
#include "voxbench/report/TreeReport.h"

#include <CLI/CLI.hpp>

namespace voxbench
{
namespace
{

std::int64_t CountBelow(const voxhost::Feature& iFeature)
{
  std::int64_t count = 0;
  for (const voxhost::Feature* const child : LoadedModel::ChildrenOf(iFeature))
    count += 1 + CountBelow(*child);
  return count;
}

//! The type of set that an entity belongs in, as its adaptor tells; "" for what is no entity.
std::string SetTypeOf(voxhost::Feature& iFeature)
{
  const VOXISamAnalysisEntityInit_var spInit(static_cast<VOXBaseUnknown*>(&iFeature));
  VOXUnicodeString setType;
  return !spInit || spInit->GetAnalysisSetType(setType) == 0 ? "" : static_cast<const char*>(setType);
}

//! @param iLevels how many levels below the feature are told; -1 for all.
TreeNode NodeOf(const LoadedModel& iModel, voxhost::Feature& iFeature, int iLevels)
{
  TreeNode node;
  node.name = LoadedModel::DisplayName(iFeature);
  node.type = iFeature.Type().Name();
  node.setType = SetTypeOf(iFeature);
  node.entities = iModel.EntitiesOf(iFeature);
  node.view = ViewStateOf(iFeature);
  if (iLevels == 0)
  {
    node.hidden = CountBelow(iFeature);
    return node;
  }
  for (voxhost::Feature* const child : LoadedModel::ChildrenOf(iFeature))
    node.children.push_back(NodeOf(iModel, *child, iLevels - 1));
  return node;
}

} // namespace

CommandDescription TreeCommand::Describe() const
{
  return {
      "tree",
      "Show the feature tree",
      "One line per feature: its name, its type; of entities the type of set that they belong in, and the number\n"
      "of nodes, elements or sides that they apply to; the views in which it is visible, and whether it is put out\n"
      "of sight (no show). Each level is indented by two blanks, so that the lines can be searched and cut.",
      {{"voxbench tree bracket.inp", "the whole tree"},
       {"voxbench tree bracket.inp --depth 1", "the sets of the analysis model, and how much is in them"},
       {"voxbench tree bracket.inp --json", "the same for a program"}},
      {{kExitDone, "the tree was shown"},
       {kExitSomeFailed, "the output cannot be written"},
       {kExitWrongUsage, "wrong usage"},
       {kExitUnreadable, "FILE cannot be read"}},
      {ModelValues()}};
}

void TreeCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  ioParser.add_option("--depth", _Depth, "Show N levels below the analysis model")
      ->check(
          [](const std::string& iText)
          {
            const bool isCount =
                !iText.empty() && iText.size() < 10 && iText.find_first_not_of("0123456789") == std::string::npos;
            return isCount ? "" : "needs a whole number from 0 on, not " + iText;
          },
          "", "")
      ->option_text("N");
}

int TreeCommand::Run(Console& ioConsole)
{
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model); code != kExitDone)
    return code;
  const TreeNode root = NodeOf(model, model.Root(), _Depth);
  Output output(ioConsole.out);
  if (_File.json)
    WriteTreeJson(output, root);
  else
    PrintTree(output, root);
  return FinishOutput(output, ioConsole, kExitDone);
}

} // namespace voxbench
