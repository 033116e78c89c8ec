// SPDX-License-Identifier: MIT
#include "voxbench/build/LoadedResults.h"
#include "AnalysisInterfaces/VOXICharacCollector.h"
#include "voxbench/features/TypeNames.h"

#include <filesystem>
#include <new>
#include <set>

namespace voxbench
{
namespace
{

//! The rules of every analysis model, and a physical type per quantity.
std::shared_ptr<const voxhost::ExplicitRules> RulesFor(const ResultRecords& iRecords)
{
  std::set<std::string> names;
  for (const ResultBlock& block : iRecords.blocks)
    names.insert(PhysicalTypeOfQuantity(block.name));
  std::vector<voxhost::PhysicalTypeRule> table = voxhost::ExplicitRules::DefaultTable();
  for (const std::string& name : names)
    table.push_back({name.c_str(), VOXSamValueUnknown, {}});
  return std::make_shared<const voxhost::ExplicitRules>(table);
}

//! What a model needs of both files: the mesh of the results, title and groups of the deck.
NeutralModel Joined(ResultRecords& ioResults, NeutralModel* ioDeck)
{
  NeutralModel joined;
  joined.files = {ioResults.file};
  joined.nodes = std::move(ioResults.nodes);
  joined.elements = std::move(ioResults.elements);
  joined.elementTypes = std::move(ioResults.elementTypes);
  if (joined.elements.offsets.empty())
    joined.elements.offsets.push_back(0);
  if (ioDeck == nullptr)
    return joined;
  joined.title = std::move(ioDeck->title);
  joined.nodeSets = std::move(ioDeck->nodeSets);
  joined.elementSets = std::move(ioDeck->elementSets);
  joined.surfaces = std::move(ioDeck->surfaces);
  return joined;
}

//! A feature below another, and its object in the explicit model.
voxhost::Feature& Add(const LoadedModel& iModel, voxhost::Feature& ioFather, const char* iType,
                      const char* iPhysicalType, const std::string& iName)
{
  voxhost::Feature* const feature = iModel.Document().New(iType, iName.c_str());
  if (feature == nullptr)
    throw std::bad_alloc();
  ioFather.Add("SonsList", *feature);
  VOXAnalysisExplicitParent above;
  above.LinkWithTag(ioFather.FirstExplicitTag(), &iModel.Explicit());
  int tag = 0;
  if (SUCCEEDED(iModel.Explicit().Create(above, iPhysicalType, iName).GetTag(tag)))
    feature->Set("ExplicitTag", tag);
  return *feature;
}

HRESULT UpdateSolution(voxhost::Feature& iSolution)
{
  const VOXICharacCollector_var spResults(&iSolution);
  return !spResults ? E_FAIL : spResults->Update(0);
}

} // namespace

std::string LoadedResults::Build(ResultRecords ioRecords, NeutralModel* ioDeck, ReadAgain iReadAgain)
{
  NeutralModel joined = Joined(ioRecords, ioDeck);
  if (std::string reason = _Model.Build(std::move(joined), RulesFor(ioRecords)); !reason.empty())
    return reason;
  _Source = std::make_shared<RecordsSource>(std::move(ioRecords), _Model.Explicit(), std::move(iReadAgain));
  return AddSolution();
}

std::string LoadedResults::AddSolution()
{
  voxhost::Feature& set = Add(_Model, _Model.Root(), "SolutionSet", "SOLUTION_SET", "Solutions");
  const std::string file = std::filesystem::path(_Source->Records().file).filename().string();
  _Solution = &Add(_Model, set, kSolutionType, "SOLUTION", file);
  _Solution->Set("File", _Source->Records().file);
  for (voxhost::Feature* const mesh : _Model.MembersOf("MSHSetContainer"))
    _Solution->Add("Supports", *mesh); // a changed mesh puts the results out of date
  const SolutionData_var spData(static_cast<VOXBaseUnknown*>(_Solution));
  if (!spData)
    return "the solution has nowhere to keep its results";
  spData->SetSource(_Source);
  _Model.Document().OnUpdate(kSolutionType, UpdateSolution);
  return FAILED(_Model.Document().UpdateAll()) ? "the document cannot be brought up to date" : "";
}

} // namespace voxbench
