// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXMetaClass.h"

#include <string>

namespace voxhost
{

//! What fct_RetrieveMetaObject was told about a class.
struct MetaClassDescription
{
  std::string className;
  ENUMTypeOfClass kind;
  std::string baseName;
  std::string lateType;
  std::string library;
  int objectSize;
};

//! Borrowed; null for a class that was never registered.
VOX_HOST_API const MetaClassDescription* FindMetaClass(const char* iClassName);

//! Number of calls of fct_RetrieveMetaObject that were answered.
VOX_HOST_API int MetaClassRegistrations();

} // namespace voxhost
