// SPDX-License-Identifier: MIT
// Reading a deck of tetrahedra against the plain scanner, both in the same run, one after the other, best of several.
// Limits: 1.3 times the scanner's time, 110 bytes per element at the peak; per element five times the elements cost at
// most 1.3 times as much. Fails when one is not met.
#include "PeakMemory.h"
#include "PlainScanner.h"
#include "TetDeck.h"
#include "benchmarks/support/Measure.h"
#include "inp/InpReader.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <map>
#include <string>

namespace
{
constexpr double kTimeLimit = 1.3;
constexpr double kBytesLimit = 110.;
constexpr double kGrowthLimit = 1.3;
constexpr int kRounds = 9;

bool limitsMet = true;
std::map<std::int64_t, double> secondsPerElement;

void Scan(const std::string& iPath, std::int64_t iElements)
{
  const PlainScanner scanner(iPath);
  limitsMet = limitsMet && static_cast<std::int64_t>(scanner.elementIds.size()) == iElements;
}

void Read(const std::string& iPath, std::int64_t iElements)
{
  voxbench::NeutralModel model;
  const bool good = voxbench::ReadInp(iPath, {}, model).ok && model.diagnostics.list.empty();
  limitsMet = limitsMet && good && static_cast<std::int64_t>(model.elements.size()) == iElements;
}

void ReaderAgainstScanner(benchmark::State& ioState)
{
  const TetDeck deck(ioState.range(0));
  const TetDeckFile file(deck);
  const auto elements = static_cast<double>(deck.ElementCount());
  const double readerBytes = PeakBytesOf([&] { Read(file.Path(), deck.ElementCount()); }) / elements;
  const double scannerBytes = PeakBytesOf([&] { Scan(file.Path(), deck.ElementCount()); }) / elements;
  double reader = std::numeric_limits<double>::max();
  double scanner = reader;
  for (auto _ : ioState)
  {
    scanner = std::min(scanner, voxmeasure::Seconds([&] { Scan(file.Path(), deck.ElementCount()); }));
    const double seconds = voxmeasure::Seconds([&] { Read(file.Path(), deck.ElementCount()); });
    reader = std::min(reader, seconds);
    ioState.SetIterationTime(seconds);
  }
  ioState.counters["reader_s"] = reader;
  ioState.counters["scanner_s"] = scanner;
  ioState.counters["ratio"] = reader / scanner;
  ioState.counters["reader_B/el"] = readerBytes;
  ioState.counters["scanner_B/el"] = scannerBytes;
  secondsPerElement[ioState.range(0)] = reader / elements;
  limitsMet = limitsMet && reader / scanner <= kTimeLimit && readerBytes <= kBytesLimit;
}

BENCHMARK(ReaderAgainstScanner)
    ->Arg(1000000)
    ->Arg(5000000)
    ->Iterations(kRounds)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
} // namespace

int main(int iCount, char** iArguments)
{
  benchmark::Initialize(&iCount, iArguments);
  benchmark::RunSpecifiedBenchmarks();
  if (secondsPerElement.size() == 2)
  {
    const double growth = secondsPerElement.rbegin()->second / secondsPerElement.begin()->second;
    std::printf("per element, 5 times the elements: %.2f (limit %.1f)\n", growth, kGrowthLimit);
    limitsMet = limitsMet && growth <= kGrowthLimit;
  }
  std::printf("limits: ratio %.1f, %.0f bytes per element: %s\n", kTimeLimit, kBytesLimit,
              limitsMet ? "met" : "NOT met");
  return limitsMet ? 0 : 1;
}
