// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/features/GroupFeatures.h"

namespace voxbench
{

//! A group of elements that has none of its own in the explicit model: it gathers those of the groups in "Supports".
//!
//! - Whatever its supports hand out is asked for anew each time that its collector has gone out of date; each element is
//!   handed out once, in the order of the model.
//! - A support that is no group, or that fails, fails the whole.
class GatheredElementGroup final : public NamedGroup
{
public:
  GatheredElementGroup() : NamedGroup(kElementKind) {}

  HRESULT GetExplicitPointers(VOXSamValue iValue, VOXString iEntityType, int& oCount, VOXSamModelDataRoot**& oPointers,
                              int*& oIndices) const override;
};

} // namespace voxbench
