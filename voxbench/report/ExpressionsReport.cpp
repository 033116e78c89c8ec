// SPDX-License-Identifier: MIT
#include "voxbench/report/ExpressionsReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

const char* KindOf(const ExpressionRow& iRow)
{
  return iRow.isTable ? "table" : "equation";
}

int CountOf(const ExpressionsResult& iResult)
{
  int count = 0;
  for (const ExpressionRow& row : iResult.rows)
    count += row.number > 0 ? 1 : 0;
  return count;
}

void PrintList(Output& ioOutput, const ExpressionsResult& iResult)
{
  TextTable table({Align::Right, Align::Left, Align::Left, Align::Left, Align::Left});
  table.Add({"NUMBER", "FEATURE", "TITLE", "KIND", "SIZE"});
  for (const ExpressionRow& row : iResult.rows)
    if (row.failure.empty())
      table.Add({std::to_string(row.number), row.feature, row.title, KindOf(row),
                 row.isTable ? Counted(row.size, "point", "points") : Counted(row.size, "term", "terms")});
    else
      table.Add({row.number > 0 ? std::to_string(row.number) : "", row.feature, row.title, "failed", row.failure});
  if (!iResult.rows.empty())
    table.Print(ioOutput);
  ioOutput.Write(Counted(CountOf(iResult), "expression", "expressions") + ".\n");
}

void PrintContent(Output& ioOutput, const ExpressionContent& iContent)
{
  ioOutput.Write(fmt::format("{}: {} of {}\n", iContent.number, iContent.title, iContent.feature));
  const bool isTable = iContent.terms.empty();
  TextTable table(isTable ? std::vector<Align>{Align::Right, Align::Right}
                          : std::vector<Align>{Align::Right, Align::Right, Align::Right});
  if (isTable)
    table.Add({"TIME", "VALUE"});
  else
    table.Add({"NODE", "DOF", "COEFFICIENT"});
  for (const auto& [time, value] : iContent.table)
    table.Add({fmt::format("{}", time), fmt::format("{}", value)});
  for (const ExpressionContent::Term& term : iContent.terms)
    table.Add({std::to_string(term.node), std::to_string(term.dof), fmt::format("{}", term.coefficient)});
  table.Print(ioOutput, 2);
  if (!isTable)
    ioOutput.Write(fmt::format("  constant {}; the sum is zero\n", iContent.constant));
}

Json JsonOf(const ExpressionContent& iContent)
{
  Json content{{"number", iContent.number}, {"feature", iContent.feature}, {"title", iContent.title}};
  content["terms"] = Json::array();
  for (const ExpressionContent::Term& term : iContent.terms)
    content["terms"].push_back({{"node", term.node}, {"dof", term.dof}, {"coefficient", term.coefficient}});
  content["constant"] = iContent.constant;
  content["table"] = Json::array();
  for (const auto& [time, value] : iContent.table)
    content["table"].push_back(Json::array({time, value}));
  return content;
}

} // namespace

void PrintExpressions(Output& ioOutput, const ExpressionsResult& iResult)
{
  if (iResult.read.empty())
    PrintList(ioOutput, iResult);
  for (const ExpressionContent& content : iResult.read)
    PrintContent(ioOutput, content);
  if (iResult.deleted)
    ioOutput.Write(fmt::format("{}: {} deleted, {} left; the file stays as it is.\n", iResult.deleted->operation,
                               Counted(iResult.deleted->deleted, "expression", "expressions"), iResult.deleted->left));
}

void WriteExpressionsJson(Output& ioOutput, const ExpressionsResult& iResult)
{
  Json result;
  result["expressions"] = Json::array();
  for (const ExpressionRow& row : iResult.rows)
  {
    Json entry{{"number", row.number > 0 ? Json(row.number) : Json()},
               {"feature", row.feature},
               {"keyword", row.keyword},
               {"title", row.title}};
    if (row.failure.empty())
    {
      entry["kind"] = KindOf(row);
      entry["size"] = row.size;
    }
    else
      entry["failure"] = row.failure;
    result["expressions"].push_back(std::move(entry));
  }
  result["count"] = CountOf(iResult);
  if (!iResult.read.empty())
    result["read"] = Json::array();
  for (const ExpressionContent& content : iResult.read)
    result["read"].push_back(JsonOf(content));
  if (iResult.deleted)
    result["deleted"] = {{"operation", iResult.deleted->operation},
                         {"deleted", iResult.deleted->deleted},
                         {"left", iResult.deleted->left}};
  WriteJson(ioOutput, result);
}

} // namespace voxbench
