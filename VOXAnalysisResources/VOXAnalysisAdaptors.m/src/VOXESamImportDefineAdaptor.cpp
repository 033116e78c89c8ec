// SPDX-License-Identifier: MIT
#include "VOXESamImportDefineAdaptor.h"

static_assert(sizeof(VOXESamImportDefineAdaptor) == sizeof(VOXBaseUnknown),
              "deriving classes are laid out on this size");

VOXESamImportDefineAdaptor::VOXESamImportDefineAdaptor() = default;

VOXESamImportDefineAdaptor::~VOXESamImportDefineAdaptor() = default;

HRESULT VOXESamImportDefineAdaptor::Accept()
{
  return S_OK;
}

HRESULT VOXESamImportDefineAdaptor::GetCommentForType(VOXString /*iType*/, VOXUnicodeString& /*oComment*/)
{
  return S_OK;
}

HRESULT VOXESamImportDefineAdaptor::GetFileTypes(VOXListValVOXString& /*ioTypes*/)
{
  return S_OK;
}

VOXDlgFrame* VOXESamImportDefineAdaptor::GetUserFrame(VOXDialog* /*iParent*/, VOXDocument* /*iDocument*/)
{
  return nullptr;
}

HRESULT VOXESamImportDefineAdaptor::GetValues(SAFEARRAY*& oValues)
{
  // Kept: the block is never freed, not even after the array is built, and its allocation is not tested.
  VARIANT* const variant = new VARIANT{};
  const any value(static_cast<std::int16_t>(0));
  ConvertAnyToVariant(value, *variant);
  oValues = BuildFromVariantArray(variant, 1);
  return S_OK;
}

HRESULT VOXESamImportDefineAdaptor::Import(VOXDocument* /*iFrom*/, VOXDocument* /*iInto*/)
{
  return S_OK;
}

HRESULT VOXESamImportDefineAdaptor::SetValues(SAFEARRAY* /*iValues*/)
{
  return S_OK;
}
