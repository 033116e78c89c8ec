// SPDX-License-Identifier: MIT
#pragma once

#include "host/ExplicitModel/SharedArray.h"

#include <cstdint>

namespace voxhost
{

//! A mesh as arrays, handed over to the model whole.
struct MeshData
{
  SharedArray<std::int32_t> nodeIds;       //!< ascending, each once
  SharedArray<double> coordinates;         //!< x, y, z per node, in model units
  SharedArray<std::int32_t> elementIds;    //!< ascending, each once
  SharedArray<std::uint16_t> elementTypes; //!< per element, the builder's numbering
  SharedArray<std::uint32_t> offsets;      //!< elements + 1 entries into connectivity
  SharedArray<std::int32_t> connectivity;  //!< node ids
};

//! The place of an id in an ascending array; -1 when it is not there. O(1) while the ids have no holes.
inline std::int64_t PlaceOfId(const SharedArray<std::int32_t>& iIds, std::int32_t iId)
{
  const std::size_t size = iIds.size();
  if (size == 0 || iId < iIds[0] || iId > iIds[size - 1])
    return -1;
  const std::int64_t guess = static_cast<std::int64_t>(iId) - iIds[0];
  if (guess < static_cast<std::int64_t>(size) && iIds[static_cast<std::size_t>(guess)] == iId)
    return guess;
  std::size_t low = 0;
  std::size_t high = size;
  while (low < high)
  {
    const std::size_t middle = low + (high - low) / 2;
    if (iIds[middle] < iId)
      low = middle + 1;
    else
      high = middle;
  }
  return low < size && iIds[low] == iId ? static_cast<std::int64_t>(low) : -1;
}

} // namespace voxhost
