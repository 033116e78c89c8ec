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
  VARTYPE vt; //!< which of the members below holds the value
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
  std::uint32_t count; //!< number of values
  VARIANT* values;     //!< owned by the array
};

//! A value of the component runtime that can hold any of a few types.
class VOX_HOST_API any
{
public:
  any();
  explicit any(std::int16_t iValue); //!< of kind VT_I2
  explicit any(std::int32_t iValue); //!< of kind VT_I4
  explicit any(double iValue);       //!< of kind VT_R8
  any(const any& iOther);            //!< of the same kind and value
  any& operator=(const any& iOther); //!< takes over kind and value
  ~any();

  //! Kind of the value; VT_EMPTY when there is none.
  VARTYPE GetKind() const;
  std::int16_t AsShort() const; //!< the value of kind VT_I2
  std::int32_t AsLong() const;  //!< the value of kind VT_I4
  double AsDouble() const;      //!< the value of kind VT_R8

private:
  VARIANT _Value;
};

//! Converts a value. @param oVariant caller's object, overwritten whole on S_OK, untouched otherwise.
//! @return S_OK; E_FAIL for an empty value.
VOX_HOST_API HRESULT ConvertAnyToVariant(const any& iValue, VARIANT& oVariant);

//! Makes an array that holds copies of iCount values. @return owned by the caller (DestroySafeArray); null when there is
//! no memory, iValues is null or iCount negative.
VOX_HOST_API SAFEARRAY* BuildFromVariantArray(const VARIANT* iValues, int iCount);

//! Destroys an array and its values; null is allowed.
VOX_HOST_API void DestroySafeArray(SAFEARRAY* iArray);
