// SPDX-License-Identifier: MIT
#include "VOXEAnalysisAxis.h"

#include "Visualization/VOXMathAxis.h"
#include "tests/adaptors/Face.h"

#include <cstring>
#include <type_traits>

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

constexpr VOXMathAxis kGarbage{{9., 9., 9.}, {9., 9., 9.}, {9., 9., 9.}, {9., 9., 9.}};

bool SameBytes(const VOXMathAxis& iLeft, const VOXMathAxis& iRight)
{
  return std::memcmp(&iLeft, &iRight, sizeof(VOXMathAxis)) == 0;
}

// A feature type that supplies the axis in metres by calling the adaptor's body by name.
class PlainAxis : public VOXEAnalysisAxis
{
public:
  using Carries = VOXISamAnalysisAxis;
  HRESULT GetMKSMathAxis(VOXMathAxis& oAxis) const override { return VOXEAnalysisAxis::GetMKSMathAxis(oAxis); }
};

// The same with an axis of its own, which fails in the end.
class MovedAxis : public PlainAxis
{
public:
  HRESULT GetMathAxis(VOXMathAxis& oAxis) const override
  {
    oAxis = kGarbage;
    return E_NOTIMPL;
  }
};

static_assert(std::is_abstract_v<VOXEAnalysisAxis>, "operation 2 stays pure: a feature type must supply it");

} // namespace

TEST(VOXEAnalysisAxis, GivesTheCanonicalAxisWhole)
{
  AdaptorBench<PlainAxis> axis;
  VOXMathAxis given = kGarbage;
  EXPECT_EQ(axis->GetMathAxis(given), S_OK);
  EXPECT_TRUE(SameBytes(given, VOXMathOIJK));
}

TEST(VOXEAnalysisAxis, TheBodyOfTheAxisInMetresGivesTheAxisOfThisObject)
{
  AdaptorBench<PlainAxis> axis;
  VOXMathAxis given = kGarbage;
  EXPECT_EQ(axis->GetMKSMathAxis(given), S_OK);
  EXPECT_TRUE(SameBytes(given, VOXMathOIJK));
}

TEST(VOXEAnalysisAxis, TheBodyOfTheAxisInMetresAsksAnOverrideAndIgnoresItsResult)
{
  AdaptorBench<MovedAxis> axis;
  VOXMathAxis given = VOXMathOIJK;
  EXPECT_EQ(axis->GetMKSMathAxis(given), S_OK);
  EXPECT_TRUE(SameBytes(given, kGarbage));
}

TEST(VOXEAnalysisAxis, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXEAnalysisAxis::GetMathAxis), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisAxis::GetMKSMathAxis), 2);
  AdaptorBench<MovedAxis> axis;
  VOXMathAxis given = VOXMathOIJK;
  EXPECT_EQ((CallOwn<HRESULT, VOXMathAxis&>(axis.Get(), 1, given)), E_NOTIMPL);
  EXPECT_EQ((CallOwn<HRESULT, VOXMathAxis&>(axis.Get(), 2, given)), S_OK);
}
