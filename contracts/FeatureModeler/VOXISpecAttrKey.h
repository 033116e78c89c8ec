// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListVal.h"

inline constexpr IID IID_VOXISpecAttrKey = VOXGuidOfName("VOXISpecAttrKey");

//! Type codes of attributes. Only those that the adaptors distinguish have a name.
enum VOXSpecAttrType : int
{
  VOXSpecReal = 7,
  VOXSpecBoolean = 8,
  VOXSpecString = 18,
  VOXSpecReference = 23, //!< reference to a feature elsewhere
  VOXSpecList = 25,
  VOXSpecComponent = 26, //!< feature that the attribute's owner holds
  VOXSpecInteger = 28
};

//! Key of one attribute of a feature type. Implemented by: the host's feature modeler.
//! - It answers the query for its own interface, whether it belongs to a component or to none: it is kept in handles.
//! - The key of a start-up's attribute and that of its instance's attribute of the same name are two keys.
class VOX_HOST_API VOXISpecAttrKey : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISpecAttrKey)

  //! 1. Name of the attribute.
  virtual VOXUnicodeString GetName() const = 0;

  //! 2. Type code of the attribute (VOXSpecAttrType).
  virtual int GetType() const = 0;

  //! 3. Type code of the elements of a list; 0 for any other attribute.
  virtual int GetElementType() const = 0;
};

using VOXISpecAttrKey_var = VOXHandle<VOXISpecAttrKey>;

extern template class VOXListVal<VOXISpecAttrKey_var>;
using VOXListValVOXISpecAttrKey_var = VOXListVal<VOXISpecAttrKey_var>;
