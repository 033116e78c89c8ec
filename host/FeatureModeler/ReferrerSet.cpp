// SPDX-License-Identifier: MIT
#include "host/FeatureModeler/ReferrerSet.h"

#include "host/FeatureModeler/Feature.h"

#include <bit>

namespace voxhost
{
namespace
{

constexpr std::size_t kFew = 8;

} // namespace

// Features that were made one after the other often refer one after the other: sixteen of them share a line of the index.
std::size_t ReferrerSet::HashOf(std::uint32_t iIdentifier, int iAttribute)
{
  const std::uint64_t block =
      (static_cast<std::uint64_t>(iIdentifier >> 4) << 16) + static_cast<std::uint64_t>(iAttribute);
  const std::uint64_t mixed = block * 0x9E3779B97F4A7C15u;
  return static_cast<std::size_t>((mixed >> 32) << 4) + (iIdentifier & 15u);
}

// Its place; the number of places when it is not there.
std::size_t ReferrerSet::Find(const Feature& iReferrer, int iAttribute) const
{
  const auto isSought = [&](const Referrer& referrer)
  { return referrer.feature == &iReferrer && referrer.attribute == iAttribute && referrer.count != 0; };
  if (_Places.empty())
  {
    std::size_t place = 0;
    while (place < _Referrers.size() && !isSought(_Referrers[place]))
      ++place;
    return place;
  }
  const std::size_t mask = _Places.size() - 1;
  for (std::size_t slot = HashOf(iReferrer.Identifier(), iAttribute) & mask; _Places[slot] != 0;
       slot = (slot + 1) & mask)
    if (isSought(_Referrers[_Places[slot] - 1]))
      return _Places[slot] - 1;
  return _Referrers.size();
}

void ReferrerSet::Add(Feature& iReferrer, int iAttribute)
{
  const std::size_t place = Find(iReferrer, iAttribute);
  if (place < _Referrers.size())
  {
    ++_Referrers[place].count;
    return;
  }
  _Referrers.push_back({&iReferrer, iReferrer.Identifier(), static_cast<std::uint16_t>(iAttribute), 1});
  ++_Present;
  if (_Referrers.size() > kFew && 2 * _Referrers.size() > _Places.size())
    Rebuild();
  else if (!_Places.empty())
    EnterIntoIndex(_Referrers.size() - 1);
}

void ReferrerSet::Remove(const Feature& iReferrer, int iAttribute)
{
  const std::size_t place = Find(iReferrer, iAttribute);
  if (place == _Referrers.size() || --_Referrers[place].count != 0)
    return;
  --_Present; // its place stays taken until the next rebuilding
  if (_Places.empty() || 4 * _Present < _Referrers.size())
    Rebuild();
}

// Lets go of what went, and makes an index with room to grow.
void ReferrerSet::Rebuild()
{
  std::erase_if(_Referrers, [](const Referrer& referrer) { return referrer.count == 0; });
  _Places.clear();
  if (_Referrers.size() <= kFew)
  {
    _Places.shrink_to_fit();
    return;
  }
  _Places.resize(std::bit_ceil(2 * _Referrers.size()));
  for (std::size_t place = 0; place < _Referrers.size(); ++place)
    EnterIntoIndex(place);
}

void ReferrerSet::EnterIntoIndex(std::size_t iPlace)
{
  const std::size_t mask = _Places.size() - 1;
  std::size_t slot = HashOf(_Referrers[iPlace].identifier, _Referrers[iPlace].attribute) & mask;
  while (_Places[slot] != 0)
    slot = (slot + 1) & mask;
  _Places[slot] = static_cast<std::uint32_t>(iPlace + 1);
}

} // namespace voxhost
