// SPDX-License-Identifier: MIT
#pragma once
#include "host/ExplicitModel/ModelObject.h"
#include "voxbench/readers/NeutralModel.h"

#include <optional>

namespace voxbench
{

//! The frame that a card of local axes gives, in the units of the file. Its directions are orthonormal.
//!
//! - Rectangular: the first point lies on the first axis, the second in the plane of the first two; the origin is the
//!   global one. A second data line turns the frame about one of its axes (1, 2 or 3) by an angle in degrees.
//! - Cylindrical: both points lie on the third axis, the first is the origin. The first axis is that of the global axis
//!   which is farthest from the third: directions on a circle depend on the place and no single one is meant.
//! @return none when the two points give no frame: they coincide, or lie on one line with the origin.
std::optional<voxhost::AxisData> FrameOf(const LocalAxes& iAxes);

} // namespace voxbench
