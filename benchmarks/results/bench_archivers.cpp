// SPDX-License-Identifier: MIT
// Archivers of a feature that offers 100 physical types, 20 versions of each and 10 positions of each version.
// Fetching a kept one, against the feature's three queries and three scans alone, with few and with all 40000 definitions
// kept; building the storage area and freeing it, against the feature's queries and as many zeroed blocks of the same
// sizes. Measured in the same run, one after the other, best of several.
// Limits: 1.2 times the queries and scans; all kept at most 1.1 times as much as few; building and freeing at most 1.5
// times the queries and blocks, since each entry is looked at before it goes. Fails when one is not met.
#include "AnalysisInterfaces/VOXICharacCollector.h"
#include "VOXECharacCollector.h"
#include "benchmarks/support/Measure.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/FeatureModeler/Document.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace
{

constexpr int kTypes = 100;
constexpr int kVersions = 20;
constexpr int kPositions = 10;
constexpr int kSamples = 100; // definitions, spread over all
constexpr int kRepeats = 20;
constexpr int kRounds = 400;
constexpr char kFeatureType[] = "BenchResults";

struct Definition
{
  int type;
  VOXSamCharacVersion version;
  VOXString position;
};

VOXString PositionName(int iPosition)
{
  return ("POSITION_" + std::to_string(iPosition)).c_str();
}

Definition DefinitionOf(int iType, int iVersion, int iPosition, int iVariant)
{
  Definition definition{1000 + iType, {}, PositionName(iPosition)};
  definition.version._Occurrence = iVersion + 1;
  definition.version._Variant = static_cast<unsigned char>(iVariant);
  return definition;
}

// A feature type whose answers differ: each type has versions of its own, each version positions of its own.
class Results : public VOXECharacCollector
{
public:
  using VOXECharacCollector::GetCollectorArchiver;

  Results()
  {
    for (int t = 0; t < kTypes; ++t)
    {
      const int type = DefinitionOf(t, 0, 0, 0).type;
      _Types.push_back(type);
      Offered& offered = _Offered[type];
      for (int v = 0; v < kVersions; ++v)
      {
        offered.versions.push_back(DefinitionOf(t, v, 0, 0).version);
        for (int p = 0; p < kPositions; ++p)
          offered.positions[offered.versions.back()._Occurrence].push_back(PositionName(p));
      }
    }
  }

  HRESULT GetAvailablePhysicalTypes(int& oNbTypes, const int*& oTypes, const void*&) override
  {
    oNbTypes = static_cast<int>(_Types.size());
    oTypes = _Types.data();
    return S_OK;
  }
  HRESULT GetAvailableVersions(int iPhysicalType, int& oNbVersions, const VOXSamCharacVersion*& oVersions) override
  {
    const auto offered = _Offered.find(iPhysicalType);
    if (offered == _Offered.end())
      return E_FAIL;
    oNbVersions = static_cast<int>(offered->second.versions.size());
    oVersions = offered->second.versions.data();
    return S_OK;
  }
  HRESULT GetAvailablePositions(int iPhysicalType, const VOXSamCharacVersion& iVersion, int& oNbPositions,
                                const VOXString*& oPositions) override
  {
    const auto offered = _Offered.find(iPhysicalType);
    if (offered == _Offered.end())
      return E_FAIL;
    const auto positions = offered->second.positions.find(iVersion._Occurrence);
    if (positions == offered->second.positions.end())
      return E_FAIL;
    oNbPositions = static_cast<int>(positions->second.size());
    oPositions = positions->second.data();
    return S_OK;
  }
  HRESULT GetCharacCollector(int, const VOXSamCharacVersion&, const VOXString&,
                             const VOXAnalysisCharacCollector*&) override
  {
    return E_FAIL;
  }
  HRESULT GetCharacCollectors(int&, const VOXAnalysisCharacCollector* const*&) override { return E_FAIL; }
  HRESULT IsCharacCollectorUpToDate(const VOXAnalysisCharacCollector*, unsigned char&) override { return E_FAIL; }
  HRESULT GetTitle(int, VOXString&) override { return E_FAIL; }
  HRESULT GetContext(VOXAnalysisExplicitParent& oContext) override
  {
    oContext = _Context;
    return S_OK;
  }
  HRESULT IsAuthorizedToArchiveCollectors(unsigned char& oAuthorized) const override
  {
    oAuthorized = 1;
    return S_OK;
  }

  void SetContext(const VOXAnalysisExplicitParent& iContext) { _Context = iContext; }

  // A collector of that definition comes and goes; its archiver is kept.
  bool Keep(const Definition& iDefinition)
  {
    VOXAnalysisCharacCollector* const collector = new VOXAnalysisCharacCollector;
    collector->SetDefinition(iDefinition.type, "values", iDefinition.version, iDefinition.position, 1, 0);
    const HRESULT result = AssignArchiverToCollector(collector, CollectorArchiveOnFill);
    collector->Release();
    return SUCCEEDED(result);
  }

private:
  struct Offered
  {
    std::vector<VOXSamCharacVersion> versions;
    std::map<int, std::vector<VOXString>> positions; // by occurrence
  };

  std::vector<int> _Types;
  std::map<int, Offered> _Offered;
  VOXAnalysisExplicitParent _Context;
};

class ResultsTie : public VOXTieCharacCollector<Results>
{
public:
  static Results& AdaptorOf(VOXICharacCollector* iTie) { return *static_cast<ResultsTie*>(iTie)->Tied(); }
};

template <class Value>
int IndexOf(const Value& iValue, const Value* iValues, int iCount)
{
  for (int i = 0; i < iCount; ++i)
    if (iValues[i] == iValue)
      return i;
  return -1;
}

// The three queries, asked of the component as the adaptor must, and the three scans, and nothing else.
int Place(const VOXBaseUnknown* iComponent, const Definition& iDefinition)
{
  const VOXICharacCollector_var feature(iComponent);
  int nbTypes = 0;
  const int* types = nullptr;
  const void* reserved = nullptr;
  feature->GetAvailablePhysicalTypes(nbTypes, types, reserved);
  const int t = IndexOf(iDefinition.type, types, nbTypes);
  VOXSamCharacVersion version = iDefinition.version;
  version._Variant = 0;
  int nbVersions = 0;
  const VOXSamCharacVersion* versions = nullptr;
  feature->GetAvailableVersions(types[t], nbVersions, versions);
  const int v = IndexOf(version, versions, nbVersions);
  int nbPositions = 0;
  const VOXString* positions = nullptr;
  feature->GetAvailablePositions(types[t], versions[v], nbPositions, positions);
  return (t * kVersions + v) * kPositions + IndexOf(iDefinition.position, positions, nbPositions);
}

double AloneSeconds(const VOXBaseUnknown* iComponent, const std::vector<Definition>& iSamples)
{
  return voxmeasure::Seconds(
      [&]
      {
        for (int i = 0; i < kRepeats; ++i)
          for (const Definition& sample : iSamples)
          {
            int place = Place(iComponent, sample);
            benchmark::DoNotOptimize(place);
          }
      });
}

double FetchSeconds(Results& ioResults, const std::vector<Definition>& iSamples)
{
  return voxmeasure::Seconds(
      [&]
      {
        for (int i = 0; i < kRepeats; ++i)
          for (const Definition& sample : iSamples)
          {
            VOXAnalysisCollectorArchiver* archiver = nullptr;
            ioResults.GetCollectorArchiver(sample.type, sample.version, sample.position, archiver);
            benchmark::DoNotOptimize(archiver);
          }
      });
}

// What the build asks, and the blocks of the area: counts and rows per type, counts and rows per slot, one leaf per slot.
double QueriesAndBlocksSeconds(VOXICharacCollector& iFeature)
{
  std::vector<void*> blocks;
  blocks.reserve(3 + kTypes * (2 + 2 * kVersions));
  const auto allocate = [&blocks](std::size_t iSize) { blocks.push_back(std::memset(std::malloc(iSize), 0, iSize)); };
  return voxmeasure::Seconds(
      [&]
      {
        int count = 0;
        const int* types = nullptr;
        const void* reserved = nullptr;
        iFeature.GetAvailablePhysicalTypes(count, types, reserved);
        allocate(kTypes * sizeof(int));
        allocate(kTypes * sizeof(void*));
        allocate(kTypes * sizeof(void*));
        for (int t = 0; t < kTypes; ++t)
        {
          const VOXSamCharacVersion* versions = nullptr;
          iFeature.GetAvailableVersions(types[t], count, versions);
          allocate(2 * kVersions * sizeof(int));
          allocate(2 * kVersions * sizeof(void*));
          for (int v = 0; v < kVersions; ++v)
          {
            const VOXString* positions = nullptr;
            iFeature.GetAvailablePositions(types[t], versions[v], count, positions);
            allocate(kPositions * sizeof(void*));
            allocate(kPositions * sizeof(void*));
          }
        }
        benchmark::DoNotOptimize(blocks.data());
        for (void* const block : blocks)
          std::free(block);
      });
}

double BuildSeconds(Results& ioResults, const Definition& iDefinition)
{
  return voxmeasure::Seconds(
      [&]
      {
        VOXAnalysisCollectorArchiver* archiver = nullptr;
        ioResults.GetCollectorArchiver(iDefinition.type, iDefinition.version, iDefinition.position, archiver);
        benchmark::DoNotOptimize(archiver);
        ioResults.Update(0);
      });
}

// A feature whose adaptor is asked both ways: as the host does, and as a feature type does itself.
struct BenchFeature
{
  BenchFeature(voxhost::Document& ioDocument, const VOXAnalysisExplicitParent& iContext)
      : component(ioDocument.New(kFeatureType, "")),
        collector(component),
        results(ResultsTie::AdaptorOf(collector))
  {
    results.SetContext(iContext);
  }

  VOXBaseUnknown* component;
  VOXICharacCollector_var collector;
  Results& results;
};

} // namespace

