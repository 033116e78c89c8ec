// SPDX-License-Identifier: MIT
#include "Handlers.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>

namespace voxbench::inp
{

namespace
{
constexpr std::uint8_t kPlaneSideN = 5;
constexpr std::uint8_t kPlaneSideP = 6;

// The side's number as NeutralModel tells it, 0 if the label is none of the element's.
std::uint8_t SideNumber(std::uint8_t iLabel, ElementFamily iFamily)
{
  if (iLabel < kSideNegative)
    return iLabel;
  const bool negative = iLabel == kSideNegative || iLabel == kSideN;
  if (IsPlane(iFamily))
    return negative ? kPlaneSideN : kPlaneSideP;
  return IsShellLike(iFamily) ? (negative ? 1 : 2) : 0;
}

// How many sides an element has by number; 6 where the shape does not tell.
int SideCount(const ElementType& iType)
{
  const int edges = iType.cornerCount;
  if (IsPlane(iType.family))
    return edges;
  if (IsShellLike(iType.family))
    return 2 + edges;
  if (iType.shape == ElementShape::Tetrahedron)
    return 4;
  return iType.shape == ElementShape::Wedge ? 5 : 6;
}

bool IsEdge(std::uint8_t iSide, ElementFamily iFamily)
{
  return (IsPlane(iFamily) && iSide < kPlaneSideN) || (IsShellLike(iFamily) && iSide > 2);
}

// Gathers the faces and edges of one surface.
class SideGatherer
{
public:
  SideGatherer(Reading& ioReading, const SetBuilder& iSurface) : _Reading(ioReading), _Surface(iSurface) {}

  void Add(std::int32_t iId, std::uint8_t iLabel, Where iWhere)
  {
    const ElementTable& elements = _Reading.model.elements;
    const std::int64_t row = elements.Find(iId);
    if (row < 0)
      return Count(_Missing, iId, iWhere);
    const ElementType& type = _Reading.model.elementTypes[elements.types[static_cast<std::size_t>(row)]];
    const std::uint8_t side = SideNumber(iLabel, type.family);
    if (side == 0)
      return Count(_NoSuchLabel, iId, iWhere);
    if (iLabel < kSideNegative && side > SideCount(type))
      Count(_Doubtful, iId, iWhere);
    (IsEdge(side, type.family) ? _Edges : _Faces) += 1;
    _Keys.push_back((std::int64_t{iId} << 8) | side);
  }

  void Finish(Surface& oSurface)
  {
    Tell(Severity::Error, _Missing, "of no element of the deck; left out");
    Tell(Severity::Error, _NoSuchLabel, "with a label that the element has not; left out");
    Tell(Severity::Warning, _Doubtful, "with a number beyond the element's sides; kept");
    if (std::adjacent_find(_Keys.begin(), _Keys.end(), std::greater_equal<>()) != _Keys.end())
    {
      std::sort(_Keys.begin(), _Keys.end());
      _Keys.Truncate(static_cast<std::size_t>(std::unique(_Keys.begin(), _Keys.end()) - _Keys.begin()));
    }
    oSurface.members.Reserve(_Keys.size());
    oSurface.sides.Reserve(_Keys.size());
    for (const std::int64_t key : _Keys)
    {
      oSurface.members.push_back(static_cast<std::int32_t>(key >> 8));
      oSurface.sides.push_back(static_cast<std::uint8_t>(key & 0xFF));
    }
    oSurface.kind = _Edges > 0 && _Faces == 0 ? SurfaceKind::Edge : SurfaceKind::Face;
  }

private:
  struct Finding
  {
    std::int64_t count = 0;
    std::int32_t firstId = 0;
    Where where;
  };

  static void Count(Finding& ioFinding, std::int32_t iId, Where iWhere)
  {
    if (ioFinding.count++ == 0)
    {
      ioFinding.firstId = iId;
      ioFinding.where = iWhere;
    }
  }

  void Tell(Severity iSeverity, const Finding& iFinding, const char* iWhat)
  {
    if (iFinding.count > 0)
      _Reading.Report(iSeverity, iFinding.where,
                      fmt::format("{} side{} of {} {} (element {} first).", iFinding.count,
                                  iFinding.count == 1 ? "" : "s", _Surface.name, iWhat, iFinding.firstId));
  }

