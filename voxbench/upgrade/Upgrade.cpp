// SPDX-License-Identifier: MIT
#include "voxbench/upgrade/Upgrade.h"
#include "AnalysisInterfaces/VOXISamUpgradeContainer.h"
#include "host/FeatureModeler/Restoration.h"
#include "voxbench/features/FeatureUpgrade.h"
#include "voxbench/upgrade/CarriedValues.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>

namespace voxbench
{
namespace
{

using voxhost::Feature;

constexpr std::size_t kReportedEach = 1024;

const VOXBaseUnknown* FaceOf(const Feature& iFeature)
{
  return static_cast<const VOXBaseUnknown*>(&iFeature);
}

Decision About(Decision::Kind iKind, const Feature& iFeature)
{
  return {iKind, LoadedModel::PathOf(iFeature), iFeature.Type().Name()};
}

//! Components by name, each with the number of them.
std::map<std::string, std::size_t> NamesIn(const Feature& iFeature, const char* iAttribute)
{
  std::map<std::string, std::size_t> names;
  for (const Feature* const component : iFeature.Features(iAttribute))
    ++names[component->Name().ConvertToChar()];
  return names;
}

//! A decision for each name of which there are more than before.
void NoteAdded(Decision::Kind iKind, const Feature& iFeature, const char* iAttribute,
               const std::map<std::string, std::size_t>& iBefore, Decisions& ioDecisions)
{
  for (const auto& [name, count] : NamesIn(iFeature, iAttribute))
  {
    const auto before = iBefore.find(name);
    const std::size_t added = count - (before == iBefore.end() ? 0 : std::min(before->second, count));
    if (added == 0)
      continue;
    Decision decision = About(iKind, iFeature);
    decision.what = name;
    decision.count = added;
    ioDecisions.push_back(std::move(decision));
  }
}

class Upgrading
{
public:
  Upgrading(LoadedModel& ioModel, const UpgradeProgress& iProgress)
      : _Document(ioModel.Document()),
        _Progress(iProgress)
  {
  }

  Decisions Run()
  {
    Each([this](Feature& iFeature) { Reroute(iFeature); });
    Each([this](Feature& iFeature) { AddComponents(iFeature); });
    Each([this](Feature& iFeature) { AddLayers(iFeature); });
    if (!_Decisions.empty())
      _Document.UpdateAll();
    return std::move(_Decisions);
  }

private:
  //! Every feature that there is before the pass, by identifier; those that go meanwhile are left out.
  template <class Work>
  void Each(Work iWork)
  {
    std::vector<std::uint32_t> identifiers;
    for (const Feature* const feature : _Document.AllFeatures())
      identifiers.push_back(feature->Identifier());
    const std::uint64_t total = kPasses * identifiers.size();
    for (std::size_t place = 0; place < identifiers.size(); ++place)
    {
      if (Feature* const feature = _Document.FindFeature(identifiers[place]))
        iWork(*feature);
      if (place % kReportedEach == 0 && _Progress)
        _Progress(_Pass * identifiers.size() + place, total);
    }
    ++_Pass;
  }

  void Reroute(Feature& iFeature)
  {
    const std::string replacement = ReplacementOf(iFeature);
    if (replacement.empty())
      return;
    const VOXISamUpgradeContainer_var spUpgrade(iFeature.OwningContainer());
    Decision decision = About(Decision::Kind::kReroute, iFeature);
    decision.what = replacement;
    const CarriedValues values(iFeature);
    const std::uint32_t last = voxhost::Restoration::LastIdentifier(_Document);
    if (!spUpgrade || spUpgrade->UpgradeObject(&iFeature) != S_OK)
      return; // it is found stuck afterwards
    _Decisions.push_back(decision);
    for (const Feature* const made : MadeSince(_Document, last))
      if (made->Type().Name() == replacement)
        NoteLost(values.LostIn(*made), decision);
  }

