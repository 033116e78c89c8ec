// SPDX-License-Identifier: MIT
#include "voxbench/features/DeckExpressions.h"
#include "host/ExplicitModel/ExplicitModel.h"

namespace voxbench
{

HRESULT DeckExpressions::GetExpressionTitle(const VOXAnalysisExplicitExpression& iExpression, VOXString& oTitle)
{
  const voxhost::Record* const record = VOXExplicitAccess::RecordOf(iExpression);
  if (record == nullptr || record->expression.empty())
    return E_FAIL;
  oTitle = record->name.c_str();
  return S_OK;
}

} // namespace voxbench