int main()
{
  const auto types = std::make_shared<voxhost::TypeCatalogue>();
  const std::string reason = types->Declare(voxhost::TypeDeclaration{.name = kFeatureType});
  if (!reason.empty() || FAILED((VOXTieLateType<VOXICharacCollector, ResultsTie>(kFeatureType))))
  {
    std::printf("no such feature type: %s\n", reason.c_str());
    return 1;
  }
  voxhost::ExplicitModel model;
  const VOXAnalysisExplicitParent context = model.Create(NULL_exp, "SOLUTION", "results");
  voxhost::Document document(types);
  BenchFeature few(document, context);
  BenchFeature all(document, context);

  std::vector<Definition> samples;
  bool kept = true;
  for (int i = 0; i < kSamples; ++i)
  {
    samples.push_back(DefinitionOf(i * 37 % kTypes, i * 7 % kVersions, i * 3 % kPositions, i % 2));
    kept = few.results.Keep(samples.back()) && kept;
  }
  for (int t = 0; t < kTypes; ++t)
    for (int v = 0; v < kVersions; ++v)
      for (int p = 0; p < kPositions; ++p)
        kept = all.results.Keep(DefinitionOf(t, v, p, 0)) && all.results.Keep(DefinitionOf(t, v, p, 1)) && kept;
  for (const Definition& sample : samples)
    for (Results* const results : {&few.results, &all.results})
    {
      VOXAnalysisCollectorArchiver* archiver = nullptr;
      results->GetCollectorArchiver(sample.type, sample.version, sample.position, archiver);
      kept = kept && archiver != nullptr;
    }
  if (!kept)
  {
    std::printf("an archiver is not kept\n");
    return 1;
  }

  double alone = 1e9;
  double fetchFew = 1e9;
  double fetchAll = 1e9;
  for (int round = 0; round < kRounds; ++round)
  {
    alone = std::min(alone, AloneSeconds(few.component, samples));
    fetchFew = std::min(fetchFew, FetchSeconds(few.results, samples));
    fetchAll = std::min(fetchAll, FetchSeconds(all.results, samples));
  }
  BenchFeature fresh(document, context);
  double blocks = 1e9;
  double built = 1e9;
  for (int round = 0; round < kRounds; ++round)
  {
    blocks = std::min(blocks, QueriesAndBlocksSeconds(*fresh.collector));
    built = std::min(built, BuildSeconds(fresh.results, samples.front()));
  }

  constexpr double kFetches = 1. * kRepeats * kSamples;
  std::printf("queries and scans %.1f ns, fetching %.1f ns, with all definitions kept %.1f ns\n",
              alone / kFetches * 1e9, fetchFew / kFetches * 1e9, fetchAll / kFetches * 1e9);
  std::printf("queries and blocks %.0f us, building the area and freeing it %.0f us\n", blocks * 1e6, built * 1e6);
  bool met = voxmeasure::Check("fetching a kept archiver / queries and scans", fetchFew / alone, 1.2);
  met = voxmeasure::Check("fetching among 40000 kept / fetching among 100 kept", fetchAll / fetchFew, 1.1) && met;
  met = voxmeasure::Check("building the area / queries and blocks", built / blocks, 1.5) && met;
  return met ? 0 : 1;
}