  void NoteLost(const std::vector<CarriedValues::Lost>& iLost, Decision iDecision)
  {
    iDecision.kind = Decision::Kind::kSkip;
    for (const CarriedValues::Lost& lost : iLost)
    {
      iDecision.what = lost.attribute;
      iDecision.reason = lost.reason;
      _Decisions.push_back(iDecision);
    }
  }

  void AddComponents(Feature& iFeature)
  {
    const VOXISamFeatureUpgrade_var spUpgrade(FaceOf(iFeature));
    if (!spUpgrade || !spUpgrade->NeedToUpgrade())
      return;
    const auto before = NamesIn(iFeature, kSons);
    spUpgrade->Upgrade();
    NoteAdded(Decision::Kind::kAdd, iFeature, kSons, before, _Decisions);
  }

  void AddLayers(Feature& iFeature)
  {
    const VOXISamBasicComponent_var spComponent(FaceOf(iFeature));
    const VOXISamFeatureUpgrade_var spUpgrade(FaceOf(iFeature));
    if (!spComponent || !spUpgrade || !spUpgrade->CheckMultiLayer(spComponent))
      return;
    const auto before = NamesIn(iFeature, kValues);
    const std::int32_t kinds = iFeature.Integer("ValuesDim");
    spUpgrade->UpgradeMultiLayer(spComponent);
    const std::size_t decided = _Decisions.size();
    NoteAdded(Decision::Kind::kLayers, iFeature, kValues, before, _Decisions);
    if (_Decisions.size() > decided || iFeature.Integer("ValuesDim") == kinds)
      return;
    Decision decision = About(Decision::Kind::kLayers, iFeature);
    decision.what = "ValuesDim";
    _Decisions.push_back(std::move(decision));
  }

  static constexpr const char* kSons = "SonsList";
  static constexpr const char* kValues = "Values";
  static constexpr std::uint64_t kPasses = 3;

  voxhost::Document& _Document;
  const UpgradeProgress& _Progress;
  Decisions _Decisions;
  std::uint64_t _Pass = 0;
};

std::string ReasonOfLayers(const Feature& iFeature)
{
  return fmt::format("its values do not fit: there are {}, for {} layers of {} kinds",
                     iFeature.Features("Values").size(), iFeature.Integer("Layers", 1),
                     iFeature.Integer("ValuesDim", 1));
}

//! @return why a feature needs an upgrade; "" when it does not.
std::string ReasonFor(const Feature& iFeature)
{
  if (const std::string replacement = ReplacementOf(iFeature); !replacement.empty())
    return fmt::format("no instance of {} takes its place", replacement);
  const VOXISamFeatureUpgrade_var spUpgrade(FaceOf(iFeature));
  if (!spUpgrade)
    return "";
  if (spUpgrade->NeedToUpgrade())
    return "it lacks a component that its start-up has";
  const VOXISamBasicComponent_var spComponent(FaceOf(iFeature));
  return !!spComponent && spUpgrade->CheckMultiLayer(spComponent) ? ReasonOfLayers(iFeature) : "";
}

} // namespace

std::array<std::size_t, Decision::kKinds> CountByKind(const Decisions& iDecisions)
{
  std::array<std::size_t, Decision::kKinds> counts{};
  for (const Decision& decision : iDecisions)
    ++counts[static_cast<std::size_t>(decision.kind)];
  return counts;
}

Decisions UpgradeFeatures(LoadedModel& ioModel, const UpgradeProgress& iProgress)
{
  return Upgrading(ioModel, iProgress).Run();
}

Decisions FindStuck(const LoadedModel& iModel, const UpgradeProgress& iProgress)
{
  Decisions stuck;
  const std::vector<Feature*> features = iModel.Document().AllFeatures();
  for (std::size_t place = 0; place < features.size(); ++place)
  {
    if (std::string reason = ReasonFor(*features[place]); !reason.empty())
    {
      stuck.push_back(About(Decision::Kind::kStuck, *features[place]));
      stuck.back().reason = std::move(reason);
    }
    if (place % kReportedEach == 0 && iProgress)
      iProgress(place, features.size());
  }
  return stuck;
}

} // namespace voxbench
