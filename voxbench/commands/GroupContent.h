// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/Feature.h"
#include "voxbench/features/GroupKind.h"

#include <cstdint>
#include <string>
#include <vector>

namespace voxbench
{

//! What a group feature answers when it is asked for its content.
struct GroupContent
{
  std::int64_t count = 0;
  std::vector<std::int32_t> ids;   //!< ascending, by id and then by side; none when not asked for
  std::vector<std::int32_t> sides; //!< of edges and faces, as many as ids; else none
  std::string failure;             //!< why there is no content; "" when there is
};

enum class Serves
{
  No,
  Yes,
  Failed
};

//! Asks a group feature through VOXISamGroup whether it serves a kind. @param oFailure the reason when it failed.
Serves AskServes(voxhost::Feature& iGroup, const GroupKind& iKind, std::string& oFailure);

//! Asks a group feature through VOXISamGroup for its entities of a kind, and gives the collector back.
//! @param iWithIds false: the entities are counted only.
GroupContent AskContent(voxhost::Feature& iGroup, const GroupKind& iKind, bool iWithIds);

} // namespace voxbench
