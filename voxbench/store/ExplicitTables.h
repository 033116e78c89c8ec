// SPDX-License-Identifier: MIT
#pragma once
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/FeatureModeler/Document.h"
#include "voxbench/store/Database.h"
#include "voxbench/store/DocumentFile.h"

#include <memory>

namespace voxbench
{

//! Writes the objects of a model, all but nodes and elements, into empty tables. Selections that objects share are
//! written once. Collectors are not kept: they are made again when somebody asks.
void WriteObjects(const Database& iDatabase, const voxhost::ExplicitModel& iModel, Checksum& ioSum);

//! Writes the arrays of a mesh in chunks.
void WriteMesh(const Database& iDatabase, const voxhost::MeshData& iMesh, Checksum& ioSum);

//! @param iProgress told the chunks.
voxhost::MeshData ReadMesh(const Database& iDatabase, Checksum& ioSum, const StoreProgress& iProgress);

//! Reads what WriteObjects wrote into a new model with a mesh. Tags are kept.
//! @param iDocument the features that objects stand for.
std::unique_ptr<voxhost::ExplicitModel> ReadObjects(Database& ioDatabase, voxhost::MeshData iMesh,
                                                    const voxhost::Document& iDocument, Checksum& ioSum);

} // namespace voxbench
