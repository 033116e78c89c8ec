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
  std::map<std::string, Objects> lists; //!< by the name of the key, as the others; one that is not here gives no list
  std::map<std::string, std::vector<double>> numbers; //!< reals, booleans and integers: of a list, or the single one
  std::map<std::string, std::vector<std::string>> texts;
  std::optional<std::vector<VOXISpecAttrKey*>> listed; //!< what is listed of the keys, null for an empty handle
};

//! Every operation is recorded with the names of the keys; a write changes nothing.
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

  double GetDouble(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    return CallLog::Enter("VOXISpecAttrAccess::GetDouble", NameOf(iKey), iIndex) ? 0. : Number(iKey, iIndex);
  }
  unsigned char GetBoolean(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    const bool fails = CallLog::Enter("VOXISpecAttrAccess::GetBoolean", NameOf(iKey), iIndex);
    return static_cast<unsigned char>(fails ? 0. : Number(iKey, iIndex));
  }
  VOXUnicodeString GetString(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    const bool fails = CallLog::Enter("VOXISpecAttrAccess::GetString", NameOf(iKey), iIndex);
    return fails ? "" : Element(Told().texts, iKey, iIndex).c_str();
  }
  std::int32_t GetInteger(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    const bool fails = CallLog::Enter("VOXISpecAttrAccess::GetInteger", NameOf(iKey), iIndex);
    return static_cast<std::int32_t>(fails ? 0. : Number(iKey, iIndex));
  }
  VOXISpecObject* GetSpecObject(const VOXISpecAttrKey* iKey, int iIndex) const override
  {
    if (CallLog::Enter("VOXISpecAttrAccess::GetSpecObject", NameOf(iKey), iIndex))
      return nullptr;
    VOXISpecObject* const object = FaceOf<VOXISpecObject>(Element(Told().lists, iKey, iIndex));
    if (object != nullptr)
      object->AddRef();
    return object;
  }

  HRESULT SetDouble(const VOXISpecAttrKey* iKey, double iValue, int iIndex) override
  {
    return CallLog::Enter("VOXISpecAttrAccess::SetDouble", NameOf(iKey), iValue, iIndex) ? E_FAIL : S_OK;
  }
  HRESULT SetBoolean(const VOXISpecAttrKey* iKey, unsigned char iValue, int iIndex) override
  {
    const int value = iValue;
    return CallLog::Enter("VOXISpecAttrAccess::SetBoolean", NameOf(iKey), value, iIndex) ? E_FAIL : S_OK;
  }
  HRESULT SetString(const VOXISpecAttrKey* iKey, const VOXUnicodeString& iValue, int iIndex) override
  {
    const char* const value = iValue.ConvertToChar();
    return CallLog::Enter("VOXISpecAttrAccess::SetString", NameOf(iKey), value, iIndex) ? E_FAIL : S_OK;
  }
  HRESULT SetInteger(const VOXISpecAttrKey* iKey, std::int32_t iValue, int iIndex) override
  {
    return CallLog::Enter("VOXISpecAttrAccess::SetInteger", NameOf(iKey), iValue, iIndex) ? E_FAIL : S_OK;
  }
  HRESULT Reset(const VOXISpecAttrKey* iKey) override
  {
    return CallLog::Enter("VOXISpecAttrAccess::Reset", NameOf(iKey)) ? E_FAIL : S_OK;
  }
  int GetListSize(const VOXISpecAttrKey* iKey) const override
  {
    if (CallLog::Enter("VOXISpecAttrAccess::GetListSize", NameOf(iKey)))
      return 0;
    const FeatureAccessScript& told = Told();
    return SizeOf(told.numbers, iKey) + SizeOf(told.texts, iKey) + SizeOf(told.lists, iKey);
  }
  int GetPosition(const VOXISpecAttrKey* iKey, const VOXBaseUnknown_var& iObject) const override
  {
    const bool fails = CallLog::Enter("VOXISpecAttrAccess::GetPosition", NameOf(iKey), Labels::Of(iObject));
    const auto found = Told().lists.find(NameOf(iKey));
    for (std::size_t i = 0; !fails && found != Told().lists.end() && i < found->second.size(); ++i)
      if (found->second[i] != nullptr && found->second[i]->GetImpl() == iObject->GetImpl())
        return static_cast<int>(i) + 1;
    return 0;
  }
  HRESULT SetIntegerList(const VOXISpecAttrKey* iKey, const VOXRawCollint& iValues) override
  {
    return CallLog::Enter("VOXISpecAttrAccess::SetIntegerList", NameOf(iKey), iValues.Size()) ? E_FAIL : S_OK;
  }

private:
  static std::string NameOf(const VOXISpecAttrKey* iKey)
  {
    return iKey == nullptr ? "no key" : ScriptedFeatureKey::ScriptOf(iKey).name;
  }

  // An element of a list, from 1, or the single value at 0.
  template <class Value>
  static Value Element(const std::map<std::string, std::vector<Value>>& iValues, const VOXISpecAttrKey* iKey,
                       int iIndex)
  {
    const auto found = iValues.find(NameOf(iKey));
    const auto place = static_cast<std::size_t>(iIndex == 0 ? 0 : iIndex - 1);
    return found == iValues.end() || iIndex < 0 || place >= found->second.size() ? Value() : found->second[place];
  }
  template <class Value>
  static int SizeOf(const std::map<std::string, std::vector<Value>>& iValues, const VOXISpecAttrKey* iKey)
  {
    const auto found = iValues.find(NameOf(iKey));
    return found == iValues.end() ? 0 : static_cast<int>(found->second.size());
  }
  double Number(const VOXISpecAttrKey* iKey, int iIndex) const { return Element(Told().numbers, iKey, iIndex); }
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
