// SPDX-License-Identifier: MIT
#include "ExplicitModel/VOXAnalysisExplicitList.h"

#include "host/ExplicitModel/ExplicitModel.h"
#include "host/ExplicitModel/ListKind.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <algorithm>
#include <new>

using voxhost::ExplicitModel;
using voxhost::Faults;
using voxhost::ObjectKind;
using voxhost::Record;

namespace
{

std::size_t CountOf(const VOXAnalysisExplicitData& iOwner, int iKind)
{
  const VOXSamModelDataRoot* const object = VOXExplicitAccess::Object(iOwner);
  if (object == nullptr || iKind == voxhost::kListNothing)
    return 0;
  const ExplicitModel& model = *VOXExplicitAccess::Model(iOwner);
  const Record* const record = ExplicitModel::RecordAt(*object);
  if (iKind == voxhost::kListParents)
    return record == nullptr ? 1 : record->parents.size(); // nodes and elements hang under the mesh
  if (record == nullptr)
    return 0;
  const std::size_t meshed = record->hasMesh ? model.Mesh().nodeIds.size() + model.Mesh().elementIds.size() : 0;
  return record->children.size() + meshed;
}

// The item at a place below CountOf.
VOXSamModelDataRoot* ItemOf(const VOXAnalysisExplicitData& iOwner, int iKind, std::size_t iPlace)
{
  const VOXSamModelDataRoot* const object = VOXExplicitAccess::Object(iOwner);
  const ExplicitModel& model = *VOXExplicitAccess::Model(iOwner);
  const Record* const record = ExplicitModel::RecordAt(*object);
  if (iKind == voxhost::kListParents)
    return record == nullptr ? model.MeshOwner() : record->parents[iPlace];
  if (iPlace < record->children.size())
    return record->children[iPlace];
  const std::size_t node = iPlace - record->children.size();
  const std::size_t nodes = model.Mesh().nodeIds.size();
  return node < nodes ? model.NodeBlock() + node : model.ElementBlock() + (node - nodes);
}

} // namespace

void VOXExplicitAccess::FillList(VOXAnalysisExplicitList& ioList, const VOXAnalysisExplicitData& iOwner, int iKind)
{
  Target(ioList, Model(iOwner), Object(iOwner));
  ioList._Kind = iKind;
  ioList._Cursor = -1;
  Target(ioList._Current, nullptr, nullptr);
}

int VOXExplicitAccess::KindOf(const VOXAnalysisExplicitList& iList)
{
  return iList._Kind;
}

VOXAnalysisExplicitList::VOXAnalysisExplicitList() : _Kind(voxhost::kListNothing), _Cursor(-1) {}

VOXAnalysisExplicitList::VOXAnalysisExplicitList(const VOXAnalysisExplicitData& iOwner) : VOXAnalysisExplicitList()
{
  *this = iOwner;
}

VOXAnalysisExplicitList& VOXAnalysisExplicitList::operator=(const VOXAnalysisExplicitData& iOwner)
{
  const VOXSamModelDataRoot* const object = VOXExplicitAccess::Object(iOwner);
  const bool isList = object != nullptr && object->Kind() == ObjectKind::UserList;
  VOXExplicitAccess::FillList(*this, iOwner, isList ? voxhost::kListItems : voxhost::kListChildren);
  return *this;
}

VOXAnalysisExplicitList& VOXAnalysisExplicitList::First()
{
  _Cursor = -1;
  return Next();
}

VOXAnalysisExplicitList& VOXAnalysisExplicitList::Next()
{
  VOXExplicitAccess::Target(_Current, nullptr, nullptr);
  const std::size_t count = CountOf(*this, _Kind);
  if (_Cursor + 1 < static_cast<std::int64_t>(count))
  {
    ++_Cursor;
    VOXExplicitAccess::Target(_Current, VOXExplicitAccess::Model(*this),
                              ItemOf(*this, _Kind, static_cast<std::size_t>(_Cursor)));
  }
  return *this;
}

const VOXAnalysisExplicitChild& VOXAnalysisExplicitList::operator*() const
{
  return _Current;
}

int VOXAnalysisExplicitList::GetLength(unsigned char) const
{
  return static_cast<int>(CountOf(*this, _Kind));
}

