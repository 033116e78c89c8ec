// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

inline constexpr IID IID_VOXIRedrawEvent = VOXGuidOfName("VOXIRedrawEvent");

//! Event by which a feature asks its views to draw it again. Implemented by: the host's object modeler.
class VOX_HOST_API VOXIRedrawEvent : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXIRedrawEvent)

  //! 1. to 7. Reserved for the host; never called by the adaptors.
  virtual void ReservedRedrawEvent1() = 0;
  virtual void ReservedRedrawEvent2() = 0;
  virtual void ReservedRedrawEvent3() = 0;
  virtual void ReservedRedrawEvent4() = 0;
  virtual void ReservedRedrawEvent5() = 0;
  virtual void ReservedRedrawEvent6() = 0;
  virtual void ReservedRedrawEvent7() = 0;

  //! 8. Requests a redraw.
  virtual void RequestRedraw() = 0;
};

using VOXIRedrawEvent_var = VOXHandle<VOXIRedrawEvent>;
