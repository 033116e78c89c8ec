// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace voxbench
{

struct ExpressionRow
{
  int number = 0; //!< in the whole model, from 1; 0 for a feature that failed
  std::string feature;
  std::string keyword; //!< of the card
  std::string title;
  bool isTable = false; //!< else a linear equation
  int size = 0;         //!< points of a table, terms of an equation
  std::string failure;  //!< why it cannot be told; "" when it can
};

//! An equation: the terms and the constant add up to zero. Or a table: points of time and value.
struct ExpressionContent
{
  struct Term
  {
    std::int32_t node = 0;
    int dof = 0;
    double coefficient = 0.;
  };

  int number = 0;
  std::string feature;
  std::string title;
  std::vector<Term> terms;
  double constant = 0.;
  std::vector<std::pair<double, double>> table;
};

//! What `voxbench expressions` shows.
struct ExpressionsResult
{
  std::vector<ExpressionRow> rows;
  std::vector<ExpressionContent> read;
  struct Deleted
  {
    std::string operation; //!< DeleteExpression or DeleteAll
    int deleted = 0;
    int left = 0;
  };
  std::optional<Deleted> deleted;
};

//! The list, unless some were read: then those.
void PrintExpressions(Output& ioOutput, const ExpressionsResult& iResult);

//! {"expressions": [...], "count": n, "read": [...], "deleted": {...}}; the last two only when they were asked for.
void WriteExpressionsJson(Output& ioOutput, const ExpressionsResult& iResult);

} // namespace voxbench
