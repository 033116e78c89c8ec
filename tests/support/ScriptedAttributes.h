// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamAnalysisModelFactory.h"
#include "FeatureModeler/VOXISpecAttrAccess.h"
#include "ObjectModeler/VOXSequence.h"
#include "tests/support/Scripted.h"
#include "tests/support/ScriptedAnalysis.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace voxtest
{

struct AttrKeyScript
{
  std::string name;
};

class ScriptedAttrKey : public Scripted<VOXISpecAttrKey, AttrKeyScript>
{
public:
  VOXUnicodeString GetName() const override { return Told().name.c_str(); }
  int GetType() const override { return VOXSpecInteger; }
  int GetElementType() const override { return 0; }
};

//! What a scripted VOXISpecAttrAccess answers: it knows keys, and keeps the last list of integers.
struct AttrAccessScript
{
  std::map<std::string, VOXBaseUnknown*> keys; //!< components that carry ScriptedAttrKey
  HRESULT resetResult = S_OK;
  HRESULT writeResult = S_OK;
  std::optional<std::vector<int>> written;
};

class ScriptedAttrAccess : public Scripted<VOXISpecAttrAccess, AttrAccessScript>
{
public:
  VOXISpecAttrKey* GetAttrKey(const VOXUnicodeString& iName) const override;
  HRESULT Reset(const VOXISpecAttrKey* iKey) override;
  HRESULT SetIntegerList(const VOXISpecAttrKey* iKey, const VOXRawCollint& iValues) override;

  VOXListValVOXISpecAttrKey_var* ListAttrKeys() const override { return nullptr; }
  VOXListValVOXBaseUnknown_var* ListSpecObjects(const VOXISpecAttrKey*, const char*) const override { return nullptr; }
  double GetDouble(const VOXISpecAttrKey*, int) const override { return 0.; }
  unsigned char GetBoolean(const VOXISpecAttrKey*, int) const override { return 0; }
  VOXUnicodeString GetString(const VOXISpecAttrKey*, int) const override { return {}; }
  std::int32_t GetInteger(const VOXISpecAttrKey*, int) const override { return 0; }
  VOXISpecObject* GetSpecObject(const VOXISpecAttrKey*, int) const override { return nullptr; }
  HRESULT SetDouble(const VOXISpecAttrKey*, double, int) override { return E_FAIL; }
  HRESULT SetBoolean(const VOXISpecAttrKey*, unsigned char, int) override { return E_FAIL; }
  HRESULT SetString(const VOXISpecAttrKey*, const VOXUnicodeString&, int) override { return E_FAIL; }
  HRESULT SetInteger(const VOXISpecAttrKey*, std::int32_t, int) override { return E_FAIL; }
  HRESULT PutInteger(const VOXISpecAttrKey*, std::int32_t, int) override { return E_FAIL; }
  HRESULT AddSpecObject(const VOXISpecAttrKey*, const VOXBaseUnknown_var&, VOXBaseUnknown*, bool, int) override
  {
    return E_FAIL;
  }
  HRESULT PlaceSpecObject(const VOXISpecAttrKey*, const VOXBaseUnknown_var&, int) override { return E_FAIL; }
  int GetListSize(const VOXISpecAttrKey*) const override { return 0; }
  int GetPosition(const VOXISpecAttrKey*, const VOXBaseUnknown_var&) const override { return 0; }
};

//! What a scripted VOXISamAnalysisModelFactory makes.
struct ModelFactoryScript
{
  VOXBaseUnknown* entity = nullptr;                         //!< handed out with one reference for the caller
  std::map<const VOXBaseUnknown*, std::string> fatherNames; //!< for the record
};

class ScriptedModelFactory : public Scripted<VOXISamAnalysisModelFactory, ModelFactoryScript>
{
public:
  VOXBaseUnknown* CreateEntity(const VOXUnicodeString& iName, const VOXUnicodeString& iType,
                               VOXBaseUnknown* iFather) override;
};

//! What a scripted VOXIContainer lists.
struct ContainerScript
{
  Objects members;          //!< one reference for the caller on each that is not null
  std::optional<int> count; //!< a number other than that of the members
  std::function<void(_SEQUENCE_VOXBaseUnknown_ptr&)> whenListed;
};

class ScriptedContainer : public Scripted<VOXIContainer, ContainerScript>
{
public:
  int ListMembers(const char* iInterfaceName, _SEQUENCE_VOXBaseUnknown_ptr& oMembers) const override;
};

} // namespace voxtest
