// SPDX-License-Identifier: MIT
#include "VOXEAnalysisEntityPreproSubscriber.h"

#include "FeatureModeler/VOXISpecObject.h"
#include "MeshSetHolder.h"

static_assert(sizeof(VOXEAnalysisEntityPreproSubscriber) == sizeof(VOXBaseUnknown),
              "deriving classes are laid out on this size");

VOXEAnalysisEntityPreproSubscriber::VOXEAnalysisEntityPreproSubscriber() = default;

VOXEAnalysisEntityPreproSubscriber::~VOXEAnalysisEntityPreproSubscriber() = default;

HRESULT VOXEAnalysisEntityPreproSubscriber::Clean()
{
  const VOXISpecObject_var spFeature(GetImpl(0));
  if (!!spFeature)
    spFeature->Unsubscribe(0);
  return S_OK;
}

unsigned char VOXEAnalysisEntityPreproSubscriber::CheckIfNeedToSubScribe() const
{
  const VOXISpecObject_var spFeature(GetImpl(0));
  return !!spFeature && voxframe::IsHeldByMeshSetContainer(spFeature) ? 0 : 1; // Kept: what is no feature subscribes
}
