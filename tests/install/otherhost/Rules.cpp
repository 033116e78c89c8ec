// SPDX-License-Identifier: MIT
// What explicit models are made of.
#include "Model.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace otherhost
{
namespace
{

struct Row
{
  const char* name;
  VOXSamValue category;
  std::vector<const char*> children; // "-NAME": at most one
};

const Row kRows[] = {
    {"NODE", VOXSamValueNode, {}},
    {"ELEMENT", VOXSamValueElement, {}},
    {"MESH", VOXSamValueMesh, {"NODE", "ELEMENT"}},
    {"AXIS", VOXSamValueAxis, {}},
    {"EXPRESSION", VOXSamValueExpression, {}},
    {"NODE_GROUP", VOXSamValueEntity, {}},
    {"EDGE_GROUP", VOXSamValueEntity, {}},
    {"FACE_GROUP", VOXSamValueEntity, {}},
    {"ELEMENT_GROUP", VOXSamValueEntity, {}},
    {"GROUP", VOXSamValueEntity, {"-NODE_GROUP", "-EDGE_GROUP", "-FACE_GROUP", "-ELEMENT_GROUP"}},
    {"DISPLACEMENT", VOXSamValueEntity, {"EXPRESSION"}},
    {"DISTRIBUTED_LOAD", VOXSamValueEntity, {"EXPRESSION"}},
    {"GROUP_SET", VOXSamValueGroupSet, {"GROUP"}},
    {"AXIS_SET", VOXSamValueAxisSet, {"AXIS"}},
    {"LOAD_SET", VOXSamValueLoadSet, {"DISTRIBUTED_LOAD"}},
    {"RESTRAINT_SET", VOXSamValueRestraintSet, {"DISPLACEMENT"}},
    {"ANALYSIS_MODEL", VOXSamValueAnalysisModel, {"-MESH", "GROUP_SET", "AXIS_SET", "LOAD_SET", "RESTRAINT_SET"}},
};

constexpr int kFirstOwnNumber = 100;

} // namespace

Rules::Rules()
{
  int next = kFirstOwnNumber;
  for (const Row& row : kRows) // children stand above what they stand in
  {
    Type type{row.category, {}};
    for (const char* const child : row.children)
      type.children.push_back(*child == '-' ? -numbers.at(child + 1) : numbers.at(child));
    numbers[row.name] = next;
    types[next++] = type;
  }
  for (int number = VOXSamPhysicalTypeGenEntity; number <= VOXSamPhysicalTypeImportedMass; ++number)
    types[number] = {number == VOXSamPhysicalTypeGenSet ? VOXSamValueOtherSet : VOXSamValueEntity, {}};
  numbers["IMPORTED_LOAD"] = VOXSamPhysicalTypeImportedLoad;
}

const Rules::Type* Rules::Find(int iNumber) const
{
  const auto found = types.find(iNumber);
  return found == types.end() ? nullptr : &found->second;
}

} // namespace otherhost

using otherhost::Rules;

VOXAnalysisExplicitRulesData::~VOXAnalysisExplicitRulesData() = default;
VOXAnalysisExplicitRulesData::VOXAnalysisExplicitRulesData() = default;
HRESULT VOXAnalysisExplicitRulesData::GetPhysicalTypeNumber(const char* iName, int& oNumber) const
{
  const Rules& rules = Rules::Of(*this);
  const auto found = iName == nullptr ? rules.numbers.end() : rules.numbers.find(iName);
  if (found == rules.numbers.end())
    return E_FAIL;
  oNumber = found->second;
  return S_OK;
}

HRESULT VOXAnalysisExplicitRulesData::GetPhysicalTypeCategory(int iType, VOXSamValue& oCategory) const
{
  const Rules::Type* const type = Rules::Of(*this).Find(iType);
  if (type == nullptr)
    return E_FAIL;
  oCategory = type->category;
  return S_OK;
}

HRESULT VOXAnalysisExplicitRulesData::GetPhysicalTypeAuthorizedChildren(int iType, int& oCount, int*& oTypes) const
{
  const Rules::Type* const type = Rules::Of(*this).Find(iType);
  if (type == nullptr)
    return E_FAIL;
  int* const types = type->children.empty() ? nullptr : new (std::nothrow) int[type->children.size()];
  if (types == nullptr && !type->children.empty())
    return E_FAIL;
  std::copy(type->children.begin(), type->children.end(), types);
  oCount = static_cast<int>(type->children.size());
  oTypes = types;
  return S_OK;
}

HRESULT VOXSamIdentityEnum(const char* iKeyword, VOXSamPosition& oPosition)
{
  static constexpr const char* names[] = {"",      "NODE", "EDGE", "FACE", "ELEMENT", "NODE_OF_ELEMENT", "GAUSS_POINT",
                                          "CENTER"};
  for (int position = VOXSamPositionNode; position <= VOXSamPositionCenter; ++position)
  {
    if (iKeyword == nullptr || std::strcmp(iKeyword, names[position]) != 0)
      continue;
    oPosition = static_cast<VOXSamPosition>(position);
    return S_OK;
  }
  return E_FAIL;
}
