// SPDX-License-Identifier: MIT
#include "voxbench/build/NamesInUse.h"

namespace voxbench
{
namespace
{

class Gatherer
{
public:
  void Add(const std::string& iName)
  {
    if (!iName.empty())
      _Names.insert(iName);
  }

  void Add(const std::vector<Parameter>& iParameters)
  {
    for (const Parameter& parameter : iParameters)
      Add(parameter.value);
  }

  void Add(const CardRecord& iCard)
  {
    Add(iCard.parameters);
    for (const DataLine& line : iCard.data)
      for (const std::string& field : line.fields)
        Add(field);
  }

  void Add(const AppliedCard& iCard, const NeutralModel& iRecords)
  {
    Add(iCard.parameters);
    for (const AppliedRow& row : iCard.rows)
      if (row.name >= 0)
        Add(iRecords.names[static_cast<std::size_t>(row.name)]);
  }

  void AddParts(const std::vector<NamedSet>& iSets)
  {
    for (const NamedSet& set : iSets)
      if (set.isPart)
        Add(set.name);
  }

  std::unordered_set<std::string> Take() { return std::move(_Names); }

private:
  std::unordered_set<std::string> _Names;
};

} // namespace

std::unordered_set<std::string> NamesInUse(const NeutralModel& iRecords)
{
  Gatherer names;
  names.AddParts(iRecords.nodeSets);
  names.AddParts(iRecords.elementSets);
  for (const auto* const cards :
       {&iRecords.initialConditions, &iRecords.nodalThicknesses, &iRecords.loads, &iRecords.restraints})
    for (const AppliedCard& card : *cards)
      names.Add(card, iRecords);
  for (const MultiPointConstraint& constraint : iRecords.multiPointConstraints)
    for (const std::string& set : constraint.nodeSets)
      names.Add(set);
  for (const auto* const axes : {&iRecords.orientations, &iRecords.transforms})
    for (const LocalAxes& system : *axes)
      names.Add(system.card);
  for (const Section& section : iRecords.sections)
    names.Add(section.card);
  for (const Connection& connection : iRecords.connections)
    names.Add(connection.card);
  for (const OutputRequest& request : iRecords.outputRequests)
    names.Add(request.card);
  for (const Step& step : iRecords.steps)
  {
    names.Add(step.card);
    names.Add(step.procedure);
  }
  for (const CardRecord& card : iRecords.otherCards)
    names.Add(card);
  return names.Take();
}

} // namespace voxbench
