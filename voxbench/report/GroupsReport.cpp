// SPDX-License-Identifier: MIT
#include "voxbench/report/GroupsReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

constexpr std::size_t kLineWidth = 100;

class TextGroups final : public GroupsReport
{
public:
  explicit TextGroups(Output& ioOutput) : _Output(ioOutput) { _Table.Add({"NAME", "KIND", "COUNT"}); }

  void Add(const GroupRow& iRow) override
  {
    const bool failed = !iRow.failure.empty();
    _Table.Add({iRow.name, iRow.kind, failed ? "failed" : Grouped(iRow.count), iRow.failure});
    ++_Rows;
  }

  void Close() override
  {
    if (_Rows > 0)
      _Table.Print(_Output);
    else
      _Output.Write("No groups.\n");
  }

private:
  Output& _Output;
  TextTable _Table{{Align::Left, Align::Left, Align::Right, Align::Left}};
  std::int64_t _Rows = 0;
};

//! Each group is a paragraph: a head line, then its entities, broken at the line width.
class TextEntities final : public GroupsReport
{
public:
  explicit TextEntities(Output& ioOutput) : _Output(ioOutput) {}

  void Add(const GroupRow& iRow) override
  {
    _Output.Write(_Rows++ > 0 ? "\n" : "");
    if (!iRow.failure.empty())
    {
      _Output.Write(fmt::format("{}  {}  failed  {}\n", iRow.name, iRow.kind, iRow.failure));
      return;
    }
    _Output.Write(fmt::format("{}  {}  {}\n", iRow.name, iRow.kind, Grouped(iRow.count)));
    for (std::size_t row = 0; row < iRow.ids.size(); ++row)
      WriteEntity(iRow, row);
    if (_Column > 0)
      _Output.Write("\n");
    _Column = 0;
  }

  void Close() override
  {
    if (_Rows == 0)
      _Output.Write("No groups.\n");
  }

private:
  void WriteEntity(const GroupRow& iRow, std::size_t iPlace)
  {
    const std::string entity = iRow.sides.empty() ? fmt::format_int(iRow.ids[iPlace]).str()
                                                  : fmt::format("{}/{}", iRow.ids[iPlace], iRow.sides[iPlace]);
    if (_Column > 0 && _Column + 1 + entity.size() > kLineWidth)
    {
      _Output.Write("\n");
      _Column = 0;
    }
    _Output.Write(_Column == 0 ? "  " : " ");
    _Column += entity.size() + (_Column == 0 ? 2 : 1);
    _Output.Write(entity);
  }

  Output& _Output;
  std::int64_t _Rows = 0;
  std::size_t _Column = 0;
};

class JsonGroups final : public GroupsReport
{
public:
  JsonGroups(Output& ioOutput, bool iListEntities) : _Output(ioOutput), _ListEntities(iListEntities)
  {
    _Output.Write("{\"groups\": [");
  }

  void Add(const GroupRow& iRow) override
  {
    _Output.Write(_Rows++ > 0 ? ",\n  " : "\n  ");
    _Output.Write(fmt::format("{{\"name\": {}, \"kind\": {}", JsonText(iRow.name), JsonText(iRow.kind)));
    if (!iRow.failure.empty())
    {
      _Output.Write(fmt::format(", \"count\": null, \"failure\": {}}}", JsonText(iRow.failure)));
      return;
    }
    _Output.Write(fmt::format(", \"count\": {}", iRow.count));
    if (_ListEntities)
      WriteEntities(iRow);
    _Output.Write("}");
  }

  void Close() override { _Output.Write(_Rows > 0 ? "\n]}\n" : "]}\n"); }

private:
  void WriteEntities(const GroupRow& iRow)
  {
    _Output.Write(", \"ids\": [");
    for (std::size_t row = 0; row < iRow.ids.size(); ++row)
    {
      if (row > 0)
        _Output.Write(", ");
      if (iRow.sides.empty())
      {
        _Output.WriteNumber(iRow.ids[row]);
        continue;
      }
      _Output.Write("[");
      _Output.WriteNumber(iRow.ids[row]);
      _Output.Write(", ");
      _Output.WriteNumber(iRow.sides[row]);
      _Output.Write("]");
    }
    _Output.Write("]");
  }

  Output& _Output;
  bool _ListEntities;
  std::int64_t _Rows = 0;
};

} // namespace

std::unique_ptr<GroupsReport> GroupsReport::Text(Output& ioOutput, bool iListEntities)
{
  if (iListEntities)
    return std::make_unique<TextEntities>(ioOutput);
  return std::make_unique<TextGroups>(ioOutput);
}

std::unique_ptr<GroupsReport> GroupsReport::Json(Output& ioOutput, bool iListEntities)
{
  return std::make_unique<JsonGroups>(ioOutput, iListEntities);
}

} // namespace voxbench
