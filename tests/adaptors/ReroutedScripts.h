// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXSpecPointing.h"
#include "ObjectModeler/VOXIAlias.h"
#include "tests/adaptors/ScriptedFeatureAttributes.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace voxtest
{

//! Records queries, and components that are removed and handed over, and has pointings.
class PointedSpecObject : public ScriptedSpecObject
{
public:
  using Pointing = std::pair<VOXBaseUnknown*, VOXBaseUnknown*>; // access and key, either may be null; borrowed
  static inline std::vector<std::optional<Pointing>> pointings; // none: an empty entry

  using ScriptedSpecObject::QueryInterface;
  HRESULT QueryInterface(const IID& iInterface, void** oFace) override
  {
    CallLog::Note("query of " + Labels::Of(this));
    return ScriptedSpecObject::QueryInterface(iInterface, oFace);
  }
  VOXBaseUnknown* GetImpl(int iMode = 0) const override
  {
    if (iMode != 0)
      CallLog::Note("implementation with mode " + std::to_string(iMode));
    return ScriptedSpecObject::GetImpl(iMode);
  }
  HRESULT RemoveComponent(const VOXBaseUnknown_var& iComponent, int iMode) override
  {
    const bool fails = CallLog::Enter("VOXISpecObject::RemoveComponent", Labels::Of(iComponent), iMode);
    return fails ? E_FAIL : Told().removeResult;
  }
  HRESULT HandOver(const VOXUnicodeString& iFromAttribute, const VOXISpecObject_var& iNewFather,
                   const VOXUnicodeString& iToAttribute) override
  {
    const bool fails = CallLog::Enter("VOXISpecObject::HandOver", Labels::Of(this), iFromAttribute.ConvertToChar(),
                                      Labels::Of(iNewFather), iToAttribute.ConvertToChar());
    return fails ? E_FAIL : Told().handOverResult;
  }
  HRESULT GetPointings(VOXListPtrVOXSpecPointing& ioPointings) const override
  {
    if (CallLog::Enter("VOXISpecObject::GetPointings", Labels::Of(this), ioPointings.Size()))
      return E_FAIL;
    for (const auto& pointing : pointings)
      ioPointings.Append(!pointing ? nullptr
                                   : new VOXSpecPointing(VOXISpecAttrAccess_var(pointing->first),
                                                         VOXISpecAttrKey_var(pointing->second)));
    return S_OK;
  }
};

//! What a recording alias answers.
struct ReroutedAliasScript
{
  std::string alias;
};

//! Records whose alias is asked for or set.
class ReroutedAlias : public Scripted<VOXIAlias, ReroutedAliasScript>
{
public:
  VOXUnicodeString GetAlias() const override
  {
    return CallLog::Enter("VOXIAlias::GetAlias", Labels::Of(this)) ? "" : Told().alias.c_str();
  }
  HRESULT SetAlias(const VOXUnicodeString& iAlias) override
  {
    return CallLog::Enter("VOXIAlias::SetAlias", Labels::Of(this), iAlias.ConvertToChar()) ? E_FAIL : S_OK;
  }
};

} // namespace voxtest
