// SPDX-License-Identifier: MIT
#pragma once
#include "../Column.h"
#include "../NeutralModel.h"
#include "LineSource.h"

#include <cstdint>

//! The quick way through plain data lines. Each function takes lines from the source as long as they are written in the
//! usual manner and lie in the window, leaves the cursor at the first line that is not, and returns how many it took.
namespace voxbench::inp
{

//! Lines "id, x, y, z" (missing coordinates are 0). Clears ioAscending when an id is not above the one before.
std::int64_t TakeNodeLines(LineSource& ioSource, NodeTable& ioNodes, bool& ioAscending);

//! Elements "id, n1, ..., n" over one or more lines. Adds the row's end to the offsets.
//! @param iType the row's element type; iNodeCount its nodes, 1 to 64.
std::int64_t TakeElementLines(LineSource& ioSource, std::uint16_t iType, int iNodeCount, ElementTable& ioElements,
                              bool& ioAscending);

//! Lines "id, id, ...".
std::int64_t TakeIdLines(LineSource& ioSource, Column<std::int32_t>& ioIds);

//! Lines "id, Sk" with k from 1 to 9.
std::int64_t TakeSideLines(LineSource& ioSource, Column<std::int32_t>& ioIds, Column<std::uint8_t>& ioSides);

} // namespace voxbench::inp
