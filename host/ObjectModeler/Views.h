// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXBaseUnknown.h"

#include <unordered_map>
#include <vector>

namespace voxhost
{

//! What a document shows, and what its view managers and redraw events were asked. Objects are meant by their
//! implementation objects, which are never used through the pointers that are kept here.
class VOX_HOST_API Views
{
public:
  enum View : int
  {
    kIn3D = 1,
    kInGraph = 2
  };
  struct ShowCall
  {
    const VOXBaseUnknown* object;
    int view;
    bool operator==(const ShowCall&) const = default;
  };

  //! Shows an object; a view that is neither kIn3D nor kInGraph is counted and shows nothing.
  void Show(const VOXBaseUnknown* iObject, int iView);
  void NoteShowStatus() { ++_ShowStatusCalls; }
  void NoteRedraw() { ++_RedrawRequests; }

  //! Whether Show was asked for the object in that view since the last Clear.
  bool IsShown(const VOXBaseUnknown* iObject, View iView) const;

  //! The calls of Show in their order, while recording is on; it is off at the start.
  void RecordCalls(bool iOn) { _Recording = iOn; }
  const std::vector<ShowCall>& Calls() const { return _Calls; }

  int ShowCalls() const { return _ShowCalls; }
  int ShowStatusCalls() const { return _ShowStatusCalls; }
  int RedrawRequests() const { return _RedrawRequests; }

  //! Bits of the views in which an object is shown.
  int ShownIn(const VOXBaseUnknown* iObject) const;

  //! Puts back in which views an object is shown; nothing is counted.
  void Restore(const VOXBaseUnknown* iObject, int iViews);

  //! Hides an object that is about to go.
  void Forget(const VOXBaseUnknown* iObject);

  //! Shows nothing, counts from 0, forgets the calls.
  void Clear();

private:
  std::unordered_map<const VOXBaseUnknown*, int> _Shown;
  std::vector<ShowCall> _Calls;
  int _ShowCalls = 0;
  int _ShowStatusCalls = 0;
  int _RedrawRequests = 0;
  bool _Recording = false;
};

} // namespace voxhost
