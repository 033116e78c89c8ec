// SPDX-License-Identifier: MIT
// A deck of tetrahedra from the file to document, explicit model and one group's node ids, against the plain scanner,
// both in the same run, one after the other, best of several.
// Limits: 2 times the scanner's time, 200 bytes per element at the peak, the mapped file included; per element, five
// times the elements cost at most 1.3 times as much. Fails when one is not met.
#include "PeakMemory.h"
#include "PlainScanner.h"
#include "TetDeck.h"
#include "benchmarks/support/Measure.h"
#include "voxbench/build/LoadedModel.h"
#include "voxbench/commands/GroupContent.h"
#include "voxbench/readers/inp/InpReader.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <limits>
#include <map>
#include <string>

namespace
{

constexpr double kTimeLimit = 2.;
constexpr double kBytesLimit = 200.;
constexpr double kGrowthLimit = 1.3;
constexpr int kRounds = 9;

bool limitsMet = true;
std::map<std::int64_t, double> secondsPerElement;

void Scan(const std::string& iPath, const TetDeck& iDeck)
{
  const PlainScanner scanner(iPath);
  limitsMet = limitsMet && static_cast<std::int64_t>(scanner.elementIds.size()) == iDeck.ElementCount();
}

//! Asks the node set BOTTOM for its nodes, as the groups command does.
void Open(const std::string& iPath, const TetDeck& iDeck)
{
  voxbench::NeutralModel records;
  voxbench::LoadedModel model;
  bool good = voxbench::ReadInp(iPath, {}, records).ok && model.Build(std::move(records)).empty();
  std::int64_t members = 0;
  for (voxhost::Feature* const group : model.Groups())
    if (voxbench::LoadedModel::DisplayName(*group) == "BOTTOM")
      members = static_cast<std::int64_t>(voxbench::AskContent(*group, voxbench::kNodeKind, true).ids.size());
  limitsMet = limitsMet && good && members == iDeck.BottomCount();
}

void ModelAgainstScanner(benchmark::State& ioState)
{
  const TetDeck deck(ioState.range(0));
  const TetDeckFile file(deck);
  const auto elements = static_cast<double>(deck.ElementCount());
  const double modelBytes = PeakBytesOf([&] { Open(file.Path(), deck); }) / elements;
  const double scannerBytes = PeakBytesOf([&] { Scan(file.Path(), deck); }) / elements;
  double model = std::numeric_limits<double>::max();
  double scanner = model;
  for (auto _ : ioState)
  {
    scanner = std::min(scanner, voxmeasure::Seconds([&] { Scan(file.Path(), deck); }));
    const double seconds = voxmeasure::Seconds([&] { Open(file.Path(), deck); });
    model = std::min(model, seconds);
    ioState.SetIterationTime(seconds);
  }
  ioState.counters["model_s"] = model;
  ioState.counters["scanner_s"] = scanner;
  ioState.counters["ratio"] = model / scanner;
  ioState.counters["model_B/el"] = modelBytes;
  ioState.counters["scanner_B/el"] = scannerBytes;
  secondsPerElement[ioState.range(0)] = model / elements;
  limitsMet = limitsMet && model / scanner <= kTimeLimit && modelBytes <= kBytesLimit;
}

BENCHMARK(ModelAgainstScanner)
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
