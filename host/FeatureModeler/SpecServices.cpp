// SPDX-License-Identifier: MIT
#include "FeatureModeler/VOXSpecServices.h"

#include "FeatureModeler/VOXListValVOXISpecObject_var.h"
#include "FeatureModeler/VOXSpecPointing.h"
#include "host/ComponentRuntime/VOXListVal.tpp.h"
#include "host/FeatureModeler/AttrKey.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Faults.h"

#include <algorithm>

using voxhost::Faults;
using voxhost::Feature;

template class VOXListVal<VOXISpecObject_var>;

VOXBaseUnknown* FindStartUp(const char* iInterfaceName, const VOXUnicodeString& iName,
                            const VOXUnicodeString& iAlternateName, const VOXIContainer_var& iContainer)
{
  const voxhost::Container* const container = voxhost::Container::Of(iContainer);
  voxhost::Document* const document = container == nullptr ? nullptr : container->OwningDocument();
  if (Faults::Enter("FindStartUp") || document == nullptr || iInterfaceName == nullptr)
    return nullptr;
  const Feature* startUp = document->StartUp(iName.ConvertToChar());
  if (startUp == nullptr)
    startUp = document->StartUp(iAlternateName.ConvertToChar());
  return startUp == nullptr ? nullptr : static_cast<const VOXBaseUnknown*>(startUp)->QueryInterface(iInterfaceName);
}

HRESULT VOXSpecIsLocalValue(VOXISpecObject* iInstance, VOXISpecAttrKey* iKey)
{
  const Feature* const feature = Feature::Of(iInstance);
  if (Faults::Enter("VOXSpecIsLocalValue") || feature == nullptr || iKey == nullptr)
    return E_INVALIDARG;
  return feature->IsLocal(voxhost::IndexOfKey(*feature, iKey)) ? 0 : 1;
}

unsigned int VOXGetUniqueIdentifier(const VOXISpecObject_var& iFeature)
{
  const Feature* const feature = Feature::Of(iFeature);
  return Faults::Enter("VOXGetUniqueIdentifier") || feature == nullptr ? 0 : feature->Identifier();
}

HRESULT VOXSpecPubServices::UpgradeSpecObjectAttribute(VOXISpecAttrAccess* iAccess, const VOXISpecAttrKey* iKey,
                                                       const VOXISpecObject_var& iObject, int iPosition)
{
  Feature* const owner = Feature::Of(iAccess);
  Feature* const object = Feature::Of(iObject);
  if (Faults::Enter("VOXSpecPubServices::UpgradeSpecObjectAttribute") || owner == nullptr || object == nullptr)
    return E_FAIL;
  return owner->SetFeature(voxhost::IndexOfKey(*owner, iKey), iPosition, *object);
}

HRESULT VOXSpecObjServices::MarkForRebuild(VOXISpecObject_var& ioFeature, int iMark)
{
  Feature* const feature = Feature::Of(ioFeature);
  if (Faults::Enter("VOXSpecObjServices::MarkForRebuild") || feature == nullptr)
    return E_FAIL;
  feature->SetMarked(iMark != 0);
  return S_OK;
}

VOXSpecPointing::VOXSpecPointing(const VOXISpecAttrAccess_var& iAccess, const VOXISpecAttrKey_var& iKey)
    : _Access(iAccess),
      _Key(iKey)
{
}

VOXSpecPointing::~VOXSpecPointing() = default;

VOXISpecAttrAccess_var VOXSpecPointing::GetAccess() const
{
  return Faults::Enter("VOXSpecPointing::GetAccess") ? VOXISpecAttrAccess_var() : _Access;
}

VOXISpecAttrKey_var VOXSpecPointing::GetKey() const
{
  return Faults::Enter("VOXSpecPointing::GetKey") ? VOXISpecAttrKey_var() : _Key;
}

VOXListPtrVOXSpecPointing::VOXListPtrVOXSpecPointing() : _Pointings(nullptr), _Size(0), _Capacity(0) {}

VOXListPtrVOXSpecPointing::~VOXListPtrVOXSpecPointing()
{
  delete[] _Pointings;
}

int VOXListPtrVOXSpecPointing::Size() const
{
  return _Size;
}

VOXSpecPointing*& VOXListPtrVOXSpecPointing::operator[](int iPosition)
{
  if (iPosition < 1 || iPosition > _Size)
    VOXFatalError("AssertionFailed:1 <= iPosition && iPosition <= Size()", nullptr, nullptr, nullptr, __FILE__,
                  __LINE__);
  return _Pointings[iPosition - 1];
}

void VOXListPtrVOXSpecPointing::Append(VOXSpecPointing* iPointing)
{
  if (_Size == _Capacity)
  {
    _Capacity = _Capacity == 0 ? 8 : 2 * _Capacity;
    auto** const pointings = new VOXSpecPointing*[static_cast<std::size_t>(_Capacity)];
    std::copy_n(_Pointings, _Size, pointings);
    delete[] _Pointings;
    _Pointings = pointings;
  }
  _Pointings[_Size++] = iPointing;
}

void VOXListPtrVOXSpecPointing::RemoveAll()
{
  _Size = 0;
}
