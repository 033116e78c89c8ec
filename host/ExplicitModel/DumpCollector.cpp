// SPDX-License-Identifier: MIT
#include "host/ExplicitModel/DumpCollector.h"

#include "host/ExplicitModel/CollectorData.h"
#include "host/ExplicitModel/ModelObject.h"

#include <algorithm>
#include <string>

namespace voxhost
{

void DumpCollector(const VOXCollectorData& iData, const char* iTitle, VOXListValVOXUnicodeString* ioLines, int iIndent,
                   int iFirst, int iCount)
{
  if (ioLines == nullptr)
    return;
  const std::string indent(static_cast<std::size_t>(std::max(iIndent, 0)), ' ');
  const std::string head =
      indent + iTitle + " " + iData.name.CastToCharPtr() + ": " + std::to_string(iData.size) + " entities";
  ioLines->Append(VOXUnicodeString(head.c_str()));
  const int end = std::min(iData.size, std::max(iFirst, 0) + std::max(iCount, 0));
  for (int i = std::max(iFirst, 0); i < end; ++i)
  {
    std::string line = indent + "  " + std::to_string(iData.objects[static_cast<std::size_t>(i)]->id);
    if (iData.indices != nullptr)
      line += " side " + std::to_string(iData.indices[static_cast<std::size_t>(i)]);
    ioLines->Append(VOXUnicodeString(line.c_str()));
  }
}

} // namespace voxhost
