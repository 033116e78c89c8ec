// SPDX-License-Identifier: MIT
#pragma once

#include "host/FeatureModeler/Feature.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>

namespace voxhost
{

struct Feature::Rarities
{
  std::optional<std::string> identifyingString;
  std::optional<std::string> physicalType;
  VOXAnalysisExplicitModel* explicitModel = nullptr;
  VOXBaseUnknown_var componentValue;
};

//! The attributes that refer to a feature, each with the number of times that it does.
class ReferrerSet
{
public:
  void Add(Feature& iReferrer, int iAttribute) { ++_Counts[{&iReferrer, iAttribute}]; }

  void Remove(Feature& iReferrer, int iAttribute)
  {
    const auto found = _Counts.find({&iReferrer, iAttribute});
    if (found != _Counts.end() && --found->second == 0)
      _Counts.erase(found);
  }

  bool Empty() const { return _Counts.empty(); }

  template <class Visitor>
  void Visit(Visitor iVisitor) const
  {
    for (const auto& [referrer, count] : _Counts)
      iVisitor(*referrer.first, referrer.second, count);
  }

private:
  using Referrer = std::pair<Feature*, int>;
  struct Hash
  {
    std::size_t operator()(const Referrer& iReferrer) const
    {
      return std::hash<Feature*>()(iReferrer.first) * 31 + static_cast<std::size_t>(iReferrer.second);
    }
  };
  std::unordered_map<Referrer, int, Hash> _Counts;
};

} // namespace voxhost
