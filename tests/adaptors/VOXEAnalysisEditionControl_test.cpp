// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEditionControl.h"

#include "tests/adaptors/Face.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using EditionControl = Face<VOXEAnalysisEditionControl, VOXISamEditionControl>;

} // namespace

TEST(VOXEAnalysisEditionControl, AllowsEditionWhateverTheFlagWas)
{
  AdaptorBench<EditionControl> control;
  for (const unsigned char before : {0, 1, 200})
  {
    unsigned char allowed = before;
    EXPECT_EQ(control->AllowEdition(allowed), S_OK);
    EXPECT_EQ(allowed, 1);
  }
}

TEST(VOXEAnalysisEditionControl, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEditionControl::AllowEdition), 1);
  AdaptorBench<EditionControl> control;
  unsigned char allowed = 0;
  EXPECT_EQ((CallOwn<HRESULT, unsigned char&>(control.Get(), 1, allowed)), S_OK);
  EXPECT_EQ(allowed, 1);
}
