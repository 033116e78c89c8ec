// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamImportDefine.h"
#include "VOXAnalysisResources.h"

//! Default import of a foreign file: no file types, no options but one, and nothing is imported.
class VOX_ANALYSIS_API VOXESamImportDefineAdaptor : public VOXISamImportDefine
{
public:
  VOXESamImportDefineAdaptor();
  ~VOXESamImportDefineAdaptor() override;

  //! 1. @return S_OK.
  HRESULT Accept() override;

  //! 2. @param iType not looked at. @param oComment untouched. @return S_OK.
  HRESULT GetCommentForType(VOXString iType, VOXUnicodeString& oComment) override;

  //! 3. @param ioTypes left as it is. @return S_OK.
  HRESULT GetFileTypes(VOXListValVOXString& ioTypes) override;

  //! 4. @return null.
  VOXDlgFrame* GetUserFrame(VOXDialog* iParent, VOXDocument* iDocument) override;

  //! 5. @param oValues a new array of one value, the short integer 0; caller destroys it with DestroySafeArray; null
  //! when there is no memory. @return S_OK.
  HRESULT GetValues(SAFEARRAY*& oValues) override;

  //! 6. @return S_OK.
  HRESULT Import(VOXDocument* iFrom, VOXDocument* iInto) override;

  //! 7. @return S_OK.
  HRESULT SetValues(SAFEARRAY* iValues) override;
};
