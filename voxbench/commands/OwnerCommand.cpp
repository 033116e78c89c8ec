// SPDX-License-Identifier: MIT
#include "voxbench/commands/OwnerCommand.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "voxbench/commands/Owner.h"
#include "voxbench/readers/Numbers.h"
#include "voxbench/report/OwnersReport.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

//! Why an object has no owner: who made the nearest object above it.
std::string Remark(const LoadedModel& iModel, const VOXAnalysisExplicitParent& iObject)
{
  VOXAnalysisExplicitList parents;
  VOXAnalysisExplicitParent above(iObject);
  while (SUCCEEDED(above.GetParentList(parents)) && *parents.First() != NULL_exp)
  {
    above = *parents.First();
    if (const voxhost::Feature* const owner = OwnerOf(iModel, above))
      return fmt::format("no feature; it stands below what {} made", LoadedModel::PathOf(*owner));
  }
  return "no feature";
}

OwnerRow RowOf(const LoadedModel& iModel, std::string iAsked, const VOXAnalysisExplicitParent& iObject)
{
  OwnerRow row;
  row.asked = std::move(iAsked);
  if (FAILED(iObject.GetTag(row.tag)))
  {
    row.remark = "the model has no such object";
    return row;
  }
  row.kind = PhysicalTypeOf(iModel, iObject);
  if (const voxhost::Record* const record = iModel.Explicit().RecordOf(iObject))
    row.name = record->name;
  const voxhost::Feature* const owner = OwnerOf(iModel, iObject);
  if (owner == nullptr)
  {
    row.remark = Remark(iModel, iObject);
    return row;
  }
  row.owner = LoadedModel::PathOf(*owner);
  row.ownerType = owner->Type().Name();
  return row;
}

//! Of an id or a tag.
std::string ReasonToRefuseNumber(const std::string& iText)
{
  std::int32_t number = 0;
  return ParseInteger(iText, number) ? "" : fmt::format("{} is no whole number up to 2147483647", iText);
}

} // namespace

CommandDescription OwnerCommand::Describe() const
{
  return {"owner",
          "Tell which feature made an object of the explicit model",
          "An object is named by its tag, a node or an element also by its id in the file. What stands directly below\n"
          "a mesh was made by the mesh's feature. An object that no feature made is told with what stands above it.",
          {{"voxbench owner bracket.inp 12 13", "who made the objects of the tags 12 and 13"},
           {"voxbench owner bracket.inp --node 5 --element 7", "who made node 5 and element 7"},
           {"voxbench owner bracket.inp 12 --json", "the same for a program"}},
          {{kExitDone, "each object has an owner"},
           {kExitSomeFailed, "some object has none or does not exist, or the output cannot be written"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE cannot be read"}},
          {ModelValues()}};
}

void OwnerCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  ioParser.add_option("TAG", _Tags, "Tags of objects")->check(ReasonToRefuseNumber, "", "")->option_text(" ");
  ioParser.add_option("--node", _Nodes, "Id of a node; may be given several times")
      ->check(ReasonToRefuseNumber, "", "")
      ->allow_extra_args(false)
      ->option_text("ID");
  ioParser.add_option("--element", _Elements, "Id of an element; may be given several times")
      ->check(ReasonToRefuseNumber, "", "")
      ->allow_extra_args(false)
      ->option_text("ID");
  ioParser.callback(
      [this]
      {
        if (_Tags.empty() && _Nodes.empty() && _Elements.empty())
          throw CLI::RequiredError("a TAG, --node or --element");
      });
}

int OwnerCommand::Run(Console& ioConsole)
{
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model); code != kExitDone)
    return code;
  std::vector<OwnerRow> rows;
  for (const int tag : _Tags)
  {
    VOXAnalysisExplicitParent object;
    object.LinkWithTag(tag, &model.Explicit());
    rows.push_back(RowOf(model, fmt::format("tag {}", tag), object));
  }
  for (const int node : _Nodes)
    rows.push_back(RowOf(model, fmt::format("node {}", node), model.Explicit().FindNode(node)));
  for (const int element : _Elements)
    rows.push_back(RowOf(model, fmt::format("element {}", element), model.Explicit().FindElement(element)));

  Output output(ioConsole.out);
  if (_File.json)
    WriteOwnersJson(output, rows);
  else
    PrintOwners(output, rows);
  const auto hasNone = [](const OwnerRow& iRow) { return iRow.owner.empty(); };
  const bool someHaveNone = std::any_of(rows.begin(), rows.end(), hasNone);
  return FinishOutput(output, ioConsole, someHaveNone ? kExitSomeFailed : kExitDone);
}

} // namespace voxbench
