// SPDX-License-Identifier: MIT
#include "voxbench/features/DeckAxis.h"
#include "Visualization/VOXMathAxis.h"
#include "voxbench/features/FeatureAttribute.h"

#include <array>

namespace voxbench
{
namespace
{

constexpr int kNumbers = 12;

} // namespace

HRESULT DeckAxis::GetMathAxis(VOXMathAxis& oAxis) const
{
  const FeatureAttribute frame(*this, "Frame");
  if (!frame.spKey || frame.spAccess->GetListSize(frame.spKey) != kNumbers)
    return E_FAIL;
  std::array<double, kNumbers> numbers{};
  for (int i = 0; i < kNumbers; ++i)
    numbers[static_cast<std::size_t>(i)] = frame.spAccess->GetDouble(frame.spKey, i + 1);
  oAxis.origin = {numbers[0], numbers[1], numbers[2]};
  oAxis.i = {numbers[3], numbers[4], numbers[5]};
  oAxis.j = {numbers[6], numbers[7], numbers[8]};
  oAxis.k = {numbers[9], numbers[10], numbers[11]};
  return S_OK;
}

HRESULT DeckAxis::GetMKSMathAxis(VOXMathAxis& oAxis) const
{
  return VOXEAnalysisAxis::GetMKSMathAxis(oAxis);
}

} // namespace voxbench
