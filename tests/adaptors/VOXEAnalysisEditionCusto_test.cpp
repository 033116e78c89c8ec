// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEditionCusto.h"

#include "tests/adaptors/Face.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using EditionCusto = Face<VOXEAnalysisEditionCusto, VOXISamEditionCusto>;
using Action = VOXISamEditionCusto::VOXSamTypeActionPanel;

} // namespace

TEST(VOXEAnalysisEditionCusto, RefusesAnApplyAlthoughAnEditionIsAllowed)
{
  AdaptorBench<EditionCusto> custo;
  EXPECT_FALSE(custo->AllowApply());
}

TEST(VOXEAnalysisEditionCusto, TakesEveryActionOfThePanel)
{
  AdaptorBench<EditionCusto> custo;
  for (int action = VOXISamEditionCusto::PanelOpened; action <= VOXISamEditionCusto::PanelCancelled; ++action)
    EXPECT_EQ(custo->ActionPanel(static_cast<Action>(action)), S_OK);
}

TEST(VOXEAnalysisEditionCusto, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEditionCusto::AllowApply), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisEditionCusto::ActionPanel), 2);
  AdaptorBench<EditionCusto> custo;
  EXPECT_FALSE(CallOwn<bool>(custo.Get(), 1));
  EXPECT_EQ((CallOwn<HRESULT, Action>(custo.Get(), 2, VOXISamEditionCusto::PanelClosed)), S_OK);
}
