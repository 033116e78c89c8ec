// SPDX-License-Identifier: MIT
#pragma once
#include "host/ExplicitModel/MeshData.h"
#include "voxbench/readers/NeutralModel.h"
#include "voxbench/store/Database.h"

#include <vector>

namespace voxbench
{

//! The records of a deck as they stand on disk, without the mesh and without the members of sets and surfaces: these
//! stand in the explicit model.
struct StoredRecord
{
  std::string kind;
  std::vector<std::uint8_t> data;
};

void WriteRecords(const Database& iDatabase, const NeutralModel& iRecords, Checksum& ioSum);
std::vector<StoredRecord> ReadRecordTable(const Database& iDatabase, Checksum& ioSum);

//! Makes records of what was read; kinds that are not known are passed over.
NeutralModel UnpackRecords(const std::vector<StoredRecord>& iStored);

//! Copies the mesh of a document into records, as a reader of decks leaves it there.
void FillMesh(const voxhost::MeshData& iMesh, NeutralModel& ioRecords);

} // namespace voxbench
