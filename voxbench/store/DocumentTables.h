// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/Document.h"
#include "voxbench/store/Database.h"
#include "voxbench/store/DocumentFile.h"

#include <memory>

namespace voxbench
{

//! Writes types, start-ups, containers, features and their local values into empty tables.
void WriteDocument(const Database& iDatabase, const voxhost::Document& iDocument, Checksum& ioSum,
                   const StoreProgress& iProgress);

//! Reads what WriteDocument wrote into a new document.
//!
//! - Types and attributes that this program does not know are taken over as the file declares them.
//! - Instances get the start-ups of this program: what these have gained since, the instances lack.
std::unique_ptr<voxhost::Document> ReadDocument(Database& ioDatabase, Checksum& ioSum, const StoreProgress& iProgress);

} // namespace voxbench
