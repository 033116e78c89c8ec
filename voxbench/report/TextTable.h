// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace voxbench
{

enum class Align
{
  Left,
  Right
};

//! Number of characters that a UTF-8 text takes on a line.
std::size_t WidthOf(std::string_view iText);

//! 1234567 as "1 234 567": for people. Programs take the JSON.
std::string Grouped(long long iNumber);

//! "1 node", "3 nodes".
std::string Counted(long long iNumber, std::string_view iSingular, std::string_view iPlural);

//! Rows of cells, printed with aligned columns and two blanks between them. No line ends with blanks.
class TextTable
{
public:
  explicit TextTable(std::vector<Align> iColumns) : _Columns(std::move(iColumns)) {}

  //! A row may have fewer cells than the table has columns.
  void Add(std::vector<std::string> iCells) { _Rows.push_back(std::move(iCells)); }
  bool Empty() const { return _Rows.empty(); }
  void Print(Output& ioOutput, std::size_t iIndent = 0) const;

private:
  void PrintRow(Output& ioOutput, const std::vector<std::string>& iCells,
                const std::vector<std::size_t>& iWidths) const;

  std::vector<Align> _Columns;
  std::vector<std::vector<std::string>> _Rows;
};

} // namespace voxbench
