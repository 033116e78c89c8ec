// SPDX-License-Identifier: MIT
// The explicit model and the handles on its objects.
#include "Model.h"

#include "ExplicitModel/VOXAnalysisEntityCollector.h"
#include "ExplicitModel/VOXAnalysisExplicitList.h"
#include "ExplicitModel/VOXAnalysisExplicitServices.h"
#include "Runtime.h"

#include <algorithm>
#include <new>

namespace otherhost
{
namespace
{

// The model gives back its references on the collectors at an object.
void ReleaseCollectors(const Object& iObject)
{
  while (!iObject.collectors.empty())
  {
    VOXAnalysisCollectorRoot* const collector = iObject.collectors.back();
    VOXExplicitAccess::Detach(*collector);
    collector->Release();
  }
}

void Erase(std::vector<Object*>& ioObjects, const Object* iObject)
{
  ioObjects.erase(std::remove(ioObjects.begin(), ioObjects.end(), iObject), ioObjects.end());
}

bool g_displaysErrors = true;

} // namespace

Model::Model()
{
  globalFrame = New("AXIS", nullptr);
}

Model::~Model()
{
  for (const std::unique_ptr<Object>& object : _Objects)
    ReleaseCollectors(*object);
}

Object* Model::Keep(Object iObject)
{
  iObject.tag = static_cast<int>(_Objects.size()) + 1;
  iObject.changedAt = ++clock;
  return _Objects.emplace_back(std::make_unique<Object>(std::move(iObject))).get();
}

Object* Model::New(const std::string& iType, Object* iParent)
{
  const auto number = rules.numbers.find(iType);
  if (number == rules.numbers.end())
    return nullptr;
  Object* const made = Keep({this, 0, number->second, rules.Find(number->second)->category});
  if (iParent != nullptr)
  {
    made->parents.push_back(iParent);
    iParent->children.push_back(made);
    Touch(*iParent);
  }
  return made;
}

Object* Model::NewList()
{
  ++LiveObjects::Count().userLists;
  Object* const made = Keep({this, 0, VOXSamPhysicalTypeNone});
  made->isList = true;
  return made;
}

Object* Model::Find(int iTag) const
{
  if (iTag < 1 || static_cast<std::size_t>(iTag) > _Objects.size())
    return nullptr;
  Object* const found = _Objects[static_cast<std::size_t>(iTag) - 1].get();
  return found->isGone ? nullptr : found;
}

void Model::Touch(Object& ioObject)
{
  ioObject.changedAt = ++clock;
  for (Object* const parent : ioObject.parents)
    Touch(*parent);
}

void Model::Delete(Object& ioObject)
{
  ioObject.isGone = true;
  if (ioObject.isList)
  {
    --LiveObjects::Count().userLists;
    return;
  }
  ReleaseCollectors(ioObject);
  for (Object* const parent : ioObject.parents)
  {
    Erase(parent->children, &ioObject);
    Touch(*parent);
  }
  for (Object* const child : std::vector<Object*>(ioObject.children))
  {
    Erase(child->parents, &ioObject);
    if (child->parents.empty())
      Delete(*child);
  }
}

} // namespace otherhost

using otherhost::Model;
using otherhost::Object;

Object* VOXExplicitAccess::Object(const VOXAnalysisExplicitData& iHandle)
{
  otherhost::Object* const object = iHandle._Object;
  return object == nullptr || object->isGone ? nullptr : object;
}

Model* VOXExplicitAccess::Model(const VOXAnalysisExplicitData& iHandle)
{
  return Object(iHandle) == nullptr ? nullptr : Object(iHandle)->model;
}

void VOXExplicitAccess::Target(VOXAnalysisExplicitData& ioHandle, otherhost::Object* iObject)
{
  ioHandle._Model = iObject == nullptr ? nullptr : iObject->model;
  ioHandle._Object = iObject;
}

VOXAnalysisExplicitModel::VOXAnalysisExplicitModel() = default;
VOXAnalysisExplicitModel::~VOXAnalysisExplicitModel() = default;

const VOXAnalysisExplicitRulesData* VOXAnalysisExplicitModel::GetRulesData() const
{
  return &static_cast<const Model*>(this)->rules;
}

HRESULT VOXAnalysisExplicitModel::GetGlobalRefFrame(VOXAnalysisExplicitAxis& oAxis) const
{
  VOXExplicitAccess::Target(oAxis, static_cast<const Model*>(this)->globalFrame);
  return S_OK;
}

unsigned char VOXAnalysisExplicitModel::DisplayErrors(unsigned char iDisplay)
{
  const bool previous = otherhost::g_displaysErrors;
  otherhost::g_displaysErrors = iDisplay != 0;
  return previous ? 1 : 0;
}

