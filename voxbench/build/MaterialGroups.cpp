// SPDX-License-Identifier: MIT
#include "voxbench/build/MaterialGroups.h"
#include "voxbench/features/TypeNames.h"

#include <algorithm>
#include <new>

namespace voxbench
{
namespace
{

//! The groups that properties of a material apply to, each once.
std::vector<voxhost::Feature*> GroupsOf(const voxhost::Feature& iMaterial,
                                        const std::vector<voxhost::Feature*>& iProperties)
{
  std::vector<voxhost::Feature*> groups;
  for (const voxhost::Feature* const property : iProperties)
  {
    const auto materials = property->Features("Materials");
    if (std::find(materials.begin(), materials.end(), &iMaterial) == materials.end())
      continue;
    for (voxhost::Feature* const group : property->Features("Supports"))
      if (std::find(groups.begin(), groups.end(), group) == groups.end())
        groups.push_back(group);
  }
  return groups;
}

} // namespace

std::vector<voxhost::Feature*> MakeMaterialGroups(LoadedModel& ioModel)
{
  const std::vector<voxhost::Feature*> properties = ioModel.MembersOf("PropertySet");
  std::vector<voxhost::Feature*> groups;
  for (const voxhost::Feature* const material : ioModel.MembersOf("MaterialSet"))
  {
    const std::vector<voxhost::Feature*> supports = GroupsOf(*material, properties);
    if (supports.empty())
      continue;
    const std::string name = LoadedModel::DisplayName(*material);
    voxhost::Feature* const group = ioModel.Document().New(kMaterialGroupType, name.c_str());
    if (group == nullptr)
      throw std::bad_alloc();
    group->Set("Definition", std::string("material"));
    for (voxhost::Feature* const support : supports)
      group->Add("Supports", *support);
    groups.push_back(group);
  }
  return groups;
}

} // namespace voxbench
