// SPDX-License-Identifier: MIT
#include "ComponentRuntime/VOXListValVOXUnicodeString.h"
#include "ComponentRuntime/VOXRawCollint.h"
#include "ComponentRuntime/VOXString.h"
#include "tests/support/Torture.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

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

TEST(RawCollint, FindsWhatIsAddedAfterASearchInVain)
{
  VOXRawCollint list;
  list.Append(1);
  EXPECT_EQ(list.Locate(5, 1), 0);
  list.Append(5);
  list.Append(5);
  EXPECT_EQ(list.Locate(5, 1), 2);
  EXPECT_EQ(list.Locate(5, 3), 3);
  EXPECT_EQ(list.Locate(1, 1), 1);
}

TEST(RawCollint, FindsWhatIsWrittenAfterASearchInVain)
{
  VOXRawCollint list;
  for (const int value : {1, 2, 3})
    list.Append(value);
  EXPECT_EQ(list.Locate(5, 1), 0);
  int& second = list[2];
  EXPECT_EQ(list.Locate(5, 1), 0);
  second = 5;
  EXPECT_EQ(list.Locate(5, 1), 2);
}

TEST(RawCollint, FindsWhatAnotherContentBringsAfterASearchInVain)
{
  VOXRawCollint list;
  for (const int value : {1, 2, 3})
    list.Append(value);
  EXPECT_EQ(list.Locate(5, 1), 0);
  VOXRawCollint other;
  other.Append(5);
  list = other;
  EXPECT_EQ(list.Locate(5, 1), 1);
  EXPECT_EQ(list.Locate(6, 1), 0);
  list.RemoveAll(0);
  list.Append(6);
  EXPECT_EQ(list.Locate(6, 1), 1);
}

TEST(RawCollint, FindsWhatMovesUpAfterASearchInVain)
{
  VOXRawCollint list;
  for (const int value : {1, 0, 2})
    list.Append(value);
  EXPECT_EQ(list.Locate(5, 1), 0);
  list.Append(5);
  list.RemoveNulls();
  EXPECT_EQ(list.Locate(5, 1), 3);
  EXPECT_EQ(list.Locate(6, 1), 0);
  list.Append(6);
  VOXRawCollint unwanted;
  unwanted.Append(1);
  unwanted.Append(2);
  list.Remove(unwanted);
  EXPECT_EQ(list.Locate(6, 1), 2);
}

TEST(RawCollint, AddsAgainWhatWasRemoved)
{
  VOXRawCollint list;
  VOXRawCollint unwanted;
  for (const int value : {-2000000000, 3, 2000000000, 4})
    list.Append(value);
  for (const int value : {2000000000, -2000000000})
    unwanted.Append(value);
  list.Remove(unwanted);
  unwanted.RemoveAll(1);
  unwanted.Append(4);
  list.Remove(unwanted);
  list.Append(4);
  const VOXRawCollint copy(list);
  ASSERT_EQ(copy.Size(), 2);
  EXPECT_EQ(copy[1], 3);
  EXPECT_EQ(copy[2], 4);
}

TEST(RawCollint, IsEmptyWithoutItsOwnIntegers)
{
  VOXRawCollint list;
  list.Append(3);
  list.Append(4);
  list.Remove(list);
  EXPECT_EQ(list.Size(), 0);
  list.Append(3);
  list.Remove(VOXRawCollint());
  EXPECT_EQ(list.Size(), 1);
  VOXRawCollint other;
  other.Remove(list);
  other.Append(3);
  EXPECT_EQ(other.Locate(3, 1), 1);
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

TEST(ValueLists, LoseElementsAnywhereAndTakeNewOnesAtTheEnd)
{
  VOXListValVOXUnicodeString list;
  std::vector<std::string> expected;
  for (int i = 0; i < 200; ++i)
  {
    const std::string text = std::to_string(i);
    list.Append(text.c_str());
    expected.push_back(text);
    if (i % 3 == 0)
      continue;
    const int position = i % 5 == 0 ? list.Size() : i % 7 == 0 ? 1 + list.Size() / 2 : 1 + i % 2;
    if (position > list.Size())
      continue;
    list.RemovePosition(position);
    expected.erase(expected.begin() + (position - 1));
  }
  const VOXListValVOXUnicodeString copy(list);
  ASSERT_EQ(copy.Size(), static_cast<int>(expected.size()));
  ASSERT_GT(copy.Size(), 50);
  for (int i = 1; i <= copy.Size(); ++i)
  {
    EXPECT_EQ(copy[i].ConvertToChar(), expected[static_cast<std::size_t>(i - 1)]);
    EXPECT_EQ(list.Locate(copy[i], 1), i);
  }
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

TEST(UnicodeString, IsJoinedWithNothingOnEitherSide)
{
  const VOXUnicodeString nothing;
  EXPECT_EQ(nothing + "text", VOXUnicodeString("text"));
  EXPECT_EQ(VOXUnicodeString("text") + "", VOXUnicodeString("text"));
  EXPECT_EQ(nothing + "", nothing);
}
