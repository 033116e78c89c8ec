// SPDX-License-Identifier: MIT
#pragma once

#include "AnalysisInterfaces/VOXISamMeshSubscriber.h"
#include "VOXAnalysisResources.h"

//! Subscription of an entity to the mesh pre-processing: every entity subscribes but those directly in a mesh set.
class VOX_ANALYSIS_API VOXEAnalysisEntityPreproSubscriber : public VOXISamMeshSubscriber
{
public:
  VOXEAnalysisEntityPreproSubscriber();
  ~VOXEAnalysisEntityPreproSubscriber() override;

  //! 1. Withdraws what the feature subscribed to. @return S_OK, whatever happened.
  HRESULT Clean() override;

  //! 2. Whether the entity must subscribe. A mesh set container is what has the late type "MSHSetContainer", not one
  //! that derives from it. @return 0 for a feature directly in a mesh set container; 1 for any other, and for a
  //! component that is no feature or has no father.
  unsigned char CheckIfNeedToSubScribe() const override;
};
