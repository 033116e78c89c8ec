// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXISpecObject.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "tests/adaptors/Face.h"
#include "tests/support/ScriptedAnalysis.h"
#include "tests/support/ScriptedInterfaces.h"

#include <memory>

namespace voxtest
{

//! Rules in which a HOLDER takes a CHILD, and at most one RARE; an EMPTY takes nothing; and sets of imported things.
inline std::shared_ptr<const voxhost::ExplicitRules> PlacementRules()
{
  static const std::vector<voxhost::PhysicalTypeRule> table = {
      {"CHILD", VOXSamValueEntity, {}},
      {"RARE", VOXSamValueEntity, {}},
      {"STRANGER", VOXSamValueEntity, {}},
      {"HOLDER", VOXSamValueOtherSet, {"FIRST", "CHILD", "-RARE", "IMPORTED_LOAD", "GENERIC_ENTITY", "LAST"}},
      {"FIRST", VOXSamValueEntity, {}},
      {"LAST", VOXSamValueEntity, {}},
      {"EMPTY", VOXSamValueOtherSet, {}},
      {"GENERIC_SET", VOXSamValueOtherSet, {"CHILD"}},
      {"MATERIALS", VOXSamValueMaterialSet, {}},
      {"AXES", VOXSamValueAxisSet, {}},
      {"PROPERTIES", VOXSamValuePropertySet, {}},
      {"RESTRAINTS", VOXSamValueRestraintSet, {}},
      {"LOADS", VOXSamValueLoadSet, {"CHILD"}},
      {"MASSES", VOXSamValueMassSet, {}},
  };
  static const auto rules = std::make_shared<const voxhost::ExplicitRules>(table);
  return rules;
}

//! A member that carries the adaptor under test, and a holder that it is to go into, each of a physical type.
template <class Adaptor>
class PlacementWorld
{
public:
  PlacementWorld()
      : model(PlacementRules()),
        member(_Bench.Component<Adaptor, ScriptedExplicit, ScriptedSpecObject>()),
        holder(_Bench.Component<ScriptedAnalysisSet, ScriptedExplicit>())
  {
    Place("CHILD", "HOLDER");
    ScriptedExplicit::ScriptOf(holder).model = &model;
  }

  void Place(const char* iMemberType, const char* iHolderType)
  {
    ScriptedExplicit::ScriptOf(member).physicalType = iMemberType;
    ScriptedExplicit::ScriptOf(holder).physicalType = iHolderType;
  }

  SpecObjectScript& Spec() const { return ScriptedSpecObject::ScriptOf(member); }
  VOXHandle<typename Adaptor::Carries> Tested() const { return VOXHandle<typename Adaptor::Carries>(member); }
  VOXISamAnalysisSet_var Set() const { return VOXISamAnalysisSet_var(holder); }

  voxhost::ExplicitModel model;
  Bench& MoreComponents() { return _Bench; }

private:
  Bench _Bench;

public:
  VOXBaseUnknown* const member;
  VOXBaseUnknown* const holder;
};

} // namespace voxtest