VOXAnalysisExplicitData::VOXAnalysisExplicitData() : _Model(nullptr), _Object(nullptr) {}
VOXAnalysisExplicitData::VOXAnalysisExplicitData(const VOXAnalysisExplicitData&) = default;
VOXAnalysisExplicitData& VOXAnalysisExplicitData::operator=(const VOXAnalysisExplicitData&) = default;
VOXAnalysisExplicitData::~VOXAnalysisExplicitData() = default;

const VOXAnalysisExplicitData NULL_exp;

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
  return VOXExplicitAccess::Model(*this);
}

// Each handle is made empty, or from another one, which re-targets it.
#define OTHERHOST_HANDLE(Handle, Base)                                                                                 \
  Handle::Handle() = default;                                                                                          \
  Handle::Handle(const VOXAnalysisExplicitData& iOther) : Base(iOther) {}                                              \
  Handle& Handle::operator=(const VOXAnalysisExplicitData& iOther)                                                     \
  {                                                                                                                    \
    VOXAnalysisExplicitData::operator=(iOther);                                                                        \
    return *this;                                                                                                      \
  }

OTHERHOST_HANDLE(VOXAnalysisExplicitChild, VOXAnalysisExplicitData)
OTHERHOST_HANDLE(VOXAnalysisExplicitParent, VOXAnalysisExplicitChild)
OTHERHOST_HANDLE(VOXAnalysisExplicitEntity, VOXAnalysisExplicitParent)
OTHERHOST_HANDLE(VOXAnalysisExplicitExpression, VOXAnalysisExplicitChild)
OTHERHOST_HANDLE(VOXAnalysisExplicitAxis, VOXAnalysisExplicitChild)

namespace
{

// A read of one member of the object behind a handle.
template <class Value, class Answer>
HRESULT Read(const VOXAnalysisExplicitData& iHandle, Value Object::*iMember, Answer& oAnswer)
{
  const Object* const object = VOXExplicitAccess::Object(iHandle);
  if (object == nullptr)
    return E_FAIL;
  oAnswer = object->*iMember;
  return S_OK;
}

// An array for the caller; null when there is nothing to hand out. False without memory.
template <class T>
bool HandOut(const std::vector<T>& iValues, T*& oArray)
{
  T* const array = iValues.empty() ? nullptr : new (std::nothrow) T[iValues.size()];
  if (array == nullptr && !iValues.empty())
    return false;
  std::copy(iValues.begin(), iValues.end(), array);
  oArray = array;
  return true;
}

HRESULT Link(VOXAnalysisExplicitData& ioHandle, Object* iObject, bool iIsGood)
{
  VOXExplicitAccess::Target(ioHandle, iObject);
  return iIsGood ? S_OK : E_FAIL;
}

} // namespace

HRESULT VOXAnalysisExplicitChild::GetPhysicalType(int& oType) const
{
  return Read(*this, &Object::type, oType);
}

HRESULT VOXAnalysisExplicitChild::GetTag(int& oTag) const
{
  return Read(*this, &Object::tag, oTag);
}

HRESULT VOXAnalysisExplicitChild::GetStatus(int& oStatus) const
{
  return Read(*this, &Object::status, oStatus);
}

HRESULT VOXAnalysisExplicitChild::GetParentList(VOXAnalysisExplicitList& oParents) const
{
  Object* const object = VOXExplicitAccess::Object(*this);
  if (object == nullptr)
    return E_FAIL;
  VOXExplicitAccess::Fill(oParents, object, VOXExplicitAccess::kParents);
  return S_OK;
}

HRESULT VOXAnalysisExplicitChild::LinkWithTag(int iTag, const VOXAnalysisExplicitModel* iModel)
{
  const auto* const model = static_cast<const Model*>(iModel);
  return Link(*this, model == nullptr ? nullptr : model->Find(iTag), model != nullptr);
}

HRESULT VOXAnalysisExplicitChild::LinkWithPointer(VOXSamModelDataRoot* const& iObject,
                                                  const VOXAnalysisExplicitModel* iModel)
{
  const auto* const model = static_cast<const Model*>(iModel);
  const bool isGood = model != nullptr && model->Owns(iObject);
  return Link(*this, isGood ? iObject : nullptr, isGood);
}

HRESULT VOXAnalysisExplicitChild::Delete()
{
  Object* const object = VOXExplicitAccess::Object(*this);
  if (object == nullptr || object == object->model->globalFrame)
    return E_FAIL;
  object->model->Delete(*object);
  return Link(*this, nullptr, true);
}

HRESULT VOXAnalysisExplicitParent::GetCategory(VOXSamValue& oCategory) const
{
  return Read(*this, &Object::category, oCategory);
}

