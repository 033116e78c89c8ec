// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/TypeCatalogue.h"

#include <memory>

namespace voxbench
{

//! The types that the workbench's documents are made of: those of every analysis document and the workbench's own, with
//! the adaptors that carry their interfaces declared in the type dictionary. Made once.
std::shared_ptr<const voxhost::TypeCatalogue> WorkbenchTypes();

//! The declarations that these types were made from, bases first.
std::vector<voxhost::TypeDeclaration> WorkbenchDeclarations();

} // namespace voxbench
