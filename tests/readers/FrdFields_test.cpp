// SPDX-License-Identifier: MIT
#include "frd/FixedFields.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

namespace voxbench
{

namespace
{

std::string Padded(std::string iText)
{
  return iText + std::string(16, '\0');
}

bool Reads(const char* iText, double& oValue)
{
  return frd::FixedReal(Padded(iText).c_str(), oValue);
}

} // namespace

TEST(FrdFields, EveryPrintedNumberIsReadAsTheLibraryReadsIt)
{
  std::mt19937_64 random(2);
  std::uniform_real_distribution<double> mantissa(1., 9.99);
  std::uniform_int_distribution<int> power(-17, 26);
  for (int round = 0; round < 200000; ++round)
  {
    char text[32];
    const double sign = random() % 2 == 0 ? 1. : -1.;
    std::snprintf(text, sizeof text, "%12.5E", sign * mantissa(random) * std::pow(10., power(random)));
    double value = 0.;
    ASSERT_TRUE(Reads(text, value)) << text;
    ASSERT_EQ(value, std::strtod(text, nullptr)) << text;
  }
}

TEST(FrdFields, MinusZeroKeepsItsSign)
{
  double value = 1.;
  ASSERT_TRUE(Reads("-0.00000E+00", value));
  EXPECT_TRUE(std::signbit(value));
}

TEST(FrdFields, WhatCannotBeExactInOneStepIsLeftToTheSlowWay)
{
  double value = 0.;
  EXPECT_FALSE(Reads(" 1.23456E+40", value));
  EXPECT_FALSE(Reads(" 1.23456E-30", value));
}

TEST(FrdFields, EveryOtherCharacterAtAnyPlaceIsNoticed)
{
  const std::string good = "-1.23456E-07";
  for (std::size_t at = 0; at < good.size(); ++at)
    for (int character = 0; character < 256; ++character)
    {
      std::string text = good;
      text[at] = static_cast<char>(character);
      const bool isDigit = character >= '0' && character <= '9';
      const bool isFine = (at == 0 && (character == ' ' || character == '-')) || (at == 2 && character == '.') ||
                          (at == 8 && character == 'E') || (at == 9 && (character == '+' || character == '-')) ||
                          (at != 0 && at != 2 && at != 8 && at != 9 && isDigit);
      double value = 0.;
      const bool tooSmall = at == 10 && isDigit && character > '1'; // beyond what one step can do exactly
      ASSERT_EQ(Reads(text.c_str(), value), isFine && !tooSmall) << at << " " << character;
    }
}

TEST(FrdFields, AnIdStandsAtTheRightOfItsField)
{
  std::int32_t id = 0;
  EXPECT_TRUE(frd::FixedId("        12", 10, id));
  EXPECT_EQ(id, 12);
  EXPECT_TRUE(frd::FixedId("2147483647", 10, id));
  EXPECT_EQ(id, 2147483647);
  EXPECT_FALSE(frd::FixedId("2147483648", 10, id));
  EXPECT_FALSE(frd::FixedId("        -1", 10, id));
  EXPECT_FALSE(frd::FixedId("         0", 10, id));
  EXPECT_FALSE(frd::FixedId("       1 2", 10, id));
  EXPECT_FALSE(frd::FixedId("          ", 10, id));
}

} // namespace voxbench
