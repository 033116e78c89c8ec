// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXBaseUnknown.h"

#include "ComponentRuntime/VOXMetaClass.h"
#include "host/ComponentRuntime/LateTypes.h"
#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <new>

using voxhost::Faults;
using voxhost::Ledger;

namespace
{

//! Implementation object of a component that carries no interface of its own.
class PlainComponent : public VOXBaseUnknown
{
public:
  VOXComponentRecord record;
};

} // namespace

bool VOXComponentRuntime::Implement(VOXBaseUnknown* iObject, VOXComponentRecord& iRecord, const char* iLateType)
{
  const voxhost::LateType* const type = voxhost::LateType::Find(iLateType);
  if (type == nullptr)
    return false;
  iRecord.type = type;
  iRecord.table = type->Faces();
  iObject->_Record = &iRecord;
  Ledger::ComponentBorn();
  Ledger::ReferenceGiven(); // the creator's
  return true;
}

VOXBaseUnknown* VOXComponentRuntime::ExistingFace(const VOXBaseUnknown* iComponent, const IID& iInterface)
{
  const VOXBaseUnknown* const root = iComponent == nullptr ? nullptr : iComponent->GetImpl();
  if (root == nullptr || root->_Record == nullptr)
    return nullptr;
  const int place = root->_Record->table->PlaceOf(iInterface);
  if (place == voxhost::FaceTable::kRoot)
    return const_cast<VOXBaseUnknown*>(root);
  return place < 0 || root->_Record->faces == nullptr ? nullptr : root->_Record->faces[place];
}

unsigned long VOXComponentRuntime::References(const VOXBaseUnknown* iObject)
{
  return iObject == nullptr ? 0 : static_cast<unsigned long>(iObject->GetImpl()->_Count);
}

HRESULT VOXComponentRuntime::Query(VOXBaseUnknown* iRoot, const IID& iInterface, void** oFace)
{
  VOXComponentRecord* const record = iRoot->_Record;
  const int place = record == nullptr || record->closing ? static_cast<int>(voxhost::FaceTable::kNone)
                                                         : record->table->PlaceOf(iInterface);
  VOXBaseUnknown* face = nullptr;
  if (place >= 0)
  {
    face = record->faces == nullptr ? nullptr : record->faces[place];
    if (face == nullptr)
      face = MakeFace(iRoot, place);
  }
  else if (place == voxhost::FaceTable::kRoot || iInterface == IID_VOXBaseUnknown)
    face = iRoot;
  if (face == nullptr)
    return E_NOINTERFACE;
  ++iRoot->_Count;
  Ledger::ReferenceGiven();
  *oFace = face;
  return S_OK;
}

VOXBaseUnknown* VOXComponentRuntime::MakeFace(VOXBaseUnknown* iRoot, int iPlace)
{
  VOXComponentRecord& record = *iRoot->_Record;
  const voxhost::FaceTable& table = *record.table;
  VOXExtensionFactory factory = nullptr;
  for (const voxhost::Face& face : table.faces)
    if (face.place == iPlace)
      factory = face.factory;
  VOXBaseUnknown* const made = factory();
  if (made == nullptr)
    return nullptr;
  if (record.faces == nullptr)
    record.faces = new VOXBaseUnknown*[static_cast<std::size_t>(table.extensions)]();
  made->SetImpl(iRoot);
  record.faces[iPlace] = made;
  Ledger::ExtensionBorn();
  return made;
}

unsigned long VOXComponentRuntime::GiveBack(VOXBaseUnknown* iRoot)
{
  const std::uint64_t left = --iRoot->_Count;
  if (left == 0)
    Close(iRoot);
  return static_cast<unsigned long>(left);
}

void VOXComponentRuntime::Close(VOXBaseUnknown* iRoot)
{
  VOXComponentRecord* const record = iRoot->_Record;
  if (record != nullptr)
  {
    iRoot->_Count = 1; // a face that takes and gives back references while it dies does not close the component again
    record->closing = true;
    for (int i = 0; record->faces != nullptr && i < record->table->extensions; ++i)
    {
      VOXBaseUnknown* const face = record->faces[i];
      if (face == nullptr)
        continue;
      face->SetImpl(nullptr);
      delete face;
      Ledger::ExtensionDied();
    }
    delete[] record->faces;
    record->faces = nullptr;
    Ledger::ComponentDied();
  }
  delete iRoot;
}

HRESULT VOXBaseUnknown::QueryInterface(const IID& iInterface, void** oFace)
{
  if (oFace == nullptr)
    return E_INVALIDARG;
  *oFace = nullptr;
  if (Faults::Enter("VOXBaseUnknown::QueryInterface"))
    return E_NOINTERFACE;
  return VOXComponentRuntime::Query(_Implementation != nullptr ? _Implementation : this, iInterface, oFace);
}

