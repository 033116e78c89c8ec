// SPDX-License-Identifier: MIT
// The mesh as it stands on disk: six arrays, little-endian, in chunks.
#include "voxbench/store/ExplicitTables.h"

#include <algorithm>
#include <fmt/format.h>

namespace voxbench
{
namespace
{

using voxhost::SharedArray;

constexpr std::size_t kChunkBytes = std::size_t{1} << 24;

template <class T>
void WriteArray(Statement& ioRow, const char* iName, const SharedArray<T>& iArray)
{
  constexpr std::size_t kPerChunk = kChunkBytes / sizeof(T);
  std::int64_t chunk = 0;
  for (std::size_t first = 0; first < iArray.size(); first += kPerChunk, ++chunk)
  {
    const std::size_t count = std::min(kPerChunk, iArray.size() - first);
    ioRow.Add(iName).Add(chunk).AddBlob(BytesOf(iArray.data() + first, count));
    ioRow.Insert();
  }
}

template <class T>
SharedArray<T> ReadArray(const Database& iDatabase, const char* iName, Checksum& ioSum)
{
  Statement size(iDatabase, "SELECT coalesce(sum(length(data)), 0) FROM mesh WHERE array = ?1");
  size.Add(iName);
  size.Next();
  std::vector<T> values;
  values.reserve(static_cast<std::size_t>(size.Integer(0, INT64_MAX)) / sizeof(T));

  Statement row(iDatabase, "SELECT array, chunk, data FROM mesh WHERE array = ?1 ORDER BY chunk");
  row.Add(iName);
  std::int64_t expected = 0;
  while (row.Next())
  {
    ioSum.Add(BytesOf(row.Text().data(), std::string_view(iName).size()));
    ioSum.Add(static_cast<std::uint64_t>(row.Integer(expected, expected)));
    const std::span<const std::byte> bytes = row.Blob();
    ioSum.Add(bytes);
    if (bytes.size() % sizeof(T) != 0)
      throw Damaged(fmt::format("array {} of the mesh ends within an element", iName));
    const std::size_t before = values.size();
    values.resize(before + bytes.size() / sizeof(T));
    if (!bytes.empty())
      std::memcpy(values.data() + before, bytes.data(), bytes.size());
    ++expected;
  }
  return SharedArray<T>(std::move(values));
}

bool IsAscending(const SharedArray<std::int32_t>& iIds)
{
  return std::adjacent_find(iIds.begin(), iIds.end(), std::greater_equal<>()) == iIds.end();
}

void Validate(const voxhost::MeshData& iMesh)
{
  const std::size_t elements = iMesh.elementIds.size();
  const bool offsetsFit = iMesh.offsets.empty() ? elements == 0 && iMesh.connectivity.empty()
                                                : iMesh.offsets.size() == elements + 1 && iMesh.offsets[0] == 0 &&
                                                      std::is_sorted(iMesh.offsets.begin(), iMesh.offsets.end()) &&
                                                      iMesh.offsets[elements] == iMesh.connectivity.size();
  if (iMesh.coordinates.size() != 3 * iMesh.nodeIds.size() || iMesh.elementTypes.size() != elements || !offsetsFit ||
      !IsAscending(iMesh.nodeIds) || !IsAscending(iMesh.elementIds))
    throw Damaged("the arrays of the mesh do not fit each other");
}

} // namespace

void WriteMesh(const Database& iDatabase, const voxhost::MeshData& iMesh, Checksum& ioSum)
{
  Statement row(iDatabase, "INSERT INTO mesh VALUES(?1, ?2, ?3)", &ioSum);
  WriteArray(row, "node_ids", iMesh.nodeIds);
  WriteArray(row, "coordinates", iMesh.coordinates);
  WriteArray(row, "element_ids", iMesh.elementIds);
  WriteArray(row, "element_types", iMesh.elementTypes);
  WriteArray(row, "offsets", iMesh.offsets);
  WriteArray(row, "connectivity", iMesh.connectivity);
}

voxhost::MeshData ReadMesh(const Database& iDatabase, Checksum& ioSum)
{
  voxhost::MeshData mesh;
  mesh.nodeIds = ReadArray<std::int32_t>(iDatabase, "node_ids", ioSum);
  mesh.coordinates = ReadArray<double>(iDatabase, "coordinates", ioSum);
  mesh.elementIds = ReadArray<std::int32_t>(iDatabase, "element_ids", ioSum);
  mesh.elementTypes = ReadArray<std::uint16_t>(iDatabase, "element_types", ioSum);
  mesh.offsets = ReadArray<std::uint32_t>(iDatabase, "offsets", ioSum);
  mesh.connectivity = ReadArray<std::int32_t>(iDatabase, "connectivity", ioSum);
  Validate(mesh);
  return mesh;
}

} // namespace voxbench
