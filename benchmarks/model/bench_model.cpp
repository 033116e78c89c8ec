// SPDX-License-Identifier: MIT
// A deck of tetrahedra from the file to document, explicit model and one group's node ids, against the plain scanner,
// both in the same run, one after the other, best of several.
// Limits: 2 times the scanner's time, 200 bytes per element at the peak, the mapped file included; per element, five
// times the elements take at most 1.3 times the processor's time. Fails when one is not met.
#include "PeakMemory.h"
#include "PlainScanner.h"
#include "TetDeck.h"
#include "voxbench/build/LoadedModel.h"
#include "voxbench/commands/GroupContent.h"
#include "voxbench/readers/inp/InpReader.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
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
std::map<std::int64_t, double> processorPerElement;

//! A deck that lives as long as its object.
class DeckFile
{
public:
  explicit DeckFile(const TetDeck& iDeck)
      : _Path(std::filesystem::temp_directory_path() / ("model_deck_" + std::to_string(getpid()) + ".inp"))
  {
    iDeck.Write(_Path.string());
  }
  DeckFile(const DeckFile&) = delete;
  DeckFile& operator=(const DeckFile&) = delete;
  ~DeckFile() { std::filesystem::remove(_Path); }
  std::string Path() const { return _Path.string(); }

private:
  std::filesystem::path _Path;
};

template <class Work>
double Seconds(Work iWork)
{
  const auto start = std::chrono::steady_clock::now();
  iWork();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

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
  const DeckFile file(deck);
  const auto elements = static_cast<double>(deck.ElementCount());
  const double modelBytes = PeakBytesOf([&] { Open(file.Path(), deck); }) / elements;
  const double scannerBytes = PeakBytesOf([&] { Scan(file.Path(), deck); }) / elements;
  double model = std::numeric_limits<double>::max();
  double scanner = model;
  double processor = model;
  for (auto _ : ioState)
  {
    scanner = std::min(scanner, Seconds([&] { Scan(file.Path(), deck); }));
    const std::clock_t before = std::clock();
    const double seconds = Seconds([&] { Open(file.Path(), deck); });
    processor = std::min(processor, static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC);
    model = std::min(model, seconds);
    ioState.SetIterationTime(seconds);
  }
  ioState.counters["model_s"] = model;
  ioState.counters["scanner_s"] = scanner;
  ioState.counters["ratio"] = model / scanner;
  ioState.counters["model_B/el"] = modelBytes;
  ioState.counters["scanner_B/el"] = scannerBytes;
  processorPerElement[ioState.range(0)] = processor / elements;
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
  if (processorPerElement.size() == 2)
  {
    const double growth = processorPerElement.rbegin()->second / processorPerElement.begin()->second;
    std::printf("per element, 5 times the elements: %.2f (limit %.1f)\n", growth, kGrowthLimit);
    limitsMet = limitsMet && growth <= kGrowthLimit;
  }
  std::printf("limits: ratio %.1f, %.0f bytes per element: %s\n", kTimeLimit, kBytesLimit,
              limitsMet ? "met" : "NOT met");
  return limitsMet ? 0 : 1;
}
