// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisExplicitData.h"

#include <gtest/gtest.h>

namespace voxtest
{

//! The tag of an object that has one.
inline int TagOf(const VOXAnalysisExplicitChild& iObject)
{
  int tag = 0;
  EXPECT_EQ(iObject.GetTag(tag), S_OK);
  return tag;
}

} // namespace voxtest
