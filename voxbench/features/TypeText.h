// SPDX-License-Identifier: MIT
#pragma once
#include "host/FeatureModeler/TypeCatalogue.h"

#include <nlohmann/json.hpp>

namespace voxbench
{

//! Feature types as JSON: the form of the start-up catalogues, and of the types that a stored document brings along.
//!
//! {"name": "DeckLoad", "base": "AnalysisLoad", "attributes": [{"name": "Step", "type": "integer", "value": 1}]}
//! - Types of attributes: real, boolean, string, integer, reference, component; lists are reals, booleans, strings,
//!   integers, references, components.
//! - A component attribute may have "components": [{"name": "Factor", "type": "LoadFactor", "values": {"Value": 1.0}}].
//! - Further members, all optional: "physicalType", "faces" (bits), "alsoKindOf", "abstract", and "parameter":
//!   {"kind": "real"}, or {"kind": "enumeration", "entries": [...]}.
//! - Members that are not known are passed over.
using TypeText = nlohmann::ordered_json;

//! @throw std::runtime_error what is wrong with the text, a sentence.
voxhost::TypeDeclaration DeclarationOf(const TypeText& iText);

//! What a type adds to its base.
TypeText TextOf(const voxhost::FeatureType& iType);

} // namespace voxbench
