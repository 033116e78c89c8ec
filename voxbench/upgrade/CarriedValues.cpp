// SPDX-License-Identifier: MIT
#include "voxbench/upgrade/CarriedValues.h"

#include <fmt/format.h>

namespace voxbench
{

using voxhost::Feature;

CarriedValues::CarriedValues(const Feature& iFeature)
{
  for (std::size_t place = 0; place < iFeature.Type().Attributes().size(); ++place)
    if (const auto index = static_cast<int>(place); iFeature.Find(index) != nullptr)
      _Kept.push_back(Keep(iFeature, index));
}

CarriedValues::Kept CarriedValues::Keep(const Feature& iFeature, int iAttribute)
{
  const auto features = iFeature.Features(iAttribute);
  return {iFeature.Type().Attributes()[static_cast<std::size_t>(iAttribute)].name,
          iFeature.TypeOf(iAttribute),
          iFeature.ElementTypeOf(iAttribute),
          iFeature.IsLocal(iAttribute),
          iFeature.Get(iAttribute),
          {features.begin(), features.end()}};
}

std::vector<CarriedValues::Lost> CarriedValues::LostIn(const Feature& iOther) const
{
  std::vector<Lost> lost;
  for (const Kept& kept : _Kept)
    if (std::string reason = ReasonFor(kept, iOther); !reason.empty())
      lost.push_back({kept.attribute, std::move(reason)});
  return lost;
}

std::string CarriedValues::ReasonFor(const Kept& iKept, const Feature& iOther)
{
  const std::string type = iOther.Type().Name();
  const int index = iOther.IndexOf(iKept.attribute);
  if (index < 0)
    return fmt::format("{} has no such attribute", type);
  const Kept other = Keep(iOther, index);
  if (other.value == iKept.value && other.features == iKept.features)
    return "";
  if (other.type != iKept.type || other.elementType != iKept.elementType)
    return fmt::format("in {} it is of another type", type);
  if (!iKept.isLocal)
    return fmt::format("it was inherited, and {} gives another value", type);
  return "it did not go over";
}

} // namespace voxbench
