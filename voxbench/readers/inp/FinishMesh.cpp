// SPDX-License-Identifier: MIT
#include "Handlers.h"
#include "IdPresence.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace voxbench::inp
{

namespace
{
struct Order
{
  Column<std::uint32_t> rows; //!< the rows to keep, ascending by id
  std::size_t dropped = 0;    //!< rows whose id comes again later
};

Where SourceOf(const std::vector<SourceRun>& iRuns, std::size_t iRow)
{
  const auto after = std::upper_bound(iRuns.begin(), iRuns.end(), static_cast<std::int64_t>(iRow),
                                      [](std::int64_t iKey, const SourceRun& iRun) { return iKey < iRun.firstRow; });
  return after == iRuns.begin() ? Where{} : std::prev(after)->where;
}

// Rows by ascending id, of equal ids the last one only; each card that defines ids again is reported once.
Order OrderById(Reading& ioReading, const Column<std::int32_t>& iIds, const std::vector<SourceRun>& iRuns,
                const char* iWhat)
{
  Order order;
  Column<std::uint32_t> all;
  all.GrowBy(iIds.size());
  std::iota(all.begin(), all.end(), 0u);
  std::sort(all.begin(), all.end(),
            [&](std::uint32_t iLeft, std::uint32_t iRight)
            { return iIds[iLeft] != iIds[iRight] ? iIds[iLeft] < iIds[iRight] : iLeft < iRight; });
  struct Again
  {
    std::int32_t firstId = 0;
    std::int64_t count = 0;
  };
  std::map<std::pair<std::int32_t, std::int32_t>, Again> again; // by file and line
  for (std::size_t at = 0; at < all.size(); ++at)
  {
    if (at + 1 == all.size() || iIds[all[at]] != iIds[all[at + 1]])
    {
      order.rows.push_back(all[at]);
      continue;
    }
    ++order.dropped;
    const Where where = SourceOf(iRuns, all[at + 1]);
    Again& one = again[{where.file, where.line}];
    if (one.count++ == 0)
      one.firstId = iIds[all[at]];
  }
  for (const auto& [place, one] : again)
    ioReading.Report(Severity::Warning, {place.first, place.second},
                     fmt::format("{} {}{} defined before, {} first; the last definition holds.", one.count, iWhat,
                                 one.count == 1 ? " was" : "s were", one.firstId));
  return order;
}

std::vector<SourceRun> RunsInOrder(const std::vector<SourceRun>& iRuns, const Order& iOrder)
{
  std::vector<SourceRun> runs;
  for (std::size_t row = 0; row < iOrder.rows.size(); ++row)
  {
    const Where where = SourceOf(iRuns, iOrder.rows[row]);
    if (runs.empty() || !(runs.back().where == where))
      runs.push_back({static_cast<std::int32_t>(row), where});
  }
  return runs;
}

template <typename T>
void Rearrange(Column<T>& ioColumn, const Order& iOrder, std::size_t iWidth = 1)
{
  Column<T> arranged;
  T* target = arranged.GrowBy(iOrder.rows.size() * iWidth);
  for (const std::uint32_t row : iOrder.rows)
    target = std::copy_n(ioColumn.data() + row * iWidth, iWidth, target);
  ioColumn.Swap(arranged);
}

void SortNodes(Reading& ioReading)
{
  NodeTable& nodes = ioReading.model.nodes;
  ioReading.cardInForce = "*NODE";
  const Order order = OrderById(ioReading, nodes.ids, nodes.sources, "node");
  nodes.sources = RunsInOrder(nodes.sources, order);
  Rearrange(nodes.ids, order);
  Rearrange(nodes.xyz, order, 3);
}

void SortElements(Reading& ioReading)
{
  ElementTable& elements = ioReading.model.elements;
  ioReading.cardInForce = "*ELEMENT";
  const Order order = OrderById(ioReading, elements.ids, elements.sources, "element");
  elements.sources = RunsInOrder(elements.sources, order);
  Column<std::int32_t> nodes;
  Column<std::uint32_t> offsets;
  nodes.Reserve(elements.nodes.size());
  offsets.Reserve(order.rows.size() + 1);
  offsets.push_back(0);
  for (const std::uint32_t row : order.rows)
  {
    nodes.Append(elements.nodes.data() + elements.offsets[row], elements.offsets[row + 1] - elements.offsets[row]);
    offsets.push_back(static_cast<std::uint32_t>(nodes.size()));
  }
  Rearrange(elements.ids, order);
  Rearrange(elements.types, order);
  elements.nodes.Swap(nodes);
  elements.offsets.Swap(offsets);
}

// Elements with nodes that the deck does not define stay, and are reported: one finding per element card.
void ReportMissingNodes(Reading& ioReading)
{
  const ElementTable& elements = ioReading.model.elements;
  const IdPresence present(ioReading.model.nodes.ids);
  if (present.HasAll(elements.nodes))
    return;
  ioReading.cardInForce = "*ELEMENT";
  for (std::size_t run = 0; run < elements.sources.size(); ++run)
  {
    const auto first = static_cast<std::size_t>(elements.sources[run].firstRow);
    const std::size_t last = run + 1 < elements.sources.size()
                                 ? static_cast<std::size_t>(elements.sources[run + 1].firstRow)
                                 : elements.size();
    std::int64_t count = 0;
    std::string example;
    for (std::size_t row = first; row < last; ++row)
    {
      const ElementFamily family = ioReading.model.elementTypes[elements.types[row]].family;
      const auto nodes = elements.NodesOf(row);
      const auto missing =
          std::find_if(nodes.begin(), nodes.end(),
                       [&](std::int32_t iNode)
                       { return !present.Has(iNode) && !(iNode == 0 && family == ElementFamily::FluidNetwork); });
      if (missing != nodes.end() && count++ == 0)
        example = fmt::format("element {} node {}", elements.ids[row], *missing);
    }
    if (count > 0)
      ioReading.Report(Severity::Error, elements.sources[run].where,
                       fmt::format("{} element{} nodes that the deck does not define, {} first.", count,
                                   count == 1 ? " names" : "s name", example));
  }
}

} // namespace

void FinishMesh(Reading& ioReading)
{
  NodeTable& nodes = ioReading.model.nodes;
  ElementTable& elements = ioReading.model.elements;
  if (!ioReading.nodesAscend)
    SortNodes(ioReading);
  if (!ioReading.elementsAscend)
    SortElements(ioReading);
  if (elements.offsets.empty())
    elements.offsets.push_back(0);
  nodes.ids.ReleaseSlack();
  nodes.xyz.ReleaseSlack();
  elements.ids.ReleaseSlack();
  elements.types.ReleaseSlack();
  elements.offsets.ReleaseSlack();
  elements.nodes.ReleaseSlack();
  ReportMissingNodes(ioReading);
}

} // namespace voxbench::inp
