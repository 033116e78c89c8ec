// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/Feature.h"
#include "voxbench/store/Database.h"

#include <functional>
#include <vector>

namespace voxbench
{

//! Adds a local value to a row: numbers and texts as such, a feature as its identifier (0 for none), lists as blobs.
//! @param ioScratch kept until the row is inserted.
void AddValue(Statement& ioRow, const voxhost::StoredValue& iValue, std::vector<std::byte>& ioScratch);

//! Reads the value of an attribute. @param iDocument finds the features.
voxhost::StoredValue ReadValue(Statement& ioRow, const voxhost::Attribute& iAttribute,
                               const voxhost::Document& iDocument);

} // namespace voxbench
