// SPDX-License-Identifier: MIT
#include "ExplicitModel/VOXAnalysisCollectorRoot.h"

#include "host/ExplicitModel/CollectorData.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <algorithm>
#include <new>

using voxhost::Faults;
using voxhost::Record;

VOXAnalysisCollectorRoot::VOXAnalysisCollectorRoot() : _Data(new VOXCollectorData)
{
  voxhost::Ledger::CollectorBorn();
}

VOXAnalysisCollectorRoot::~VOXAnalysisCollectorRoot()
{
  VOXExplicitAccess::Detach(*this);
  delete _Data;
  voxhost::Ledger::CollectorDied();
}

HRESULT VOXAnalysisCollectorRoot::GetContext(VOXAnalysisExplicitParent& oContext) const
{
  oContext = _Data->context;
  return S_OK;
}

HRESULT VOXAnalysisCollectorRoot::SetContext(const VOXAnalysisExplicitParent& iContext, unsigned char iKeepEntities)
{
  const bool isElsewhere = _Data->attachedTo != NULL_exp && _Data->attachedTo != iContext;
  if (Faults::Enter("VOXAnalysisCollectorRoot::SetContext") || isElsewhere)
    return E_FAIL;
  _Data->context = iContext;
  const Record* const record = VOXExplicitAccess::RecordOf(iContext);
  _Data->stamp = record == nullptr ? 0 : record->stamp;
  if (iKeepEntities == 0)
    SetEntities(0, nullptr, nullptr);
  return S_OK;
}

HRESULT VOXAnalysisCollectorRoot::GetNbEntities(int& oNumber) const
{
  if (Faults::Enter("VOXAnalysisCollectorRoot::GetNbEntities"))
    return E_FAIL;
  oNumber = _Data->size;
  return S_OK;
}

HRESULT VOXAnalysisCollectorRoot::SetNbEntities(int iNumber)
{
  if (Faults::Enter("VOXAnalysisCollectorRoot::SetNbEntities") || iNumber < 0)
    return E_FAIL;
  const auto size = static_cast<std::size_t>(iNumber);
  std::unique_ptr<VOXSamModelDataRoot*[]> objects(new (std::nothrow) VOXSamModelDataRoot*[size]());
  if (objects == nullptr)
    return E_FAIL;
  _Data->size = iNumber;
  _Data->objects = std::move(objects);
  _Data->indices.reset();
  _Data->flags.clear();
  _Data->values.clear();
  return S_OK;
}

HRESULT VOXAnalysisCollectorRoot::GetEntities(int& oCount, VOXSamModelDataRoot* const*& oObjects,
                                              const int*& oIndices) const
{
  if (Faults::Enter("VOXAnalysisCollectorRoot::GetEntities"))
    return E_FAIL;
  oCount = _Data->size;
  oObjects = _Data->size == 0 ? nullptr : _Data->objects.get();
  oIndices = _Data->indices.get();
  return S_OK;
}

HRESULT VOXAnalysisCollectorRoot::SetEntities(int iCount, VOXSamModelDataRoot* const* iObjects, const int* iIndices)
{
  if (Faults::Enter("VOXAnalysisCollectorRoot::SetEntities") || iCount < 0 || (iCount > 0 && iObjects == nullptr))
    return E_FAIL;
  const auto size = static_cast<std::size_t>(iCount);
  std::unique_ptr<VOXSamModelDataRoot*[]> objects(new (std::nothrow) VOXSamModelDataRoot*[size]);
  std::unique_ptr<int[]> indices(iIndices == nullptr ? nullptr : new (std::nothrow) int[size]);
  if (objects == nullptr || (iIndices != nullptr && indices == nullptr))
    return E_FAIL;
  std::copy_n(iObjects, size, objects.get());
  if (iIndices != nullptr)
    std::copy_n(iIndices, size, indices.get());
  _Data->size = iCount;
  _Data->objects = std::move(objects);
  _Data->indices = std::move(indices);
  _Data->flags.clear();
  _Data->values.clear();
  const Record* const record = VOXExplicitAccess::RecordOf(_Data->context);
  _Data->stamp = record == nullptr ? 0 : record->stamp;
  return S_OK;
}

unsigned char VOXAnalysisCollectorRoot::IsUpToDate() const
{
  if (Faults::Enter("VOXAnalysisCollectorRoot::IsUpToDate"))
    return 0;
  const Record* const record = VOXExplicitAccess::RecordOf(_Data->context);
  return record != nullptr && record->stamp == _Data->stamp ? 1 : 0;
}

unsigned char VOXAnalysisCollectorRoot::IsStreamable() const
{
  return _Data->retired ? 0 : 1;
}

int VOXAnalysisCollectorRoot::AddRef() const
{
  return ++_Data->count;
}

int VOXAnalysisCollectorRoot::Release() const
{
  const int left = --_Data->count;
  if (left <= 0)
    delete this;
  return left;
}

void VOXAnalysisCollectorRoot::RequestDelayedDestruction(unsigned char iRequest)
{
  _Data->retired = iRequest != 0;
  if (iRequest != 0)
    VOXExplicitAccess::Detach(*this); // the model's reference passes to whoever asks
}

unsigned char VOXAnalysisCollectorRoot::IsAttachedToModel() const
{
  return _Data->attachedTo != NULL_exp ? 1 : 0;
}

HRESULT VOXAnalysisCollectorRoot::SetAttachedToModel(unsigned char iAttach, VOXSamModelDataRoot* iObject, unsigned char)
{
  if (Faults::Enter("VOXAnalysisCollectorRoot::SetAttachedToModel"))
    return E_FAIL;
  if (iAttach == 0)
  {
    const bool wasAttached = IsAttachedToModel() != 0;
    VOXExplicitAccess::Detach(*this);
    if (wasAttached)
      Release();
    return S_OK;
  }
  VOXAnalysisExplicitParent target = _Data->context;
  if (iObject != nullptr)
    target.LinkWithPointer(iObject, _Data->context.GetModel());
  Record* const record = VOXExplicitAccess::RecordOf(target);
  if (record == nullptr)
    return E_FAIL;
  if (IsAttachedToModel() != 0)
    return S_OK;
  _Data->attachedTo = target;
  if (_Data->entityCollector != nullptr)
    record->entityCollectors.push_back(_Data->entityCollector);
  else if (_Data->characCollector != nullptr)
    record->characCollectors.push_back(_Data->characCollector);
  AddRef();
  return S_OK;
}

void VOXExplicitAccess::Detach(VOXAnalysisCollectorRoot& ioCollector)
{
  VOXCollectorData& data = *ioCollector._Data;
  if (data.attachedTo._Object == nullptr)
    return;
  // Looked up without asking whether it is deleted: a dying object lets go of its collectors this way.
  Record& record = *voxhost::ExplicitModel::RecordAt(*data.attachedTo._Object);
  std::erase(record.entityCollectors, data.entityCollector);
  std::erase(record.characCollectors, data.characCollector);
  Target(data.attachedTo, nullptr, nullptr);
}

VOXCollectorData& VOXExplicitAccess::DataOf(const VOXAnalysisCollectorRoot& iCollector)
{
  return *iCollector._Data;
}
