// SPDX-License-Identifier: MIT
#include "VOXEExpressionCollector.h"

#include "AnalysisInterfaces/VOXISamExplicit.h"
#include "ErrorFrame.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "ObjectModeler/VOXILinkableObject.h"

VOX_SOURCE_OF(VOXEExpressionCollector);

static_assert(sizeof(VOXEExpressionCollector) ==
                  sizeof(VOXBaseUnknown) + 24 + sizeof(VOXAnalysisExplicitListUsr) + sizeof(VOXAnalysisExplicitParent),
              "deriving classes are laid out on this size");

using voxframe::ReportAndFail;

VOXEExpressionCollector::VOXEExpressionCollector() : _Number(-1), _Pointers(nullptr), _LinkableValue(nullptr) {}

VOXEExpressionCollector::~VOXEExpressionCollector()
{
  delete[] _Pointers;
  if (_List != NULL_exp)
    _List.Delete();
  _LinkableValue = nullptr;
}

HRESULT VOXEExpressionCollector::GetAvailableExpressions(const VOXAnalysisExplicitExpression& iDefinition,
                                                         VOXAnalysisExplicitListUsr& oList)
{
  const ErrorDepthHandler errorDepth;
  if (iDefinition != NULL_exp)
    return ReportAndFail(VOX_TRACED_CONDITION("iDefinition must be NULL_exp", "iDefinition != NULL_exp"));
  if (!IsUpToDate())
    return ReportAndFail(VOX_TRACED_CONDITION("Feature is not up to date", "!IsUpToDate()"));
  if (FAILED(GetContext()))
    return ReportAndFail(VOX_FAILED_CALL);
  if (FAILED(GetList()))
    return ReportAndFail(VOX_FAILED_CALL);
  if (FAILED(oList.Insert(_List, 0)))
    return ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}

HRESULT VOXEExpressionCollector::GetNumberOfExpressions(int& oNumber)
{
  const ErrorDepthHandler errorDepth;
  oNumber = -1;
  if (!IsUpToDate())
    return ReportAndFail(VOX_TRACED_CONDITION("Feature is not up to date", "!IsUpToDate()"));
  if (FAILED(GetContext()))
    return ReportAndFail(VOX_FAILED_CALL);
  if (FAILED(GetList()))
    return ReportAndFail(VOX_FAILED_CALL);
  oNumber = _Number; // Kept: still -1 when the list outlived a failed deletion of all
  return S_OK;
}

HRESULT VOXEExpressionCollector::GetExpression(int iNumber, VOXAnalysisExplicitExpression& oExpression,
                                               unsigned char iCollectValues)
{
  const ErrorDepthHandler errorDepth;
  VOXSamModelDataRoot** pointers = nullptr;
  const auto cleanUp = [&]
  {
    delete[] pointers;
    return S_OK;
  };
  static voxframe::LoopGuard loopGuard{VOX_SITE};
  const voxframe::GuardedExit exit(loopGuard, cleanUp);

  oExpression = NULL_exp;
  if (iCollectValues)
    return exit.ReportAndFail(VOX_TRACED_CONDITION("Adaptor implementation can not collect values", "iCollectValues"));
  if (!IsUpToDate())
    return exit.ReportAndFail(VOX_TRACED_CONDITION("Feature is not up to date", "!IsUpToDate()"));
  if (FAILED(GetContext()))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  if (FAILED(GetList()))
    return exit.ReportAndFail(VOX_FAILED_CALL);

  if (_Pointers == nullptr)
  {
    int number = -1;
    if (FAILED(_List.GetContents(number, pointers)))
      return exit.ReportAndFail(VOX_FAILED_CALL);
    if (number != _Number)
      return exit.ReportAndFail(VOX_CONDITION("Number != _Number"));
    if (pointers == nullptr)
      return exit.ReportAndFail(VOX_TRACED_CONDITION("Expression list is empty", "! Pointers"));
    _Pointers = pointers;
    pointers = nullptr;
  }
  if (0 > iNumber || iNumber >= _Number)
    return exit.ReportAndFail(VOX_CONDITION("(0 > iNumber) || (iNumber >= _Number)"));
  if (FAILED(oExpression.LinkWithPointer(_Pointers[iNumber], _Context.GetModel())))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  return S_OK;
}

