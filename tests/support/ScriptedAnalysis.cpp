// SPDX-License-Identifier: MIT
#include "tests/support/ScriptedAnalysis.h"

namespace voxtest
{

VOXListValVOXBaseUnknown_var* NewList(const Objects& iObjects)
{
  auto* const list = new VOXListValVOXBaseUnknown_var;
  for (VOXBaseUnknown* const object : iObjects)
    list->Append(VOXBaseUnknown_var(object));
  return list;
}

HRESULT ScriptedAnalysisEntity::GetAnalysisSet(VOXBaseUnknown_var& oSet) const
{
  if (CallLog::Enter("VOXISamAnalysisEntity::GetAnalysisSet") || Told().set == nullptr)
    return E_FAIL;
  oSet = Told().set;
  return S_OK;
}

unsigned char ScriptedAnalysisEntity::IsShownUnderItsSet() const
{
  return CallLog::Enter("VOXISamAnalysisEntity::IsShownUnderItsSet") ? 0 : Told().shownUnderItsSet;
}

HRESULT ScriptedAnalysisEntity::ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const
{
  oFathers = nullptr;
  if (CallLog::Enter("VOXISamAnalysisEntity::ListShownUnder") || !Told().shownUnder)
    return E_FAIL;
  oFathers = NewList(*Told().shownUnder);
  return S_OK;
}

HRESULT ScriptedAnalysisEntity::ListByRole(VOXListValVOXBaseUnknown_var*& oObjects, const VOXUnicodeString& iRole) const
{
  const std::string role = iRole.ConvertToChar();
  if (CallLog::Enter("VOXISamAnalysisEntity::ListByRole", role))
    return E_FAIL;
  const AnalysisEntityScript& told = Told();
  if (told.whenAskedForRole)
    told.whenAskedForRole(role);
  if (const auto found = told.roles.find(role); found != told.roles.end())
    oObjects = NewList(found->second);
  const auto result = told.roleResults.find(role);
  return result == told.roleResults.end() ? told.roleResult : result->second;
}

HRESULT ScriptedAnalysisSet::ListShownUnder(VOXListValVOXBaseUnknown_var*& oFathers) const
{
  oFathers = nullptr;
  if (CallLog::Enter("VOXISamAnalysisSet::ListShownUnder") || !Told().shownUnder)
    return E_FAIL;
  oFathers = NewList(*Told().shownUnder);
  return S_OK;
}

HRESULT ScriptedAnalysisSet::GetMemberByName(const VOXUnicodeString& iName, VOXISpecObject_var& oMember,
                                             int iMode) const
{
  oMember = NULL_var;
  if (CallLog::Enter("VOXISamAnalysisSet::GetMemberByName", iName.ConvertToChar(), iMode))
    return E_FAIL;
  const auto& members = Told().membersByName;
  if (const auto found = members.find(iName.ConvertToChar()); found != members.end())
    oMember = found->second;
  return S_OK;
}

HRESULT ScriptedAnalysisSet::ListMembers(const char* iInterfaceName, VOXListValVOXISpecObject_var& oMembers,
                                         int iMode) const
{
  if (CallLog::Enter("VOXISamAnalysisSet::ListMembers", iInterfaceName, iMode))
    return E_FAIL;
  for (VOXBaseUnknown* const member : Told().members)
    oMembers.Append(VOXISpecObject_var(member));
  if (Told().whenListed)
    Told().whenListed(oMembers);
  return S_OK;
}

HRESULT ScriptedAnalysisSupport::ListSupports(VOXListValVOXBaseUnknown_var& ioSupports, const CLSID& iType) const
{
  const bool isAll = iType == CLSID_VOXBaseUnknown;
  if (CallLog::Enter("VOXISamAnalysisSupport::ListSupports", isAll ? "all" : "some"))
    return E_FAIL;
  if (Told().whenAsked)
    Told().whenAsked(ioSupports);
  for (VOXBaseUnknown* const support : Told().supports)
    ioSupports.Append(VOXBaseUnknown_var(support));
  return Told().result;
}

HRESULT ScriptedMeshPartFilter::ListDesigners(VOXListValVOXISpecObject_var*& oDesigners) const
{
  if (CallLog::Enter("VOXISamMeshPartFilter::ListDesigners", oDesigners == nullptr ? "null" : "not null"))
    return E_FAIL;
  if (Told().whenAsked)
    Told().whenAsked();
  oDesigners = Told().designers ? new VOXListValVOXISpecObject_var : nullptr;
  for (VOXBaseUnknown* const designer : Told().designers.value_or(Objects()))
    oDesigners->Append(VOXISpecObject_var(designer));
  return Told().result;
}

void ScriptedViewManager::Show(VOXBaseUnknown* iObject, int iView)
{
  const ViewManagerScript& told = Told();
  const auto name = told.names.find(iObject);
  if (!CallLog::Enter("VOXISamViewManager::Show", name == told.names.end() ? "?" : name->second, iView) &&
      told.whenShown)
    told.whenShown(iObject, iView);
}

void ScriptedViewManager::UpdateShowStatus(int iMode)
{
  if (!CallLog::Enter("VOXISamViewManager::UpdateShowStatus", iMode) && Told().whenTold)
    Told().whenTold();
}

void ScriptedRedrawEvent::RequestRedraw()
{
  if (!CallLog::Enter("VOXIRedrawEvent::RequestRedraw") && Told().whenAsked)
    Told().whenAsked();
}

} // namespace voxtest
