// SPDX-License-Identifier: MIT
// SetSelected of a list manager with 10^3 sub-components against one with 10^2: all created, all kept, all removed.
// Measured in the same run, one after the other, best of several.
// Limit: ten times the sub-components cost at most 1.3 times as much each. Fails when it is not met.
#include "AnalysisInterfaces/VOXISamSelectionList.h"
#include "VOXESamEnumManager.h"
#include "benchmarks/support/Measure.h"
#include "host/FeatureModeler/Document.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <memory>
#include <string>

namespace
{

constexpr int kFew = 100;
constexpr int kMany = 1000;
constexpr int kSubComponentsAtLeast = 20000; // per measurement and size
constexpr char kManagerType[] = "SelectionUnderMeasure";
constexpr char kWantedType[] = "SAMRealComponent";

int wantedCount = 0;

//! Its first and second entry need as many sub-components as are wanted, its third none.
class Manager : public VOXESamEnumManager
{
public:
  HRESULT GetResult(const VOXUnicodeString& iValue, VOXListValVOXUnicodeString& oFeatureType,
                    VOXListValVOXUnicodeString& oSecond, VOXListValVOXBaseUnknown_var& oListOfVOXICkeType) override
  {
    for (int i = 0; i < wantedCount && iValue != "none"; ++i)
    {
      oFeatureType.Append(kWantedType);
      oSecond.Append(VOXUnicodeString());
      oListOfVOXICkeType.Append(VOXBaseUnknown_var());
    }
    return S_OK;
  }
};

std::shared_ptr<const voxhost::TypeCatalogue> Types()
{
  const auto types = std::make_shared<voxhost::TypeCatalogue>();
  types->Declare(voxhost::AnalysisTypes());
  types->Declare({.name = kManagerType,
                  .base = "SAMListManager",
                  .parameter = voxhost::ParameterDeclaration{VOXCkeContext::EnumType, {"these", "the same", "none"}}});
  VOXTieLateType<VOXISamSelectionList, VOXTieSelectionList<Manager>>(kManagerType);
  return types;
}

//! Seconds per sub-component.
struct Times
{
  double created = 1e9;
  double kept = 1e9;
  double removed = 1e9;
  bool good = true;
};

void Measure(const std::shared_ptr<const voxhost::TypeCatalogue>& iTypes, int iSubComponents, Times& ioBest)
{
  wantedCount = iSubComponents;
  voxhost::Document document(iTypes);
  voxhost::Feature* const component = document.New(kManagerType, "manager");
  const VOXISamSelectionList_var spList(static_cast<VOXBaseUnknown*>(component));
  const auto select = [&](int iIndex, double& ioSeconds, std::size_t iExpected)
  {
    const double seconds = voxmeasure::Seconds([&] { benchmark::DoNotOptimize(spList->SetSelected(iIndex)); });
    ioSeconds = std::min(ioSeconds, seconds / iSubComponents);
    ioBest.good = ioBest.good && component->Features("SonsList").size() == iExpected;
  };
  const auto all = static_cast<std::size_t>(iSubComponents);
  for (int round = 0; round < kSubComponentsAtLeast / iSubComponents; ++round)
  {
    select(1, ioBest.created, all);
    select(2, ioBest.kept, all);
    select(3, ioBest.removed, 0);
  }
}

} // namespace

int main()
{
  const std::shared_ptr<const voxhost::TypeCatalogue> types = Types();
  Times few;
  Times many;
  for (int repeat = 0; repeat < 3; ++repeat)
  {
    Measure(types, kFew, few);
    Measure(types, kMany, many);
  }
  std::printf("per sub-component of 10^3: created %.0f ns, kept %.0f ns, removed %.0f ns; of 10^2: %.0f, %.0f, %.0f\n",
              many.created * 1e9, many.kept * 1e9, many.removed * 1e9, few.created * 1e9, few.kept * 1e9,
              few.removed * 1e9);
  if (!few.good || !many.good)
    std::printf("the sub-components are not those that are wanted\n");
  bool met = voxmeasure::Check("each of 10^3 sub-components created / of 10^2", many.created / few.created, 1.3);
  met = voxmeasure::Check("each of 10^3 sub-components kept / of 10^2", many.kept / few.kept, 1.3) && met;
  met = voxmeasure::Check("each of 10^3 sub-components removed / of 10^2", many.removed / few.removed, 1.3) && met;
  return met && few.good && many.good ? 0 : 1;
}
