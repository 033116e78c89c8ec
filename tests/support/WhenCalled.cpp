// SPDX-License-Identifier: MIT
#include "tests/support/WhenCalled.h"

#include "host/Instruments/Faults.h"

#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

using voxhost::Faults;

namespace voxtest
{
namespace
{

std::string g_operation;
std::function<void()> g_what;

} // namespace

WhenCalled::WhenCalled(const char* iOperation, std::function<void()> iWhat)
{
  g_operation = iOperation;
  g_what = std::move(iWhat);
  Faults::Listen(
      [](const char* iPassed)
      {
        if (!g_what || std::string_view(iPassed) != g_operation)
          return;
        const std::function<void()> what = std::exchange(g_what, {});
        what();
      });
}

WhenCalled::~WhenCalled()
{
  EXPECT_FALSE(g_what) << g_operation << " was never called";
  g_what = {};
  Faults::Listen(nullptr);
}

} // namespace voxtest
