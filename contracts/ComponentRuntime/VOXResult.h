// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

//! Result of an operation. Negative means failure; `S_FALSE` is a success.
using HRESULT = std::int32_t;

constexpr HRESULT S_OK = 0;
constexpr HRESULT S_FALSE = 1;
constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001u);
constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002u);
constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005u);
constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000Eu);
constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057u);

constexpr bool SUCCEEDED(HRESULT iResult)
{
  return iResult >= 0;
}
constexpr bool FAILED(HRESULT iResult)
{
  return iResult < 0;
}
