// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "ComponentRuntime/VOXListValVOXString.h"
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"
#include "host/ComponentRuntime/VOXListVal.tpp.h"

template class VOXListVal<VOXBaseUnknown_var>;
template class VOXListVal<VOXUnicodeString>;
template class VOXListVal<VOXString>;
