// SPDX-License-Identifier: MIT
#pragma once
#include "../Column.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace voxbench::inp
{

//! Whether ids exist, quickly: the ids have no holes, or a bit per id of their range tells; a search when they are far
//! apart. Borrows the ids.
class IdPresence
{
public:
  //! @param iIds ascending.
  explicit IdPresence(const Column<std::int32_t>& iIds)
      : _Ids(iIds),
        _First(iIds.empty() ? 1 : iIds[0]),
        _Last(iIds.empty() ? 0 : iIds.back())
  {
    _NoHoles = Range() == static_cast<std::int64_t>(iIds.size());
    if (_NoHoles || !IsDense())
      return;
    _Bits.resize(static_cast<std::size_t>(Range()));
    for (const std::int32_t id : iIds)
      _Bits[static_cast<std::size_t>(id - _First)] = true;
  }

  bool Has(std::int32_t iId) const
  {
    if (iId < _First || iId > _Last || _NoHoles)
      return iId >= _First && iId <= _Last;
    if (!_Bits.empty())
      return _Bits[static_cast<std::size_t>(iId - _First)];
    return std::binary_search(_Ids.begin(), _Ids.end(), iId);
  }

  bool HasAll(const Column<std::int32_t>& iIds) const
  {
    if (!_NoHoles)
      return std::all_of(iIds.begin(), iIds.end(), [this](std::int32_t iId) { return Has(iId); });
    std::int32_t least = _First;
    std::int32_t greatest = _Last;
    for (const std::int32_t id : iIds)
    {
      least = std::min(least, id);
      greatest = std::max(greatest, id);
    }
    return iIds.empty() || (least == _First && greatest == _Last);
  }

  const Column<std::int32_t>& Ids() const { return _Ids; }
  std::int32_t First() const { return _First; }
  std::int64_t Range() const { return std::int64_t{_Last} - _First + 1; }
  bool IsDense() const { return Range() <= 64 * static_cast<std::int64_t>(_Ids.size()); }

private:
  const Column<std::int32_t>& _Ids;
  std::int32_t _First;
  std::int32_t _Last;
  bool _NoHoles = true;
  std::vector<bool> _Bits;
};

} // namespace voxbench::inp
