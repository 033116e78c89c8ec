// SPDX-License-Identifier: MIT
#include "VOXEAnalysisUpgradeContainer.h"

#include "tests/adaptors/Face.h"

#include <type_traits>

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

class Upgrading : public VOXEAnalysisUpgradeContainer
{
public:
  using Carries = VOXISamUpgradeContainer;
  HRESULT UpgradeContainer() override { return S_FALSE; }
};

static_assert(std::is_abstract_v<VOXEAnalysisUpgradeContainer>, "a feature type must supply operation 1");

} // namespace

TEST(VOXEAnalysisUpgradeContainer, NeedsNoUpgradeWhateverTheRelease)
{
  AdaptorBench<Upgrading> container;
  EXPECT_FALSE(container->NeedToUpgraded(0, 0));
  EXPECT_FALSE(container->NeedToUpgraded(99, -1));
}

TEST(VOXEAnalysisUpgradeContainer, UpgradesAnObjectByDoingNothing)
{
  AdaptorBench<Upgrading> container;
  EXPECT_EQ(container->UpgradeObject(nullptr), S_OK);
  EXPECT_EQ(container->UpgradeObject(Poison<const VOXISpecObject>()), S_OK);
}

TEST(VOXEAnalysisUpgradeContainer, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXISamUpgradeContainer::UpgradeContainer), 1);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisUpgradeContainer::NeedToUpgraded), 2);
  EXPECT_EQ(OwnPlace(&VOXEAnalysisUpgradeContainer::UpgradeObject), 3);
  AdaptorBench<Upgrading> container;
  EXPECT_EQ(CallOwn<HRESULT>(container.Get(), 1), S_FALSE);
  EXPECT_FALSE((CallOwn<bool, int, int>(container.Get(), 2, 1, 1)));
  EXPECT_EQ((CallOwn<HRESULT, const VOXISpecObject*>(container.Get(), 3, nullptr)), S_OK);
}
