// SPDX-License-Identifier: MIT
#pragma once
#include "AnalysisInterfaces/VOXIExpressionCollector.h"
#include "voxbench/build/LoadedModel.h"
#include "voxbench/report/ExpressionsReport.h"

#include <functional>
#include <string>
#include <vector>

namespace voxbench
{

//! The expressions of a model, asked of its features through VOXIExpressionCollector. A person knows them by their number
//! in the whole model, from 1.
class Expressions
{
public:
  //! @param iWants which features are asked.
  Expressions(const LoadedModel& iModel, const std::function<bool(const voxhost::Feature&)>& iWants);

  //! A row per expression; a feature that fails is a row with its reason.
  const std::vector<ExpressionRow>& Rows() const { return _Rows; }

  //! Terms or points of an expression. @return false when there is no such number.
  bool Read(int iNumber, ExpressionContent& oContent) const;

  //! @return why it could not be deleted; "" when it was.
  std::string Delete(int iNumber);
  std::string DeleteAll();

  //! Number of expressions that the features have now; -1 when one of them failed.
  int Count() const;

private:
  struct Owner
  {
    const voxhost::Feature* feature;
    VOXIExpressionCollector_var spCollector;
  };
  struct Place
  {
    std::size_t owner;
    int number; //!< from 0, of the feature
  };

  void ListOwner(std::size_t iOwner);
  const Place* Find(int iNumber) const;
  VOXAnalysisExplicitExpression Ask(const Place& iPlace) const;

  const LoadedModel& _Model;
  std::vector<Owner> _Owners;
  std::vector<Place> _Places; // of expression n at n - 1
  std::vector<ExpressionRow> _Rows;
};

} // namespace voxbench
