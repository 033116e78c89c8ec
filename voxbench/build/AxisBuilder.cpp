// SPDX-License-Identifier: MIT
// The local axis systems of a file: those with a name become features, those without are recorded as implicit.
#include "AnalysisInterfaces/VOXISamAnalysisSet.h"
#include "VOXSamToolsForExplicitation.h"
#include "voxbench/build/LocalFrame.h"
#include "voxbench/build/ModelBuilder.h"
#include "voxbench/features/TypeNames.h"

#include <fmt/format.h>

namespace voxbench
{
namespace
{

std::vector<double> Numbers(const voxhost::AxisData& iAxis)
{
  std::vector<double> numbers;
  for (const double* const triple : {iAxis.origin, iAxis.i, iAxis.j, iAxis.k})
    numbers.insert(numbers.end(), triple, triple + 3);
  return numbers;
}

} // namespace

void ModelBuilder::BuildAxes()
{
  const Pair axes = MakeSet("AxisSet", "AXIS_SET", "Axes");
  for (const LocalAxes& orientation : _Records.orientations)
  {
    const Plan plan{kAxisType, "AXIS", NextName("ORIENTATION"), orientation.name};
    const Pair axis = MakeEntity(axes, plan, "ORIENTATION", orientation.card.step);
    SetFrame(axis, orientation);
  }
  LogImplicitAxes(axes);
}

//! Two points that give no frame leave the axis with the global directions, and drop it.
void ModelBuilder::SetFrame(const Pair& iAxis, const LocalAxes& iCard)
{
  const std::optional<voxhost::AxisData> frame = FrameOf(iCard);
  const voxhost::AxisData data = frame.value_or(voxhost::AxisData{});
  _Model.SetAxis(iAxis.object, data);
  if (!frame)
    _Model.SetStatus(iAxis.object, VOXSamStatusDropped);
  if (iAxis.feature != nullptr)
    iAxis.feature->Set("Frame", Numbers(data));
}

//! The axes of transforms belong to no feature; a later transform of the same nodes takes the place of an earlier one.
void ModelBuilder::LogImplicitAxes(const Pair& iAxisSet)
{
  std::vector<VOXAnalysisExplicitEntity> objects;
  std::unordered_map<std::string, std::size_t> ofSet;
  for (const LocalAxes& transform : _Records.transforms)
  {
    const VOXAnalysisExplicitEntity object =
        _Model.Create(iAxisSet.object, "AXIS", fmt::format("Transform of {}", transform.nodeSet));
    SetFrame({nullptr, object}, transform);
    const auto [earlier, isFirst] = ofSet.try_emplace(transform.nodeSet, objects.size());
    if (!isFirst)
      _Model.SetStatus(objects[earlier->second], VOXSamStatusDropped);
    earlier->second = objects.size();
    objects.push_back(object);
  }

  const VOXISamAnalysisSet_var spSet(static_cast<VOXBaseUnknown*>(iAxisSet.feature));
  VOXAnalysisExplicitAxis globalFrame;
  bool logged = SUCCEEDED(_Model.GetGlobalRefFrame(globalFrame)) &&
                SUCCEEDED(VOXSamToolsForExplicitation::LogImplicitAxis(spSet, globalFrame));
  if (!logged)
    _Failure = "the axes that no feature made cannot be recorded";
}

} // namespace voxbench
