// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamSelectionList.h"
#include "VOXESamEnumManager.h"
#include "tests/support/Bench.h"
#include "tests/support/ScriptedInterfaces.h"
#include "tests/support/ScriptedParameters.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace voxtest
{

//! A sub-component that a selection needs: an entry of each of the three lists.
struct Needed
{
  std::string type;
  std::string second;
  VOXBaseUnknown* kind = nullptr;
};

//! What a feature type that derives from the manager answers.
struct EnumManagerScript
{
  std::vector<Needed> needed;
  std::vector<std::string> moreSeconds;   //!< entries of the second list alone
  std::vector<VOXBaseUnknown*> moreKinds; //!< entries of the third list alone
  HRESULT neededResult = S_OK;
  std::optional<std::string> selected; //!< none: what the base answers
  HRESULT selectedResult = S_OK;       //!< when something is selected
  std::function<void(bool iEmptyLists)> whenAskedForResult;
  bool losesComponent = false; //!< is taken off its component while it is asked what is needed
};

//! A feature type that derives from the manager and is told what to answer. It notes each question for its
//! implementation, and each query that goes to it instead.
class ScriptedEnumManager : public Scripted<VOXESamEnumManager, EnumManagerScript>
{
public:
  using VOXESamEnumManager::QueryInterface;
  HRESULT QueryInterface(const IID& iInterface, void** oFace) override
  {
    CallLog::Note("own query");
    return VOXESamEnumManager::QueryInterface(iInterface, oFace);
  }

  VOXBaseUnknown* GetImpl(int iMode = 0) const override
  {
    CallLog::Note("own implementation(" + std::to_string(iMode) + ")");
    return VOXESamEnumManager::GetImpl(iMode);
  }

  HRESULT GetSelected(VOXUnicodeString& oValue, int& oIndex) override
  {
    const EnumManagerScript& told = Script();
    CallLog::Note("GetSelected");
    if (!told.selected)
      return VOXESamEnumManager::GetSelected(oValue, oIndex);
    oValue = told.selected->c_str();
    return told.selectedResult;
  }

  HRESULT GetResult(const VOXUnicodeString& iValue, VOXListValVOXUnicodeString& oFeatureType,
                    VOXListValVOXUnicodeString& oSecond, VOXListValVOXBaseUnknown_var& oListOfVOXICkeType) override
  {
    const EnumManagerScript told = Script();
    CallLog::Note(std::string("GetResult(") + iValue.ConvertToChar() + ")");
    if (told.whenAskedForResult)
      told.whenAskedForResult(oFeatureType.Size() + oSecond.Size() + oListOfVOXICkeType.Size() == 0);
    for (const Needed& needed : told.needed)
    {
      oFeatureType.Append(needed.type.c_str());
      oSecond.Append(needed.second.c_str());
      oListOfVOXICkeType.Append(VOXBaseUnknown_var(needed.kind));
    }
    for (const std::string& second : told.moreSeconds)
      oSecond.Append(second.c_str());
    for (VOXBaseUnknown* const kind : told.moreKinds)
      oListOfVOXICkeType.Append(VOXBaseUnknown_var(kind));
    if (told.losesComponent)
      SetImpl(nullptr);
    return told.neededResult;
  }

private:
  // Without a note of the question for the implementation.
  const EnumManagerScript& Script() const { return ScriptOf(VOXESamEnumManager::GetImpl(0)); }
};

//! The same as the host reaches it.
class TiedEnumManager : public VOXTieSelectionList<ScriptedEnumManager>
{
public:
  using Carries = VOXISamSelectionList;
  static void ForgetScripts(const VOXBaseUnknown* iComponent) { ScriptedEnumManager::ForgetScripts(iComponent); }
};

//! The same for the manager itself.
class TiedPlainManager : public VOXTieSelectionList<VOXESamEnumManager>
{
public:
  using Carries = VOXISamSelectionList;
};

//! A list manager whose value is an enumeration of Solid, Shell, Beam with the second entry selected.
class SelectionWorld
{
public:
  SelectionWorld()
      : component(_Bench.Component<ScriptedListedComponent, TiedEnumManager>()),
        value(_Bench.Component<ScriptedCkeParm, ScriptedCkeType, ScriptedEnumere>()),
        instance(_Bench.Component<ScriptedCkeInst>())
  {
    Told().value = value;
    ScriptedEnumere::ScriptOf(value).entries = {"Solid", "Shell", "Beam"};
    ScriptedCkeParm::ScriptOf(value).instance = instance;
    ScriptedCkeInst::ScriptOf(instance) = {"Shell", 2};
  }

  VOXISamSelectionList_var Manager() const { return VOXISamSelectionList_var(component); }
  HRESULT Select(int iIndex) const { return Manager()->SetSelected(iIndex); }

  ListedComponentScript& Told() const { return ScriptedListedComponent::ScriptOf(component); }
  EnumManagerScript& Derived() const { return ScriptedEnumManager::ScriptOf(component); }
  CkeParmScript& Parameter() const { return ScriptedCkeParm::ScriptOf(value); }

  //! A further sub-component with that identifying string.
  VOXBaseUnknown* Add(const std::string& iString)
  {
    VOXBaseUnknown* const made = _Bench.Component<ScriptedSpecObject>();
    ScriptedSpecObject::ScriptOf(made).identifyingString = iString;
    return List(made, iString);
  }
  VOXBaseUnknown* AddNoFeature(const std::string& iName) { return List(_Bench.Component<ScriptedCkeInst>(), iName); }

  static std::string StringOf(const VOXBaseUnknown* iSubComponent)
  {
    return ScriptedSpecObject::ScriptOf(iSubComponent).identifyingString;
  }

  //! The kind of a value that a sub-component is created with.
  VOXBaseUnknown* Kind(const std::string& iName)
  {
    VOXBaseUnknown* const kind = _Bench.Component<ScriptedCkeType>();
    Told().names[kind] = iName;
    return kind;
  }

  //! What becomes of the sub-components when an entry is selected: "remove X" and "create X, second, kind".
  std::vector<std::string> Outcome(int iIndex) const
  {
    const VOXISamSelectionList_var spManager = Manager();
    const CallLog log;
    EXPECT_EQ(spManager->SetSelected(iIndex), S_OK);
    std::vector<std::string> outcome;
    for (const std::string& call :
         log.Only({"VOXISamBasicComponent::RemoveSub", "VOXISamBasicComponent::CreateSub", "VOXISpecObject::SetIdent"}))
      outcome.push_back(call.substr(call.find("::") + 2));
    return outcome;
  }

  Bench& MoreComponents() { return _Bench; }

private:
  VOXBaseUnknown* List(VOXBaseUnknown* iMade, const std::string& iName)
  {
    if (!Told().subComponents)
      Told().subComponents.emplace();
    Told().subComponents->push_back(iMade);
    Told().names[iMade] = iName;
    return iMade;
  }

  Bench _Bench;

public:
  VOXBaseUnknown* const component;
  VOXBaseUnknown* const value;
  VOXBaseUnknown* const instance;
};

} // namespace voxtest
