// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/features/Releases.h"

namespace voxbench
{

//! The files of voxbench/catalogues as they stand, release 1 first; the build makes this table.
extern const char* const kCatalogueTexts[kNewestRelease];

} // namespace voxbench
