// SPDX-License-Identifier: MIT
// Rows of an id and some numbers: the nodes of the mesh and the values of results.
#include "FixedFields.h"
#include "FrdReading.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace voxbench::frd
{
namespace
{

constexpr std::size_t kPerLine = 6;

//! The number at the start of iText, in any form. Where numbers touch, the one digit before a point begins the next one.
//! @return how many characters it takes; 0 if there is none. @param oValue NaN for NaN, Inf and the like.
std::size_t AnyNumber(std::string_view iText, double& oValue)
{
  std::size_t end = iText[0] == '-' || iText[0] == '+' ? 1 : 0;
  const std::size_t start = end;
  while (end < iText.size() && std::string_view("NnAaIiFfTtYy").find(iText[end]) != std::string_view::npos)
    ++end;
  if (end > start)
  {
    oValue = kNoValue;
    return end;
  }
  const auto digits = [iText, &end]
  {
    while (end < iText.size() && scan::IsDigit(iText[end]))
      ++end;
  };
  digits();
  end += end < iText.size() && iText[end] == '.' ? 1 : 0;
  digits();
  if (end < iText.size() && std::string_view("EeDd").find(iText[end]) != std::string_view::npos)
  {
    ++end;
    end += end < iText.size() && (iText[end] == '-' || iText[end] == '+') ? 1 : 0;
    digits();
    end -= end < iText.size() && iText[end] == '.' ? 1 : 0;
  }
  return ParseReal(iText.substr(0, end), oValue) ? end : 0;
}

} // namespace

//! Makes room for the rows that a block announces, as far as the file can hold them.
void FrdReading::Reserve(const BlockHead& iHead, std::size_t iNumbers)
{
  _Ids.Truncate(0);
  _Numbers.Truncate(0);
  _NoNumbers = 0;
  const std::uint64_t announced = static_cast<std::uint64_t>(std::max<std::int64_t>(iHead.count, 0));
  const auto rows = static_cast<std::size_t>(std::min(announced, _Window.BytesInAll() / (8 + 4 * iNumbers)));
  _Ids.Reserve(rows);
  _Numbers.Reserve(rows * iNumbers);
}

bool FrdReading::ReadRows(const BlockHead& iHead, std::size_t iNumbers)
{
  Reserve(iHead, iNumbers);
  switch (iHead.form)
  {
  case Form::Single:
    return ReadBinaryRows<float>(iHead.count, iNumbers) && EndBinary();
  case Form::Double:
    return ReadBinaryRows<double>(iHead.count, iNumbers) && EndBinary();
  case Form::Short:
  case Form::Long:
    break;
  }
  if (!ReadTextRows(iHead.form == Form::Short ? 5 : 10, iNumbers))
    return false;
  const auto rows = static_cast<std::int64_t>(_Ids.size());
  if (iHead.count >= 0 && iHead.count != rows)
    return Refuse(fmt::format("line {} announces {} nodes, but {} follow.", iHead.line, iHead.count, rows));
  return true;
}

bool FrdReading::ReadTextRows(int iWidth, std::size_t iNumbers)
{
  std::string_view line;
  while (true)
  {
    while (TakeFixedRows(iWidth, iNumbers))
      Progress();
    if (!TakeLine(line))
      return false;
    if (line.starts_with(" -3"))
      return true;
    if (!ReadTextRow(line, iWidth, iNumbers))
      return false;
  }
}

//! The rows in the window that are written in the common form: most of all that there is to read.
//! @return whether a whole row more is in the window or on its way.
bool FrdReading::TakeFixedRows(int iWidth, std::size_t iNumbers)
{
  const std::size_t head = 3 + static_cast<std::size_t>(iWidth);
  const std::size_t lines = (std::max<std::size_t>(iNumbers, 1) + kPerLine - 1) / kPerLine;
  const std::size_t size = lines * (head + 1) + iNumbers * kRealWidth;
  const std::int32_t linesPerRow = static_cast<std::int32_t>(lines);
  const char* text = _Window.Cursor();
  const char* const limit = text + _Window.Left();
  bool common = true;
  while (common && static_cast<std::size_t>(limit - text) >= size)
  {
    const char* at = text;
    std::int32_t id = 0;
    common = std::memcmp(at, " -1", 3) == 0 && FixedId(at + 3, iWidth, id);
    double* const values = _Numbers.GrowBy(iNumbers);
    for (std::size_t first = 0; common && first < iNumbers; first += kPerLine)
    {
      const std::size_t last = std::min(first + kPerLine, iNumbers);
      common = first == 0 || std::memcmp(at, " -2", 3) == 0;
      at += head;
      for (std::size_t number = first; common && number < last; ++number, at += kRealWidth)
        common = FixedReal(at, values[number]);
      common = common && *at++ == '\n';
    }
    if (!common)
    {
      _Numbers.Truncate(_Numbers.size() - iNumbers);
      break;
    }
    _Ids.push_back(id);
    _Line += linesPerRow;
    text += size;
  }
  _Window.Skip(static_cast<std::size_t>(text - _Window.Cursor()));
  return common && _Window.Have(size);
}

bool FrdReading::ReadTextRow(std::string_view iLine, int iWidth, std::size_t iNumbers)
{
  const std::size_t head = 3 + static_cast<std::size_t>(iWidth);
  std::int32_t id = 0;
  if (!iLine.starts_with(" -1"))
    return RefuseLine(iLine, "a row of values must begin with -1, and the block end with -3");
  if (iLine.size() < head || !FixedId(iLine.data() + 3, iWidth, id))
    return RefuseLine(iLine, "the row has no node number");
  std::size_t taken = 0;
  if (!TakeNumbers(iLine, head, iNumbers, taken))
    return false;
  while (taken < iNumbers)
  {
    std::string_view line;
    if (!TakeLine(line))
      return false;
    if (!line.starts_with(" -2"))
      return RefuseLine(line, fmt::format("node {} has {} values of {}", id, taken, iNumbers).c_str());
    if (!TakeNumbers(line, head, iNumbers, taken))
      return false;
  }
  _Ids.push_back(id);
  return true;
}

bool FrdReading::TakeNumbers(std::string_view iLine, std::size_t iFrom, std::size_t iNumbers, std::size_t& ioTaken)
{
  const std::size_t before = ioTaken;
  std::size_t at = iFrom;
  while ((at = std::min(iLine.find_first_not_of(' ', at), iLine.size())) < iLine.size())
  {
    double value = 0.;
    const std::size_t size = AnyNumber(iLine.substr(at), value);
    if (size == 0)
      return Refuse(fmt::format("there is no number at column {} of \"{}\".", at + 1, iLine));
    if (ioTaken++ == iNumbers)
      return Refuse(fmt::format("the row has more than {} values.", iNumbers));
    _NoNumbers += std::isnan(value) ? 1 : 0;
    _Numbers.push_back(value);
    at += size;
  }
  return ioTaken > before || iNumbers == 0 ||
         RefuseLine(iLine, "the line of values has none"); // nothing but blanks is no continuation
}

template <class Real>
bool FrdReading::ReadBinaryRows(std::int64_t iCount, std::size_t iNumbers)
{
  const std::size_t size = 4 + iNumbers * sizeof(Real);
  _Uncounted = true;
  for (std::int64_t row = 0; row < iCount; ++row)
  {
    if (!_Window.Have(size))
      return RefuseEnd();
    const char* const bytes = _Window.Cursor();
    std::int32_t id = 0;
    std::memcpy(&id, bytes, 4);
    if (id <= 0)
      return Refuse(fmt::format("row {} has the node number {}.", row + 1, id));
    _Ids.push_back(id);
    double* const values = _Numbers.GrowBy(iNumbers);
    for (std::size_t number = 0; number < iNumbers; ++number)
    {
      Real value;
      std::memcpy(&value, bytes + 4 + number * sizeof(Real), sizeof(Real));
      const bool finite = std::isfinite(value);
      values[number] = finite ? static_cast<double>(value) : kNoValue;
      _NoNumbers += finite ? 0 : 1;
    }
    _Window.Skip(size);
    if (row % 65536 == 0)
      Progress();
  }
  return true;
}

} // namespace voxbench::frd
