// SPDX-License-Identifier: MIT
// bench_frd_reader [MEGABYTES]
//   Reading a generated result file against a plain pass that only scans the rows and converts their numbers, both in the
//   same run, one after the other, best of several. Limit: twice the time of the plain pass. Fails when it is not met.
#include "Numbers.h"
#include "ResultFile.h"
#include "benchmarks/support/MappedFile.h"
#include "benchmarks/support/Measure.h"
#include "frd/FrdReader.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

namespace
{
constexpr double kTimeLimit = 2.;
constexpr int kRounds = 5;
constexpr std::int64_t kDefaultMegabytes = 60;

std::int64_t megabytes = kDefaultMegabytes;
bool limitMet = true;

//! The yardstick: ids and numbers of all rows of fixed width, into flat arrays, with the scanner of decks. Trusts the
//! file, knows no blocks.
class PlainPass
{
public:
  explicit PlainPass(const std::string& iPath)
  {
    const MappedFile file(iPath);
    Scan(file.begin(), file.end());
  }

  std::vector<int> ids;
  std::vector<double> numbers;

private:
  void Scan(const char* iText, const char* iEnd)
  {
    while (iText < iEnd)
    {
      const void* const found = std::memchr(iText, '\n', static_cast<std::size_t>(iEnd - iText));
      const char* const end = found == nullptr ? iEnd : static_cast<const char*>(found);
      if (end - iText >= 49 && std::memcmp(iText, " -1", 3) == 0)
        Row(iText + 3, end);
      iText = end + 1;
    }
  }

  void Row(const char* iText, const char* iEnd)
  {
    int id = 0;
    std::from_chars(SkipBlanks(iText), iText + 10, id);
    ids.push_back(id);
    for (const char* field = iText + 10; field + 12 <= iEnd; field += 12)
    {
      double number = 0.;
      if (voxbench::scan::Real(SkipBlanks(field), number) == nullptr)
        std::from_chars(SkipBlanks(field), field + 12, number);
      numbers.push_back(number);
    }
  }

  static const char* SkipBlanks(const char* iText) { return voxbench::scan::SkipBlanks(iText); }
};

void Read(const std::string& iPath, const ResultFile& iFile)
{
  voxbench::ResultRecords records;
  const bool good = voxbench::ReadFrd(iPath, {}, records).ok;
  limitMet = limitMet && good && static_cast<std::int64_t>(records.states.size()) == iFile.StateCount() &&
             static_cast<std::int64_t>(records.blocks.size()) == 2 * iFile.StateCount();
}

void Scan(const std::string& iPath, const ResultFile& iFile)
{
  const PlainPass pass(iPath);
  limitMet = limitMet && static_cast<std::int64_t>(pass.numbers.size()) == iFile.NumberCount();
}

void ReaderAgainstPlainPass(benchmark::State& ioState)
{
  const ResultFile file(megabytes);
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() / ("results_" + std::to_string(getpid()) + ".frd");
  if (!file.Write(path.string()))
    ioState.SkipWithError("the result file cannot be written: the disk may be full");
  const auto bytes = static_cast<double>(std::filesystem::file_size(path));
  double reader = std::numeric_limits<double>::max();
  double plain = reader;
  for (auto _ : ioState)
  {
    plain = std::min(plain, voxmeasure::Seconds([&] { Scan(path.string(), file); }));
    const double seconds = voxmeasure::Seconds([&] { Read(path.string(), file); });
    reader = std::min(reader, seconds);
    ioState.SetIterationTime(seconds);
  }
  std::filesystem::remove(path);
  ioState.counters["MB"] = bytes / 1e6;
  ioState.counters["reader_MB/s"] = bytes / 1e6 / reader;
  ioState.counters["plain_MB/s"] = bytes / 1e6 / plain;
  ioState.counters["ratio"] = reader / plain;
  limitMet = limitMet && reader / plain <= kTimeLimit;
}

BENCHMARK(ReaderAgainstPlainPass)->Iterations(kRounds)->UseManualTime()->Unit(benchmark::kMillisecond);
} // namespace

int main(int iCount, char** iArguments)
{
  benchmark::Initialize(&iCount, iArguments);
  if (iCount > 1)
    megabytes = std::max(1L, std::strtol(iArguments[1], nullptr, 10));
  benchmark::RunSpecifiedBenchmarks();
  std::printf("limit: ratio %.1f: %s\n", kTimeLimit, limitMet ? "met" : "NOT met");
  return limitMet ? 0 : 1;
}
