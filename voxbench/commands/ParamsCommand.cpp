// SPDX-License-Identifier: MIT
#include "voxbench/commands/ParamsCommand.h"
#include "voxbench/commands/FeatureNames.h"
#include "voxbench/commands/SelectionLists.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

//! A feature and one choice that it holds.
struct Holder
{
  voxhost::Feature* feature;
  voxhost::Feature* choice;
};

void Gather(voxhost::Feature& iFeature, const std::string& iName, std::vector<Holder>& ioHolders)
{
  if (iName.empty() || IsNamed(iFeature, iName))
    for (voxhost::Feature* const component : LoadedModel::ComponentsOf(iFeature))
      if (component->Type().IsSubTypeOf("SAMListManager"))
        ioHolders.push_back({&iFeature, component});
  for (voxhost::Feature* const child : LoadedModel::ChildrenOf(iFeature))
    Gather(*child, iName, ioHolders);
}

} // namespace

CommandDescription ParamsCommand::Describe() const
{
  return {
      "params",
      "Show the choices that features hold, and try others",
      "What a section is, what a restraint does: each is one entry of a list, and needs components of its own.\n"
      "With --set another entry is selected in memory, and what that does to the components is told: kept, renamed,\n"
      "removed, created. The file stays as it is.",
      {{"voxbench params bracket.inp", "all choices of all features"},
       {"voxbench params bracket.inp 'Shell section*'", "those of the features whose name begins so"},
       {"voxbench params bracket.inp 'Shell section on PLATE of STEEL' --set Beam", "what a change would do"},
       {"voxbench params bracket.inp --json", "all choices, for a program"}},
      {{kExitDone, "all choices were shown"},
       {kExitSomeFailed, "a choice failed, no feature has the name given, or the output cannot be written"},
       {kExitWrongUsage, "wrong usage"},
       {kExitUnreadable, "FILE cannot be read"}},
      {ModelValues()}};
}

void ParamsCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  CLI::Option* const feature = ioParser.add_option(
      "FEATURE", _Feature, "Only features of that name or path; * and ? stand for any text or character");
  feature->option_text(" ");
  ioParser.add_option("--set", _Value, "Select another entry, by its name or index")
      ->needs(feature)
      ->option_text("VALUE");
}

int ParamsCommand::Run(Console& ioConsole)
{
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model); code != kExitDone)
    return code;
  std::vector<Holder> holders;
  Gather(model.Root(), _Feature, holders);

  std::vector<ParameterRow> rows;
  for (const Holder& holder : holders)
    rows.push_back(_Value.empty() ? AskSelection(*holder.feature, *holder.choice)
                                  : Select(*holder.feature, *holder.choice, _Value));
  Output output(ioConsole.out);
  if (_File.json)
    WriteParamsJson(output, rows);
  else
    PrintParams(output, rows);

  const auto failed = [](const ParameterRow& iRow) { return !iRow.failure.empty(); };
  bool someFailed = std::any_of(rows.begin(), rows.end(), failed);
  if (!_Feature.empty() && holders.empty())
  {
    ioConsole.errors << fmt::format(
        "voxbench params: {} has no feature named {} with a choice: voxbench params FILE lists them all\n", _File.file,
        _Feature);
    someFailed = true;
  }
  return FinishOutput(output, ioConsole, someFailed ? kExitSomeFailed : kExitDone);
}

} // namespace voxbench
