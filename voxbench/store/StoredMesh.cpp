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

class MeshReader
{
public:
  MeshReader(const Database& iDatabase, Checksum& ioSum, const StoreProgress& iProgress)
      : _Database(iDatabase),
        _Sum(ioSum),
        _Progress(iProgress)
  {
    Statement chunks(iDatabase, "SELECT count(*) FROM mesh");
    chunks.Next();
    _Total = static_cast<std::uint64_t>(chunks.Integer(0, INT64_MAX));
  }

  template <class T>
  SharedArray<T> Read(const char* iName)
  {
    std::vector<T> values;
    values.reserve(SizeOf(iName) / sizeof(T));
    Statement row(_Database, "SELECT array, chunk, data FROM mesh WHERE array = ?1 ORDER BY chunk");
    row.Add(iName);
    std::int64_t expected = 0;
    for (; row.Next(); ++expected)
    {
      _Sum.Add(BytesOf(row.Text().data(), std::string_view(iName).size()));
      _Sum.Add(static_cast<std::uint64_t>(row.Integer(expected, expected)));
      const std::span<const std::byte> bytes = row.Blob();
      _Sum.Add(bytes);
      if (bytes.size() % sizeof(T) != 0)
        throw Damaged(fmt::format("array {} of the mesh ends within an element", iName));
      const std::size_t before = values.size();
      values.resize(before + bytes.size() / sizeof(T));
      if (!bytes.empty())
        std::memcpy(values.data() + before, bytes.data(), bytes.size());
      if (_Progress)
        _Progress(++_Done, _Total);
    }
    return SharedArray<T>(std::move(values));
  }

private:
  std::size_t SizeOf(const char* iName) const
  {
    Statement size(_Database, "SELECT coalesce(sum(length(data)), 0) FROM mesh WHERE array = ?1");
    size.Add(iName);
    size.Next();
    return static_cast<std::size_t>(size.Integer(0, INT64_MAX));
  }

  const Database& _Database;
  Checksum& _Sum;
  const StoreProgress& _Progress;
  std::uint64_t _Done = 0;
  std::uint64_t _Total = 0;
};

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

voxhost::MeshData ReadMesh(const Database& iDatabase, Checksum& ioSum, const StoreProgress& iProgress)
{
  MeshReader reader(iDatabase, ioSum, iProgress);
  voxhost::MeshData mesh;
  mesh.nodeIds = reader.Read<std::int32_t>("node_ids");
  mesh.coordinates = reader.Read<double>("coordinates");
  mesh.elementIds = reader.Read<std::int32_t>("element_ids");
  mesh.elementTypes = reader.Read<std::uint16_t>("element_types");
  mesh.offsets = reader.Read<std::uint32_t>("offsets");
  mesh.connectivity = reader.Read<std::int32_t>("connectivity");
  Validate(mesh);
  return mesh;
}

} // namespace voxbench
