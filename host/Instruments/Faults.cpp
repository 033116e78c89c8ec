// SPDX-License-Identifier: MIT
#include "host/Instruments/Faults.h"

namespace voxhost
{
namespace
{

struct Plan
{
  std::string operation; // empty: every operation counts
  int failAt = 0;        // 0: none fails
  bool andLater = false;
  bool active = false;
  int calls = 0;
  std::string lastFailed;
};

Plan& CurrentPlan()
{
  static Plan plan;
  return plan;
}

void (*g_listener)(const char*) = nullptr;

} // namespace

bool Faults::_Armed = false;

void Faults::Count()
{
  CurrentPlan() = Plan{};
  CurrentPlan().active = true;
  _Armed = true;
}

void Faults::FailCall(int iCall, bool iAndLater)
{
  Count();
  CurrentPlan().failAt = iCall;
  CurrentPlan().andLater = iAndLater;
}

void Faults::FailOperation(const char* iOperation, int iCall, bool iAndLater)
{
  FailCall(iCall, iAndLater);
  CurrentPlan().operation = iOperation;
}

void Faults::Disarm()
{
  CurrentPlan().active = false;
  _Armed = g_listener != nullptr;
}

void Faults::Listen(void (*iListener)(const char*))
{
  g_listener = iListener;
  _Armed = iListener != nullptr || CurrentPlan().active;
}

int Faults::Calls()
{
  return CurrentPlan().calls;
}

std::string Faults::LastFailed()
{
  return CurrentPlan().lastFailed;
}

bool Faults::Decide(const char* iOperation)
{
  if (g_listener != nullptr)
    g_listener(iOperation);
  Plan& plan = CurrentPlan();
  if (!plan.active)
    return false;
  if (!plan.operation.empty() && plan.operation != iOperation)
    return false;
  ++plan.calls;
  const bool fails = plan.failAt != 0 && (plan.calls == plan.failAt || (plan.andLater && plan.calls > plan.failAt));
  if (fails)
    plan.lastFailed = iOperation;
  return fails;
}

} // namespace voxhost
