// SPDX-License-Identifier: MIT
#include "voxbench/commands/AxesCommand.h"
#include "voxbench/commands/Owner.h"
#include "voxbench/report/AxesReport.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace voxbench
{
namespace
{

constexpr const char* kImplicitAxes = "AllImplicitAxis";

//! The entity that records implicit axes; null when the document has none.
const voxhost::Feature* ImplicitAxesOf(const LoadedModel& iModel)
{
  for (const voxhost::Feature* const axis : iModel.MembersOf("AxisSet"))
    if (axis->Type().IsSubTypeOf("SAMImplicitAxes") && axis->Name() == kImplicitAxes)
      return axis;
  return nullptr;
}

AxisRow RowOf(const LoadedModel& iModel, const VOXAnalysisExplicitParent& iAxis, const voxhost::Record& iRecord)
{
  AxisRow row;
  const voxhost::AxisData& axis = iRecord.axis.front();
  iAxis.GetTag(row.tag);
  row.name = iRecord.name;
  row.system = axis.cylindrical ? "cylindrical" : "rectangular";
  std::copy_n(axis.origin, 3, row.origin.begin());
  std::copy_n(axis.i, 3, row.i.begin());
  std::copy_n(axis.j, 3, row.j.begin());
  std::copy_n(axis.k, 3, row.k.begin());
  int status = VOXSamStatusNone;
  iAxis.GetStatus(status);
  row.dropped = (status & VOXSamStatusDropped) != 0;
  const voxhost::Feature* const owner = OwnerOf(iModel, iAxis);
  if (owner != nullptr && !owner->Type().IsSubTypeOf("SAMImplicitAxes"))
    row.madeBy = LoadedModel::DisplayName(*owner);
  return row;
}

AxesResult AxesOf(const LoadedModel& iModel)
{
  AxesResult result;
  if (const voxhost::Feature* const implicit = ImplicitAxesOf(iModel))
    for (const std::int32_t tag : implicit->ExplicitTags())
      result.implicitTags.push_back(tag);
  const int records = static_cast<int>(iModel.Explicit().RecordCount());
  for (int tag = 1; tag <= records; ++tag)
  {
    VOXAnalysisExplicitParent object;
    object.LinkWithTag(tag, &iModel.Explicit());
    const voxhost::Record* const record = iModel.Explicit().RecordOf(object);
    if (record == nullptr || record->axis.empty())
      continue;
    AxisRow row = RowOf(iModel, object, *record);
    const auto& tags = result.implicitTags;
    row.recorded = std::find(tags.begin(), tags.end(), tag) != tags.end();
    result.axes.push_back(std::move(row));
  }
  return result;
}

} // namespace

CommandDescription AxesCommand::Describe() const
{
  return {"axes",
          "List the axis systems of a model and who made each",
          "The global frame, the axes that the file names (features), and those that belong to no feature: these are\n"
          "implicit, and the entity AllImplicitAxis records them. Origin and directions are in the file's units. An\n"
          "axis is dropped when its points give no frame, or when another one took its place.",
          {{"voxbench axes bracket.inp", "a line per axis system"},
           {"voxbench axes bracket.inp --json", "the same for a program, with all digits"}},
          {{kExitDone, "the axes were listed"},
           {kExitSomeFailed, "the output cannot be written"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE cannot be read"}},
          {ModelValues()}};
}

void AxesCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
}

int AxesCommand::Run(Console& ioConsole)
{
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model); code != kExitDone)
    return code;
  const AxesResult result = AxesOf(model);
  Output output(ioConsole.out);
  if (_File.json)
    WriteAxesJson(output, result);
  else
    PrintAxes(output, result);
  return FinishOutput(output, ioConsole, kExitDone);
}

} // namespace voxbench
