// SPDX-License-Identifier: MIT
#include "ExplicitModel/VOXAnalysisCharacCollector.h"
#include "ExplicitModel/VOXAnalysisEntityCollector.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "host/ExplicitModel/CollectorData.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/ExplicitModel/ListKind.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <algorithm>
#include <cstring>
#include <new>

using voxhost::ExplicitModel;
using voxhost::Faults;
using voxhost::ObjectKind;
using voxhost::Record;

const VOXAnalysisExplicitData NULL_exp;

VOXSamModelDataRoot* VOXExplicitAccess::Object(const VOXAnalysisExplicitData& iHandle)
{
  VOXSamModelDataRoot* const object = iHandle._Object;
  const Record* const record = object == nullptr ? nullptr : ExplicitModel::RecordAt(*object);
  return record != nullptr && record->dead ? nullptr : object;
}

ExplicitModel* VOXExplicitAccess::Model(const VOXAnalysisExplicitData& iHandle)
{
  return static_cast<ExplicitModel*>(iHandle._Model);
}

void VOXExplicitAccess::Target(VOXAnalysisExplicitData& ioHandle, ExplicitModel* iModel, VOXSamModelDataRoot* iObject)
{
  ioHandle._Model = iObject == nullptr ? nullptr : iModel;
  ioHandle._Object = iObject;
}

Record* VOXExplicitAccess::RecordOf(const VOXAnalysisExplicitData& iHandle)
{
  const VOXSamModelDataRoot* const object = Object(iHandle);
  return object == nullptr ? nullptr : ExplicitModel::RecordAt(*object);
}

VOXAnalysisExplicitData::VOXAnalysisExplicitData() : _Model(nullptr), _Object(nullptr) {}
VOXAnalysisExplicitData::VOXAnalysisExplicitData(const VOXAnalysisExplicitData& iOther) = default;
VOXAnalysisExplicitData& VOXAnalysisExplicitData::operator=(const VOXAnalysisExplicitData& iOther) = default;
VOXAnalysisExplicitData::~VOXAnalysisExplicitData() = default;

unsigned char VOXAnalysisExplicitData::operator==(const VOXAnalysisExplicitData& iOther) const
{
  return VOXExplicitAccess::Object(*this) == VOXExplicitAccess::Object(iOther) ? 1 : 0;
}

unsigned char VOXAnalysisExplicitData::operator!=(const VOXAnalysisExplicitData& iOther) const
{
  return *this == iOther ? 0 : 1;
}

VOXAnalysisExplicitModel* VOXAnalysisExplicitData::GetModel() const
{
  return VOXExplicitAccess::Object(*this) == nullptr || Faults::Enter("VOXAnalysisExplicitData::GetModel") ? nullptr
                                                                                                           : _Model;
}

VOXAnalysisExplicitChild::VOXAnalysisExplicitChild() = default;
VOXAnalysisExplicitChild::VOXAnalysisExplicitChild(const VOXAnalysisExplicitData& iOther)
    : VOXAnalysisExplicitData(iOther)
{
}
VOXAnalysisExplicitChild& VOXAnalysisExplicitChild::operator=(const VOXAnalysisExplicitData& iOther)
{
  VOXAnalysisExplicitData::operator=(iOther);
  return *this;
}

HRESULT VOXAnalysisExplicitChild::GetPhysicalType(int& oType) const
{
  const VOXSamModelDataRoot* const object = VOXExplicitAccess::Object(*this);
  if (Faults::Enter("VOXAnalysisExplicitChild::GetPhysicalType") || object == nullptr)
    return E_FAIL;
  oType = VOXExplicitAccess::Model(*this)->PhysicalTypeOf(*object);
  return S_OK;
}

HRESULT VOXAnalysisExplicitChild::GetTag(int& oTag) const
{
  const VOXSamModelDataRoot* const object = VOXExplicitAccess::Object(*this);
  if (Faults::Enter("VOXAnalysisExplicitChild::GetTag") || object == nullptr)
    return E_FAIL;
  oTag = VOXExplicitAccess::Model(*this)->TagOf(*object);
  return S_OK;
}

