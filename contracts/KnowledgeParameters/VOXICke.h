// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"

inline constexpr IID IID_VOXICkeType = VOXGuidOfName("VOXICkeType");
inline constexpr IID IID_VOXICkeParm = VOXGuidOfName("VOXICkeParm");
inline constexpr IID IID_VOXICkeInst = VOXGuidOfName("VOXICkeInst");
inline constexpr IID IID_VOXIEnumere = VOXGuidOfName("VOXIEnumere");

//! Vocabulary of the knowledge layer.
namespace VOXCke
{
//! Answer of a knowledge query.
enum Boolean : int
{
  False = 0,
  True = 1
};
} // namespace VOXCke

//! Kinds of types that the knowledge layer tells apart.
namespace VOXCkeContext
{
//! Kind of a type.
enum TypeKind : int
{
  RealType = 0,
  IntegerType = 1,
  StringType = 2,
  BooleanType = 3,
  EnumType = 4
};
} // namespace VOXCkeContext

//! Type of a knowledge value. Implemented by: the host's knowledge layer, on the parameter and on the type alike.
class VOX_HOST_API VOXICkeType : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXICkeType)

  //! 1. Whether the type is of that kind.
  virtual VOXCke::Boolean IsAKindOfType(VOXCkeContext::TypeKind iKind) const = 0;
};

//! Value of a knowledge parameter. Implemented by: the host's knowledge layer. It answers the query for its own interface.
class VOX_HOST_API VOXICkeInst : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXICkeInst)

  //! 1. The value as text; of an enumeration the name of the selected entry, empty when none is.
  virtual VOXUnicodeString AsString() const = 0;

  //! 2. The value as an integer; of an enumeration the index of the selected entry, counted from 1, 0 when none is.
  virtual int AsInteger() const = 0;
};

using VOXICkeInst_var = VOXHandle<VOXICkeInst>;

//! A knowledge parameter. Implemented by: the host's knowledge layer.
class VOX_HOST_API VOXICkeParm : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXICkeParm)

  //! 1. The current value; an empty handle when the parameter has none.
  virtual VOXICkeInst_var Value() const = 0;

  //! 2. Gives the parameter an integer; of an enumeration the index of an entry, counted from 1, 0 for none.
  //! @return S_OK; E_FAIL when the type takes no such value: it then stays as it was.
  virtual HRESULT Valuate(int iValue) = 0;
};

//! An enumeration type. Implemented by: the host's knowledge layer.
class VOX_HOST_API VOXIEnumere : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIEnumere)

  //! 1. Names of the entries, in order. @param iMode always 0.
  virtual VOXListValVOXUnicodeString GetValueList(int iMode) const = 0;
};

using VOXICkeType_var = VOXHandle<VOXICkeType>;
using VOXICkeParm_var = VOXHandle<VOXICkeParm>;
using VOXIEnumere_var = VOXHandle<VOXIEnumere>;
