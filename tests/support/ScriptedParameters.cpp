// SPDX-License-Identifier: MIT
#include "tests/support/ScriptedParameters.h"

namespace voxtest
{

std::string ScriptedListedComponent::NameOf(const VOXBaseUnknown* iObject) const
{
  if (iObject == nullptr)
    return "null";
  const auto name = Told().names.find(iObject->GetImpl());
  return name == Told().names.end() ? "?" : name->second;
}

HRESULT ScriptedListedComponent::GetValue(VOXBaseUnknown_var& oValue, const VOXUnicodeString& iQualifier, int iValue,
                                          int iRow, int iLayer) const
{
  oValue = NULL_var;
  if (CallLog::Enter("VOXISamBasicComponent::GetValue", iQualifier.ConvertToChar(), iValue, iRow, iLayer))
    return E_FAIL;
  if (Told().whenAskedForValue)
    Told().whenAskedForValue();
  oValue = Told().value;
  return Told().valueResult;
}

HRESULT ScriptedListedComponent::CreateSubComponent(const VOXUnicodeString& iType, const VOXUnicodeString& iQualifier,
                                                    const VOXBaseUnknown_var& iKind)
{
  if (CallLog::Enter("VOXISamBasicComponent::CreateSubComponent", iType.ConvertToChar(), iQualifier.ConvertToChar(),
                     NameOf(iKind)))
    return E_FAIL;
  if (Told().whenCreated)
    Told().whenCreated();
  return Told().createResult;
}

HRESULT ScriptedListedComponent::ListSubComponents(VOXListValVOXBaseUnknown_var*& oComponents,
                                                   const VOXUnicodeString& iFilter) const
{
  if (CallLog::Enter("VOXISamBasicComponent::ListSubComponents", iFilter.ConvertToChar()))
    return E_FAIL;
  oComponents = Told().subComponents ? NewList(*Told().subComponents) : nullptr;
  if (Told().whenListed && oComponents != nullptr)
    Told().whenListed(*oComponents);
  return Told().listResult;
}

HRESULT ScriptedListedComponent::RemoveSubComponent(const VOXBaseUnknown_var& iComponent)
{
  if (CallLog::Enter("VOXISamBasicComponent::RemoveSubComponent", NameOf(iComponent)))
    return E_FAIL;
  if (Told().whenRemoved)
    Told().whenRemoved();
  return Told().removeResult;
}

VOXCke::Boolean ScriptedCkeType::IsAKindOfType(VOXCkeContext::TypeKind iKind) const
{
  const bool fails = CallLog::Enter("VOXICkeType::IsAKindOfType", static_cast<int>(iKind));
  return !fails && Told().kind == iKind ? VOXCke::True : VOXCke::False;
}

VOXListValVOXUnicodeString ScriptedEnumere::GetValueList(int iMode) const
{
  VOXListValVOXUnicodeString list;
  if (CallLog::Enter("VOXIEnumere::GetValueList", iMode))
    return list;
  for (const std::string& entry : Told().entries)
    list.Append(entry.c_str());
  return list;
}

VOXUnicodeString ScriptedCkeInst::AsString() const
{
  return CallLog::Enter("VOXICkeInst::AsString") ? VOXUnicodeString() : VOXUnicodeString(Told().text.c_str());
}

int ScriptedCkeInst::AsInteger() const
{
  return CallLog::Enter("VOXICkeInst::AsInteger") ? 0 : Told().integer;
}

VOXICkeInst_var ScriptedCkeParm::Value() const
{
  return CallLog::Enter("VOXICkeParm::Value") ? VOXICkeInst_var() : VOXICkeInst_var(Told().instance);
}

HRESULT ScriptedCkeParm::Valuate(int iValue)
{
  if (CallLog::Enter("VOXICkeParm::Valuate", iValue))
    return E_FAIL;
  if (SUCCEEDED(Told().valuateResult) && Told().instance != nullptr)
  {
    ScriptedCkeInst::ScriptOf(Told().instance).integer = iValue;
    ScriptedCkeInst::ScriptOf(Told().instance).text = "entry " + std::to_string(iValue);
  }
  return Told().valuateResult;
}

} // namespace voxtest
