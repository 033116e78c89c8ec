// SPDX-License-Identifier: MIT
// Components, interfaces and late types.
#include "Runtime.h"

#include "ComponentRuntime/VOXFatalError.h"
#include "Log.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <new>

struct VOXMetaClassData
{
  std::string name;
  IID identifier;
  VOXMetaClass* base;
};

namespace otherhost
{
namespace
{

// Never destroyed: descriptions and late types live as long as the process.
template <class Value>
std::map<std::string, Value>& Registry()
{
  static auto* const registry = new std::map<std::string, Value>;
  return *registry;
}

} // namespace

LiveObjects& LiveObjects::Count()
{
  static LiveObjects live;
  return live;
}

LateType* LateType::Find(const char* iName)
{
  const auto found = Registry<LateType>().find(iName == nullptr ? "" : iName);
  return found == Registry<LateType>().end() ? nullptr : &found->second;
}

bool LateType::IsOrDerivesFrom(const char* iName) const
{
  for (const LateType* type = this; type != nullptr; type = type->base)
    if (type->name == iName)
      return true;
  return false;
}

} // namespace otherhost

using otherhost::LateType;
using otherhost::LiveObjects;

bool VOXComponentRuntime::Implement(VOXBaseUnknown* ioObject, const char* iLateType)
{
  LateType* const type = LateType::Find(iLateType);
  if (type == nullptr)
    return false;
  ioObject->_Record = new VOXComponentRecord{type, {}};
  return true;
}

VOXBaseUnknown* VOXComponentRuntime::RootOf(const VOXBaseUnknown* iObject)
{
  return iObject->_Implementation != nullptr ? iObject->_Implementation : const_cast<VOXBaseUnknown*>(iObject);
}

const LateType* VOXComponentRuntime::TypeOf(const VOXBaseUnknown* iRoot)
{
  return iRoot->_Record == nullptr ? nullptr : iRoot->_Record->type;
}

VOXBaseUnknown* VOXComponentRuntime::FaceOf(VOXBaseUnknown* iRoot, const IID& iInterface)
{
  if (iInterface == IID_VOXBaseUnknown)
    return iRoot;
  VOXComponentRecord* const record = iRoot->_Record;
  if (record == nullptr || record->isClosing)
    return nullptr;
  for (const auto& [identifier, face] : record->faces)
    if (identifier == iInterface)
      return face;

  const auto* const declared =
      record->type->FindDeclaration([&](const auto& iDeclaration) { return iDeclaration.interfaceId == iInterface; });
  VOXBaseUnknown* const made = declared == nullptr ? nullptr : declared->factory();
  if (made == nullptr)
    return nullptr;
  record->faces.emplace_back(iInterface, made);
  made->SetImpl(iRoot); // virtual: a tie takes its adaptor along
  return made;
}

// Each face counts for itself once it is detached, so that giving back the component's reference frees it.
void VOXComponentRuntime::Close(VOXBaseUnknown* iRoot)
{
  VOXComponentRecord* const record = iRoot->_Record;
  if (record != nullptr && record->isClosing)
    return;
  if (record != nullptr)
    record->isClosing = true;
  while (record != nullptr && !record->faces.empty())
  {
    VOXBaseUnknown* const face = record->faces.back().second;
    record->faces.pop_back();
    face->SetImpl(nullptr);
    face->Release();
  }
  delete iRoot;
}

VOXMetaClass* VOXComponentRuntime::Describe(const char* iName, VOXMetaClass* iBase)
{
  return new VOXMetaClass(new VOXMetaClassData{iName, VOXGuidOfName(iName), iBase});
}

VOXBaseUnknown::VOXBaseUnknown() : _Implementation(nullptr), _Record(nullptr), _Count(1)
{
  ++LiveObjects::Count().components;
}

VOXBaseUnknown::VOXBaseUnknown(const VOXBaseUnknown&) : VOXBaseUnknown() {}

VOXBaseUnknown& VOXBaseUnknown::operator=(const VOXBaseUnknown&)
{
  return *this;
}

VOXBaseUnknown::~VOXBaseUnknown()
{
  delete _Record;
  --LiveObjects::Count().components;
}

void* VOXBaseUnknown::operator new(std::size_t iSize) noexcept
{
  return std::malloc(iSize);
}

void VOXBaseUnknown::operator delete(void* iMemory)
{
  std::free(iMemory);
}

HRESULT VOXBaseUnknown::QueryInterface(const IID& iInterface, void** oFace)
{
  if (oFace == nullptr)
    return E_INVALIDARG;
  *oFace = nullptr;
  VOXBaseUnknown* const face = VOXComponentRuntime::FaceOf(VOXComponentRuntime::RootOf(this), iInterface);
  if (face == nullptr)
    return E_NOINTERFACE;
  face->AddRef();
  *oFace = face;
  return S_OK;
}

