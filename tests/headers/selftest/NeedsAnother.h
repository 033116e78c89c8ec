// SPDX-License-Identifier: MIT
#pragma once

// Does not compile alone on purpose: nothing here declares what it derives from.
class NeedsAnother : public DeclaredElsewhere
{
};
