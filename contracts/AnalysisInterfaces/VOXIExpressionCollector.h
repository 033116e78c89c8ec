// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXTie.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"

inline constexpr IID IID_VOXIExpressionCollector = VOXGuidOfName("VOXIExpressionCollector");

//! The expressions that a feature publishes. Implemented by: feature types, by deriving from VOXEExpressionCollector and
//! a tie (VOXTieExpressionCollector below). Called by: the host and its commands.
class VOX_HOST_API VOXIExpressionCollector : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIExpressionCollector)

  //! 1. The expressions that fit a definition. @param iDefinition the empty handle for all. @param ioList a created list;
  //! they are appended. @return S_OK; E_FAIL after an error report.
  virtual HRESULT GetAvailableExpressions(const VOXAnalysisExplicitExpression& iDefinition,
                                          VOXAnalysisExplicitListUsr& ioList) = 0;

  //! 2. Text that a person knows an expression by. @param iExpression the expression. @param oTitle untouched on
  //! failure. @return S_OK; a failure.
  virtual HRESULT GetExpressionTitle(const VOXAnalysisExplicitExpression& iExpression, VOXString& oTitle) = 0;

  //! 3. Number of expressions. @param oNumber preset to -1. @return S_OK; E_FAIL after an error report.
  virtual HRESULT GetNumberOfExpressions(int& oNumber) = 0;

  //! 4. One expression. @param iNumber counted from 0. @param oExpression preset to the empty handle.
  //! @param iCollectValues whether its values are to be collected as well. @return S_OK; E_FAIL after an error report.
  virtual HRESULT GetExpression(int iNumber, VOXAnalysisExplicitExpression& oExpression,
                                unsigned char iCollectValues) = 0;

  //! 5. Deletes one expression from the model. @param ioExpression empty once it is deleted. @return S_OK; E_FAIL after
  //! an error report.
  virtual HRESULT DeleteExpression(VOXAnalysisExplicitExpression& ioExpression) = 0;

  //! 6. Deletes the expressions that were listed. @return S_OK; E_FAIL after an error report.
  virtual HRESULT DeleteAll() = 0;

  //! 7. The feature changed. @return S_OK; E_FAIL after an error report.
  virtual HRESULT Update() = 0;
};

using VOXIExpressionCollector_var = VOXHandle<VOXIExpressionCollector>;

//! Tie of VOXIExpressionCollector over an adaptor with the same operations.
template <class Adaptor>
class VOXTieExpressionCollector : public VOXTieBase<VOXIExpressionCollector, Adaptor>
{
public:
  HRESULT GetAvailableExpressions(const VOXAnalysisExplicitExpression& iDefinition,
                                  VOXAnalysisExplicitListUsr& ioList) override
  {
    return this->Tied()->GetAvailableExpressions(iDefinition, ioList);
  }
  HRESULT GetExpressionTitle(const VOXAnalysisExplicitExpression& iExpression, VOXString& oTitle) override
  {
    return this->Tied()->GetExpressionTitle(iExpression, oTitle);
  }
  HRESULT GetNumberOfExpressions(int& oNumber) override { return this->Tied()->GetNumberOfExpressions(oNumber); }
  HRESULT GetExpression(int iNumber, VOXAnalysisExplicitExpression& oExpression, unsigned char iCollectValues) override
  {
    return this->Tied()->GetExpression(iNumber, oExpression, iCollectValues);
  }
  HRESULT DeleteExpression(VOXAnalysisExplicitExpression& ioExpression) override
  {
    return this->Tied()->DeleteExpression(ioExpression);
  }
  HRESULT DeleteAll() override { return this->Tied()->DeleteAll(); }
  HRESULT Update() override { return this->Tied()->Update(); }
};
