// SPDX-License-Identifier: MIT
#include "ObjectModeler/VOXSequence.h"

#include "ComponentRuntime/VOXFatalError.h"

#include <algorithm>

_SEQUENCE_VOXBaseUnknown_ptr::_SEQUENCE_VOXBaseUnknown_ptr() : _Members(nullptr), _Length(0), _Capacity(0) {}

_SEQUENCE_VOXBaseUnknown_ptr::~_SEQUENCE_VOXBaseUnknown_ptr()
{
  delete[] _Members;
}

int _SEQUENCE_VOXBaseUnknown_ptr::Length() const
{
  return _Length;
}

VOXBaseUnknown*& _SEQUENCE_VOXBaseUnknown_ptr::operator[](int iIndex)
{
  if (iIndex < 0 || iIndex >= _Length)
    VOXFatalError("AssertionFailed:0 <= iIndex && iIndex < Length()", nullptr, nullptr, nullptr, __FILE__, __LINE__);
  return _Members[iIndex];
}

void _SEQUENCE_VOXBaseUnknown_ptr::Append(VOXBaseUnknown* iMember)
{
  if (_Length == _Capacity)
  {
    _Capacity = _Capacity == 0 ? 16 : 2 * _Capacity;
    auto** const members = new VOXBaseUnknown*[static_cast<std::size_t>(_Capacity)];
    std::copy_n(_Members, _Length, members);
    delete[] _Members;
    _Members = members;
  }
  _Members[_Length++] = iMember;
}

void _SEQUENCE_VOXBaseUnknown_ptr::Empty()
{
  _Length = 0;
}