HRESULT VOXAnalysisExplicitList::GetContents(int& oCount, VOXSamModelDataRoot**& oObjects) const
{
  if (Faults::Enter("VOXAnalysisExplicitList::GetContents") || VOXExplicitAccess::Object(*this) == nullptr)
    return E_FAIL;
  const std::size_t count = CountOf(*this, _Kind);
  VOXSamModelDataRoot** objects = nullptr;
  if (count != 0)
  {
    objects = new (std::nothrow) VOXSamModelDataRoot*[count];
    if (objects == nullptr)
      return E_FAIL;
    for (std::size_t i = 0; i < count; ++i)
      objects[i] = ItemOf(*this, _Kind, i);
  }
  oCount = static_cast<int>(count);
  oObjects = voxhost::Ledger::HandOut(objects);
  return S_OK;
}

VOXAnalysisExplicitListUsr::VOXAnalysisExplicitListUsr()
{
  _Kind = voxhost::kListItems;
}

VOXAnalysisExplicitListUsr::VOXAnalysisExplicitListUsr(const VOXAnalysisExplicitListUsr& iOther) = default;

VOXAnalysisExplicitListUsr& VOXAnalysisExplicitListUsr::operator=(const VOXAnalysisExplicitListUsr& iOther) = default;

VOXAnalysisExplicitListUsr& VOXAnalysisExplicitListUsr::operator=(const VOXAnalysisExplicitData& iOther)
{
  VOXExplicitAccess::FillList(*this, iOther, voxhost::kListItems);
  return *this;
}

HRESULT VOXAnalysisExplicitListUsr::CreateList(const VOXAnalysisExplicitModel* iModel)
{
  if (Faults::Enter("VOXAnalysisExplicitListUsr::CreateList") || iModel == nullptr)
    return E_FAIL;
  auto* const model = static_cast<ExplicitModel*>(const_cast<VOXAnalysisExplicitModel*>(iModel));
  VOXAnalysisExplicitData made;
  VOXExplicitAccess::Target(made, model, &model->NewRecord(ObjectKind::UserList).head);
  VOXExplicitAccess::FillList(*this, made, voxhost::kListItems);
  return S_OK;
}

VOXAnalysisExplicitListUsr& VOXAnalysisExplicitListUsr::First(unsigned char iCheck)
{
  _Cursor = -1;
  return Next(iCheck);
}

VOXAnalysisExplicitListUsr& VOXAnalysisExplicitListUsr::Next(unsigned char iCheck)
{
  const int length = GetLength(0);
  do
    VOXAnalysisExplicitList::Next();
  while (iCheck != 0 && _Current == NULL_exp && _Cursor + 1 < length);
  return *this;
}

HRESULT VOXAnalysisExplicitListUsr::Append(const VOXAnalysisExplicitData& iItem)
{
  Record* const list = VOXExplicitAccess::RecordOf(*this);
  VOXSamModelDataRoot* const item = VOXExplicitAccess::Object(iItem);
  if (Faults::Enter("VOXAnalysisExplicitListUsr::Append") || list == nullptr || item == nullptr)
    return E_FAIL;
  list->children.push_back(item);
  return S_OK;
}

HRESULT VOXAnalysisExplicitListUsr::Insert(VOXAnalysisExplicitList& iItems, unsigned char iUnique)
{
  Record* const list = VOXExplicitAccess::RecordOf(*this);
  if (Faults::Enter("VOXAnalysisExplicitListUsr::Insert") || list == nullptr || iItems == NULL_exp)
    return E_FAIL;
  const int kind = VOXExplicitAccess::KindOf(iItems);
  const std::size_t count = CountOf(iItems, kind); // before anything is appended: the lists may be one
  for (std::size_t i = 0; i < count; ++i)
  {
    VOXSamModelDataRoot* const item = ItemOf(iItems, kind, i);
    const auto& items = list->children;
    if (iUnique == 0 || std::find(items.begin(), items.end(), item) == items.end())
      list->children.push_back(item);
  }
  return S_OK;
}

HRESULT VOXAnalysisExplicitListUsr::Delete()
{
  Record* const list = VOXExplicitAccess::RecordOf(*this);
  if (Faults::Enter("VOXAnalysisExplicitListUsr::Delete") || list == nullptr)
    return E_FAIL;
  VOXExplicitAccess::Model(*this)->Kill(*list);
  VOXExplicitAccess::FillList(*this, VOXAnalysisExplicitData(), voxhost::kListItems);
  return S_OK;
}
