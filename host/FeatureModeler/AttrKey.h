// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXISpecAttrKey.h"

namespace voxhost
{

class Feature;

//! Makes the key of an attribute. @return one reference for the caller; null without memory.
VOXISpecAttrKey* NewAttrKey(Feature& iFeature, int iAttribute);

//! The index, in iFeature's type, of the attribute that a key names; -1 when the type has none or the key is null.
int IndexOfKey(const Feature& iFeature, const VOXISpecAttrKey* iKey);

} // namespace voxhost