unsigned long VOXBaseUnknown::AddRef()
{
  VOXBaseUnknown* const root = _Implementation != nullptr ? _Implementation : this;
  if (root->_Record != nullptr)
    Ledger::ReferenceGiven();
  return static_cast<unsigned long>(++root->_Count);
}

unsigned long VOXBaseUnknown::Release()
{
  VOXBaseUnknown* const root = _Implementation != nullptr ? _Implementation : this;
  if (root->_Record != nullptr)
    Ledger::ReferenceReturned();
  return VOXComponentRuntime::GiveBack(root);
}

HRESULT VOXBaseUnknown::GetTypeInfoCount(unsigned int* oCount)
{
  if (oCount != nullptr)
    *oCount = 0;
  return E_NOTIMPL;
}

HRESULT VOXBaseUnknown::GetTypeInfo(unsigned int, unsigned long, VOXTypeInfo** oInfo)
{
  if (oInfo != nullptr)
    *oInfo = nullptr;
  return E_NOTIMPL;
}

HRESULT VOXBaseUnknown::GetIDsOfNames(const IID&, wchar_t**, unsigned int, unsigned long, long*)
{
  return E_NOTIMPL;
}

HRESULT VOXBaseUnknown::Invoke(long, const IID&, unsigned long, unsigned short, VOXDispatchParameters*)
{
  return E_NOTIMPL;
}

VOXBaseUnknown* VOXBaseUnknown::QueryInterface(const char* iInterfaceName) const
{
  if (Faults::Enter("VOXBaseUnknown::QueryInterface"))
    return nullptr;
  VOXBaseUnknown* const root = GetImpl();
  const voxhost::Face* const face = root->_Record == nullptr ? nullptr : root->_Record->table->Find(iInterfaceName);
  void* answer = nullptr;
  if (face != nullptr)
    VOXComponentRuntime::Query(root, face->interfaceId, &answer);
  return static_cast<VOXBaseUnknown*>(answer);
}

VOXBaseUnknown::~VOXBaseUnknown() = default;

VOXMetaClass* VOXBaseUnknown::GetMetaObject() const
{
  return _Record != nullptr ? _Record->type->Meta() : MetaObject();
}

const char* VOXBaseUnknown::IsA() const
{
  return GetMetaObject()->IsA();
}

int VOXBaseUnknown::IsAKindOf(const char* iName) const
{
  return Faults::Enter("VOXBaseUnknown::IsAKindOf") ? 0 : GetMetaObject()->IsAKindOf(iName);
}

VOXBaseUnknown* VOXBaseUnknown::GetImpl(int) const
{
  return _Implementation != nullptr ? _Implementation : const_cast<VOXBaseUnknown*>(this);
}

VOXBaseUnknown* VOXBaseUnknown::SetImpl(VOXBaseUnknown* iImplementation)
{
  VOXBaseUnknown* const previous = _Implementation;
  _Implementation = iImplementation == nullptr ? nullptr : iImplementation->GetImpl();
  return previous;
}

int VOXBaseUnknown::IsNull() const
{
  return 0;
}

int VOXBaseUnknown::IsEqual(const VOXBaseUnknown* iOther) const
{
  return iOther != nullptr && iOther->GetImpl() == GetImpl() ? 1 : 0;
}

HRESULT VOXBaseUnknown::ChangeComponentState(ComponentState, ComponentState, const VOXSysChangeComponentStateContext*)
{
  return S_OK;
}

VOXBaseUnknown::VOXBaseUnknown() : _Implementation(nullptr), _Record(nullptr), _Count(1) {}

VOXBaseUnknown::VOXBaseUnknown(const VOXBaseUnknown&) : VOXBaseUnknown() {}

VOXBaseUnknown& VOXBaseUnknown::operator=(const VOXBaseUnknown&)
{
  return *this;
}

void* VOXBaseUnknown::operator new(std::size_t iSize) noexcept
{
  return Faults::Enter("VOXBaseUnknown::operator new") ? nullptr : ::operator new(iSize, std::nothrow);
}

void VOXBaseUnknown::operator delete(void* iMemory)
{
  ::operator delete(iMemory);
}

VOXMetaClass* VOXBaseUnknown::MetaObject()
{
  static VOXMetaClass* const meta = VOXComponentRuntime::Describe("VOXBaseUnknown", VOXTypeImplementation, nullptr,
                                                                  "VOXBaseUnknown", "vox_host", sizeof(VOXBaseUnknown));
  return meta;
}

const IID& VOXBaseUnknown::ClassId()
{
  return IID_VOXBaseUnknown;
}

const char* VOXBaseUnknown::ClassName()
{
  return "VOXBaseUnknown";
}

namespace voxhost
{

VOXBaseUnknown* NewComponent(const char* iLateType)
{
  PlainComponent* const component = new PlainComponent;
  if (component == nullptr || VOXComponentRuntime::Implement(component, component->record, iLateType))
    return component;
  delete component;
  return nullptr;
}

} // namespace voxhost
