// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/features/Releases.h"

#include <memory>

namespace voxbench
{

//! The types that the workbench's documents are made of: those of every analysis document and the workbench's own, with
//! the adaptors that carry their interfaces declared in the type dictionary. Those of the newest release are made once.
//! @param iRelease 1 to kNewestRelease.
std::shared_ptr<const voxhost::TypeCatalogue> WorkbenchTypes(int iRelease = kNewestRelease);

//! The declarations that these types were made from, bases first.
std::vector<voxhost::TypeDeclaration> WorkbenchDeclarations(int iRelease = kNewestRelease);

} // namespace voxbench
