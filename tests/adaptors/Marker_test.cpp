// SPDX-License-Identifier: MIT
#include "VOXAnalysisResources.h"

#include <dlfcn.h>

#include <gtest/gtest.h>

TEST(Marker, AnswersOne)
{
  EXPECT_EQ(ZORVEL_QMX2_INTERNAL_VOXAnalysisResources(), 1);
}

TEST(Marker, IsFoundByItsPlainName)
{
  void* const found = dlsym(RTLD_DEFAULT, "ZORVEL_QMX2_INTERNAL_VOXAnalysisResources");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(reinterpret_cast<int (*)()>(found)(), 1);
}
