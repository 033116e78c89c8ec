// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXListValVOXUnicodeString.h"

struct VOXCollectorData;

namespace voxhost
{

//! Appends a description of a collector to a list of lines, each indented.
//! @param iFirst, iCount which entities are listed, counted from 0. @param ioLines null: nothing is done.
void DumpCollector(const VOXCollectorData& iData, const char* iTitle, VOXListValVOXUnicodeString* ioLines, int iIndent,
                   int iFirst, int iCount);

} // namespace voxhost
