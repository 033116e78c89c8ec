// SPDX-License-Identifier: MIT
#pragma once

#include "ExplicitModel/VOXAnalysisExplicitModel.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace voxhost
{

//! One row of a rules table.
struct PhysicalTypeRule
{
  const char* name;
  VOXSamValue category;
  std::vector<const char*> children; //!< names of the types allowed below; "-NAME" allows at most one
};

//! Rules data of the reference host: one table. Types are numbered in the table's order, behind the fixed numbers.
class VOX_HOST_API ExplicitRules : public VOXAnalysisExplicitRulesData
{
public:
  explicit ExplicitRules(const std::vector<PhysicalTypeRule>& iTable);

  //! The rules of an analysis model.
  static std::shared_ptr<const ExplicitRules> Default();
  static const std::vector<PhysicalTypeRule>& DefaultTable();

  //! Number of a type; VOXSamPhysicalTypeNone for an unknown name.
  int NumberOf(const std::string& iName) const;
  //! Name of a type; empty for an unknown number.
  std::string NameOf(int iNumber) const;

  struct Type
  {
    std::string name;
    VOXSamValue category = VOXSamValueUnknown;
    std::vector<int> children; //!< numbers, negative where at most one is allowed
  };
  //! Null for an unknown number.
  const Type* Find(int iNumber) const;

private:
  std::vector<Type> _Types; // by number; 0 is no type
  std::map<std::string, int, std::less<>> _Numbers;
};

} // namespace voxhost
