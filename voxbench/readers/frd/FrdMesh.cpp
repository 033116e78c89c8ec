// SPDX-License-Identifier: MIT
#include "FixedFields.h"
#include "FrdReading.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <numeric>

namespace voxbench::frd
{
namespace
{

//! The element types of a result file, from 1. They tell the shape alone: surfaces count as shells, lines as beams.
const std::array<ElementType, 13> kTypes{{
    {},
    {"HE8", 8, 3, 1, 8, ElementFamily::Solid, ElementShape::Hexahedron},
    {"PE6", 6, 3, 1, 6, ElementFamily::Solid, ElementShape::Wedge},
    {"TE4", 4, 3, 1, 4, ElementFamily::Solid, ElementShape::Tetrahedron},
    {"HE20", 20, 3, 2, 8, ElementFamily::Solid, ElementShape::Hexahedron},
    {"PE15", 15, 3, 2, 6, ElementFamily::Solid, ElementShape::Wedge},
    {"TE10", 10, 3, 2, 4, ElementFamily::Solid, ElementShape::Tetrahedron},
    {"TR3", 3, 2, 1, 3, ElementFamily::Shell, ElementShape::Triangle},
    {"TR6", 6, 2, 2, 3, ElementFamily::Shell, ElementShape::Triangle},
    {"QU4", 4, 2, 1, 4, ElementFamily::Shell, ElementShape::Quadrangle},
    {"QU8", 8, 2, 2, 4, ElementFamily::Shell, ElementShape::Quadrangle},
    {"BE2", 2, 1, 1, 2, ElementFamily::Beam, ElementShape::Line},
    {"BE3", 3, 1, 2, 2, ElementFamily::Beam, ElementShape::Line},
}};

//! Rows of ids in ascending order. @return false when an id stands twice: oTwice.
bool AscendingOrder(const Column<std::int32_t>& iIds, std::vector<std::uint32_t>& oOrder, std::int32_t& oTwice)
{
  oOrder.resize(iIds.size());
  std::iota(oOrder.begin(), oOrder.end(), 0u);
  std::sort(oOrder.begin(), oOrder.end(),
            [&iIds](std::uint32_t iLeft, std::uint32_t iRight) { return iIds[iLeft] < iIds[iRight]; });
  const auto twice =
      std::adjacent_find(oOrder.begin(), oOrder.end(),
                         [&iIds](std::uint32_t iLeft, std::uint32_t iRight) { return iIds[iLeft] == iIds[iRight]; });
  if (twice == oOrder.end())
    return true;
  oTwice = iIds[*twice];
  return false;
}

bool Ascends(const Column<std::int32_t>& iIds)
{
  return std::adjacent_find(iIds.begin(), iIds.end(), std::greater_equal<>()) == iIds.end();
}

} // namespace

bool FrdReading::ReadNodes(std::string_view iLine)
{
  _Force = "nodes";
  BlockHead head;
  if (!ReadBlockHead(iLine, 36, head))
    return false;
  if (_HasMesh)
    return Refuse("a second block of nodes: the file holds more than one mesh.", "Keep one mesh per file.");
  _HasMesh = true;
  if (!ReadRows(head, 3))
    return false;
  if (_NoNumbers > 0)
    return Refuse(fmt::format("{} coordinates are no numbers.", _NoNumbers));
  _Records.nodes.ids = _Ids;
  _Records.nodes.xyz = _Numbers;
  _Records.nodes.sources = {{0, {0, head.line}}};
  return SortNodes();
}

bool FrdReading::SortNodes()
{
  NodeTable& nodes = _Records.nodes;
  if (Ascends(nodes.ids))
    return true;
  std::vector<std::uint32_t> order;
  std::int32_t twice = 0;
  if (!AscendingOrder(nodes.ids, order, twice))
    return Refuse(fmt::format("node {} stands twice.", twice));
  for (std::size_t row = 0; row < order.size(); ++row)
  {
    nodes.ids[row] = _Ids[order[row]];
    std::copy_n(_Numbers.data() + 3 * std::size_t{order[row]}, 3, nodes.xyz.data() + 3 * row);
  }
  return true;
}

bool FrdReading::ReadElements(std::string_view iLine)
{
  _Force = "elements";
  BlockHead head;
  if (!ReadBlockHead(iLine, 36, head))
    return false;
  ElementTable& elements = _Records.elements;
  if (!elements.offsets.empty())
    return Refuse("a second block of elements: the file holds more than one mesh.", "Keep one mesh per file.");
  elements.offsets.push_back(0);
  elements.sources = {{0, {0, head.line}}};
  if (!(IsBinary(head.form) ? ReadBinaryElements(head) && EndBinary() : ReadTextElements(head)))
    return false;
  const auto rows = static_cast<std::int64_t>(elements.size());
  if (head.count >= 0 && head.count != rows) // layers of a composite shell are elements that nobody announces
    _Records.diagnostics.Add(Severity::Note, {0, head.line}, "elements",
                             fmt::format("{} elements are announced, {} follow.", head.count, rows));
  for (const std::int32_t node : elements.nodes)
    if (_Records.nodes.Find(node) < 0)
      return Refuse(fmt::format("an element has node {}, which the file does not have.", node));
  return SortElements();
}

bool FrdReading::AddElement(std::int32_t iId, std::int32_t iType)
{
  if (iType < 1 || iType >= static_cast<std::int32_t>(kTypes.size()))
    return Refuse(fmt::format("element {} is of type {}: there are types 1 to 12.", iId, iType));
  const ElementType& type = kTypes[static_cast<std::size_t>(iType)];
  auto& types = _Records.elementTypes;
  auto found =
      std::find_if(types.begin(), types.end(), [&type](const ElementType& iKnown) { return iKnown.name == type.name; });
  if (found == types.end())
    found = types.insert(types.end(), type);
  _Records.elements.ids.push_back(iId);
  _Records.elements.types.push_back(static_cast<std::uint16_t>(found - types.begin()));
  return true;
}

bool FrdReading::ReadTextElements(const BlockHead& iHead)
{
  const int width = iHead.form == Form::Short ? 5 : 10;
  std::string_view line;
  while (TakeLine(line))
  {
    if (line.starts_with(" -3"))
      return true;
    if (!ReadTextElement(line, width))
      return false;
    Progress();
  }
  return false;
}

bool FrdReading::ReadTextElement(std::string_view iLine, int iWidth)
{
  const auto width = static_cast<std::size_t>(iWidth);
  std::int32_t id = 0;
  std::int32_t type = 0;
  if (!iLine.starts_with(" -1") || iLine.size() < 8 + width || !FixedId(iLine.data() + 3, iWidth, id) ||
      !ParseInteger(Field(iLine, 3 + width, 8 + width), type))
    return RefuseLine(iLine, "an element must begin with -1, its number and its type");
  if (!AddElement(id, type))
    return false;
  ElementTable& elements = _Records.elements;
  const std::size_t first = elements.nodes.size();
  const std::size_t wanted = first + static_cast<std::size_t>(kTypes[static_cast<std::size_t>(type)].nodeCount);
  while (elements.nodes.size() < wanted)
  {
    std::string_view line;
    if (!TakeLine(line))
      return false;
    std::int32_t node = 0;
    std::size_t at = 3;
    for (; line.starts_with(" -2") && at + width <= line.size() && elements.nodes.size() < wanted; at += width)
    {
      if (!FixedId(line.data() + at, iWidth, node))
        return RefuseLine(line, "a node number cannot be read");
      elements.nodes.push_back(node);
    }
    if (at == 3 || !Field(line, at, line.size()).empty())
      return RefuseLine(line, fmt::format("element {} needs {} nodes", id, wanted - first).c_str());
  }
  IntoOrderOfSolver(first, type);
  elements.offsets.push_back(static_cast<std::uint32_t>(wanted));
  return true;
}

//! Whether a line of text that begins a block stands at the cursor, or the file's end.
bool FrdReading::AtKey()
{
  if (!_Window.Have(6))
    return true;
  const std::string_view key(_Window.Cursor(), 6);
  return key == "    1P" || key == "    1U" || key == "    2C" || key == "  100C" || key.starts_with(" 9999") ||
         key.starts_with(" -3\n");
}

//! More elements than announced may follow, until a line of text: read as numbers, its beginning is no element type.
bool FrdReading::ReadBinaryElements(const BlockHead& iHead)
{
  _Uncounted = true;
  ElementTable& elements = _Records.elements;
  for (std::int64_t row = 0; row < iHead.count || !AtKey(); ++row)
  {
    std::int32_t head[4] = {}; // number, type, group, material
    if (!_Window.Have(sizeof head))
      return RefuseEnd();
    std::memcpy(head, _Window.Cursor(), sizeof head);
    if (head[0] <= 0)
      return Refuse(fmt::format("row {} has the element number {}.", row + 1, head[0]));
    if (!AddElement(head[0], head[1]))
      return false;
    _Window.Skip(sizeof head);
    const auto count = static_cast<std::size_t>(kTypes[static_cast<std::size_t>(head[1])].nodeCount);
    if (!_Window.Have(4 * count))
      return RefuseEnd();
    const std::size_t first = elements.nodes.size();
    std::memcpy(elements.nodes.GrowBy(count), _Window.Cursor(), 4 * count);
    _Window.Skip(4 * count);
    IntoOrderOfSolver(first, head[1]);
    elements.offsets.push_back(static_cast<std::uint32_t>(elements.nodes.size()));
  }
  return true;
}

//! The file lists the middle nodes of upright edges before those of the top, and that of a line last.
void FrdReading::IntoOrderOfSolver(std::size_t iFirst, std::int32_t iType)
{
  std::int32_t* const nodes = _Records.elements.nodes.data() + iFirst;
  const std::string& name = kTypes[static_cast<std::size_t>(iType)].name;
  if (name == "HE20")
    std::swap_ranges(nodes + 12, nodes + 16, nodes + 16);
  else if (name == "PE15")
    std::swap_ranges(nodes + 9, nodes + 12, nodes + 12);
  else if (name == "BE3")
    std::swap(nodes[1], nodes[2]);
}

bool FrdReading::SortElements()
{
  ElementTable& elements = _Records.elements;
  if (Ascends(elements.ids))
    return true;
  std::vector<std::uint32_t> order;
  std::int32_t twice = 0;
  if (!AscendingOrder(elements.ids, order, twice))
    return Refuse(fmt::format("element {} stands twice.", twice));
  ElementTable sorted;
  sorted.sources = elements.sources;
  sorted.offsets.push_back(0);
  for (const std::uint32_t row : order)
  {
    sorted.ids.push_back(elements.ids[row]);
    sorted.types.push_back(elements.types[row]);
    const auto nodes = elements.NodesOf(row);
    sorted.nodes.Append(nodes.data(), nodes.size());
    sorted.offsets.push_back(static_cast<std::uint32_t>(sorted.nodes.size()));
  }
  elements = std::move(sorted);
  return true;
}

} // namespace voxbench::frd
