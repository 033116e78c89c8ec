// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXBaseUnknown.h"

//! What kind of class a meta-object describes.
enum ENUMTypeOfClass : int
{
  VOXTypeInterface = 0,
  VOXTypeImplementation = 1,
  VOXTypeDataExtension = 2,
  VOXTypeTie = 3
};

struct VOXMetaClassData;

//! Description of a class. Implemented by: the host's component runtime, which owns every one until the process ends.
class VOX_HOST_API VOXMetaClass
{
public:
  //! Identifier of the class, borrowed.
  const IID& GetClassId() const;

  //! Name of the class, borrowed.
  const char* IsA() const;

  //! Whether the class is, or derives from, the class of that name. @return 1 or 0; 0 for null.
  int IsAKindOf(const char* iName) const;

  VOXMetaClass(const VOXMetaClass&) = delete;
  VOXMetaClass& operator=(const VOXMetaClass&) = delete;

private:
  friend class VOXComponentRuntime;
  explicit VOXMetaClass(VOXMetaClassData* iData);
  ~VOXMetaClass();
  VOXMetaClassData* _Data;
};

//! Registers a class and gives its description; a class that is known already gives the same one again.
//! @param iClassName name of the class.
//! @param iKind what kind of class it is.
//! @param iBase description of the base class, borrowed; null for none.
//! @param iLateType late type that the class extends.
//! @param iLibrary library that holds the class.
//! @param iObjectSize size of an object of the class, in bytes.
//! @return borrowed; null when the registration failed.
VOX_HOST_API VOXMetaClass* fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass iKind, VOXMetaClass* iBase,
                                                  const char* iLateType, const char* iLibrary, int iObjectSize);
