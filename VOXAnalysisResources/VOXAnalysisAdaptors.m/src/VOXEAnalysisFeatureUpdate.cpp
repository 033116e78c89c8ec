// SPDX-License-Identifier: MIT
#include "VOXEAnalysisFeatureUpdate.h"

static_assert(sizeof(VOXEAnalysisFeatureUpdate) == sizeof(VOXBaseUnknown),
              "deriving classes are laid out on this size");

VOXEAnalysisFeatureUpdate::VOXEAnalysisFeatureUpdate() = default;

VOXEAnalysisFeatureUpdate::~VOXEAnalysisFeatureUpdate() = default;

HRESULT VOXEAnalysisFeatureUpdate::Update(VOXISamAnalysisFeatureUpdate::VOXSamUpdateAction /*iAction*/)
{
  return S_OK;
}

// Kept: the answer stays what the caller set.
void VOXEAnalysisFeatureUpdate::IsUpToDate(unsigned char& /*oUpToDate*/) const {}

void VOXEAnalysisFeatureUpdate::SetNoUpToDate() {}
