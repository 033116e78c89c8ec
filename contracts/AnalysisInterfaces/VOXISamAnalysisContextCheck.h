// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

class VOXDocument;
class VOXFrmEditor;

inline constexpr IID IID_VOXISamAnalysisContextCheck = VOXGuidOfName("VOXISamAnalysisContextCheck");

//! Lets a feature have a say when documents are combined. Implemented by: feature types. Called by: the host.
class VOX_HOST_API VOXISamAnalysisContextCheck : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamAnalysisContextCheck)

  //! 1. Whether the analysis document may stand on the other one. Both borrowed. @return S_OK; a failure refuses.
  virtual HRESULT Check(VOXDocument* iAnalysis, VOXDocument* iOther) = 0;

  //! 2. The editor is about to close. Borrowed. @return S_OK.
  virtual HRESULT ClosingEditor(VOXFrmEditor* iEditor) = 0;
};

using VOXISamAnalysisContextCheck_var = VOXHandle<VOXISamAnalysisContextCheck>;
