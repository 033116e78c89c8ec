// SPDX-License-Identifier: MIT
#pragma once
#include "../ElementType.h"

#include <string>

namespace voxbench::inp
{

//! What the dialect knows of an element type name (upper case).
//!
//! A name that is not known but begins with one that is, followed by letters only, keeps that one's node count and shape
//! with the family Unknown; for any other name the node count is 0.
ElementType LookUpElementType(const std::string& iName);

} // namespace voxbench::inp
