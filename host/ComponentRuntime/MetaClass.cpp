// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXMetaClass.h"

#include "host/ComponentRuntime/Component.h"
#include "host/ComponentRuntime/MetaClasses.h"
#include "host/Instruments/Faults.h"

#include <cstring>
#include <map>

struct VOXMetaClassData
{
  voxhost::MetaClassDescription description;
  IID id;
  VOXMetaClass* base;
};

namespace
{

struct Registry
{
  std::map<std::string, std::pair<VOXMetaClass*, VOXMetaClassData*>, std::less<>> classes;
  int calls = 0;
};

// Never destroyed: descriptions are asked for until the process ends.
Registry& AllClasses()
{
  static Registry* const registry = new Registry;
  return *registry;
}

} // namespace

VOXMetaClass::VOXMetaClass(VOXMetaClassData* iData) : _Data(iData) {}

VOXMetaClass::~VOXMetaClass() = default;

const IID& VOXMetaClass::GetClassId() const
{
  return _Data->id;
}

const char* VOXMetaClass::IsA() const
{
  return _Data->description.className.c_str();
}

int VOXMetaClass::IsAKindOf(const char* iName) const
{
  for (const VOXMetaClass* meta = this; meta != nullptr && iName != nullptr; meta = meta->_Data->base)
    if (std::strcmp(meta->IsA(), iName) == 0)
      return 1;
  return 0;
}

VOXMetaClass* VOXComponentRuntime::Describe(const char* iClassName, ENUMTypeOfClass iKind, VOXMetaClass* iBase,
                                            const char* iLateType, const char* iLibrary, int iObjectSize)
{
  Registry& registry = AllClasses();
  const auto known = registry.classes.find(std::string_view(iClassName));
  if (known != registry.classes.end())
    return known->second.first;
  auto* const data =
      new VOXMetaClassData{{iClassName, iKind, iBase != nullptr ? iBase->IsA() : "",
                            iLateType != nullptr ? iLateType : "", iLibrary != nullptr ? iLibrary : "", iObjectSize},
                           VOXGuidOfName(iClassName),
                           iBase};
  VOXMetaClass* const meta = new VOXMetaClass(data);
  registry.classes.emplace(iClassName, std::make_pair(meta, data));
  return meta;
}

VOXMetaClass* fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass iKind, VOXMetaClass* iBase,
                                     const char* iLateType, const char* iLibrary, int iObjectSize)
{
  if (iClassName == nullptr || voxhost::Faults::Enter("fct_RetrieveMetaObject"))
    return nullptr;
  ++AllClasses().calls;
  return VOXComponentRuntime::Describe(iClassName, iKind, iBase, iLateType, iLibrary, iObjectSize);
}

namespace voxhost
{

const MetaClassDescription* FindMetaClass(const char* iClassName)
{
  const auto known = AllClasses().classes.find(std::string_view(iClassName));
  return known == AllClasses().classes.end() ? nullptr : &known->second.second->description;
}

int MetaClassRegistrations()
{
  return AllClasses().calls;
}

} // namespace voxhost
