// SPDX-License-Identifier: MIT
#pragma once
#include "../NeutralModel.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace voxbench::inp
{

//! Ids from `firstId` of a builder's list on come from the card at `where`.
struct SetPiece
{
  std::size_t firstId = 0;
  Where where;
};

struct NamedReference
{
  std::string name;
  std::uint8_t label = 0; //!< in surfaces: the side label
  Where where;
};

struct GeneratedRange
{
  std::int32_t first = 0;
  std::int32_t last = 0;
  std::int32_t increment = 1;
  Where where;
};

//! A set or surface while its cards come in: what they say, nothing resolved.
struct SetBuilder
{
  std::string name;
  Where where;
  Column<std::int32_t> ids;
  Column<std::uint8_t> labels; //!< in element surfaces: the side label of each id
  std::vector<SetPiece> pieces;
  std::vector<GeneratedRange> ranges;
  std::vector<NamedReference> references;      //!< sets of the same sort; in surfaces: element or node sets
  std::vector<NamedReference> nodesOfElements; //!< in node sets: element sets whose nodes are meant

  //! Tells that the ids to come are from the card at iWhere.
  void BeginPiece(Where iWhere) { pieces.push_back({ids.size(), iWhere}); }
};

//! The builders of one sort, in the order of first appearance.
class SetBuilders
{
public:
  //! The builder of that name, made if there is none. Borrowed until the next call.
  SetBuilder& Get(const std::string& iName, Where iWhere)
  {
    const auto [found, isNew] = _ByName.try_emplace(iName, _All.size());
    if (isNew)
    {
      _All.emplace_back();
      _All.back().name = iName;
      _All.back().where = iWhere;
    }
    return _All[found->second];
  }

  //! @return the index of that name, -1 if there is none.
  std::int64_t Find(const std::string& iName) const
  {
    const auto found = _ByName.find(iName);
    return found == _ByName.end() ? -1 : static_cast<std::int64_t>(found->second);
  }

  std::vector<SetBuilder>& All() { return _All; }

private:
  std::vector<SetBuilder> _All;
  std::unordered_map<std::string, std::size_t> _ByName;
};

//! Side labels of element surfaces while they are read: 1 to 9 as in S1 to S9, then the lettered ones.
enum SideLabel : std::uint8_t
{
  kSideNegative = 100, //!< SNEG
  kSidePositive,       //!< SPOS
  kSideN,
  kSideP
};

} // namespace voxbench::inp