HRESULT VOXAnalysisExplicitParent::GetChildrenList(VOXAnalysisExplicitList& oChildren) const
{
  Object* const object = VOXExplicitAccess::Object(*this);
  if (object == nullptr)
    return E_FAIL;
  VOXExplicitAccess::Fill(oChildren, object, VOXExplicitAccess::kChildren);
  return S_OK;
}

HRESULT VOXAnalysisExplicitParent::GetChildrenList(VOXAnalysisExplicitListUsr& ioChildren, VOXSamCompareType iCompare,
                                                   const void* iValue, unsigned char, unsigned char) const
{
  const Object* const object = VOXExplicitAccess::Object(*this);
  Object* const list = VOXExplicitAccess::Object(ioChildren);
  if (object == nullptr || list == nullptr)
    return E_FAIL;
  const int value = iValue == nullptr ? 0 : *static_cast<const int*>(iValue);
  for (Object* const child : object->children)
    if (iCompare == VOXSamCompareNone || (iCompare == VOXSamComparePhysicalType && child->type == value) ||
        (iCompare == VOXSamCompareCategory && child->category == value))
      list->children.push_back(child);
  return S_OK;
}

HRESULT VOXAnalysisExplicitParent::FindEntityCollector(const VOXSamValue& iValue, const VOXString& iName,
                                                       VOXAnalysisEntityCollector*& oCollector) const
{
  oCollector = nullptr;
  const Object* const object = VOXExplicitAccess::Object(*this);
  if (object == nullptr)
    return E_FAIL;
  for (VOXAnalysisCollectorRoot* const collector : object->collectors)
  {
    const VOXCollectorData& data = VOXExplicitAccess::Data(*collector);
    if (!data.isCharac && data.value == iValue && data.name == iName)
      oCollector = static_cast<VOXAnalysisEntityCollector*>(collector);
  }
  return S_OK;
}

HRESULT VOXAnalysisExplicitParent::DeleteCharacCollector(const VOXAnalysisCharacCollector*& ioCollector)
{
  const Object* const object = VOXExplicitAccess::Object(*this);
  for (VOXAnalysisCollectorRoot* const collector :
       object == nullptr ? std::vector<VOXAnalysisCollectorRoot*>() : object->collectors)
  {
    if (collector != ioCollector)
      continue;
    ioCollector = nullptr;
    VOXExplicitAccess::Detach(*collector);
    collector->Release();
    return S_OK;
  }
  return E_FAIL;
}

HRESULT VOXAnalysisExplicitParent::DeleteAll()
{
  const Object* const object = VOXExplicitAccess::Object(*this);
  if (object == nullptr)
    return E_FAIL;
  for (VOXAnalysisCollectorRoot* const collector : std::vector<VOXAnalysisCollectorRoot*>(object->collectors))
  {
    if (!VOXExplicitAccess::Data(*collector).isCharac)
      continue;
    VOXExplicitAccess::Detach(*collector);
    collector->Release();
  }
  return S_OK;
}

HRESULT VOXAnalysisExplicitEntity::GetApplyTo(int& oCount, VOXSamModelDataRoot**& oObjects, VOXSamPosition& oPosition,
                                              int*& oIndices, VOXSamApplyQualifier*& oQualifiers, unsigned char) const
{
  oCount = 0;
  oObjects = nullptr;
  oIndices = nullptr;
  oQualifiers = nullptr; // this model has no top and bottom
  const Object* const object = VOXExplicitAccess::Object(*this);
  if (object == nullptr || !HandOut(object->targets, oObjects))
    return E_FAIL;
  if (!HandOut(object->sides, oIndices))
  {
    delete[] oObjects;
    oObjects = nullptr;
    return E_FAIL;
  }
  oCount = static_cast<int>(object->targets.size());
  oPosition = object->position;
  return S_OK;
}

HRESULT VOXAnalysisExplicitServices::SetFeatureInfosForSetOrEntity(VOXAnalysisExplicitParent& ioParent, short iKind,
                                                                   unsigned int iIdentifier)
{
  Object* const object = VOXExplicitAccess::Object(ioParent);
  if (object == nullptr)
    return E_FAIL;
  object->madeByKind = iKind;
  object->madeBy = iIdentifier;
  return S_OK;
}

HRESULT VOXAnalysisExplicitServices::GetFeaturePointerForSetOrEntity(VOXAnalysisExplicitParent& iParent,
                                                                     void*& oPointer)
{
  return Read(iParent, &Object::madeByPointer, oPointer);
}

HRESULT VOXAnalysisExplicitServices::SetFeaturePointerForSetOrEntity(VOXAnalysisExplicitParent& ioParent,
                                                                     void* iPointer)
{
  Object* const object = VOXExplicitAccess::Object(ioParent);
  if (object == nullptr)
    return E_FAIL;
  object->madeByPointer = iPointer;
  return S_OK;
}