HRESULT VOXAnalysisExplicitChild::GetStatus(int& oStatus) const
{
  if (Faults::Enter("VOXAnalysisExplicitChild::GetStatus") || VOXExplicitAccess::Object(*this) == nullptr)
    return E_FAIL;
  const Record* const record = VOXExplicitAccess::RecordOf(*this);
  oStatus = record == nullptr ? static_cast<int>(VOXSamStatusNone) : record->status;
  return S_OK;
}

HRESULT VOXAnalysisExplicitChild::GetParentList(VOXAnalysisExplicitList& oParents) const
{
  if (Faults::Enter("VOXAnalysisExplicitChild::GetParentList") || VOXExplicitAccess::Object(*this) == nullptr)
    return E_FAIL;
  VOXExplicitAccess::FillList(oParents, *this, voxhost::kListParents);
  return S_OK;
}

HRESULT VOXAnalysisExplicitChild::LinkWithTag(int iTag, const VOXAnalysisExplicitModel* iModel)
{
  VOXExplicitAccess::Target(*this, nullptr, nullptr);
  if (Faults::Enter("VOXAnalysisExplicitChild::LinkWithTag") || iModel == nullptr)
    return E_FAIL;
  auto* const model = static_cast<ExplicitModel*>(const_cast<VOXAnalysisExplicitModel*>(iModel));
  VOXExplicitAccess::Target(*this, model, model->FindTag(iTag));
  return S_OK;
}

HRESULT VOXAnalysisExplicitChild::LinkWithPointer(VOXSamModelDataRoot* const& iObject,
                                                  const VOXAnalysisExplicitModel* iModel)
{
  VOXSamModelDataRoot* const object = iObject;
  VOXExplicitAccess::Target(*this, nullptr, nullptr);
  if (Faults::Enter("VOXAnalysisExplicitChild::LinkWithPointer") || object == nullptr || iModel == nullptr)
    return E_FAIL;
  auto* const model = static_cast<ExplicitModel*>(const_cast<VOXAnalysisExplicitModel*>(iModel));
  if (!model->Owns(object))
    return E_FAIL;
  VOXExplicitAccess::Target(*this, model, object);
  return S_OK;
}

HRESULT VOXAnalysisExplicitChild::Delete()
{
  Record* const record = VOXExplicitAccess::RecordOf(*this);
  if (Faults::Enter("VOXAnalysisExplicitChild::Delete") || record == nullptr)
    return E_FAIL;
  ExplicitModel* const model = VOXExplicitAccess::Model(*this);
  if (&record->head == model->GlobalFrame() || &record->head == model->MeshOwner())
    return E_FAIL;
  const voxhost::ObjectList children = record->children;
  model->Touch(*record);
  model->Kill(*record);
  for (VOXSamModelDataRoot* const object : children)
  {
    Record* const child = ExplicitModel::RecordAt(*object);
    std::erase(child->parents, &record->head);
    if (child->parents.empty())
    {
      VOXAnalysisExplicitChild handle;
      VOXExplicitAccess::Target(handle, model, object);
      handle.Delete();
    }
  }
  VOXExplicitAccess::Target(*this, nullptr, nullptr);
  return S_OK;
}

VOXAnalysisExplicitParent::VOXAnalysisExplicitParent() = default;
VOXAnalysisExplicitParent::VOXAnalysisExplicitParent(const VOXAnalysisExplicitData& iOther)
    : VOXAnalysisExplicitChild(iOther)
{
}
VOXAnalysisExplicitParent& VOXAnalysisExplicitParent::operator=(const VOXAnalysisExplicitData& iOther)
{
  VOXAnalysisExplicitData::operator=(iOther);
  return *this;
}

