// SPDX-License-Identifier: MIT
#include "../Numbers.h"
#include "FastLines.h"
#include "Handlers.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace voxbench::inp
{

namespace
{
void ReportBadId(Reading& ioReading, Where iWhere, const std::string& iText, const char* iWhat)
{
  ioReading.Report(Severity::Error, iWhere, fmt::format("\"{}\" is no {} number; it is no member.", iText, iWhat));
}

// A number is a member, anything else names another set.
void TakeMembersSlowly(Reading& ioReading, SetBuilder& ioSet, const char* iWhat)
{
  DataLine line;
  ioReading.TakeFields(line);
  const Where where{ioReading.Here().file, line.line};
  for (std::string& text : line.fields)
  {
    std::int32_t id = 0;
    const bool number = ParseInteger(text, id);
    const bool looksLikeNumber = text.find_first_not_of("+-0123456789") == std::string::npos;
    if (number && id > 0)
      ioSet.ids.push_back(id);
    else if (number || (looksLikeNumber && !text.empty()))
      ReportBadId(ioReading, where, text, iWhat);
    else if (!text.empty())
      ioSet.references.push_back({std::move(text), 0, where});
  }
}

void TakeRange(Reading& ioReading, SetBuilder& ioSet, const char* iWhat)
{
  DataLine line;
  ioReading.TakeFields(line);
  const Where where{ioReading.Here().file, line.line};
  if (line.fields.empty())
    return;
  GeneratedRange range{0, 0, 1, where};
  line.fields.resize(std::max<std::size_t>(line.fields.size(), 3));
  const bool numbers = ParseInteger(line.fields[0], range.first) && ParseInteger(line.fields[1], range.last) &&
                       (line.fields[2].empty() || ParseInteger(line.fields[2], range.increment));
  if (!numbers || range.first < 1 || range.last < range.first || range.increment < 1)
    return ioReading.Report(
        Severity::Error, where,
        fmt::format("\"{}, {}, {}\" is no range of {} numbers (first, last, increment); the line is not used.",
                    line.fields[0], line.fields[1], line.fields[2], iWhat));
  if (line.fields.size() > 3)
    ioReading.Report(Severity::Warning, where, "more than first, last and increment; the rest has no effect.");
  ioSet.ranges.push_back(range);
}

void ReadSet(Reading& ioReading, const CardRecord& iCard, SetBuilders& ioSets, const char* iKey, const char* iWhat)
{
  const std::string& name = iCard.Get(iKey);
  if (name.empty())
    return ioReading.Report(Severity::Error, iCard.where,
                            fmt::format("the set has no name ({}=); it is not kept.", iKey));
  SetBuilder& set = ioSets.Get(name, iCard.where);
  set.BeginPiece(iCard.where);
  if (iCard.Has("GENERATE"))
  {
    while (ioReading.Peek() == LineKind::Data)
      TakeRange(ioReading, set, iWhat);
    return;
  }
  while (ioReading.Peek() == LineKind::Data)
    if (TakeIdLines(ioReading.Source(), set.ids) == 0)
      TakeMembersSlowly(ioReading, set, iWhat);
}

// @return the label's code, 0 if it names no side.
std::uint8_t SideLabelOf(const std::string& iText)
{
  static constexpr std::pair<const char*, std::uint8_t> kLettered[] = {
      {"SNEG", kSideNegative}, {"SN", kSideNegative},  {"NEG", kSideNegative}, {"SPOS", kSidePositive},
      {"SP", kSidePositive},   {"POS", kSidePositive}, {"N", kSideN},          {"P", kSideP}};
  if (iText.size() == 2 && iText[0] == 'S' && iText[1] >= '1' && iText[1] <= '9')
    return static_cast<std::uint8_t>(iText[1] - '0');
  for (const auto& [text, code] : kLettered)
    if (iText == text)
      return code;
  return 0;
}

void TakeSideSlowly(Reading& ioReading, SetBuilder& ioSurface)
{
  DataLine line;
  ioReading.TakeFields(line);
  const Where where{ioReading.Here().file, line.line};
  if (line.fields.empty())
    return;
  const std::uint8_t side = line.fields.size() > 1 ? SideLabelOf(line.fields[1]) : 0;
  if (side == 0)
    return ioReading.Report(Severity::Error, where,
                            fmt::format("\"{}\" names no side (S1 to S6, SNEG, SPOS, N, P); the line is not used.",
                                        line.fields.size() > 1 ? line.fields[1] : std::string()));
  if (line.fields.size() > 2)
    ioReading.Report(Severity::Warning, where, "more than an element and a side; the rest has no effect.");
  std::int32_t id = 0;
  if (line.fields[0].empty())
    ReportBadId(ioReading, where, line.fields[0], "element");
  else if (!ParseInteger(line.fields[0], id))
    ioSurface.references.push_back({line.fields[0], side, where});
  else if (id < 1)
    ReportBadId(ioReading, where, line.fields[0], "element");
  else
  {
    ioSurface.ids.push_back(id);
    ioSurface.labels.push_back(side);
  }
}

SetBuilder& SurfaceFor(Reading& ioReading, const std::string& iName, Where iWhere, bool iOfNodes)
{
  SetBuilders& surfaces = iOfNodes ? ioReading.nodeSurfaces : ioReading.elementSurfaces;
  if (surfaces.Find(iName) < 0)
    ioReading.surfaceOrder.push_back((iOfNodes ? "N" : "E") + iName);
  SetBuilder& surface = surfaces.Get(iName, iWhere);
  surface.BeginPiece(iWhere);
  return surface;
}
} // namespace

void ReadNodeSet(Reading& ioReading, CardRecord& ioCard)
{
  ReportUnusedParameters(ioReading, ioCard, {"NSET", "GENERATE", "UNSORTED", "INTERNAL", "ELSET"});
  ReadSet(ioReading, ioCard, ioReading.nodeSets, "NSET", "node");
  if (const std::string& elements = ioCard.Get("ELSET"); !elements.empty() && !ioCard.Get("NSET").empty())
    ioReading.nodeSets.Get(ioCard.Get("NSET"), ioCard.where).nodesOfElements.push_back({elements, 0, ioCard.where});
}

void ReadElementSet(Reading& ioReading, CardRecord& ioCard)
{
  ReportUnusedParameters(ioReading, ioCard, {"ELSET", "GENERATE", "UNSORTED", "INTERNAL"});
  ReadSet(ioReading, ioCard, ioReading.elementSets, "ELSET", "element");
}

void ReadSurface(Reading& ioReading, CardRecord& ioCard)
{
  ReportUnusedParameters(ioReading, ioCard, {"NAME", "TYPE", "INTERNAL"});
  const std::string& name = ioCard.Get("NAME");
  const std::string& type = ioCard.Get("TYPE");
  const bool ofNodes = type == "NODE";
  if (name.empty() || (!ofNodes && !type.empty() && type != "ELEMENT"))
    return ioReading.Report(
        Severity::Error, ioCard.where,
        name.empty() ? std::string("the surface has no NAME; it is not kept.")
                     : fmt::format("TYPE={} is neither NODE nor ELEMENT; the surface {} is not kept.", type, name));
  SetBuilder& surface = SurfaceFor(ioReading, name, ioCard.where, ofNodes);
  while (ioReading.Peek() == LineKind::Data)
  {
    if (ofNodes)
    {
      if (TakeIdLines(ioReading.Source(), surface.ids) == 0)
        TakeMembersSlowly(ioReading, surface, "node");
    }
    else if (TakeSideLines(ioReading.Source(), surface.ids, surface.labels) == 0)
      TakeSideSlowly(ioReading, surface);
  }
}

} // namespace voxbench::inp
