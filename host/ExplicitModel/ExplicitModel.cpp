// SPDX-License-Identifier: MIT
#include "host/ExplicitModel/ExplicitModel.h"

#include "ExplicitModel/VOXAnalysisCharacCollector.h"
#include "ExplicitModel/VOXAnalysisEntityCollector.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <algorithm>
#include <functional>

using voxhost::ExplicitModel;

namespace
{

constexpr int kNodeTags = 0x20000000;
constexpr int kElementTags = 0x40000000;
constexpr std::size_t kMostPlaces = 0x1fffffff;

unsigned char g_displaysErrors = 1;

const ExplicitModel& Reference(const VOXAnalysisExplicitModel& iModel)
{
  return static_cast<const ExplicitModel&>(iModel);
}

std::unique_ptr<VOXSamModelDataRoot[]> HeadsFor(const voxhost::SharedArray<std::int32_t>& iIds,
                                                voxhost::ObjectKind iKind)
{
  std::unique_ptr<VOXSamModelDataRoot[]> heads(new VOXSamModelDataRoot[iIds.size()]);
  for (std::size_t i = 0; i < iIds.size(); ++i)
    heads[i] = {iIds[i], static_cast<std::uint32_t>(iKind), static_cast<std::uint32_t>(i)};
  return heads;
}

bool IsIn(const VOXSamModelDataRoot* iObject, const VOXSamModelDataRoot* iBlock, std::size_t iSize)
{
  const std::less<const VOXSamModelDataRoot*> before;
  return !before(iObject, iBlock) && before(iObject, iBlock + iSize);
}

} // namespace

VOXAnalysisExplicitModel::VOXAnalysisExplicitModel() = default;
VOXAnalysisExplicitModel::~VOXAnalysisExplicitModel() = default;

const VOXAnalysisExplicitRulesData* VOXAnalysisExplicitModel::GetRulesData() const
{
  return voxhost::Faults::Enter("VOXAnalysisExplicitModel::GetRulesData") ? nullptr : Reference(*this).Rules();
}

HRESULT VOXAnalysisExplicitModel::GetGlobalRefFrame(VOXAnalysisExplicitAxis& oAxis) const
{
  VOXSamModelDataRoot* const frame = Reference(*this).GlobalFrame();
  if (voxhost::Faults::Enter("VOXAnalysisExplicitModel::GetGlobalRefFrame") || frame == nullptr)
    return E_FAIL;
  VOXExplicitAccess::Target(oAxis, const_cast<ExplicitModel*>(&Reference(*this)), frame);
  return S_OK;
}

unsigned char VOXAnalysisExplicitModel::DisplayErrors(unsigned char iDisplay)
{
  const unsigned char previous = g_displaysErrors;
  g_displaysErrors = iDisplay;
  return previous;
}

