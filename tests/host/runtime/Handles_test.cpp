// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXListValVOXBaseUnknown_var.h"
#include "FeatureModeler/VOXISpecObject.h"
#include "host/ComponentRuntime/Component.h"
#include "host/Instruments/Ledger.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{

class Handles : public testing::Test
{
protected:
  Handles()
  {
    VOXDeclareLateType("HandleTests", nullptr);
    component = voxhost::NewComponent("HandleTests");
  }
  ~Handles() override { EXPECT_EQ(component->Release(), 0ul) << "every handle gave its reference back"; }
  unsigned long References() const { return VOXComponentRuntime::References(component); }

  VOXBaseUnknown* component = nullptr;
};

TEST_F(Handles, HoldOneReferenceEach)
{
  VOXBaseUnknown_var first(component);
  const VOXBaseUnknown_var second(first);
  EXPECT_EQ(References(), 3ul);
  first = NULL_var;
  EXPECT_EQ(References(), 2ul);
  EXPECT_TRUE(first == NULL_var);
  EXPECT_TRUE(second != NULL_var);
}

TEST_F(Handles, MoveTheirReference)
{
  VOXBaseUnknown_var first(component);
  const VOXBaseUnknown_var second(std::move(first));
  EXPECT_EQ(References(), 2ul);
  EXPECT_TRUE(!first);
  EXPECT_EQ(second.Get(), component);
}

TEST_F(Handles, SurviveBeingAssignedToThemselves)
{
  VOXBaseUnknown_var handle(component);
  const VOXBaseUnknown_var& same = handle;
  handle = same;
  EXPECT_EQ(References(), 2ul);
  EXPECT_EQ(handle.Get(), component);
}

TEST_F(Handles, AreEmptyOnWhatLacksTheirInterface)
{
  const VOXISpecObject_var spec(component);
  EXPECT_TRUE(!spec);
  EXPECT_EQ(References(), 1ul);
}

TEST_F(Handles, AreEmptyOnNull)
{
  const VOXBaseUnknown_var handle(static_cast<const VOXBaseUnknown*>(nullptr));
  EXPECT_TRUE(!handle);
}

TEST_F(Handles, InAListHoldAReferencePerElement)
{
  VOXListValVOXBaseUnknown_var list;
  list.Append(VOXBaseUnknown_var(component));
  list.Append(list[1]);
  list.Append(VOXBaseUnknown_var());
  EXPECT_EQ(References(), 3ul);
  EXPECT_EQ(list.Locate(VOXBaseUnknown_var(component), 2), 2);
  EXPECT_EQ(list.Locate(VOXBaseUnknown_var()), 3);
  list.RemovePosition(1);
  EXPECT_EQ(References(), 2ul);
  VOXListValVOXBaseUnknown_var copy;
  copy = list;
  EXPECT_EQ(copy.Size(), 2);
  EXPECT_EQ(References(), 3ul);
  list.RemoveAll();
  EXPECT_EQ(References(), 2ul);
}

} // namespace
