// SPDX-License-Identifier: MIT
#include "voxbench/report/TextTable.h"

#include <algorithm>

namespace voxbench
{

std::size_t WidthOf(std::string_view iText)
{
  const auto startsCharacter = [](char iByte) { return (static_cast<unsigned char>(iByte) & 0xC0) != 0x80; };
  return static_cast<std::size_t>(std::count_if(iText.begin(), iText.end(), startsCharacter));
}

std::string Grouped(long long iNumber)
{
  const std::string digits = std::to_string(iNumber);
  const std::size_t first = digits[0] == '-' ? 1 : 0;
  if (digits.size() - first <= 4) // four digits read well as they are
    return digits;
  std::string grouped;
  for (std::size_t place = 0; place < digits.size(); ++place)
  {
    if (place > first && (digits.size() - place) % 3 == 0)
      grouped += ' ';
    grouped += digits[place];
  }
  return grouped;
}

std::string Counted(long long iNumber, std::string_view iSingular, std::string_view iPlural)
{
  return Grouped(iNumber).append(" ").append(iNumber == 1 ? iSingular : iPlural);
}

void TextTable::Print(Output& ioOutput, std::size_t iIndent) const
{
  std::vector<std::size_t> widths(_Columns.size(), 0);
  for (const auto& cells : _Rows)
    for (std::size_t column = 0; column < cells.size(); ++column)
      widths[column] = std::max(widths[column], WidthOf(cells[column]));
  for (const auto& cells : _Rows)
  {
    ioOutput.WriteBlanks(iIndent);
    PrintRow(ioOutput, cells, widths);
    ioOutput.Write("\n");
  }
}

void TextTable::PrintRow(Output& ioOutput, const std::vector<std::string>& iCells,
                         const std::vector<std::size_t>& iWidths) const
{
  std::size_t owed = 0; // blanks that only a following cell needs
  for (std::size_t column = 0; column < iCells.size(); ++column)
  {
    const std::string& cell = iCells[column];
    const std::size_t padding = iWidths[column] - WidthOf(cell);
    const std::size_t before = _Columns[column] == Align::Right ? padding : 0;
    if (!cell.empty())
    {
      ioOutput.WriteBlanks(owed + before);
      ioOutput.Write(cell);
      owed = 0;
    }
    else
      owed += before;
    owed += padding - before + (iWidths[column] > 0 ? 2 : 0);
  }
}

} // namespace voxbench
