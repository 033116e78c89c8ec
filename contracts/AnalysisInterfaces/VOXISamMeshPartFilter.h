// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXListValVOXISpecObject_var.h"

inline constexpr IID IID_VOXISamMeshPartFilter = VOXGuidOfName("VOXISamMeshPartFilter");

//! The mesh features that design one side of a connection. Implemented by: the host.
class VOX_HOST_API VOXISamMeshPartFilter : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamMeshPartFilter)

  //! 1. The designers. @param oDesigners on S_OK a new list, caller deletes; null when there is none.
  //! @return S_OK; E_FAIL.
  virtual HRESULT ListDesigners(VOXListValVOXISpecObject_var*& oDesigners) const = 0;
};

using VOXISamMeshPartFilter_var = VOXHandle<VOXISamMeshPartFilter>;
