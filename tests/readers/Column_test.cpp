// SPDX-License-Identifier: MIT
#include "Column.h"

#include <gtest/gtest.h>

#include <utility>

namespace voxbench
{

TEST(Column, KeepsItsValuesWhileItGrowsAndShrinks)
{
  Column<int> column;
  for (int value = 0; value < 1000; ++value)
    column.push_back(value);
  column.Truncate(10);
  column.ReleaseSlack();

  EXPECT_EQ(column, (Column<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
  EXPECT_EQ(column.capacity(), 10u);
}

TEST(Column, ReservedRoomAddsNoRows)
{
  Column<double> column;
  column.Reserve(1000000);

  EXPECT_TRUE(column.empty());
  EXPECT_GE(column.capacity(), 1000000u);
}

TEST(Column, ACopyIsApartAndAMoveLeavesNothing)
{
  Column<int> first = {1, 2, 3};
  const Column<int> copy = first;
  first[0] = 9;
  const Column<int> moved = std::move(first);

  EXPECT_EQ(copy, (Column<int>{1, 2, 3}));
  EXPECT_EQ(moved, (Column<int>{9, 2, 3}));
  EXPECT_TRUE(first.empty()); // NOLINT(bugprone-use-after-move): that is the behaviour
}

TEST(Column, AnEmptiedColumnGivesAllItsRoomBack)
{
  Column<int> column = {1, 2, 3};
  column.Truncate(0);
  column.ReleaseSlack();

  EXPECT_EQ(column.capacity(), 0u);
  column.push_back(4);
  EXPECT_EQ(column, (Column<int>{4}));
}

} // namespace voxbench
