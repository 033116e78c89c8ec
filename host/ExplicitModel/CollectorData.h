// SPDX-License-Identifier: MIT
#pragma once

#include "ComponentRuntime/VOXString.h"
#include "ExplicitModel/VOXAnalysisExplicitData.h"
#include "ExplicitModel/VOXSamCharacVersion.h"

#include <cstdint>
#include <memory>
#include <vector>

class VOXAnalysisCharacCollector;
class VOXAnalysisCollectorArchiver;
class VOXAnalysisEntityCollector;

//! What the host keeps of a collector.
struct VOXCollectorData
{
  int count = 0;
  bool retired = false;
  VOXAnalysisExplicitParent context;
  VOXAnalysisExplicitParent attachedTo; //!< empty while the collector is not attached
  std::uint64_t stamp = 0;              //!< of the context, when the entities were set
  int size = 0;
  std::unique_ptr<VOXSamModelDataRoot*[]> objects;
  std::unique_ptr<int[]> indices;
  mutable std::vector<unsigned char> flags;

  // What kind of collector it is: one of the two.
  VOXAnalysisEntityCollector* entityCollector = nullptr;
  VOXAnalysisCharacCollector* characCollector = nullptr;

  // Of an entity collector.
  VOXSamValue value = VOXSamValueNone;
  VOXString name;

  // Of a charac collector, beside the name.
  int physicalType = VOXSamPhysicalTypeNone;
  VOXSamCharacVersion version;
  VOXString position;
  int components = 0;
  int frame = 0;
  std::vector<double> values;
  const VOXAnalysisCollectorArchiver* archiver = nullptr;
};
