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
  const auto found = iObject == nullptr ? _Shown.end() : _Shown.find(iObject->GetImpl());
  return found != _Shown.end() && (found->second & iView) != 0;
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
