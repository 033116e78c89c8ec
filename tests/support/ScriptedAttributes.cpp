// SPDX-License-Identifier: MIT
#include "tests/support/ScriptedAttributes.h"

namespace voxtest
{
namespace
{

std::string NameOf(const VOXISpecAttrKey* iKey)
{
  return iKey == nullptr ? "no key" : iKey->GetName().ConvertToChar();
}

} // namespace

VOXISpecAttrKey* ScriptedAttrAccess::GetAttrKey(const VOXUnicodeString& iName) const
{
  if (CallLog::Enter("VOXISpecAttrAccess::GetAttrKey", iName.ConvertToChar()))
    return nullptr;
  const auto found = Told().keys.find(iName.ConvertToChar());
  const VOXISpecAttrKey_var spKey(found == Told().keys.end() ? nullptr : found->second);
  if (!!spKey)
    spKey->AddRef();
  return spKey;
}

HRESULT ScriptedAttrAccess::Reset(const VOXISpecAttrKey* iKey)
{
  return CallLog::Enter("VOXISpecAttrAccess::Reset", NameOf(iKey)) ? E_FAIL : Told().resetResult;
}

HRESULT ScriptedAttrAccess::SetIntegerList(const VOXISpecAttrKey* iKey, const VOXRawCollint& iValues)
{
  if (CallLog::Enter("VOXISpecAttrAccess::SetIntegerList", NameOf(iKey)))
    return E_FAIL;
  Told().written.emplace();
  for (int i = 1; i <= iValues.Size(); ++i)
    Told().written->push_back(iValues[i]);
  return Told().writeResult;
}

VOXBaseUnknown* ScriptedModelFactory::CreateEntity(const VOXUnicodeString& iName, const VOXUnicodeString& iType,
                                                   VOXBaseUnknown* iFather)
{
  const auto father = Told().fatherNames.find(iFather);
  const std::string fatherName = father == Told().fatherNames.end() ? "?" : father->second;
  if (CallLog::Enter("VOXISamAnalysisModelFactory::CreateEntity", iName.ConvertToChar(), iType.ConvertToChar(),
                     iFather == nullptr ? "no father" : fatherName) ||
      Told().entity == nullptr)
    return nullptr;
  Told().entity->AddRef();
  return Told().entity;
}

int ScriptedContainer::ListMembers(const char* iInterfaceName, _SEQUENCE_VOXBaseUnknown_ptr& oMembers) const
{
  oMembers.Empty();
  if (CallLog::Enter("VOXIContainer::ListMembers", iInterfaceName))
    return 0;
  for (VOXBaseUnknown* const member : Told().members)
  {
    if (member != nullptr)
      member->AddRef();
    oMembers.Append(member);
  }
  if (Told().whenListed)
    Told().whenListed(oMembers);
  return Told().count.value_or(oMembers.Length());
}

} // namespace voxtest
