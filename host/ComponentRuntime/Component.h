// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXMetaClass.h"
#include "ComponentRuntime/VOXTypeDictionary.h"

namespace voxhost
{
class LateType;
struct FaceTable;
} // namespace voxhost

//! What the runtime keeps with an implementation object; a member of every class of implementation objects.
struct VOXComponentRecord
{
  const voxhost::LateType* type = nullptr;
  const voxhost::FaceTable* table = nullptr; // the type's faces when the component was made
  VOXBaseUnknown** faces = nullptr;          // extension objects by place in the table; null until one is needed
  bool closing = false;                      // being destroyed: answers no query any more
};

//! The reference component runtime, behind VOXBaseUnknown.
class VOX_HOST_API VOXComponentRuntime
{
public:
  //! Makes an object, just constructed, the implementation object of a component of a late type.
  //! @param iRecord a member of that object. @return false when the type was never declared: then nothing changes.
  static bool Implement(VOXBaseUnknown* iObject, VOXComponentRecord& iRecord, const char* iLateType);

  //! The faces of a component that exist already, for inspection; null when that interface was never asked for.
  static VOXBaseUnknown* ExistingFace(const VOXBaseUnknown* iComponent, const IID& iInterface);

  //! References on the component of this object.
  static unsigned long References(const VOXBaseUnknown* iObject);

private:
  friend class VOXBaseUnknown;
  friend VOXMetaClass* fct_RetrieveMetaObject(const char*, ENUMTypeOfClass, VOXMetaClass*, const char*, const char*,
                                              int);
  friend class voxhost::LateType;

  static HRESULT Query(VOXBaseUnknown* iRoot, const IID& iInterface, void** oFace);
  static VOXBaseUnknown* MakeFace(VOXBaseUnknown* iRoot, int iPlace);
  static unsigned long GiveBack(VOXBaseUnknown* iRoot);
  static void Close(VOXBaseUnknown* iRoot);

  //! The description of a class, registered when it is new. Unlike fct_RetrieveMetaObject it has no fault point: a
  //! component always has a description. Borrowed.
  static VOXMetaClass* Describe(const char* iClassName, ENUMTypeOfClass iKind, VOXMetaClass* iBase,
                                const char* iLateType, const char* iLibrary, int iObjectSize);
};

namespace voxhost
{

//! Says that the implementation object itself carries an interface, for components of a late type and those derived.
//! @return S_OK; S_FALSE when a declaration was replaced; E_INVALIDARG for an unknown type.
VOX_HOST_API HRESULT DeclareOwnInterface(const char* iLateType, const IID& iInterface, const char* iInterfaceName);

template <class Interface>
HRESULT DeclareOwnInterface(const char* iLateType)
{
  return DeclareOwnInterface(iLateType, Interface::ClassId(), Interface::ClassName());
}

//! Makes a component whose implementation object carries no interface of its own.
//! @return one reference for the caller; null for an unknown type or without memory.
VOX_HOST_API VOXBaseUnknown* NewComponent(const char* iLateType);

//! Whether a late type was declared. @return false for null.
VOX_HOST_API bool IsLateType(const char* iLateType);

//! Whether iLateType is iBase or derives from it.
VOX_HOST_API bool LateTypeDerivesFrom(const char* iLateType, const char* iBase);

} // namespace voxhost
