// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListVal.h"
#include "ComponentRuntime/VOXString.h"

extern template class VOXListVal<VOXString>;
using VOXListValVOXString = VOXListVal<VOXString>;
