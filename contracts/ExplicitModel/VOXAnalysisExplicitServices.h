// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisExplicitData.h"

//! Links between features and the explicit model. Implemented by: the host's explicit model.
class VOX_HOST_API VOXAnalysisExplicitServices
{
public:
  //! Records on a set or entity which feature made it. @param ioParent the set or entity. @param iKind 1: a feature of
  //! a mesh set; 2: any other.
  //! @param iIdentifier the feature's unique identifier. @return S_OK; E_FAIL for an empty handle.
  static HRESULT SetFeatureInfosForSetOrEntity(VOXAnalysisExplicitParent& ioParent, short iKind,
                                               unsigned int iIdentifier);

  //! Reads the untyped pointer that is kept on a set or entity; borrowed. @param iParent the set or entity.
  //! @param oPointer untouched on failure.
  //! @return S_OK; E_FAIL for an empty handle.
  static HRESULT GetFeaturePointerForSetOrEntity(VOXAnalysisExplicitParent& iParent, void*& oPointer);

  //! Writes that pointer, null included. The model does not own it. @return S_OK; E_FAIL for an empty handle.
  static HRESULT SetFeaturePointerForSetOrEntity(VOXAnalysisExplicitParent& ioParent, void* iPointer);
};
