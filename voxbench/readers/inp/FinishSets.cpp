// SPDX-License-Identifier: MIT
#include "Handlers.h"
#include "IdPresence.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>

namespace voxbench::inp
{

namespace
{
using Members = Column<std::int32_t>;

// The nodes or the elements.
struct Population
{
  const IdPresence& present;
  const char* what;
};

// A long list without order: a bit per id sorts it, drops what comes twice and what does not exist.
void SettleByBits(Members& ioIds, const IdPresence& iPresent)
{
  std::vector<bool> named(static_cast<std::size_t>(iPresent.Range()));
  for (const std::int32_t id : ioIds)
    if (iPresent.Has(id))
      named[static_cast<std::size_t>(id - iPresent.First())] = true;
  ioIds.Truncate(0);
  for (std::size_t at = 0; at < named.size(); ++at)
    if (named[at])
      ioIds.push_back(iPresent.First() + static_cast<std::int32_t>(at));
}

// Makes a list of ids a set: ascending, unique, existing ids only.
void Settle(Members& ioIds, const IdPresence& iPresent)
{
  const bool ascending = std::adjacent_find(ioIds.begin(), ioIds.end(), std::greater_equal<>()) == ioIds.end();
  if (!ascending && iPresent.IsDense() && ioIds.size() > iPresent.Ids().size() / 64)
    SettleByBits(ioIds, iPresent);
  else if (!ascending)
  {
    std::sort(ioIds.begin(), ioIds.end());
    ioIds.Truncate(static_cast<std::size_t>(std::unique(ioIds.begin(), ioIds.end()) - ioIds.begin()));
  }
  if (!iPresent.HasAll(ioIds))
  {
    const auto last = std::remove_if(ioIds.begin(), ioIds.end(), [&](std::int32_t iId) { return !iPresent.Has(iId); });
    ioIds.Truncate(static_cast<std::size_t>(last - ioIds.begin()));
  }
  ioIds.ReleaseSlack();
}

// @return how many of the range's ids exist; they are added.
std::int64_t AddRange(const GeneratedRange& iRange, const Population& iPopulation, Members& ioIds)
{
  const Members& ids = iPopulation.present.Ids();
  const std::size_t before = ioIds.size();
  const auto from = std::lower_bound(ids.begin(), ids.end(), iRange.first);
  for (auto at = from; at != ids.end() && *at <= iRange.last; ++at)
    if ((std::int64_t{*at} - iRange.first) % iRange.increment == 0)
      ioIds.push_back(*at);
  return static_cast<std::int64_t>(ioIds.size() - before);
}

void ReportMissingOfRanges(Reading& ioReading, const SetBuilder& iSet, const Population& iPopulation)
{
  std::int64_t missing = 0;
  Where where;
  for (const GeneratedRange& range : iSet.ranges)
  {
    Members found;
    const std::int64_t named = (std::int64_t{range.last} - range.first) / range.increment + 1;
    const std::int64_t missingHere = named - AddRange(range, iPopulation, found);
    if (missing == 0 && missingHere > 0)
      where = range.where;
    missing += missingHere;
  }
  if (missing > 0)
    ioReading.Report(Severity::Warning, where,
                     fmt::format("{} generated number{} of {} {} no {} and {} left out.", missing,
                                 missing == 1 ? "" : "s", iSet.name, missing == 1 ? "is" : "are", iPopulation.what,
                                 missing == 1 ? "is" : "are"));
}

// One finding per card that lists ids which do not exist.
void ReportMissing(Reading& ioReading, const SetBuilder& iSet, const Population& iPopulation)
{
  if (iPopulation.present.HasAll(iSet.ids))
    return;
  for (std::size_t piece = 0; piece < iSet.pieces.size(); ++piece)
  {
    const std::size_t last = piece + 1 < iSet.pieces.size() ? iSet.pieces[piece + 1].firstId : iSet.ids.size();
    std::int64_t count = 0;
    std::int32_t example = 0;
    for (std::size_t at = iSet.pieces[piece].firstId; at < last; ++at)
      if (!iPopulation.present.Has(iSet.ids[at]) && count++ == 0)
        example = iSet.ids[at];
    if (count > 0)
      ioReading.Report(Severity::Error, iSet.pieces[piece].where,
                       fmt::format("{} number{} of {} {} no {}, {} first; {} left out.", count, count == 1 ? "" : "s",
                                   iSet.name, count == 1 ? "is" : "are", iPopulation.what, example,
                                   count == 1 ? "it is" : "they are"));
  }
}

// The sets that a set names, directly and through others, itself first; each once.
std::vector<std::size_t> Reach(SetBuilders& ioSets, std::size_t iStart, bool& oCircle)
{
  std::vector<std::size_t> reached = {iStart};
  std::vector<bool> seen(ioSets.All().size());
  seen[iStart] = true;
  oCircle = false;
  for (std::size_t at = 0; at < reached.size(); ++at)
    for (const NamedReference& reference : ioSets.All()[reached[at]].references)
    {
      const std::int64_t index = ioSets.Find(reference.name);
      oCircle = oCircle || index == static_cast<std::int64_t>(iStart);
      if (index < 0 || seen[static_cast<std::size_t>(index)])
        continue;
      seen[static_cast<std::size_t>(index)] = true;
      reached.push_back(static_cast<std::size_t>(index));
    }
  return reached;
}

void ReportReferences(Reading& ioReading, SetBuilders& ioSets, const SetBuilder& iSet, const char* iWhat)
{
  for (const NamedReference& reference : iSet.references)
    if (ioSets.Find(reference.name) < 0)
      ioReading.Report(Severity::Error, reference.where,
                       fmt::format("{} names {}, which is neither a number nor {} {} set; it is left out.", iSet.name,
                                   reference.name, iWhat[0] == 'e' ? "an" : "a", iWhat));
}

// Nodes of element sets: known once the element sets are settled.
void AddNodesOfElements(Reading& ioReading, SetBuilder& ioSet)
{
  const ElementTable& elements = ioReading.model.elements;
  for (const NamedReference& reference : ioSet.nodesOfElements)
  {
    const std::int64_t index = ioReading.elementSets.Find(reference.name);
    if (index < 0)
      ioReading.Report(Severity::Error, reference.where,
                       fmt::format("{} takes the nodes of {}, which is no element set.", ioSet.name, reference.name));
    else
      for (const std::int32_t id : ioReading.model.elementSets[static_cast<std::size_t>(index)].members)
        for (const std::int32_t node : elements.NodesOf(static_cast<std::size_t>(elements.Find(id))))
          ioSet.ids.push_back(node);
  }
}

// Notes which sets a set is made of: of its own sort, and element sets whose nodes it takes.
void NoteParts(Reading& ioReading, SetBuilders& ioSets, const SetBuilder& iSet, std::vector<NamedSet>& oSets)
{
  for (const NamedReference& reference : iSet.references)
    if (const std::int64_t index = ioSets.Find(reference.name); index >= 0)
      oSets[static_cast<std::size_t>(index)].isPart = true;
  for (const NamedReference& reference : iSet.nodesOfElements)
    if (const std::int64_t index = ioReading.elementSets.Find(reference.name); index >= 0)
      ioReading.model.elementSets[static_cast<std::size_t>(index)].isPart = true;
}

void AddOwn(const SetBuilder& iSet, const Population& iPopulation, Members& ioIds)
{
  ioIds.Append(iSet.ids.data(), iSet.ids.size());
  for (const GeneratedRange& range : iSet.ranges)
    AddRange(range, iPopulation, ioIds);
}

// Settles the sets that name others, each after all that it names. Sets in a circle, and sets that name one, stay.
void SettleSetsOfSets(SetBuilders& ioSets, const Population& iPopulation, std::vector<NamedSet>& oSets,
                      std::vector<bool>& ioSettled)
{
  std::vector<SetBuilder>& all = ioSets.All();
  std::vector<std::size_t> awaited(all.size(), 0);
  std::vector<std::vector<std::size_t>> waiting(all.size());
  std::vector<std::size_t> ready;
  for (std::size_t at = 0; at < all.size(); ++at)
  {
    for (const NamedReference& reference : all[at].references)
      if (const std::int64_t index = ioSets.Find(reference.name);
          index >= 0 && !ioSettled[static_cast<std::size_t>(index)])
      {
        waiting[static_cast<std::size_t>(index)].push_back(at);
        ++awaited[at];
      }
    if (!ioSettled[at] && awaited[at] == 0)
      ready.push_back(at);
  }
  while (!ready.empty())
  {
    const std::size_t at = ready.back();
    ready.pop_back();
    AddOwn(all[at], iPopulation, oSets[at].members);
    for (const NamedReference& reference : all[at].references)
      if (const std::int64_t index = ioSets.Find(reference.name); index >= 0)
      {
        const Members& named = oSets[static_cast<std::size_t>(index)].members;
        oSets[at].members.Append(named.data(), named.size());
      }
    Settle(oSets[at].members, iPopulation.present);
    ioSettled[at] = true;
    for (const std::size_t other : waiting[at])
      if (--awaited[other] == 0)
        ready.push_back(other);
  }
}

// A set in a circle, or one that names such a set.
void SettleCircle(Reading& ioReading, SetBuilders& ioSets, std::size_t iAt, const Population& iPopulation,
                  const std::vector<bool>& iSettled, std::vector<NamedSet>& oSets)
{
  const std::vector<SetBuilder>& all = ioSets.All();
  Members& members = oSets[iAt].members;
  bool circle = false;
  for (const std::size_t other : Reach(ioSets, iAt, circle))
  {
    if (iSettled[other])
      members.Append(oSets[other].members.data(), oSets[other].members.size());
    else
      AddOwn(all[other], iPopulation, members);
  }
  if (circle)
    ioReading.Report(
        Severity::Warning, all[iAt].where,
        fmt::format("{} contains itself; its members are those of all sets in the circle.", all[iAt].name));
  Settle(members, iPopulation.present);
}

void SettleSets(Reading& ioReading, SetBuilders& ioSets, const Population& iPopulation, std::vector<NamedSet>& oSets)
{
  std::vector<SetBuilder>& all = ioSets.All();
  oSets.resize(all.size());
  for (std::size_t at = 0; at < all.size(); ++at)
  {
    oSets[at].name = all[at].name;
    oSets[at].where = all[at].where;
    ReportMissing(ioReading, all[at], iPopulation);
    ReportMissingOfRanges(ioReading, all[at], iPopulation);
    ReportReferences(ioReading, ioSets, all[at], iPopulation.what);
    AddNodesOfElements(ioReading, all[at]);
    NoteParts(ioReading, ioSets, all[at], oSets);
  }
  std::vector<bool> settled(all.size());
  for (std::size_t at = 0; at < all.size(); ++at)
  {
    if (!all[at].references.empty())
      continue;
    oSets[at].members.Swap(all[at].ids);
    for (const GeneratedRange& range : all[at].ranges)
      AddRange(range, iPopulation, oSets[at].members);
    Settle(oSets[at].members, iPopulation.present);
    settled[at] = true;
  }
  SettleSetsOfSets(ioSets, iPopulation, oSets, settled);
  for (std::size_t at = 0; at < all.size(); ++at)
    if (!settled[at])
      SettleCircle(ioReading, ioSets, at, iPopulation, settled, oSets);
}
} // namespace

void FinishSets(Reading& ioReading)
{
  NeutralModel& model = ioReading.model;
  const IdPresence nodes(model.nodes.ids);
  const IdPresence elements(model.elements.ids);
  ioReading.cardInForce = "*ELSET";
  SettleSets(ioReading, ioReading.elementSets, {elements, "element"}, model.elementSets);
  ioReading.cardInForce = "*NSET";
  SettleSets(ioReading, ioReading.nodeSets, {nodes, "node"}, model.nodeSets);
  FinishSurfaces(ioReading);
  ReportMissingTargets(ioReading, nodes, elements);
}

} // namespace voxbench::inp
