// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"
#include "ComponentRuntime/VOXUnicodeString.h"

inline constexpr IID IID_VOXISamAnalysisModelFactory = VOXGuidOfName("VOXISamAnalysisModelFactory");

//! Makes the features of an analysis model. Implemented by: the host.
class VOX_HOST_API VOXISamAnalysisModelFactory : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamAnalysisModelFactory)

  //! 1. Makes an entity. @param iName its name. @param iType its start-up. @param iFather what holds it, borrowed, may be
  //! null. @return one reference for the caller; null when it could not be made.
  virtual VOXBaseUnknown* CreateEntity(const VOXUnicodeString& iName, const VOXUnicodeString& iType,
                                       VOXBaseUnknown* iFather) = 0;
};

using VOXISamAnalysisModelFactory_var = VOXHandle<VOXISamAnalysisModelFactory>;
