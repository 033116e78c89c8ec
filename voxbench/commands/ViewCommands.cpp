// SPDX-License-Identifier: MIT
#include "voxbench/commands/ViewCommands.h"
#include "voxbench/commands/FeatureNames.h"
#include "voxbench/commands/FeatureViews.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

std::vector<CommandDescription::Exit> ExitCodes()
{
  return {{kExitDone, "all features are as asked for"},
          {kExitSomeFailed, "no feature has a name given, one stays as it is, or the output cannot be written"},
          {kExitWrongUsage, "wrong usage"},
          {kExitUnreadable, "FILE cannot be read"}};
}

//! @return whether a feature has the name; one that was gathered before is not gathered again.
bool Gather(voxhost::Feature& iFeature, const std::string& iPattern, std::vector<voxhost::Feature*>& ioFeatures)
{
  bool found = IsNamed(iFeature, iPattern);
  if (found && std::find(ioFeatures.begin(), ioFeatures.end(), &iFeature) == ioFeatures.end())
    ioFeatures.push_back(&iFeature);
  for (voxhost::Feature* const child : LoadedModel::ChildrenOf(iFeature))
    found = Gather(*child, iPattern, ioFeatures) || found;
  return found;
}

} // namespace

void ViewCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  ioParser.add_option("FEATURE", _Features, "Names or paths of features; * and ? stand for any text or character")
      ->required()
      ->option_text(" ");
  const std::string verb = _Shows ? "Make them visible in " : "Make them invisible in ";
  ioParser.add_flag("--graph", _Graph, verb + "the tree");
  ioParser.add_flag("--3d", _Space, verb + "the 3D view");
}

int ViewCommand::Run(Console& ioConsole)
{
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model); code != kExitDone)
    return code;
  bool someFailed = false;
  std::vector<voxhost::Feature*> features;
  for (const std::string& pattern : _Features)
  {
    if (Gather(model.Root(), pattern, features))
      continue;
    ioConsole.errors << fmt::format("voxbench {}: {} has no feature named {}: voxbench tree {} lists them all\n",
                                    Describe().name, _File.file, pattern, _File.file);
    someFailed = true;
  }

  ViewChange change;
  if (_Graph)
    change.inGraph = _Shows;
  if (_Space)
    change.in3D = _Shows;
  if (!_Graph && !_Space)
    change.noShow = !_Shows;
  std::vector<ViewRow> rows;
  for (voxhost::Feature* const feature : features)
    rows.push_back(ChangeViews(model, *feature, change));

  Output output(ioConsole.out);
  if (_File.json)
    WriteViewsJson(output, rows);
  else
    PrintViews(output, rows);
  someFailed = someFailed || std::any_of(rows.begin(), rows.end(), [](const ViewRow& iRow) { return !iRow.done; });
  return FinishOutput(output, ioConsole, someFailed ? kExitSomeFailed : kExitDone);
}

CommandDescription ShowCommand::Describe() const
{
  return {"show",
          "Bring features into sight",
          "Without an option the no-show status is taken away. With --graph or --3d the feature becomes visible in\n"
          "the tree or in the 3D view: the fathers that it stands under are shown there, and a redraw is requested.\n"
          "FILE is never written, since visibility is not stored with a document: what is asked of the views is told.",
          {{"voxbench show bracket.inp FIX", "take the no-show status from the feature FIX"},
           {"voxbench show bracket.inp 'Analysis model/Loads/*' --3d", "make all loads visible in 3D"},
           {"voxbench show bracket.inp FIX --graph --3d --json", "both views; for a program"}},
          ExitCodes(),
          {ModelValues()}};
}

CommandDescription HideCommand::Describe() const
{
  return {"hide",
          "Put features out of sight",
          "Without an option the features get the no-show status. With --graph or --3d they become invisible in the\n"
          "tree or in the 3D view, and a redraw is requested.\n"
          "FILE is never written, since visibility is not stored with a document: what is asked of the views is told.",
          {{"voxbench hide bracket.inp FIX", "give the feature FIX the no-show status"},
           {"voxbench hide bracket.inp 'Analysis model/Loads/*' --3d", "make all loads invisible in 3D"},
           {"voxbench hide bracket.inp FIX --graph --3d --json", "both views; for a program"}},
          ExitCodes(),
          {ModelValues()}};
}

} // namespace voxbench
