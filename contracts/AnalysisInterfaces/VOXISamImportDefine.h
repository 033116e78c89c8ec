// SPDX-License-Identifier: MIT
#pragma once

#include "Automation/VOXAutomation.h"
#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXListValVOXString.h"
#include "ComponentRuntime/VOXUnicodeString.h"

class VOXDialog;
class VOXDlgFrame;
class VOXDocument;

inline constexpr IID IID_VOXISamImportDefine = VOXGuidOfName("VOXISamImportDefine");

//! Import of a foreign file into an analysis document. Implemented by: feature types. Called by: the host's commands.
class VOX_HOST_API VOXISamImportDefine : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamImportDefine)

  //! 1. The person accepted the import panel. @return S_OK; a failure keeps the panel open.
  virtual HRESULT Accept() = 0;

  //! 2. Comment for a file type. @param iType one of the types of operation 3. @param oComment may be left as it is.
  //! @return S_OK.
  virtual HRESULT GetCommentForType(VOXString iType, VOXUnicodeString& oComment) = 0;

  //! 3. Suffixes of the files that can be imported. @param ioTypes they are appended. @return S_OK.
  virtual HRESULT GetFileTypes(VOXListValVOXString& ioTypes) = 0;

  //! 4. Frame with further options, in the import panel. @return borrowed: the panel owns it; null for none.
  virtual VOXDlgFrame* GetUserFrame(VOXDialog* iParent, VOXDocument* iDocument) = 0;

  //! 5. The options as automation values. @param oValues caller destroys it with DestroySafeArray. @return S_OK.
  virtual HRESULT GetValues(SAFEARRAY*& oValues) = 0;

  //! 6. Imports a document into another. Both borrowed. @return S_OK; a failure.
  virtual HRESULT Import(VOXDocument* iFrom, VOXDocument* iInto) = 0;

  //! 7. Sets the options. @param iValues borrowed. @return S_OK; a failure.
  virtual HRESULT SetValues(SAFEARRAY* iValues) = 0;
};

using VOXISamImportDefine_var = VOXHandle<VOXISamImportDefine>;
