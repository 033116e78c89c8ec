// SPDX-License-Identifier: MIT
#include "voxbench/commands/Owner.h"
#include "VOXSamToolsForExplicitation.h"

namespace voxbench
{

voxhost::Feature* OwnerOf(const LoadedModel& iModel, const VOXAnalysisExplicitParent& iObject)
{
  const VOXIContainer_var spContainer(static_cast<VOXBaseUnknown*>(&iModel.Document().MainContainer()));
  VOXISpecObject* const piFeature = VOXSamToolsForExplicitation::GetParentFeature(iObject, spContainer);
  if (piFeature == nullptr)
    return nullptr;
  voxhost::Feature* const feature = voxhost::Feature::Of(piFeature);
  piFeature->Release(); // the document keeps it
  return feature;
}

std::string PhysicalTypeOf(const LoadedModel& iModel, const VOXAnalysisExplicitChild& iObject)
{
  int type = VOXSamPhysicalTypeNone;
  return SUCCEEDED(iObject.GetPhysicalType(type)) ? iModel.Explicit().Rules()->NameOf(type) : std::string();
}

} // namespace voxbench
