// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace voxhost
{

//! An array that somebody else allocated, kept alive by its owner: a builder hands large arrays over without a copy.
template <class T>
class SharedArray
{
public:
  SharedArray() = default;

  //! @param iOwner keeps the memory at iData alive.
  SharedArray(const T* iData, std::size_t iSize, std::shared_ptr<const void> iOwner)
      : _Data(iData),
        _Size(iSize),
        _Owner(std::move(iOwner))
  {
  }

  //! Takes a vector over.
  explicit SharedArray(std::vector<T> iValues)
  {
    auto owner = std::make_shared<std::vector<T>>(std::move(iValues));
    _Data = owner->data();
    _Size = owner->size();
    _Owner = std::move(owner);
  }

  const T* data() const { return _Data; }
  std::size_t size() const { return _Size; }
  bool empty() const { return _Size == 0; }
  const T* begin() const { return _Data; }
  const T* end() const { return _Data + _Size; }
  const T& operator[](std::size_t iIndex) const { return _Data[iIndex]; }

private:
  const T* _Data = nullptr;
  std::size_t _Size = 0;
  std::shared_ptr<const void> _Owner;
};

} // namespace voxhost
