// SPDX-License-Identifier: MIT
#include "FastLines.h"

#include "../Numbers.h"

namespace voxbench::inp
{

namespace
{
using scan::SkipBlanks;

// @return behind the line's end, null if something else than blanks and one comma stands before it.
inline const char* LineEnd(const char* iText)
{
  iText = SkipBlanks(iText);
  if (*iText == ',')
    iText = SkipBlanks(iText + 1);
  if (*iText == '\r')
    ++iText;
  return *iText == '\n' ? iText + 1 : nullptr;
}

inline bool AtLineEnd(const char* iText)
{
  return *iText == '\n' || *iText == '\r';
}

// @return behind the line, null if it is unusual.
const char* NodeLine(const char* iText, std::int32_t& oId, double* oXyz)
{
  const char* text = scan::Id(SkipBlanks(iText), oId);
  for (int axis = 0; axis < 3 && text != nullptr; ++axis)
  {
    oXyz[axis] = 0.;
    text = SkipBlanks(text);
    if (AtLineEnd(text))
      continue;
    text = *text == ',' ? scan::Real(SkipBlanks(text + 1), oXyz[axis]) : nullptr;
  }
  return text == nullptr ? nullptr : LineEnd(text);
}

// @return behind the element's last line, null if it is unusual or not whole in the window.
inline const char* ElementLines(const char* iText, const char* iLimit, int iNodeCount, std::int32_t& oId,
                                std::int32_t* oNodes, std::int32_t& oLines)
{
  const char* text = scan::Id(SkipBlanks(iText), oId);
  oLines = 1;
  for (int node = 0; node < iNodeCount && text != nullptr; ++node)
  {
    // The two usual ways as two branches: a computed step would make each number wait for the one before.
    if (text[0] == ',' && text[1] == ' ' && scan::IsDigit(text[2]))
    {
      text = scan::Id(text + 2, oNodes[node]);
      continue;
    }
    if (text[0] == ',' && scan::IsDigit(text[1]))
    {
      text = scan::Id(text + 1, oNodes[node]);
      continue;
    }
    text = SkipBlanks(text);
    const bool comma = *text == ',';
    if (comma)
      text = SkipBlanks(text + 1);
    if (AtLineEnd(text))
    {
      text = LineEnd(text);
      if (text == nullptr || text >= iLimit)
        return nullptr;
      text = SkipBlanks(text);
      ++oLines;
    }
    else if (!comma)
      return nullptr;
    text = scan::Id(text, oNodes[node]);
  }
  return text == nullptr ? nullptr : LineEnd(text);
}

// @return behind the line, null if it is unusual; the ids are then not kept.
const char* IdLine(const char* iText, Column<std::int32_t>& ioIds)
{
  const std::size_t before = ioIds.size();
  const char* text = iText;
  const char* end = nullptr;
  do
  {
    std::int32_t id = 0;
    text = scan::Id(SkipBlanks(text), id);
    if (text == nullptr)
      break;
    ioIds.push_back(id);
    end = LineEnd(text);
    text = SkipBlanks(text);
  } while (end == nullptr && *text++ == ',');
  if (end == nullptr)
    ioIds.Truncate(before);
  return end;
}

const char* SideLine(const char* iText, std::int32_t& oId, std::uint8_t& oSide)
{
  const char* text = scan::Id(SkipBlanks(iText), oId);
  if (text == nullptr || *(text = SkipBlanks(text)) != ',')
    return nullptr;
  text = SkipBlanks(text + 1);
  if ((text[0] != 'S' && text[0] != 's') || text[1] < '1' || text[1] > '9')
    return nullptr;
  oSide = static_cast<std::uint8_t>(text[1] - '0');
  return LineEnd(text + 2);
}

} // namespace

std::int64_t TakeNodeLines(LineSource& ioSource, NodeTable& ioNodes, bool& ioAscending)
{
  const char* const limit = ioSource.Limit();
  const char* text = ioSource.Cursor();
  std::int32_t last = ioNodes.ids.empty() ? 0 : ioNodes.ids.back();
  std::int32_t lines = 0;
  while (text < limit)
  {
    std::int32_t id = 0;
    double xyz[3];
    const char* const next = NodeLine(text, id, xyz);
    if (next == nullptr)
      break;
    text = next;
    ++lines;
    ioAscending = ioAscending && id > last;
    last = id;
    ioNodes.ids.push_back(id);
    ioNodes.xyz.Append(xyz, 3);
  }
  ioSource.MoveTo(text, lines);
  return lines;
}

std::int64_t TakeElementLines(LineSource& ioSource, std::uint16_t iType, int iNodeCount, ElementTable& ioElements,
                              bool& ioAscending)
{
  const char* const limit = ioSource.Limit();
  const char* text = ioSource.Cursor();
  const auto count = static_cast<std::size_t>(iNodeCount);
  std::int32_t last = ioElements.ids.empty() ? 0 : ioElements.ids.back();
  std::int32_t lines = 0;
  std::int64_t taken = 0;
  while (text < limit)
  {
    std::int32_t id = 0;
    std::int32_t linesOfThis = 0;
    std::int32_t* const nodes = ioElements.nodes.GrowBy(count);
    const char* const next = ElementLines(text, limit, iNodeCount, id, nodes, linesOfThis);
    if (next == nullptr)
    {
      ioElements.nodes.Truncate(ioElements.nodes.size() - count);
      break;
    }
    text = next;
    lines += linesOfThis;
    ++taken;
    ioAscending = ioAscending && id > last;
    last = id;
    ioElements.ids.push_back(id);
    ioElements.types.push_back(iType);
    ioElements.offsets.push_back(static_cast<std::uint32_t>(ioElements.nodes.size()));
  }
  ioSource.MoveTo(text, lines);
  return taken;
}

std::int64_t TakeIdLines(LineSource& ioSource, Column<std::int32_t>& ioIds)
{
  const char* const limit = ioSource.Limit();
  const char* text = ioSource.Cursor();
  std::int32_t lines = 0;
  while (text < limit)
  {
    const char* const next = IdLine(text, ioIds);
    if (next == nullptr)
      break;
    text = next;
    ++lines;
  }
  ioSource.MoveTo(text, lines);
  return lines;
}

std::int64_t TakeSideLines(LineSource& ioSource, Column<std::int32_t>& ioIds, Column<std::uint8_t>& ioSides)
{
  const char* const limit = ioSource.Limit();
  const char* text = ioSource.Cursor();
  std::int32_t lines = 0;
  while (text < limit)
  {
    std::int32_t id = 0;
    std::uint8_t side = 0;
    const char* const next = SideLine(text, id, side);
    if (next == nullptr)
      break;
    text = next;
    ++lines;
    ioIds.push_back(id);
    ioSides.push_back(side);
  }
  ioSource.MoveTo(text, lines);
  return lines;
}

} // namespace voxbench::inp
