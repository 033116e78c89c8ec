// SPDX-License-Identifier: MIT
// QueryInterface and Release of an extension, hit and miss, with few and many interfaces and types, against one atomic
// increment-decrement pair, measured in the same run, one after the other, best of several.
// Limits: a hit costs at most one such pair; a miss at most 1.1 times a hit; 300 interfaces and 100 types at most 1.3
// times as much as 3 and 1. Fails when one is not met.
#include "ComponentRuntime/VOXTypeDictionary.h"
#include "benchmarks/support/Measure.h"
#include "host/ComponentRuntime/Component.h"

#include <algorithm>
#include <atomic>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

constexpr int kCalls = 2000000;
constexpr int kRounds = 15;

class Extension : public VOXBaseUnknown
{
};

const IID kAbsent = VOXGuidOfName("VOXIAbsent");

std::string InterfaceName(int iNumber)
{
  return "VOXIBench" + std::to_string(iNumber);
}

VOXBaseUnknown* ComponentWith(const std::string& iType, int iInterfaces)
{
  VOXDeclareLateType(iType.c_str(), nullptr);
  for (int i = 0; i < iInterfaces; ++i)
    VOXDeclareExtension(iType.c_str(), VOXGuidOfName(InterfaceName(i).c_str()), InterfaceName(i).c_str(),
                        []() -> VOXBaseUnknown* { return new Extension; });
  return voxhost::NewComponent(iType.c_str());
}

template <class Work>
double Nanoseconds(Work iWork)
{
  const auto all = [&iWork]
  {
    for (int i = 0; i < kCalls; ++i)
      iWork();
  };
  return 1e9 * voxmeasure::Seconds(all) / kCalls;
}

double Hit(VOXBaseUnknown* iComponent, const IID& iInterface)
{
  return Nanoseconds(
      [&]
      {
        void* face = nullptr;
        if (SUCCEEDED(iComponent->QueryInterface(iInterface, &face)))
          static_cast<VOXBaseUnknown*>(face)->Release();
        benchmark::DoNotOptimize(face);
      });
}

} // namespace

int main()
{
  const IID asked = VOXGuidOfName(InterfaceName(1).c_str());
  VOXBaseUnknown* const small = ComponentWith("BenchSmall", 3);
  std::vector<VOXBaseUnknown*> many;
  for (int i = 0; i < 100; ++i)
    many.push_back(ComponentWith("BenchMany" + std::to_string(i), 300));

  std::atomic<long> counter{0};
  double pair = 1e9;
  double hit = 1e9;
  double miss = 1e9;
  double wide = 1e9;
  for (int round = 0; round < kRounds; ++round)
  {
    pair = std::min(pair, Nanoseconds(
                              [&counter]
                              {
                                counter.fetch_add(1);
                                counter.fetch_sub(1);
                              }));
    hit = std::min(hit, Hit(small, asked));
    miss = std::min(miss, Hit(small, kAbsent));
    wide = std::min(wide, Hit(many[static_cast<std::size_t>(round)], asked));
  }
  std::printf("atomic pair %.2f ns, hit %.2f ns, miss %.2f ns, hit among 300 interfaces and 100 types %.2f ns\n", pair,
              hit, miss, wide);
  bool met = voxmeasure::Check("hit / atomic pair", hit / pair, 1.);
  met = voxmeasure::Check("miss / hit", miss / hit, 1.1) && met;
  met = voxmeasure::Check("300 interfaces, 100 types / 3 interfaces, 1 type", wide / hit, 1.3) && met;

  small->Release();
  for (VOXBaseUnknown* const component : many)
    component->Release();
  return met ? 0 : 1;
}
