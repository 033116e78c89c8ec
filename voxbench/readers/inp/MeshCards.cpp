// SPDX-License-Identifier: MIT
#include "../Numbers.h"
#include "ElementNames.h"
#include "FastLines.h"
#include "Handlers.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>

namespace voxbench::inp
{

namespace
{
// Room for the rows that the rest of the file may hold if all are written like the line at hand; untouched room is free.
std::size_t RowsAhead(Reading& ioReading)
{
  const std::size_t lineLength = std::max<std::size_t>(ioReading.PeekedLine().size() + 1, 4);
  return static_cast<std::size_t>(ioReading.Source().TextAhead()) / lineLength + 1;
}

// @return false, reported, if the text is no positive id.
bool TakeId(Reading& ioReading, const std::string& iText, std::int32_t iLine, const char* iWhat, std::int32_t& oId)
{
  if (ParseInteger(iText, oId) && oId > 0)
    return true;
  const Where where{ioReading.Here().file, iLine};
  ioReading.Report(Severity::Error, where,
                   fmt::format("\"{}\" is no {} number (1 to {}); the line is not used.", iText, iWhat,
                               std::numeric_limits<std::int32_t>::max()));
  return false;
}

void TakeNodeSlowly(Reading& ioReading)
{
  DataLine line;
  ioReading.TakeFields(line);
  const Where where{ioReading.Here().file, line.line};
  std::int32_t id = 0;
  if (line.fields.empty() || !TakeId(ioReading, line.fields[0], line.line, "node", id))
    return;
  double xyz[3] = {0., 0., 0.};
  for (std::size_t axis = 0; axis < 3 && axis + 1 < line.fields.size(); ++axis)
  {
    const std::string& text = line.fields[axis + 1];
    if (text.empty() || ParseReal(text, xyz[axis]))
      continue;
    return ioReading.Report(Severity::Error, where,
                            fmt::format("\"{}\" is no coordinate; node {} is not used.", text, id));
  }
  if (line.fields.size() > 4)
    ioReading.Report(Severity::Warning, where, "more than three coordinates; the others have no effect.");
  NodeTable& nodes = ioReading.model.nodes;
  ioReading.nodesAscend = ioReading.nodesAscend && (nodes.ids.empty() || id > nodes.ids.back());
  nodes.ids.push_back(id);
  nodes.xyz.Append(xyz, 3);
}

// The ids from iFirst on belong to the set that the card names.
void JoinSet(SetBuilders& ioSets, const std::string& iName, Where iWhere, const Column<std::int32_t>& iIds,
             std::size_t iFirst)
{
  if (iName.empty())
    return;
  SetBuilder& set = ioSets.Get(iName, iWhere);
  set.BeginPiece(iWhere);
  set.ids.Append(iIds.data() + iFirst, iIds.size() - iFirst);
}

// The place of the card's type in the table of types. Refuses the deck when the table is full.
std::uint16_t TypeIndex(Reading& ioReading, const CardRecord& iCard)
{
  std::vector<ElementType>& types = ioReading.model.elementTypes;
  const std::string& name = iCard.Get("TYPE");
  const auto [found, isNew] = ioReading.elementTypePlaces.try_emplace(name, types.size());
  const std::size_t index = found->second;
  if (index > std::numeric_limits<std::uint16_t>::max())
  {
    ioReading.Refuse(iCard.where, "the deck has more than 65536 types of elements.", "Correct the TYPE of its cards.");
    return 0;
  }
  if (isNew)
  {
    ElementType type = LookUpElementType(name);
    if (const auto user = ioReading.userElementNodes.find(name); user != ioReading.userElementNodes.end())
    {
      type.family = ElementFamily::User;
      type.nodeCount = user->second;
    }
    types.push_back(type);
  }
  if (types[index].family == ElementFamily::Unknown)
    ioReading.Report(Severity::Error, iCard.where,
                     name.empty()
                         ? std::string("the card has no TYPE; its elements keep their nodes only.")
                         : fmt::format("the element type {} is not known; its elements keep their nodes only.", name));
  return static_cast<std::uint16_t>(index);
}

void AddElement(Reading& ioReading, std::uint16_t iType, std::int32_t iId, const std::vector<std::int32_t>& iNodes)
{
  ElementTable& elements = ioReading.model.elements;
  ioReading.elementsAscend = ioReading.elementsAscend && (elements.ids.empty() || iId > elements.ids.back());
  elements.ids.push_back(iId);
  elements.types.push_back(iType);
  elements.nodes.Append(iNodes.data(), iNodes.size());
  elements.offsets.push_back(static_cast<std::uint32_t>(elements.nodes.size()));
}

bool EndsWithComma(std::string_view iLine)
{
  const std::string_view text = Trim(iLine);
  return !text.empty() && text.back() == ',';
}

// Gathers the fields of one element: its line and the ones that go it on. @return false if it does not come whole.
bool GatherElement(Reading& ioReading, std::size_t iWanted, DataLine& oLine)
{
  ioReading.Peek();
  bool comma = EndsWithComma(ioReading.PeekedLine());
  ioReading.TakeFields(oLine);
  std::vector<std::string> next;
  while (iWanted == 0 ? comma : oLine.fields.size() < iWanted)
  {
    if (ioReading.Peek() != LineKind::Data)
      return iWanted == 0;
    SplitFields(ioReading.PeekedLine(), next);
    if (iWanted != 0 && !comma && oLine.fields.size() + next.size() > iWanted)
      return false; // the next line is no continuation but another element
    comma = EndsWithComma(ioReading.PeekedLine());
    ioReading.Source().TakeLine();
    oLine.fields.insert(oLine.fields.end(), next.begin(), next.end());
  }
  return true;
}

void TakeElementSlowly(Reading& ioReading, std::uint16_t iType)
{
  ElementType& type = ioReading.model.elementTypes[iType];
  const std::size_t wanted = type.nodeCount == 0 ? 0 : static_cast<std::size_t>(type.nodeCount) + 1;
  DataLine line;
  const bool whole = GatherElement(ioReading, wanted, line);
  const Where where{ioReading.Here().file, line.line};
  std::int32_t id = 0;
  if (line.fields.empty() || !TakeId(ioReading, line.fields[0], line.line, "element", id))
    return;
  if (!whole)
    return ioReading.Report(
        Severity::Error, where,
        fmt::format("element {} has {} of {} nodes; it is not used.", id, line.fields.size() - 1, type.nodeCount));
  if (wanted != 0 && line.fields.size() > wanted)
  {
    ioReading.Report(Severity::Warning, where,
                     fmt::format("element {} has {} nodes where {} has {}; the others have no effect.", id,
                                 line.fields.size() - 1, type.name, type.nodeCount));
    line.fields.resize(wanted);
  }
  std::vector<std::int32_t> nodes;
  for (std::size_t at = 1; at < line.fields.size(); ++at)
  {
    std::int32_t node = 0;
    const bool openEnd = type.family == ElementFamily::FluidNetwork && ParseInteger(line.fields[at], node) && node == 0;
    if (!openEnd && !TakeId(ioReading, line.fields[at], line.line, "node", node))
      return;
    nodes.push_back(node);
  }
  AddElement(ioReading, iType, id, nodes);
}
} // namespace

void ReportUnusedParameters(Reading& ioReading, const CardRecord& iCard, std::initializer_list<std::string_view> iUsed)
{
  for (const Parameter& parameter : iCard.parameters)
    if (std::find(iUsed.begin(), iUsed.end(), parameter.key) == iUsed.end())
      ioReading.Report(Severity::Warning, iCard.where, fmt::format("the parameter {} has no effect.", parameter.key));
}

void ReadNodes(Reading& ioReading, CardRecord& ioCard)
{
  ReportUnusedParameters(ioReading, ioCard, {"NSET"});
  NodeTable& nodes = ioReading.model.nodes;
  const std::size_t first = nodes.size();
  nodes.sources.push_back({static_cast<std::int32_t>(first), ioCard.where});
  if (ioReading.Peek() == LineKind::Data)
  {
    const std::size_t rows = first + RowsAhead(ioReading);
    nodes.ids.Reserve(rows);
    nodes.xyz.Reserve(3 * rows);
  }
  while (ioReading.Peek() == LineKind::Data)
    if (TakeNodeLines(ioReading.Source(), nodes, ioReading.nodesAscend) == 0)
      TakeNodeSlowly(ioReading);
  JoinSet(ioReading.nodeSets, ioCard.Get("NSET"), ioCard.where, nodes.ids, first);
}

void ReadElements(Reading& ioReading, CardRecord& ioCard)
{
  ReportUnusedParameters(ioReading, ioCard, {"TYPE", "ELSET"});
  ElementTable& elements = ioReading.model.elements;
  const std::uint16_t type = TypeIndex(ioReading, ioCard);
  if (ioReading.Refused())
    return;
  const std::int32_t nodeCount = ioReading.model.elementTypes[type].nodeCount;
  const std::size_t first = elements.size();
  elements.sources.push_back({static_cast<std::int32_t>(first), ioCard.where});
  if (elements.offsets.empty())
    elements.offsets.push_back(0);
  if (ioReading.Peek() == LineKind::Data)
  {
    const std::size_t rows = first + RowsAhead(ioReading);
    elements.ids.Reserve(rows);
    elements.types.Reserve(rows);
    elements.offsets.Reserve(rows + 1);
    elements.nodes.Reserve(elements.nodes.size() + static_cast<std::size_t>(ioReading.Source().TextAhead() / 2));
  }
  while (ioReading.Peek() == LineKind::Data)
  {
    const bool canBeFast = nodeCount > 0 && nodeCount <= 64;
    if (!canBeFast || TakeElementLines(ioReading.Source(), type, nodeCount, elements, ioReading.elementsAscend) == 0)
      TakeElementSlowly(ioReading, type);
    if (elements.nodes.size() > std::numeric_limits<std::uint32_t>::max() - (std::size_t{1} << 24))
      return ioReading.Refuse(ioCard.where, "the elements have more than four thousand million nodes in all.",
                              "Split the model.");
  }
  JoinSet(ioReading.elementSets, ioCard.Get("ELSET"), ioCard.where, elements.ids, first);
}

void ReadUserElement(Reading& ioReading, CardRecord& ioCard)
{
  const std::string& type = ioCard.Get("TYPE");
  std::int32_t nodes = 0;
  if (type.empty() || !ParseInteger(ioCard.Get("NODES"), nodes) || nodes < 1)
    ioReading.Report(Severity::Error, ioCard.where, "a user element needs TYPE and a positive NODES.");
  else
    ioReading.userElementNodes[type] = nodes;
  ReadOtherCard(ioReading, ioCard);
}

} // namespace voxbench::inp
