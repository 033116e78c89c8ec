// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <array>
#include <string>
#include <vector>

namespace voxbench
{

//! An axis system of a model, in the units of the file.
struct AxisRow
{
  int tag = 0;
  std::string name;
  std::string system; //!< "rectangular" or "cylindrical"
  std::array<double, 3> origin{};
  std::array<double, 3> i{};
  std::array<double, 3> j{};
  std::array<double, 3> k{};
  std::string madeBy;    //!< name of the feature; "" for an implicit axis
  bool dropped = false;  //!< gives no frame, or another one took its place
  bool recorded = false; //!< its tag stands in "AllImplicitAxis"
};

struct AxesResult
{
  std::vector<AxisRow> axes;     //!< ascending by tag
  std::vector<int> implicitTags; //!< what "AllImplicitAxis" records, in its order
};

void PrintAxes(Output& ioOutput, const AxesResult& iResult);

//! {"axes": [...], "allImplicitAxis": {"tags": [...]}}
void WriteAxesJson(Output& ioOutput, const AxesResult& iResult);

} // namespace voxbench
