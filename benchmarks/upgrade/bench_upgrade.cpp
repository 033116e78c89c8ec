// SPDX-License-Identifier: MIT
// Upgrading documents of loads that each lack a component, and rerouting instances that many attributes point to: a
// hundred documents of 10^3 against one of 10^5, so that both work on as much memory and none of it is warm. Measured in
// the same run, one after the other, best of several.
// Limit: the time per load, and per attribute, at 10^5 is at most 1.5 times that at 10^3. Fails when one is not met.
#include "AnalysisInterfaces/VOXISamFeatureUpgrade.h"
#include "VOXEAnalysisUpgrade.h"
#include "VOXEAnalysisUpgradeContainer.h"
#include "benchmarks/support/Measure.h"
#include "host/FeatureModeler/Document.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace
{

constexpr int kFew = 1000;
constexpr int kMany = 100000;
constexpr int kRounds = 5;
constexpr double kLimit = 1.5;

class Rerouting : public VOXEAnalysisUpgradeContainer
{
public:
  HRESULT UpgradeContainer() override { return S_OK; }
  using VOXEAnalysisUpgradeContainer::RerouteInstance;
};

std::shared_ptr<const voxhost::TypeCatalogue> Types()
{
  const auto types = std::make_shared<voxhost::TypeCatalogue>();
  std::string fault = types->Declare(voxhost::AnalysisTypes());
  fault += types->Declare(
      voxhost::TypeDeclaration{.name = "BenchLoad",
                               .base = "AnalysisLoad",
                               .attributes = {{.name = "SonsList",
                                               .type = VOXSpecList,
                                               .elementType = VOXSpecComponent,
                                               .components = {{"A", "SAMRealComponent"}, {"B", "SAMRealComponent"}}}}});
  fault += types->Declare(voxhost::TypeDeclaration{
      .name = "BenchUser", .base = "AnalysisRestraint", .attributes = {{.name = "Target", .type = VOXSpecReference}}});
  if (!fault.empty() ||
      FAILED((VOXTieLateType<VOXISamFeatureUpgrade, VOXTieFeatureUpgrade<VOXEAnalysisUpgrade>>("BenchLoad"))))
  {
    std::printf("the types do not stand: %s\n", fault.c_str());
    std::exit(1);
  }
  return types;
}

void Demand(bool iTrue, const char* iWhat)
{
  if (iTrue)
    return;
  std::printf("wrong: %s\n", iWhat);
  std::exit(1);
}

using TypesOfAll = std::shared_ptr<const voxhost::TypeCatalogue>;

// One set of loads that have A and lack B.
class LoadsThatLackB
{
public:
  LoadsThatLackB(const TypesOfAll& iTypes, int iLoads) : _Document(iTypes)
  {
    voxhost::Feature& set = *_Document.New("LoadSet", "Loads");
    voxhost::Feature& componentA = *_Document.StartUp("BenchLoad")->Features("SonsList")[0];
    for (int i = 0; i < iLoads; ++i)
    {
      voxhost::Feature& load = *_Document.New("BenchLoad", "", nullptr, voxhost::Components::kNone);
      load.Add("SonsList", *_Document.New(componentA, "A"));
      set.Add("SonsList", load);
      _Loads.push_back(&load);
    }
    _Document.UpdateAll();
  }

  // Asked, upgraded and asked again.
  void Work()
  {
    bool right = true;
    for (voxhost::Feature* const load : _Loads)
    {
      const VOXISamFeatureUpgrade_var upgrade(static_cast<VOXBaseUnknown*>(load));
      right = upgrade->NeedToUpgrade() && upgrade->Upgrade() == S_OK && !upgrade->NeedToUpgrade() && right;
    }
    Demand(right && _Document.NumberOfFeatures() == 1 + 3 * _Loads.size(), "a load lacks B");
  }

private:
  voxhost::Document _Document;
  std::vector<voxhost::Feature*> _Loads;
};

// An instance that as many attributes point to, every other one a list with something before it.
class UsersOfOne
{
public:
  UsersOfOne(const TypesOfAll& iTypes, int iAttributes) : _Document(iTypes), _Old(*_Document.New("BenchUser", "old"))
  {
    voxhost::Feature& other = *_Document.New("BenchUser", "other");
    for (int i = 0; i < iAttributes; ++i)
    {
      voxhost::Feature& user = *_Document.New("BenchUser", "");
      if (i % 2 == 0)
        user.Add("Target", _Old);
      else
      {
        user.Add("Supports", other);
        user.Add("Supports", _Old);
      }
      _Users.push_back(&user);
    }
    _Document.UpdateAll();
  }
  ~UsersOfOne()
  {
    for (const voxhost::Feature* const user : _Users)
      for (const char* const attribute : {"Target", "Supports"})
        for (const voxhost::Feature* const target : user->Features(attribute))
          Demand(target != &_Old, "an attribute still points to the old instance");
    _Upgrade->Release();
  }
  UsersOfOne(const UsersOfOne&) = delete;
  UsersOfOne& operator=(const UsersOfOne&) = delete;

  void Work()
  {
    VOXISpecObject* const made = _Upgrade->RerouteInstance(&_Old, "BenchUser");
    Demand(made != nullptr, "nothing was made");
    made->Release();
  }

private:
  voxhost::Document _Document;
  voxhost::Feature& _Old;
  std::vector<const voxhost::Feature*> _Users;
  Rerouting* const _Upgrade = new Rerouting;
};

// As many documents of one size as make up the larger size. Time for each.
template <class TheDocument>
double TimeAt(const TypesOfAll& iTypes, int iSize)
{
  std::vector<std::unique_ptr<TheDocument>> documents;
  for (int i = 0; i < kMany / iSize; ++i)
    documents.push_back(std::make_unique<TheDocument>(iTypes, iSize));
  const auto work = [&documents]
  {
    for (const auto& document : documents)
      document->Work();
  };
  const double time = 1e9 * voxmeasure::Seconds(work);
  return time / kMany;
}

template <class TheDocument>
bool GrowsLinearly(const char* iWhat, const TypesOfAll& iTypes)
{
  double few = 1e18;
  double many = 1e18;
  for (int round = 0; round < kRounds; ++round)
  {
    few = std::min(few, TimeAt<TheDocument>(iTypes, kFew));
    many = std::min(many, TimeAt<TheDocument>(iTypes, kMany));
  }
  const bool met = many / few <= kLimit;
  std::printf("%-28s %6.0f ns each of 10^3, %6.0f ns each of 10^5: %.2f (limit %.2f)%s\n", iWhat, few, many, many / few,
              kLimit, met ? "" : "  NOT MET");
  return met;
}

} // namespace

int main()
{
  const TypesOfAll types = Types();
  const bool upgrade = GrowsLinearly<LoadsThatLackB>("load that lacks a component", types);
  const bool reroute = GrowsLinearly<UsersOfOne>("attribute that is redirected", types);
  return upgrade && reroute ? 0 : 1;
}
