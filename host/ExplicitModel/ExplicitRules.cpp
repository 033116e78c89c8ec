// SPDX-License-Identifier: MIT
#include "host/ExplicitModel/ExplicitRules.h"

#include "host/Instruments/Faults.h"
#include "host/Instruments/Ledger.h"

#include <algorithm>
#include <new>

using voxhost::ExplicitRules;
using voxhost::Faults;

namespace
{

// The types that every model knows under the same numbers.
const std::pair<const char*, VOXSamValue> kFixedTypes[] = {
    {"", VOXSamValueUnknown},
    {"GENERIC_ENTITY", VOXSamValueEntity},
    {"GENERIC_SET", VOXSamValueOtherSet},
    {"IMPORTED_MATERIAL", VOXSamValueEntity},
    {"IMPORTED_AXIS", VOXSamValueEntity},
    {"IMPORTED_PROPERTY", VOXSamValueEntity},
    {"IMPORTED_RESTRAINT", VOXSamValueEntity},
    {"IMPORTED_LOAD", VOXSamValueEntity},
    {"IMPORTED_MASS", VOXSamValueEntity},
};

const ExplicitRules& Rules(const VOXAnalysisExplicitRulesData& iData)
{
  return static_cast<const ExplicitRules&>(iData);
}

} // namespace

VOXAnalysisExplicitRulesData::VOXAnalysisExplicitRulesData() = default;
VOXAnalysisExplicitRulesData::~VOXAnalysisExplicitRulesData() = default;

namespace voxhost
{

ExplicitRules::ExplicitRules(const std::vector<PhysicalTypeRule>& iTable)
{
  for (const auto& [name, category] : kFixedTypes)
    _Types.push_back({name, category, {}});
  for (std::size_t number = 1; number < _Types.size(); ++number)
    _Numbers.emplace(_Types[number].name, static_cast<int>(number));
  for (const PhysicalTypeRule& rule : iTable)
  {
    const auto [place, isNew] = _Numbers.emplace(rule.name, static_cast<int>(_Types.size()));
    if (isNew)
      _Types.push_back({rule.name, rule.category, {}});
    else
      _Types[static_cast<std::size_t>(place->second)].category = rule.category;
  }
  for (const PhysicalTypeRule& rule : iTable)
  {
    Type& type = _Types[static_cast<std::size_t>(NumberOf(rule.name))];
    for (const char* const child : rule.children)
      type.children.push_back(child[0] == '-' ? -NumberOf(child + 1) : NumberOf(child));
  }
}

int ExplicitRules::NumberOf(const std::string& iName) const
{
  const auto found = _Numbers.find(iName);
  return found == _Numbers.end() ? VOXSamPhysicalTypeNone : found->second;
}

std::string ExplicitRules::NameOf(int iNumber) const
{
  const Type* const type = Find(iNumber);
  return type == nullptr ? std::string() : type->name;
}

const ExplicitRules::Type* ExplicitRules::Find(int iNumber) const
{
  if (iNumber <= 0 || iNumber >= static_cast<int>(_Types.size()))
    return nullptr;
  return &_Types[static_cast<std::size_t>(iNumber)];
}

} // namespace voxhost

HRESULT VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber(const char* iName, int& oNumber) const
{
  if (iName == nullptr || Faults::Enter("VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber"))
    return E_FAIL;
  const int number = Rules(*this).NumberOf(iName);
  if (number == VOXSamPhysicalTypeNone)
    return E_FAIL;
  oNumber = number;
  return S_OK;
}

HRESULT VOXAnalysisExplicitRulesData::GetPhysicalTypeCategory(int iType, VOXSamValue& oCategory) const
{
  const ExplicitRules::Type* const type = Rules(*this).Find(iType);
  if (Faults::Enter("VOXAnalysisExplicitRulesData::GetPhysicalTypeCategory") || type == nullptr)
    return E_FAIL;
  oCategory = type->category;
  return S_OK;
}

HRESULT VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren(int iType, int& oCount, int*& oTypes) const
{
  const ExplicitRules::Type* const type = Rules(*this).Find(iType);
  if (Faults::Enter("VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren") || type == nullptr)
    return E_FAIL;
  int* types = nullptr;
  if (!type->children.empty())
  {
    types = new (std::nothrow) int[type->children.size()];
    if (types == nullptr)
      return E_FAIL;
    std::copy(type->children.begin(), type->children.end(), types);
  }
  oCount = static_cast<int>(type->children.size());
  oTypes = voxhost::Ledger::HandOut(types);
  return S_OK;
}
