// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHostExport.h"
#include "ComponentRuntime/VOXResult.h"

#include <cstdint>

//! Kinds of automation values that the host converts to and from.
enum VARTYPE : std::uint16_t
{
  VT_EMPTY = 0,
  VT_I2 = 2,
  VT_I4 = 3,
  VT_R8 = 5,
  VT_BOOL = 11
};

//! One automation value.
struct VARIANT
{
  VARTYPE vt;
  union
  {
    std::int16_t iVal;
    std::int32_t lVal;
    double dblVal;
    std::int16_t boolVal;
  };
};

//! Array of automation values. Made by BuildFromVariantArray, destroyed by DestroySafeArray.
struct SAFEARRAY
{
  std::uint32_t count;
  VARIANT* values; //!< owned by the array
};

//! A value of the component runtime that can hold any of a few types.
class VOX_HOST_API any
{
public:
  any();
  explicit any(std::int16_t iValue);
  explicit any(std::int32_t iValue);
  explicit any(double iValue);
  any(const any& iOther);
  any& operator=(const any& iOther);
  ~any();

  //! Kind of the value; VT_EMPTY when there is none.
  VARTYPE GetKind() const;
  std::int16_t AsShort() const;
  std::int32_t AsLong() const;
  double AsDouble() const;

private:
  VARIANT _Value;
};

//! Converts a value. @param oVariant caller's object, overwritten whole on S_OK, untouched otherwise.
//! @return S_OK; E_FAIL for an empty value.
VOX_HOST_API HRESULT ConvertAnyToVariant(const any& iValue, VARIANT& oVariant);

//! Makes an array that holds copies of iCount values. @return owned by the caller (DestroySafeArray); null when there is
//! no memory or iValues is null.
VOX_HOST_API SAFEARRAY* BuildFromVariantArray(const VARIANT* iValues, int iCount);

//! Destroys an array and its values; null is allowed.
VOX_HOST_API void DestroySafeArray(SAFEARRAY* iArray);
