// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "KnowledgeParameters/VOXICke.h"
#include "tests/support/Scripted.h"
#include "tests/support/ScriptedAnalysis.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace voxtest
{

//! What a scripted VOXISamBasicComponent answers. Objects are borrowed and must outlive the script.
struct ListedComponentScript
{
  VOXBaseUnknown* value = nullptr;
  HRESULT valueResult = S_OK;           //!< a failure gives the value all the same
  std::optional<Objects> subComponents; //!< none: no list is given
  HRESULT listResult = S_OK;
  HRESULT createResult = S_OK;
  HRESULT removeResult = S_OK;
  std::map<const VOXBaseUnknown*, std::string> names; //!< of sub-components and kinds, for the record
  std::function<void()> whenAskedForValue;
  std::function<void()> whenCreated;
  std::function<void()> whenRemoved;
  std::function<void(VOXListValVOXBaseUnknown_var&)> whenListed;
};

class ScriptedListedComponent : public Scripted<VOXISamBasicComponent, ListedComponentScript>
{
public:
  HRESULT InitializeAfterCreation() override { return S_OK; }
  VOXUnicodeString GetName() const override { return {}; }
  HRESULT GetDimensions(int&, int&, int&, const VOXUnicodeString&) const override { return E_FAIL; }
  HRESULT GetValue(VOXBaseUnknown_var& oValue, const VOXUnicodeString& iQualifier, int iValue, int iRow,
                   int iLayer) const override;
  HRESULT CreateSubComponent(const VOXUnicodeString& iType, const VOXUnicodeString& iQualifier,
                             const VOXBaseUnknown_var& iKind) override;
  HRESULT ListSubComponents(VOXListValVOXBaseUnknown_var*& oComponents, const VOXUnicodeString& iFilter) const override;
  HRESULT RemoveSubComponent(const VOXBaseUnknown_var& iComponent) override;

private:
  std::string NameOf(const VOXBaseUnknown* iObject) const;
};

//! What a scripted knowledge parameter is: any of its interfaces can be put on a component.
struct CkeScript
{
  VOXCkeContext::TypeKind kind = VOXCkeContext::EnumType;
  std::vector<std::string> entries;
};

class ScriptedCkeType : public Scripted<VOXICkeType, CkeScript>
{
public:
  VOXCke::Boolean IsAKindOfType(VOXCkeContext::TypeKind iKind) const override;
};

//! The enumeration lists the entries of the script of ScriptedEnumere, not of the type.
class ScriptedEnumere : public Scripted<VOXIEnumere, CkeScript>
{
public:
  VOXListValVOXUnicodeString GetValueList(int iMode) const override;
};

struct CkeInstScript
{
  std::string text;
  int integer = 0;
};

class ScriptedCkeInst : public Scripted<VOXICkeInst, CkeInstScript>
{
public:
  VOXUnicodeString AsString() const override;
  int AsInteger() const override;
};

struct CkeParmScript
{
  VOXBaseUnknown* instance = nullptr; //!< a component that carries ScriptedCkeInst; null: no value
  HRESULT valuateResult = S_OK;       //!< a success stores the integer in the instance
};

class ScriptedCkeParm : public Scripted<VOXICkeParm, CkeParmScript>
{
public:
  VOXICkeInst_var Value() const override;
  HRESULT Valuate(int iValue) override;
};

} // namespace voxtest