HRESULT VOXEExpressionCollector::DeleteExpression(VOXAnalysisExplicitExpression& iExpression)
{
  const ErrorDepthHandler errorDepth;
  if (iExpression == NULL_exp)
    return ReportAndFail(VOX_NULL_EXPLICIT("iExpression"));
  if (FAILED(iExpression.Delete()))
    return ReportAndFail(VOX_FAILED_CALL);
  if (_List == NULL_exp)
    return S_OK;
  if (FAILED(_List.Delete()))
    return ReportAndFail(VOX_FAILED_CALL);
  _Number = -1; // the pointers are stale now; the next list frees them
  return S_OK;
}

HRESULT VOXEExpressionCollector::DeleteAll()
{
  const ErrorDepthHandler errorDepth;
  if (_List == NULL_exp)
    return S_OK;
  const auto cleanUp = [this]
  {
    _List.Delete();
    _Number = -1;
    return S_OK;
  };
  static voxframe::LoopGuard loopGuard{VOX_SITE};
  const voxframe::GuardedExit exit(loopGuard, cleanUp);

  VOXAnalysisExplicitChild current(*_List.First(1));
  while (current != NULL_exp)
  {
    VOXAnalysisExplicitChild previous(current);
    current = *_List.Next(1); // before the item that the cursor stood on goes
    if (FAILED(previous.Delete()))
      return exit.ReportAndFail(VOX_FAILED_CALL);
  }
  if (FAILED(_List.Delete()))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  _Number = -1;
  return S_OK;
}

HRESULT VOXEExpressionCollector::Update()
{
  const ErrorDepthHandler errorDepth;
  _Context = NULL_exp;
  if (_List != NULL_exp && FAILED(_List.Delete()))
    return ReportAndFail(VOX_FAILED_CALL);
  _Number = -1;
  delete[] _Pointers;
  _Pointers = nullptr;
  return S_OK;
}

HRESULT VOXEExpressionCollector::GetContext()
{
  const ErrorDepthHandler errorDepth;
  if (_Context != NULL_exp)
    return S_OK;
  if (_List != NULL_exp)
  {
    if (FAILED(_List.Delete()))
      return ReportAndFail(VOX_FAILED_CALL);
    _Number = -1;
  }

  const VOXISamExplicit_var spExplicit(GetImpl(0));
  if (!spExplicit)
    return ReportAndFail(VOX_MISSING("spExplicit"));
  if (FAILED(spExplicit->GetExplicitParent(_Context, 1)))
    return ReportAndFail(VOX_FAILED_CALL);
  if (_LinkableValue == nullptr)
  {
    const VOXILinkableObject_var spLinkable(GetImpl(0));
    if (!!spLinkable)
      _LinkableValue = spLinkable->GetLinkValue();
  }
  return S_OK;
}

unsigned char VOXEExpressionCollector::IsUpToDate()
{
  const VOXISpecObject_var spFeature(GetImpl(0));
  const unsigned char isUpToDate = !spFeature ? 0 : spFeature->IsUpToDate(VOXIDomain_var());
  if (!isUpToDate)
    _Context = NULL_exp;
  return isUpToDate;
}

HRESULT VOXEExpressionCollector::GetList()
{
  const ErrorDepthHandler errorDepth;
  if (_List != NULL_exp)
    return S_OK;
  const auto cleanUp = [this]
  {
    if (_List != NULL_exp)
      _List.Delete();
    _Number = -1;
    return S_OK;
  };
  static voxframe::LoopGuard loopGuard{VOX_SITE};
  const voxframe::GuardedExit exit(loopGuard, cleanUp);

  delete[] _Pointers;
  _Pointers = nullptr;
  if (FAILED(_List.CreateList(_Context.GetModel())))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  const int category = VOXSamValueExpression;
  if (FAILED(_Context.GetChildrenList(_List, VOXSamCompareCategory, &category, 0, 0)))
    return exit.ReportAndFail(VOX_FAILED_CALL);
  _Number = _List.GetLength(0);
  return S_OK;
}