namespace voxhost
{

ExplicitModel::ExplicitModel(std::shared_ptr<const ExplicitRules> iRules) : _Rules(std::move(iRules))
{
  if (_Rules != nullptr)
  {
    _NodeType = _Rules->NumberOf("NODE");
    _ElementType = _Rules->NumberOf("ELEMENT");
  }
  SetGlobalFrame(true);
}

ExplicitModel::~ExplicitModel()
{
  for (const auto& record : _Records)
    if (!record->dead)
      Kill(*record);
}

Record& ExplicitModel::NewRecord(ObjectKind iKind)
{
  _Records.push_back(std::make_unique<Record>());
  Record& record = *_Records.back();
  record.head = {0, static_cast<std::uint32_t>(iKind), static_cast<std::uint32_t>(_Records.size() - 1)};
  if (iKind == ObjectKind::UserList)
    Ledger::UserListBorn();
  return record;
}

void ExplicitModel::Kill(Record& ioRecord)
{
  ioRecord.dead = true;
  if (ioRecord.head.Kind() == ObjectKind::UserList)
    Ledger::UserListDied();
  // Each asks to be forgotten here, and takes the model's own reference along.
  while (!ioRecord.entityCollectors.empty())
  {
    VOXAnalysisEntityCollector* const collector = ioRecord.entityCollectors.back();
    collector->RequestDelayedDestruction(1);
    collector->Release();
  }
  while (!ioRecord.characCollectors.empty())
  {
    VOXAnalysisCharacCollector* const collector = ioRecord.characCollectors.back();
    collector->RequestDelayedDestruction(1);
    collector->Release();
  }
  if (ioRecord.head.Kind() == ObjectKind::Record)
    for (VOXSamModelDataRoot* const parent : ioRecord.parents)
      RecordAt(*parent)->children.Remove(&ioRecord.head);
  ioRecord.children.Clear();
  ioRecord.applyTo = {};
}

VOXAnalysisExplicitEntity ExplicitModel::Create(const VOXAnalysisExplicitData& iParent,
                                                const std::string& iPhysicalType, const std::string& iName)
{
  VOXAnalysisExplicitEntity created;
  const int type = _Rules == nullptr ? VOXSamPhysicalTypeNone : _Rules->NumberOf(iPhysicalType);
  if (type == VOXSamPhysicalTypeNone)
    return created;
  Record& record = NewRecord(ObjectKind::Record);
  record.physicalType = type;
  record.name = iName;
  VOXExplicitAccess::Target(created, this, &record.head);
  AddChild(iParent, created);
  return created;
}

bool ExplicitModel::AddChild(const VOXAnalysisExplicitData& iParent, const VOXAnalysisExplicitData& iChild)
{
  Record* const parent = VOXExplicitAccess::RecordOf(iParent);
  Record* const child = VOXExplicitAccess::RecordOf(iChild);
  if (parent == nullptr || child == nullptr ||
      std::find(child->parents.begin(), child->parents.end(), &parent->head) != child->parents.end())
    return false;
  parent->children.push_back(&child->head);
  child->parents.push_back(&parent->head);
  Touch(*parent);
  return true;
}

bool ExplicitModel::SetMesh(const VOXAnalysisExplicitData& iOwner, MeshData iMesh)
{
  Record* const owner = VOXExplicitAccess::RecordOf(iOwner);
  if (owner == nullptr || iMesh.nodeIds.size() > kMostPlaces || iMesh.elementIds.size() > kMostPlaces)
    return false;
  if (_MeshOwner != nullptr)
    RecordAt(*_MeshOwner)->hasMesh = false;
  _Mesh = std::move(iMesh);
  _Nodes = HeadsFor(_Mesh.nodeIds, ObjectKind::Node);
  _Elements = HeadsFor(_Mesh.elementIds, ObjectKind::Element);
  _MeshOwner = &owner->head;
  owner->hasMesh = true;
  Touch(*owner);
  return true;
}

bool ExplicitModel::SetApplyTo(const VOXAnalysisExplicitData& iEntity, ApplyTo iApplyTo)
{
  Record* const record = VOXExplicitAccess::RecordOf(iEntity);
  const bool onNodes = iApplyTo.position == VOXSamPositionNode;
  const std::size_t limit = onNodes ? _Mesh.nodeIds.size() : _Mesh.elementIds.size();
  const bool sidesFit = iApplyTo.sides.empty() || iApplyTo.sides.size() == iApplyTo.places.size();
  const bool placesFit = std::all_of(iApplyTo.places.begin(), iApplyTo.places.end(),
                                     [limit](std::uint32_t place) { return place < limit; });
  if (record == nullptr || !sidesFit || !placesFit)
    return false;
  record->applyTo = std::move(iApplyTo);
  Touch(*record);
  return true;
}

bool ExplicitModel::SetStatus(const VOXAnalysisExplicitData& iObject, int iStatus)
{
  Record* const record = VOXExplicitAccess::RecordOf(iObject);
  if (record == nullptr)
    return false;
  record->status = iStatus;
  return true;
}

bool ExplicitModel::SetExpression(const VOXAnalysisExplicitData& iObject, ExpressionData iExpression)
{
  Record* const record = VOXExplicitAccess::RecordOf(iObject);
  if (record == nullptr)
    return false;
  record->expression.assign(1, std::move(iExpression));
  Touch(*record);
  return true;
}

bool ExplicitModel::SetAxis(const VOXAnalysisExplicitData& iObject, const AxisData& iAxis)
{
  Record* const record = VOXExplicitAccess::RecordOf(iObject);
  if (record == nullptr)
    return false;
  record->axis.assign(1, iAxis);
  Touch(*record);
  return true;
}

void ExplicitModel::Touch(const VOXAnalysisExplicitData& iObject)
{
  if (Record* const record = VOXExplicitAccess::RecordOf(iObject))
    Touch(*record);
}

void ExplicitModel::Touch(Record& ioRecord)
{
  ++ioRecord.stamp;
  for (VOXSamModelDataRoot* const parent : ioRecord.parents)
    Touch(*RecordAt(*parent));
}

void ExplicitModel::SetGlobalFrame(bool iHasOne)
{
  if (iHasOne == (_GlobalFrame != nullptr))
    return;
  if (!iHasOne)
  {
    Kill(*RecordAt(*_GlobalFrame));
    _GlobalFrame = nullptr;
    return;
  }
  Record& record = NewRecord(ObjectKind::Record);
  record.physicalType = _Rules == nullptr ? VOXSamPhysicalTypeNone : _Rules->NumberOf("AXIS");
  record.name = "Global";
  record.axis.resize(1);
  _GlobalFrame = &record.head;
}

VOXAnalysisExplicitChild ExplicitModel::FindNode(std::int32_t iId) const
{
  VOXAnalysisExplicitChild node;
  const std::int64_t place = PlaceOfId(_Mesh.nodeIds, iId);
  if (place >= 0)
    VOXExplicitAccess::Target(node, const_cast<ExplicitModel*>(this), &_Nodes[static_cast<std::size_t>(place)]);
  return node;
}

VOXAnalysisExplicitChild ExplicitModel::FindElement(std::int32_t iId) const
{
  VOXAnalysisExplicitChild element;
  const std::int64_t place = PlaceOfId(_Mesh.elementIds, iId);
  if (place >= 0)
    VOXExplicitAccess::Target(element, const_cast<ExplicitModel*>(this), &_Elements[static_cast<std::size_t>(place)]);
  return element;
}

const Record* ExplicitModel::RecordOf(const VOXAnalysisExplicitData& iObject) const
{
  return VOXExplicitAccess::RecordOf(iObject);
}

bool ExplicitModel::Owns(const VOXSamModelDataRoot* iObject) const
{
  if (IsIn(iObject, _Nodes.get(), _Mesh.nodeIds.size()) || IsIn(iObject, _Elements.get(), _Mesh.elementIds.size()))
    return true;
  const bool isRecord = iObject->Kind() == ObjectKind::Record || iObject->Kind() == ObjectKind::UserList;
  return isRecord && iObject->place < _Records.size() && &_Records[iObject->place]->head == iObject;
}

VOXSamModelDataRoot* ExplicitModel::FindTag(int iTag) const
{
  if (iTag >= kElementTags)
  {
    const auto place = static_cast<std::size_t>(iTag - kElementTags);
    return place < _Mesh.elementIds.size() ? &_Elements[place] : nullptr;
  }
  if (iTag >= kNodeTags)
  {
    const auto place = static_cast<std::size_t>(iTag - kNodeTags);
    return place < _Mesh.nodeIds.size() ? &_Nodes[place] : nullptr;
  }
  const auto place = static_cast<std::size_t>(iTag) - 1;
  return iTag >= 1 && place < _Records.size() && !_Records[place]->dead ? &_Records[place]->head : nullptr;
}

int ExplicitModel::TagOf(const VOXSamModelDataRoot& iObject) const
{
  const int place = static_cast<int>(iObject.place);
  if (iObject.Kind() == ObjectKind::Node)
    return kNodeTags + place;
  return iObject.Kind() == ObjectKind::Element ? kElementTags + place : place + 1;
}

int ExplicitModel::PhysicalTypeOf(const VOXSamModelDataRoot& iObject) const
{
  if (iObject.Kind() == ObjectKind::Node)
    return _NodeType;
  return iObject.Kind() == ObjectKind::Element ? _ElementType : RecordAt(iObject)->physicalType;
}

} // namespace voxhost
