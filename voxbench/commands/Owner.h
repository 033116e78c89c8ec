// SPDX-License-Identifier: MIT
#pragma once
#include "ExplicitModel/VOXAnalysisExplicitData.h"
#include "voxbench/build/LoadedModel.h"

namespace voxbench
{

//! The feature of a document that made an object of its explicit model, asked of the library; of a node or an element
//! the one that made its mesh. Borrowed; null when no feature made it.
voxhost::Feature* OwnerOf(const LoadedModel& iModel, const VOXAnalysisExplicitParent& iObject);

//! Name of an object's physical type, such as "NODE_GROUP"; "" for an empty handle.
std::string PhysicalTypeOf(const LoadedModel& iModel, const VOXAnalysisExplicitChild& iObject);

} // namespace voxbench
