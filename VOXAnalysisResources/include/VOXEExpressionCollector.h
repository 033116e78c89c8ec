// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXBaseUnknown.h"
#include "ComponentRuntime/VOXString.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "VOXAnalysisResources.h"

#include <cstdint>

//! The expressions of a feature, read from its object in the explicit model, the context: carries the operations of
//! VOXIExpressionCollector and is reached through a tie. The feature type supplies operation 2.
//!
//! - The readers (operations 1, 3 and 4) need an up-to-date feature. They find the context and list its expressions once,
//!   and again after the feature was found out of date, after Update, or after a deletion.
//! - No values are collected. Every HRESULT is S_OK, or E_FAIL after an error report.
class VOX_ANALYSIS_API VOXEExpressionCollector : public VOXBaseUnknown
{
public:
  VOXEExpressionCollector();
  ~VOXEExpressionCollector() override;
  VOXEExpressionCollector(const VOXEExpressionCollector&) = delete;
  VOXEExpressionCollector& operator=(const VOXEExpressionCollector&) = delete;

  //! 1. All expressions. @param iDefinition must be the empty handle. @param oList a created list; they are appended.
  virtual HRESULT GetAvailableExpressions(const VOXAnalysisExplicitExpression& iDefinition,
                                          VOXAnalysisExplicitListUsr& oList);

  //! 2. Text that a person knows an expression by. Never called by the adaptor.
  virtual HRESULT GetExpressionTitle(const VOXAnalysisExplicitExpression& iExpression, VOXString& oTitle) = 0;

  //! 3. Number of expressions. @param oNumber preset to -1.
  virtual HRESULT GetNumberOfExpressions(int& oNumber);

  //! 4. One expression. @param iNumber counted from 0. @param oExpression preset to the empty handle.
  //! @param iCollectValues must be 0.
  virtual HRESULT GetExpression(int iNumber, VOXAnalysisExplicitExpression& oExpression, unsigned char iCollectValues);

  //! 5. Deletes one expression from the model. @param iExpression must not be empty; empty once it is deleted.
  virtual HRESULT DeleteExpression(VOXAnalysisExplicitExpression& iExpression);

  //! 6. Deletes the expressions that were listed; those of a list that was never built stay.
  virtual HRESULT DeleteAll();

  //! 7. The feature changed: the next reader finds context and expressions anew.
  virtual HRESULT Update();

  //! Finds the context, unless it is known: then nothing is touched.
  HRESULT GetContext();

  //! Whether the feature is up to date. The context of one that is not is forgotten. @return 1 or 0; 0 without feature.
  unsigned char IsUpToDate();

private:
  // Lists the expressions of the context, unless the list stands.
  HRESULT GetList();

  std::int32_t _Number;               // of expressions in _List; -1 when not known
  VOXSamModelDataRoot** _Pointers;    // the items of _List, freed with array delete; null until they are asked for
  VOXAnalysisExplicitListUsr _List;   // empty handle when not built
  VOXAnalysisExplicitParent _Context; // empty handle when not known

protected:
  void* _LinkableValue; //!< of the feature, from when its context was first found; for deriving types, borrowed
};
