// SPDX-License-Identifier: MIT
#include "Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

namespace voxbench
{

namespace
{
// The text as it stands in a window: followed by a comma and bytes that can be read.
std::string InWindow(const std::string& iText)
{
  return iText + "," + std::string(128, '\0');
}

double Parsed(const std::string& iText)
{
  double value = -1.25;
  return ParseReal(iText, value) ? value : -1.25;
}
} // namespace

TEST(Numbers, ScannedRealsAreRoundedAsTheLibraryDoes)
{
  std::mt19937_64 random(7);
  const char* const formats[] = {"%.3f", "%.9g", "%.15g", "%.16g", "%.17g", "%.6e", "%.12E", "%.20g", "%.0f."};
  for (int round = 0; round < 200000; ++round)
  {
    const int exponent = static_cast<int>(random() % 80) - 40;
    const double wanted = std::ldexp(static_cast<double>(static_cast<std::int64_t>(random())), exponent - 50);
    char text[400];
    std::snprintf(text, sizeof text, formats[round % 9], wanted);
    const std::string window = InWindow(text);
    double value = 0.;
    const char* const end = scan::Real(window.c_str(), value);
    ASSERT_NE(end, nullptr) << text;
    ASSERT_EQ(*end, ',') << text;
    ASSERT_EQ(value, std::strtod(text, nullptr)) << text;
  }
}

TEST(Numbers, ScannedIdsStopAtTheFirstOtherCharacter)
{
  for (const char* const text : {"1", "12", "123", "1234567", "12345678"})
  {
    std::int32_t id = 0;
    const std::string window = InWindow(text);
    const char* const end = scan::Id(window.c_str(), id);
    ASSERT_NE(end, nullptr) << text;
    EXPECT_EQ(*end, ',') << text;
    EXPECT_EQ(id, std::atoi(text));
  }
}

TEST(Numbers, ScannedIdsGiveUpOnZeroSignsAndNineDigits)
{
  for (const char* const text : {"0", "-1", "+1", "", "x", "123456789", "/", ":"})
  {
    std::int32_t id = 0;
    EXPECT_EQ(scan::Id(InWindow(text).c_str(), id), nullptr) << text;
  }
}

TEST(Numbers, ScannedRealsGiveUpOnWhatIsNoNumber)
{
  for (const char* const text : {"", "-", ".", "-.", "e5", "nan", "inf", "-inf", "x", "1e", "1e+"})
  {
    double value = 0.;
    EXPECT_EQ(scan::Real(InWindow(text).c_str(), value), nullptr) << text;
  }
}

TEST(Numbers, EveryWayOfWritingARealIsKnown)
{
  EXPECT_EQ(Parsed("1"), 1.);
  EXPECT_EQ(Parsed("+1."), 1.);
  EXPECT_EQ(Parsed("-.5"), -.5);
  EXPECT_EQ(Parsed("1.5E3"), 1500.);
  EXPECT_EQ(Parsed("1.5D-3"), .0015);
  EXPECT_EQ(Parsed("1.5d+3"), 1500.);
  EXPECT_EQ(Parsed("1.5-3"), .0015);
  EXPECT_EQ(Parsed("1+3"), 1000.);
  EXPECT_EQ(Parsed("1e-400"), 0.);
}

TEST(Numbers, WhatIsNoFiniteRealIsTurnedDown)
{
  for (const char* const text : {"", "1e400", "nan", "inf", "0x10", "1.2.3", "1,2", "--1", "12a", "E5", "+"})
    EXPECT_EQ(Parsed(text), -1.25) << text;
}

TEST(Numbers, IntegersBeyond32BitsAreTurnedDown)
{
  std::int32_t value = 7;
  EXPECT_TRUE(ParseInteger("2147483647", value));
  EXPECT_EQ(value, 2147483647);
  EXPECT_FALSE(ParseInteger("2147483648", value));
  EXPECT_FALSE(ParseInteger("1.", value));
  EXPECT_FALSE(ParseInteger("+-1", value));
  EXPECT_EQ(value, 2147483647);
  EXPECT_TRUE(ParseInteger("+5", value));
  EXPECT_EQ(value, 5);
}

} // namespace voxbench
