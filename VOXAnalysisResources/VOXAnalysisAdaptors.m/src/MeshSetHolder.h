// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXString.h"
#include "FeatureModeler/VOXISpecObject.h"

namespace voxframe
{

//! Whether a feature lies directly in a mesh set container: by the class name of its father's implementation, compared
//! whole. @param iFeature not empty. @return false when nothing holds the feature.
inline bool IsHeldByMeshSetContainer(const VOXISpecObject_var& iFeature)
{
  VOXBaseUnknown_var spFather;
  iFeature->GetFather(spFather);
  if (!spFather)
    return false;
  const VOXString fatherClass(spFather->GetImpl(0)->IsA());
  return fatherClass == "MSHSetContainer";
}

} // namespace voxframe
