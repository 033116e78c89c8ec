// SPDX-License-Identifier: MIT
#pragma once

#include "VOXSamToolsForExplicitation.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "tests/adaptors/TagOf.h"
#include "tests/support/Bench.h"
#include "tests/support/ScriptedAnalysis.h"
#include "tests/support/ScriptedAttributes.h"
#include "tests/support/ScriptedInterfaces.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace voxtest
{

using Tags = std::vector<int>;

//! An axis set whose object in the model holds three axes: A, which the entity `axisFeature` of the set made, and B and C,
//! which nobody made. The set knows a factory that makes `made`, and has a father.
class AxisSetWorld
{
public:
  AxisSetWorld()
      : set(_Bench.Component<ScriptedAnalysisSet, ScriptedSpecObject, ScriptedExplicit, ScriptedAttrAccess>()),
        axisFeature(_Bench.Component<ScriptedSpecObject, ScriptedExplicit>()),
        factory(_Bench.Component<ScriptedModelFactory>()),
        father(_Bench.Component<ScriptedSpecObject>()),
        made(_Bench.Component<ScriptedSpecObject, ScriptedExplicit, ScriptedAttrAccess>()),
        existing(_Bench.Component<ScriptedSpecObject, ScriptedExplicit, ScriptedAttrAccess>()),
        sonsKey(Key("SonsList")),
        tagKey(Key("ExplicitTag")),
        setObject(model.Create(NULL_exp, "AXIS_SET", "axes")),
        a(model.Create(setObject, "AXIS", "A")),
        b(model.Create(setObject, "AXIS", "B")),
        c(model.Create(setObject, "AXIS", "C")),
        given(model.Create(NULL_exp, "AXIS", "given"))
  {
    model.GetGlobalRefFrame(frame);
    ExplicitOf(set).model = &model;
    ExplicitOf(set).parent = setObject;
    SpecOf(set).modelFactory = factory;
    SpecOf(set).father = father;
    SetScript().members = {axisFeature};
    ExplicitOf(axisFeature).tags = {TagOf(a)};
    Factory().entity = made;
    Factory().fatherNames = {{father, "the father"}};
    AccessOf(set).keys = {{"SonsList", sonsKey}};
    AccessOf(made).keys = {{"ExplicitTag", tagKey}};
    AccessOf(existing).keys = {{"ExplicitTag", tagKey}};
  }

  static ExplicitScript& ExplicitOf(const VOXBaseUnknown* iObject) { return ScriptedExplicit::ScriptOf(iObject); }
  static SpecObjectScript& SpecOf(const VOXBaseUnknown* iObject) { return ScriptedSpecObject::ScriptOf(iObject); }
  static AttrAccessScript& AccessOf(const VOXBaseUnknown* iObject) { return ScriptedAttrAccess::ScriptOf(iObject); }
  AnalysisSetScript& SetScript() const { return ScriptedAnalysisSet::ScriptOf(set); }
  ModelFactoryScript& Factory() const { return ScriptedModelFactory::ScriptOf(factory); }

  //! Gives the set its entity of implicit axes, with these tags.
  void LetItExist(Tags iTags)
  {
    SetScript().membersByName["AllImplicitAxis"] = existing;
    ExplicitOf(existing).tags = std::move(iTags);
  }

  HRESULT Log() const { return Log(given); }
  HRESULT Log(const VOXAnalysisExplicitAxis& iAxis) const
  {
    const VOXISamAnalysisSet_var spSet(set);
    return VOXSamToolsForExplicitation::LogImplicitAxis(spSet, iAxis);
  }

  //! The tags that are written on the new, or on the existing entity; none written is a failure of the test.
  Tags Written() const { return Written(made); }
  Tags WrittenOnExisting() const { return Written(existing); }
  bool IsWritten() const { return AccessOf(made).written || AccessOf(existing).written; }

  Bench& MoreComponents() { return _Bench; }

private:
  static Tags Written(const VOXBaseUnknown* iEntity)
  {
    EXPECT_TRUE(AccessOf(iEntity).written.has_value()) << "nothing was written";
    return AccessOf(iEntity).written.value_or(Tags());
  }

  VOXBaseUnknown* Key(const char* iName)
  {
    VOXBaseUnknown* const key = _Bench.Component<ScriptedAttrKey>();
    ScriptedAttrKey::ScriptOf(key).name = iName;
    return key;
  }

  Bench _Bench;

public:
  VOXBaseUnknown* const set;
  VOXBaseUnknown* const axisFeature;
  VOXBaseUnknown* const factory;
  VOXBaseUnknown* const father;
  VOXBaseUnknown* const made;
  VOXBaseUnknown* const existing;
  VOXBaseUnknown* const sonsKey;
  VOXBaseUnknown* const tagKey;
  voxhost::ExplicitModel model;
  VOXAnalysisExplicitEntity setObject;
  VOXAnalysisExplicitAxis a;
  VOXAnalysisExplicitAxis b;
  VOXAnalysisExplicitAxis c;
  VOXAnalysisExplicitAxis given;
  VOXAnalysisExplicitAxis frame;
};

} // namespace voxtest
