// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/Feature.h"

#include <string>
#include <vector>

namespace voxbench
{

//! The values of a feature before another instance takes its place, to see afterwards which of them went over.
class CarriedValues
{
public:
  explicit CarriedValues(const voxhost::Feature& iFeature);

  struct Lost
  {
    std::string attribute;
    std::string reason; //!< a sentence
  };

  //! Attributes that had a value, local or inherited, and do not have it in the other instance; "Alias" is looked at as
  //! any other.
  std::vector<Lost> LostIn(const voxhost::Feature& iOther) const;

private:
  struct Kept
  {
    std::string attribute;
    int type;
    int elementType;
    bool isLocal;
    voxhost::Value value;
    std::vector<const voxhost::Feature*> features; //!< compared, never looked into: some may be gone
  };
  static Kept Keep(const voxhost::Feature& iFeature, int iAttribute);
  static std::string ReasonFor(const Kept& iKept, const voxhost::Feature& iOther);

  std::vector<Kept> _Kept;
};

} // namespace voxbench
