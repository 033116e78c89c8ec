// SPDX-License-Identifier: MIT
#pragma once
#include "voxbench/report/Output.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace voxbench
{

//! A group and what it hands out for one kind.
struct GroupRow
{
  std::string name;
  std::string kind; //!< NODE, EDGE, FACE or ELEMENT
  std::int64_t count = 0;
  std::span<const std::int32_t> ids;   //!< ascending; none unless entities are listed
  std::span<const std::int32_t> sides; //!< of edges and faces, as many as ids; else none
  std::string failure;                 //!< why there is no content; "" when there is
};

//! Writes the rows of `voxbench groups` one by one: no more than one group's entities are held at a time.
class GroupsReport
{
public:
  virtual ~GroupsReport() = default;
  virtual void Add(const GroupRow& iRow) = 0;
  //! Ends the report; after the last row.
  virtual void Close() = 0;

  //! A table; with ids, a paragraph per group. @param iListEntities whether the ids are printed.
  static std::unique_ptr<GroupsReport> Text(Output& ioOutput, bool iListEntities);

  //! One object {"groups": [...]}; each row {"name", "kind", "count", "ids"}. "ids" only with iListEntities: numbers, or
  //! pairs [element, side] for faces and edges. A failed row has "count": null and "failure".
  static std::unique_ptr<GroupsReport> Json(Output& ioOutput, bool iListEntities);
};

} // namespace voxbench
