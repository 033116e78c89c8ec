// SPDX-License-Identifier: MIT
// The choices that features of a deck hold: what a section is, what a restraint does; and the numbers that go with them.
#include "AnalysisInterfaces/VOXISamSelectionList.h"
#include "voxbench/build/ModelBuilder.h"
#include "voxbench/features/SelectionLists.h"
#include "voxbench/features/TypeNames.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace voxbench
{
namespace
{

const char* EntryFor(const Section& iSection)
{
  switch (iSection.kind)
  {
  case SectionKind::Shell:
    return iSection.layers.empty() ? "Shell" : "Composite shell";
  case SectionKind::Membrane:
    return "Membrane";
  case SectionKind::Beam:
    return "Beam";
  case SectionKind::Spring:
    return "Spring";
  case SectionKind::Dashpot:
    return "Dashpot";
  case SectionKind::Gap:
    return "Gap";
  case SectionKind::Fluid:
    return "Fluid";
  case SectionKind::User:
    return "User";
  case SectionKind::Solid:
  case SectionKind::Mass:
    break;
  }
  return "Solid";
}

bool IsZero(double iValue)
{
  return iValue == 0.;
}

const char* EntryFor(const AppliedCard& iRestraint)
{
  if (std::any_of(iRestraint.parameters.begin(), iRestraint.parameters.end(),
                  [](const Parameter& iParameter) { return iParameter.key == "SUBMODEL"; }))
    return "Submodel";
  if (!iRestraint.amplitude.empty())
    return "Modulated";
  return std::all_of(iRestraint.values.begin(), iRestraint.values.end(), IsZero) ? "Fixed" : "Prescribed";
}

double OrZero(double iValue)
{
  return std::isnan(iValue) ? 0. : iValue;
}

} // namespace

void ModelBuilder::ChooseSectionKind(voxhost::Feature& ioProperty, const Section& iSection)
{
  const double first = OrZero(iSection.value);
  ComponentValues values{{kShellThicknessType, first},
                         {kBeamWidthType, first},
                         {kBeamHeightType, OrZero(iSection.card.Number(0, 1, 0.))},
                         {kSpringStiffnessType, first},
                         {kDashpotCoefficientType, first},
                         {kGapClearanceType, first}};
  if (iSection.layers.empty())
    values.push_back({kShellOffsetType, OrZero(iSection.card.Number(0, 1, 0.))});
  Choose(ioProperty, IndexOfEntry(SectionKinds(), EntryFor(iSection)), values);

  if (iSection.layers.empty() || ioProperty.Features("Kind").empty())
    return;
  // A component per layer, numbered from the bottom up; the choice made the first.
  voxhost::Feature& kind = *ioProperty.Features("Kind").front();
  for (voxhost::Feature* const component : kind.Features("SonsList"))
    if (component->Type().Name() == kShellThicknessType)
      component->SetIdentifyingString(kShellThicknessType + std::string(".1"));
  for (std::size_t layer = 1; layer < iSection.layers.size(); ++layer)
  {
    voxhost::Feature* const further = _Document.New(kShellThicknessType, kShellThicknessType);
    if (further == nullptr)
      continue;
    further->SetIdentifyingString(kShellThicknessType + ("." + std::to_string(layer + 1)));
    further->Set("Value", OrZero(iSection.layers[layer].thickness));
    kind.Add("SonsList", *further);
  }
}

//! Gives a layered shell the values of each layer, from the bottom up: one of each kind that its start-up has.
void ModelBuilder::FillPlies(voxhost::Feature& ioProperty, const Section& iSection)
{
  for (voxhost::Feature* const plies : ioProperty.Features("SonsList"))
  {
    if (plies->Type().Name() != kPliesType)
      continue;
    const auto ofFirstLayer = plies->Features("Values");
    const std::vector<voxhost::Feature*> kinds(ofFirstLayer.begin(), ofFirstLayer.end());
    plies->Set("ValuesDim", static_cast<std::int32_t>(kinds.size()));
    plies->Set("Layers", static_cast<std::int32_t>(iSection.layers.size()));
    for (std::size_t layer = 0; layer < iSection.layers.size(); ++layer)
      for (voxhost::Feature* const kind : kinds)
      {
        voxhost::Feature* const value = layer == 0 ? kind : _Document.New(*kind->StartUp(), kind->Name());
        if (value == nullptr)
          throw std::bad_alloc();
        if (layer > 0)
          plies->Add("Values", *value);
        if (value->Type().Name() == kPlyThicknessType)
          value->Set("Value", OrZero(iSection.layers[layer].thickness));
      }
  }
}

void ModelBuilder::ChooseRestraintKind(voxhost::Feature& ioRestraint, const AppliedCard& iCard)
{
  const auto value = std::find_if_not(iCard.values.begin(), iCard.values.end(), IsZero);
  const ComponentValues values{{kPrescribedValueType, value == iCard.values.end() ? 0. : *value},
                               {kModulationFactorType, 1.}};
  Choose(ioRestraint, IndexOfEntry(RestraintKinds(), EntryFor(iCard)), values);
}

//! Selects an entry as a panel of the host would, and gives the components that it made their values.
void ModelBuilder::Choose(voxhost::Feature& ioFeature, int iIndex, const ComponentValues& iValues)
{
  const auto kinds = ioFeature.Features("Kind");
  const VOXISamSelectionList_var spList(kinds.empty() ? nullptr : static_cast<VOXBaseUnknown*>(kinds.front()));
  if (!spList || FAILED(spList->SetSelected(iIndex)))
  {
    _Failure = "a choice of a property or a restraint cannot be made";
    return;
  }
  for (voxhost::Feature* const component : kinds.front()->Features("SonsList"))
    for (const auto& [name, value] : iValues)
      if (component->Type().Name() == name)
        component->Set("Value", value);
}

} // namespace voxbench
