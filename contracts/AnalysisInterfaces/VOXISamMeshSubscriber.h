// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXHandle.h"

inline constexpr IID IID_VOXISamMeshSubscriber = VOXGuidOfName("VOXISamMeshSubscriber");

//! Subscription of an entity to the mesh pre-processing of its model. Implemented by: entity feature types, usually by
//! deriving from VOXEAnalysisEntityPreproSubscriber. Called by: the host.
class VOX_HOST_API VOXISamMeshSubscriber : public VOXBaseUnknown
{
  VOX_INTERFACE(VOXISamMeshSubscriber)

  //! 1. Takes back what the entity subscribed to. @return S_OK.
  virtual HRESULT Clean() = 0;

  //! 2. Whether the entity must subscribe. @return 1 or 0.
  virtual unsigned char CheckIfNeedToSubScribe() const = 0;
};

using VOXISamMeshSubscriber_var = VOXHandle<VOXISamMeshSubscriber>;
