// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "ObjectModeler/VOXSequence.h"
#include "tests/support/ScriptedAnalysis.h"
#include "tests/support/ScriptedInterfaces.h"

#include <map>
#include <optional>
#include <string>

namespace voxtest
{

//! The face of a component that carries an interface, borrowed: it lives as long as the component.
template <class Interface>
Interface* FaceOf(const VOXBaseUnknown* iComponent)
{
  return VOXHandle<Interface>(iComponent).Get();
}

//! Names of scripted components, for the record of references.
class Labels
{
public:
  static std::string& Of(const VOXBaseUnknown* iFace)
  {
    static std::map<const VOXBaseUnknown*, std::string> labels;
    return labels[iFace->GetImpl()];
  }
};

//! A scripted face that records its references with the label of its component: "Release VOXISpecObject of start-up".
template <class ScriptedFace>
class Labelled : public ScriptedFace
{
public:
  unsigned long AddRef() override
  {
    CallLog::NoteReference("AddRef", Name().c_str());
    return VOXBaseUnknown::AddRef();
  }

  unsigned long Release() override
  {
    CallLog::NoteReference("Release", Name().c_str());
    return VOXBaseUnknown::Release();
  }

private:
  std::string Name() const { return std::string(ScriptedFace::Carries::ClassName()) + " of " + Labels::Of(this); }
};

struct FeatureKeyScript
{
  std::string name;
  int type = VOXSpecList;
  int elementType = VOXSpecComponent;
};

class ScriptedFeatureKey : public Scripted<VOXISpecAttrKey, FeatureKeyScript>
{
public:
  VOXUnicodeString GetName() const override
  {
    return CallLog::Enter("VOXISpecAttrKey::GetName") ? "" : Told().name.c_str();
  }
  int GetType() const override { return CallLog::Enter("VOXISpecAttrKey::GetType") ? 0 : Told().type; }
  int GetElementType() const override
  {
    return CallLog::Enter("VOXISpecAttrKey::GetElementType") ? 0 : Told().elementType;
  }
};

//! What a scripted VOXISpecAttrAccess answers. Keys and objects are borrowed and must outlive the script.
struct FeatureAccessScript
{
  std::map<std::string, VOXISpecAttrKey*> keys;
  std::map<std::string, Objects> lists;                //!< by the name of the key; one that is not here gives no list
  std::optional<std::vector<VOXISpecAttrKey*>> listed; //!< what is listed of the keys, null for an empty handle
};

//! Keys and lists of features; any other read gives nothing and any other write fails.
class ScriptedFeatureAccess : public Scripted<VOXISpecAttrAccess, FeatureAccessScript>
{
public:
  VOXISpecAttrKey* GetAttrKey(const VOXUnicodeString& iName) const override
  {
    if (CallLog::Enter("VOXISpecAttrAccess::GetAttrKey", iName.ConvertToChar()))
      return nullptr;
    const auto found = Told().keys.find(iName.ConvertToChar());
    if (found == Told().keys.end() || found->second == nullptr)
      return nullptr;
    found->second->AddRef();
    return found->second;
  }

  VOXListValVOXISpecAttrKey_var* ListAttrKeys() const override
  {
    if (CallLog::Enter("VOXISpecAttrAccess::ListAttrKeys") || !Told().listed)
      return nullptr;
    auto* const keys = new VOXListValVOXISpecAttrKey_var;
    for (VOXISpecAttrKey* const key : *Told().listed)
      keys->Append(VOXISpecAttrKey_var(key));
    return keys;
  }

  VOXListValVOXBaseUnknown_var* ListSpecObjects(const VOXISpecAttrKey* iKey, const char* iInterfaceName) const override
  {
    const std::string name = NameOf(iKey);
    const char* const asked = iInterfaceName == nullptr ? "null" : iInterfaceName;
    if (CallLog::Enter("VOXISpecAttrAccess::ListSpecObjects", name, asked) || Told().lists.count(name) == 0)
      return nullptr;
    return NewList(Told().lists[name]);
  }

