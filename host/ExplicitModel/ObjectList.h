// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

struct VOXSamModelDataRoot;

namespace voxhost
{

//! Objects in the order of their coming. Those that go in that order, or in the opposite one, cost the same each, however
//! many there are.
class ObjectList
{
public:
  ObjectList() = default;
  explicit ObjectList(std::vector<VOXSamModelDataRoot*> iObjects) : _Objects(std::move(iObjects)) {}

  using Iterator = std::vector<VOXSamModelDataRoot*>::const_iterator;

  Iterator begin() const { return _Objects.begin() + static_cast<std::ptrdiff_t>(_Gone); }
  Iterator end() const { return _Objects.end(); }
  std::size_t size() const { return _Objects.size() - _Gone; }
  bool empty() const { return size() == 0; }
  VOXSamModelDataRoot* operator[](std::size_t iPlace) const { return _Objects[_Gone + iPlace]; }
  void push_back(VOXSamModelDataRoot* iObject) { _Objects.push_back(iObject); }

  //! Takes an object away, once; nothing when it is not there.
  void Remove(const VOXSamModelDataRoot* iObject)
  {
    if (!empty() && _Objects.back() == iObject)
      return _Objects.pop_back();
    const Iterator found = std::find(begin(), end(), iObject);
    if (found == end())
      return;
    if (found != begin())
      _Objects.erase(found);
    else if (++_Gone > _Objects.size() / 2) // as many are moved as have gone
    {
      _Objects.erase(_Objects.begin(), begin());
      _Gone = 0;
    }
  }

  //! Nothing is left, no memory either.
  void Clear()
  {
    std::vector<VOXSamModelDataRoot*>().swap(_Objects);
    _Gone = 0;
  }

private:
  std::vector<VOXSamModelDataRoot*> _Objects;
  std::size_t _Gone = 0; //!< so many at the front are no more
};

} // namespace voxhost
