// SPDX-License-Identifier: MIT
#include "tests/support/ScriptedInterfaces.h"

#include <algorithm>

namespace voxtest
{
namespace
{

//! One reference for the caller.
template <class T>
T* Counted(T* iObject)
{
  if (iObject != nullptr)
    iObject->AddRef();
  return iObject;
}

const char* EmptyOrNot(const VOXIDomain_var& iDomain)
{
  return !iDomain ? "whole document" : "a domain";
}

} // namespace

VOXString ScriptedExplicit::GetPhysicalTypeName() const
{
  return CallLog::Enter("VOXISamExplicit::GetPhysicalTypeName") ? VOXString() : VOXString(Told().physicalType.c_str());
}

VOXAnalysisExplicitModel* ScriptedExplicit::GetExplicitModel() const
{
  return CallLog::Enter("VOXISamExplicit::GetExplicitModel") ? nullptr : Told().model;
}

HRESULT ScriptedExplicit::GetExplicitParent(VOXAnalysisExplicitParent& oParent, unsigned char iMode) const
{
  if (CallLog::Enter("VOXISamExplicit::GetExplicitParent", static_cast<int>(iMode)))
    return E_FAIL;
  if (Told().whenAskedForParent)
    Told().whenAskedForParent();
  if (SUCCEEDED(Told().parentResult))
    oParent = Told().parent;
  return Told().parentResult;
}

HRESULT ScriptedExplicit::ListTags(VOXRawCollint& ioTags) const
{
  if (CallLog::Enter("VOXISamExplicit::ListTags"))
    return E_FAIL;
  if (Told().whenAskedForTags)
    Told().whenAskedForTags(ioTags);
  if (Told().replacesTags)
    ioTags.RemoveAll(0);
  for (const int tag : Told().tags)
    ioTags.Append(tag);
  return S_OK;
}

HRESULT ScriptedExplicit::ListParents(VOXAnalysisExplicitListUsr& ioParents) const
{
  if (CallLog::Enter("VOXISamExplicit::ListParents"))
    return E_FAIL;
  for (const VOXAnalysisExplicitParent& parent : Told().parents)
    if (FAILED(ioParents.Append(parent)))
      return E_FAIL;
  return S_OK;
}

unsigned char ScriptedExplicit::GetActivity() const
{
  return CallLog::Enter("VOXISamExplicit::GetActivity") ? 0 : Told().activity;
}

HRESULT ScriptedExplicit::SetExplicitState(int iState)
{
  return CallLog::Enter("VOXISamExplicit::SetExplicitState", iState) ? E_FAIL : S_OK;
}

int ScriptedSpecObject::IsSubTypeOf(const VOXUnicodeString& iType) const
{
  if (CallLog::Enter("VOXISpecObject::IsSubTypeOf", iType.ConvertToChar()))
    return 0;
  const auto isAsked = [&iType](const std::string& iOwn) { return iType == iOwn.c_str(); };
  const SpecObjectScript& told = Told();
  const bool isFurther = std::any_of(told.alsoOfTypes.begin(), told.alsoOfTypes.end(), isAsked);
  return isAsked(told.type) || isFurther ? 1 : 0;
}

unsigned char ScriptedSpecObject::IsUpToDate(const VOXIDomain_var& iDomain) const
{
  return CallLog::Enter("VOXISpecObject::IsUpToDate", EmptyOrNot(iDomain)) ? 0 : Told().upToDate;
}

HRESULT ScriptedSpecObject::Update(const VOXIDomain_var& iDomain)
{
  if (CallLog::Enter("VOXISpecObject::Update", EmptyOrNot(iDomain)))
    return E_FAIL;
  if (SUCCEEDED(Told().updateResult))
    Told().upToDate = 1;
  return Told().updateResult;
}

VOXISpecObject* ScriptedSpecObject::GetStartUp() const
{
  return CallLog::Enter("VOXISpecObject::GetStartUp") ? nullptr : Counted(Told().startUp);
}

HRESULT ScriptedSpecObject::GetContainer(VOXIContainer_var& oContainer) const
{
  if (CallLog::Enter("VOXISpecObject::GetContainer") || Told().container == nullptr)
    return E_FAIL;
  oContainer = VOXIContainer_var(Told().container);
  return S_OK;
}

HRESULT ScriptedSpecObject::GetFather(VOXBaseUnknown_var& oFather) const
{
  if (CallLog::Enter("VOXISpecObject::GetFather") || Told().father == nullptr)
    return E_FAIL;
  oFather = Told().father;
  return S_OK;
}

VOXBaseUnknown* ScriptedSpecObject::GetFatherObject() const
{
  return CallLog::Enter("VOXISpecObject::GetFatherObject") ? nullptr : Counted(Told().father);
}

VOXISpecObject* ScriptedSpecObject::Instantiate(const VOXUnicodeString& iName, const VOXIContainer_var&,
                                                VOXBaseUnknown* iContext)
{
  const bool fails =
      CallLog::Enter("VOXISpecObject::Instantiate", iName.ConvertToChar(), iContext == nullptr ? "null" : "context");
  return fails ? nullptr : Counted(Told().instance);
}

VOXUnicodeString ScriptedSpecObject::GetName() const
{
  return CallLog::Enter("VOXISpecObject::GetName") ? VOXUnicodeString() : VOXUnicodeString(Told().name.c_str());
}

VOXUnicodeString ScriptedSpecObject::GetIdentifyingString() const
{
  if (CallLog::Enter("VOXISpecObject::GetIdentifyingString"))
    return {};
  return Told().identifyingString.empty() ? Told().name.c_str() : Told().identifyingString.c_str();
}

void ScriptedSpecObject::SetIdentifyingString(const VOXUnicodeString& iString)
{
  if (!CallLog::Enter("VOXISpecObject::SetIdentifyingString", iString.ConvertToChar()))
    Told().identifyingString = iString.ConvertToChar();
}

std::int32_t ScriptedSpecObject::GetTimeStamp() const
{
  return CallLog::Enter("VOXISpecObject::GetTimeStamp") ? 0 : Told().timeStamp;
}

HRESULT ScriptedSpecObject::GetPointings(VOXListPtrVOXSpecPointing&) const
{
  return CallLog::Enter("VOXISpecObject::GetPointings") ? E_FAIL : S_OK;
}

HRESULT ScriptedSpecObject::RemoveComponent(const VOXBaseUnknown_var&, int iMode)
{
  return CallLog::Enter("VOXISpecObject::RemoveComponent", iMode) ? E_FAIL : Told().removeResult;
}

HRESULT ScriptedSpecObject::HandOver(const VOXUnicodeString& iFromAttribute, const VOXISpecObject_var&,
                                     const VOXUnicodeString& iToAttribute)
{
  const bool fails =
      CallLog::Enter("VOXISpecObject::HandOver", iFromAttribute.ConvertToChar(), iToAttribute.ConvertToChar());
  return fails ? E_FAIL : Told().handOverResult;
}

VOXISpecObject* ScriptedSpecObject::GetRelatedObject() const
{
  return CallLog::Enter("VOXISpecObject::GetRelatedObject") ? nullptr : Counted(Told().related);
}

VOXBaseUnknown* ScriptedSpecObject::GetModelFactory() const
{
  return CallLog::Enter("VOXISpecObject::GetModelFactory") ? nullptr : Told().modelFactory;
}

HRESULT ScriptedSpecObject::Unsubscribe(int iMode)
{
  return CallLog::Enter("VOXISpecObject::Unsubscribe", iMode) ? E_FAIL : S_OK;
}

void* ScriptedVisuGrouper::GetVisuObject()
{
  return CallLog::Enter("VOXIMSHVisuGrouper::GetVisuObject") ? nullptr : Told().visuObject;
}

} // namespace voxtest
