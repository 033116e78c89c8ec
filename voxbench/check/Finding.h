// SPDX-License-Identifier: MIT
#pragma once
#include <cstddef>
#include <string>
#include <vector>

namespace voxbench
{

//! What can be wrong with a document.
struct CheckRule
{
  const char* id;
  const char* sentence; //!< what holds in a sound document
  const char* remedy;   //!< what to do when it does not
};

//! The rules, in the order in which they are looked at. One table: the names below are its places.
const std::vector<CheckRule>& CheckRules();

enum class Rule : std::size_t
{
  ParentNotAllowed,
  SetNotAllowed,
  SetOfWrongType,
  SensorElsewhere,
  SubscriptionNeedless,
  NameMissing,
  TargetNone,
  GroupEmpty,
  GroupUnused,
  ElementWithoutProperty,
  ElementWithTwoProperties,
  NodeUnused,
  MaterialMissing,
  MaterialUnused,
  ConnectionIncomplete
};

struct Finding
{
  Rule rule;
  std::string feature; //!< its path, "/" between names
  std::string found;
  std::string allowed; //!< what would be right there
};

//! What a check asked and found.
struct CheckResult
{
  struct Set
  {
    std::string name;
    bool mayStand = false;
    std::string quality; //!< "input", "group", or "" when the set's type has none
  };
  std::vector<Finding> findings; //!< in the order of the rules, then of the document
  std::vector<Set> sets;         //!< asked where they may stand
  std::size_t entities = 0;      //!< likewise
  std::size_t subscribing = 0;   //!< of the entities
  std::size_t aggregated = 0;    //!< of the entities: those that are aggregated in their set
};

} // namespace voxbench