  HRESULT PutInteger(const VOXISpecAttrKey* iKey, std::int32_t iValue, int iMode) override
  {
    return CallLog::Enter("VOXISpecAttrAccess::PutInteger", NameOf(iKey), iValue, iMode) ? E_FAIL : S_OK;
  }
  HRESULT AddSpecObject(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject, VOXBaseUnknown* iContext,
                        bool iShared, int iMode) override
  {
    const char* const context = iContext == nullptr ? "null" : "context";
    const bool fails =
        CallLog::Enter("VOXISpecAttrAccess::AddSpecObject", NameOf(iKey), Labels::Of(iObject), context, iShared, iMode);
    return fails ? E_FAIL : S_OK;
  }
  HRESULT PlaceSpecObject(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject, int iPosition) override
  {
    const bool fails =
        CallLog::Enter("VOXISpecAttrAccess::PlaceSpecObject", NameOf(iKey), Labels::Of(iObject), iPosition);
    return fails ? E_FAIL : S_OK;
  }

  double GetDouble(const VOXISpecAttrKey*, int) const override { return 0.; }
  unsigned char GetBoolean(const VOXISpecAttrKey*, int) const override { return 0; }
  VOXUnicodeString GetString(const VOXISpecAttrKey*, int) const override { return {}; }
  std::int32_t GetInteger(const VOXISpecAttrKey*, int) const override { return 0; }
  VOXISpecObject* GetSpecObject(const VOXISpecAttrKey*, int) const override { return nullptr; }
  HRESULT SetDouble(const VOXISpecAttrKey*, double, int) override { return E_FAIL; }
  HRESULT SetBoolean(const VOXISpecAttrKey*, unsigned char, int) override { return E_FAIL; }
  HRESULT SetString(const VOXISpecAttrKey*, const VOXUnicodeString&, int) override { return E_FAIL; }
  HRESULT SetInteger(const VOXISpecAttrKey*, std::int32_t, int) override { return E_FAIL; }
  HRESULT Reset(const VOXISpecAttrKey*) override { return E_FAIL; }
  int GetListSize(const VOXISpecAttrKey*) const override { return 0; }
  int GetPosition(const VOXISpecAttrKey*, const VOXBaseUnknown_var&) const override { return 0; }
  HRESULT SetIntegerList(const VOXISpecAttrKey*, const VOXRawCollint&) override { return E_FAIL; }

private:
  static std::string NameOf(const VOXISpecAttrKey* iKey)
  {
    return iKey == nullptr ? "no key" : ScriptedFeatureKey::ScriptOf(iKey).name;
  }
};

//! What a scripted VOXISamBasicComponent answers.
struct BasicComponentScript
{
  std::string name;
  int values = 0;
  int rows = 0;
  int layers = 0;
};

class ScriptedBasicComponent : public Scripted<VOXISamBasicComponent, BasicComponentScript>
{
public:
  HRESULT InitializeAfterCreation() override
  {
    return CallLog::Enter("VOXISamBasicComponent::InitializeAfterCreation") ? E_FAIL : S_OK;
  }
  VOXUnicodeString GetName() const override
  {
    return CallLog::Enter("VOXISamBasicComponent::GetName") ? "" : Told().name.c_str();
  }
  HRESULT GetDimensions(int& oValues, int& oRows, int& oLayers, const VOXUnicodeString& iQualifier) const override
  {
    if (CallLog::Enter("VOXISamBasicComponent::GetDimensions", iQualifier.ConvertToChar()))
      return E_FAIL;
    oValues = Told().values;
    oRows = Told().rows;
    oLayers = Told().layers;
    return S_OK;
  }
  HRESULT GetValue(VOXBaseUnknown_var&, const VOXUnicodeString&, int, int, int) const override { return E_FAIL; }
  HRESULT CreateSubComponent(const VOXUnicodeString&, const VOXUnicodeString&, const VOXBaseUnknown_var&) override
  {
    return E_FAIL;
  }
  HRESULT ListSubComponents(VOXListValVOXBaseUnknown_var*&, const VOXUnicodeString&) const override { return E_FAIL; }
  HRESULT RemoveSubComponent(const VOXBaseUnknown_var&) override { return E_FAIL; }
};

struct FeatureContainerScript
{
};

class ScriptedFeatureContainer : public Scripted<VOXIContainer, FeatureContainerScript>
{
public:
  int ListMembers(const char*, _SEQUENCE_VOXBaseUnknown_ptr&) const override { return 0; }
};

} // namespace voxtest
