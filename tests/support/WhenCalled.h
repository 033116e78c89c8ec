// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace voxtest
{

//! Something that happens, once, just when an operation of the host passes its fault point. One at a time, and none while
//! calls are recorded.
class WhenCalled
{
public:
  WhenCalled(const char* iOperation, std::function<void()> iWhat);
  ~WhenCalled();
  WhenCalled(const WhenCalled&) = delete;
  WhenCalled& operator=(const WhenCalled&) = delete;
};

} // namespace voxtest