HRESULT VOXAnalysisExplicitParent::GetCategory(VOXSamValue& oCategory) const
{
  const VOXSamModelDataRoot* const object = VOXExplicitAccess::Object(*this);
  if (Faults::Enter("VOXAnalysisExplicitParent::GetCategory") || object == nullptr)
    return E_FAIL;
  const ExplicitModel& model = *VOXExplicitAccess::Model(*this);
  const auto* const type = model.Rules() == nullptr ? nullptr : model.Rules()->Find(model.PhysicalTypeOf(*object));
  if (type == nullptr)
    return E_FAIL;
  oCategory = type->category;
  return S_OK;
}

HRESULT VOXAnalysisExplicitParent::GetChildrenList(VOXAnalysisExplicitList& oChildren) const
{
  if (Faults::Enter("VOXAnalysisExplicitParent::GetChildrenList") || VOXExplicitAccess::Object(*this) == nullptr)
    return E_FAIL;
  VOXExplicitAccess::FillList(oChildren, *this, voxhost::kListChildren);
  return S_OK;
}

HRESULT VOXAnalysisExplicitParent::GetChildrenList(VOXAnalysisExplicitListUsr& ioChildren, VOXSamCompareType iCompare,
                                                   const void* iValue, unsigned char, unsigned char) const
{
  const Record* const record = VOXExplicitAccess::RecordOf(*this);
  Record* const list = VOXExplicitAccess::RecordOf(ioChildren);
  if (Faults::Enter("VOXAnalysisExplicitParent::GetChildrenList") || record == nullptr || list == nullptr ||
      (iCompare != VOXSamCompareNone && iValue == nullptr))
    return E_FAIL;
  const ExplicitModel& model = *VOXExplicitAccess::Model(*this);
  const int wanted = iCompare == VOXSamCompareNone ? 0 : *static_cast<const int*>(iValue);
  for (VOXSamModelDataRoot* const child : record->children)
  {
    const int type = model.PhysicalTypeOf(*child);
    const auto* const rule = model.Rules() == nullptr ? nullptr : model.Rules()->Find(type);
    const bool passes = iCompare == VOXSamCompareNone || (iCompare == VOXSamComparePhysicalType && type == wanted) ||
                        (iCompare == VOXSamCompareCategory && rule != nullptr && rule->category == wanted);
    if (passes)
      list->children.push_back(child);
  }
  return S_OK;
}

HRESULT VOXAnalysisExplicitParent::FindEntityCollector(const VOXSamValue& iValue, const VOXString& iName,
                                                       VOXAnalysisEntityCollector*& oCollector) const
{
  oCollector = nullptr;
  if (Faults::Enter("VOXAnalysisExplicitParent::FindEntityCollector") || VOXExplicitAccess::Object(*this) == nullptr)
    return E_FAIL;
  const Record* const record = VOXExplicitAccess::RecordOf(*this);
  if (record == nullptr)
    return S_OK;
  for (VOXAnalysisEntityCollector* const collector : record->entityCollectors)
  {
    const VOXCollectorData& data = VOXExplicitAccess::DataOf(*collector);
    if (data.value == iValue && data.name == iName)
      oCollector = collector;
  }
  return S_OK;
}

HRESULT VOXAnalysisExplicitParent::DeleteCharacCollector(const VOXAnalysisCharacCollector*& ioCollector)
{
  const Record* const record = VOXExplicitAccess::RecordOf(*this);
  if (Faults::Enter("VOXAnalysisExplicitParent::DeleteCharacCollector") || record == nullptr)
    return E_FAIL;
  const auto& collectors = record->characCollectors;
  const auto found = std::find(collectors.begin(), collectors.end(), ioCollector);
  if (found == collectors.end())
    return E_FAIL;
  VOXAnalysisCharacCollector* const collector = *found;
  collector->RequestDelayedDestruction(1);
  collector->Release();
  ioCollector = nullptr;
  return S_OK;
}