  Reading& _Reading;
  const SetBuilder& _Surface;
  Column<std::int64_t> _Keys; //!< element id and side in one number
  std::int64_t _Edges = 0;
  std::int64_t _Faces = 0;
  Finding _Missing;
  Finding _NoSuchLabel;
  Finding _Doubtful;
};

void ReportUnknownSet(Reading& ioReading, const SetBuilder& iSurface, const NamedReference& iReference,
                      const char* iWhat)
{
  ioReading.Report(Severity::Error, iReference.where,
                   fmt::format("{} names {}, which is neither a number nor {} set; it is left out.", iSurface.name,
                               iReference.name, iWhat));
}

void FinishElementSurface(Reading& ioReading, const SetBuilder& iBuilder, Surface& oSurface)
{
  SideGatherer gatherer(ioReading, iBuilder);
  for (std::size_t piece = 0; piece < iBuilder.pieces.size(); ++piece)
  {
    const std::size_t last =
        piece + 1 < iBuilder.pieces.size() ? iBuilder.pieces[piece + 1].firstId : iBuilder.ids.size();
    for (std::size_t at = iBuilder.pieces[piece].firstId; at < last; ++at)
      gatherer.Add(iBuilder.ids[at], iBuilder.labels[at], iBuilder.pieces[piece].where);
  }
  for (const NamedReference& reference : iBuilder.references)
  {
    const std::int64_t index = ioReading.elementSets.Find(reference.name);
    if (index < 0)
    {
      ReportUnknownSet(ioReading, iBuilder, reference, "an element");
      continue;
    }
    NamedSet& set = ioReading.model.elementSets[static_cast<std::size_t>(index)];
    set.isPart = true;
    for (const std::int32_t id : set.members)
      gatherer.Add(id, reference.label, reference.where);
  }
  gatherer.Finish(oSurface);
}

void FinishNodeSurface(Reading& ioReading, SetBuilder& ioBuilder, Surface& oSurface)
{
  const NodeTable& nodes = ioReading.model.nodes;
  for (const NamedReference& reference : ioBuilder.references)
  {
    const std::int64_t index = ioReading.nodeSets.Find(reference.name);
    if (index < 0)
    {
      ReportUnknownSet(ioReading, ioBuilder, reference, "a node");
      continue;
    }
    NamedSet& set = ioReading.model.nodeSets[static_cast<std::size_t>(index)];
    set.isPart = true;
    ioBuilder.ids.Append(set.members.data(), set.members.size());
  }
  std::sort(ioBuilder.ids.begin(), ioBuilder.ids.end());
  std::int64_t missing = 0;
  for (const std::int32_t id : ioBuilder.ids)
  {
    if (nodes.Find(id) < 0)
      ++missing;
    else if (oSurface.members.empty() || oSurface.members.back() != id)
      oSurface.members.push_back(id);
  }
  std::fill_n(oSurface.sides.GrowBy(oSurface.members.size()), oSurface.members.size(), std::uint8_t{0});
  oSurface.kind = SurfaceKind::Node;
  if (missing > 0)
    ioReading.Report(Severity::Error, ioBuilder.where,
                     fmt::format("{} number{} of {} {} no node; left out.", missing, missing == 1 ? "" : "s",
                                 ioBuilder.name, missing == 1 ? "is" : "are"));
}
} // namespace

void FinishSurfaces(Reading& ioReading)
{
  ioReading.cardInForce = "*SURFACE";
  for (const std::string& entry : ioReading.surfaceOrder)
  {
    const bool ofNodes = entry[0] == 'N';
    const std::string name = entry.substr(1);
    SetBuilders& builders = ofNodes ? ioReading.nodeSurfaces : ioReading.elementSurfaces;
    SetBuilder& builder = builders.All()[static_cast<std::size_t>(builders.Find(name))];
    Surface& surface = ioReading.model.surfaces.emplace_back();
    surface.name = name;
    surface.where = builder.where;
    if (ofNodes)
      FinishNodeSurface(ioReading, builder, surface);
    else
      FinishElementSurface(ioReading, builder, surface);
    surface.members.ReleaseSlack();
    surface.sides.ReleaseSlack();
  }
}

} // namespace voxbench::inp
