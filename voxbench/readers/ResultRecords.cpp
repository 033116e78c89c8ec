// SPDX-License-Identifier: MIT
#include "ResultRecords.h"

namespace voxbench
{

const char* NameOf(ResultKind iKind)
{
  switch (iKind)
  {
  case ResultKind::Static:
    return "static";
  case ResultKind::Time:
    return "time";
  case ResultKind::Mode:
    return "mode";
  case ResultKind::Buckling:
    return "buckling";
  case ResultKind::Frequency:
    break;
  }
  return "frequency";
}

std::string NameOfImaginaryPart(const std::string& iName)
{
  constexpr std::size_t kLongestName = 8;
  return iName.substr(0, kLongestName - 1) + "I";
}

} // namespace voxbench
