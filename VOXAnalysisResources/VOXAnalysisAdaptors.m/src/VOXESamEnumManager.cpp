// SPDX-License-Identifier: MIT
#include "VOXESamEnumManager.h"

#include "AnalysisInterfaces/VOXISamBasicComponent.h"
#include "AssertionFrame.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "KnowledgeParameters/VOXICke.h"

#include <memory>

VOX_SOURCE_OF(VOXESamEnumManager);

static_assert(sizeof(VOXESamEnumManager) == 40, "the size that the class is registered with");

VOXMetaClass* VOXESamEnumManager::meta_object = nullptr;

namespace
{

// The sub-components that a selection needs, at the same positions of the three lists.
struct Wanted
{
  VOXListValVOXUnicodeString types;
  VOXListValVOXUnicodeString seconds;
  VOXListValVOXBaseUnknown_var kinds;

  // Takes an entry off: what it asks for is there. Only the first of equal entries goes.
  bool TakeOff(const VOXUnicodeString& iType)
  {
    const int position = types.Locate(iType, 1);
    if (position < 1)
      return false;
    types.RemovePosition(position);
    seconds.RemovePosition(position);
    kinds.RemovePosition(position);
    return true;
  }
};

HRESULT ValueOf(const VOXISamBasicComponent_var& iComponent, VOXBaseUnknown_var& oValue)
{
  return iComponent->GetValue(oValue, VOXUnicodeString(), 0, 0, 0);
}

// The current value of a parameter; empty when there is no parameter or no value.
VOXICkeInst_var InstanceOf(const VOXICkeParm_var& iParameter)
{
  return !iParameter ? VOXICkeInst_var() : iParameter->Value();
}

bool IsEnumeration(const VOXICkeType_var& iType)
{
  return !!iType && iType->IsAKindOfType(VOXCkeContext::EnumType) == VOXCke::True;
}

// Whether an existing sub-component is wanted; a numbered copy (Mass.2 for Mass) gets the plain name back.
bool IsKept(const VOXBaseUnknown_var& iSubComponent, Wanted& ioWanted)
{
  const VOXISpecObject_var spFeature(iSubComponent);
  VOXUnicodeString string;
  if (!!spFeature)
    string = spFeature->GetIdentifyingString();
  if (ioWanted.TakeOff(string))
    return true;

  const int dot = string.SearchSubString(".", 0, 1);
  if (dot <= 0)
    return false;
  string.Resize(dot);
  if (!ioWanted.TakeOff(string))
    return false;
  spFeature->SetIdentifyingString(string);
  return true;
}

void RemoveUnwanted(const VOXISamBasicComponent_var& iComponent, Wanted& ioWanted)
{
  VOXListValVOXBaseUnknown_var* listed = nullptr;
  iComponent->ListSubComponents(listed, VOXUnicodeString());
  const std::unique_ptr<VOXListValVOXBaseUnknown_var> existing(listed);
  const int size = existing == nullptr ? 0 : existing->Size();
  for (int j = 1; j <= size; ++j)
    if (!IsKept((*existing)[j], ioWanted))
      iComponent->RemoveSubComponent((*existing)[j]);
}

} // namespace

VOXESamEnumManager::VOXESamEnumManager() : _FirstSelection(true) {}

VOXESamEnumManager::~VOXESamEnumManager() = default;

VOXMetaClass* VOXESamEnumManager::MetaObject()
{
  if (meta_object == nullptr)
    meta_object = fct_RetrieveMetaObject("VOXESamEnumManager", VOXTypeDataExtension, VOXBaseUnknown::MetaObject(),
                                         "SAMListManager", "VOXAnalysisResources", 40);
  return meta_object;
}

// As long as the runtime cannot register the class, it answers as its base does, and the next request tries again.

const IID& VOXESamEnumManager::ClassId()
{
  const VOXMetaClass* const registered = MetaObject();
  return registered != nullptr ? registered->GetClassId() : VOXBaseUnknown::ClassId();
}

const char* VOXESamEnumManager::ClassName()
{
  const VOXMetaClass* const registered = MetaObject();
  return registered != nullptr ? registered->IsA() : VOXBaseUnknown::ClassName();
}

VOXMetaClass* VOXESamEnumManager::GetMetaObject() const
{
  return MetaObject();
}

const char* VOXESamEnumManager::IsA() const
{
  return ClassName();
}

