// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/build/LoadedModel.h"
#include "voxbench/report/Output.h"

#include <cstdint>
#include <string>

namespace voxbench
{

//! What an import left.
struct ImportResult
{
  std::string deck;
  std::string document;
  std::uint64_t bytes = 0; //!< of the document
  int release = 0;         //!< of the start-ups
  std::int64_t features = 0;
  std::int64_t nodes = 0;
  std::int64_t elements = 0;
};

ImportResult DescribeImport(const std::string& iDeck, const std::string& iDocument, const LoadedModel& iModel);

void PrintImport(Output& ioOutput, const ImportResult& iResult);
void WriteImportJson(Output& ioOutput, const ImportResult& iResult);

} // namespace voxbench
