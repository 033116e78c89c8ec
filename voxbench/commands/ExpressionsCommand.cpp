// SPDX-License-Identifier: MIT
#include "voxbench/commands/ExpressionsCommand.h"
#include "voxbench/commands/FeatureNames.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/format.h>
#include <set>

namespace voxbench
{
namespace
{

constexpr const char* kAll = "all";

std::string NumberOrAll(std::string iText)
{
  const bool isNumber =
      !iText.empty() && iText.size() < 10 && iText.find_first_not_of("0123456789") == std::string::npos;
  if (!isNumber && iText != kAll)
    throw CLI::ValidationError("needs the number of an expression, or all, not " + iText);
  return iText;
}

} // namespace

CommandDescription ExpressionsCommand::Describe() const
{
  return {"expressions",
          "List, read and delete the expressions of amplitudes and linear constraints",
          "An amplitude publishes its table, a linear constraint its equations, as expressions of the explicit model.\n"
          "They are listed with the numbers that --read and --delete take. What is deleted is gone from the model of\n"
          "this run: FILE is never written.",
          {{"voxbench expressions bracket.inp", "all expressions, numbered, and their count"},
           {"voxbench expressions bracket.inp --feature 'RAMP*'", "those of features whose name begins so"},
           {"voxbench expressions bracket.inp --read 3", "terms or points of the third"},
           {"voxbench expressions bracket.inp --delete all --json", "what deleting all of them leaves"}},
          {{kExitDone, "all that was asked for was done"},
           {kExitSomeFailed, "some feature failed, an expression is not there, or the output cannot be written"},
           {kExitWrongUsage, "wrong usage"},
           {kExitUnreadable, "FILE cannot be read"}},
          {ModelValues(), {"--delete", {kAll}, {}}}};
}

void ExpressionsCommand::DeclareOptions(CLI::App& ioParser)
{
  _File.Declare(ioParser);
  ioParser.add_option("--feature", _Feature, "Only features of that name; * and ? stand for any text")
      ->option_text("NAME");
  ioParser.add_option("--read", _Read, "Show the terms or points of an expression; may be given several times")
      ->allow_extra_args(false)
      ->option_text("N");
  ioParser.add_option("--delete", _Delete, "Delete an expression, or all of them; may be given several times")
      ->transform(NumberOrAll, "", "")
      ->allow_extra_args(false)
      ->option_text("N|all");
}

int ExpressionsCommand::Run(Console& ioConsole)
{
  LoadedModel model;
  if (const int code = OpenModel(_File.file, ioConsole, model); code != kExitDone)
    return code;
  const auto wants = [this](const voxhost::Feature& iFeature)
  { return _Feature.empty() || MatchesPattern(LoadedModel::DisplayName(iFeature), _Feature); };
  Expressions expressions(model, wants);

  ExpressionsResult result;
  result.rows = expressions.Rows();
  _SomeFailed = std::any_of(result.rows.begin(), result.rows.end(),
                            [](const ExpressionRow& iRow) { return !iRow.failure.empty(); });
  if (!_Feature.empty() && result.rows.empty())
    Complain(ioConsole, fmt::format("no feature named {} has expressions", _Feature));
  for (const int number : _Read)
  {
    ExpressionContent content;
    if (expressions.Read(number, content))
      result.read.push_back(std::move(content));
    else
      Complain(ioConsole, fmt::format("there is no expression {}: there are {}", number, expressions.Count()));
  }
  if (!_Delete.empty())
    DoDelete(expressions, ioConsole, result);

  Output output(ioConsole.out);
  if (_File.json)
    WriteExpressionsJson(output, result);
  else
    PrintExpressions(output, result);
  return FinishOutput(output, ioConsole, _SomeFailed ? kExitSomeFailed : kExitDone);
}

//! From the last to the first: a deletion changes the numbers behind it.
void ExpressionsCommand::DoDelete(Expressions& ioExpressions, Console& ioConsole, ExpressionsResult& ioResult)
{
  const bool all = std::find(_Delete.begin(), _Delete.end(), kAll) != _Delete.end();
  const int before = ioExpressions.Count();
  ioResult.deleted = ExpressionsResult::Deleted{all ? "DeleteAll" : "DeleteExpression", 0, before};
  std::set<int, std::greater<>> numbers;
  for (const std::string& text : _Delete)
    if (text != kAll)
      numbers.insert(std::stoi(text));
  if (all)
  {
    if (const std::string failure = ioExpressions.DeleteAll(); !failure.empty())
      Complain(ioConsole, failure);
  }
  else
    for (const int number : numbers)
      if (const std::string failure = ioExpressions.Delete(number); !failure.empty())
        Complain(ioConsole, failure);
  ioResult.deleted->left = ioExpressions.Count();
  ioResult.deleted->deleted = before - ioResult.deleted->left;
}

void ExpressionsCommand::Complain(Console& ioConsole, const std::string& iSentence)
{
  ioConsole.errors << "voxbench expressions: " << iSentence << '\n';
  _SomeFailed = true;
}

} // namespace voxbench
