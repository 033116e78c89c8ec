// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListVal.h"

extern template class VOXListVal<VOXBaseUnknown_var>;
using VOXListValVOXBaseUnknown_var = VOXListVal<VOXBaseUnknown_var>;
