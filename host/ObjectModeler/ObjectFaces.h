// SPDX-License-Identifier: MIT
#pragma once

class VOXBaseUnknown;

namespace voxhost
{

// Faces that every feature carries.
VOXBaseUnknown* NewAlias();
VOXBaseUnknown* NewLinkableObject();
VOXBaseUnknown* NewRedrawEvent();

} // namespace voxhost
