// SPDX-License-Identifier: MIT
// Lists over the objects of a model.
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "Model.h"

#include <algorithm>
#include <new>

using otherhost::Model;
using otherhost::Object;

namespace
{

const std::vector<Object*>& ItemsOf(const VOXAnalysisExplicitData& iList, int iKind)
{
  static const std::vector<Object*> none;
  const Object* const owner = VOXExplicitAccess::Object(iList);
  if (owner == nullptr)
    return none;
  return iKind == VOXExplicitAccess::kParents ? owner->parents : owner->children;
}

Object* ItemAt(const std::vector<Object*>& iItems, int iPlace)
{
  return iPlace >= 0 && static_cast<std::size_t>(iPlace) < iItems.size() ? iItems[static_cast<std::size_t>(iPlace)]
                                                                         : nullptr;
}

} // namespace

void VOXExplicitAccess::Fill(VOXAnalysisExplicitList& ioList, otherhost::Object* iOwner, Kind iKind)
{
  Target(ioList, iOwner);
  Target(ioList._Current, nullptr);
  ioList._Kind = iKind;
  ioList._Cursor = -1;
}

VOXAnalysisExplicitList::VOXAnalysisExplicitList() : _Kind(VOXExplicitAccess::kChildren), _Cursor(-1) {}

VOXAnalysisExplicitList::VOXAnalysisExplicitList(const VOXAnalysisExplicitData& iOwner)
    : VOXAnalysisExplicitData(iOwner),
      _Kind(VOXExplicitAccess::kChildren),
      _Cursor(-1)
{
}

VOXAnalysisExplicitList& VOXAnalysisExplicitList::operator=(const VOXAnalysisExplicitData& iOwner)
{
  VOXExplicitAccess::Fill(*this, VOXExplicitAccess::Object(iOwner), VOXExplicitAccess::kChildren);
  return *this;
}

VOXAnalysisExplicitList& VOXAnalysisExplicitList::First()
{
  _Cursor = -1;
  return Next();
}

VOXAnalysisExplicitList& VOXAnalysisExplicitList::Next()
{
  const std::vector<Object*>& items = ItemsOf(*this, _Kind);
  _Cursor = std::min(_Cursor + 1, static_cast<int>(items.size()));
  VOXExplicitAccess::Target(_Current, ItemAt(items, _Cursor));
  return *this;
}

const VOXAnalysisExplicitChild& VOXAnalysisExplicitList::operator*() const
{
  return _Current;
}

int VOXAnalysisExplicitList::GetLength(unsigned char) const
{
  return static_cast<int>(ItemsOf(*this, _Kind).size());
}

HRESULT VOXAnalysisExplicitList::GetContents(int& oCount, VOXSamModelDataRoot**& oObjects) const
{
  if (*this == NULL_exp)
    return E_FAIL;
  const std::vector<Object*>& items = ItemsOf(*this, _Kind);
  auto** const objects = items.empty() ? nullptr : new (std::nothrow) VOXSamModelDataRoot*[items.size()];
  if (objects == nullptr && !items.empty())
    return E_FAIL;
  std::copy(items.begin(), items.end(), objects);
  oCount = static_cast<int>(items.size());
  oObjects = objects;
  return S_OK;
}

VOXAnalysisExplicitListUsr::VOXAnalysisExplicitListUsr() = default;
VOXAnalysisExplicitListUsr::VOXAnalysisExplicitListUsr(const VOXAnalysisExplicitListUsr&) = default;
VOXAnalysisExplicitListUsr& VOXAnalysisExplicitListUsr::operator=(const VOXAnalysisExplicitListUsr&) = default;

VOXAnalysisExplicitListUsr& VOXAnalysisExplicitListUsr::operator=(const VOXAnalysisExplicitData& iOther)
{
  VOXAnalysisExplicitList::operator=(iOther);
  return *this;
}

HRESULT VOXAnalysisExplicitListUsr::CreateList(const VOXAnalysisExplicitModel* iModel)
{
  if (iModel == nullptr)
    return E_FAIL;
  Model* const model = static_cast<Model*>(const_cast<VOXAnalysisExplicitModel*>(iModel));
  VOXExplicitAccess::Fill(*this, model->NewList(), VOXExplicitAccess::kChildren);
  return S_OK;
}

VOXAnalysisExplicitListUsr& VOXAnalysisExplicitListUsr::First(unsigned char iCheck)
{
  _Cursor = -1;
  return Next(iCheck);
}

VOXAnalysisExplicitListUsr& VOXAnalysisExplicitListUsr::Next(unsigned char iCheck)
{
  const std::vector<Object*>& items = ItemsOf(*this, _Kind);
  do
    VOXAnalysisExplicitList::Next();
  while (iCheck && ItemAt(items, _Cursor) != nullptr && ItemAt(items, _Cursor)->isGone);
  return *this;
}

HRESULT VOXAnalysisExplicitListUsr::Append(const VOXAnalysisExplicitData& iItem)
{
  Object* const list = VOXExplicitAccess::Object(*this);
  Object* const item = VOXExplicitAccess::Object(iItem);
  if (list == nullptr || item == nullptr)
    return E_FAIL;
  list->children.push_back(item);
  return S_OK;
}

HRESULT VOXAnalysisExplicitListUsr::Insert(VOXAnalysisExplicitList& iItems, unsigned char iUnique)
{
  Object* const list = VOXExplicitAccess::Object(*this);
  VOXSamModelDataRoot** objects = nullptr;
  int count = 0;
  if (list == nullptr || FAILED(iItems.GetContents(count, objects)))
    return E_FAIL;
  for (int i = 0; i < count; ++i)
    if (!iUnique || std::find(list->children.begin(), list->children.end(), objects[i]) == list->children.end())
      list->children.push_back(objects[i]);
  delete[] objects;
  return S_OK;
}

HRESULT VOXAnalysisExplicitListUsr::Delete()
{
  Object* const list = VOXExplicitAccess::Object(*this);
  if (list == nullptr)
    return E_FAIL;
  list->model->Delete(*list);
  VOXExplicitAccess::Fill(*this, nullptr, VOXExplicitAccess::kChildren);
  return S_OK;
}
