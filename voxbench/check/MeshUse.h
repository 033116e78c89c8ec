// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"

#include <cstddef>
#include <vector>

namespace voxbench
{

//! What of a mesh the document leaves aside, or uses twice. Places in the mesh's arrays, ascending.
struct MeshUse
{
  std::vector<std::size_t> elementsWithoutProperty; //!< of the families that need one
  std::vector<std::size_t> elementsWithTwoProperties;
  std::vector<std::size_t> unusedNodes; //!< by no element, constraint or connection
};

MeshUse UseOfMesh(const LoadedModel& iModel);

} // namespace voxbench
