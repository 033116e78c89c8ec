// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXBaseUnknown.h"

#include <type_traits>

//! Makes one extension object, born with one reference that the component takes over. Null when there is no memory.
//! The runtime attaches it with the object's own SetImpl, which a tie overrides, before anybody gets to see it.
using VOXExtensionFactory = VOXBaseUnknown* (*)();

//! Makes a late type known: the type of an implementation object, named at run time.
//! @param iLateType name of the type. @param iBaseType the type that it derives from; null for none.
//! @return S_OK; S_FALSE if the same declaration stands already; E_INVALIDARG if the type stands with another base, the
//! base is unknown, or iLateType is null.
VOX_HOST_API HRESULT VOXDeclareLateType(const char* iLateType, const char* iBaseType);

//! Says who carries an interface on components of a late type and of all types that derive from it. The nearest
//! declaration along the base types counts. The factory is asked when a component is first queried for the interface;
//! from then on the component answers with that object.
//! @param iLateType a type that was declared. @param iInterface, iInterfaceName the interface. @param iFactory its maker.
//! @return S_OK; S_FALSE when a declaration of the same type and interface was replaced; E_INVALIDARG for an unknown
//! type or a null argument. Components made before keep the faces that they have.
VOX_HOST_API HRESULT VOXDeclareExtension(const char* iLateType, const IID& iInterface, const char* iInterfaceName,
                                         VOXExtensionFactory iFactory);

//! Declares that Adaptor, which derives from Interface, carries it on components of iLateType.
template <class Interface, class Adaptor>
HRESULT VOXExtendLateType(const char* iLateType)
{
  static_assert(std::is_base_of_v<Interface, Adaptor>,
                "the adaptor is reached through a tie: declare the tie, with VOXTieLateType");
  return VOXDeclareExtension(iLateType, Interface::ClassId(), Interface::ClassName(),
                             []() -> VOXBaseUnknown* { return static_cast<Interface*>(new Adaptor); });
}