int VOXESamEnumManager::IsAKindOf(const char* iName) const
{
  const VOXMetaClass* const registered = MetaObject();
  return registered != nullptr ? registered->IsAKindOf(iName) : 0;
}

VOXBaseUnknown* VOXESamEnumManager::CreateItself()
{
  return new VOXESamEnumManager;
}

HRESULT VOXESamEnumManager::GetMode(VOXSamSelectionMode& oMode)
{
  const VOXISamBasicComponent_var spComponent(GetImpl(0));
  if (!spComponent)
    return E_FAIL;
  oMode = VOXSamSelectFree;
  VOXBaseUnknown_var spValue;
  ValueOf(spComponent, spValue);
  const VOXICkeType_var spType(spValue);
  if (IsEnumeration(spType))
    oMode = VOXSamSelectFromList;
  return S_OK;
}

HRESULT VOXESamEnumManager::GetList(VOXListValVOXUnicodeString& oList)
{
  oList.RemoveAll();
  const VOXISamBasicComponent_var spComponent(GetImpl(0));
  if (!spComponent)
    return E_FAIL;
  VOXBaseUnknown_var spValue;
  ValueOf(spComponent, spValue);
  const VOXICkeType_var spType(spValue);
  if (!IsEnumeration(spType))
    return S_OK;
  const VOXIEnumere_var spEnumeration(spType);
  if (!!spEnumeration)
    oList = spEnumeration->GetValueList(0);
  return S_OK;
}

HRESULT VOXESamEnumManager::GetSelected(VOXUnicodeString& oValue, int& oIndex)
{
  oIndex = 0;
  const VOXISamBasicComponent_var spComponent(GetImpl(0));
  if (!spComponent)
    return E_FAIL;
  VOXBaseUnknown_var spValue;
  if (FAILED(ValueOf(spComponent, spValue)))
    return E_FAIL;
  const VOXICkeParm_var spParameter(spValue);
  const VOXICkeInst_var spInstance = InstanceOf(spParameter);
  if (!!spInstance)
  {
    oValue = spInstance->AsString();
    oIndex = spInstance->AsInteger();
  }
  return S_OK;
}

HRESULT VOXESamEnumManager::SetSelected(int iIndex)
{
  const VOXISamBasicComponent_var spComponent(GetImpl(0));
  if (!spComponent)
    return E_FAIL;
  VOXBaseUnknown_var spValue;
  if (FAILED(ValueOf(spComponent, spValue)))
    return E_FAIL;
  const VOXICkeParm_var spParameter(spValue);
  const VOXICkeInst_var spInstance = InstanceOf(spParameter);
  const int current = !spInstance ? 0 : spInstance->AsInteger();
  if (iIndex == current && !_FirstSelection)
    return S_OK;

  _FirstSelection = false;
  if (!!spParameter)
    spParameter->Valuate(iIndex);
  VOXUnicodeString value;
  int index = 0;
  GetSelected(value, index); // virtual on purpose, like GetResult
  Wanted wanted;
  GetResult(value, wanted.types, wanted.seconds, wanted.kinds);
  RemoveUnwanted(spComponent, wanted);
  Instanciate(wanted.types, wanted.seconds, wanted.kinds);
  return S_OK;
}

HRESULT VOXESamEnumManager::GetResult(const VOXUnicodeString& /*iValue*/, VOXListValVOXUnicodeString& /*oFeatureType*/,
                                      VOXListValVOXUnicodeString& /*oSecond*/,
                                      VOXListValVOXBaseUnknown_var& /*oListOfVOXICkeType*/)
{
  return S_OK;
}

void VOXESamEnumManager::Instanciate(VOXListValVOXUnicodeString& iFeatureType, VOXListValVOXUnicodeString& iSecond,
                                     VOXListValVOXBaseUnknown_var& iListOfVOXICkeType)
{
  const VOXISamBasicComponent_var spComponent(GetImpl(0));
  if (!spComponent)
    return;
  const int size = iFeatureType.Size();
  const bool sizesAgree = iSecond.Size() == size && iListOfVOXICkeType.Size() == size;
  VOX_ASSERT_AS(sizesAgree, "size==iFeatureType.Size() && iListOfVOXICkeType.Size()==size");
  for (int i = 1; i <= size; ++i)
    spComponent->CreateSubComponent(iFeatureType[i], iSecond[i], iListOfVOXICkeType[i]);
}

void VOXESamEnumManager::GetStringValuesList(VOXListValVOXUnicodeString& /*ioList*/) {}
