// SPDX-License-Identifier: MIT
#include "VOXSamBasicComponentManagerAdaptor.h"

#include "tests/adaptors/Face.h"

#include <gtest/gtest.h>

using namespace voxtest;

namespace
{

using Manager = Face<VOXSamBasicComponentManagerAdaptor, VOXISamBasicComponentManager>;

using Component = const VOXISamBasicComponent*;

const Component kAnyComponent = Poison<const VOXISamBasicComponent>();

} // namespace

TEST(VOXSamBasicComponentManagerAdaptor, HasNoOptionalComponents)
{
  AdaptorBench<Manager> manager;
  int number = 7;
  EXPECT_EQ(manager->GetNbOptionalBC(number), S_OK);
  EXPECT_EQ(number, 0);
}

TEST(VOXSamBasicComponentManagerAdaptor, LeavesTheThreeListsAsTheyAre)
{
  AdaptorBench<Manager> manager;
  VOXListValVOXUnicodeString names;
  VOXListValVOXUnicodeString types;
  VOXListValVOXBaseUnknown_var kinds;
  names.Append("name");
  types.Append("type");
  kinds.Append(VOXBaseUnknown_var());
  EXPECT_EQ(manager->GetOptionalBCList(names, types, kinds), S_OK);
  ASSERT_EQ(names.Size(), 1);
  ASSERT_EQ(types.Size(), 1);
  EXPECT_EQ(kinds.Size(), 1);
  EXPECT_TRUE(names[1] == "name");
  EXPECT_TRUE(types[1] == "type");
}

TEST(VOXSamBasicComponentManagerAdaptor, AnswersTheSecondStateAndRecordsWhateverTheComponent)
{
  AdaptorBench<Manager> manager;
  for (const Component component : {kAnyComponent, Component()})
  {
    EXPECT_EQ(static_cast<int>(manager->IsBasicComponentHidden(component)), 2);
    EXPECT_EQ(static_cast<int>(manager->IsBasicComponentReadOnly(component)), 2);
    EXPECT_TRUE(manager->IsBasicComponentRecordable(component));
  }
}

TEST(VOXSamBasicComponentManagerAdaptor, OperationsStandAtTheirPlaces)
{
  EXPECT_EQ(OwnPlace(&VOXSamBasicComponentManagerAdaptor::GetNbOptionalBC), 1);
  EXPECT_EQ(OwnPlace(&VOXSamBasicComponentManagerAdaptor::GetOptionalBCList), 2);
  EXPECT_EQ(OwnPlace(&VOXSamBasicComponentManagerAdaptor::IsBasicComponentHidden), 3);
  EXPECT_EQ(OwnPlace(&VOXSamBasicComponentManagerAdaptor::IsBasicComponentReadOnly), 4);
  EXPECT_EQ(OwnPlace(&VOXSamBasicComponentManagerAdaptor::IsBasicComponentRecordable), 5);
  AdaptorBench<Manager> manager;
  int number = 7;
  EXPECT_EQ((CallOwn<HRESULT, int&>(manager.Get(), 1, number)), S_OK);
  EXPECT_EQ((CallOwn<int, const VOXISamBasicComponent*>(manager.Get(), 4, kAnyComponent)), 2);
  EXPECT_TRUE((CallOwn<bool, const VOXISamBasicComponent*>(manager.Get(), 5, kAnyComponent)));
}
