// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"

inline constexpr IID IID_VOXISamAnalysisSupport = VOXGuidOfName("VOXISamAnalysisSupport");

//! What an entity stands on: geometry, meshes, groups. Implemented by: the host.
class VOX_HOST_API VOXISamAnalysisSupport : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamAnalysisSupport)

  //! 1. The supports of a type. @param ioSupports they are appended. @param iType CLSID_VOXBaseUnknown for all of them.
  //! @return S_OK; E_FAIL.
  virtual HRESULT ListSupports(VOXListValVOXBaseUnknown_var& ioSupports, const CLSID& iType) const = 0;
};

using VOXISamAnalysisSupport_var = VOXHandle<VOXISamAnalysisSupport>;
