// SPDX-License-Identifier: MIT
#pragma once

class VOXBaseUnknown;

namespace voxhost
{

//! Makes the face of a feature that carries VOXISpecAttrAccess.
VOXBaseUnknown* NewAttrAccess();

} // namespace voxhost
