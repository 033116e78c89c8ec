// SPDX-License-Identifier: MIT
#pragma once

namespace voxhost
{

//! What of the designated object a list lists.
enum ListKind : int
{
  kListNothing = 0,
  kListChildren = 1,
  kListParents = 2,
  kListItems = 3 //!< of a user list
};

} // namespace voxhost
