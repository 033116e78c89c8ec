// SPDX-License-Identifier: MIT
#pragma once
#include "FeatureModeler/VOXISpecAttrAccess.h"

namespace voxbench
{

//! Access to one attribute of the feature that an adaptor extends; its key is empty when there is none of that name.
struct FeatureAttribute
{
  VOXISpecAttrAccess_var spAccess;
  VOXISpecAttrKey_var spKey;

  FeatureAttribute(const VOXBaseUnknown& iFace, const char* iName) : spAccess(iFace.GetImpl(0))
  {
    if (!spAccess)
      return;
    VOXISpecAttrKey* const piKey = spAccess->GetAttrKey(iName); // one reference for the caller
    spKey = piKey;
    if (piKey != nullptr)
      piKey->Release();
  }
};

} // namespace voxbench
