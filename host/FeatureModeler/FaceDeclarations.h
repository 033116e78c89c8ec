// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace voxhost
{

//! Declares the late type of a feature type and the faces that its features carry; what stands already is left alone, so
//! that extensions of the feature's own that were declared meanwhile stay.
//! @param iBase null for the root, which gets the faces of every feature. @param iFaces FeatureFaces that the type adds.
//! @return false when the late type stands with another base.
bool DeclareFeatureFaces(const char* iLateType, const char* iBase, std::uint32_t iFaces);

} // namespace voxhost
