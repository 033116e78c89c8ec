// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace voxhost
{

class Feature;

//! An attribute that refers to a feature.
struct Referrer
{
  Feature* feature; //!< that has the attribute, borrowed
  std::uint32_t identifier;
  std::uint16_t attribute;
  std::int32_t count; //!< how often: a list may hold a feature more than once
};

//! The attributes that refer to one feature, in the order in which they came.
//!
//! Few referrers are searched one by one; beyond that an index of places is kept. Referrers lie in one piece, so that
//! going through a hundred thousand of them, or taking them out one after the other, does not jump through the memory.
class ReferrerSet
{
public:
  //! Counts one more reference.
  void Add(Feature& iReferrer, int iAttribute);

  //! Counts one less; nothing when there is none.
  void Remove(const Feature& iReferrer, int iAttribute);

  bool Empty() const { return _Present == 0; }

  template <class Visitor>
  void Visit(Visitor iVisitor) const
  {
    for (const Referrer& referrer : _Referrers)
      if (referrer.count != 0)
        iVisitor(referrer);
  }

private:
  std::size_t Find(const Feature& iReferrer, int iAttribute) const;
  void Rebuild();
  void EnterIntoIndex(std::size_t iPlace);
  static std::size_t HashOf(std::uint32_t iIdentifier, int iAttribute);

  std::vector<Referrer> _Referrers; // a count of 0 for one that went
  std::vector<std::uint32_t>
      _Places; // open addressing: place in _Referrers plus 1, 0 for free; empty while they are few
  std::size_t _Present = 0;
};

} // namespace voxhost
