// SPDX-License-Identifier: MIT
#include "Automation/VOXAutomation.h"

#include "host/Instruments/Faults.h"

#include <algorithm>
#include <new>

namespace
{

VARIANT EmptyVariant()
{
  VARIANT variant{};
  variant.vt = VT_EMPTY;
  return variant;
}

} // namespace

any::any() : _Value(EmptyVariant()) {}

any::any(std::int16_t iValue) : any()
{
  _Value.vt = VT_I2;
  _Value.iVal = iValue;
}

any::any(std::int32_t iValue) : any()
{
  _Value.vt = VT_I4;
  _Value.lVal = iValue;
}

any::any(double iValue) : any()
{
  _Value.vt = VT_R8;
  _Value.dblVal = iValue;
}

any::any(const any& iOther) = default;
any& any::operator=(const any& iOther) = default;
any::~any() = default;

VARTYPE any::GetKind() const
{
  return _Value.vt;
}
std::int16_t any::AsShort() const
{
  return _Value.vt == VT_I2 ? _Value.iVal : std::int16_t{0};
}
std::int32_t any::AsLong() const
{
  return _Value.vt == VT_I4 ? _Value.lVal : 0;
}
double any::AsDouble() const
{
  return _Value.vt == VT_R8 ? _Value.dblVal : 0.;
}

HRESULT ConvertAnyToVariant(const any& iValue, VARIANT& oVariant)
{
  if (voxhost::Faults::Enter("ConvertAnyToVariant"))
    return E_FAIL;
  switch (iValue.GetKind())
  {
  case VT_I2:
    oVariant.vt = VT_I2;
    oVariant.iVal = iValue.AsShort();
    return S_OK;
  case VT_I4:
    oVariant.vt = VT_I4;
    oVariant.lVal = iValue.AsLong();
    return S_OK;
  case VT_R8:
    oVariant.vt = VT_R8;
    oVariant.dblVal = iValue.AsDouble();
    return S_OK;
  default:
    return E_FAIL;
  }
}

SAFEARRAY* BuildFromVariantArray(const VARIANT* iValues, int iCount)
{
  if (iValues == nullptr || iCount < 0 || voxhost::Faults::Enter("BuildFromVariantArray"))
    return nullptr;
  SAFEARRAY* const array = new (std::nothrow) SAFEARRAY{static_cast<std::uint32_t>(iCount), nullptr};
  if (array == nullptr)
    return nullptr;
  array->values = new (std::nothrow) VARIANT[static_cast<std::size_t>(iCount)];
  if (array->values == nullptr)
  {
    delete array;
    return nullptr;
  }
  std::copy_n(iValues, iCount, array->values);
  return array;
}

void DestroySafeArray(SAFEARRAY* iArray)
{
  if (iArray == nullptr)
    return;
  delete[] iArray->values;
  delete iArray;
}
