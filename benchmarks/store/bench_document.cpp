// SPDX-License-Identifier: MIT
// Opening a document of 10^6 features, against a plain SELECT of every column of the same rows, in the same run, one
// after the other, best of several.
// Limit: 3 times the SELECT. Fails when it is not met.
#include "benchmarks/support/Measure.h"
#include "voxbench/features/Catalogue.h"
#include "voxbench/features/TypeNames.h"
#include "voxbench/store/DocumentFile.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <filesystem>
#include <sqlite3.h>
#include <stdexcept>

namespace
{

constexpr int kFeatures = 1000000;
constexpr int kRounds = 3;
constexpr double kLimit = 3.;

//! A document whose features have the values that an import gives them.
void Write(const std::string& iFile)
{
  auto document = std::make_unique<voxhost::Document>(voxbench::WorkbenchTypes());
  document->Reserve(kFeatures);
  voxhost::Feature& root = *document->New("AnalysisModel", "ANALYSIS_MODEL");
  voxhost::Feature& set = *document->New("SensorSet", "SENSOR_SET");
  root.Add("SonsList", set);
  for (int number = 0; number < kFeatures; ++number)
  {
    const std::string name = "NODEPRINT." + std::to_string(number);
    voxhost::Feature& sensor = *document->New(voxbench::kSensorType, name.c_str());
    sensor.Set("Alias", "Output " + std::to_string(number));
    sensor.Set("Keyword", std::string("NODEPRINT"));
    sensor.Set("Step", std::int32_t{number % 7});
    sensor.Set("ExplicitTag", std::int32_t{number + 1});
    set.Add("SonsList", sensor);
  }
  document->UpdateAll();
  voxbench::LoadedModel model;
  model.Restore({}, std::make_unique<voxhost::ExplicitModel>(), std::move(document));
  if (const std::string reason = voxbench::WriteDocumentFile(iFile, model, true, {}); !reason.empty())
    throw std::runtime_error(reason);
}

//! Reads every column of every row of a table.
void Select(sqlite3* iDatabase, const std::string& iTable)
{
  sqlite3_stmt* row = nullptr;
  sqlite3_prepare_v2(iDatabase, ("SELECT * FROM " + iTable).c_str(), -1, &row, nullptr);
  while (sqlite3_step(row) == SQLITE_ROW)
    for (int column = 0; column < sqlite3_column_count(row); ++column)
      switch (sqlite3_column_type(row, column))
      {
      case SQLITE_INTEGER:
        benchmark::DoNotOptimize(sqlite3_column_int64(row, column));
        break;
      case SQLITE_FLOAT:
        benchmark::DoNotOptimize(sqlite3_column_double(row, column));
        break;
      default:
        benchmark::DoNotOptimize(sqlite3_column_blob(row, column));
        benchmark::DoNotOptimize(sqlite3_column_bytes(row, column));
        break;
      }
  sqlite3_finalize(row);
}

void SelectAll(const std::string& iFile)
{
  sqlite3* database = nullptr;
  if (sqlite3_open_v2(iFile.c_str(), &database, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
    throw std::runtime_error("the document cannot be opened as a database");
  for (const char* const table : {"type", "attribute", "startup", "container", "feature", "value", "object", "record"})
    Select(database, table);
  sqlite3_close(database);
}

void Open(const std::string& iFile)
{
  const auto model = std::make_unique<voxbench::LoadedModel>();
  if (const std::string reason = voxbench::ReadDocumentFile(iFile, *model, {}); !reason.empty())
    throw std::runtime_error(reason);
  benchmark::DoNotOptimize(model->Document().NumberOfFeatures());
}

} // namespace

int main()
{
  const std::string file = (std::filesystem::temp_directory_path() / "bench_document.voxdoc").string();
  Write(file);
  double selected = 1e9;
  double opened = 1e9;
  for (int round = 0; round < kRounds; ++round)
  {
    selected = std::min(selected, voxmeasure::Seconds([&file] { SelectAll(file); }));
    opened = std::min(opened, voxmeasure::Seconds([&file] { Open(file); }));
  }
  std::filesystem::remove(file);
  std::printf("SELECT %.2f s, opening and closing %.2f s\n", selected, opened);
  return voxmeasure::Check("opening 10^6 features / plain SELECT", opened / selected, kLimit) ? 0 : 1;
}
