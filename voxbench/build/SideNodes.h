// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/readers/ElementType.h"

#include <cstdint>
#include <span>
#include <vector>

namespace voxbench
{

//! The nodes of a solid's face, corners and middle nodes. @param iNodes of the element, in the order of a deck.
//! @param iSide from 1. @return none for an element that is no solid, or has no such side.
std::vector<std::int32_t> NodesOfSide(const ElementType& iType, std::span<const std::int32_t> iNodes, int iSide);

} // namespace voxbench