HRESULT VOXAnalysisExplicitParent::DeleteAll()
{
  if (Faults::Enter("VOXAnalysisExplicitParent::DeleteAll") || VOXExplicitAccess::Object(*this) == nullptr)
    return E_FAIL;
  const Record* const record = VOXExplicitAccess::RecordOf(*this);
  while (record != nullptr && !record->characCollectors.empty())
  {
    VOXAnalysisCharacCollector* const collector = record->characCollectors.back();
    collector->RequestDelayedDestruction(1);
    collector->Release();
  }
  return S_OK;
}

VOXAnalysisExplicitEntity::VOXAnalysisExplicitEntity() = default;
VOXAnalysisExplicitEntity::VOXAnalysisExplicitEntity(const VOXAnalysisExplicitData& iOther)
    : VOXAnalysisExplicitParent(iOther)
{
}
VOXAnalysisExplicitEntity& VOXAnalysisExplicitEntity::operator=(const VOXAnalysisExplicitData& iOther)
{
  VOXAnalysisExplicitData::operator=(iOther);
  return *this;
}

HRESULT VOXAnalysisExplicitEntity::GetApplyTo(int& oCount, VOXSamModelDataRoot**& oObjects, VOXSamPosition& oPosition,
                                              int*& oIndices, VOXSamApplyQualifier*& oQualifiers, unsigned char) const
{
  oCount = 0;
  oObjects = nullptr;
  oIndices = nullptr;
  oQualifiers = nullptr;
  const Record* const record = VOXExplicitAccess::RecordOf(*this);
  if (Faults::Enter("VOXAnalysisExplicitEntity::GetApplyTo") || record == nullptr)
    return E_FAIL;
  const voxhost::ApplyTo& applyTo = record->applyTo;
  const std::size_t size = applyTo.places.size();
  if (size != 0)
  {
    auto** const objects = new (std::nothrow) VOXSamModelDataRoot*[size];
    int* const indices = applyTo.sides.empty() ? nullptr : new (std::nothrow) int[size];
    if (objects == nullptr || (indices == nullptr && !applyTo.sides.empty()))
    {
      delete[] objects;
      delete[] indices;
      return E_FAIL;
    }
    const ExplicitModel& model = *VOXExplicitAccess::Model(*this);
    VOXSamModelDataRoot* const block =
        applyTo.position == VOXSamPositionNode ? model.NodeBlock() : model.ElementBlock();
    const std::uint32_t* const places = applyTo.places.data();
    for (std::size_t i = 0; i < size; ++i)
      objects[i] = block + places[i];
    if (indices != nullptr)
      std::copy(applyTo.sides.begin(), applyTo.sides.end(), indices);
    oObjects = voxhost::Ledger::HandOut(objects);
    oIndices = voxhost::Ledger::HandOut(indices);
  }
  oCount = static_cast<int>(size);
  oPosition = applyTo.position;
  return S_OK;
}

VOXAnalysisExplicitExpression::VOXAnalysisExplicitExpression() = default;
VOXAnalysisExplicitExpression::VOXAnalysisExplicitExpression(const VOXAnalysisExplicitData& iOther)
    : VOXAnalysisExplicitChild(iOther)
{
}
VOXAnalysisExplicitExpression& VOXAnalysisExplicitExpression::operator=(const VOXAnalysisExplicitData& iOther)
{
  VOXAnalysisExplicitData::operator=(iOther);
  return *this;
}

VOXAnalysisExplicitAxis::VOXAnalysisExplicitAxis() = default;
VOXAnalysisExplicitAxis::VOXAnalysisExplicitAxis(const VOXAnalysisExplicitData& iOther)
    : VOXAnalysisExplicitChild(iOther)
{
}
VOXAnalysisExplicitAxis& VOXAnalysisExplicitAxis::operator=(const VOXAnalysisExplicitData& iOther)
{
  VOXAnalysisExplicitData::operator=(iOther);
  return *this;
}
