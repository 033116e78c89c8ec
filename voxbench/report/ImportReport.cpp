// SPDX-License-Identifier: MIT
#include "voxbench/report/ImportReport.h"
#include "voxbench/report/Json.h"
#include "voxbench/report/TextTable.h"

#include <filesystem>
#include <fmt/format.h>

namespace voxbench
{

ImportResult DescribeImport(const std::string& iDeck, const std::string& iDocument, const LoadedModel& iModel)
{
  std::error_code unknown;
  const std::uintmax_t bytes = std::filesystem::file_size(iDocument, unknown);
  return {iDeck,
          iDocument,
          unknown ? 0 : bytes,
          iModel.Release(),
          static_cast<std::int64_t>(iModel.Document().NumberOfFeatures()),
          static_cast<std::int64_t>(iModel.Explicit().Mesh().nodeIds.size()),
          static_cast<std::int64_t>(iModel.Explicit().Mesh().elementIds.size())};
}

void PrintImport(Output& ioOutput, const ImportResult& iResult)
{
  ioOutput.Write(fmt::format("{}: release {}, {}, {}, {}.\n", iResult.document, iResult.release,
                             Counted(iResult.features, "feature", "features"), Counted(iResult.nodes, "node", "nodes"),
                             Counted(iResult.elements, "element", "elements")));
}

void WriteImportJson(Output& ioOutput, const ImportResult& iResult)
{
  WriteJson(ioOutput, {{"deck", iResult.deck},
                       {"document", iResult.document},
                       {"bytes", iResult.bytes},
                       {"release", iResult.release},
                       {"features", iResult.features},
                       {"nodes", iResult.nodes},
                       {"elements", iResult.elements}});
}

} // namespace voxbench
