// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListVal.h"

extern template class VOXListVal<VOXUnicodeString>;
using VOXListValVOXUnicodeString = VOXListVal<VOXUnicodeString>;
