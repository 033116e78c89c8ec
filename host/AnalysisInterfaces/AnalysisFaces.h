// SPDX-License-Identifier: MIT
#pragma once

class VOXBaseUnknown;

namespace voxhost
{

// Makers of the analysis faces of a feature.
VOXBaseUnknown* NewExplicitFace();
VOXBaseUnknown* NewEntityFace();
VOXBaseUnknown* NewSetFace();
VOXBaseUnknown* NewBasicComponentFace();
VOXBaseUnknown* NewSupportFace();
VOXBaseUnknown* NewMeshPartFilterFace();
VOXBaseUnknown* NewModelFactoryFace();
VOXBaseUnknown* NewVisuGrouperFace();
VOXBaseUnknown* NewViewManagerFace();

} // namespace voxhost
