// SPDX-License-Identifier: MIT
#include "ByteWindow.h"

#include <algorithm>
#include <cstring>

namespace voxbench::frd
{

std::string ByteWindow::Open(const std::filesystem::path& iPath)
{
  std::string reason = _File.Open(iPath);
  if (reason.empty())
    _Bytes.resize(kWindow + kPadding);
  return reason;
}

bool ByteWindow::Refill(std::size_t iCount)
{
  if (_AtEnd)
    return false;
  const std::size_t kept = Left();
  std::memmove(_Bytes.data(), _Bytes.data() + _Start, kept);
  _Passed += _Start;
  _Start = 0;
  _End = kept;
  const std::size_t wanted = std::max(kWindow, iCount);
  if (_Bytes.size() < wanted + kPadding)
    _Bytes.resize(wanted + kPadding);
  while (_End < wanted && !_AtEnd)
  {
    const std::int64_t got = _File.Read(_Bytes.data() + _End, wanted - _End);
    _AtEnd = got <= 0;
    _End += got > 0 ? static_cast<std::size_t>(got) : 0;
  }
  std::memset(_Bytes.data() + _End, 0, kPadding);
  return _End >= iCount && Failure().empty();
}

} // namespace voxbench::frd
