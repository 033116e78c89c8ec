// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/Document.h"

#include <string>

namespace voxbench
{

//! Where a start-up stands: "DeckLoad" for that of a type, "DeckLoad/SonsList/LoadFactor" for a component of it.
std::string PathOfStartUp(const voxhost::Feature& iStartUp);

//! The start-up at a path. @param iType its type, whose own start-up it is when nothing of that type stands at the path.
//! @return borrowed; null when the type has no start-up.
voxhost::Feature* FindStartUpAt(voxhost::Document& ioDocument, std::string_view iPath, const std::string& iType);

} // namespace voxbench
