// SPDX-License-Identifier: MIT
#include "VOXEAnalysisCollectorDerivatives.h"

#include "tests/adaptors/Face.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using Derivatives = Face<VOXEAnalysisCollectorDerivatives, VOXICharacCollectorDerivatives>;

class WithDerivatives : public Derivatives
{
public:
  bool AllowDerivativeComputation() override { return true; }
};

using Collector = const VOXAnalysisCharacCollector;

} // namespace

TEST(VOXEAnalysisCollectorDerivatives, HasNone)
{
  AdaptorBench<Derivatives> derivatives;
  EXPECT_FALSE(derivatives->AllowDerivativeComputation());
  EXPECT_FALSE(derivatives->IsDerivativeAvailable(nullptr));
  EXPECT_FALSE(derivatives->IsDerivativeAvailable(Poison<Collector>()));
}

TEST(VOXEAnalysisCollectorDerivatives, AnOverrideOfTheFirstOperationMakesThemAvailableForEveryCollector)
{
  AdaptorBench<WithDerivatives> derivatives;
  EXPECT_TRUE(derivatives->IsDerivativeAvailable(nullptr));
  EXPECT_TRUE(derivatives->IsDerivativeAvailable(Poison<Collector>()));
}

TEST(VOXEAnalysisCollectorDerivatives, ComputesAndSetsNothing)
{
  AdaptorBench<Derivatives> derivatives;
  VOXListValVOXBaseUnknown_var parameters;
  EXPECT_EQ(derivatives->ComputeParameterVariation(Poison<Collector>(), &parameters), E_NOTIMPL);
  EXPECT_EQ(derivatives->ComputeParameterVariation(nullptr, nullptr), E_NOTIMPL);
  EXPECT_EQ(derivatives->SetParameterVariation(VOXBaseUnknown_var(), 1.5), E_NOTIMPL);
  EXPECT_EQ(parameters.Size(), 0);
}

TEST(VOXEAnalysisCollectorDerivatives, NullsBothCollectorsAlthoughItGivesNone)
{
  AdaptorBench<Derivatives> derivatives;
  Collector* pFirst = Poison<Collector>();
  Collector* pSecond = Poison<Collector>();
  EXPECT_EQ(derivatives->GetCharacCollectorDerivatives(Poison<Collector>(), pFirst, pSecond), E_NOTIMPL);
  EXPECT_EQ(pFirst, nullptr);
  EXPECT_EQ(pSecond, nullptr);
}

TEST(VOXEAnalysisCollectorDerivatives, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisCollectorDerivatives::AllowDerivativeComputation), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisCollectorDerivatives::IsDerivativeAvailable), 2);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisCollectorDerivatives::ComputeParameterVariation), 3);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisCollectorDerivatives::SetParameterVariation), 4);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisCollectorDerivatives::GetCharacCollectorDerivatives), 5);
  AdaptorBench<WithDerivatives> derivatives;
  Collector* pFirst = Poison<Collector>();
  Collector* pSecond = Poison<Collector>();
  EXPECT_TRUE(CallOwn<bool>(derivatives.Get(), 1));
  EXPECT_TRUE((CallOwn<bool, Collector*>(derivatives.Get(), 2, pFirst)));
  EXPECT_EQ((CallOwn<HRESULT, Collector*, Collector*&, Collector*&>(derivatives.Get(), 5, nullptr, pFirst, pSecond)),
            E_NOTIMPL);
  EXPECT_EQ(pSecond, nullptr);
}
