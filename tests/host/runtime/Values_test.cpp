// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"
#include "ComponentRuntime/VOXRawCollint.h"
#include "ComponentRuntime/VOXString.h"
#include "tests/support/Torture.h"

#include <gtest/gtest.h>

namespace
{

TEST(UnicodeString, IsEmptyWhenMadeFromANullPointer)
{
  const VOXUnicodeString text(static_cast<const char*>(nullptr));
  EXPECT_TRUE(text == "");
  EXPECT_STREQ(text.ConvertToChar(), "");
  EXPECT_EQ(text.GetLength(), 0);
}

TEST(UnicodeString, ChangesNoCopyWhenItChanges)
{
  VOXUnicodeString text("Mass.2");
  const VOXUnicodeString copy(text);
  text.Resize(4);
  EXPECT_TRUE(text == "Mass");
  EXPECT_TRUE(copy == "Mass.2");
  text = copy + "." + VOXUnicodeString("3");
  EXPECT_TRUE(text == "Mass.2.3");
}

TEST(UnicodeString, FindsATextForwardsAndBackwards)
{
  const VOXUnicodeString text("A.B.C");
  EXPECT_EQ(text.SearchSubString(".", 0, 1), 1);
  EXPECT_EQ(text.SearchSubString(".", 2, 1), 3);
  EXPECT_EQ(text.SearchSubString(".", 4, 0), 3);
  EXPECT_EQ(text.SearchSubString("X", 0, 1), -1);
  EXPECT_EQ(text.SearchSubString("", 0, 1), -1);
  EXPECT_EQ(text.SearchSubString(".", 99, 1), -1);
}

TEST(UnicodeString, IsFilledWithBlanksWhenItGrows)
{
  VOXUnicodeString text("A");
  text.Resize(3);
  EXPECT_TRUE(text == "A  ");
  text.Resize(-1);
  EXPECT_TRUE(text == "");
}

TEST(String, ComparesWithTextsAndLiterals)
{
  const VOXString text("NODE");
  EXPECT_TRUE(text == VOXString("NODE"));
  EXPECT_TRUE(text == "NODE");
  EXPECT_TRUE(text != "node");
  EXPECT_TRUE(VOXString() == static_cast<const char*>(nullptr));
}

TEST(RawCollint, CountsFromOneAndFindsFromAPosition)
{
  VOXRawCollint list;
  for (const int value : {5, 7, 5})
    list.Append(value);
  EXPECT_EQ(list[1], 5);
  EXPECT_EQ(list.Locate(5, 1), 1);
  EXPECT_EQ(list.Locate(5, 2), 3);
  EXPECT_EQ(list.Locate(9, 1), 0);
}

TEST(RawCollint, RemovesEveryOccurrenceOfAnotherListsIntegers)
{
  VOXRawCollint list;
  VOXRawCollint unwanted;
  for (int value = 0; value < 100; ++value)
    list.Append(value % 50);
  for (int value = 0; value < 40; ++value)
    unwanted.Append(value);
  list.Remove(unwanted);
  EXPECT_EQ(list.Size(), 20);
  EXPECT_EQ(list[1], 40);
  EXPECT_EQ(list[20], 49);
}

TEST(RawCollint, RemovesNullsAndKeepsTheOrder)
{
  VOXRawCollint list;
  for (const int value : {0, 3, 0, 1})
    list.Append(value);
  list.RemoveNulls();
  ASSERT_EQ(list.Size(), 2);
  EXPECT_EQ(list[1], 3);
  EXPECT_EQ(list[2], 1);
  list.RemoveAll(1);
  EXPECT_EQ(list.Size(), 0);
}

TEST(ValueLists, StopTheProgramAtAnIndexOutsideOfTheList)
{
  const voxtest::ThrowingFatalErrors throwing;
  VOXListValVOXUnicodeString list;
  list.Append("A");
  EXPECT_THROW(list[0], voxtest::FatalErrorRaised);
  EXPECT_THROW(list[2], voxtest::FatalErrorRaised);
  EXPECT_THROW(VOXRawCollint()[1], voxtest::FatalErrorRaised);
}

TEST(ValueLists, TakeElementsOutAndMoveTheOthersUp)
{
  VOXListValVOXUnicodeString list;
  for (const char* const text : {"A", "B", "C"})
    list.Append(text);
  list.RemovePosition(2);
  ASSERT_EQ(list.Size(), 2);
  EXPECT_TRUE(list[2] == "C");
  EXPECT_EQ(list.Locate("C"), 2);
  EXPECT_EQ(list.Locate("B"), 0);
}

} // namespace
