// SPDX-License-Identifier: MIT
#include "voxbench/build/LocalFrame.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace voxbench
{
namespace
{

using Vector = std::array<double, 3>;

Vector Cross(const Vector& iLeft, const Vector& iRight)
{
  return {iLeft[1] * iRight[2] - iLeft[2] * iRight[1], iLeft[2] * iRight[0] - iLeft[0] * iRight[2],
          iLeft[0] * iRight[1] - iLeft[1] * iRight[0]};
}

double Length(const Vector& iVector)
{
  return std::hypot(iVector[0], iVector[1], iVector[2]);
}

//! @return false for a vector without a direction.
bool Normalise(Vector& ioVector)
{
  const double length = Length(ioVector);
  if (!(length > 0.) || !std::isfinite(length))
    return false;
  for (double& component : ioVector)
    component /= length;
  return true;
}

//! Cosine of an angle in degrees, exact for quarter turns.
double Cosine(double iDegrees)
{
  const double turned = std::fmod(std::abs(iDegrees), 360.);
  return turned == 90. || turned == 270. ? 0. : std::cos(turned * 3.14159265358979323846 / 180.);
}

//! Turns two perpendicular directions about the third by an angle in degrees.
void Turn(Vector& ioFirst, Vector& ioSecond, double iDegrees)
{
  const double cosine = Cosine(iDegrees);
  const double sine = Cosine(iDegrees - 90.);
  const Vector first = ioFirst;
  for (std::size_t at = 0; at < 3; ++at)
  {
    ioFirst[at] = cosine * first[at] + sine * ioSecond[at];
    ioSecond[at] = cosine * ioSecond[at] - sine * first[at];
  }
}

Vector FarthestGlobalAxis(const Vector& iDirection)
{
  const auto smaller = [](double iLeft, double iRight) { return std::abs(iLeft) < std::abs(iRight); };
  Vector axis{};
  axis[static_cast<std::size_t>(std::min_element(iDirection.begin(), iDirection.end(), smaller) - iDirection.begin())] =
      1.;
  return axis;
}

struct Frame
{
  Vector origin{};
  Vector i{};
  Vector j{};
  Vector k{};
};

std::optional<Frame> Rectangular(const Vector& iFirst, const Vector& iSecond)
{
  // Points of any length: what counts is the angle between their directions.
  constexpr double kParallel = 1e-10;
  Frame frame{{}, iFirst, iSecond, {}};
  if (!Normalise(frame.i) || !Normalise(frame.j))
    return std::nullopt;
  frame.k = Cross(frame.i, frame.j);
  if (Length(frame.k) < kParallel || !Normalise(frame.k))
    return std::nullopt;
  frame.j = Cross(frame.k, frame.i);
  return frame;
}

std::optional<Frame> Cylindrical(const Vector& iFirst, const Vector& iSecond)
{
  Frame frame{iFirst, {}, {}, {}};
  for (std::size_t at = 0; at < 3; ++at)
    frame.k[at] = iSecond[at] - iFirst[at];
  if (!Normalise(frame.k))
    return std::nullopt;
  frame.j = Cross(frame.k, FarthestGlobalAxis(frame.k));
  Normalise(frame.j);
  frame.i = Cross(frame.j, frame.k);
  return frame;
}

void TurnAsTheCardSays(const CardRecord& iCard, Frame& ioFrame)
{
  const double angle = iCard.Number(1, 1, 0.);
  switch (static_cast<int>(iCard.Number(1, 0, 0.)))
  {
  case 1:
    return Turn(ioFrame.j, ioFrame.k, angle);
  case 2:
    return Turn(ioFrame.k, ioFrame.i, angle);
  case 3:
    return Turn(ioFrame.i, ioFrame.j, angle);
  default:
    return;
  }
}

} // namespace

std::optional<voxhost::AxisData> FrameOf(const LocalAxes& iAxes)
{
  const Vector first{iAxes.first[0], iAxes.first[1], iAxes.first[2]};
  const Vector second{iAxes.second[0], iAxes.second[1], iAxes.second[2]};
  std::optional<Frame> frame = iAxes.cylindrical ? Cylindrical(first, second) : Rectangular(first, second);
  if (!frame)
    return std::nullopt;
  if (!iAxes.cylindrical)
    TurnAsTheCardSays(iAxes.card, *frame);
  voxhost::AxisData axis;
  std::copy(frame->origin.begin(), frame->origin.end(), axis.origin);
  std::copy(frame->i.begin(), frame->i.end(), axis.i);
  std::copy(frame->j.begin(), frame->j.end(), axis.j);
  std::copy(frame->k.begin(), frame->k.end(), axis.k);
  axis.cylindrical = iAxes.cylindrical;
  return axis;
}

} // namespace voxbench
