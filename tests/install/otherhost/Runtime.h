// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXMetaClass.h"
#include "ComponentRuntime/VOXTypeDictionary.h"

#include <string>
#include <utility>
#include <vector>

namespace otherhost
{

//! What was said by whom: the declarations behind VOXDeclareLateType and VOXDeclareExtension.
struct LateType
{
  struct Declaration
  {
    IID interfaceId;
    std::string interfaceName;
    VOXExtensionFactory factory;
  };

  std::string name;
  const LateType* base = nullptr;
  std::vector<Declaration> declarations;
  VOXMetaClass* description = nullptr; // of components of this type

  static LateType* Find(const char* iName);
  bool IsOrDerivesFrom(const char* iName) const;

  //! The nearest declaration along the base types that passes; null for none.
  template <class Test>
  const Declaration* FindDeclaration(Test iTest) const
  {
    for (const LateType* type = this; type != nullptr; type = type->base)
      for (const Declaration& declaration : type->declarations)
        if (iTest(declaration))
          return &declaration;
    return nullptr;
  }
};

//! Objects that this host gave life to and that still live: what it did for others must come down to what it was.
struct LiveObjects
{
  long components = 0; //!< and their extension objects, and all others that derive from VOXBaseUnknown
  long collectors = 0;
  long archivers = 0;
  long userLists = 0;

  long Sum() const { return components + collectors + archivers + userLists; }
  static LiveObjects& Count();
};

} // namespace otherhost

//! What the runtime keeps with an implementation object.
struct VOXComponentRecord
{
  otherhost::LateType* type;
  std::vector<std::pair<IID, VOXBaseUnknown*>> faces; // made so far; the component has their first references
  bool isClosing = false;
};

//! The one that may touch what VOXBaseUnknown and VOXMetaClass keep to themselves.
class VOXComponentRuntime
{
public:
  //! Makes an object the implementation object of a component. It carries no interface itself: everything is an extension.
  //! @return false for a late type that was never declared; nothing changes then.
  static bool Implement(VOXBaseUnknown* ioObject, const char* iLateType);

  static VOXBaseUnknown* RootOf(const VOXBaseUnknown* iObject);
  static VOXBaseUnknown* FaceOf(VOXBaseUnknown* iRoot, const IID& iInterface);
  static const otherhost::LateType* TypeOf(const VOXBaseUnknown* iRoot);
  static void Close(VOXBaseUnknown* iRoot);
  static VOXMetaClass* Describe(const char* iName, VOXMetaClass* iBase);
};
