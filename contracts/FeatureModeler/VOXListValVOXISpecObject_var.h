// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureModeler/VOXISpecObject.h"

extern template class VOXListVal<VOXISpecObject_var>;
using VOXListValVOXISpecObject_var = VOXListVal<VOXISpecObject_var>;
