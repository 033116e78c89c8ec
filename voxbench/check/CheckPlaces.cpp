// SPDX-License-Identifier: MIT
// Where sets and entities may stand: every answer is the feature's own, through the interfaces that its adaptors carry.
#include "AnalysisInterfaces/VOXISamAnalysisEntityInit.h"
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "AnalysisInterfaces/VOXISamAnalysisSetInit.h"
#include "AnalysisInterfaces/VOXISamMeshSubscriber.h"
#include "voxbench/check/Check.h"

#include <algorithm>
#include <cstdlib>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

using voxhost::Feature;

constexpr auto kNoQuality = static_cast<SAM_Quality>(-1);

std::string WordFor(SAM_Quality iQuality)
{
  switch (iQuality)
  {
  case SAM_QualityInput:
    return "input";
  case SAM_QualityGroup:
    return "group";
  }
  return "";
}

//! Names of the physical types that may stand below a feature's: "GROUP, MESH (one at most)".
std::string AllowedBelow(const LoadedModel& iModel, const Feature& iHolder)
{
  const voxhost::ExplicitRules& rules = *iModel.Explicit().Rules();
  const voxhost::ExplicitRules::Type* const type = rules.Find(rules.NumberOf(iHolder.PhysicalType()));
  std::string allowed;
  for (const int child : type == nullptr ? std::vector<int>() : type->children)
    allowed += (allowed.empty() ? "" : ", ") + rules.NameOf(std::abs(child)) + (child < 0 ? " (one at most)" : "");
  return allowed.empty() ? "nothing" : allowed;
}

class PlaceChecker
{
public:
  PlaceChecker(LoadedModel& ioModel, CheckResult& ioResult) : _Model(ioModel), _Result(ioResult) {}

  void Walk(Feature& iFeature)
  {
    Feature* const father = iFeature.Father();
    if (father != nullptr)
    {
      CheckSet(iFeature, *father);
      CheckEntity(iFeature, *father);
    }
    for (Feature* const child : LoadedModel::ChildrenOf(iFeature))
      Walk(*child);
  }

private:
  void Add(Rule iRule, const Feature& iFeature, std::string iFound, std::string iAllowed)
  {
    _Result.findings.push_back({iRule, LoadedModel::PathOf(iFeature), std::move(iFound), std::move(iAllowed)});
  }

  void CheckSet(Feature& iSet, Feature& iParent)
  {
    const VOXISamAnalysisSetInit_var spInit(static_cast<VOXBaseUnknown*>(&iSet));
    if (!spInit)
      return;
    SAM_Quality quality = kNoQuality;
    const bool mayStand = spInit->CheckAnalysisParent(static_cast<VOXBaseUnknown*>(&iParent), quality) != 0;
    _Result.sets.push_back({LoadedModel::DisplayName(iSet), mayStand, WordFor(quality)});
    if (!mayStand)
      Add(Rule::ParentNotAllowed, iSet, fmt::format("a {} under a {}", iSet.PhysicalType(), iParent.PhysicalType()),
          AllowedBelow(_Model, iParent));
  }

  void CheckEntity(Feature& iEntity, Feature& iSet)
  {
    const VOXISamAnalysisEntityInit_var spInit(static_cast<VOXBaseUnknown*>(&iEntity));
    const VOXISamAnalysisSet_var spSet(static_cast<VOXBaseUnknown*>(&iSet));
    if (!spInit || !spSet)
      return; // a part of an entity stands in no set
    ++_Result.entities;
    if (spInit->CheckAnalysisSet(spSet) == 0)
      Add(Rule::SetNotAllowed, iEntity, fmt::format("a {} in a {}", iEntity.PhysicalType(), iSet.PhysicalType()),
          AllowedBelow(_Model, iSet));
    CheckSetType(*spInit, iEntity, iSet);
    CheckSubscription(iEntity, iSet);
  }

  void CheckSetType(VOXISamAnalysisEntityInit& iInit, const Feature& iEntity, const Feature& iSet)
  {
    VOXUnicodeString setType;
    const bool isKnown = iInit.GetAnalysisSetType(setType) != 0;
    if (isKnown && !iSet.Type().IsSubTypeOf(static_cast<const char*>(setType)))
      Add(Rule::SetOfWrongType, iEntity, fmt::format("a {} in a {}", iEntity.Type().Name(), iSet.Type().Name()),
          static_cast<const char*>(setType));
    if (iInit.AggregateInSet() == 0)
      return;
    ++_Result.aggregated;
    if (!iSet.Type().IsSubTypeOf("SensorSet"))
      Add(Rule::SensorElsewhere, iEntity, "a sensor in a " + iSet.Type().Name(), "SensorSet");
  }

  void CheckSubscription(Feature& iEntity, const Feature& iSet)
  {
    const VOXISamMeshSubscriber_var spSubscriber(static_cast<VOXBaseUnknown*>(&iEntity));
    if (!spSubscriber)
      return;
    if (spSubscriber->CheckIfNeedToSubScribe() != 0)
      ++_Result.subscribing;
    else if (iEntity.IsSubscribed())
      Add(Rule::SubscriptionNeedless, iEntity, "subscribed, and held by a " + iSet.Type().Name(), "no subscription");
  }

  LoadedModel& _Model;
  CheckResult& _Result;
};

} // namespace

void CheckPlaces(LoadedModel& ioModel, CheckResult& ioResult)
{
  PlaceChecker(ioModel, ioResult).Walk(ioModel.Root());
}

CheckResult Check(LoadedModel& ioModel)
{
  CheckResult result;
  CheckPlaces(ioModel, result);
  CheckUses(ioModel, result);
  std::stable_sort(result.findings.begin(), result.findings.end(),
                   [](const Finding& iLeft, const Finding& iRight) { return iLeft.rule < iRight.rule; });
  return result;
}

} // namespace voxbench
