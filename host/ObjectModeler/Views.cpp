// SPDX-License-Identifier: MIT
#include "host/ObjectModeler/Views.h"

namespace voxhost
{

void Views::Show(const VOXBaseUnknown* iObject, int iView)
{
  const VOXBaseUnknown* const object = iObject == nullptr ? nullptr : iObject->GetImpl();
  ++_ShowCalls;
  if (_Recording)
    _Calls.push_back({object, iView});
  if (object != nullptr && (iView == kIn3D || iView == kInGraph))
    _Shown[object] |= iView;
}

bool Views::IsShown(const VOXBaseUnknown* iObject, View iView) const
{
  return (ShownIn(iObject) & iView) != 0;
}

int Views::ShownIn(const VOXBaseUnknown* iObject) const
{
  if (iObject == nullptr || _Shown.empty())
    return 0;
  const auto found = _Shown.find(iObject->GetImpl());
  return found == _Shown.end() ? 0 : found->second;
}

void Views::Restore(const VOXBaseUnknown* iObject, int iViews)
{
  if (iObject == nullptr)
    return;
  if (iViews == 0)
    _Shown.erase(iObject->GetImpl());
  else
    _Shown[iObject->GetImpl()] = iViews;
}

void Views::Forget(const VOXBaseUnknown* iObject)
{
  if (iObject != nullptr)
    _Shown.erase(iObject->GetImpl());
}

void Views::Clear()
{
  const bool recording = _Recording;
  *this = Views();
  _Recording = recording;
}

} // namespace voxhost
