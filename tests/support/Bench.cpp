// SPDX-License-Identifier: MIT
#include "tests/support/Bench.h"

namespace voxtest
{

Bench::~Bench()
{
  for (const std::function<void()>& forget : _Forgetters)
    forget();
  for (VOXBaseUnknown* const component : _Components)
    component->Release();
}

std::string Bench::NewName()
{
  static int number = 0;
  return "Bench" + std::to_string(++number);
}

VOXBaseUnknown* Bench::Make(const std::string& iLateType)
{
  VOXBaseUnknown* const component = voxhost::NewComponent(iLateType.c_str());
  _Components.push_back(component);
  return component;
}

} // namespace voxtest
