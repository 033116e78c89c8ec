// SPDX-License-Identifier: MIT
// Loads a feature type and asks a feature of it for its content.
#include "AnalysisInterfaces/VOXISamGroup.h"
#include "host/ExplicitModel/ExplicitModel.h"
#include "host/FeatureModeler/Document.h"
#include "host/Instruments/Ledger.h"

#include <cstdio>
#include <dlfcn.h>
#include <new>

// The ledger learns from the program which of the arrays that the host gave away are freed.
void operator delete[](void* iArray) noexcept
{
  voxhost::Ledger::ArrayFreed(iArray);
  ::operator delete(iArray);
}

namespace
{

void Expect(bool iHolds, const char* iWhat, int& ioFailures)
{
  std::printf("%s: %s\n", iHolds ? "passed" : "FAILED", iWhat);
  ioFailures += iHolds ? 0 : 1;
}

bool AddFeatureTypes(const char* iFile)
{
  void* const library = dlopen(iFile, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr)
  {
    std::fprintf(stderr, "%s\n", dlerror());
    return false;
  }
  const auto add = reinterpret_cast<int (*)()>(dlsym(library, "AddFeatureTypes"));
  return add != nullptr && add() == 1; // never unloaded: the type dictionary holds its factories
}

int NumberOfEntities(const VOXISamGroup& iGroup, const char* iKeyword)
{
  const VOXAnalysisEntityCollector* pCollector = nullptr;
  if (FAILED(iGroup.GetContent(VOXSamValueNode, iKeyword, pCollector)) || pCollector == nullptr)
    return -1;
  int count = -1;
  pCollector->GetNbEntities(count);
  pCollector->Release();
  return count;
}

//! A model with three nodes, of which the plate has the first and the last.
int FillModel(voxhost::ExplicitModel& oModel)
{
  const VOXAnalysisExplicitEntity root = oModel.Create(NULL_exp, "ANALYSIS_MODEL", "model");
  voxhost::MeshData mesh;
  mesh.nodeIds = voxhost::SharedArray<std::int32_t>({1, 2, 3});
  mesh.coordinates = voxhost::SharedArray<double>(std::vector<double>(9, 0.));
  mesh.offsets = voxhost::SharedArray<std::uint32_t>(std::vector<std::uint32_t>{0});
  oModel.SetMesh(oModel.Create(root, "MESH", "mesh"), mesh);
  const VOXAnalysisExplicitEntity plate = oModel.Create(root, "GROUP", "plate");
  voxhost::ApplyTo nodes;
  nodes.position = VOXSamPositionNode;
  nodes.places = voxhost::SharedArray<std::uint32_t>({0, 2});
  oModel.SetApplyTo(oModel.Create(plate, "NODE_GROUP", "nodes"), nodes);
  int tag = 0;
  plate.GetTag(tag);
  return tag;
}

std::shared_ptr<const voxhost::TypeCatalogue> Types()
{
  const auto types = std::make_shared<voxhost::TypeCatalogue>();
  types->Declare(voxhost::AnalysisTypes());
  types->Declare({.name = "PlateGroup", .base = "AnalysisEntity", .physicalType = "GROUP"});
  return types;
}

void AskTheGroup(const std::shared_ptr<const voxhost::TypeCatalogue>& iTypes, int& ioFailures)
{
  voxhost::ExplicitModel model;
  const int tag = FillModel(model);
  voxhost::Document document(iTypes);
  document.SetExplicitModel(&model);
  voxhost::Feature* const feature = document.New("PlateGroup", "plate");
  feature->Set("ExplicitTag", tag);
  document.UpdateAll();

  const VOXISamGroup_var spGroup(static_cast<VOXBaseUnknown*>(feature));
  Expect(!!spGroup, "the feature answers for the interface", ioFailures);
  if (!spGroup)
    return;
  unsigned char isGroupOf = 0;
  Expect(spGroup->IsGroupOf(VOXSamValueNode, "PLATE", isGroupOf) == S_OK && isGroupOf == 1,
         "the override answers through the virtual table", ioFailures);
  Expect(spGroup->IsGroupOf(VOXSamValueNode, "NODE", isGroupOf) == S_OK && isGroupOf == 1,
         "the adaptor's own body answers for the rest", ioFailures);
  Expect(NumberOfEntities(*spGroup, "NODE") == 2, "the adaptor reads the content from the model", ioFailures);
}

} // namespace

int main(int iCount, char** iArguments)
{
  const auto types = Types(); // a type is declared before somebody carries its interfaces
  if (iCount != 2 || !AddFeatureTypes(iArguments[1]))
  {
    std::fprintf(stderr, "usage: application FEATURE_TYPES.so\n");
    return 2;
  }
  int failures = 0;
  voxhost::Ledger::TurnOn();
  const auto before = voxhost::Ledger::Read();
  AskTheGroup(types, failures);
  Expect((voxhost::Ledger::Read() - before).Describe() == "balanced", "the host has back all that it gave", failures);
  return failures == 0 ? 0 : 1;
}
