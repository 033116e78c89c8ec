// SPDX-License-Identifier: MIT
#include "../Numbers.h"
#include "Handlers.h"

#include <fmt/format.h>

#include <utility>

namespace voxbench::inp
{

namespace
{
// The place of the one of that name, made if there is none: property cards may come in pieces.
template <typename T>
std::size_t Named(std::vector<T>& ioAll, Reading::Places& ioPlaces, const std::string& iName, Where iWhere)
{
  const auto [found, isNew] = ioPlaces.try_emplace(iName, ioAll.size());
  if (isNew)
  {
    ioAll.emplace_back();
    ioAll.back().name = iName;
    ioAll.back().where = iWhere;
  }
  return found->second;
}

void ReportNoName(Reading& ioReading, const CardRecord& iCard)
{
  if (iCard.Get("NAME").empty())
    ioReading.Report(Severity::Error, iCard.where, "the card has no NAME.");
}

SectionKind SectionKindOf(const std::string& iKeyword)
{
  static constexpr std::pair<const char*, SectionKind> kKinds[] = {{"SHELLSECTION", SectionKind::Shell},
                                                                   {"MEMBRANESECTION", SectionKind::Membrane},
                                                                   {"BEAMSECTION", SectionKind::Beam},
                                                                   {"BEAMGENERALSECTION", SectionKind::Beam},
                                                                   {"FLUIDSECTION", SectionKind::Fluid},
                                                                   {"SPRING", SectionKind::Spring},
                                                                   {"DASHPOT", SectionKind::Dashpot},
                                                                   {"MASS", SectionKind::Mass},
                                                                   {"GAP", SectionKind::Gap},
                                                                   {"USERSECTION", SectionKind::User}};
  for (const auto& [keyword, kind] : kKinds)
    if (iKeyword == keyword)
      return kind;
  return SectionKind::Solid;
}

void FillLayers(Section& ioSection)
{
  for (std::size_t line = 0; line < ioSection.card.data.size(); ++line)
    ioSection.layers.push_back(
        {ioSection.card.Number(line, 0), ioSection.card.Text(line, 2), ioSection.card.Text(line, 3)});
}

void FillAxes(Reading& ioReading, LocalAxes& ioAxes)
{
  for (std::size_t axis = 0; axis < 3; ++axis)
  {
    ioAxes.first[axis] = ioAxes.card.Number(0, axis, 0.);
    ioAxes.second[axis] = ioAxes.card.Number(0, axis + 3, 0.);
  }
  if (ioAxes.card.data.empty())
    ioReading.Report(Severity::Error, ioAxes.card.where, "the card has no line with two points.");
}
} // namespace

void ReadMaterial(Reading& ioReading, CardRecord& ioCard)
{
  ReportUnusedParameters(ioReading, ioCard, {"NAME"});
  ReportNoName(ioReading, ioCard);
  ioReading.ownerIndex = Named(ioReading.model.materials, ioReading.materialPlaces, ioCard.Get("NAME"), ioCard.where);
  ioReading.owner = Reading::Owner::Material;
}

void ReadInteraction(Reading& ioReading, CardRecord& ioCard)
{
  ReportUnusedParameters(ioReading, ioCard, {"NAME"});
  ReportNoName(ioReading, ioCard);
  ioReading.ownerIndex =
      Named(ioReading.model.interactions, ioReading.interactionPlaces, ioCard.Get("NAME"), ioCard.where);
  ioReading.owner = Reading::Owner::Interaction;
}

void ReadInteractionChange(Reading& ioReading, CardRecord& ioCard)
{
  const std::string name = ioCard.Get("INTERACTION");
  if (name.empty())
    ioReading.Report(Severity::Error, ioCard.where, "the card names no INTERACTION.");
  ioReading.ownerIndex = Named(ioReading.model.interactions, ioReading.interactionPlaces, name, ioCard.where);
  ioReading.owner = Reading::Owner::Interaction;
  ReadProperty(ioReading, ioCard);
}

void ReadProperty(Reading& ioReading, CardRecord& ioCard)
{
  ioReading.TakeNumbers(ioCard);
  if (ioReading.owner == Reading::Owner::Material)
    ioReading.model.materials[ioReading.ownerIndex].properties.push_back(std::move(ioCard));
  else if (ioReading.owner == Reading::Owner::Interaction)
    ioReading.model.interactions[ioReading.ownerIndex].properties.push_back(std::move(ioCard));
  else
  {
    ioReading.Report(Severity::Warning, ioCard.where, "the card follows no material and no interaction.");
    ioReading.model.otherCards.push_back(std::move(ioCard));
  }
}

void ReadSection(Reading& ioReading, CardRecord& ioCard)
{
  Section& section = ioReading.model.sections.emplace_back();
  section.kind = SectionKindOf(ioCard.keyword);
  const bool blankLinesCount = section.kind == SectionKind::Spring || section.kind == SectionKind::Dashpot;
  ioReading.TakeData(ioCard, blankLinesCount); // a blank line stands where degrees of freedom might
  section.card = std::move(ioCard);
  const CardRecord& card = section.card;
  section.elementSet = card.Get("ELSET");
  section.material = card.Get("MATERIAL");
  section.orientation = card.Get("ORIENTATION");
  section.profile = section.kind == SectionKind::Fluid ? card.Get("TYPE") : card.Get("SECTION");
  section.value = card.Number(blankLinesCount ? 1 : 0, 0);
  if (card.Has("COMPOSITE"))
    FillLayers(section);
  if (section.elementSet.empty())
    ioReading.Report(Severity::Error, card.where, "the section names no element set (ELSET=).");
}

void ReadAmplitude(Reading& ioReading, CardRecord& ioCard)
{
  ReportNoName(ioReading, ioCard);
  Amplitude amplitude;
  amplitude.name = ioCard.Get("NAME");
  DataLine line;
  Column<double> numbers;
  while (ioReading.TakeFields(line))
    for (const std::string& text : line.fields)
    {
      double value = 0.;
      if (!text.empty() && !ParseReal(text, value))
        ioReading.Report(Severity::Error, {ioReading.Here().file, line.line},
                         fmt::format("\"{}\" is no number; 0 is taken.", text));
      numbers.push_back(value);
    }
  for (std::size_t at = 0; at + 1 < numbers.size(); at += 2)
  {
    amplitude.times.push_back(numbers[at]);
    amplitude.values.push_back(numbers[at + 1]);
  }
  if (numbers.size() % 2 != 0)
    ioReading.Report(Severity::Error, ioCard.where, "the table ends with a time that has no value.");
  amplitude.card = std::move(ioCard);
  ioReading.model.amplitudes.push_back(std::move(amplitude));
}

void ReadOrientation(Reading& ioReading, CardRecord& ioCard)
{
  ReportNoName(ioReading, ioCard);
  LocalAxes& axes = ioReading.model.orientations.emplace_back();
  ioReading.TakeNumbers(ioCard);
  axes.card = std::move(ioCard);
  axes.name = axes.card.Get("NAME");
  axes.cylindrical = axes.card.Get("SYSTEM").starts_with('C');
  FillAxes(ioReading, axes);
}

void ReadTransform(Reading& ioReading, CardRecord& ioCard)
{
  LocalAxes& axes = ioReading.model.transforms.emplace_back();
  ioReading.TakeNumbers(ioCard);
  axes.card = std::move(ioCard);
  axes.nodeSet = axes.card.Get("NSET");
  axes.cylindrical = axes.card.Get("TYPE").starts_with('C');
  FillAxes(ioReading, axes);
}

} // namespace voxbench::inp
