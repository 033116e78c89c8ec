// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/Restoration.h"

namespace voxbench
{

//! The yes-or-no states of a feature as bits of one number, in the order of the format.
inline constexpr std::int64_t kOutOfDateBit = 1;
inline constexpr std::int64_t kMarkedBit = 2;
inline constexpr std::int64_t kUpdateFailsBit = 4;
inline constexpr std::int64_t kInactiveBit = 8;
inline constexpr std::int64_t kSubscribedBit = 16;
inline constexpr std::int64_t kAllStateBits = 31;

inline std::int64_t BitsOf(const voxhost::FeatureState& iState)
{
  return (iState.outOfDate ? kOutOfDateBit : 0) | (iState.marked ? kMarkedBit : 0) |
         (iState.updateFails ? kUpdateFailsBit : 0) | (iState.active ? 0 : kInactiveBit) |
         (iState.subscribed ? kSubscribedBit : 0);
}

inline void TakeBits(std::int64_t iBits, voxhost::FeatureState& oState)
{
  oState.outOfDate = (iBits & kOutOfDateBit) != 0;
  oState.marked = (iBits & kMarkedBit) != 0;
  oState.updateFails = (iBits & kUpdateFailsBit) != 0;
  oState.active = (iBits & kInactiveBit) == 0;
  oState.subscribed = (iBits & kSubscribedBit) != 0;
}

} // namespace voxbench