VOXBaseUnknown* VOXBaseUnknown::QueryInterface(const char* iInterfaceName) const
{
  if (iInterfaceName == nullptr)
    return nullptr;
  VOXBaseUnknown* const root = VOXComponentRuntime::RootOf(this);
  void* face = nullptr;
  const LateType* const type = VOXComponentRuntime::TypeOf(root);
  const auto* const declared = type == nullptr
                                   ? nullptr
                                   : type->FindDeclaration([&](const auto& iDeclaration)
                                                           { return iDeclaration.interfaceName == iInterfaceName; });
  if (declared != nullptr)
    root->QueryInterface(declared->interfaceId, &face);
  else if (IID_VOXBaseUnknown == VOXGuidOfName(iInterfaceName))
    root->QueryInterface(IID_VOXBaseUnknown, &face);
  return static_cast<VOXBaseUnknown*>(face);
}

unsigned long VOXBaseUnknown::AddRef()
{
  return static_cast<unsigned long>(++VOXComponentRuntime::RootOf(this)->_Count);
}

unsigned long VOXBaseUnknown::Release()
{
  VOXBaseUnknown* const root = VOXComponentRuntime::RootOf(this);
  const std::uint64_t left = --root->_Count;
  if (left == 0)
    VOXComponentRuntime::Close(root);
  return static_cast<unsigned long>(left);
}

HRESULT VOXBaseUnknown::GetTypeInfoCount(unsigned int* oCount)
{
  *oCount = 0;
  return E_NOTIMPL;
}

HRESULT VOXBaseUnknown::GetTypeInfo(unsigned int, unsigned long, VOXTypeInfo** oInfo)
{
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

VOXMetaClass* VOXBaseUnknown::GetMetaObject() const
{
  LateType* const type = _Record == nullptr ? nullptr : _Record->type;
  if (type == nullptr)
    return MetaObject();
  if (type->description == nullptr)
    type->description = VOXComponentRuntime::Describe(type->name.c_str(), MetaObject());
  return type->description;
}

const char* VOXBaseUnknown::IsA() const
{
  return GetMetaObject()->IsA();
}

int VOXBaseUnknown::IsAKindOf(const char* iName) const
{
  if (iName == nullptr)
    return 0;
  const LateType* const type = VOXComponentRuntime::TypeOf(this);
  return (type != nullptr && type->IsOrDerivesFrom(iName)) || GetMetaObject()->IsAKindOf(iName) ? 1 : 0;
}

VOXBaseUnknown* VOXBaseUnknown::GetImpl(int) const
{
  return VOXComponentRuntime::RootOf(this);
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

VOXMetaClass* VOXBaseUnknown::MetaObject()
{
  static VOXMetaClass* const description = VOXComponentRuntime::Describe("VOXBaseUnknown", nullptr);
  return description;
}

const IID& VOXBaseUnknown::ClassId()
{
  return IID_VOXBaseUnknown;
}

const char* VOXBaseUnknown::ClassName()
{
  return "VOXBaseUnknown";
}

VOXMetaClass::VOXMetaClass(VOXMetaClassData* iData) : _Data(iData) {}

VOXMetaClass::~VOXMetaClass()
{
  delete _Data;
}

const IID& VOXMetaClass::GetClassId() const
{
  return _Data->identifier;
}

const char* VOXMetaClass::IsA() const
{
  return _Data->name.c_str();
}

int VOXMetaClass::IsAKindOf(const char* iName) const
{
  for (const VOXMetaClass* description = this; description != nullptr && iName != nullptr;
       description = description->_Data->base)
    if (description->_Data->name == iName)
      return 1;
  return 0;
}

VOXMetaClass* fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass, VOXMetaClass* iBase, const char*,
                                     const char*, int)
{
  if (iClassName == nullptr)
    return nullptr;
  VOXMetaClass*& description = otherhost::Registry<VOXMetaClass*>()[iClassName];
  if (description == nullptr)
    description = VOXComponentRuntime::Describe(iClassName, iBase);
  return description;
}

HRESULT VOXDeclareLateType(const char* iLateType, const char* iBaseType)
{
  const LateType* const base = LateType::Find(iBaseType);
  if (iLateType == nullptr || (iBaseType != nullptr && base == nullptr))
    return E_INVALIDARG;
  if (const LateType* const known = LateType::Find(iLateType))
    return known->base == base ? S_FALSE : E_INVALIDARG;
  otherhost::Registry<LateType>()[iLateType] = LateType{iLateType, base, {}, nullptr};
  return S_OK;
}

HRESULT VOXDeclareExtension(const char* iLateType, const IID& iInterface, const char* iInterfaceName,
                            VOXExtensionFactory iFactory)
{
  LateType* const type = LateType::Find(iLateType);
  if (type == nullptr || iInterfaceName == nullptr || iFactory == nullptr)
    return E_INVALIDARG;
  for (LateType::Declaration& declaration : type->declarations)
  {
    if (declaration.interfaceId != iInterface)
      continue;
    declaration.factory = iFactory;
    return S_FALSE;
  }
  type->declarations.push_back({iInterface, iInterfaceName, iFactory});
  return S_OK;
}

// This host has no handler to install: a fatal error ends the program, whoever watches.
void VOXFatalError(const char* iText, const char*, const char*, const char*, const char* iFile, int iLine)
{
  std::fprintf(stderr, "%s:%d: %s\n", iFile, iLine, iText);
  std::abort();
}

void VOXSysCheckFailure(const char* iText, const char*, const char*, const char*, const char* iFile, int iLine)
{
  otherhost::Log::Get().failedChecks.push_back(std::string(iFile) + ":" + std::to_string(iLine) + ": " + iText);
}
