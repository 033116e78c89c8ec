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
  int calls = 0;
  std::string lastFailed;
};

Plan& CurrentPlan()
{
  static Plan plan;
  return plan;
}

} // namespace

bool Faults::_Armed = false;

void Faults::Count()
{
  CurrentPlan() = Plan{};
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

void Faults::Disarm() { _Armed = false; }

int Faults::Calls() { return CurrentPlan().calls; }

std::string Faults::LastFailed() { return CurrentPlan().lastFailed; }

bool Faults::Decide(const char* iOperation)
{
  Plan& plan = CurrentPlan();
  if (!plan.operation.empty() && plan.operation != iOperation)
    return false;
  ++plan.calls;
  const bool fails = plan.failAt != 0 && (plan.calls == plan.failAt || (plan.andLater && plan.calls > plan.failAt));
  if (fails)
    plan.lastFailed = iOperation;
  return fails;
}

} // namespace voxhost
