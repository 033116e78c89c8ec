// SPDX-License-Identifier: MIT
#include "voxbench/commands/Expressions.h"
#include "voxbench/commands/FailureReason.h"

namespace voxbench
{

Expressions::Expressions(const LoadedModel& iModel, const std::function<bool(const voxhost::Feature&)>& iWants)
    : _Model(iModel)
{
  for (const voxhost::Feature* const set : LoadedModel::ChildrenOf(iModel.Root()))
    for (voxhost::Feature* const feature : LoadedModel::ChildrenOf(*set))
    {
      VOXIExpressionCollector_var spCollector(static_cast<VOXBaseUnknown*>(feature));
      if (!spCollector || !iWants(*feature))
        continue;
      _Owners.push_back({feature, std::move(spCollector)});
      ListOwner(_Owners.size() - 1);
    }
}

void Expressions::ListOwner(std::size_t iOwner)
{
  const Owner& owner = _Owners[iOwner];
  ExpressionRow row;
  row.feature = LoadedModel::DisplayName(*owner.feature);
  row.keyword = static_cast<const char*>(owner.feature->Text("Keyword"));
  const std::size_t before = FailuresReported();
  int count = 0;
  if (FAILED(owner.spCollector->GetNumberOfExpressions(count)))
  {
    row.failure = ReasonSince(before, "GetNumberOfExpressions");
    _Rows.push_back(row);
    return;
  }
  for (int number = 0; number < count; ++number)
  {
    _Places.push_back({iOwner, number});
    row.number = static_cast<int>(_Places.size());
    row.failure.clear();
    const VOXAnalysisExplicitExpression expression = Ask(_Places.back());
    VOXString title;
    if (expression == NULL_exp)
      row.failure = ReasonSince(before, "GetExpression");
    else if (FAILED(owner.spCollector->GetExpressionTitle(expression, title)))
      row.failure = ReasonSince(before, "GetExpressionTitle");
    row.title = static_cast<const char*>(title);
    ExpressionContent content;
    if (row.failure.empty() && Read(row.number, content))
    {
      row.isTable = content.terms.empty();
      row.size = static_cast<int>(row.isTable ? content.table.size() : content.terms.size());
    }
    _Rows.push_back(row);
  }
}

const Expressions::Place* Expressions::Find(int iNumber) const
{
  const bool exists = iNumber >= 1 && iNumber <= static_cast<int>(_Places.size());
  return exists ? &_Places[static_cast<std::size_t>(iNumber - 1)] : nullptr;
}

VOXAnalysisExplicitExpression Expressions::Ask(const Place& iPlace) const
{
  VOXAnalysisExplicitExpression expression;
  _Owners[iPlace.owner].spCollector->GetExpression(iPlace.number, expression, 0);
  return expression;
}

bool Expressions::Read(int iNumber, ExpressionContent& oContent) const
{
  const Place* const place = Find(iNumber);
  const voxhost::Record* const record = place == nullptr ? nullptr : _Model.Explicit().RecordOf(Ask(*place));
  if (record == nullptr || record->expression.empty())
    return false;
  const voxhost::ExpressionData& data = record->expression.front();
  oContent.number = iNumber;
  oContent.feature = LoadedModel::DisplayName(*_Owners[place->owner].feature);
  oContent.title = record->name;
  oContent.constant = data.constant;
  oContent.table = data.table;
  for (const voxhost::ExpressionData::Term& term : data.terms)
    oContent.terms.push_back({term.nodeId, term.dof, term.coefficient});
  return true;
}

std::string Expressions::Delete(int iNumber)
{
  const Place* const place = Find(iNumber);
  if (place == nullptr)
    return "there is no expression " + std::to_string(iNumber);
  const std::size_t before = FailuresReported();
  VOXAnalysisExplicitExpression expression = Ask(*place);
  const bool isDeleted =
      expression != NULL_exp && SUCCEEDED(_Owners[place->owner].spCollector->DeleteExpression(expression));
  return isDeleted ? "" : ReasonSince(before, "DeleteExpression");
}

std::string Expressions::DeleteAll()
{
  const std::size_t before = FailuresReported();
  std::string failure;
  for (const Owner& owner : _Owners)
    if (FAILED(owner.spCollector->DeleteAll()))
      failure = ReasonSince(before, "DeleteAll");
  return failure;
}

int Expressions::Count() const
{
  int all = 0;
  for (const Owner& owner : _Owners)
  {
    int count = 0;
    if (FAILED(owner.spCollector->GetNumberOfExpressions(count)))
      return -1;
    all += count;
  }
  return all;
}

} // namespace voxbench
